#include <gtest/gtest.h>

#include "support/Ecrane.h"
#include "tax/Fisa1F.h"
#include "tax/Fisa2.h"

namespace fisc {
namespace {

using test::Program;

constexpr std::string_view kCod = "1700315123458";

std::vector<std::string> Linii(const std::filesystem::path& fisier) {
  std::vector<std::string> linii;
  std::string text = test::ReadBytes(fisier);
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = text.find("\r\n", at);
    linii.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  return linii;
}

bool Contine(const std::vector<std::string>& linii, std::string_view cautat) {
  for (const std::string& l : linii)
    if (l.find(cautat) != std::string::npos) return true;
  return false;
}

TEST(Imagine, TheFF1PreviewPrintsTheUnsavedSheetWithItsDependantsAndNoPageHeaders) {
  Program p;
  p.FisaNoua(kCod);
  Fisa1F& f = p.F1();
  f.VenitN[0]->SetText("1234567");
  FisaInLucru& fisa = p.Fisa();
  fisa.Ded(1, ded::CodI) = "5100303123457";
  fisa.Ded(1, ded::Copil) = "X";
  fisa.NrPersoane = 1;
  p.app->StareComuna().Listare.Exemplar = "angajator";
  p.dialogs.QueueAnswer(Answer::No);  // the regularisation's offer of its mark
  p.Click(f.Command4);
  ASSERT_TRUE(f.Command10.Enabled());
  p.printer.QueueOk();
  p.Click(f.Command10);

  auto linii = Linii(p.dir / "ListF1.txt");
  ASSERT_GT(linii.size(), 66u);
  EXPECT_EQ(linii[0], "(copie pentru angajat)angajator)");
  EXPECT_EQ(linii[2], std::string(80, '_'));
  EXPECT_TRUE(Contine(linii, "Ianuarie          1.           1.234.567"));
  EXPECT_TRUE(Contine(linii, "   1. Cod 5100303123457"));
  EXPECT_FALSE(Contine(linii, "(Cod angajat :"));
  EXPECT_EQ(linii.back(),
            "Semnatura si stampila angajatorului__________________________________________");
  EXPECT_EQ(test::ReadBytes(p.dir / "Ff1.txt"), "");
  ASSERT_FALSE(p.launcher.started.empty());
  EXPECT_EQ(p.launcher.started.back(),
            (std::pair<std::string, std::string>{"notepad", "Listf1.txt"}));
  EXPECT_EQ(p.printer.Documents().back().name, "Listf1.txt");

  // A second preview replaces the file.
  std::size_t inainte = linii.size();
  f.VenitN[1]->SetText("2000000");
  p.printer.QueueCancel();
  p.Click(f.Command10);
  linii = Linii(p.dir / "ListF1.txt");
  EXPECT_EQ(linii.size(), inainte);
  EXPECT_TRUE(Contine(linii, "Februarie         2.           2.000.000"));
}

TEST(Imagine, TheFF2PreviewHasItsOwnFirstLine) {
  Program p;
  p.EcranAngajat();
  p.Scrie(p.II().CodS, kCod);
  p.Scrie(p.II().NumeS, "POPESCU");
  p.Click(p.II().Ok_Fisa2);
  Fisa2& f = p.F2();
  ASSERT_TRUE(f.Visible());
  f.TAS[1]->SetValue(1);
  f.VenitCS[0]->SetText("1500000");
  p.printer.QueueOk();
  p.Click(f.Command10);

  auto linii = Linii(p.dir / "ListF2.txt");
  EXPECT_EQ(linii[0], "(copie pentru angajat)");
  EXPECT_TRUE(Contine(linii, "Tip venit :  AS2"));
  EXPECT_TRUE(Contine(linii, "Ianuarie     1.           1.500.000"));
  EXPECT_EQ(p.launcher.started.back(),
            (std::pair<std::string, std::string>{"notepad", "Listf2.txt"}));
}

}  // namespace
}  // namespace fisc
