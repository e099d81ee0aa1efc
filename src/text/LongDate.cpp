#include "text/LongDate.h"

#include <array>
#include <chrono>

namespace fidaleon::text {

std::string toLong(const Date& d) {
  static constexpr std::array<const char*, 7> DIAS{"domingo", "lunes",   "martes", "miércoles",
                                                   "jueves",  "viernes", "sábado"};
  static constexpr std::array<const char*, 12> MESES{
      "enero", "febrero", "marzo",      "abril",   "mayo",      "junio",
      "julio", "agosto",  "septiembre", "octubre", "noviembre", "diciembre"};
  namespace c = std::chrono;
  const c::weekday dia{c::sys_days{c::year{d.year} / d.month / d.day}};
  return std::string(DIAS.at(dia.c_encoding())) + ", " + std::to_string(d.day) + " de " +
         MESES.at(static_cast<std::size_t>(d.month - 1)) + " de " + std::to_string(d.year);
}

}  // namespace fidaleon::text
