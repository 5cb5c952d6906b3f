#include <gtest/gtest.h>

#include "platform/Failure.h"
#include "platform/Files.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

TEST(LineReader, EndsLinesAtCrLfLfOrCrAndReadsALastLineWithoutEnd) {
  test::TempDir dir;
  test::WriteBytes(dir / "a.txt", "one\r\ntwo\nthree\rfour\r\n\r\nlast");
  Files files(dir.path());
  LineReader in = files.Read("a.txt");
  std::vector<std::string> lines;
  std::string line;
  while (in.Next(line)) lines.push_back(line);
  EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "three", "four", "", "last"}));
  EXPECT_TRUE(in.Eof());
}

TEST(LineReader, ReadingPastTheEndIsFailure62) {
  test::TempDir dir;
  test::WriteBytes(dir / "a.txt", "only\r\n");
  Files files(dir.path());
  LineReader in = files.Read("a.txt");
  EXPECT_EQ(in.Line(), "only");
  EXPECT_TRUE(in.Eof());
  EXPECT_EQ(test::FailureOf([&] { in.Line(); }), err::InputPastEnd);
}

TEST(LineReader, ALineLongerThanTheBufferComesWhole) {
  test::TempDir dir;
  std::string big(3 * 1024 * 1024, 'x');
  test::WriteBytes(dir / "big.txt", big + "\r\nnext\r\n");
  Files files(dir.path());
  LineReader in = files.Read("big.txt");
  EXPECT_EQ(in.Line(), big);
  EXPECT_EQ(in.Line(), "next");
}

TEST(Files, FindAFileByAnySpellingAndCreateNewOnesAsSpelled) {
  test::TempDir dir;
  test::WriteBytes(dir / "FF1_2002.txt", "x");
  Files files(dir.path());
  EXPECT_TRUE(files.Exists("Ff1_2002.txt"));
  EXPECT_EQ(files.Length("ff1_2002.TXT"), 1u);
  files.Copy("ff1_2002.txt", "Ff1.txt");
  EXPECT_TRUE(std::filesystem::exists(dir / "Ff1.txt"));
  // Writing to another spelling of an existing file writes that file.
  LineWriter w = files.Write("FF1.TXT");
  w.Line("y");
  w.Close();
  EXPECT_EQ(test::ReadBytes(dir / "Ff1.txt"), "y\r\n");
  EXPECT_FALSE(std::filesystem::exists(dir / "FF1.TXT"));
}

TEST(Files, MissingFilesAreFailure53) {
  test::TempDir dir;
  Files files(dir.path());
  for (auto action :
       {+[](Files& f) { f.Delete("none.txt"); }, +[](Files& f) { (void)f.Read("none.txt"); },
        +[](Files& f) { f.Copy("none.txt", "b.txt"); },
        +[](Files& f) { (void)f.Length("none.txt"); }}) {
    EXPECT_EQ(test::FailureOf([&] { action(files); }), err::FileNotFound);
  }
  EXPECT_FALSE(std::filesystem::exists(dir / "b.txt"));
}

TEST(Files, ReplaceAndCopyLeaveNoWorkFileBehind) {
  test::TempDir dir;
  test::WriteBytes(dir / "Ff1.txt", "old\r\n");
  test::WriteBytes(dir / "Temporar.txt", "new\r\n");
  Files files(dir.path());
  files.Replace("Temporar.txt", "ff1.txt");
  EXPECT_EQ(test::ReadBytes(dir / "Ff1.txt"), "new\r\n");
  files.Copy("Ff1.txt", "FF1_2002.txt");
  std::size_t count = 0;
  for ([[maybe_unused]] auto& e : std::filesystem::directory_iterator(dir.path())) ++count;
  EXPECT_EQ(count, 2u);
}

}  // namespace
}  // namespace fisc
