#include <gtest/gtest.h>
#include <shapefil.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "platform/Files.h"
#include "records/CititorCampuri.h"
#include "support/TestSupport.h"
#include "transfer/Inregistrare.h"
#include "transfer/StructuriDbf.h"
#include "transfer/Transfer.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::year_month_day kAzi{std::chrono::year(2003), std::chrono::month(2),
                                           std::chrono::day(14)};
const char* const kTexte[] = {"Repfisc.txt", "Ff1.txt", "Ff2.txt", "Deduceri.txt"};

fs::path Fixturi() { return fs::path(FISC_TESTS_DIR) / "transfer"; }

std::vector<std::string> Linii(const std::string& bytes) {
  std::vector<std::string> linii;
  std::size_t inceput = 0, sfarsit;
  while ((sfarsit = bytes.find("\r\n", inceput)) != std::string::npos) {
    linii.push_back(bytes.substr(inceput, sfarsit - inceput));
    inceput = sfarsit + 2;
  }
  return linii;
}

class Transfer : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const auto& intrare : fs::directory_iterator(Fixturi() / "complet"))
      fs::copy_file(intrare.path(), dir_ / intrare.path().filename().string());
  }
  std::string Citeste(std::string_view nume) { return test::ReadBytes(dir_ / nume); }
  void Scrie(std::string_view nume, std::string_view bytes) {
    test::WriteBytes(dir_ / nume, bytes);
  }
  std::string Fixtura(std::string_view nume) {
    return test::ReadBytes(Fixturi() / "complet" / std::string(nume));
  }
  // The dBase files made from the fixture, and old text files in their place.
  void DoarDbf() {
    ASSERT_EQ(TextInDbf(files_, "2002", kAzi), std::vector<std::string>());
    for (const char* text : kTexte) Scrie(text, "VECHI\r\n");
  }
  // The work files of the converter are gone once it has ended.
  void FaraFisiereDeLucru() {
    for (const auto& intrare : fs::directory_iterator(dir_.path()))
      EXPECT_FALSE(intrare.path().filename().string().starts_with("transfer_")) << intrare.path();
  }
  void TexteleNeatinse() {
    FaraFisiereDeLucru();
    for (const char* text : kTexte) EXPECT_EQ(Citeste(text), "VECHI\r\n") << text;
  }

  test::TempDir dir_;
  Files files_{dir_.path()};
};

TEST_F(Transfer, TextToDbaseToTextGivesTheSameBytes) {
  DoarDbf();
  for (const char* dbf : {"Rep_2002.dbf", "FF1_2002.dbf", "FF2_2002.dbf", "Ded_2002.dbf"})
    EXPECT_TRUE(fs::exists(dir_ / dbf)) << dbf;
  Scrie("ferr.txt", "o lista veche\r\n");
  EXPECT_EQ(DbfInText(files_, "2002"), std::vector<std::string>());
  for (const char* text : kTexte) EXPECT_EQ(Citeste(text), Fixtura(text)) << text;
  EXPECT_FALSE(files_.Exists("ferr.txt"));
  FaraFisiereDeLucru();
}

TEST_F(Transfer, EmptyFilesAndEmptyLinesGiveEmptyFiles) {
  Scrie("Ff1.txt", "\r\n");
  Scrie("Ff2.txt", "");
  fs::remove(dir_ / "Deduceri.txt");
  DoarDbf();
  ASSERT_EQ(DbfInText(files_, "2002"), std::vector<std::string>());
  EXPECT_EQ(Citeste("Ff1.txt"), "");
  EXPECT_EQ(Citeste("Ff2.txt"), "");
  EXPECT_EQ(Citeste("Deduceri.txt"), "");
  EXPECT_EQ(Citeste("Repfisc.txt"), Fixtura("Repfisc.txt"));
}

TEST_F(Transfer, DatesOfTheScreensComeBackInTheDbaseForm) {
  std::string ff1 = Linii(Fixtura("Ff1.txt"))[1];
  std::string zile = ff1;
  zile.replace(zile.find("20020315,20021020"), 17, "15.3.2002,20/10/2002");
  Scrie("Ff1.txt", zile + "\r\n");
  DoarDbf();
  ASSERT_EQ(DbfInText(files_, "2002"), std::vector<std::string>());
  EXPECT_EQ(Citeste("Ff1.txt"), ff1 + "\r\n");
}

