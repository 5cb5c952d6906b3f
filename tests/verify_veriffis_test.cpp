#include <gtest/gtest.h>

#include <filesystem>

#include "support/Ecrane.h"
#include "verify/VerifFis.h"

namespace fisc {
namespace {

using test::Lines;
using test::Program;
using test::ReadBytes;
using test::WriteBytes;
namespace fs = std::filesystem;

constexpr std::string_view kRep =
    "12345674,1,#SC TEST SRL#,##,##,#BRASOV#,#BRASOV#,#STR. LUNGA#,#12#,500100,#A#,#2#,#3#,#14#,,"
    "#0268123456#,#OFFICE@TEST.RO#";

// The screen opened from the main window, the intake chosen and confirmed.
VerifFis& Deschide(Program& p, bool dbf, bool discheta) {
  p.Click(p.app->intro.Command9);
  VerifFis& v = p.app->verifFis;
  p.Click(*v.Option1[dbf ? 0 : 1]);
  p.Click(*v.Option2[discheta ? 1 : 0]);
  if (dbf || discheta) p.dialogs.QueueAnswer(Answer::Yes);
  return v;
}

TEST(VerifFisDischeta, TheDisketteSettlesFiveSecondsAfterAnEmployerFileWithData) {
  Program p([](const test::TempDir& d) {
    fs::create_directory(d / "a");
    WriteBytes(d / "a" / "Rep_2002.txt", Lines({std::string(kRep)}));
  });
  VerifFis& v = Deschide(p, false, true);
  p.Click(v.Command1);
  EXPECT_EQ(p.clock.waited, std::chrono::seconds(5));
  EXPECT_TRUE(v.Command2.Enabled());
}

TEST(VerifFisDischeta, AnEmptyEmployerFileIsNeitherRepairedNorWaitedFor) {
  Program p([](const test::TempDir& d) {
    fs::create_directory(d / "a");
    WriteBytes(d / "a" / "Rep_2002.txt", "");
  });
  VerifFis& v = Deschide(p, false, true);
  p.Click(v.Command1);
  EXPECT_EQ(p.clock.waited, std::chrono::seconds(0));
  EXPECT_EQ(ReadBytes(p.dir / "Repfisc.txt"), "");
  EXPECT_TRUE(v.Command2.Enabled());
}

// The diskette's intake reports any failure in one message; the working
// directory's has no such guard, and a missing template ends the program.
TEST(VerifFisDbf, AMissingTemplateIsTheDiskettesMessageFromTheDiskette) {
  Program p([](const test::TempDir& d) {
    fs::create_directory(d / "a");
    WriteBytes(d / "a" / "Rep_2002.dbf", "dbf");
  });
  VerifFis& v = Deschide(p, true, true);
  p.Click(v.Command1);
  EXPECT_FALSE(p.D().Ended());
  EXPECT_EQ(p.UltimulMesaj(), "Nu ati introdus discheta in unitate sau discheta defecta.");
  EXPECT_FALSE(v.Command2.Enabled());
}

TEST(VerifFisDbf, AMissingTemplateEndsTheProgramFromTheWorkingDirectory) {
  Program p([](const test::TempDir& d) { WriteBytes(d / "Rep_2002.dbf", "dbf"); });
  VerifFis& v = Deschide(p, true, false);
  p.Click(v.Command1);
  ASSERT_TRUE(p.D().Fatal());
  EXPECT_EQ(p.D().Fatal()->number(), err::FileNotFound);
}

TEST(VerifFisDbf, TheConverterIsStartedAfterTheYearIsWrittenForIt) {
  Program p([](const test::TempDir& d) {
    WriteBytes(d / "Rep_2002.dbf", "dbf");
    for (const char* s : {"FF1.dbf", "FF2.dbf", "Ded.dbf"}) WriteBytes(d / s, "sablon");
    WriteBytes(d / "tr12.txt", Lines({"1999"}));
  });
  VerifFis& v = Deschide(p, true, false);
  p.Click(v.Command1);
  ASSERT_EQ(p.launcher.started.size(), 1u);
  EXPECT_EQ(p.launcher.started[0].first, "transfer.exe");
  EXPECT_EQ(ReadBytes(p.dir / "tr12.txt"), Lines({"2002"}));
}

// A converter of its own in the working directory: it runs there, and the
// intake waits for it.
TEST(VerifFisDbf, TheScreenWaitsForTheConverterWhenTheLauncherRunsIt) {
  Program p([](const test::TempDir& d) {
    WriteBytes(d / "Rep_2002.dbf", "dbf");
    for (const char* s : {"FF1.dbf", "FF2.dbf", "Ded.dbf"}) WriteBytes(d / s, "sablon");
    WriteBytes(d / "transfer", "#!/bin/sh\nsleep 1\necho structura > ferr.txt\n");
    fs::permissions(d / "transfer", fs::perms::owner_all);
  });
  p.launcher.workdir = p.dir.path();
  VerifFis& v = Deschide(p, true, false);
  p.Click(v.Command1);
  EXPECT_EQ(ReadBytes(p.dir / "ferr.txt"), "structura\n");
  p.Click(v.Command2);
  EXPECT_EQ(p.launcher.started.back().second, "ferr.txt");
  EXPECT_FALSE(v.UltimaVerificare());
}

// A clock whose short date stands month first, as the probe refuses it.
class DataAmericana : public test::ZiFixa {
 public:
  std::string ShortDate(std::chrono::sys_days day) const override {
    std::chrono::year_month_day ymd(day);
    char text[16];
    std::snprintf(text, sizeof text, "%02u/%02u/%02d", static_cast<unsigned>(ymd.month()),
                  static_cast<unsigned>(ymd.day()), static_cast<int>(ymd.year()) % 100);
    return text;
  }
};

TEST(Command9, AWrongDateSettingLeavesTheVerificationClosed) {
  test::TempDir dir;
  for (const char* name : {"Cuantum.txt", "Impozitar.txt"})
    fs::copy_file(test::DataDir() / name, dir / name);
  Files files{dir.path()};
  HeadlessDialogs dialogs;
  DataAmericana clock;
  HeadlessLauncher launcher;
  Drive drive{dir / "a"};
  HeadlessPrinter printer;
  Platforma platforma{files, dialogs, clock, launcher, drive, printer};
  Aplicatie app(platforma);
  ASSERT_TRUE(app.Porneste());
  app.Ecran().UserClick(app.intro.Command9);
  EXPECT_FALSE(app.verifFis.Visible());
  EXPECT_FALSE(fs::exists(dir / "tr12.txt"));
  ASSERT_EQ(dialogs.History().size(), 1u);
  EXPECT_EQ(dialogs.History()[0].icon, Icon::Warning);
}

}  // namespace
}  // namespace fisc
