#pragma once

#include <array>
#include <span>

namespace fidaleon {

/// A heading and the number of the question before which it stands.
struct ApartadoExamen {
  const char* titulo;
  int desde;
};

/// One page of the sworn examinations: who is asked, and what.
struct PaginaExamen {
  const char* nombre;  // in the names of its fields
  const char* titulo;  // on its tab
  /// Cod_Tipo_Persona of the row that keeps the answers, and the column of the first of them.
  int tipoPersona;
  int primeraColumna;
  std::span<const char* const> preguntas;
  std::span<const ApartadoExamen> apartados;  // the first one stands before the first question
};

inline constexpr std::size_t PAGINAS_EXAMEN = 5;
/// As they are shown. The general data stand on the groom's row, behind his answers.
extern const std::array<PaginaExamen, PAGINAS_EXAMEN> PAGINAS_DE_EXAMEN;
enum PaginaDeExamen {
  EXAMEN_GENERAL,
  EXAMEN_NOVIO,
  EXAMEN_NOVIA,
  EXAMEN_TESTIGO1,
  EXAMEN_TESTIGO2
};

}  // namespace fidaleon
