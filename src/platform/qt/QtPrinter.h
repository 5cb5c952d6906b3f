#pragma once
// Printers drawn with Qt: the print dialog and the printer of the system for
// a person (who may also choose to print into a PDF file), and a PDF file
// with no dialog for the replay. Both take the font by name and size and the
// position in twips from the page's corner.
#include <QPainter>
#include <filesystem>
#include <memory>

#include "platform/Printer.h"

class QPagedPaintDevice;
class QPdfWriter;
class QPrinter;
class QWidget;

namespace fisc {

// What both printers do once the page device is open.
class PaintedPrinter : public Printer {
 public:
  void SetPosition(int xTwips, int yTwips) override;
  void PrintLine(std::string_view text) override;
  void NewPage() override;
  void End() override;

 protected:
  // Starts drawing on `device` with the font.
  bool StartPainting(QPagedPaintDevice& device, std::string_view font, double size);

 private:
  QPainter painter_;
  QPagedPaintDevice* device_ = nullptr;
  double x_ = 0, y_ = 0;  // device pixels
  double ascent_ = 0;
};

// Through the print dialog; a cancel prints nothing.
class QtPrinter : public PaintedPrinter {
 public:
  explicit QtPrinter(QWidget* parent = nullptr);
  ~QtPrinter() override;
  bool Begin(std::string_view document, std::string_view font, double size) override;
  void End() override;

 private:
  QWidget* parent_;
  std::unique_ptr<QPrinter> printer_;
};

// Into a PDF file on A4 pages, without a dialog.
class PdfPrinter : public PaintedPrinter {
 public:
  explicit PdfPrinter(std::filesystem::path file);
  ~PdfPrinter() override;
  bool Begin(std::string_view document, std::string_view font, double size) override;
  void End() override;

 private:
  std::filesystem::path file_;
  std::unique_ptr<QPdfWriter> writer_;
};

// A PDF printer for a run without a window. The fonts need a GUI application:
// when none exists one is made on the offscreen platform, for the rest of the
// process.
std::unique_ptr<Printer> MakePdfPrinter(const std::filesystem::path& file);

}  // namespace fisc
