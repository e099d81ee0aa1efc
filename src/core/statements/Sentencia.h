#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "core/contract/Sacramento.h"
#include "core/statements/Citas.h"

namespace fidaleon {

/// The fixed part of a statement that registers share, with places for what they differ in:
///
///   {Partidas}  the entry table   {IDPartida}  its key
///   {Libros}    the book table    {IDLibro}    its key
///   {Palabra}   the sacrament's word, for a table or column that only it has
///
/// Written with a small letter first, a place gives the same in small letters. One that is not in
/// this list does not compile. Values that people typed never stand in a template.
class PlantillaSql {
 public:
  // Converts by itself, so that a statement can be given as the text that it is.
  consteval PlantillaSql(const char* texto) : texto_(texto) { comprobar(texto_); }

  /// The text between braces stands for `miembro`, if it stands for anything.
  struct Lugar {
    std::string_view nombre;
    const char* Sacramento::*miembro;
  };
  static constexpr std::array LUGARES{
      Lugar{"Partidas", &Sacramento::tablaPartidas}, Lugar{"IDPartida", &Sacramento::clavePartida},
      Lugar{"Libros", &Sacramento::tablaLibros}, Lugar{"IDLibro", &Sacramento::claveLibro},
      Lugar{"Palabra", &Sacramento::palabra}};
  /// Where the place stands among them; their number when it does not. No pointer, since compilers
  /// that check pointers cannot compare them while they compile.
  static constexpr std::size_t lugar(std::string_view nombre);
  static constexpr bool valida(std::string_view texto);

  std::string_view texto() const { return texto_; }

 private:
  static constexpr void comprobar(std::string_view texto) {
    if (!valida(texto)) throw "unknown place in a statement";
  }
  std::string_view texto_;
};

constexpr std::size_t PlantillaSql::lugar(std::string_view nombre) {
  const auto minuscula = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
  std::size_t i = 0;
  for (; i < LUGARES.size(); ++i) {
    const std::string_view este = LUGARES[i].nombre;
    bool enMinusculas = nombre.size() == este.size();
    for (std::size_t j = 0; enMinusculas && j < nombre.size(); ++j)
      enMinusculas = nombre[j] == minuscula(este[j]);
    if (nombre == este || enMinusculas) break;
  }
  return i;
}

constexpr bool PlantillaSql::valida(std::string_view texto) {
  for (;;) {
    const std::size_t abre = texto.find_first_of("{}");
    if (abre == std::string_view::npos) return true;
    const std::size_t cierra = texto.find_first_of("{}", abre + 1);
    if (texto[abre] == '}' || cierra == std::string_view::npos || texto[cierra] == '{')
      return false;
    if (lugar(texto.substr(abre + 1, cierra - abre - 1)) == LUGARES.size()) return false;
    texto.remove_prefix(cierra + 1);
  }
}

/// The template with its places filled for one sacrament.
std::string sentencia(const Sacramento& sacramento, const PlantillaSql& plantilla);

}  // namespace fidaleon
