# The two commands of the README:
#   make run    installs what is missing, builds, and starts the program on demo/
#   make test   installs what is missing, builds, and runs every test, makes and
#               checks the .deb, then runs the tests again in a build with
#               AddressSanitizer and UndefinedBehaviorSanitizer
# and one more:
#   make package  the .deb for a Debian desktop, in $(BUILD)/
BUILD ?= build
ASAN_BUILD ?= build-asan
JOBS ?= $(shell nproc)
CMAKE_FLAGS ?=

.PHONY: all deps build demo run test test-asan package bench clean

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

bench: build
	$(BUILD)/bin/fisc_bench

clean:
	rm -rf $(BUILD) $(ASAN_BUILD)
