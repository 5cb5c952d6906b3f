#include "records/Numere.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace fisc {

namespace {
bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
}  // namespace

double Valoare(std::string_view text) {
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

double ValZecimal(std::string_view text) { return Valoare(PunctZecimal(text)); }

std::string TextZecimal(std::string_view text) { return PunctZecimal(TextDin(ValZecimal(text))); }

std::string TextZecimal(double value) { return PunctZecimal(TextDin(value)); }

std::string TextNumar(std::string_view text) { return PunctZecimal(TextDin(Valoare(text))); }

double Rotunjeste(double value) { return std::nearbyint(value); }

}  // namespace fisc
