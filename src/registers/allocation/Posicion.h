#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Where an entry sits in its book. A number may carry one letter behind its digits ("12a").
struct Posicion {
  std::int32_t folio = 1;
  std::string numero = "1";

  friend bool operator==(const Posicion&, const Posicion&) = default;
};

/// The number without its letter. Throws std::range_error for a text that is neither a number nor
/// one with a single character behind it, and for such a one above 32767.
std::int64_t valNumero(const std::string& numero);

/// True when the proposal lies further ahead than the next folio and number after `anterior`.
/// Marriage warns of any number that is not the very next.
bool haySalto(const Sacramento& sacramento, const Posicion& anterior, const Posicion& siguiente);
/// "¡Se ha producido un salto, ...!"; on two lines, in marriage on one.
std::string mensajeSalto(const Sacramento& sacramento, const Posicion& siguiente);

}  // namespace fidaleon
