#include "setup/SelecEncargado.h"

#include "core/statements/Citas.h"
#include "setup/frmEncargado.h"

namespace fidaleon {

void SelecEncargado(Contexto& contexto, FDAPI::Conexion& conBaseDatos,
                    const std::string& Sacramento, std::int32_t IDPartida, std::string& strFechaInf,
                    std::string& result) {
  frmEncargado dialogo(contexto);
  dialogo.conBaseDatos = &conBaseDatos;
  dialogo.Sacramento = Sacramento;
  dialogo.IDPartida = IDPartida;
  dialogo.Show();
  result = dialogo.strEncargado;
  strFechaInf = dialogo.strFecha;
  if (result.empty()) return;
  const std::string institucion = std::to_string(dialogo.lngInstitucion);
  conBaseDatos.Execute("UPDATE Ultimos SET IDInstitucion = " + institucion + " , Encargado = " +
                       entreComillas(result) + " WHERE IDInstitucion = " + institucion);
}

}  // namespace fidaleon
