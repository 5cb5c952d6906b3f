#include <gtest/gtest.h>

#include <cmath>

#include "listings/Tiparire.h"
#include "platform/Files.h"
#include "platform/headless/HeadlessPrinter.h"
#include "platform/headless/HeadlessServices.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

class Tiparire : public ::testing::Test {
 protected:
  // A listing file of n numbered lines.
  void Fisier(int n) {
    std::string text;
    for (int i = 1; i <= n; ++i) text += "linia " + std::to_string(i) + "\r\n";
    test::WriteBytes(dir_ / "Lista.txt", text);
  }
  const HeadlessPrinter::Document& Tipareste(RutinaTiparire rutina) {
    printer_.QueueOk();
    rutina(files_, printer_, linie_, "Lista.txt");
    return printer_.Documents().back();
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
  HeadlessPrinter printer_;
  short linie_ = 99;
};

TEST_F(Tiparire, SheetsTakeSixtyFiveLinesAPage) {
  Fisier(65);
  EXPECT_EQ(Tipareste(ListeazaFise).PageCount(), 1);
  Fisier(66);
  const auto& d = Tipareste(ListeazaFise);
  ASSERT_EQ(d.PageCount(), 2);
  EXPECT_EQ(d.pages[1].front().text, "linia 66");
  EXPECT_EQ(d.font, "Courier New");
  EXPECT_EQ(d.size, 9);
  // The counter is left at the lines of the last page.
  EXPECT_EQ(linie_, 1);
}

TEST_F(Tiparire, TheBorderouAndTheTableTakeSeventySix) {
  Fisier(76);
  EXPECT_EQ(Tipareste(ListeazaBorderou).PageCount(), 1);
  Fisier(77);
  EXPECT_EQ(Tipareste(ListeazaBorderou).PageCount(), 2);
  const auto& d = Tipareste(ListeazaTabel);
  EXPECT_EQ(d.PageCount(), 2);
  EXPECT_EQ(d.size, 7);
}

TEST_F(Tiparire, EachPageStartsAtTheCornerPositionAndLinesStepDown) {
  Fisier(67);
  const auto& d = Tipareste(ListeazaFise);
  const auto& p1 = d.pages[0];
  EXPECT_EQ(p1[0].x, 1000);
  EXPECT_EQ(p1[0].y, 1000);
  EXPECT_EQ(p1[1].x, 1000);
  EXPECT_EQ(p1[1].y, 1000 + std::lround(PasRand(9)));
  EXPECT_EQ(p1[64].y, 1000 + std::lround(64 * PasRand(9)));
  EXPECT_EQ(d.pages[1][0].y, 1000);
  EXPECT_EQ(d.pages[1][1].y, 1000 + std::lround(PasRand(9)));

  const auto& t = Tipareste(ListeazaTabel);
  EXPECT_EQ(t.pages[0][0].x, 150);
  EXPECT_EQ(t.pages[0][0].y, 800);
}

TEST_F(Tiparire, SixtyFiveLinesFitAnA4PageAndSeventySixOfTheSmallerFont) {
  constexpr int kA4 = 16838;  // twips
  EXPECT_LT(PaginaFise.Sus + 65 * PasRand(9), kA4 - 720);
  EXPECT_LT(PaginaBorderou.Sus + 76 * PasRand(7), kA4 - 720);
}

TEST_F(Tiparire, ACancelPrintsNothingAndReportsIt) {
  Fisier(3);
  std::vector<std::string> linii;
  printer_.Report = [&](const std::string& l) { linii.push_back(l); };
  printer_.QueueCancel();
  ListeazaFise(files_, printer_, linie_, "Lista.txt");
  EXPECT_FALSE(printer_.Documents().back().printed);
  EXPECT_EQ(printer_.Documents().back().PageCount(), 0);
  EXPECT_EQ(linie_, 99);
  printer_.QueueOk();
  ListeazaBorderou(files_, printer_, linie_, "Lista.txt");
  EXPECT_EQ(linii,
            (std::vector<std::string>{"print \"Lista.txt\" \"Courier New\" 9 pages=0 -> cancel",
                                      "print \"Lista.txt\" \"Courier New\" 7 pages=1 -> ok"}));
}

TEST_F(Tiparire, AFailureAfterTheDialogIsPassedOverInSilence) {
  printer_.QueueOk();
  EXPECT_EQ(test::FailureOf([&] { ListeazaFise(files_, printer_, linie_, "Lipsa.txt"); }), 0);
  EXPECT_EQ(printer_.Documents().back().PageCount(), 0);
}

TEST_F(Tiparire, AnEmptyFilePrintsNoPage) {
  Fisier(0);
  EXPECT_EQ(Tipareste(ListeazaFise).PageCount(), 0);
}

TEST_F(Tiparire, ADialogWithNoAnswerStopsTheScript) {
  Fisier(1);
  EXPECT_THROW(ListeazaFise(files_, printer_, linie_, "Lista.txt"), UnansweredBox);
}

// Records what a PDF printer would be asked to draw.
class Inregistrare : public Printer {
 public:
  explicit Inregistrare(std::vector<std::string>& log) : log_(log) {}
  bool Begin(std::string_view d, std::string_view, double) override {
    log_.push_back("begin " + std::string(d));
    return true;
  }
  void SetPosition(int, int) override {}
  void PrintLine(std::string_view t) override { log_.push_back(std::string(t)); }
  void NewPage() override { log_.push_back("page"); }
  void End() override { log_.push_back("end"); }

 private:
  std::vector<std::string>& log_;
};

TEST(HeadlessPrinter, AnAnswerNamingAPdfDrawsIntoThatFileOfTheWorkingDirectory) {
  std::vector<std::string> log;
  std::filesystem::path ceruta;
  HeadlessPrinter printer("/lucru", [&](const std::filesystem::path& f) {
    ceruta = f;
    return std::make_unique<Inregistrare>(log);
  });
  printer.QueueOk("ListF1.pdf");
  printer.QueueOk();
  ASSERT_TRUE(printer.Begin("Listf1.txt", "Courier New", 9));
  printer.PrintLine("a");
  printer.NewPage();
  printer.PrintLine("b");
  printer.End();
  EXPECT_EQ(ceruta, std::filesystem::path("/lucru/ListF1.pdf"));
  EXPECT_EQ(log, (std::vector<std::string>{"begin Listf1.txt", "a", "page", "b", "end"}));

  // An answer without a file is counted only.
  ASSERT_TRUE(printer.Begin("Listf2.txt", "Courier New", 9));
  printer.PrintLine("c");
  printer.End();
  EXPECT_EQ(log.size(), 5u);
  EXPECT_EQ(printer.Documents().back().PageCount(), 1);
}

}  // namespace
}  // namespace fisc
