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

// The value of a plain decimal of at most 15 digits, computed without the
// general conversion: a whole mantissa over a power of ten, both exact, so the
// one division rounds as the conversion would. NaN for any other text.
double Exact(std::string_view number) {
  static constexpr double kPutere[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                       1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  std::size_t i = 0;
  bool minus = false;
  if (i < number.size() && (number[i] == '-' || number[i] == '+')) minus = number[i++] == '-';
  std::int64_t mantisa = 0;
  int cifre = 0, zecimale = 0;
  bool punct = false;
  for (; i < number.size(); ++i) {
    char c = number[i];
    if (c == '.') {
      punct = true;
    } else if (IsDigit(c) && cifre < 15) {
      mantisa = mantisa * 10 + (c - '0');
      if (mantisa != 0) ++cifre;
      if (punct && ++zecimale > 15) return std::nan("");
    } else {
      return std::nan("");
    }
  }
  double value = static_cast<double>(mantisa) / kPutere[zecimale];
  return minus ? -value : value;
}
}  // namespace

double Valoare(std::string_view text) {
  // Most fields are a plain number with nothing around it: read in place.
  {
    std::size_t j = 0;
    if (j < text.size() && (text[j] == '-' || text[j] == '+')) ++j;
    bool digits = false, point = false;
    for (; j < text.size(); ++j) {
      if (IsDigit(text[j]))
        digits = true;
      else if (text[j] == '.' && !point)
        point = true;
      else
        break;
    }
    bool simplu = j == text.size() || !(IsBlank(text[j]) || text[j] == 'e' || text[j] == 'E' ||
                                        text[j] == 'd' || text[j] == 'D');
    if (simplu && !(text.size() > 0 && IsBlank(text[0]))) {
      if (!digits) return 0;
      double value = Exact(text.substr(0, j));
      if (!std::isnan(value)) return value == 0 ? 0.0 : value;
    }
  }
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
  double value = Exact(number);
  if (std::isnan(value)) value = std::strtod(number.c_str(), nullptr);
  return value == 0 ? 0.0 : value;
}

std::string TextDin(double value) {
  if (value == 0 || std::isnan(value)) return "0";
  char text[64];
  // A whole number below 10^15 prints as its digits: the common case, done
  // without the general format.
  if (std::fabs(value) < 1e15 && value == std::trunc(value)) {
    auto end = std::to_chars(text, text + sizeof text, static_cast<std::int64_t>(value)).ptr;
    return std::string(text, end);
  }
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
