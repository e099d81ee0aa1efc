// Amounts as text, and from one currency to the other.

#include "census/money/cCurrency.h"

#include <cmath>

#include "census/money/Decimal.h"

namespace fidaleon {

namespace {

// The legal rate: 166,386 pesetas for one euro.
constexpr double PESETAS_POR_EURO = 166.386;
constexpr std::int64_t MILESIMAS_DE_PESETA_POR_EURO = 166386;
constexpr std::size_t MAXIMO_CARACTERES = 14;

/// n * 1000 / 166386 to the nearest whole number, without passing through anything larger than
/// the result. An exact half cannot come about.
std::int64_t enEuros(std::int64_t n) {
  constexpr std::int64_t TASA = MILESIMAS_DE_PESETA_POR_EURO;
  const std::int64_t mitad = n < 0 ? -TASA / 2 : TASA / 2;
  return n / TASA * 1000 + (n % TASA * 1000 + mitad) / TASA;
}

}  // namespace

std::string cCurrency::FormatearCurrency(const std::string& valor, bool decimales) {
  Decimal numero = Decimal::leer(valor).value_or(Decimal());
  const Decimal entero = numero.redondeado(0);
  if (entero.agrupado().size() > MAXIMO_CARACTERES)
    numero = *Decimal::leer(entero.seguido().substr(0, MAXIMO_CARACTERES));
  return numero.redondeado(decimales ? 2 : 0).agrupado();
}

std::string cCurrency::PesetasAEuros(Importe& cantidad) {
  std::int64_t x = enEuros(cantidad.diezmilesimas()) / 10;  // thousandths, the rest is cut off
  x += x > 0 ? 5 : -5;
  x /= 10;  // hundredths
  cantidad = Importe::deDiezmilesimas(x * 100);
  return FormatearCurrency(cantidad.texto(), true);
}

std::string cCurrency::EurosAPesetas(const Importe& cantidad) {
  // To even on an exact half, unlike the other way.
  const double pesetas = std::nearbyint(cantidad.real() * PESETAS_POR_EURO);
  return FormatearCurrency(std::to_string(static_cast<std::int64_t>(pesetas)), false);
}

}  // namespace fidaleon
