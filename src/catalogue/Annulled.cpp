#include "catalogue/Annulled.h"

#include <algorithm>

#include "core/statements/Citas.h"
#include "parish/Insert.h"

namespace fidaleon::app {
namespace {

QString joined(const QStringList& parts) {
  return parts.join(QChar(0x1f));
}

QString field(const store::Recordset& entry, const char* name) {
  return QString::fromStdString(entry.text(name)).trimmed();
}

QString printed(const paper::Row& row, const char* column) {
  return row.value(QString::fromLatin1(column)).trimmed();
}

}  // namespace

QString annulledMark(bool catalan) {
  return catalan ? QStringLiteral("ANUL·LADA") : QStringLiteral("ANULADA");
}

Annulled::Annulled(store::Connection& parish, std::int32_t book, QString word)
    : allBooks_(book == 0), word_(std::move(word)) {
  std::string sql =
      "SELECT Institucion.InstitucionNombre, Libro_Bautismo.Nombre AS Libro, Bautismo.CodLibro, "
      "Bautismo.Folio, Bautismo.Numero, Bautismo_Hijo.Nombre, Bautismo_Hijo.PrimerApellido, "
      "Bautismo_Hijo.SegundoApellido FROM Bautismo, Bautismo_Hijo, Libro_Bautismo, Institucion "
      "WHERE Bautismo.Anulada=true AND Bautismo_Hijo.CodBautismo=Bautismo.IDBautismo AND "
      "Libro_Bautismo.IDLibroBautismo=Bautismo.CodLibro AND "
      "Institucion.IDInstitucion=Libro_Bautismo.CodInstitucion";
  if (book != 0) sql += " AND Bautismo.CodLibro=" + std::to_string(book);
  for (auto set = parish.Execute(sql); !set.EOF_(); set.MoveNext()) {
    QStringList at{field(set, "Folio"), field(set, "Numero")};
    if (allBooks_) at << field(set, "InstitucionNombre") << field(set, "Libro");
    Place& place = places_[joined(at)];
    place.shared = place.shared || isShared(parish, set);
    place.children.push_back(joined(
        {field(set, "Nombre"), field(set, "PrimerApellido"), field(set, "SegundoApellido")}));
  }
}

bool Annulled::isShared(store::Connection& parish, const store::Recordset& entry) const {
  return !parish
              .Execute("SELECT IDBautismo FROM Bautismo WHERE Anulada=false AND CodLibro=" +
                       entry.text("CodLibro") + " AND Folio=" + entry.text("Folio") +
                       " AND Numero=" + entreComillas(entry.text("Numero")))
              .EOF_();
}

QString Annulled::mark(const paper::Row& row) const {
  QStringList at{printed(row, "Folio"), printed(row, "Numero")};
  if (allBooks_) at << printed(row, "InstitucionNombre") << printed(row, "Libro");
  const auto found = places_.find(joined(at));
  if (found == places_.end()) return {};
  const Place& place = found->second;
  if (!place.shared) return word_;
  const QString child = joined({printed(row, "NombreHijo"), printed(row, "PrimerApellidoHijo"),
                                printed(row, "SegundoApellidoHijo")});
  const bool isOne =
      std::find(place.children.begin(), place.children.end(), child) != place.children.end();
  return isOne ? word_ : QString();
}

}  // namespace fidaleon::app