TEST_F(Transfer, CountyOfBlanksAndNumbersComeBackInTheirShortestForm) {
  // An empty county comes back as the blank entry of the county list, and a
  // number as its shortest text: both read the same everywhere.
  std::string rep = Linii(Fixtura("Repfisc.txt"))[0];
  std::string scris = rep;
  scris.replace(scris.find("# #"), 3, "##");
  std::string ded = Linii(Fixtura("Deduceri.txt"))[0];
  std::string ded2 = ded;
  ded2.replace(ded2.rfind(",1"), 2, ",1.00");
  Scrie("Repfisc.txt", scris + "\r\n");
  Scrie("Deduceri.txt", ded2 + "\r\n");
  DoarDbf();
  ASSERT_EQ(DbfInText(files_, "2002"), std::vector<std::string>());
  EXPECT_EQ(Citeste("Repfisc.txt"), rep + "\r\n");
  EXPECT_EQ(Citeste("Deduceri.txt"), ded + "\r\n");
}

// A dBase file as another payroll program writes it: the fields in reverse
// order and in lower case, one field of its own, numbers and dates written
// by the library's number writer (right-aligned, blank when empty), and a
// deleted record.
void ScrieCaAltProgram(const fs::path& cale, const FisierDbf& fisier,
                       const std::vector<std::string>& linii) {
  DBFHandle h = DBFCreate(cale.c_str());
  ASSERT_NE(h, nullptr);
  std::vector<std::pair<std::size_t, int>> coloane;  // layout index, column
  ASSERT_EQ(DBFAddField(h, "OBSERVATII", FTString, 20, 0), 0);
  for (std::size_t i = fisier.campuri.size(); i-- > 0;) {
    const CampDbf& c = fisier.campuri[i];
    if (!c.Stocat()) continue;
    std::string mic = c.nume;
    std::transform(mic.begin(), mic.end(), mic.begin(), ::tolower);
    int coloana = DBFAddNativeFieldType(h, mic.c_str(), c.tip, c.latime, c.zecimale);
    ASSERT_GE(coloana, 0);
    coloane.emplace_back(i, coloana);
  }
  std::vector<std::string> valori;
  int r = 0;
  for (const std::string& linie : linii) {
    ASSERT_TRUE(CitesteInregistrare(fisier, linie, valori)) << linie;
    DBFWriteStringAttribute(h, r, 0, "ceva al lor");
    for (auto [i, coloana] : coloane) {
      const CampDbf& c = fisier.campuri[i];
      const std::string& v = valori[i];
      if (v.empty()) continue;
      if (c.tip == 'C')
        DBFWriteStringAttribute(h, r, coloana, v.c_str());
      else if (c.tip == 'N')
        DBFWriteDoubleAttribute(h, r, coloana, std::strtod(v.c_str(), nullptr));
      else
        DBFWriteIntegerAttribute(h, r, coloana, std::atoi(v.c_str()));
    }
    ++r;
    // A deleted copy of the record behind it, which must not come out.
    for (auto [i, coloana] : coloane)
      if (fisier.campuri[i].tip == 'C') DBFWriteStringAttribute(h, r, coloana, "STERS");
    DBFMarkRecordDeleted(h, r, 1);
    ++r;
  }
  DBFClose(h);
}

TEST_F(Transfer, ADbaseFileOfAnotherProgramReadsAsOneOfOurs) {
  for (const char* text : kTexte) fs::remove(dir_ / text);
  const auto& fisiere = FisiereDbf();
  for (std::size_t k = 0; k < fisiere.size(); ++k) {
    std::string nume = NumeDbf(fisiere[k], "2002");
    std::transform(nume.begin(), nume.end(), nume.begin(), ::tolower);
    ScrieCaAltProgram(dir_ / nume, fisiere[k], Linii(Fixtura(kTexte[k])));
  }
  ASSERT_EQ(DbfInText(files_, "2002"), std::vector<std::string>());
  for (const char* text : kTexte) EXPECT_EQ(Citeste(text), Fixtura(text)) << text;
}

TEST_F(Transfer, FilesSpelledInAnyCaseAreFound) {
  DoarDbf();
  fs::rename(dir_ / "FF1_2002.dbf", dir_ / "ff1_2002.DBF");
  fs::rename(dir_ / "Ded_2002.dbf", dir_ / "DED_2002.Dbf");
  fs::rename(dir_ / "Ff2.txt", dir_ / "FF2.TXT");
  ASSERT_EQ(DbfInText(files_, "2002"), std::vector<std::string>());
  EXPECT_EQ(Citeste("Ff1.txt"), Fixtura("Ff1.txt"));
  EXPECT_EQ(Citeste("FF2.TXT"), Fixtura("Ff2.txt"));
  EXPECT_EQ(Citeste("Deduceri.txt"), Fixtura("Deduceri.txt"));
  FaraFisiereDeLucru();
}

