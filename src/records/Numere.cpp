#include "records/Numere.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fisc {

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

constexpr double kPutere10[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

// The common case of the files: a plain number of at most 15 digits, ended by
// the end of the text or a character that can't continue it. Its value is
// exact in a double, and so is the power of ten that places its point, so
// one division rounds it exactly as strtod does. False for anything else;
// `stop` is the character that ended the number, 0 for the end of the text.
bool ValoareSimpla(std::string_view text, double& value, char& stop) {
  std::size_t i = 0;
  bool minus = false;
  if (i < text.size() && (text[i] == '-' || text[i] == '+')) minus = text[i++] == '-';
  std::int64_t mantisa = 0;
  int cifre = 0, zecimale = 0;
  bool punct = false;
  stop = 0;
  for (; i < text.size(); ++i) {
    char c = text[i];
    if (IsDigit(c)) {
      if (++cifre > 15) return false;
      mantisa = mantisa * 10 + (c - '0');
      if (punct) ++zecimale;
    } else if (c == '.' && !punct) {
      punct = true;
    } else {
      // Blanks are skipped inside a number and an exponent may follow: the
      // full reading decides those.
      if (IsBlank(c) || c == 'e' || c == 'E' || c == 'd' || c == 'D') return false;
      stop = c;
      break;
    }
  }
  if (cifre == 0) return false;
  value = static_cast<double>(mantisa);
  if (zecimale > 0) value /= kPutere10[zecimale];
  if (minus) value = -value;
  if (value == 0) value = 0.0;
  return true;
}

}  // namespace

double Valoare(std::string_view text) {
  double simpla;
  char stop;
  if (ValoareSimpla(text, simpla, stop)) return simpla;
  // Gather the numeric prefix with the blanks taken out, then convert it.
  std::string number;
  std::size_t i = 0;
  auto next = [&]() -> char {
    while (i < text.size() && IsBlank(text[i])) ++i;
    return i < text.size() ? text[i] : '\0';
  };
  char c = next();
  if (c == '-' || c == '+') {
    number += c;
    ++i;
    c = next();
  }
  bool digits = false, point = false;
  for (;; c = next()) {
    if (IsDigit(c)) {
      number += c;
      digits = true;
    } else if (c == '.' && !point) {
      number += c;
      point = true;
    } else {
      break;
    }
    ++i;
  }
  if (!digits) return 0;
  if (c == 'e' || c == 'E' || c == 'd' || c == 'D') {
    std::size_t mark = i++;
    std::string exponent = "e";
    char s = next();
    if (s == '-' || s == '+') {
      exponent += s;
      ++i;
      s = next();
    }
    bool any = false;
    while (IsDigit(s)) {
      exponent += s;
      any = true;
      ++i;
      s = next();
    }
    if (any)
      number += exponent;
    else
      i = mark;
  }
  double value = std::strtod(number.c_str(), nullptr);
  return value == 0 ? 0.0 : value;
}

std::string TextDin(double value) {
  if (value == 0 || std::isnan(value)) return "0";
  // Whole amounts of up to 15 digits, the usual case, print as %.15g does.
  if (std::fabs(value) < 1e15 && value == std::trunc(value)) {
    char text[24];
    auto end = std::to_chars(text, text + sizeof text, static_cast<std::int64_t>(value)).ptr;
    return std::string(text, end);
  }
  char text[64];
  std::snprintf(text, sizeof text, "%.15g", value);
  if (std::string_view(text).find('e') == std::string_view::npos) return text;
  // Past the exponent threshold of %g: write it out in full, trimmed.
  std::snprintf(text, sizeof text, std::fabs(value) >= 1 ? "%.0f" : "%.20f", value);
  std::string s = text;
  if (s.find('.') != std::string::npos) {
    while (s.back() == '0') s.pop_back();
    if (s.back() == '.') s.pop_back();
  }
  return s;
}

std::string PunctZecimal(std::string_view text) {
  std::string s(text);
  for (char& c : s)
    if (c == ',') c = '.';
  return s;
}

double ValZecimal(std::string_view text) {
  // Files hold "." already: only a number that stops at a comma, as one
  // typed on a screen may, needs the copy with the comma turned.
  double simpla;
  char stop;
  if (ValoareSimpla(text, simpla, stop) && stop != ',') return simpla;
  return Valoare(PunctZecimal(text));
}

std::string TextZecimal(std::string_view text) { return PunctZecimal(TextDin(ValZecimal(text))); }

std::string TextZecimal(double value) { return PunctZecimal(TextDin(value)); }

std::string TextNumar(std::string_view text) { return PunctZecimal(TextDin(Valoare(text))); }

double Rotunjeste(double value) { return std::nearbyint(value); }

}  // namespace fisc
