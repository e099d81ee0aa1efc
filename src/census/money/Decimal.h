#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace fidaleon {

/// A decimal number of any length, digit by digit, for amounts whose text may be longer than any
/// number of the machine.
class Decimal {
 public:
  /// Of a text in Spanish form; points before the comma count for nothing. Empty when the text is
  /// no number.
  static std::optional<Decimal> leer(std::string_view texto);

  /// With exactly so many decimals; a half is rounded away from zero.
  Decimal redondeado(std::size_t decimales) const;
  /// "-1.234,50".
  std::string agrupado() const;
  /// "-123450": all its digits in a row.
  std::string seguido() const;

 private:
  void normalizar();
  std::string signo() const { return negativo_ ? "-" : ""; }

  bool negativo_ = false;
  std::string enteros_ = "0";  // at least one digit, without zeros in front
  std::string decimales_;
};

}  // namespace fidaleon
