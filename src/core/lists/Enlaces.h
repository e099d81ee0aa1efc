#pragma once

#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

#include "core/lists/ParProvinciaPoblacion.h"
#include "forms/Contents.h"
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
  std::vector<Enlace<Registro, std::uint8_t, forms::TextBox>> bytes;
  std::vector<Enlace<Registro, std::string, forms::DateField>> fechas;
  std::vector<Enlace<Registro, std::string, forms::TimeField>> horas;
  std::vector<Enlace<Registro, std::int32_t, ParProvinciaPoblacion>> municipios;
  /// Lists whose line is stored as text.
  std::vector<Enlace<Registro, std::string, forms::ComboBox>> listas;

  /// Shows the record; a list that does not have the text shows none. `cero` is what a number of 0
  /// is shown as.
  void mostrar(const Registro& r, const char* cero = "") const {
    mostrarSi(r, cero, [](const auto&) { return true; });
    for (const auto& [campo, m] : bytes) campo->setText(r.*m == 0 ? cero : std::to_string(r.*m));
  }
  /// Shows what `llenar` puts into a record and leaves the other fields, and all bytes, as they
  /// are.
  template <class Llenar>
  void mostrarLoQue(Llenar&& llenar) const {
    Registro r;
    const std::string intacto(1, '\0');
    for (const auto& e : textos) r.*e.miembro = intacto;
    for (const auto& e : fechas) r.*e.miembro = intacto;
    for (const auto& e : horas) r.*e.miembro = intacto;
    for (const auto& e : listas) r.*e.miembro = intacto;
    for (const auto& e : numeros) r.*e.miembro = -1;
    for (const auto& e : municipios) r.*e.miembro = -1;
    llenar(r);
    mostrarSi(r, "", [&](const auto& valor) {
      if constexpr (std::is_same_v<decltype(valor), const std::string&>)
        return valor != intacto;
      else
        return valor != -1;
    });
  }

  /// The record as the fields show it.
  std::vector<forms::Field> campos(const Registro& r) const {
    std::vector<forms::Field> todos;
    const auto poner = [&](const forms::Control& campo, std::string texto, std::int64_t clave = 0) {
      todos.push_back({campo.name(), {}, std::move(texto), clave});
    };
    const auto dia = [](const std::string& guardada) {
      const auto fecha = text::parseStored(guardada);
      return fecha ? text::toShort(*fecha) : std::string();
    };
    for (const auto& [campo, m] : textos) poner(*campo, r.*m);
    for (const auto& [campo, m] : numeros) poner(*campo, r.*m == 0 ? "" : std::to_string(r.*m));
    for (const auto& [campo, m] : bytes) poner(*campo, r.*m == 0 ? "" : std::to_string(r.*m));
    for (const auto& [campo, m] : fechas) poner(*campo, dia(r.*m));
    for (const auto& [campo, m] : horas) poner(*campo, text::parseTime(r.*m).value_or(""));
    for (const auto& [par, m] : municipios) poner(par->poblacion(), {}, r.*m);
    for (const auto& [lista, m] : listas) poner(*lista, r.*m);
    return todos;
  }

 private:
  template <class Cual>
  void mostrarSi(const Registro& r, const char* cero, Cual&& cual) const {
    for (const auto& [campo, m] : textos)
      if (cual(r.*m)) campo->setText(r.*m);
    for (const auto& [campo, m] : numeros)
      if (cual(r.*m)) campo->setText(r.*m == 0 ? cero : std::to_string(r.*m));
    for (const auto& [campo, m] : fechas)
      if (cual(r.*m)) campo->setStored(r.*m);
    for (const auto& [campo, m] : horas)
      if (cual(r.*m)) campo->setStored(r.*m);
    for (const auto& [par, m] : municipios)
      if (cual(r.*m)) par->poner(r.*m);
    for (const auto& [lista, m] : listas) {
      if (!cual(r.*m)) continue;
      lista->setListIndex(-1);
      lista->selectText(r.*m);
    }
  }
};

}  // namespace fidaleon
