#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace fidaleon {

/// Something about one row of the older program that somebody should look at.
struct IncidenciaInpar {
  std::int64_t registro = 0;  // in the file, from 1; 0: the table as a whole
  std::string que;            // in Spanish, a sentence
  bool rechazada = false;     // the entry is not there, or not whole
};

/// What came of one register.
struct RegistroImportado {
  std::string titulo;  // "Defunción"
  std::string tabla;   // "BAUT"
  std::int64_t libros = 0;
  std::int64_t enTabla = 0;      // rows of the older program that are not deleted
  std::int64_t leidas = 0;       // those of the books that were begun
  std::int64_t escritas = 0;     // entries written whole
  std::int64_t encontradas = 0;  // entries counted afterwards in the books that were made
  std::int64_t rechazadas = 0;
  std::int64_t borradas = 0;    // rows that were deleted there
  std::int64_t siglos = 0;      // dates whose century has changed
  std::int64_t cortados = 0;    // values that were longer than their column
  std::int64_t sinSeparar = 0;  // full names with words that found no place
  std::string fallo;            // why the register, or the rest of it, was not read
  std::vector<IncidenciaInpar> incidencias;
  std::int64_t masIncidencias = 0;  // those beyond MAX_INCIDENCIAS

  static constexpr std::size_t MAX_INCIDENCIAS = 20000;
  void anotar(IncidenciaInpar incidencia);
};

/// What came of an import. Registers that were not asked for are not in it.
struct ResultadoImportacion {
  std::vector<RegistroImportado> registros;
  bool ensayo = false;     // nothing was written
  bool cancelada = false;  // the books that were made until then are whole

  /// Everything that was read is there, whole.
  bool completa() const;
  /// The report, in lines that can be printed and kept.
  std::string texto() const;
};

}  // namespace fidaleon
