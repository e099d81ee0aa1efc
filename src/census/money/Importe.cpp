#include "census/money/Importe.h"

#include <charconv>
#include <stdexcept>

#include "census/money/Decimal.h"

namespace fidaleon {

namespace {

constexpr std::size_t DECIMALES = 4;

}  // namespace

Importe Importe::deTexto(std::string_view texto) {
  const auto leido = Decimal::leer(texto);
  if (!leido) return {};
  const std::string cifras = leido->redondeado(DECIMALES).seguido();
  Importe importe;
  const auto fin =
      std::from_chars(cifras.data(), cifras.data() + cifras.size(), importe.diezmilesimas_);
  if (fin.ec != std::errc())
    throw std::out_of_range("El importe «" + std::string(texto) + "» es demasiado grande.");
  return importe;
}

std::string Importe::texto() const {
  std::string cifras = std::to_string(diezmilesimas_);
  const std::string signo = diezmilesimas_ < 0 ? "-" : "";
  cifras.erase(0, signo.size());
  if (cifras.size() <= DECIMALES) cifras.insert(0, DECIMALES + 1 - cifras.size(), '0');
  std::string decimales = cifras.substr(cifras.size() - DECIMALES);
  decimales.erase(decimales.find_last_not_of('0') + 1);
  const std::string enteros = cifras.substr(0, cifras.size() - DECIMALES);
  return signo + enteros + (decimales.empty() ? "" : "," + decimales);
}

}  // namespace fidaleon
