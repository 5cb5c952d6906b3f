#include <gtest/gtest.h>

#include <filesystem>

#include "platform/Files.h"
#include "support/TestSupport.h"
#include "yearops/Subdirector.h"

namespace fisc {
namespace {

namespace fs = std::filesystem;

TEST(Subdirector, ACodeCanNeverLeadOutOfTheWorkingDirectory) {
  for (std::string_view rau : std::initializer_list<std::string_view>{
           "", "..", "../12345674", "12/34", "12\\34", "C:", "c:12", "1..2",
           std::string_view("12\0"
                            "3",
                            4),
           "12\t3", "12\x7f"})
    EXPECT_FALSE(CodPermis(rau)) << rau;
  for (std::string_view bun : {"12345674", "0012345674", "1700101080011", "J 1", "1.2"})
    EXPECT_TRUE(CodPermis(bun)) << bun;
}

TEST(Subdirector, TenCharactersAreACfElevenACnp) {
  EXPECT_EQ(NumeSubdirector("1234567890"), "J1234567890");
  EXPECT_EQ(NumeSubdirector("12345678901"), "F12345678901");
  EXPECT_EQ(NumeSubdirector("0012"), "J0012");
}

class SalvareRestaurare : public ::testing::Test {
 protected:
  void Scrie(std::string_view nume, std::string_view bytes) {
    test::WriteBytes(dir_ / nume, bytes);
  }
  std::string Citeste(std::string_view nume) { return test::ReadBytes(dir_ / nume); }
  void Lucru(std::string_view rep) {
    Scrie("Repfisc.txt", rep);
    Scrie("Ff1.txt", "ff1\r\n");
    Scrie("Ff2.txt", "ff2\r\n");
    Scrie("Deduceri.txt", "ded\r\n");
  }
  test::TempDir dir_;
  Files files_{dir_.path()};
};

TEST_F(SalvareRestaurare, ARefusedCodeTouchesNothing) {
  Lucru("../x,1,#A#\r\n");
  fs::create_directory(dir_ / "J..");
  EXPECT_EQ(SalveazaInSubdirector(files_, "2002").stare, RezultatSalvare::Refuzata);
  EXPECT_EQ(Restaureaza(files_, "..", "2002"), RezultatRestaurare::Refuzata);
  EXPECT_EQ(Restaureaza(files_, "", "2002"), RezultatRestaurare::Refuzata);
  EXPECT_TRUE(fs::is_empty(dir_ / "J.."));
  EXPECT_EQ(Citeste("Ff1.txt"), "ff1\r\n");
}

TEST_F(SalvareRestaurare, ASecondSaveLeavesNothingOfTheFirstBehind) {
  Lucru("12345674,1,#A#\r\n");
  RezultatSalvare r = SalveazaInSubdirector(files_, "2002");
  ASSERT_EQ(r.stare, RezultatSalvare::Efectuata);
  EXPECT_EQ(r.cale, dir_.path().string() + "/J12345674/");
  EXPECT_EQ(test::ReadBytes(dir_ / "J12345674/FF2_2002.txt"), "ff2\r\n");
  files_.Delete("Ff2.txt");
  Scrie("Ff1.txt", "ff1 nou\r\n");
  EXPECT_EQ(SalveazaInSubdirector(files_, "2002").stare, RezultatSalvare::Efectuata);
  EXPECT_EQ(test::ReadBytes(dir_ / "J12345674/FF1_2002.txt"), "ff1 nou\r\n");
  EXPECT_FALSE(fs::exists(dir_ / "J12345674/FF2_2002.txt"));
}

TEST_F(SalvareRestaurare, ABlankEmployerRecordSavesNothing) {
  Lucru("   \r\n");
  EXPECT_EQ(SalveazaInSubdirector(files_, "2002").stare, RezultatSalvare::FisiereGoale);
  files_.Delete("Repfisc.txt");
  EXPECT_EQ(SalveazaInSubdirector(files_, "2002").stare, RezultatSalvare::FisiereGoale);
}

TEST_F(SalvareRestaurare, ARestoreEmptiesWhatTheSubdirectoryLacks) {
  Lucru("12345674,1,#A#\r\n");
  fs::create_directory(dir_ / "f1700101080011");
  test::WriteBytes(dir_ / "f1700101080011/rep_2002.TXT", "rep salvat\r\n");
  EXPECT_EQ(Restaureaza(files_, "1700101080011", "2002"), RezultatRestaurare::Efectuata);
  EXPECT_EQ(Citeste("Repfisc.txt"), "rep salvat\r\n");
  for (std::string_view nume : {"Ff1.txt", "Ff2.txt", "Deduceri.txt"})
    EXPECT_EQ(Citeste(nume), "") << nume;
  EXPECT_EQ(Restaureaza(files_, "01700101080011", "2002"), RezultatRestaurare::FaraSubdirector);
}

}  // namespace
}  // namespace fisc
