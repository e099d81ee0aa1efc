// The operations on a person of the census.

#include "census/Operaciones.h"
#include "census/common/Eliminacion.h"
#include "census/persons/frmPadron.h"
#include "core/contract/SesionBloqueos.h"

namespace fidaleon::censo {

using FDAPI::cCOperacion;

namespace {

void eliminarDelTodo(Eliminacion& eliminacion, std::int32_t id) {
  for (const std::string& sentencia : sqlBorrarPersona(id)) eliminacion.paso(sentencia);
}

// The person stays for another role. The changes without a condition reach every person, as they
// always have.
void dejarDeEmpadronar(Eliminacion& eliminacion, FDAPI::Conexion& conexion, std::int32_t id) {
  eliminacion.paso(sqlBorrarDe("Padron_TipoPersona", id) + " AND CodTipoPersona=2");
  if (conexion
          .Execute("SELECT * FROM Padron_TipoPersona WHERE CodPadron=" + std::to_string(id) +
                   " AND CodTipoPersona=3")
          .EOF_())
    eliminacion.paso(
        "UPDATE Padron_Bautismo SET "
        "FechaBautizo='',ParroquiaBaut='',DireccionParrBaut='',CodMunicipioParrBaut=0;");
  else
    eliminacion.pasoSinTrabajo();
  eliminacion.paso("UPDATE Padron_Comunion SET AñoComunion='',ParroquiaCom='';");
  eliminacion.paso(
      "UPDATE Padron_Confirmacion SET "
      "FechaConfirmacion='',ParroquiaConf='',DireccionParrConf='',CodMunicipioParrConf=0;");
  eliminacion.paso(
      "UPDATE Padron_Matrimonio SET "
      "FechaMatrimonio='',ParroquiaMatr='',DireccionParrMatr='',CodMunicipioParrMatr=0;");
  eliminacion.paso("UPDATE Padron_Defuncion SET FechaDefuncion='',Nicho='',Importe=0;");
  eliminacion.paso(sqlBorrarDe("Padron_NotasPersonales", id));
}

/// The key that the dialog hands back, 0 when there is none.
std::int32_t agregar(Contexto& contexto, FDAPI::Conexion& conexion) {
  SesionBloqueos sesion(contexto, conexion);
  sesion.tabla("Padron");
  sesion.tablasCompartidas({"Institucion", "Provincia", "Municipio"});
  if (!sesion.efectuar()) return 0;
  frmPadron dialogo(contexto);
  dialogo.conBaseDatos = &conexion;
  dialogo.Operacion = cCOperacion::ANADIR;
  dialogo.Show();
  return dialogo.lngSeleccionado;
}

}  // namespace

void NuevoEmpadronado(Contexto& contexto, FDAPI::Conexion& conexion) {
  if (const std::int32_t id = agregar(contexto, conexion)) EditaEmpadronado(contexto, conexion, id);
}

void EditaEmpadronado(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  SesionBloqueos sesion(contexto, conexion);
  sesion.registroPorClave("Padron", "IdPadron", id);
  sesion.tablasCompartidas({"Institucion", "Provincia", "Municipio"});
  sesion.mostrar(sesion.efectuarParaFicha(), [&](const auto& aviso) {
    frmPadron dialogo(contexto);
    dialogo.conBaseDatos = &conexion;
    dialogo.Operacion = cCOperacion::EDITAR;
    dialogo.IDPadron = id;
    return dialogo.open(aviso);
  });
}

void EliminaEmpadronado(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  if (!preguntarEliminacion(contexto, "un", "Empadronado", nombrePersona(conexion, id))) return;
  SesionBloqueos sesion(contexto, conexion);
  sesion.registroPorClave("Padron", "IdPadron", id);
  if (!sesion.efectuar()) return;
  const bool otrosTipos =
      conexion.Execute("SELECT * FROM Padron_TipoPersona WHERE CodPadron=" + std::to_string(id))
          .RecordCount() >= 2;
  Eliminacion eliminacion(contexto, conexion, "Eliminando empadronado ...", otrosTipos ? 7 : 9);
  otrosTipos ? dejarDeEmpadronar(eliminacion, conexion, id) : eliminarDelTodo(eliminacion, id);
  eliminacion.terminar();
}

}  // namespace fidaleon::censo
