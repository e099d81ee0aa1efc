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

/// The name of a column without the blanks that some statements write behind it.
inline std::string_view sinBlancos(std::string_view nombre) {
  return nombre.substr(0, nombre.find_last_not_of(' ') + 1);
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
/// Room for the statement of most rows.
constexpr std::size_t SENTENCIA_CORRIENTE = 1024;
}  // namespace columnas_detalle

/// The value of a column as it is.
template <class Registro>
std::string valorTexto(const Registro& r, const Columna<Registro>& c) {
  return std::visit([&](auto miembro) { return columnas_detalle::texto(r.*miembro); }, c.miembro);
}

/// Appends the value of a column, as it stands in a statement.
template <class Registro>
void ponerSQL(std::string& sql, const Registro& r, const Columna<Registro>& c) {
  const bool citado = c.cita == Cita::Texto || c.cita == Cita::TextoSimple;
  const char comilla = c.cita == Cita::Texto ? '"' : '\'';
  if (const auto* texto = std::get_if<std::string Registro::*>(&c.miembro); texto && citado)
    return citarEn(sql, r.**texto, comilla);
  if (citado) return citarEn(sql, valorTexto(r, c), comilla);
  const std::string numero =
      std::visit([&](auto miembro) { return columnas_detalle::numero(r.*miembro); }, c.miembro);
  if (c.cita == Cita::Byte && text::toInteger(numero).value_or(0) > 255)
    throw std::overflow_error(std::string(c.propiedad) + ": " + numero + " pasa de 255");
  sql += numero;
}

template <class Registro>
std::string valorSQL(const Registro& r, const Columna<Registro>& c) {
  std::string valor;
  ponerSQL(valor, r, c);
  return valor;
}

/// "INSERT INTO t (a, b) VALUES (1, "x")".
template <class Registro>
std::string sqlInsertar(const Tabla<Registro>& t, const Registro& r) {
  std::string sql;
  sql.reserve(columnas_detalle::SENTENCIA_CORRIENTE);
  sql.append("INSERT INTO ").append(t.nombre);
  const char* separador = " (";
  for (const Columna<Registro>& c : t.columnas) {
    sql.append(separador).append(c.nombre);
    separador = sql.back() == ' ' ? "," : t.separador;
  }
  separador = ") VALUES (";
  for (const Columna<Registro>& c : t.columnas) {
    sql += separador;
    ponerSQL(sql, r, c);
    separador = ", ";
  }
  return sql += ')';
}

/// "UPDATE t SET a=1, b="x"" without a condition.
template <class Registro>
std::string sqlActualizar(const Tabla<Registro>& t, const Registro& r) {
  std::string sql;
  sql.reserve(columnas_detalle::SENTENCIA_CORRIENTE);
  sql.append("UPDATE ").append(t.nombre).append(" SET ");
  const char* separador = "";
  for (const Columna<Registro>& c : t.columnas) {
    if (c.uso != Uso::Siempre) continue;
    sql.append(separador).append(sinBlancos(c.nombre)).append(t.asignar);
    ponerSQL(sql, r, c);
    separador = ", ";
  }
  return sql;
}

/// Reads the column at `lugar` of the current row into the record.
template <class Registro>
void copiarCelda(const Columna<Registro>& c, const store::Recordset& fila, int lugar, Registro& r) {
  if (const auto* texto = std::get_if<std::string Registro::*>(&c.miembro))
    r.** texto = fila.text(lugar);
  else
    std::visit([&](auto m) { columnas_detalle::asignar(r.*m, store::Value(fila.integer(lugar))); },
               c.miembro);
}

/// Copies the current row into the record, by column name or, with `porPropiedad`, by alias.
template <class Registro>
void copiarFila(const Tabla<Registro>& t, const store::Recordset& fila, Registro& r,
                bool porPropiedad = false) {
  for (const Columna<Registro>& c : t.columnas) {
    const std::string_view nombre = porPropiedad ? c.propiedad : sinBlancos(c.nombre);
    copiarCelda(c, fila, fila.position(nombre), r);
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
    for (std::size_t i = 0; i < lugares_.size(); ++i)
      copiarCelda(columnas_[i], filas_, lugares_[i], r);
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
