#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/statements/Columnas.h"

namespace fidaleon {

/// A record as lines that a person can read and that can be read back: "NombreHijo: Ana". What is
/// blank, "---" or 0 has no line, nor have the keys by which rows of a record find each other.
class Apunte {
 public:
  void poner(const std::string& nombre, const std::string& valor);
  void poner(const std::string& nombre, std::int64_t valor) {
    if (valor != 0) poner(nombre, std::to_string(valor));
  }
  /// Empty when there is no such line.
  std::string valor(const std::string& nombre) const;
  std::int64_t numero(const std::string& nombre) const {
    return text::toInteger(valor(nombre)).value_or(0);
  }

  template <class Registro>
  void poner(const Tabla<Registro>& tabla, const Registro& r) {
    for (const Columna<Registro>& c : tabla.columnas)
      if (c.uso != Uso::Clave)
        std::visit([&](auto miembro) { poner(c.propiedad, r.*miembro); }, c.miembro);
  }
  /// Texts without a line become "---".
  template <class Registro>
  void leer(const Tabla<Registro>& tabla, Registro& r) const {
    for (const Columna<Registro>& c : tabla.columnas)
      if (c.uso != Uso::Clave)
        std::visit([&](auto miembro) { leer(c.propiedad, r.*miembro); }, c.miembro);
  }

  /// One line each, and an empty one behind them.
  std::string texto() const;
  static std::vector<Apunte> todos(const std::string& texto);

 private:
  void leer(const std::string& nombre, std::string& valor) const;
  template <class Numero>
  void leer(const std::string& nombre, Numero& valor) const {
    valor = static_cast<Numero>(numero(nombre));
  }

  std::vector<std::pair<std::string, std::string>> lineas_;
};

}  // namespace fidaleon
