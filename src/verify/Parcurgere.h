#pragma once
// Walks a record that came from another program field by field, by the
// separators that the structure check counts: a text field lies between its
// two "#", a bare field between two commas, and whatever stands between a
// separator and the next one outside a field (a blank in "#, #", say)
// belongs to no field. So a record that passed the structure check reads
// field for field as its template says, whatever blanks it holds. The walk
// never fails: past the last separator every field is the rest of the line.
#include <string_view>

namespace fisc {

class Parcurgere {
 public:
  explicit Parcurgere(std::string_view record) : record_(record) {}

  // The next field; the position moves to the start of the one after it.
  std::string_view Camp() {
    std::size_t at = Separator(pozitie_);
    if (at == record_.size()) return Rest();
    if (record_[at] == ',') {
      std::string_view camp = record_.substr(pozitie_, at - pozitie_);
      pozitie_ = at + 1;
      return camp;
    }
    // A text field: its commas are its own, the next "#" closes it.
    std::size_t inchis = record_.find('#', at + 1);
    if (inchis == std::string_view::npos) {
      pozitie_ = record_.size();
      return record_.substr(at + 1);
    }
    std::string_view camp = record_.substr(at + 1, inchis - at - 1);
    std::size_t dupa = Separator(inchis + 1);
    pozitie_ = dupa < record_.size() && record_[dupa] == ',' ? dupa + 1 : dupa;
    return camp;
  }
  // Steps over `count` fields.
  void Sari(int count) {
    for (int i = 0; i < count; ++i) Camp();
  }
  // All that is left: the last field of a record.
  std::string_view Rest() {
    std::string_view rest = record_.substr(pozitie_);
    pozitie_ = record_.size();
    return rest;
  }
  // Where the next field begins: behind the separator of the last one read.
  std::size_t Pozitie() const { return pozitie_; }

 private:
  // The first "," or "#" from `de` on, the length of the record when none:
  // fields are a few characters long, a plain loop beats a search.
  std::size_t Separator(std::size_t de) const {
    const char* p = record_.data() + de;
    const char* sfarsit = record_.data() + record_.size();
    while (p < sfarsit && *p != ',' && *p != '#') ++p;
    return static_cast<std::size_t>(p - record_.data());
  }

  std::string_view record_;
  std::size_t pozitie_ = 0;
};

// The characters `from` (1-based) to `from + length - 1`, as much as there is.
inline std::string_view Mijloc(std::string_view text, std::size_t from, std::size_t length) {
  if (from == 0 || from > text.size()) return {};
  return text.substr(from - 1, length);
}

// The last `length` characters, or the whole text when it is shorter.
inline std::string_view Dreapta(std::string_view text, std::size_t length) {
  return text.size() <= length ? text : text.substr(text.size() - length);
}

// The text before the first `delimiter`, the whole text when there is none.
inline std::string_view Inainte(std::string_view text, std::string_view delimiter) {
  return text.substr(0, text.find(delimiter));
}

// The key of a dependant line: the employee's code, a comma and the
// dependant's code, as they stand before the separator that ends the second.
inline std::string_view CheieDeducere(std::string_view record) {
  Parcurgere p(record);
  p.Sari(2);
  std::size_t sfarsit = p.Pozitie();
  // The separator that ended the dependant's code is a comma, unless the line ended.
  if (sfarsit > 0 && sfarsit <= record.size() && record[sfarsit - 1] == ',') --sfarsit;
  return record.substr(0, sfarsit);
}

}  // namespace fisc
