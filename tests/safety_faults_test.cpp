// Every action that writes, failed at each of its disk operations in turn as
// a full disk, a refused access or a device error would fail it: each data
// file must be whole afterwards, as before the action or as after it, and the
// failure must reach the person the way the program reports it there.
#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>

#include "app/Discheta.h"
#include "app/Schimb.h"
#include "params/Cuantum.h"
#include "params/Impozitar.h"
#include "platform/headless/HeadlessServices.h"
#include "sheets/RecordDed.h"
#include "sheets/Stocare.h"
#include "support/Ecrane.h"
#include "verify/Verificare.h"
#include "yearops/PreluareAnPrecedent.h"
#include "yearops/RegularizareAnuala.h"
#include "yearops/Subdirector.h"
#include "yearops/UnireDischete.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;

// The files of a folder and its subfolders by relative name; work files,
// which a failure may leave behind, are left out.
using Instantaneu = std::map<std::string, std::string>;

bool FisierDeLucru(const std::string& nume) {
  std::string leaf = fs::path(nume).filename().string();
  return leaf == "Temporar.txt" || leaf == "Temporar_anual.txt" || leaf == "temp1.txt" ||
         leaf.starts_with(".~") || leaf.ends_with("_r.txt") || leaf.ends_with("_u.txt");
}

Instantaneu Fotografiaza(const fs::path& dir) {
  Instantaneu s;
  for (const auto& e : fs::recursive_directory_iterator(dir)) {
    if (!e.is_regular_file()) continue;
    std::string nume = fs::relative(e.path(), dir).string();
    if (!FisierDeLucru(nume)) s[nume] = test::ReadBytes(e.path());
  }
  return s;
}

// Fails the k-th operation that changes the disk (k from 1), and with
// `ramane` every later one too, as a full disk stays full.
class PlanDefect : public FaultPlan {
 public:
  PlanDefect(int k, int eroare, bool ramane) : k_(k), eroare_(eroare), ramane_(ramane) {}
  int Before(FileOp, const fs::path&) override {
    if (!director.empty()) stari.push_back(Fotografiaza(director));
    ++numarate;
    if (k_ == 0 || numarate < k_ || (numarate > k_ && !ramane_)) return 0;
    ++lovite;
    return eroare_;
  }
  int numarate = 0, lovite = 0;
  // When set, the folder as it was before each operation.
  fs::path director;
  std::vector<std::map<std::string, std::string>> stari;

 private:
  int k_, eroare_;
  bool ramane_;
};

// What one attempt at an action left.
struct Incercare {
  Instantaneu inainte, dupa;
  int esec = 0;  // the failure that reached the dispatcher, 0 for none
  std::vector<std::string> mesaje;
};

// Sets up its own working directory, installs `plan` just before the action,
// runs it and reports.
using Scenariu = std::function<Incercare(FaultPlan&)>;

int NumarulEsecului(int eroare) {
  switch (eroare) {
    case ENOSPC: return err::DiskFull;
    case EACCES: return err::PermissionDenied;
    default: return err::DeviceIO;
  }
}

// What the program must do when the disk fails with `eroare`.
using Asteptare = std::function<void(const Incercare&, int eroare)>;

void Propaga(const Incercare& r, int eroare) { EXPECT_EQ(r.esec, NumarulEsecului(eroare)); }
void TreceMaiDeparte(const Incercare& r, int) { EXPECT_EQ(r.esec, 0); }

// A state of a file, other than as before or as after, that the action may
// rightly leave after a failure it steps over.
using AltaStare =
    std::function<bool(const std::string& nume, const std::optional<std::string>& acum,
                       const std::optional<std::string>& dupa)>;

struct Erori {
  int eroare;
  bool ramane;
};
constexpr std::initializer_list<Erori> kToateErorile = {
    {ENOSPC, false}, {ENOSPC, true}, {EACCES, false}, {EIO, false}};

