#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <variant>

#include "core/statements/Columnas.h"
#include "registers/baptism/cBautismo.h"
#include "registers/common/Guiones.h"

namespace fidaleon {

/// A baptism as another register takes it over: with the name of its book and each parent's name
/// in one text.
struct Bautizado : cBautismo {
  std::string NombreLibro;
  std::string PadreEntero;
  std::string MadreEntera;
};

inline bool seSabe(const std::string& texto) {
  return !enBlanco(texto);
}
inline bool seSabe(std::int32_t clave) {
  return clave != 0;
}

/// Throws when the entry, or a row of it, is gone. Empty texts come as "---".
Bautizado leerBautizado(FDAPI::Conexion& conexion, std::int32_t id);

/// What is taken from a baptism, and where it goes in the record of another register: one member
/// for each of the persons that the record is about.
template <class Registro, std::size_t PERSONAS = 1>
struct ParImportado {
  std::variant<std::string Bautizado::*, std::int32_t Bautizado::*> de;
  std::array<std::variant<std::string Registro::*, std::int32_t Registro::*>, PERSONAS> a;
};

/// Copies into the members of one person what is known: a blank leaves the member as it is.
template <class Registro, std::size_t PERSONAS>
void importar(std::span<const ParImportado<Registro, PERSONAS>> pares, const Bautizado& de,
              Registro& a, std::size_t persona = 0) {
  const auto copiar = [&](auto origen, auto destino) {
    using Valor = std::remove_cvref_t<decltype(a.*destino)>;
    if (!seSabe(de.*origen)) return;
    if constexpr (std::is_same_v<Valor, std::remove_cvref_t<decltype(de.*origen)>>)
      a.*destino = de.*origen;
    else if constexpr (std::is_same_v<Valor, std::string>)
      a.*destino = std::to_string(de.*origen);
    else
      a.*destino = static_cast<std::int32_t>(text::toInteger(de.*origen).value_or(0));
  };
  for (const auto& par : pares) std::visit(copiar, par.de, par.a.at(persona));
}

}  // namespace fidaleon
