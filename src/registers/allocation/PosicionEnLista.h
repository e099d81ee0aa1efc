#pragma once

#include <optional>
#include <vector>

#include "registers/allocation/Posicion.h"

namespace fidaleon {

/// How a book hands out positions.
enum class Numeracion {
  SoloAdelante,  // a new book: always behind the last entry, a folio for each
  Huecos,        // the first hole from folio 1 on, else behind the last entry
};

/// The next position of a book out of the positions of its list, in any order. An empty list gives
/// 1/1. Empty when the book holds neither 1, 2 nor 4 entries per folio: the position stands.
std::optional<Posicion> siguienteEnLista(const std::vector<Posicion>& ocupadas, int partidasFolio,
                                         Numeracion numeracion);

}  // namespace fidaleon
