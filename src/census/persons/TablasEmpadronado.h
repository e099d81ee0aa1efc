#pragma once
// The tables of a census person as lists of columns, and the statements that come from them.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "census/persons/Persona.h"
#include "core/statements/Columnas.h"

namespace fidaleon {

/// A new person: the three columns of the collaborator's side are written empty.
const Tabla<Persona>& tablaPadronAlta();
/// A change: those three stay as they are.
const Tabla<Persona>& tablaPadronEdicion();

/// Tables with one row of a person, in the order in which they are read and written.
enum class Satelite { Nacimiento, Bautismo, Comunion, Confirmacion, Matrimonio, Defuncion };
inline constexpr std::array<Satelite, 6> SATELITES{Satelite::Nacimiento, Satelite::Bautismo,
                                                   Satelite::Comunion,   Satelite::Confirmacion,
                                                   Satelite::Matrimonio, Satelite::Defuncion};

std::string sqlLeerSatelite(Satelite satelite, std::int32_t codPadron);
void copiarSatelite(Satelite satelite, const store::Recordset& fila, Persona& persona);
/// The row of persona.CodPadron.
std::string sqlInsertarSatelite(Satelite satelite, const Persona& persona);
std::string sqlActualizarSatelite(Satelite satelite, const Persona& persona);
std::string sqlBorrarDe(const char* tabla, std::int32_t codPadron);
/// Everything of a person, in the order in which it goes.
std::vector<std::string> sqlBorrarPersona(std::int32_t id);

}  // namespace fidaleon
