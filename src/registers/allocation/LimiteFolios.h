#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace fidaleon {

inline constexpr const char* MENSAJE_LIMITE_FOLIOS =
    "¡Ha llegado al límite de folios establecidos para un libro!";

/// The page limit out of the text of its setting; none when it is empty or no number.
std::optional<double> limiteDeFolios(const std::string& ajuste);
/// A folio equal to the limit is still allowed.
bool pasaLimiteDeFolios(const std::string& ajuste, std::int64_t folio);

}  // namespace fidaleon
