#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "core/contract/Sacramento.h"

namespace fidaleon {

/// Why a folio that already holds `partidas` entries takes no more; empty when it has room, or the
/// format is none of 1 to 4.
std::optional<std::string> rechazoFolioCompleto(std::int64_t codFormato, const std::string& folio,
                                                std::int64_t partidas);

/// The number to put in the place of a taken one: its digits and the next letter that is free.
std::string numeroConLetra(const std::string& ocupado,
                           const std::function<bool(const std::string&)>& estaOcupado);

/// The question before a taken number is replaced, and the title of its box (empty: the
/// application's).
struct PreguntaReemplazo {
  std::string texto;
  std::string titulo;
};
PreguntaReemplazo preguntaReemplazo(const Sacramento& sacramento, std::int64_t codFormato,
                                    const std::string& numeroNuevo);

}  // namespace fidaleon
