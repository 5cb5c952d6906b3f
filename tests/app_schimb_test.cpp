#include <gtest/gtest.h>

#include "app/Schimb.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "sheets/RecordAngajator.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

const char* kOldRep =
    "12345674,#SC VECHE SRL#,##,##,#CLUJ-NAPOCA#,#CLUJ#,#STR. MARE#,#1#,##,##,400100,#B1#,##,##,##,"
    "\r\n";

TEST(SchimbLaPornire, AnEmptyRepYearFileIsNotConverted) {
  test::TempDir dir;
  test::WriteBytes(dir / "Rep_2002.txt", "");
  Files files(dir.path());
  RezultatPornire r = SchimbLaPornire(files, "2002");
  EXPECT_FALSE(r.RepConvertit);
  EXPECT_FALSE(files.Exists("temp1.txt"));
}

TEST(SchimbLaPornire, WithNothingToConvertATemp1LeftBehindStays) {
  for (bool repGol : {false, true}) {
    test::TempDir dir;
    if (repGol) test::WriteBytes(dir / "Rep_2002.txt", "");
    test::WriteBytes(dir / "temp1.txt", "ramas\r\n");
    Files files(dir.path());
    SchimbLaPornire(files, "2002");
    EXPECT_EQ(test::ReadBytes(dir / "temp1.txt"), "ramas\r\n") << "Rep_2002 gol: " << repGol;
  }
}

TEST(SchimbLaPornire, ARepYearOfAnotherShapeStaysAndTemp1Goes) {
  test::TempDir dir;
  test::WriteBytes(dir / "Rep_2002.txt", kOldRep);
  test::WriteBytes(dir / "temp1.txt", "ramas\r\n");
  Files files(dir.path());
  EXPECT_FALSE(SchimbLaPornire(files, "2002").RepConvertit);
  EXPECT_FALSE(files.Exists("temp1.txt"));
  EXPECT_EQ(test::ReadBytes(dir / "Rep_2002.txt"), kOldRep);
}

TEST(SchimbLaPornire, ABlockedChannelLeavesTheEmployerRecordsUnread) {
  // A load that failed half-way at start keeps its file open: the reads that
  // follow fail, so last year's record is taken for this year's shape.
  test::TempDir dir;
  test::WriteBytes(dir / "Repfisc.txt", kOldRep);
  Files files(dir.path());
  RezultatPornire r = SchimbLaPornire(files, "2002", true);
  EXPECT_FALSE(r.AlteAn);
  EXPECT_EQ(test::ReadBytes(dir / "Rep_2001.txt"), kOldRep);
  EXPECT_EQ(test::ReadBytes(dir / "Repfisc.txt"), "");
}

TEST(SchimbLaPornire, AnEmptyYearGivesTheNamesOfAnEmptyYear) {
  test::TempDir dir;
  Files files(dir.path());
  SchimbLaPornire(files, "");
  EXPECT_TRUE(files.Exists("Rep_-1.txt"));
  EXPECT_TRUE(files.Exists("Repfisc.txt"));
  SchimbLaSfarsit(files, "");
  EXPECT_TRUE(files.Exists("Rep_.txt"));
}

TEST(RecordAngajator, AnyTypeButOneIsWrittenAsANaturalPerson) {
  RecordAngajator r;
  r.CodP = "1800101123450";
  r.TipAngajator = "";
  r.DenP = "LOST";
  r.NumeP = "POP";
  r.PrenP = "ION";
  r.JudP = " ";
  std::string line = ScrieAngajator(r);
  EXPECT_EQ(line, "1800101123450,2,##,#POP#,#ION#,##,# #,##,##,,##,##,##,##,,##,##");
  RecordAngajator back = CitesteAngajator(line);
  EXPECT_EQ(back.NumeP, "POP");
  EXPECT_EQ(back.JudP, " ");
  EXPECT_EQ(back.AdrP[10], "");
}

}  // namespace
}  // namespace fisc
