#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sstream>

#include "platform/InstantaUnica.h"
#include "replay/VerifyCommand.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

using test::Lines;
using test::ReadBytes;
using test::WriteBytes;
namespace fs = std::filesystem;

// A working directory with the delivered parameter files and an empty year.
class VerifyCommand : public ::testing::Test {
 protected:
  VerifyCommand() {
    for (const char* name : {"Cuantum.txt", "Impozitar.txt"})
      fs::copy_file(test::DataDir() / name, dir / name);
    for (const char* name : {"Rep_2002.txt", "FF1_2002.txt", "FF2_2002.txt", "Ded_2002.txt"})
      WriteBytes(dir / name, "");
  }

  int Run(bool dbf, bool fromDrive) {
    out.str("");
    err.str("");
    return RunVerify({dir.path(), dir / "a", dbf, fromDrive}, out, err);
  }

  void Convertor(std::string_view script) {
    WriteBytes(dir / "transfer", "#!/bin/sh\n" + std::string(script));
    fs::permissions(dir / "transfer", fs::perms::owner_all);
  }
  void DbfAnului() {
    WriteBytes(dir / "Rep_2002.dbf", "dbf");
    for (const char* s : {"FF1.dbf", "FF2.dbf", "Ded.dbf"}) WriteBytes(dir / s, "sablon");
  }

  test::TempDir dir;
  std::ostringstream out, err;
};

const std::regex kRezumat(R"(erori\.txt sections 1-6:( \d+){6} lines; no errors\n)");

// Four empty files hold nothing to mend: their warnings set no error.
TEST_F(VerifyCommand, EmptyFilesAsTheyLieAreNothingToMend) {
  EXPECT_EQ(Run(false, false), 0) << err.str();
  EXPECT_TRUE(std::regex_match(out.str(), kRezumat)) << out.str();
  EXPECT_TRUE(fs::exists(dir / "erori.txt"));
  EXPECT_EQ(ReadBytes(dir / "tr12.txt"), Lines({"2002"}));
  // The program was closed: the working names hold the year before again.
  EXPECT_EQ(ReadBytes(dir / "Repfisc.txt"), "");
  EXPECT_TRUE(fs::exists(dir / "Rep_2001.txt"));
}

// The kept copy that the summary names is there to be read.
TEST_F(VerifyCommand, AListWithErrorsIsStatusOneAndNamesItsKeptCopy) {
  WriteBytes(dir / "FF2_2002.txt", Lines({"nu este o fisa"}));
  EXPECT_EQ(Run(false, false), 1) << err.str();
  std::smatch m;
  std::string o = out.str();
  ASSERT_TRUE(std::regex_match(
      o, m, std::regex(R"(erori\.txt sections 1-6:( \d+){6} lines; errors, kept in (\S+)\n)")))
      << o;
  EXPECT_EQ(ReadBytes(dir / m[2].str()), ReadBytes(dir / "erori.txt"));
}

TEST_F(VerifyCommand, TheDbfRouteGoesOnToTheChecksAfterAConverterThatWroteNothing) {
  DbfAnului();
  Convertor("exit 0\n");
  EXPECT_EQ(Run(true, false), 0) << err.str();
  EXPECT_TRUE(std::regex_match(out.str(), kRezumat)) << out.str();
  EXPECT_EQ(ReadBytes(dir / "FF1_2002.dbf"), "sablon");
}

TEST_F(VerifyCommand, AMissingEmployerFileAbandonsTheIntakeWithItsMessage) {
  EXPECT_EQ(Run(true, false), 2);
  EXPECT_EQ(err.str(),
            "   Nu exista fisierul Rep_2002.dbf in directorul\naplicatiei.\n"
            "   Alte verificari si conversia dbf->txt sunt abandonate.\n");
  EXPECT_EQ(out.str(), "");
  EXPECT_FALSE(fs::exists(dir / "erori.txt"));
}

TEST_F(VerifyCommand, NoDisketteAbandonsTheIntake) {
  EXPECT_EQ(Run(false, true), 2);
  EXPECT_EQ(err.str(), "Nu ati introdus discheta in unitate sau discheta defecta.\n");
}

TEST_F(VerifyCommand, TheConvertersComplaintStopsTheRunAndIsShown) {
  DbfAnului();
  Convertor("printf 'Rep_2002.dbf: structura gresita\\r\\nFF1_2002.dbf: idem\\r\\n' > ferr.txt\n");
  EXPECT_EQ(Run(true, false), 2);
  EXPECT_EQ(err.str(), "Rep_2002.dbf: structura gresita\nFF1_2002.dbf: idem\n");
  EXPECT_FALSE(fs::exists(dir / "erori.txt"));
}

TEST_F(VerifyCommand, ARunTimeFailureEndsTheRunWithItsReport) {
  WriteBytes(dir / "Rep_2002.dbf", "dbf");  // and no templates
  EXPECT_EQ(Run(true, false), 3);
  EXPECT_EQ(err.str(), "fisc: run-time error 53: File not found\n");
  EXPECT_EQ(out.str(), "");
}

TEST_F(VerifyCommand, AnotherInstanceInTheDirectoryIsARunTimeFailure) {
  InstantaUnica alta(dir.path());
  ASSERT_TRUE(alta.Singura());
  EXPECT_EQ(Run(false, false), 3);
  EXPECT_NE(err.str().find("another instance"), std::string::npos);
}

}  // namespace
}  // namespace fisc