// Walks k = 1, 2, ... over every operation of the action, with each error,
// once alone and once for good.
// With `treceri`, a file may also stay as the whole action had it between two
// of its operations: a pass of several rewrites, each one whole.
void LaFiecarePas(const Scenariu& scenariu, const Asteptare& asteptare,
                  std::initializer_list<Erori> erori = kToateErorile, AltaStare alta = nullptr,
                  bool treceri = false) {
  PlanDefect numarator(0, 0, false);
  numarator.director = treceri ? fs::path("?") : fs::path();
  Incercare curat = scenariu(numarator);
  std::map<std::string, std::set<std::optional<std::string>>> trecute;
  for (const Instantaneu& stare : numarator.stari) {
    for (const auto& [n, continut] : stare) trecute[n].insert(continut);
    for (const auto& [n, _] : curat.dupa)
      if (!stare.count(n)) trecute[n].insert(std::nullopt);
  }
  ASSERT_EQ(curat.esec, 0);
  ASSERT_NE(curat.inainte, curat.dupa) << "the action changes nothing";
  ASSERT_GT(numarator.numarate, 0);
  // A full disk stays full; a refused access or a device error may pass.
  for (auto [eroare, ramane] : erori) {
    for (int k = 1; k <= numarator.numarate; ++k) {
      SCOPED_TRACE("error " + std::to_string(eroare) + (ramane ? " for good" : " once") +
                   " at operation " + std::to_string(k));
      PlanDefect plan(k, eroare, ramane);
      Incercare r = scenariu(plan);
      ASSERT_EQ(r.inainte, curat.inainte);
      ASSERT_GT(plan.lovite, 0);
      std::set<std::string> nume;
      for (const auto* s : {&curat.inainte, &curat.dupa, &r.dupa})
        for (const auto& [n, _] : *s) nume.insert(n);
      for (const std::string& n : nume) {
        auto stare = [&](const Instantaneu& s) -> std::optional<std::string> {
          auto it = s.find(n);
          return it == s.end() ? std::nullopt : std::optional(it->second);
        };
        auto acum = stare(r.dupa);
        EXPECT_TRUE(acum == stare(curat.inainte) || acum == stare(curat.dupa) ||
                    (alta && alta(n, acum, stare(curat.dupa))) ||
                    (trecute.count(n) && trecute[n].count(acum)))
            << n
            << " is neither as before nor as after: " << (acum ? "\"" + *acum + "\"" : "missing");
      }
      asteptare(r, eroare);
    }
  }
}

const std::string kFF1A =
    "1800101123450,#ALBU#,#ANA#,#BRASOV#,#BRASOV#,##,##,##,##,##,##,##,##,##,##,##,##,##,##,##,"
    ",,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,";
const std::string kFF1B =
    "1900202123451,#BARBU#,#ION#,#BRASOV#,#BRASOV#,##,##,##,##,##,##,##,##,##,##,##,##,##,##,##,"
    ",,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,,";
const std::string kFF2A =
    "1800101123450,#ALBU#,#ANA#,#BRASOV#,#BRASOV#,##,##,##,##,##,##,##,##,##,#X#,##,##,##,##,##,##,"
    "##,100,10,,,,,,,,,,,,,,,,,,,,,,,100,10";
const std::string kDedA =
    "1800101123450,2950505123451,#ALBU#,#MIHAI#,##,#X#,##,##,##,,1,1,1,1,1,1,1,1,1,1,1,1";
const std::string kDedB =
    "1900202123451,1800101123450,#ALBU#,#ANA#,#X#,##,##,##,##,,1,1,1,1,1,1,1,1,1,1,1,1";

// A working directory in the middle of a run: the current year in the
// working files and their per-year copies, the year before in the _2001 files.
void DirectorInLucru(const test::TempDir& dir) {
  std::string ff1 = test::Lines({kFF1A, kFF1B}), ff2 = test::Lines({kFF2A}),
              ded = test::Lines({kDedA, kDedB}), rep(test::kAngajator);
  for (auto [lucru, anual, continut] :
       {std::tuple{"Ff1.txt", "FF1_2002.txt", ff1}, std::tuple{"Ff2.txt", "FF2_2002.txt", ff2},
        std::tuple{"Deduceri.txt", "Ded_2002.txt", ded},
        std::tuple{"Repfisc.txt", "Rep_2002.txt", rep}}) {
    test::WriteBytes(dir / lucru, continut);
    test::WriteBytes(dir / anual, continut);
  }
  test::WriteBytes(dir / "FF1_2001.txt", test::Lines({"ANUL TRECUT FF1"}));
  test::WriteBytes(dir / "Rep_2001.txt",
                   "12345674,#1#,#SC VECHE#,##,##,#CLUJ#,#CLUJ#,##,##,##,,##,##,##,##,\r\n");
}

