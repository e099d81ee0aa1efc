#pragma once
// Invented baptisms in the shape that the program stores them, for the measurements.

#include <array>
#include <string>

#include "registers/baptism/AlmacenBautismo.h"
#include "registers/baptism/TablasBautismo.h"

namespace fidaleon::bench {

inline std::string pick(int n, int salt) {
  static constexpr std::array<const char*, 12> names = {
      "García", "Fernández", "Ñáñez", "López", "Martínez", "Sánchez",
      "Pérez",  "Gómez",     "Ruiz",  "Díaz",  "Muñoz",    "Álvarez"};
  return names[static_cast<std::size_t>(n * 7 + salt * 5) % names.size()];
}

/// Keys of the parents' rows are `n`.
inline cBautismo baptism(int n, int book, int folio, const std::string& number) {
  cBautismo b;
  b.CodPadres = b.CodMadres = b.CodMatrimonio = b.CodBautismo = n;
  b.CodLibroBautismo = book;
  b.FolioBautismo = std::to_string(folio);
  b.NumeroBautismo = number;
  b.FechaBautismo = "20030504";
  b.PadrinoBautismo = "Antonio " + pick(n, 1) + " Romero";
  b.MadrinaBautismo = "Dolores " + pick(n, 2) + " Gil";
  b.MinistroBautismo = "D. Manuel Ortega Prieto";
  b.MinistroCargo = "Párroco";
  b.ParroquiaBautismo = b.ParroquiaMatrimonio = "San Pedro Apóstol";
  b.CodPoblacionBautismo = b.CodPoblacionNacHijo = 1;
  b.DiocesisBautismo = "Alcalá de Henares";
  b.NotasMarginalesBautismo =
      "Contrajo matrimonio en la parroquia de Santa María el 4 de mayo de 2001";
  b.EdadPadrino = "34";
  b.EdadMadrina = "31";
  b.ParroquiaDomicilioPadrino = "San Pedro";
  b.ParroquiaDomicilioMadrina = "Santa María";
  b.ProfesionPadrino = "carpintero";
  b.ProfesionMadrina = "modista";
  b.NaturalPadrino = b.NaturalMadrina = "Alcalá";
  b.EstatPadrino = "casado";
  b.EstatMadrina = "casada";
  b.NombrePadres = "Juan";
  b.PrimerApellidoPadres = b.PrimerApellidoHijo = pick(n, 3);
  b.SegundoApellidoPadres = pick(n, 4);
  b.NombreMadres = "Ana";
  b.PrimerApellidoMadres = b.SegundoApellidoHijo = pick(n, 5);
  b.SegundoApellidoMadres = pick(n, 6);
  b.FechaMatrMatrimonio = "19990501";
  b.NombreHijo = "José";
  b.SexoHijo = "Hombre";
  b.FechaNacHijo = "20030501";
  b.HoraNacHijo = "10:30";
  rellenarGuiones(ALMACEN_BAUTISMO, b);
  return b;
}

/// The entry's statement as the store operations concatenate it.
inline std::string entryStatement(int n, int book, int folio, const std::string& number) {
  return sqlInsertar(TABLA_BAUTISMO, baptism(n, book, folio, number));
}

/// All five rows of an entry, the next of the register; a folio holds ten entries.
inline void insertBaptism(store::Connection& connection, int n, int book, int position) {
  cBautismo b = baptism(n, book, 1 + position / 10, std::to_string(1 + position));
  insertarPartida(connection, ALMACEN_BAUTISMO, b);
}

}  // namespace fidaleon::bench
