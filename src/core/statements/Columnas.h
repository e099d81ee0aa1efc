#pragma once
// A database table as one list of its columns: name, member of the record, quoting. Statements and
// copies of a record come from that list.

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/contract/FDAPI.h"
#include "core/statements/Citas.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

/// How a value stands in a statement.
enum class Cita {
  Texto,        // "x"
  TextoSimple,  // 'x'
  Numero,       // 1
  Byte,         // 1; above 255 an error, std::overflow_error
};

/// Which statements name a column.
enum class Uso {
  Siempre,
  SoloAlta,  // an INSERT alone
  Clave,     // an INSERT alone: the key of the row that this one is a part of
};

template <class Registro>
struct Columna {
  using Miembro = std::variant<std::string Registro::*, std::int32_t Registro::*, bool Registro::*,
                               std::uint8_t Registro::*>;
  const char* nombre;     // as the statements spell it
  const char* propiedad;  // the member's name, alias of the column where all are read at once
  Miembro miembro;
  Cita cita;
  Uso uso = Uso::Siempre;
};

template <class Registro>
struct Tabla {
  const char* nombre;
  const char* separador;  // between columns
  const char* asignar;    // between column and value of an UPDATE
  std::span<const Columna<Registro>> columnas;
};

/// A text as a number; what is none ("---", empty) is 0. Digits too many for a number are left to
/// the store to refuse.
inline std::string comoNumero(std::string_view s) {
  const std::string t = text::trim(s);
  return !t.empty() && t.find_first_not_of("0123456789") == std::string::npos ? t : "0";
}

namespace columnas_detalle {
inline std::string texto(const std::string& v) {
  return v;
}
inline std::string texto(std::int32_t v) {
  return std::to_string(v);
}
inline std::string texto(std::uint8_t v) {
  return std::to_string(v);
}
inline std::string texto(bool v) {
  return v ? "True" : "False";
}
inline std::string numero(const std::string& v) {
  return comoNumero(v);
}
inline std::string numero(bool v) {
  return v ? "1" : "0";
}
template <class T>
std::string numero(const T& v) {
  return texto(v);
}
inline void asignar(std::string& a, const store::Value& v) {
  a = v.text();
}
inline void asignar(std::int32_t& a, const store::Value& v) {
  a = static_cast<std::int32_t>(v.integer());
}
inline void asignar(std::uint8_t& a, const store::Value& v) {
  a = static_cast<std::uint8_t>(v.integer());
}
inline void asignar(bool& a, const store::Value& v) {
  a = v.flag();
}
}  // namespace columnas_detalle

/// The value of a column as it is.
template <class Registro>
std::string valorTexto(const Registro& r, const Columna<Registro>& c) {
  return std::visit([&](auto miembro) { return columnas_detalle::texto(r.*miembro); }, c.miembro);
}

/// The value of a column, as it stands in a statement.
template <class Registro>
std::string valorSQL(const Registro& r, const Columna<Registro>& c) {
  if (c.cita == Cita::Texto) return entreComillas(valorTexto(r, c));
  if (c.cita == Cita::TextoSimple) return entreApostrofos(valorTexto(r, c));
  const std::string numero =
      std::visit([&](auto miembro) { return columnas_detalle::numero(r.*miembro); }, c.miembro);
  if (c.cita == Cita::Byte && text::toInteger(numero).value_or(0) > 255)
    throw std::overflow_error(std::string(c.propiedad) + ": " + numero + " pasa de 255");
  return numero;
}

/// "INSERT INTO t (a, b) VALUES (1, "x")".
template <class Registro>
std::string sqlInsertar(const Tabla<Registro>& t, const Registro& r) {
  std::string nombres, valores;
  for (const Columna<Registro>& c : t.columnas) {
    const char* separador = nombres.ends_with(' ') ? "," : t.separador;
    nombres += (nombres.empty() ? "" : separador) + std::string(c.nombre);
    valores += (valores.empty() ? "" : ", ") + valorSQL(r, c);
  }
  return std::string("INSERT INTO ") + t.nombre + " (" + nombres + ") VALUES (" + valores + ")";
}

/// "UPDATE t SET a=1, b="x"" without a condition.
template <class Registro>
std::string sqlActualizar(const Tabla<Registro>& t, const Registro& r) {
  std::string pares;
  for (const Columna<Registro>& c : t.columnas)
    if (c.uso == Uso::Siempre)
      pares += (pares.empty() ? "" : ", ") + text::trim(c.nombre) + t.asignar + valorSQL(r, c);
  return std::string("UPDATE ") + t.nombre + " SET " + pares;
}

/// Copies the current row into the record, by column name or, with `porPropiedad`, by alias.
template <class Registro>
void copiarFila(const Tabla<Registro>& t, const store::Recordset& fila, Registro& r,
                bool porPropiedad = false) {
  for (const Columna<Registro>& c : t.columnas) {
    const store::Value v = fila.value(porPropiedad ? c.propiedad : text::trim(c.nombre));
    std::visit([&](auto miembro) { columnas_detalle::asignar(r.*miembro, v); }, c.miembro);
  }
}

/// Copies the rows of one record set; where the columns stand in it is looked up once.
template <class Registro>
class CopiaDeFilas {
 public:
  /// `filas` must outlive the copy. By column name; throws when one is not there.
  CopiaDeFilas(const Tabla<Registro>& t, const store::Recordset& filas)
      : columnas_(t.columnas), filas_(filas) {
    for (const Columna<Registro>& c : columnas_) lugares_.push_back(lugar(c.nombre));
  }
  void a(Registro& r) const {
    for (std::size_t i = 0; i < lugares_.size(); ++i) {
      const store::Field campo = filas_.Fields(lugares_[i]);
      std::visit([&](auto m) { columnas_detalle::asignar(r.*m, campo.Value()); },
                 columnas_[i].miembro);
    }
  }
  /// Where the columns stand in the rows.
  const std::vector<int>& lugares() const { return lugares_; }

 private:
  int lugar(std::string_view nombre) const {
    for (int i = 0; i < filas_.FieldCount(); ++i)
      if (text::equalsNoCase(filas_.FieldName(i), nombre)) return i;
    throw std::out_of_range("Falta la columna " + std::string(nombre));
  }

  std::span<const Columna<Registro>> columnas_;
  const store::Recordset& filas_;
  std::vector<int> lugares_;
};

/// "T.a as A, T.b as B" of all columns, for a SELECT over several tables.
template <class Registro>
std::string sqlAlias(const Tabla<Registro>& t, const std::string& tabla) {
  std::string lista;
  for (const Columna<Registro>& c : t.columnas) {
    const std::string nombre = text::trim(c.nombre);
    lista += (lista.empty() ? "" : ", ") + tabla + "." + nombre;
    if (!text::equalsNoCase(nombre, c.propiedad)) lista += std::string(" as ") + c.propiedad;
  }
  return lista;
}

/// Both records would write the same row; blank and "---" count as the same.
template <class Registro>
bool mismaFila(const Tabla<Registro>& t, const Registro& a, const Registro& b) {
  const auto valor = [](std::string v) { return v == "\"\"" ? std::string("\"---\"") : v; };
  for (const Columna<Registro>& c : t.columnas)
    if (valor(valorSQL(a, c)) != valor(valorSQL(b, c))) return false;
  return true;
}

}  // namespace fidaleon
