#pragma once

#include <string>
#include <string_view>

#include "core/contract/EnSacramento.h"
#include "text/Utf8.h"

namespace fidaleon {

/// A text as it stands in a statement, between double quotes. A double quote that came with old
/// data becomes two apostrophes: quoted texts are not escaped.
inline std::string citar(std::string_view texto) {
  return entreComillas(text::replaceAll(texto, "\"", "''"));
}

}  // namespace fidaleon
