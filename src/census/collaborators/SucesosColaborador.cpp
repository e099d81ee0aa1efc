// What the user sets off in the collaborator dialog.

#include "census/collaborators/frmColaborador.h"
#include "census/search/frmPadronImportar.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void frmColaborador::crearSucesos() {
  for (const Texto parte : {Nombre, PrimerApellido, SegundoApellido}) {
    txtColaborador[parte].onChange = [this] { coincidencias_->nombreCambiado(); };
    txtColaborador[parte].onLostFocus = [this](forms::Control* siguiente) {
      nombre_LostFocus(siguiente);
    };
  }
  const auto boton = [this](forms::Button& b, void (frmColaborador::*accion)()) {
    b.onClick = [this, accion] {
      procedimiento("cmdColaborador_Click", [this, accion] { (this->*accion)(); });
    };
  };
  boton(cmdColaborador[ACEPTAR], &frmColaborador::aceptar);
  boton(cmdColaborador[IMPORTAR], &frmColaborador::importar);
  boton(cmdActividad[AGREGAR], &frmColaborador::agregarActividad);
  boton(cmdActividad[MODIFICAR], &frmColaborador::modificarActividad);
  boton(cmdActividad[QUITAR], &frmColaborador::quitarActividad);
  mstColaborador.onClick = [this](int) {
    if (mstColaborador.tab() == TAB_ACTIVIDADES)
      procedimiento("mstColaborador_Click", [this] { olvidarQuitadasFuera(); });
  };
  cmdColaborador[CANCELAR].onClick = [this] { Unload(); };
  msgActividades.onDblClick = [this] { userClick(cmdActividad[MODIFICAR]); };
}

void frmColaborador::nombre_LostFocus(const forms::Control* siguiente) {
  if (siguiente == &cmdColaborador[CANCELAR]) return;
  procedimiento("txtColaborador_LostFocus", [this] {
    const bool alta = Operacion == cCOperacion::ANADIR;
    continuarCon(coincidencias_->alSalir(*conBaseDatos, alta ? 0 : IDPadron, alta));
  });
}

void frmColaborador::importar() {
  frmPadronImportar dialogo(contexto_);
  dialogo.conBaseDatos = conBaseDatos;
  dialogo.Origen = FDAPI::cCOrigen::COLABORADOR;
  dialogo.blnSeleccionar = Operacion == cCOperacion::ANADIR;
  dialogo.Show();
  continuarCon(dialogo.lngSeleccionado);
}

void frmColaborador::continuarCon(std::int32_t idPadron) {
  if (idPadron == 0) return;
  lngSeleccionado = idPadron;
  Unload();
}

void frmColaborador::agregarProvincia() {
  bool agregada = false;
  contexto_.fidaleon()->NuevaProvincia(agregada, *conBaseDatos, contexto_.config());
  if (agregada) refrescarLugares();
}

void frmColaborador::agregarMunicipio() {
  bool agregado = false;
  contexto_.fidaleon()->NuevoMunicipio(agregado, *conBaseDatos, contexto_.config());
  if (agregado) refrescarLugares();
}

void frmColaborador::refrescarLugares() {
  for (ParProvinciaPoblacion& lugar : pares_) lugar.refrescar();
}

}  // namespace fidaleon
