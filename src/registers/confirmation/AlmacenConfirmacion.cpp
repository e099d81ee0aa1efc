// The store of confirmations.

#include "registers/confirmation/AlmacenConfirmacion.h"

#include <array>

#include "registers/confirmation/TablasConfirmacion.h"

namespace fidaleon {

namespace {

constexpr Columna<cConfirmacion> LISTA[] = {
    {"IDConfirmacion", "IDConfirmacion", &cConfirmacion::IDConfirmacion, Cita::Numero},
    {"Folio", "Folio", &cConfirmacion::Folio, Cita::Numero},
    {"Numero", "Numero", &cConfirmacion::Numero, Cita::Texto},
    {"Nombre", "Nombre", &cConfirmacion::Nombre, Cita::Texto},
    {"PrimerApellido", "PrimerApellido", &cConfirmacion::PrimerApellido, Cita::Texto},
    {"SegundoApellido", "SegundoApellido", &cConfirmacion::SegundoApellido, Cita::Texto},
    {"FechaConfirmacion", "FechaConfirmacion", &cConfirmacion::FechaConfirmacion, Cita::Texto},
    {"Anulada", "Anulada", &cConfirmacion::Anulada, Cita::Numero},
};
constexpr Tabla<cConfirmacion> TABLA_LISTA{"Confirmacion", ", ", "=", LISTA};

std::string sqlLista(std::int32_t libro) {
  return "SELECT * FROM Confirmacion, confirmacion_datos WHERE codlibro=" + std::to_string(libro) +
         " AND confirmacion_datos.codconfirmacion=idconfirmacion ORDER BY Folio, Val(Numero), "
         "IDConfirmacion";
}

std::string sqlEntera(std::int32_t libro, std::int32_t id) {
  return "SELECT * FROM Confirmacion, Confirmacion_Bautismo, Confirmacion_Datos WHERE CodLibro=" +
         std::to_string(libro) + " AND idConfirmacion=" + std::to_string(id) +
         " AND Confirmacion_Bautismo.CodConfirmacion=idConfirmacion AND "
         "Confirmacion_Datos.CodConfirmacion=idConfirmacion ORDER BY Folio, Val(Numero)";
}

constexpr std::array PROPIAS{&TABLA_CONFIRMACION_DATOS, &TABLA_CONFIRMACION_BAUTISMO};

}  // namespace

const DescripcionAlmacen<cConfirmacion> ALMACEN_CONFIRMACION{
    .forma = *formaPartida(CONFIRMACION),
    .partida = TABLA_CONFIRMACION,
    .partidaAlActualizar = TABLA_CONFIRMACION,
    .propias = PROPIAS,
    .id = &cConfirmacion::IDConfirmacion,
    .anulada = &cConfirmacion::Anulada,
    .libro = [](const cConfirmacion& c) { return c.CodLibro; },
    .completa = &cConfirmacion::Parroquia,
    .lista = TABLA_LISTA,
    .sqlLista = sqlLista,
    .sqlEntera = sqlEntera,
};

template class Almacen<cConfirmacion>;

}  // namespace fidaleon
