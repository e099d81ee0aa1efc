#pragma once
// The wording of a baptism entry: what the template prints between the columns of the row, by the
// identifiers of the string table.

#include <array>
#include <cstddef>

namespace fidaleon::documents {

inline constexpr int PRIMER_TEXTO_PARTIDA = 28000;

inline constexpr std::array<const char*, 43> TEXTOS_PARTIDA{
    "Libro:",
    "Folio:",
    "Número:",
    "Nombre y apellidos:",
    "Fecha:",
    "NOTAS MARGINALES",
    "En la Parroquia de",
    "de",
    "provincia de",
    "del Arzobispado Obispado de",
    "el día",  // 28010
    "el Presbítero D.",
    "bautizó solemnemente al niño",
    "nacido el",
    "a las",
    "horas, en",
    "siendo natural de",
    "provincia de",
    "Es hijo de D.",
    " natural de",
    "provincia de",  // 28020
    "y de Dª.",
    "natural de",
    "provincia de",
    "residentes en",
    "de",
    "provincia de",
    "Contrajeron matrimonio en la Parroquia de",
    "de",
    "provincia de",
    "el",  // 28030
    "Son sus abuelos paternos D.",
    "natural de",
    "y Dª.",
    "natural de",
    "Son sus abuelos maternos D.",
    "natural de",
    "y Dª.",
    "natural de",
    "Fueron padrinos D.",
    "y Dª.",  // 28040
    "a los que se advirtió el parentesco espiritual con el bautizado y las demás obligaciones.",
    "Y para que conste lo firmo, fecha ut supra",
};

/// The text of an identifier from 28000 to 28042; empty for any other.
constexpr const char* textoPartida(int id) {
  const int position = id - PRIMER_TEXTO_PARTIDA;
  if (position < 0 || position >= static_cast<int>(TEXTOS_PARTIDA.size())) return "";
  return TEXTOS_PARTIDA[static_cast<std::size_t>(position)];
}

}  // namespace fidaleon::documents
