#include "registers/allocation/LimiteFolios.h"

#include "text/Numbers.h"

namespace fidaleon {

std::optional<double> limiteDeFolios(const std::string& ajuste) {
  if (!text::isNumeric(ajuste)) return std::nullopt;
  return text::Val(ajuste);
}

bool pasaLimiteDeFolios(const std::string& ajuste, std::int64_t folio) {
  const std::optional<double> limite = limiteDeFolios(ajuste);
  return limite && *limite < static_cast<double>(folio);
}

}  // namespace fidaleon
