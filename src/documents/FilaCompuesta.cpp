#include "documents/FilaCompuesta.h"

#include <stdexcept>

namespace fidaleon::documents {

void FilaCompuesta::ponerParte(std::string_view nombre, store::Recordset registro) {
  for (auto& [otra, suyo] : partes_)
    if (otra == nombre) {
      suyo = std::move(registro);
      return;
    }
  partes_.emplace_back(nombre, std::move(registro));
}

void FilaCompuesta::ponerDato(std::string_view campo, std::string valor) {
  datos_.insert_or_assign(std::string(campo), std::move(valor));
}

bool FilaCompuesta::tiene(std::string_view nombre) const {
  return !parte(nombre)->EOF_();
}

std::string FilaCompuesta::text(std::string_view campo) const {
  if (const auto dato = datos_.find(campo); dato != datos_.end()) return dato->second;
  const auto [registro, columna] = origen(campo);
  return registro ? registro->text(columna) : BLANK;
}

std::int64_t FilaCompuesta::integer(std::string_view campo) const {
  const auto [registro, columna] = origen(campo);
  return registro ? registro->integer(columna) : 0;
}

std::pair<const store::Recordset*, std::string_view> FilaCompuesta::origen(
    std::string_view campo) const {
  const std::size_t punto = campo.find('.');
  if (punto == std::string_view::npos) return {&principal_, campo};
  const store::Recordset* registro = parte(campo.substr(0, punto));
  return {registro->EOF_() ? nullptr : registro, campo.substr(punto + 1)};
}

const store::Recordset* FilaCompuesta::parte(std::string_view nombre) const {
  for (const auto& [suyo, registro] : partes_)
    if (suyo == nombre) return &registro;
  throw std::logic_error("no such part: " + std::string(nombre));
}

}  // namespace fidaleon::documents
