#include "printing/Annulled.h"

#include <algorithm>

#include "core/statements/Sentencia.h"
#include "registers/common/FormaPartida.h"

namespace fidaleon::app {
namespace {

QString joined(const QStringList& parts) {
  return parts.join(QChar(0x1f));
}

QString field(const store::Recordset& entry, const char* name) {
  return QString::fromStdString(entry.text(name)).trimmed();
}

QString printed(const paper::Row& row, const QString& column) {
  return row.value(column).trimmed();
}

std::string annulledEntries(const Sacramento& s, std::int32_t book) {
  const FormaPartida& form = *formaPartida(s);
  const std::string person = form.personas.front();
  std::string tables, join;
  for (const FilaDePartida& row : form.filas) {
    if (!row.nombre || row.tabla != person) continue;
    tables = ", " + person;
    join = " AND " + person + "." + row.clave + sentencia(s, "={Partidas}.") + row.enlace;
  }
  std::string sql =
      sentencia(s,
                "SELECT Institucion.InstitucionNombre, {Libros}.Nombre AS Libro, "
                "{Partidas}.CodLibro, {Partidas}.Folio, {Partidas}.Numero, ") +
      person + ".Nombre, " + person + ".PrimerApellido, " + person + ".SegundoApellido" +
      sentencia(s, " FROM {Partidas}, {Libros}, Institucion") + tables +
      sentencia(s,
                " WHERE {Partidas}.Anulada=true AND {Libros}.{IDLibro}={Partidas}.CodLibro "
                "AND Institucion.IDInstitucion={Libros}.CodInstitucion") +
      join;
  if (book != 0) sql += sentencia(s, " AND {Partidas}.CodLibro=") + std::to_string(book);
  return sql;
}

/// A valid entry stands on the same place.
bool isShared(store::Connection& parish, const Sacramento& s, const store::Recordset& entry) {
  return !parish
              .Execute(sentencia(s,
                                 "SELECT {IDPartida} FROM {Partidas} WHERE Anulada=false AND "
                                 "CodLibro=") +
                       entry.text("CodLibro") + " AND Folio=" + entry.text("Folio") +
                       " AND Numero=" + entreComillas(entry.text("Numero")))
              .EOF_();
}

QStringList personColumns(const PersonaDocumento& person) {
  QStringList columns;
  for (const char* own : {person.nombre, person.primerApellido, person.segundoApellido})
    columns << QString::fromLatin1(own);
  return columns;
}

}  // namespace

bool isAnnulled(store::Connection& parish, const Sacramento& sacrament, std::int32_t entry) {
  const auto rows =
      parish.Execute(sentencia(sacrament, "SELECT Anulada FROM {Partidas} WHERE {IDPartida}=") +
                     std::to_string(entry));
  return !rows.EOF_() && rows.flag("Anulada");
}

QString annulledMark(bool catalan) {
  return catalan ? QStringLiteral("ANUL·LADA") : QStringLiteral("ANULADA");
}

Annulled::Annulled(store::Connection& parish, const Sacramento& sacrament, std::int32_t book,
                   QString word)
    : columns_(*filasDocumento(sacrament)), allBooks_(book == 0), word_(std::move(word)) {
  for (auto set = parish.Execute(annulledEntries(sacrament, book)); !set.EOF_(); set.MoveNext()) {
    QStringList at{field(set, "Folio"), field(set, "Numero")};
    if (allBooks_) at << field(set, "InstitucionNombre") << field(set, "Libro");
    Place& place = places_[joined(at)];
    place.shared = place.shared || isShared(parish, sacrament, set);
    place.persons.push_back(joined(
        {field(set, "Nombre"), field(set, "PrimerApellido"), field(set, "SegundoApellido")}));
  }
}

QStringList Annulled::columns() const {
  return QStringList{"InstitucionNombre"} + personColumns(columns_.persona);
}

QString Annulled::mark(const paper::Row& row) const {
  QStringList at{printed(row, "Folio"), printed(row, "Numero")};
  if (allBooks_) at << printed(row, "InstitucionNombre") << printed(row, "Libro");
  const auto found = places_.find(joined(at));
  if (found == places_.end()) return {};
  const Place& place = found->second;
  if (!place.shared) return word_;
  QStringList name;
  for (const QString& column : personColumns(columns_.persona)) name << printed(row, column);
  const QString person = joined(name);
  const bool isOne =
      std::find(place.persons.begin(), place.persons.end(), person) != place.persons.end();
  return isOne ? word_ : QString();
}

}  // namespace fidaleon::app
