#pragma once
// A printer without a window, for the replay and the tests: each print dialog
// takes the next queued answer, the pages are counted and kept, and every
// document is reported as one line. When an answer names a PDF file and a
// maker of PDF printers is given, the pages are drawn into that file too.
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Printer.h"

namespace fisc {

class HeadlessPrinter : public Printer {
 public:
  using PdfMaker = std::function<std::unique_ptr<Printer>(const std::filesystem::path&)>;

  // A relative PDF name is taken in `directory`.
  explicit HeadlessPrinter(std::filesystem::path directory = {}, PdfMaker pdf = {});

  // The answers to the next print dialogs: OK, printing into `pdf` when it
  // isn't empty, or Cancel.
  void QueueOk(std::string pdf = {});
  void QueueCancel();
  bool HasQueuedAnswers() const { return !answers_.empty(); }

  bool Begin(std::string_view document, std::string_view font, double size) override;
  void SetPosition(int xTwips, int yTwips) override;
  void PrintLine(std::string_view text) override;
  void NewPage() override;
  void End() override;

  struct PrintedLine {
    int x, y;
    std::string text;
  };
  struct Document {
    std::string name, font;
    double size = 0;
    bool printed = false;  // false when the dialog was cancelled
    std::vector<std::vector<PrintedLine>> pages;
    // Pages that carry a line: an empty file prints none.
    int PageCount() const;
  };
  const std::vector<Document>& Documents() const { return documents_; }

  // Receives one transcript line per document.
  std::function<void(const std::string&)> Report;

 private:
  void ReportLine(const Document& d);

  std::filesystem::path directory_;
  PdfMaker pdf_;
  std::deque<std::optional<std::string>> answers_;  // nullopt: cancel
  std::vector<Document> documents_;
  std::unique_ptr<Printer> inner_;
  bool open_ = false;
  int x_ = 0, y_ = 0;
};

// The size as the transcript writes it: 9, 7, 7.5.
std::string SizeText(double size);

}  // namespace fisc
