#include <gtest/gtest.h>

#include <vector>

#include "app/CommandLine.h"

namespace fisc {
namespace {

using Mode = CommandLine::Mode;

CommandLine Parse(std::vector<const char*> args) {
  args.insert(args.begin(), "fisc");
  return ParseCommandLine(static_cast<int>(args.size()), args.data());
}

TEST(CommandLine, TakesTheValuesAndLeavesTheToolkitsArguments) {
  CommandLine c =
      Parse({"-platform", "offscreen", "--replay", "s.txt", "--workdir", "w", "--drive", "d"});
  EXPECT_EQ(c.mode, Mode::Replay);
  EXPECT_EQ(c.script, "s.txt");
  EXPECT_EQ(c.workdir, std::filesystem::path("w"));
  EXPECT_EQ(c.drive, std::filesystem::path("d"));

  c = Parse({});
  EXPECT_EQ(c.mode, Mode::Window);
  EXPECT_FALSE(c.workdir);
  EXPECT_FALSE(c.drive);
}

TEST(CommandLine, TheVerificationTakesItsIntakeOptionsAndOnlyIt) {
  CommandLine c = Parse({"--verify", "--dbf", "--from-drive", "--workdir", "w"});
  EXPECT_EQ(c.mode, Mode::Verify);
  EXPECT_TRUE(c.dbf);
  EXPECT_TRUE(c.fromDrive);
  EXPECT_EQ(Parse({"--verify"}).mode, Mode::Verify);
  EXPECT_EQ(Parse({"--dbf"}).mode, Mode::Wrong);
  EXPECT_EQ(Parse({"--verify", "--replay", "s"}).mode, Mode::Wrong);
}

TEST(CommandLine, AnUnknownOptionOrAMissingValueIsRefusedByName) {
  CommandLine c = Parse({"--workdir", "w", "--culoare"});
  EXPECT_EQ(c.mode, Mode::Wrong);
  EXPECT_EQ(c.wrong, "--culoare");
  c = Parse({"--drive"});
  EXPECT_EQ(c.mode, Mode::Wrong);
  EXPECT_EQ(c.wrong, "--drive");
  EXPECT_EQ(Parse({"--culoare", "--help"}).mode, Mode::Wrong);
  EXPECT_EQ(Parse({"--workdir", "w", "--help", "--culoare"}).mode, Mode::Help);
  EXPECT_EQ(Parse({"--version"}).mode, Mode::Version);
}

TEST(CommandLine, TheUsageNamesEveryOptionAndTheWorkingDirectoryRule) {
  const std::string usage = Usage();
  for (const char* option :
       {"--workdir", "--drive", "--replay", "--verify", "--dbf", "--from-drive", "--help",
        "--version", "Cuantum.txt", "~/.local/share/fisc", "XDG_DATA_HOME"})
    EXPECT_NE(usage.find(option), std::string::npos) << option;
}

}  // namespace
}  // namespace fisc
