#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "census/persons/Persona.h"
#include "core/statements/Columnas.h"

namespace fidaleon {

// What a collaborator has of the tables of a person, columns in the order of their statements. The
// rows of ALTA also name what a new row needs beside: the key of the person, and of Padron the
// texts that only the census fills. Read them by property: one column cannot be read by the name
// that statements give it.
extern const Tabla<Persona> ALTA_COLABORADOR;
extern const Tabla<Persona> ALTA_COLABORADOR_NACIMIENTO;
extern const Tabla<Persona> ALTA_COLABORADOR_BAUTISMO;
extern const Tabla<Persona> FICHA_COLABORADOR;
extern const Tabla<Persona> FICHA_COLABORADOR_NACIMIENTO;
extern const Tabla<Persona> FICHA_COLABORADOR_BAUTISMO;

/// Empty rows in the satellites that only the census fills.
std::vector<std::string> sqlSatelitesVacios(std::int32_t idPadron);

}  // namespace fidaleon
