#include "census/money/Decimal.h"

#include <algorithm>

#include "text/Utf8.h"

namespace fidaleon {

namespace {

bool sonCifras(std::string_view texto) {
  return std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// One more at the last digit; a number of nines grows by a digit.
void sumarUno(std::string& cifras) {
  auto cifra = cifras.rbegin();
  for (; cifra != cifras.rend() && *cifra == '9'; ++cifra) *cifra = '0';
  if (cifra == cifras.rend())
    cifras.insert(cifras.begin(), '1');
  else
    ++*cifra;
}

}  // namespace

std::optional<Decimal> Decimal::leer(std::string_view texto) {
  std::string resto = text::trim(texto);
  Decimal leido;
  if (!resto.empty() && (resto[0] == '-' || resto[0] == '+')) {
    leido.negativo_ = resto[0] == '-';
    resto.erase(0, 1);
  }
  const std::size_t coma = std::min(resto.find(','), resto.size());
  leido.enteros_ = text::replaceAll(resto.substr(0, coma), ".", "");
  if (coma < resto.size()) leido.decimales_ = resto.substr(coma + 1);
  if (!sonCifras(leido.enteros_) || !sonCifras(leido.decimales_)) return std::nullopt;
  if (leido.enteros_.empty() && leido.decimales_.empty()) return std::nullopt;
  leido.normalizar();
  return leido;
}

void Decimal::normalizar() {
  const auto significativa = [](char c) { return c != '0'; };
  enteros_.erase(enteros_.begin(), std::find_if(enteros_.begin(), enteros_.end(), significativa));
  if (enteros_.empty()) enteros_ = "0";
  const auto nula = [&](const std::string& cifras) {
    return std::none_of(cifras.begin(), cifras.end(), significativa);
  };
  if (nula(enteros_) && nula(decimales_)) negativo_ = false;
}

Decimal Decimal::redondeado(std::size_t decimales) const {
  const bool sube = decimales_.size() > decimales && decimales_[decimales] >= '5';
  std::string cifras = enteros_ + decimales_;
  cifras.resize(enteros_.size() + decimales, '0');
  if (sube) sumarUno(cifras);
  Decimal resultado;
  resultado.negativo_ = negativo_;
  resultado.enteros_ = cifras.substr(0, cifras.size() - decimales);
  resultado.decimales_ = cifras.substr(cifras.size() - decimales);
  resultado.normalizar();
  return resultado;
}

std::string Decimal::agrupado() const {
  std::string texto = enteros_;
  for (std::size_t lugar = texto.size(); lugar > 3;) texto.insert(lugar -= 3, 1, '.');
  return signo() + texto + (decimales_.empty() ? "" : "," + decimales_);
}

std::string Decimal::seguido() const {
  return signo() + enteros_ + decimales_;
}

}  // namespace fidaleon