// A file of the FF1 layout with one field changed by `schimba`.
void ScrieFF1Schimbat(const fs::path& cale, const std::function<bool(CampDbf&)>& schimba) {
  DBFHandle h = DBFCreate(cale.c_str());
  for (CampDbf c : FisiereDbf()[1].campuri)
    if (c.Stocat() && schimba(c))
      DBFAddNativeFieldType(h, c.nume.c_str(), c.tip, c.latime, c.zecimale);
  DBFClose(h);
}

TEST_F(Transfer, StructuralFaultsGoToFerrAndNoTextIsWritten) {
  DoarDbf();
  ScrieFF1Schimbat(dir_ / "FF1_2002.dbf", [](CampDbf& c) {
    if (c.nume == "NUMES") c.latime = 30;
    if (c.nume == "CODS") c.tip = 'N';
    if (c.nume == "COEFCALC02") c.zecimale = 2;
    if (c.nume == "DATAINC") c.tip = 'C';
    return c.nume != "VENITN05";
  });
  Scrie("FF2_2002.dbf", "nu e un fisier dBase");
  fs::remove(dir_ / "Ded_2002.dbf");
  const std::vector<std::string> asteptate = {
      "FF1_2002.dbf, campul CODS: se astepta C(13), s-a gasit N(13,0).",
      "FF1_2002.dbf, campul NUMES: se astepta C(40), s-a gasit C(30).",
      "FF1_2002.dbf, campul DATAINC: se astepta D(8), s-a gasit C(8).",
      "FF1_2002.dbf, campul COEFCALC02: se astepta N(4,1), s-a gasit N(4,2).",
      "FF1_2002.dbf, campul VENITN05: se astepta N(12,0), campul lipseste.",
      "FF2_2002.dbf: se astepta un fisier dBase, s-a gasit un fisier care nu poate fi citit.",
      "Ded_2002.dbf: se astepta fisierul in directorul de lucru, nu s-a gasit."};
  EXPECT_EQ(DbfInText(files_, "2002"), asteptate);
  EXPECT_EQ(Linii(Citeste("ferr.txt")), asteptate);
  TexteleNeatinse();
}

TEST_F(Transfer, AHeaderWhoseFieldsDoNotMakeItsRecordIsUnreadable) {
  DoarDbf();
  std::string ded = Citeste("Ded_2002.dbf");
  ded[10] = static_cast<char>(ded[10] + 1);  // the record length, low byte
  Scrie("Ded_2002.dbf", ded);
  EXPECT_EQ(DbfInText(files_, "2002"),
            std::vector<std::string>{"Ded_2002.dbf: se astepta un fisier dBase, s-a gasit un "
                                     "fisier care nu poate fi citit."});
  TexteleNeatinse();
}

TEST_F(Transfer, AFieldTwiceIsAFault) {
  DoarDbf();
  DBFHandle h = DBFOpen((dir_ / "Rep_2002.dbf").c_str(), "rb+");
  ASSERT_NE(h, nullptr);
  ASSERT_GE(DBFAddNativeFieldType(h, "codp", 'C', 13, 0), 0);
  DBFClose(h);
  EXPECT_EQ(DbfInText(files_, "2002"),
            std::vector<std::string>{
                "Rep_2002.dbf, campul CODP: se astepta o singura data, s-a gasit de 2 ori."});
  TexteleNeatinse();
}

TEST_F(Transfer, ANumberFieldHoldingNoNumberIsAFault) {
  DoarDbf();
  DBFHandle h = DBFOpen((dir_ / "FF2_2002.dbf").c_str(), "rb+");
  ASSERT_NE(h, nullptr);
  DBFWriteAttributeDirectly(h, 1, DBFGetFieldIndex(h, "IMPS03"), const_cast<char*>("  12A"));
  DBFClose(h);
  EXPECT_EQ(DbfInText(files_, "2002"),
            std::vector<std::string>{
                "FF2_2002.dbf, inregistrarea 2, campul IMPS03: se astepta un numar, s-a gasit "
                "\"12A\"."});
  TexteleNeatinse();
}

TEST_F(Transfer, AFileCutShortIsAFault) {
  DoarDbf();
  fs::resize_file(dir_ / "FF1_2002.dbf", fs::file_size(dir_ / "FF1_2002.dbf") - 200);
  std::vector<std::string> erori = DbfInText(files_, "2002");
  ASSERT_EQ(erori.size(), 1u);
  EXPECT_EQ(erori[0],
            "FF1_2002.dbf, inregistrarea 3: se astepta o inregistrare intreaga, nu poate fi "
            "citita.");
  TexteleNeatinse();
}

