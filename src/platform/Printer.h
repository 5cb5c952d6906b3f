#pragma once
// The printer as the listings use it: a print dialog that may be cancelled,
// then a page output taking a fixed-pitch font by name and size, a position
// in twips from the page's corner, a line of text and a page break.
#include <string_view>

namespace fisc {

class Printer {
 public:
  virtual ~Printer() = default;
  // Shows the print dialog for a document; false when the person cancels,
  // and nothing is printed then.
  virtual bool Begin(std::string_view document, std::string_view font, double size) = 0;
  virtual void SetPosition(int xTwips, int yTwips) = 0;
  // Prints a line at the current position; the position doesn't move.
  virtual void PrintLine(std::string_view text) = 0;
  virtual void NewPage() = 0;
  virtual void End() = 0;
};

}  // namespace fisc
