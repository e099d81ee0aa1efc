#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace fidaleon {

/// What tells one register from another wherever they work alike: the names of its tables and
/// keys, in the spelling of the statements.
struct Sacramento {
  std::uint8_t byte;          // 0 baptism, 1 confirmation, 2 marriage, 3 death
  const char* palabra;        // as it stands in node, table and dialog names
  const char* tablaPartidas;  // entry table
  const char* clavePartida;   // its key
  const char* tablaLibros;    // book table
  const char* claveLibro;     // its key
};

inline constexpr std::array<Sacramento, 4> SACRAMENTOS{{
    {0, "Bautismo", "Bautismo", "IDBautismo", "Libro_Bautismo", "IDLibroBautismo"},
    {1, "Confirmacion", "Confirmacion", "IDConfirmacion", "Libro_Confirmacion",
     "IDLibroConfirmacion"},
    {2, "Matrimonio", "Matrimonio", "IDMatrimonio", "Libro_Matrimonio", "IDLibroMatrimonio"},
    {3, "Defuncion", "Defuncion", "IDDifunto", "Libro_Defuncion", "IDLibroDefuncion"},
}};

inline constexpr const Sacramento& BAUTISMO = SACRAMENTOS[0];
inline constexpr const Sacramento& CONFIRMACION = SACRAMENTOS[1];
inline constexpr const Sacramento& MATRIMONIO = SACRAMENTOS[2];
inline constexpr const Sacramento& DEFUNCION = SACRAMENTOS[3];

/// The sacrament of a node name: "Partidas", "Solicitudes" or "Libros" and the word. Null for any
/// other name.
inline const Sacramento* sacramentoDeNodo(std::string_view nodo, std::string_view prefijo) {
  if (!nodo.starts_with(prefijo)) return nullptr;
  for (const Sacramento& s : SACRAMENTOS)
    if (nodo.substr(prefijo.size()) == s.palabra) return &s;
  return nullptr;
}

}  // namespace fidaleon