TEST_F(Transfer, TextThatDoesNotFitItsFieldWritesNoDbase) {
  DoarDbf();
  const std::string rep = Citeste("Rep_2002.dbf");
  std::string ff1 = Linii(Fixtura("Ff1.txt"))[0];
  ff1.replace(ff1.find("#POPESCU#"), 9, "#" + std::string(41, 'P') + "#");
  ff1.replace(ff1.find(",4200000,"), 9, ",42000a0,");
  std::string ded = Linii(Fixtura("Deduceri.txt"))[1];
  ded.replace(ded.find(",,0.5"), 5, ",,0.25");
  Scrie("Ff1.txt", "\r\n" + ff1 + "\r\n");
  Scrie("Ff2.txt", "123,#FARA STRUCTURA#\r\n");
  Scrie("Deduceri.txt", ded + "\r\n");
  Scrie("Repfisc.txt", Fixtura("Repfisc.txt"));
  EXPECT_EQ(TextInDbf(files_, "2002", kAzi),
            (std::vector<std::string>{
                "Ff1.txt, randul 2, campul NUMES: se astepta un text care incape in C(40), s-a "
                "gasit \"" +
                    std::string(41, 'P') + "\".",
                "Ff1.txt, randul 2, campul VENITN01: se astepta un numar, s-a gasit \"42000a0\".",
                "Ff2.txt, randul 1: se astepta structura \"" + std::string(FisiereDbf()[2].sablon) +
                    "\", s-a gasit \"123,#FARA STRUCTURA#\".",
                "Deduceri.txt, randul 1, campul COEFI03: se astepta un numar cu cel mult 1 "
                "zecimale, s-a gasit \"0.25\"."}));
  EXPECT_EQ(Citeste("Rep_2002.dbf"), rep);
  FaraFisiereDeLucru();
}

TEST_F(Transfer, TheDeliveredTemplatesAreTheLayoutEmpty) {
  ScrieSabloane(files_);
  for (const char* sablon : {"Rep.dbf", "FF1.dbf", "FF2.dbf", "Ded.dbf"})
    EXPECT_EQ(Citeste(sablon), test::ReadBytes(test::DataDir() / sablon)) << sablon;
  // A year file made from a template reads as empty files.
  for (const char* x : {"Rep", "FF1", "FF2", "Ded"})
    fs::copy_file(dir_ / (std::string(x) + ".dbf"), dir_ / (std::string(x) + "_2002.dbf"),
                  fs::copy_options::overwrite_existing);
  ASSERT_EQ(DbfInText(files_, "2002"), std::vector<std::string>());
  for (const char* text : kTexte) EXPECT_EQ(Citeste(text), "") << text;
}

TEST_F(Transfer, TheYearIsTheFirstLineOfTr12) {
  EXPECT_EQ(AnDinTr12(files_), "2002");
  Scrie("tr12.txt", " 2003 \r\n2002\r\n");
  EXPECT_EQ(AnDinTr12(files_), "2003");
  Scrie("tr12.txt", "doi mii\r\n");
  EXPECT_EQ(AnDinTr12(files_), std::nullopt);
  Scrie("tr12.txt", "");
  EXPECT_EQ(AnDinTr12(files_), std::nullopt);
  fs::remove(dir_ / "tr12.txt");
  EXPECT_EQ(AnDinTr12(files_), std::nullopt);
}

TEST(TransferDocumentatie, TheDocumentedLayoutIsTheOneRead) {
  // Every row of a field table of the page, "| 3 | `DENP` | C | 160 |  | 3 | ...",
  // in the order of the files and of their fields.
  std::ifstream pagina(test::DataDir() / ".." / "docs" / "dbf-layout.md");
  ASSERT_TRUE(pagina);
  std::vector<std::string> documentate, citite;
  for (std::string linie; std::getline(pagina, linie);) {
    if (!linie.starts_with("| ") || linie[2] < '1' || linie[2] > '9') continue;
    std::vector<std::string> coloane;
    std::stringstream s(linie);
    for (std::string c; std::getline(s, c, '|');) coloane.push_back(std::string(Trim(c)));
    ASSERT_GE(coloane.size(), 7u) << linie;
    documentate.push_back(coloane[2] + " " + coloane[3] + " " + coloane[4] + " " + coloane[5] +
                          " " + coloane[6]);
  }
  for (const FisierDbf& f : FisiereDbf())
    for (std::size_t i = 0; i < f.campuri.size(); ++i) {
      const CampDbf& c = f.campuri[i];
      if (!c.Stocat()) continue;
      citite.push_back("`" + c.nume + "` " + c.tip + " " + std::to_string(c.latime) + " " +
                       (c.tip == 'N' ? std::to_string(c.zecimale) : "") + " " +
                       std::to_string(i + 1));
    }
  EXPECT_EQ(documentate, citite);
}

}  // namespace
}  // namespace fisc
