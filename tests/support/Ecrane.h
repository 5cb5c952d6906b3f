#pragma once
// The whole program on headless services in a working directory of its own,
// with a person's hands for the screen tests: the same actions the replay
// driver and the windows send.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "app/Aplicatie.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "support/TestSupport.h"

namespace fisc::test {

// The machine's clock on a day a test chooses: 15 March 2002 unless moved.
// The short date is the platform's own text.
class ZiFixa : public HeadlessClock {
 public:
  std::chrono::sys_days Today() const override { return zi; }
  std::chrono::sys_days zi = std::chrono::year(2002) / 3 / 15;
};

inline constexpr std::string_view kAngajator =
    "12345674,1,#SC TEST SRL#,##,##,#BRASOV#,#BRASOV#,#STR. LUNGA#,#12#,500100,#A#,#2#,#3#,#14#,,"
    "#0268123456#,#OFFICE@TEST.RO#\r\n";

class Program {
 public:
  // The delivered parameter files and an employer; `pregateste` may add or
  // change files before the start.
  explicit Program(const std::function<void(const TempDir&)>& pregateste = {}) {
    for (const char* name : {"Cuantum.txt", "Impozitar.txt"})
      std::filesystem::copy_file(DataDir() / name, dir / name);
    WriteBytes(dir / "Rep_2002.txt", kAngajator);
    if (pregateste) pregateste(dir);
    app = std::make_unique<Aplicatie>(platforma);
    EXPECT_TRUE(app->Porneste());
  }

  Desktop& D() { return app->Ecran(); }
  FisaII& II() { return app->fisaII; }
  Fisa1F& F1() { return app->fisa1F; }
  Fisa2& F2() { return app->fisa2; }
  FisaInLucru& Fisa() { return app->StareComuna().Fisa; }

  void Click(Control& c) { D().UserClick(c); }
  void Enter() { D().UserEnter(); }
  // Focus, then the text typed over what was there.
  void Scrie(Control& c, std::string_view text) {
    D().UserFocus(c);
    D().UserType(text);
  }
  // The text typed, then the focus taken elsewhere so that the field is left.
  void Completeaza(Control& c, std::string_view text, Control& apoi) {
    Scrie(c, text);
    D().UserFocus(apoi);
  }
  std::size_t Mesaje() const { return dialogs.History().size(); }
  const std::string& UltimulMesaj() const { return dialogs.History().back().text; }

  // The employee screen from the main window, as its button opens it.
  void EcranAngajat() {
    Click(app->intro.Command1);
    Click(app->fisaI.Ok_Fisa_II);
  }
  // A new employee's FF1 opened by Command1 after the dates.
  void FisaNoua(std::string_view cod, std::string_view job0 = "", std::string_view job1 = "",
                bool inv2 = false) {
    if (!II().Visible()) EcranAngajat();
    Scrie(II().CodS, cod);
    Scrie(II().NumeS, "POPESCU");
    Click(II().Ok_Fisa1);
    if (inv2) Click(II().Inv2A);
    Scrie(II().Job0, job0);
    Scrie(II().Job1, job1);
    Click(II().Command1);
  }

  TempDir dir;
  Files files{dir.path()};
  HeadlessDialogs dialogs;
  ZiFixa clock;
  HeadlessLauncher launcher;
  Drive drive{dir / "a"};
  HeadlessPrinter printer;
  Platforma platforma{files, dialogs, clock, launcher, drive, printer};
  std::unique_ptr<Aplicatie> app;
};

}  // namespace fisc::test
