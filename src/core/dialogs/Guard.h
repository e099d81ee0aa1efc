#pragma once

#include <exception>
#include <string>

#include "core/statements/TransaccionSinVuelta.h"

namespace fidaleon {

/// Runs a procedure; an error in it is reported with these labels and ends the procedure, not the
/// program, once what was being stored has been committed. A user who stopped it is told so and no
/// more. True when it ran through.
template <class Body>
bool guarded(const Contexto& contexto, const std::string& objeto, const std::string& procedimiento,
             Body&& body) {
  try {
    body();
    return true;
  } catch (const forms::Cancelled& cancelled) {
    TransaccionSinVuelta::terminarTodas(contexto);
    contexto.ui().msgBox(cancelled.what(), forms::MsgButtons::Ok, forms::MsgIcon::Information);
    return false;
  } catch (const std::exception&) {
    TransaccionSinVuelta::terminarTodas(contexto);
    contexto.fidaleon()->vererror(MODULO, objeto, procedimiento);
    return false;
  }
}

}  // namespace fidaleon
