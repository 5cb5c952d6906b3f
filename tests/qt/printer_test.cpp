// The PDF printer the replay uses: real pages drawn by Qt.
#include <gtest/gtest.h>

#include "listings/Tiparire.h"
#include "platform/Files.h"
#include "platform/qt/QtPrinter.h"
#include "qt/QtTestSupport.h"
#include "support/TestSupport.h"

namespace fisc {
namespace {

TEST(PdfPrinter, ASixtySixLineListingMakesATwoPagePdf) {
  test::TempDir dir;
  Files files(dir.path());
  std::string text;
  for (int i = 1; i <= 66; ++i) text += "linia " + std::to_string(i) + "\r\n";
  test::WriteBytes(dir / "Lista.txt", text);
  auto printer = MakePdfPrinter(dir / "Lista.pdf");
  short linie = 0;
  ListeazaFise(files, *printer, linie, "Lista.txt");
  std::string pdf = test::ReadBytes(dir / "Lista.pdf");
  ASSERT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("/Count 2"), std::string::npos);
}

}  // namespace
}  // namespace fisc
