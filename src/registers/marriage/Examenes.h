#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/contract/FDAPI.h"
#include "registers/marriage/CuestionariosExamen.h"

namespace fidaleon {

/// The answers of each page, in the order of its questions.
using RespuestasExamen = std::array<std::vector<std::string>, PAGINAS_EXAMEN>;

RespuestasExamen respuestasEnBlanco();
bool hayRespuestas(const RespuestasExamen& respuestas);

// Both throw store::Error.

/// Those of a marriage; blank where it has none.
RespuestasExamen CargarExamenes(FDAPI::Conexion& conexion, std::int32_t idMatrimonio);
/// A row for each person. With an operation that adds a marriage all rows are new; otherwise those
/// that are there are changed.
void GrabarExamenes(FDAPI::Conexion& conexion, FDAPI::cCOperacion operacion,
                    std::int32_t idMatrimonio, const RespuestasExamen& respuestas);

/// The answers that were given, in lines to be kept with a record, and back.
std::string textoDeExamenes(const RespuestasExamen& respuestas);
RespuestasExamen examenesDeTexto(const std::string& texto);

}  // namespace fidaleon
