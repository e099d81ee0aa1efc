#include "registers/common/NuevaInstitucion.h"

namespace fidaleon {

namespace {

std::int32_t ultimaInstitucion(FDAPI::Conexion& conexion) {
  store::Recordset fila =
      conexion.Execute("SELECT Nombre, IDInstitucion FROM Institucion ORDER BY IDInstitucion");
  if (fila.EOF_()) return 0;
  fila.MoveLast();
  return static_cast<std::int32_t>(fila.integer("IDInstitucion"));
}

}  // namespace

std::int32_t nuevaInstitucion(Contexto& contexto, FDAPI::Conexion& conexion) {
  const std::int32_t antes = ultimaInstitucion(conexion);
  contexto.fidaleon()->NuevaInstitucion(conexion, contexto.config());
  const std::int32_t despues = ultimaInstitucion(conexion);
  return despues > antes ? despues : 0;
}

}  // namespace fidaleon
