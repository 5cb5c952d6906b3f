#pragma once
// erori.txt while the checks run: every line of the list goes through here,
// so that the count of each section and ExistaErori can't miss one.
#include <array>
#include <string_view>

#include "platform/Files.h"

namespace fisc {

class ListaErori {
 public:
  // Deletes an older erori.txt and opens a new one.
  explicit ListaErori(Files& files);

  // A line of a heading or of the frame: counted nowhere.
  void Titlu(std::string_view linie);
  // The lines that follow count to section `numar`, 1 to 6.
  void Sectiune(int numar);
  // A line of a check: it sets ExistaErori.
  void Eroare(std::string_view linie);
  // A line that tells without accusing: a warning, the notice of section 6.
  void Nota(std::string_view linie);
  void Inchide() { out_.Close(); }

  bool ExistaErori() const { return existaErori_; }
  const std::array<long, 6>& LiniiSectiune() const { return linii_; }

 private:
  LineWriter out_;
  int sectiune_ = 0;
  bool existaErori_ = false;
  std::array<long, 6> linii_{};
};

}  // namespace fisc
