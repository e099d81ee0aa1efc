#pragma once
// Invented baptisms in the shape that the program stores them, for the measurements.

#include <array>
#include <string>

#include "store/Connection.h"

namespace fidaleon::bench {

inline std::string pick(int n, int salt) {
  static constexpr std::array<const char*, 12> names = {
      "García", "Fernández", "Ñáñez", "López", "Martínez", "Sánchez",
      "Pérez",  "Gómez",     "Ruiz",  "Díaz",  "Muñoz",    "Álvarez"};
  return names[static_cast<std::size_t>(n * 7 + salt * 5) % names.size()];
}

/// The entry's statement as the store operations concatenate it.
inline std::string entryStatement(int n, int book, int folio, const std::string& number) {
  const std::string id = std::to_string(n);
  return "INSERT INTO bautismo (codpadres, codmadres, codmatrimonio, institucionsolicitud, "
         "fechabautismo, padrino, madrina, ministro, parroquia, codmunicipio, diocesis, "
         "notasmarginales, observaciones, codlibro, folio, numero, anulada, EdadPadrino, "
         "EdadMadrina, ParroquiaDomicilioPadrino, ParroquiaDomicilioMadrina, ProfesionPadrino, "
         "NaturalPadrino, EstatPadrino, ProfesionMadrina, NaturalMadrina, EstatMadrina "
         ",MinistroCargo) VALUES (" +
         id + "," + id + "," + id + ",0,\"20030504\",\"Antonio " + pick(n, 1) +
         " Romero\",\"Dolores " + pick(n, 2) +
         " Gil\",\"D. Manuel Ortega Prieto\",\"San Pedro Apóstol\",1,\"Alcalá de Henares\","
         "\"Contrajo matrimonio en la parroquia de Santa María el 4 de mayo de 2001\",\"---\"," +
         std::to_string(book) + "," + std::to_string(folio) + ",\"" + number +
         "\",0,\"34\",\"31\",\"San Pedro\",\"Santa María\",\"carpintero\",\"Alcalá\",\"casado\","
         "\"modista\",\"Alcalá\",\"casada\" ,\"Párroco\")";
}

/// All five rows of an entry, with keys `n`; a folio holds ten entries.
inline void insertBaptism(store::Connection& connection, int n, int book, int position) {
  const std::string id = std::to_string(n);
  connection.Execute(
      "INSERT INTO bautismo_padres (nombre, primerapellido, segundoapellido) "
      "VALUES (\"Juan\",\"" +
      pick(n, 3) + "\",\"" + pick(n, 4) + "\")");
  connection.Execute(
      "INSERT INTO bautismo_madres (nombre, primerapellido, segundoapellido) "
      "VALUES (\"Ana\",\"" +
      pick(n, 5) + "\",\"" + pick(n, 6) + "\")");
  connection.Execute(
      "INSERT INTO bautismo_matrimonio (parroquia,fechamatr) VALUES (\"San Pedro "
      "Apóstol\",\"19990501\")");
  connection.Execute(entryStatement(n, book, 1 + position / 10, std::to_string(1 + position)));
  connection.Execute(
      "INSERT INTO bautismo_hijo (codbautismo,nombre,primerapellido,"
      "segundoapellido,sexo,fechanac,horanac,direccionnac,codmunicipionac) VALUES "
      "(" +
      id + ",\"José\",\"" + pick(n, 3) + "\",\"" + pick(n, 5) +
      "\",\"Hombre\",\"20030501\",\"10:30\",\"---\",1)");
}

}  // namespace fidaleon::bench
