#pragma once
// dBase files through shapelib: open, create, the structure check against a
// layout table, and one record at a time either way.
#include <shapefil.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "transfer/StructuriDbf.h"

namespace fisc {

class TabelaDbf {
 public:
  TabelaDbf() = default;
  // An open file, or an invalid one when it isn't a dBase file that can be read.
  static TabelaDbf Deschide(const std::filesystem::path& cale);
  // A new file with the fields of `fisier` in layout order, dated `an`-`luna`-`zi`
  // in its header; a file of that name is replaced.
  static TabelaDbf Creeaza(const std::filesystem::path& cale, const FisierDbf& fisier, int an,
                           int luna, int zi);

  TabelaDbf(TabelaDbf&& alta) noexcept;
  TabelaDbf& operator=(TabelaDbf&& alta) noexcept;
  ~TabelaDbf();

  bool Valida() const { return handle_ != nullptr; }
  int Inregistrari() const;
  bool Stearsa(int inregistrare) const;
  // The value of a field without blanks at either end; false when the
  // record can't be read.
  bool Citeste(int inregistrare, int coloana, std::string& valoare) const;
  // Appends a record: `valori` holds, column after column, the text each
  // field stores (already in its dBase form).
  void Adauga(const std::vector<std::string>& valori);
  // Writes the header and the end of the file, syncs it and closes it.
  void Inchide();

  // The structure check: the column of every field of the layout, found by
  // its name in any case and at any place (-1 for a field that isn't
  // stored). Every fault adds a line to `erori`: a field missing, of another
  // type, width or decimals, or present twice. Fields beyond the layout are
  // left alone.
  std::vector<int> Coloane(const FisierDbf& fisier, std::string_view numeFisier,
                           std::vector<std::string>& erori) const;

 private:
  explicit TabelaDbf(DBFHandle handle) : handle_(handle) {}
  DBFHandle handle_ = nullptr;
};

}  // namespace fisc
