#pragma once
// The whole program in real windows on a working directory of its own: the
// delivered parameter files, plus any file a test seeds, and a fixed day.
#include <gtest/gtest.h>

#include <QWidget>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "app/Aplicatie.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "platform/qt/QtServices.h"
#include "platform/qt/ScreenWindows.h"
#include "qt/QtTestSupport.h"
#include "support/Ecrane.h"
#include "support/TestSupport.h"

namespace fisc::test {

// A file of a replay case, whose bytes the windows must give too.
inline std::filesystem::path ReplayCase(std::string_view cale) {
  return DataDir() / ".." / "tests" / "replay" / std::string(cale);
}

class ProgramInWindows : public ::testing::Test {
 protected:
  // `seeds`: files copied into the working directory, as (source, name there).
  explicit ProgramInWindows(
      std::initializer_list<std::pair<std::filesystem::path, const char*>> seeds = {})
      : files_((Seed(dir_, seeds), dir_.path())),
        drive_(dir_ / "a"),
        platforma_{files_, dialogs_, clock_, launcher_, drive_, printer_},
        app_(platforma_) {}

  void SetUp() override {
    ASSERT_TRUE(app_.Porneste());
    windows_.Redraw();
    Settle();
  }

  QWidget* W(Control& c) { return windows_.WidgetOf(c); }
  Control* Focus() { return app_.Ecran().Focused(); }

  TempDir dir_;
  Files files_;
  QtDialogs dialogs_;
  ZiFixa clock_;
  HeadlessLauncher launcher_;
  Drive drive_;
  HeadlessPrinter printer_;
  Platforma platforma_;
  Aplicatie app_;
  ScreenWindows windows_{app_.Ecran()};

 private:
  static const TempDir& Seed(
      const TempDir& dir,
      std::initializer_list<std::pair<std::filesystem::path, const char*>> seeds) {
    for (const char* name : {"Cuantum.txt", "Impozitar.txt"})
      std::filesystem::copy_file(DataDir() / name, dir / name);
    for (const auto& [source, name] : seeds) std::filesystem::copy_file(source, dir / name);
    return dir;
  }
};

}  // namespace fisc::test
