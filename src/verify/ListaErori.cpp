#include "verify/ListaErori.h"

namespace fisc {

namespace {
constexpr std::string_view kErori = "erori.txt";

LineWriter Deschide(Files& files) {
  files.DeleteIfExists(kErori);
  return files.Write(kErori);
}
}  // namespace

ListaErori::ListaErori(Files& files) : out_(Deschide(files)) {}

void ListaErori::Titlu(std::string_view linie) { out_.Line(linie); }

void ListaErori::Sectiune(int numar) { sectiune_ = numar; }

void ListaErori::Nota(std::string_view linie) {
  out_.Line(linie);
  if (sectiune_ >= 1 && sectiune_ <= 6) ++linii_[static_cast<std::size_t>(sectiune_ - 1)];
}

void ListaErori::Eroare(std::string_view linie) {
  Nota(linie);
  existaErori_ = true;
}

}  // namespace fisc
