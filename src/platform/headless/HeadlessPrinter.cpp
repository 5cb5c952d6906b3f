#include "platform/headless/HeadlessPrinter.h"

#include <cstdio>

#include "platform/headless/HeadlessServices.h"

namespace fisc {

std::string SizeText(double size) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", size);
  return text;
}

int HeadlessPrinter::Document::PageCount() const {
  int n = 0;
  for (const auto& page : pages)
    if (!page.empty()) ++n;
  return n;
}

HeadlessPrinter::HeadlessPrinter(std::filesystem::path directory, PdfMaker pdf)
    : directory_(std::move(directory)), pdf_(std::move(pdf)) {}

void HeadlessPrinter::QueueOk(std::string pdf) { answers_.emplace_back(std::move(pdf)); }

void HeadlessPrinter::QueueCancel() { answers_.emplace_back(std::nullopt); }

void HeadlessPrinter::ReportLine(const Document& d) {
  if (Report)
    Report("print " + Quote(d.name) + " " + Quote(d.font) + " " + SizeText(d.size) +
           " pages=" + std::to_string(d.PageCount()) + " -> " + (d.printed ? "ok" : "cancel"));
}

bool HeadlessPrinter::Begin(std::string_view document, std::string_view font, double size) {
  if (answers_.empty()) throw UnansweredBox("no answer for the print dialog " + Quote(document));
  std::optional<std::string> answer = std::move(answers_.front());
  answers_.pop_front();
  Document& d = documents_.emplace_back();
  d.name = document;
  d.font = font;
  d.size = size;
  if (!answer) {
    ReportLine(d);
    return false;
  }
  d.printed = true;
  d.pages.emplace_back();
  open_ = true;
  x_ = y_ = 0;
  inner_.reset();
  if (!answer->empty() && pdf_) {
    std::filesystem::path file(*answer);
    if (file.is_relative() && !directory_.empty()) file = directory_ / file;
    inner_ = pdf_(file);
    if (inner_ && !inner_->Begin(document, font, size)) inner_.reset();
  }
  return true;
}

void HeadlessPrinter::SetPosition(int xTwips, int yTwips) {
  x_ = xTwips;
  y_ = yTwips;
  if (inner_) inner_->SetPosition(xTwips, yTwips);
}

void HeadlessPrinter::PrintLine(std::string_view text) {
  if (!open_) return;
  documents_.back().pages.back().push_back({x_, y_, std::string(text)});
  if (inner_) inner_->PrintLine(text);
}

void HeadlessPrinter::NewPage() {
  if (!open_) return;
  documents_.back().pages.emplace_back();
  if (inner_) inner_->NewPage();
}

void HeadlessPrinter::End() {
  if (!open_) return;
  open_ = false;
  if (inner_) {
    inner_->End();
    inner_.reset();
  }
  ReportLine(documents_.back());
}

}  // namespace fisc
