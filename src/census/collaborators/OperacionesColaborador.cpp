#include "census/Operaciones.h"
#include "census/collaborators/frmColaborador.h"
#include "census/common/Eliminacion.h"
#include "core/contract/SesionBloqueos.h"

namespace fidaleon::censo {

using FDAPI::cCOperacion;

namespace {

/// The person that the user chose to go on with instead; 0 when there is none.
std::int32_t agregar(Contexto& contexto, FDAPI::Conexion& conexion, bool blnOcultar,
                     cCOrigen origen) {
  SesionBloqueos bloqueos(contexto, conexion);
  bloqueos.tabla("Padron");
  bloqueos.tablasCompartidas({"Provincia", "Municipio"});
  if (!bloqueos.efectuar()) return 0;
  frmColaborador dialogo(contexto);
  dialogo.conBaseDatos = &conexion;
  dialogo.Operacion = cCOperacion::ANADIR;
  dialogo.Origen = origen;
  dialogo.blnOcultar = blnOcultar;
  dialogo.Show();
  return dialogo.lngSeleccionado;
}

void eliminarPersona(Contexto& contexto, FDAPI::Conexion& conexion, const std::string& id) {
  const std::pair<const char*, const char*> FILAS[] = {
      {"Padron_TipoPersona", "CodPadron"},  {"Padron_Nacimiento", "CodPadron"},
      {"Padron_Bautismo", "CodPadron"},     {"Padron", "IDPadron"},
      {"Padron_Comunion", "CodPadron"},     {"Padron_Matrimonio", "CodPadron"},
      {"Padron_Confirmacion", "CodPadron"}, {"Padron_Defuncion", "CodPadron"}};
  Eliminacion eliminacion(contexto, conexion, "Eliminando colaborador ...", std::size(FILAS));
  for (const auto& [tabla, clave] : FILAS)
    eliminacion.paso(std::string("DELETE * FROM ") + tabla + " WHERE " + clave + "=" + id);
  eliminacion.terminar();
}

void eliminarActividades(FDAPI::Conexion& conexion, const std::string& id) {
  if (conexion.Execute("SELECT * FROM Padron_Actividad WHERE CodPadron =" + id).EOF_()) return;
  conexion.Execute("DELETE * FROM Padron_Actividad WHERE CodPadron=" + id);
}

}  // namespace

void NuevoColaborador(Contexto& contexto, FDAPI::Conexion& conexion, bool blnOcultar,
                      cCOrigen origen) {
  const std::int32_t elegido = agregar(contexto, conexion, blnOcultar, origen);
  if (elegido != 0) EditaColaborador(contexto, conexion, elegido, origen);
}

void EditaColaborador(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id,
                      cCOrigen origen) {
  SesionBloqueos bloqueos(contexto, conexion);
  bloqueos.registroPorClave("Padron", "IdPadron", id);
  bloqueos.tablasCompartidas({"Provincia", "Municipio"});
  bloqueos.mostrar(bloqueos.efectuarParaFicha(), [&](const auto& aviso) {
    frmColaborador dialogo(contexto);
    dialogo.conBaseDatos = &conexion;
    dialogo.Operacion = cCOperacion::EDITAR;
    dialogo.Origen = origen;
    dialogo.IDPadron = id;
    return dialogo.open(aviso);
  });
}

void EliminaColaborador(Contexto& contexto, FDAPI::Conexion& conexion, std::int32_t id) {
  if (!preguntarEliminacion(contexto, "un", "Colaborador", nombrePersona(conexion, id))) return;
  SesionBloqueos bloqueos(contexto, conexion);
  bloqueos.registroPorClave("Padron", "IdPadron", id);
  if (!bloqueos.efectuar()) return;
  const std::string clave = std::to_string(id);
  const bool soloColaborador =
      conexion.Execute("SELECT * FROM Padron_TipoPersona WHERE CodPadron=" + clave).RecordCount() <
      2;
  store::Transaction transaccion(conexion, store::Removes::Yes);
  if (soloColaborador)
    eliminarPersona(contexto, conexion, clave);
  else
    conexion.Execute("DELETE * FROM Padron_TipoPersona WHERE CodPadron=" + clave +
                     " AND CodTipoPersona=3");
  eliminarActividades(conexion, clave);
  transaccion.commit();
}

}  // namespace fidaleon::censo
