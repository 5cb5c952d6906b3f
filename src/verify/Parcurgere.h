#pragma once
// Walks a record that came from another program by a moving position. Unlike
// the readers of our own records it never fails: a delimiter that is missing
// gives the rest of the line, and the walk goes on at its end.
#include <string_view>

namespace fisc {

class Parcurgere {
 public:
  explicit Parcurgere(std::string_view record) : record_(record) {}

  // The text up to `delimiter`; the position moves past it.
  std::string_view Pana(std::string_view delimiter) {
    std::size_t at = record_.find(delimiter, pozitie_);
    if (at == std::string_view::npos) return Rest();
    std::string_view camp = record_.substr(pozitie_, at - pozitie_);
    pozitie_ = at + delimiter.size();
    return camp;
  }
  // Steps over `count` occurrences of `delimiter`.
  void Sari(std::string_view delimiter, int count) {
    for (int i = 0; i < count; ++i) Pana(delimiter);
  }
  std::string_view Rest() {
    std::string_view rest = record_.substr(pozitie_);
    pozitie_ = record_.size();
    return rest;
  }
  std::size_t Pozitie() const { return pozitie_; }

 private:
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

}  // namespace fisc
