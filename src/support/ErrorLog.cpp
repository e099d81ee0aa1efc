#include "support/ErrorLog.h"

#include <cxxabi.h>

#include <array>
#include <exception>

#include "store/Error.h"
#include "text/Dates.h"

namespace fidaleon::support {
namespace {

// By store::ErrorKind.
constexpr std::array<const char*, 14> KINDS{"enunciado que no se entiende",
                                            "tabla o columna desconocida",
                                            "valor que no se admite",
                                            "texto demasiado largo",
                                            "almacén ocupado",
                                            "almacén de solo lectura",
                                            "disco lleno",
                                            "no es una base de datos",
                                            "falta el fichero",
                                            "de una versión más nueva",
                                            "sin conexión",
                                            "cancelado",
                                            "uso indebido",
                                            "otro error del almacén"};

std::string kindOfCurrent() {
  const std::exception_ptr current = std::current_exception();
  if (!current) return "sin excepción";
  try {
    std::rethrow_exception(current);
  } catch (const store::Error& e) {
    return std::string(KINDS.at(static_cast<std::size_t>(e.kind()))) + ", nº " +
           std::to_string(e.number());
  } catch (...) {
    const std::type_info* type = abi::__cxa_current_exception_type();
    return type ? type->name() : "desconocido";
  }
}

}  // namespace

void ErrorLog::note(const Clock& clock, const std::string& where) {
  entries_.push_back({text::toShort(clock.today()) + " " + clock.now(), where, kindOfCurrent()});
  if (entries_.size() > MOST) entries_.pop_front();
}

}  // namespace fidaleon::support
