#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace fidaleon {

/// An amount of money with four decimals, exact. About ±922 billions (10^12) fit.
class Importe {
 public:
  Importe() = default;
  /// Of a text in Spanish form ("1.000", "-6,01", "1000"), rounded at the fourth decimal, a half
  /// away from zero. Points are signs of thousands wherever they stand before the comma; a text
  /// that is no number is 0. Throws std::out_of_range, with a message for people, when it does not
  /// fit.
  static Importe deTexto(std::string_view texto);
  static Importe deDiezmilesimas(std::int64_t n) { return Importe(n); }

  std::int64_t diezmilesimas() const { return diezmilesimas_; }
  double real() const { return static_cast<double>(diezmilesimas_) / 10000.0; }
  /// "6,01": no signs of thousands, and no more decimals than it has.
  std::string texto() const;

  friend auto operator<=>(const Importe&, const Importe&) = default;

 private:
  explicit Importe(std::int64_t n) : diezmilesimas_(n) {}
  std::int64_t diezmilesimas_ = 0;
};

}  // namespace fidaleon
