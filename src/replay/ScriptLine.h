#pragma once
// One line of a replay script taken apart: a command word and its arguments,
// strings given as JSON strings.
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace fisc {

class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Token {
  std::string text;
  bool quoted = false;
};

// Splits a line into words and JSON strings; a bad string is a ScriptError.
std::vector<Token> Tokenize(std::string_view line);

// "Form.Name(3).prop" taken apart; the property is empty when not asked for.
struct ControlRef {
  std::string form, name, property;
  int index = -1;
};
ControlRef ParseRef(std::string_view text, bool withProperty);

}  // namespace fisc
