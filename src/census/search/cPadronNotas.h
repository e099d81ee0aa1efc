#pragma once

#include <cstdint>
#include <string>

#include "core/contract/FDAPI.h"

namespace fidaleon {

/// A personal note of a person while their card is open.
struct cPadronNotas {
  /// What is to be done with it when the card is accepted; value-initialised: nothing.
  FDAPI::cCOperacion Operacion{};
  /// It stands in the store.
  bool Estado = false;
  std::string Descripcion;
  /// Its title.
  std::string Nombre;
  /// 0 for a note that is not stored yet.
  std::int32_t IDNota = 0;
  std::int32_t CodPadron = 0;
};

/// A text as a row of a grid shows it: in one line, and a long one cut, with " ... " at its end.
std::string recortada(const std::string& texto);

}  // namespace fidaleon
