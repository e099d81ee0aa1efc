#pragma once
// Registers of any size and any sacrament, filled by statements of the engine, and one entry more.

#include <string>

#include "registers/books/LibroNuevo.h"
#include "registers/common/Almacen.h"
#include "registers/entry/DatosPartida.h"
#include "store/Engine.h"
#include "store/Spelling.h"
#include "store/schema/Schema.h"

namespace fidaleon::bench {

/// `entries` of a register in books of at most `perBook`, one on a folio, the books in turn of as
/// many parishes. Keys count from 1.
class FilledRegister {
 public:
  FilledRegister(store::Connection& connection, const FormaPartida& form, int entries, int perBook,
                 int parishes = 1)
      : connection_(connection), form_(form), perBook_(std::to_string(perBook)) {
    const int books = 1 + (entries - 1) / perBook;
    store::Transaction together(connection);
    for (int b = 1; b <= books; ++b)
      insertarLibro(connection, form.sacramento,
                    {1 + (b - 1) % parishes, 3, 4, "L" + std::to_string(b),
                     std::to_string(19000101 + b), true});
    connection.Execute(sentencia(form.sacramento,
                                 "UPDATE {Libros} SET Cerrado=true WHERE "
                                 "{IDLibro}<") +
                       std::to_string(books));
    for (const FilaDePartida& row : form.filas) fill(*connection.schema().find(row.tabla), entries);
    together.commit();
  }

 private:
  void fill(const store::Table& table, int rows) {
    std::string names, values;
    const store::Spelling& spell = connection_.engine().spelling();
    for (const store::Column& c : table.columns()) {
      if (c.type == store::Type::Counter) continue;
      names += (names.empty() ? "" : ", ") + spell.name(c.name);
      values += (values.empty() ? "" : ", ") + valueOf(c);
    }
    connection_.engine().run(
        "WITH RECURSIVE c(n) AS (SELECT CAST(1 AS BIGINT) UNION ALL SELECT n + 1 FROM c WHERE "
        "n < " +
        std::to_string(rows) + ") INSERT INTO " + spell.name(table.name()) + " (" + names +
        ") SELECT " + values + " FROM c");
  }

  std::string valueOf(const store::Column& c) const {
    const std::string place = "(n - 1) % " + perBook_;
    if (c.name == "CodLibro") return "1 + (n - 1) / " + perBook_;
    if (c.name == "Folio") return "1 + " + place;
    if (c.name == "Numero") return "CAST(1 + " + place + " AS TEXT)";
    if (c.name.starts_with("Fecha")) return "CAST(19000101 + n * 7919 % 1200000 AS TEXT)";
    if (c.name.find("Apellido") != std::string::npos)
      return letter("n * 7") + " || 'a' || lower(" + letter("n * 11") + ") || 'ez'";
    for (const FilaDePartida& row : form_.filas)
      if (c.name == row.enlace || c.name == row.clave) return "n";
    return store::isText(c.type) ? "'---'" : "0";
  }

  static std::string letter(const std::string& number) {
    return "substr('ABCDEFGHIJKLMNOPQRSTUVWXYZ', 1 + CAST(" + number + " % 26 AS INTEGER), 1)";
  }

  store::Connection& connection_;
  const FormaPartida& form_;
  std::string perBook_;
};

/// An entry of its sacrament, to be stored; what is not known is dashes.
template <class Record>
Record newEntry(const DescripcionAlmacen<Record>& store, const std::string& name,
                const std::string& surname, const DatosPartida& place) {
  Record r;
  ponerDatos(r, place);
  const auto listed = store.lista.columnas;  // key, place, names, day, mark
  for (std::size_t i = 3; i < listed.size() - 1; ++i)
    r.*std::get<std::string Record::*>(listed[i].miembro) = i == listed.size() - 2 ? "20261122"
                                                            : i % 3 == 0           ? name
                                                                                   : surname;
  rellenarGuiones(store, r);
  ponerOperacion(r, FDAPI::cCOperacion::ANADIR);
  return r;
}

}  // namespace fidaleon::bench
