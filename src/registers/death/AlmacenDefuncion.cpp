// The store of deaths.

#include "registers/death/AlmacenDefuncion.h"

#include <array>

#include "registers/death/TablasDefuncion.h"
#include "text/Numbers.h"

namespace fidaleon {

namespace {

constexpr Columna<cDefuncion> LISTA[] = {
    {"IDDifunto", "IDDifunto", &cDefuncion::IDDifunto, Cita::Numero},
    {"Folio", "Folio", &cDefuncion::Folio, Cita::Numero},
    {"Numero", "Numero", &cDefuncion::Numero, Cita::Texto},
    {"Nombre", "Nombre", &cDefuncion::Nombre, Cita::Texto},
    {"PrimerApellido", "PrimerApellido", &cDefuncion::PrimerApellido, Cita::Texto},
    {"SegundoApellido", "SegundoApellido", &cDefuncion::SegundoApellido, Cita::Texto},
    {"FechaDefuncion", "FechaDefuncion", &cDefuncion::FechaDefuncion, Cita::Texto},
    {"Anulada", "Anulada", &cDefuncion::Anulada, Cita::Numero},
};
constexpr Tabla<cDefuncion> TABLA_LISTA{"Defuncion", ", ", "=", LISTA};

std::string sqlLista(std::int32_t libro) {
  return "SELECT * FROM Defuncion, Defuncion_Datos WHERE CodLibro=" + std::to_string(libro) +
         " AND Defuncion_Datos.CodDifunto = IDDifunto  ORDER BY Folio, Val(Numero), IDDifunto";
}

std::string sqlEntera(std::int32_t libro, std::int32_t id) {
  return "SELECT * FROM Defuncion, Defuncion_Datos WHERE CodLibro = " + std::to_string(libro) +
         " AND IDDifunto = " + std::to_string(id) +
         " AND Defuncion_Datos.CodDifunto = IDDifunto ORDER BY Folio, Val(Numero)";
}

constexpr std::array PROPIAS{&TABLA_DEFUNCION_DATOS};

}  // namespace

const DescripcionAlmacen<cDefuncion> ALMACEN_DEFUNCION{
    .forma = *formaPartida(DEFUNCION),
    .partida = TABLA_DEFUNCION,
    .partidaAlActualizar = TABLA_DEFUNCION,
    .propias = PROPIAS,
    .id = &cDefuncion::IDDifunto,
    .anulada = &cDefuncion::Anulada,
    .libro = [](const cDefuncion& d) { return std::int32_t(text::Val(d.CodLibro)); },
    .completa = &cDefuncion::Parroquia,
    .lista = TABLA_LISTA,
    .sqlLista = sqlLista,
    .sqlEntera = sqlEntera,
};

template class Almacen<cDefuncion>;

}  // namespace fidaleon
