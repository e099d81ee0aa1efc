#pragma once

#include <string>
#include <utility>

#include "core/dialogs/Guard.h"
#include "forms/Form.h"

namespace fidaleon {

/// A dialog of the library: a form that knows what its procedures work with.
class Dialogo : public forms::Form {
 public:
  text::DateSense dateSense(const forms::DateField&) const override {
    const text::Date today = contexto_.entorno.clock.today();
    return {today, today.year};
  }

 protected:
  Dialogo(Contexto& contexto, std::string nombre)
      : Form(contexto.ui(), std::move(nombre)), contexto_(contexto) {}

  /// Runs one of its procedures; an error is reported under the name of the dialog and the
  /// procedure, and ends the procedure. True when it ran through.
  template <class Body>
  bool procedimiento(const char* nombre, Body&& body) const {
    return guarded(contexto_, name(), nombre, std::forward<Body>(body));
  }

  Contexto& contexto_;
};

}  // namespace fidaleon
