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

/// What can be typed as the number of an old book: digits, and one letter behind them at most. An
/// empty text can become one.
bool esNumeroDePartida(const std::string& numero);

/// The number without its letter. Of a text of another form that came with old data ("12 bis") its
/// leading digits, 0 without any: it has its place in the book all the same.
std::int64_t valNumero(const std::string& numero);

/// True when the proposal lies further ahead than the next folio and number after `anterior`.
/// Marriage warns of any number that is not the very next.
bool haySalto(const Sacramento& sacramento, const Posicion& anterior, const Posicion& siguiente);
/// "¡Se ha producido un salto, ...!"; on two lines, in marriage on one.
std::string mensajeSalto(const Sacramento& sacramento, const Posicion& siguiente);

}  // namespace fidaleon
