#include "platform/qt/QtPrinter.h"

#include <QApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

#include "platform/qt/Cp1250.h"

namespace fisc {

namespace {
constexpr double kTwipsPerInch = 1440.0;
}

bool PaintedPrinter::StartPainting(QPagedPaintDevice& device, std::string_view font, double size) {
  // Positions count from the page's corner, not from the printable area.
  device.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Point);
  if (!painter_.begin(&device)) return false;
  device_ = &device;
  QFont f(FromCp1250(font));
  f.setStyleHint(QFont::TypeWriter);
  f.setFixedPitch(true);
  f.setPointSizeF(size);
  painter_.setFont(f);
  ascent_ = QFontMetricsF(painter_.font(), &device).ascent();
  x_ = y_ = 0;
  return true;
}

void PaintedPrinter::SetPosition(int xTwips, int yTwips) {
  if (!device_) return;
  x_ = xTwips * device_->logicalDpiX() / kTwipsPerInch;
  y_ = yTwips * device_->logicalDpiY() / kTwipsPerInch;
}

void PaintedPrinter::PrintLine(std::string_view text) {
  if (!device_) return;
  // The position is the top of the line; Qt draws on the baseline.
  painter_.drawText(QPointF(x_, y_ + ascent_), FromCp1250(text));
}

void PaintedPrinter::NewPage() {
  if (device_) device_->newPage();
}

void PaintedPrinter::End() {
  if (!device_) return;
  painter_.end();
  device_ = nullptr;
}

QtPrinter::QtPrinter(QWidget* parent) : parent_(parent) {}

QtPrinter::~QtPrinter() { PaintedPrinter::End(); }

bool QtPrinter::Begin(std::string_view document, std::string_view font, double size) {
  printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setDocName(FromCp1250(document));
  printer_->setFullPage(true);
  QPrintDialog dialog(printer_.get(), parent_ ? parent_ : QApplication::activeWindow());
  dialog.setWindowTitle(QStringLiteral("Print"));
  if (dialog.exec() != QDialog::Accepted) {
    printer_.reset();
    return false;
  }
  return StartPainting(*printer_, font, size);
}

void QtPrinter::End() {
  PaintedPrinter::End();
  printer_.reset();
}

PdfPrinter::PdfPrinter(std::filesystem::path file) : file_(std::move(file)) {}

PdfPrinter::~PdfPrinter() { PaintedPrinter::End(); }

bool PdfPrinter::Begin(std::string_view document, std::string_view font, double size) {
  writer_ = std::make_unique<QPdfWriter>(QString::fromStdString(file_.string()));
  writer_->setTitle(FromCp1250(document));
  writer_->setResolution(600);
  writer_->setPageSize(QPageSize(QPageSize::A4));
  return StartPainting(*writer_, font, size);
}

void PdfPrinter::End() {
  PaintedPrinter::End();
  writer_.reset();
}

std::unique_ptr<Printer> MakePdfPrinter(const std::filesystem::path& file) {
  if (!QGuiApplication::instance()) {
    // Never destroyed: it must outlive every printer, up to the process's end.
    static int argc = 3;
    static char arg0[] = "fisc", arg1[] = "-platform", arg2[] = "offscreen";
    static char* argv[] = {arg0, arg1, arg2, nullptr};
    new QGuiApplication(argc, argv);
  }
  return std::make_unique<PdfPrinter>(file);
}

}  // namespace fisc
