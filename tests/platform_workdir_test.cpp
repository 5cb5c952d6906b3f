#include <gtest/gtest.h>

#include "platform/WorkDir.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;
using test::ReadBytes;
using test::TempDir;
using test::WriteBytes;

WorkDirEnvironment Env(const fs::path& current, std::string xdg, std::string home) {
  return {current, "/opt/fisc/bin/fisc", std::move(xdg), std::move(home)};
}

TEST(UserDataDir, FollowsXdgDataHomeElseTheHomeAndIgnoresARelativePath) {
  EXPECT_EQ(UserDataDir(Env("/", "/x/date", "/home/ana")), fs::path("/x/date/fisc"));
  EXPECT_EQ(UserDataDir(Env("/", "", "/home/ana")), fs::path("/home/ana/.local/share/fisc"));
  EXPECT_EQ(UserDataDir(Env("/", "date", "/home/ana")), fs::path("/home/ana/.local/share/fisc"));
  EXPECT_EQ(UserDataDir(Env("/", "", "")), fs::path());
  EXPECT_EQ(DeliveredDir(Env("/", "", "")), fs::path("/opt/fisc/share/fisc"));
}

TEST(ChooseWorkDir, TheOptionThenACurrentDirectoryWithCuantumThenTheClerksDirectory) {
  TempDir current;
  const auto env = Env(current.path(), "", "/home/ana");
  WorkDirChoice c = ChooseWorkDir(std::nullopt, env);
  EXPECT_EQ(c.dir, fs::path("/home/ana/.local/share/fisc"));
  EXPECT_TRUE(c.userData);

  WriteBytes(current / "CUANTUM.TXT", "");  // the name in any case
  c = ChooseWorkDir(std::nullopt, env);
  EXPECT_EQ(c.dir, current.path());
  EXPECT_FALSE(c.userData);

  c = ChooseWorkDir(fs::path("/srv/firma"), env);
  EXPECT_EQ(c.dir, fs::path("/srv/firma"));
  EXPECT_FALSE(c.userData);
}

class Livrate : public ::testing::Test {
 protected:
  Livrate() {
    WriteBytes(share / "Cuantum.txt", "2002,livrat\r\n");
    WriteBytes(share / "Impozitar.txt", "tabel\r\n");
    WriteBytes(share / "FF1.dbf", "sablon");
    fs::create_directory(share / "sample");
  }
  TempDir share, home;
};

TEST_F(Livrate, TheFirstStartMakesTheDirectoryAndAnotherFillsOnlyWhatIsMissing) {
  WorkDirChoice c{home / "date" / "fisc", true};
  ASSERT_FALSE(PrepareWorkDir(c, share.path()));
  EXPECT_EQ(ReadBytes(c.dir / "Cuantum.txt"), "2002,livrat\r\n");
  EXPECT_EQ(ReadBytes(c.dir / "FF1.dbf"), "sablon");
  EXPECT_FALSE(fs::exists(c.dir / "sample"));

  WriteBytes(c.dir / "Cuantum.txt", "2002,schimbat\r\n");
  fs::remove(c.dir / "Impozitar.txt");
  fs::rename(c.dir / "FF1.dbf", c.dir / "ff1.DBF");
  ASSERT_FALSE(PrepareWorkDir(c, share.path()));
  EXPECT_EQ(ReadBytes(c.dir / "Cuantum.txt"), "2002,schimbat\r\n");
  EXPECT_EQ(ReadBytes(c.dir / "Impozitar.txt"), "tabel\r\n");
  EXPECT_FALSE(fs::exists(c.dir / "FF1.dbf"));  // its other spelling stands for it
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& e : fs::directory_iterator(c.dir)) ++count;
  EXPECT_EQ(count, 3u);  // nothing left of the test of writing
}

TEST_F(Livrate, AGivenDirectoryIsNeitherMadeNorFilled) {
  WorkDirChoice c{home.path(), false};
  ASSERT_FALSE(PrepareWorkDir(c, share.path()));
  EXPECT_TRUE(fs::is_empty(home.path()));
  c.dir = home / "lipsa";
  EXPECT_EQ(PrepareWorkDir(c, share.path()).kind, WorkDirProblem::Missing);
  EXPECT_FALSE(fs::exists(c.dir));
}

TEST_F(Livrate, ADirectoryThatCantBeMadeOrWrittenIsAProblemOfOneLine) {
  WriteBytes(home / "fisier", "");
  WorkDirProblem p = PrepareWorkDir({home / "fisier" / "fisc", true}, share.path());
  EXPECT_EQ(p.kind, WorkDirProblem::CannotCreate);
  EXPECT_EQ(ProblemLine(p).find('\n'), std::string::npos);
  EXPECT_NE(ProblemLine(p).find((home / "fisier" / "fisc").string()), std::string::npos);
  EXPECT_EQ(PrepareWorkDir({fs::path(), true}, share.path()).kind, WorkDirProblem::CannotCreate);

  // Not even root may make a file here.
  p = PrepareWorkDir({"/proc", false}, share.path());
  EXPECT_EQ(p.kind, WorkDirProblem::CannotWrite);
  EXPECT_NE(ProblemMessage(p).find("nu se poate scrie"), std::string::npos);
}

}  // namespace
}  // namespace fisc
