#include "documents/CargaDatosExhorto.h"

#include "documents/frmInfExhorto.h"

namespace fidaleon {

void CargaDatosExhorto(Contexto& contexto, DatosExhorto& strDatos, bool& blnCancelar,
                       FDAPI::Conexion& conFidaleon, std::int16_t lngID,
                       const std::function<bool()>& bloquear) {
  frmInfExhorto dialogo(contexto);
  dialogo.conBaseDatos = &conFidaleon;
  dialogo.strID = std::to_string(lngID);
  dialogo.bloquear = bloquear;
  dialogo.Show();
  for (std::size_t i = 0; i < strDatos.size(); ++i)
    strDatos[i] = dialogo.txtDato[static_cast<int>(i)].text();
  blnCancelar = dialogo.blnCancelar;
}

}  // namespace fidaleon