// A domain action on the working directory above; a failure it lets out is
// what reaches the dispatcher.
Scenariu PeDirector(std::function<void(Files&)> actiune,
                    std::function<void(const test::TempDir&)> pregateste = DirectorInLucru) {
  return [=](FaultPlan& plan) {
    test::TempDir dir;
    pregateste(dir);
    Files files(dir.path());
    Incercare r;
    r.inainte = Fotografiaza(dir.path());
    if (auto* martor = dynamic_cast<PlanDefect*>(&plan); martor && !martor->director.empty())
      martor->director = dir.path();
    files.SetFaultPlan(&plan);
    r.esec = test::FailureOf([&] { actiune(files); });
    r.dupa = Fotografiaza(dir.path());
    return r;
  };
}

TEST(FailingDisk, AChangedFF1WithDependantsLeavesEachFileWhole) {
  TabelDed tabel;
  tabel(1, ded::CodI) = "2950505123451";
  tabel(1, ded::NumeI) = "ALBU";
  tabel(1, ded::PrenI) = "MIHAI";
  tabel(2, ded::CodI) = "2000303123452";
  tabel(2, ded::NumeI) = "ALBU";
  tabel(2, ded::PrenI) = "DAN";
  std::string record = kFF1A;
  record.replace(record.find("#ANA#"), 5, "#ANA MARIA#");
  LaFiecarePas(
      PeDirector([&](Files& f) { SalveazaFF1(f, "2002", "1800101123450", record, 1, tabel, 2); }),
      Propaga);
}

TEST(FailingDisk, AnFF2NewOrChangedLeavesEachFileWhole) {
  std::string record = kFF2A;
  record.replace(record.find("100,10"), 6, "200,20");
  LaFiecarePas(PeDirector([&](Files& f) { SalveazaFF2(f, "2002", "1800101123450", record, 1); }),
               Propaga);
  std::string nou = kFF2A;
  nou.replace(0, 13, "1900202123451");
  LaFiecarePas(PeDirector([&](Files& f) { SalveazaFF2(f, "2002", "1900202123451", nou, 0); }),
               Propaga);
}

TEST(FailingDisk, ADeletedSheetLeavesEachFileWhole) {
  LaFiecarePas(PeDirector([](Files& f) { StergeFF1(f, "2002", "1800101123450"); }), Propaga);
  LaFiecarePas(PeDirector([](Files& f) { StergeFF2(f, "2002", "1800101123450"); }), Propaga);
}

TEST(FailingDisk, TheExchangesStepOverEveryFailureAndLeaveEachFileWhole) {
  // The start over last year's data, the working names in last year's shape.
  auto anulTrecut = [](const test::TempDir& dir) {
    DirectorInLucru(dir);
    test::WriteBytes(dir / "Repfisc.txt",
                     "12345674,#1#,#SC VECHE#,##,##,#CLUJ#,#CLUJ#,##,##,##,,##,##,##,##,\r\n");
    test::WriteBytes(dir / "Ff1.txt", test::Lines({"ANUL TRECUT FF1"}));
  };
  LaFiecarePas(PeDirector([](Files& f) { SchimbLaPornire(f, "2002"); }, anulTrecut),
               TreceMaiDeparte);
  LaFiecarePas(PeDirector([](Files& f) { SchimbLaSfarsit(f, "2002"); }), TreceMaiDeparte);
}

// The whole program: a person on the screens, the disk failing under the
// action the scenario names.
Scenariu PeEcrane(std::function<void(test::Program&)> pregateste,
                  std::function<void(test::Program&)> actiune) {
  return [=](FaultPlan& plan) {
    test::Program p(DirectorInLucru);
    pregateste(p);
    Incercare r;
    r.inainte = Fotografiaza(p.dir.path());
    std::size_t mesaje = p.Mesaje();
    p.files.SetFaultPlan(&plan);
    actiune(p);
    p.files.SetFaultPlan(nullptr);
    r.dupa = Fotografiaza(p.dir.path());
    if (p.D().Fatal()) r.esec = p.D().Fatal()->number();
    for (std::size_t i = mesaje; i < p.dialogs.History().size(); ++i)
      r.mesaje.push_back(p.dialogs.History()[i].text);
    return r;
  };
}

