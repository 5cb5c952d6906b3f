#include "records/CititorCampuri.h"

#include <cstring>

#include "platform/Failure.h"

namespace fisc {

std::string_view CititorCampuri::Camp(std::string_view delimiter) {
  std::size_t at = std::string_view::npos;
  if (position_ <= record_.size()) {
    // Most fields are bare: one comma found by the library's fastest search.
    if (delimiter.size() == 1) {
      const void* p =
          std::memchr(record_.data() + position_, delimiter[0], record_.size() - position_);
      if (p) at = static_cast<std::size_t>(static_cast<const char*>(p) - record_.data());
    } else {
      at = record_.find(delimiter, position_);
    }
  }
  if (at == std::string_view::npos) Fail(err::InvalidCall);
  std::string_view field = record_.substr(position_, at - position_);
  position_ = at + delimiter.size();
  return field;
}

std::string CititorCampuri::Marca(std::string_view delimiter) {
  return NormalizeazaMarca(Camp(delimiter));
}

std::string_view CititorCampuri::Rest() {
  if (position_ >= record_.size()) {
    position_ = record_.size();
    return {};
  }
  std::string_view rest = record_.substr(position_);
  position_ = record_.size();
  return rest;
}

std::string_view Trim(std::string_view text) {
  std::size_t b = 0, e = text.size();
  while (b < e && text[b] == ' ') ++b;
  while (e > b && text[e - 1] == ' ') --e;
  return text.substr(b, e - b);
}

std::string Majuscule(std::string_view text) {
  std::string s(text);
  for (char& c : s)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return s;
}

std::string NormalizeazaMarca(std::string_view text) { return Majuscule(Trim(text)); }

}  // namespace fisc
