# The two commands of the README:
#   make run    installs what is missing, builds, and starts the program on demo/
#   make test   installs what is missing, builds, and runs every test, makes and
#               checks the .deb, then runs the tests again in a build with
#               AddressSanitizer and UndefinedBehaviorSanitizer, then each fuzz
#               target on its fixed findings and for a few seconds
# and more:
#   make package  the .deb for a Debian desktop, in $(BUILD)/
BUILD ?= build
ASAN_BUILD ?= build-asan
FUZZ_BUILD ?= build-fuzz
# Seconds each fuzz target runs: `make fuzz` for a search, the test target
# for a smoke run.
FUZZ_SECONDS ?= 60
FUZZ_SMOKE_SECONDS ?= 3
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=

.PHONY: all deps build demo run test test-asan package fuzz-build fuzz test-fuzz bench kill-test clean

all: build

deps:
	scripts/install-deps

build: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build $(BUILD) -j$(JOBS)

demo: build
	scripts/prepare-demo demo

run: demo
	cd demo && ../$(BUILD)/bin/fisc

test: build
	cd $(BUILD) && ctest --output-on-failure -j$(JOBS)
	$(MAKE) package
	scripts/check-package $(BUILD)
	$(MAKE) test-asan
	$(MAKE) test-fuzz

package: build
	rm -f $(BUILD)/fisc_*.deb
	cmake --build $(BUILD) --target package

test-asan: deps
	cmake -S . -B $(ASAN_BUILD) -DCMAKE_BUILD_TYPE=Debug -DFISC_SANITIZE=ON $(CMAKE_FLAGS)
	cmake --build $(ASAN_BUILD) -j$(JOBS)
	cd $(ASAN_BUILD) && \
	  ASAN_OPTIONS=halt_on_error=1:detect_leaks=1 \
	  LSAN_OPTIONS=suppressions=$(CURDIR)/tests/lsan.supp:print_suppressions=0 \
	  UBSAN_OPTIONS=halt_on_error=1:print_stacktrace=1 \
	  ctest --output-on-failure -j$(JOBS)

fuzz-build: deps
	cmake -S . -B $(FUZZ_BUILD) -DFISC_FUZZ=ON -DCMAKE_CXX_COMPILER=clang++ \
	  -DCMAKE_BUILD_TYPE=RelWithDebInfo $(CMAKE_FLAGS)
	cmake --build $(FUZZ_BUILD) -j$(JOBS)

# Each target searches for FUZZ_SECONDS from its seeds; what it finds is
# written to $(FUZZ_BUILD)/findings/<target>/.
fuzz: fuzz-build
	tests/fuzz/run $(FUZZ_BUILD) $(FUZZ_SECONDS)

# The fixed findings replayed, then a short search by every target.
test-fuzz: fuzz-build
	tests/fuzz/run $(FUZZ_BUILD) $(FUZZ_SMOKE_SECONDS)

bench: build
	$(BUILD)/bin/fisc_bench

# Kills the program at random moments of a save and checks the files after.
kill-test: build
	bench/kill-test $(BUILD)/bin/fisc

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD)
