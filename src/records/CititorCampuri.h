#pragma once
// Takes a record apart by a moving position, field after field, each ended by
// the delimiter its place in the record gives (",", ",#", "#,#", "#,").
// A delimiter that is missing makes the read fail (failure 5), as a record of
// a shape the reader does not expect must.
#include <string>
#include <string_view>

namespace fisc {

namespace delim {
inline constexpr std::string_view Bare = ",";       // bare to bare
inline constexpr std::string_view BareText = ",#";  // bare to text
inline constexpr std::string_view Text = "#,#";     // text to text
inline constexpr std::string_view TextBare = "#,";  // text to bare
}  // namespace delim

class CititorCampuri {
 public:
  explicit CititorCampuri(std::string_view record, std::size_t position = 0)
      : record_(record), position_(position) {}

  // The text from the position up to `delimiter`; the position moves past it.
  std::string_view Camp(std::string_view delimiter);
  std::string CampText(std::string_view delimiter) { return std::string(Camp(delimiter)); }
  // A mark field: trimmed and in upper case.
  std::string Marca(std::string_view delimiter);
  // All that is left of the record; the last field takes it.
  std::string_view Rest();
  // Steps over `count` characters.
  void Sari(std::size_t count) { position_ += count; }

  std::size_t Pozitie() const { return position_; }

 private:
  std::string_view record_;
  std::size_t position_;
};

// Trimmed and in upper case: how every mark is read back.
std::string NormalizeazaMarca(std::string_view text);
// The text in upper case (bytes a-z only), as the screens turn their fields.
std::string Majuscule(std::string_view text);
// The text without blanks at either end.
std::string_view Trim(std::string_view text);

}  // namespace fisc