TEST(FailingDisk, ANewFF1SavedFromItsScreenEndsTheProgramWithEachFileWhole) {
  LaFiecarePas(PeEcrane([](test::Program& p) { p.FisaNoua("2800720123452"); },
                        [](test::Program& p) {
                          // Saved, without the regularisation mark it offers.
                          p.dialogs.QueueAnswer(Answer::Yes);
                          p.dialogs.QueueAnswer(Answer::No);
                          p.D().UserClose(p.F1());
                        }),
               [](const Incercare& r, int eroare) {
                 Propaga(r, eroare);
                 // What the save says before it writes, and then only the
                 // run-time report.
                 EXPECT_EQ(r.mesaje.size(), 3u) << ::testing::PrintToString(r.mesaje);
               });
}

TEST(FailingDisk, TheEmployerScreenClosedKeepsItsYearFileWhole) {
  LaFiecarePas(PeEcrane(
                   [](test::Program& p) {
                     std::string alt(test::kAngajator);
                     alt.replace(alt.find("SC TEST SRL"), 11, "SC ALT  SRL");
                     test::WriteBytes(p.dir / "Repfisc.txt", alt);
                     p.Click(p.app->intro.Command1);
                   },
                   [](test::Program& p) { p.D().UserClose(p.app->fisaI); }),
               Propaga);
}

TEST(FailingDisk, TheAlphabeticalCopiesAreNeverHalfWritten) {
  LaFiecarePas(
      PeEcrane([](test::Program&) {}, [](test::Program& p) { p.Click(p.app->intro.Check1); }),
      Propaga);
}

TEST(FailingDisk, TheDisketteSaveSaysWhatWentWrongOnlyForAFullDisk) {
  // The files already on the diskette go first, without a question.
  LaFiecarePas(PeEcrane(
                   [](test::Program& p) {
                     fs::create_directory(p.dir / "a");
                     test::WriteBytes(p.dir / "a" / "VECHI.txt", "DISCHETA VECHE\r\n");
                   },
                   [](test::Program& p) {
                     p.dialogs.QueueAnswer(Answer::Yes);
                     SalveazaPeDischeta(p.platforma, "2002");
                   }),
               [](const Incercare& r, int eroare) {
                 EXPECT_EQ(r.esec, 0);
                 std::vector<std::string> mesaje{"Ati introdus discheta  ?"};
                 if (eroare == ENOSPC) mesaje.push_back("Eroare 61. Discheta plina. ");
                 EXPECT_EQ(r.mesaje, mesaje);
               });
}

// The delivered parameters, as a run has them loaded.
struct Parametri {
  ParametriAn an;
  TabelImpozit tabel;
  Parametri() {
    Files data(test::DataDir());
    IncarcaCuantum(data, an);
    IncarcaImpozitar(data, tabel);
  }
};

// The list of errors grows as the checks run and the sorted copies are the
// pass's own work: when the program ends halfway they hold what was done.
bool Raport(const std::string& nume, const std::optional<std::string>&,
            const std::optional<std::string>&) {
  return nume == "erori.txt" || nume.ends_with("_sort.txt");
}

TEST(FailingDisk, TheWholeCheckPassLeavesEachFileWhole) {
  const fs::path caz = test::DataDir().parent_path() / "tests" / "verify" / "inregistrari";
  Parametri p;
  LaFiecarePas(PeDirector([&](Files& f) { but_verif(f, p.an, p.tabel); },
                          [&](const test::TempDir& dir) {
                            for (const auto& e : fs::directory_iterator(caz / "before"))
                              fs::copy_file(e.path(), dir.path() / e.path().filename());
                          }),
               Propaga, kToateErorile, Raport, true);
}

