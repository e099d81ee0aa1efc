#include "registers/lookup/Bautizado.h"

#include <stdexcept>

#include "core/contract/NombreYApellidos.h"
#include "registers/baptism/AlmacenBautismo.h"
#include "registers/common/Guiones.h"

namespace fidaleon {

Bautizado leerBautizado(FDAPI::Conexion& conexion, std::int32_t id) {
  const store::Recordset fila = conexion.Execute(ALMACEN_BAUTISMO.sqlEntera(0, id));
  if (fila.EOF_()) throw std::runtime_error("Los datos de esta partida ya no existen.");
  Bautizado b;
  ALMACEN_BAUTISMO.copiar(fila, b);
  b.PadreEntero =
      oGuiones(nombreYApellidos({b.NombrePadres, b.PrimerApellidoPadres, b.SegundoApellidoPadres}));
  b.MadreEntera =
      oGuiones(nombreYApellidos({b.NombreMadres, b.PrimerApellidoMadres, b.SegundoApellidoMadres}));
  const store::Recordset libro =
      conexion.Execute("SELECT Nombre FROM Libro_Bautismo WHERE IDLibroBautismo=" +
                       std::to_string(b.CodLibroBautismo));
  b.NombreLibro = libro.EOF_() ? GUIONES : libro.text("Nombre");
  return b;
}

}  // namespace fidaleon
