#include "replay/ScriptLine.h"

#include <cctype>
#include <charconv>

namespace fisc {

namespace {

void AppendUtf8Byte(std::string& out, unsigned code) {
  // Files are one byte a character: \u00XX stands for the byte XX.
  if (code > 0xFF) throw ScriptError("\\u escape above \\u00ff");
  out += static_cast<char>(code);
}

std::string ParseString(std::string_view line, std::size_t& i) {
  std::string out;
  ++i;  // opening quote
  while (i < line.size()) {
    char c = line[i++];
    if (c == '"') return out;
    if (c != '\\') {
      out += c;
      continue;
    }
    if (i >= line.size()) break;
    char e = line[i++];
    switch (e) {
      case '"': out += '"'; break;
      case '\\': out += '\\'; break;
      case '/': out += '/'; break;
      case 'b': out += '\b'; break;
      case 'f': out += '\f'; break;
      case 'n': out += '\n'; break;
      case 'r': out += '\r'; break;
      case 't': out += '\t'; break;
      case 'u': {
        // Exactly four hexadecimal digits, as JSON has them.
        if (i + 4 > line.size()) throw ScriptError("short \\u escape");
        unsigned code = 0;
        const char* digits = line.data() + i;
        auto [end, ec] = std::from_chars(digits, digits + 4, code, 16);
        if (ec != std::errc() || end != digits + 4) throw ScriptError("bad \\u escape");
        i += 4;
        AppendUtf8Byte(out, code);
        break;
      }
      default: throw ScriptError(std::string("bad escape \\") + e);
    }
  }
  throw ScriptError("unterminated string");
}

}  // namespace

std::vector<Token> Tokenize(std::string_view line) {
  std::vector<Token> tokens;
  std::size_t i = 0;
  while (i < line.size()) {
    if (std::isspace(static_cast<unsigned char>(line[i]))) {
      ++i;
      continue;
    }
    if (line[i] == '"') {
      tokens.push_back({ParseString(line, i), true});
      continue;
    }
    std::size_t start = i;
    while (i < line.size() && !std::isspace(static_cast<unsigned char>(line[i]))) ++i;
    tokens.push_back({std::string(line.substr(start, i - start)), false});
  }
  return tokens;
}

ControlRef ParseRef(std::string_view text, bool withProperty) {
  ControlRef ref;
  std::size_t dot = text.find('.');
  if (dot == std::string_view::npos || dot == 0)
    throw ScriptError("bad control " + std::string(text));
  ref.form = text.substr(0, dot);
  std::string_view rest = text.substr(dot + 1);
  if (withProperty) {
    // Control names hold no dot: "Form.caption" asks the form itself.
    std::size_t pdot = rest.rfind('.');
    if (pdot == std::string_view::npos) {
      ref.property = rest;
      return ref;
    }
    ref.property = rest.substr(pdot + 1);
    rest = rest.substr(0, pdot);
  }
  std::size_t open = rest.find('(');
  if (open == std::string_view::npos) {
    ref.name = rest;
  } else {
    if (rest.back() != ')') throw ScriptError("bad control " + std::string(text));
    ref.name = rest.substr(0, open);
    std::string_view index = rest.substr(open + 1, rest.size() - open - 2);
    auto [end, ec] = std::from_chars(index.data(), index.data() + index.size(), ref.index);
    if (ec != std::errc() || end != index.data() + index.size() || index.empty())
      throw ScriptError("bad control " + std::string(text));
  }
  if (ref.name.empty()) throw ScriptError("bad control " + std::string(text));
  return ref;
}

}  // namespace fisc