TEST(FailingDisk, TheRegularisationOfEverySheetLeavesFf1Whole) {
  Parametri p;
  const fs::path caz = test::DataDir().parent_path() / "tests" / "verify" / "regularizare";
  LaFiecarePas(PeDirector(
                   [&](Files& f) {
                     ASSERT_EQ(RegularizeazaToate(f, p.an, p.tabel),
                               RezultatRegularizare::Efectuata);
                   },
                   [&](const test::TempDir& dir) {
                     DirectorInLucru(dir);
                     fs::copy_file(caz / "before" / "Ff1.txt", dir.path() / "Ff1.txt",
                                   fs::copy_options::overwrite_existing);
                   }),
               Propaga);
}

TEST(FailingDisk, TheTakeoverOfLastYearLeavesEachFileWhole) {
  LaFiecarePas(PeDirector([](Files& f) { PreiaAnPrecedent(f, "2002"); }), Propaga, kToateErorile);
}

// What a merge adds stays when it stops: a working file holds the start of
// what the whole merge gives.
bool Inceput(const std::string&, const std::optional<std::string>& acum,
             const std::optional<std::string>& dupa) {
  return acum && dupa && dupa->starts_with(*acum);
}

TEST(FailingDisk, TheMergeOfOneDisketteStopsWithWholeFiles) {
  test::TempDir disc;
  const fs::path a = disc / "a";
  fs::create_directories(a);
  test::WriteBytes(a / "Rep_2002.txt", std::string(test::kAngajator));
  test::WriteBytes(a / "FF1_2002.txt", test::Lines({kFF1B}));
  test::WriteBytes(a / "FF2_2002.txt", test::Lines({kFF2A}));
  test::WriteBytes(a / "Ded_2002.txt", test::Lines({kDedB}));
  LaFiecarePas(
      [&](FaultPlan& plan) {
        test::TempDir dir;
        DirectorInLucru(dir);
        Files files(dir.path());
        HeadlessDialogs dialogs;
        for (Answer raspuns : {Answer::Yes, Answer::No, Answer::No}) dialogs.QueueAnswer(raspuns);
        HeadlessClock clock;
        Drive drive(a);
        Incercare r;
        r.inainte = Fotografiaza(dir.path());
        files.SetFaultPlan(&plan);
        std::optional<RezultatUnire> unire;
        r.esec =
            test::FailureOf([&] { unire = UnesteDischete(files, drive, dialogs, clock, "2002"); });
        r.dupa = Fotografiaza(dir.path());
        if (!unire && r.esec == 0) r.mesaje.push_back("oprita");
        return r;
      },
      [](const Incercare& r, int) {
        EXPECT_EQ(r.esec, 0);
        EXPECT_EQ(r.mesaje, std::vector<std::string>{"oprita"});
      },
      kToateErorile, Inceput);
}

// The save and the restore step over every failure; a file that could not
// be copied is missing (the save deletes first) or empty (the restore).
TEST(FailingDisk, TheSaveInTheEmployersFolderStepsOverEveryFailure) {
  LaFiecarePas(
      PeDirector([](Files& f) { SalveazaInSubdirector(f, "2002"); },
                 [](const test::TempDir& dir) {
                   DirectorInLucru(dir);
                   fs::create_directory(dir / "J12345674");
                   test::WriteBytes(dir / "J12345674" / "FF1_2002.txt", "SALVAT\r\n");
                 }),
      TreceMaiDeparte, kToateErorile,
      [](const std::string& nume, const std::optional<std::string>& acum,
         const std::optional<std::string>&) { return nume.starts_with("J12345674/") && !acum; });
}

TEST(FailingDisk, TheRestoreFromTheEmployersFolderStepsOverEveryFailure) {
  LaFiecarePas(PeDirector([](Files& f) { Restaureaza(f, "12345674", "2002"); },
                          [](const test::TempDir& dir) {
                            DirectorInLucru(dir);
                            fs::create_directory(dir / "J12345674");
                            test::WriteBytes(dir / "J12345674" / "FF1_2002.txt",
                                             test::Lines({kFF1B}));
                            test::WriteBytes(dir / "J12345674" / "Rep_2002.txt",
                                             std::string(test::kAngajator));
                          }),
               TreceMaiDeparte, kToateErorile,
               [](const std::string&, const std::optional<std::string>& acum,
                  const std::optional<std::string>&) { return acum && acum->empty(); });
}

}  // namespace
}  // namespace fisc
