#pragma once
// Books, entries and requests of any register as they stand in the tables, put there without a
// dialog or the store.

#include <utility>

#include "core/statements/Sentencia.h"
#include "support/Fields.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

inline std::string quoted(const std::string& text) {
  return entreComillas(text);
}

/// The highest key of the table behind the new row, or nothing for a table without `key`.
inline std::int32_t insertRow(TestWorld& w, const std::string& table, const Values& values,
                              const std::string& key = {}) {
  std::string names, all;
  for (const auto& [name, value] : values) {
    names += (names.empty() ? "" : ", ") + name;
    all += (all.empty() ? "" : ", ") + value;
  }
  w.con().Execute("INSERT INTO " + table + " (" + names + ") VALUES (" + all + ")");
  return key.empty() ? 0 : std::stoi(w.value("SELECT MAX(" + key + ") AS ID FROM " + table));
}

struct BookRow {
  std::string name = "Libro 1";
  bool isNew = true;
  int format = 3;
  bool closed = false;
  std::string created = "19900101";
};

inline std::int32_t insertBook(TestWorld& w, const Sacramento& s, std::int32_t institution,
                               const BookRow& b = {}) {
  return insertRow(w, s.tablaLibros,
                   {{"CodInstitucion", std::to_string(institution)},
                    {"CodFormato", std::to_string(b.format)},
                    {"CodTipoNombre", "4"},
                    {"Nombre", quoted(b.name)},
                    {"FechaCreacion", quoted(b.created)},
                    {"Nuevo", b.isNew ? "1" : "0"},
                    {"Cerrado", b.closed ? "1" : "0"},
                    {"NumeroSiguiente", "1"},
                    {"FolioSiguiente", "1"}},
                   s.claveLibro);
}

/// An entry of a book, or a request of an institution when `book` is 0. `more` are columns of the
/// entry's own row.
struct EntryRow {
  std::string name;
  std::int32_t book = 0;
  int folio = 0;
  std::string number = "---";
  std::int32_t institution = 0;
  Values more = {};
  std::string surname = "García";
  std::string day = "";  // of the sacrament
};

/// The groom, and Rosa of the same surnames.
inline std::int32_t insertMarriage(TestWorld& w, Values groom, Values entry, Values day) {
  groom.push_back({"Edad", quoted("0")});
  Values bride = groom;
  bride[0].second = quoted("Rosa");
  groom.push_back({"DNI", quoted("12345678-Z")});
  groom.push_back({"FechaNac", quoted("19990501")});
  for (const auto& [spouse, values] : {std::pair{"Novios", &groom}, {"Novias", &bride}}) {
    const std::string table = std::string("Matrimonio_") + spouse;
    const std::string key =
        std::to_string(insertRow(w, table, *values, std::string("ID") + spouse));
    entry.push_back({std::string("Cod") + spouse, key});
    for (const char* of : {"_RegCivil", "_Bautismo"})
      insertRow(w, table + of, {{std::string("Cod") + spouse, key}});
  }
  const std::int32_t id = insertRow(w, "Matrimonio", entry, "IDMatrimonio");
  insertRow(w, "Matrimonio_Expediente", {{"CodMatrimonio", std::to_string(id)}});
  day.push_back({"CodMatrimonio", std::to_string(id)});
  insertRow(w, "Matrimonio_Compromiso", day);
  return id;
}

/// Pérez by the second surname, with every row that an entry of the register has.
inline std::int32_t insertEntry(TestWorld& w, const Sacramento& s, const EntryRow& e) {
  const Values person{{"Nombre", quoted(e.name)},
                      {"PrimerApellido", quoted(e.surname)},
                      {"SegundoApellido", quoted("Pérez")}};
  Values day;
  if (!e.day.empty()) day.push_back({std::string("Fecha") + s.palabra, quoted(e.day)});
  Values entry{{"CodLibro", std::to_string(e.book)},
               {"Folio", std::to_string(e.folio)},
               {"Numero", quoted(e.number)},
               {"InstitucionSolicitud", std::to_string(e.institution)}};
  entry.insert(entry.end(), e.more.begin(), e.more.end());
  if (&s == &MATRIMONIO) return insertMarriage(w, person, std::move(entry), day);
  if (&s != &BAUTISMO) {
    entry.insert(entry.end(), person.begin(), person.end());
    const std::int32_t id = insertRow(w, s.tablaPartidas, entry, s.clavePartida);
    const bool death = &s == &DEFUNCION;
    day.push_back({death ? "CodDifunto" : "CodConfirmacion", std::to_string(id)});
    insertRow(w, death ? "Defuncion_Datos" : "Confirmacion_Datos", day);
    if (!death) insertRow(w, "Confirmacion_Bautismo", {day.back()});
    return id;
  }
  insert(w.con(), "Bautismo_Padres", "Nombre=Juan; PrimerApellido=García; Abuelo=---");
  insert(w.con(), "Bautismo_Madres", "Nombre=Ana; PrimerApellido=García; Abuelo=---");
  insert(w.con(), "Bautismo_Matrimonio",
         "Parroquia=San Juan; FechaMatr=19980606; DireccionPadres=Calle del Pez, 3");
  for (const char* own : {"Padres", "Madres", "Matrimonio"})
    entry.push_back({std::string("Cod") + own,
                     w.value(std::string("SELECT MAX(ID") + own + ") AS ID FROM Bautismo_" + own)});
  entry.insert(entry.end(), day.begin(), day.end());
  const std::int32_t id = insertRow(w, s.tablaPartidas, entry, s.clavePartida);
  Values child = person;
  child.push_back({"CodBautismo", std::to_string(id)});
  child.push_back({"FechaNac", quoted("19990501")});
  insertRow(w, "Bautismo_Hijo", child);
  return id;
}

}  // namespace fidaleon::tests
