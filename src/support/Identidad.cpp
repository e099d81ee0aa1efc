#include "support/Identidad.h"

#include <algorithm>

namespace fidaleon::support {

namespace {

constexpr std::string_view LETTERS = "TRWAGMYFPDXBNJZSQVHLCKE";
constexpr std::string_view CIF_LETTERS = "JABCDEFGHI";

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool allDigits(std::string_view s) {
  return !s.empty() && std::all_of(s.begin(), s.end(), isDigit);
}

bool isIn(char c, std::string_view set) {
  return set.find(c) != std::string_view::npos;
}

std::string normalised(std::string_view s) {
  std::string out;
  for (const char c : s) {
    if (c == ' ' || c == '.' || c == '-') continue;
    out += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  return out;
}

std::string letterOf(std::string number) {
  // X, Y and Z stand for a leading 0, 1 and 2.
  if (number.size() == 8 && isIn(number[0], "XYZ"))
    number[0] = static_cast<char>('0' + number[0] - 'X');
  if (number.size() > 8 || !allDigits(number)) return {};
  return std::string(1, LETTERS[std::stoul(number) % LETTERS.size()]);
}

/// Digits in odd places count double, as the sum of their own digits.
int cifControl(std::string_view digits) {
  int sum = 0;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    const int n = digits[i] - '0';
    sum += i % 2 == 0 ? n * 2 / 10 + n * 2 % 10 : n;
  }
  return (10 - sum % 10) % 10;
}

}  // namespace

std::string letraNIF(std::string_view numero) {
  return letterOf(normalised(numero));
}

bool nifValido(std::string_view texto) {
  const std::string id = normalised(texto);
  if (id.size() < 2) return false;
  const std::string letter(1, id.back());
  if (id.size() == 9 && isIn(id[0], "KLM")) return letterOf(id.substr(1, 7)) == letter;
  return letterOf(id.substr(0, id.size() - 1)) == letter;
}

bool cifValido(std::string_view texto) {
  const std::string id = normalised(texto);
  if (id.size() != 9 || !isIn(id[0], "ABCDEFGHJNPQRSUVW")) return false;
  const std::string digits = id.substr(1, 7);
  if (!allDigits(digits)) return false;
  const int control = cifControl(digits);
  const bool asDigit = id[8] == static_cast<char>('0' + control);
  const bool asLetter = id[8] == CIF_LETTERS[static_cast<std::size_t>(control)];
  if (isIn(id[0], "ABEH")) return asDigit;
  if (isIn(id[0], "NPQRSW")) return asLetter;
  return asDigit || asLetter;
}

}  // namespace fidaleon::support
