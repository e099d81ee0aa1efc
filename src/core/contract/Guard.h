#pragma once

#include <exception>
#include <string>

#include "core/contract/Contexto.h"

namespace fidaleon {

/// Runs a procedure; an error in it is reported with these labels and ends the procedure, not the
/// program. A user who stopped it is told so and no more. True when it ran through.
template <class Body>
bool guarded(const Contexto& contexto, const std::string& objeto, const std::string& procedimiento,
             Body&& body) {
  try {
    body();
    return true;
  } catch (const forms::Cancelled& cancelled) {
    contexto.ui().msgBox(cancelled.what(), forms::MsgButtons::Ok, forms::MsgIcon::Information);
    return false;
  } catch (const std::exception&) {
    contexto.fidaleon()->vererror(MODULO, objeto, procedimiento);
    return false;
  }
}

}  // namespace fidaleon
