#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/lists/ParProvinciaPoblacion.h"
#include "forms/Controls.h"

namespace fidaleon {

/// A field of a dialog and the member of its record that it shows.
template <class Registro, class T, class Campo>
struct Enlace {
  Campo* campo;  // the dialog's
  T Registro::*miembro;
};

/// All such fields of a dialog, by what they hold.
template <class Registro>
struct Enlaces {
  std::vector<Enlace<Registro, std::string, forms::TextBox>> textos;
  std::vector<Enlace<Registro, std::int32_t, forms::TextBox>> numeros;
  std::vector<Enlace<Registro, std::string, forms::DateField>> fechas;
  std::vector<Enlace<Registro, std::string, forms::TimeField>> horas;
  std::vector<Enlace<Registro, std::int32_t, ParProvinciaPoblacion>> municipios;
  /// Lists whose line is stored as text.
  std::vector<Enlace<Registro, std::string, forms::ComboBox>> listas;

  /// Shows the record; a list that does not have the text shows none. `cero` is what a number of 0
  /// is shown as.
  void mostrar(const Registro& r, const char* cero = "") const {
    for (const auto& [campo, miembro] : textos) campo->setText(r.*miembro);
    for (const auto& [campo, miembro] : numeros)
      campo->setText(r.*miembro == 0 ? cero : std::to_string(r.*miembro));
    for (const auto& [campo, miembro] : fechas) campo->setStored(r.*miembro);
    for (const auto& [campo, miembro] : horas) campo->setStored(r.*miembro);
    for (const auto& [par, miembro] : municipios) par->poner(r.*miembro);
    for (const auto& [lista, miembro] : listas) {
      lista->setListIndex(-1);
      lista->selectText(r.*miembro);
    }
  }
};

}  // namespace fidaleon
