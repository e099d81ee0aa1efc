// The groups of the activity.

#include <algorithm>

#include "census/activities/frmActividad.h"
#include "census/activities/frmActividadGrupos.h"
#include "core/statements/Apunte.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void frmActividad::CargaGridGrupos() {
  procedimiento("CargaGridGrupos", [this] { llenarRejilla(); });
}

void frmActividad::llenarRejilla() {
  const int antes = msgGrupos.row();
  msgGrupos.beginUpdate();
  msgGrupos.clearRows();
  for (const cPadronActGrupos& g : colGrupos_)
    if (g.Operacion != cCOperacion::Borrar)
      msgGrupos.addRow({g.Nombre, g.Año, g.Dia, g.Hora, g.Sala}, g.IDGrupo);
  msgGrupos.endUpdate();
  msgGrupos.setRow(std::min(std::max(antes, 1), msgGrupos.rowCount()));
}

std::string frmActividad::ownWork() const {
  std::string texto;
  for (const cPadronActGrupos& g : colGrupos_) {
    if (g.Operacion == cCOperacion{}) continue;
    Apunte apunte;
    const bool quitado = g.Operacion == cCOperacion::Borrar;
    apunte.poner("Grupo", std::string(quitado ? "quitado" : g.Estado ? "cambiado" : "nuevo"));
    apunte.poner("Nombre", g.Nombre);
    apunte.poner("Año", g.Año);
    apunte.poner("Día", g.Dia);
    apunte.poner("Hora", g.Hora);
    apunte.poner("Sala", g.Sala);
    apunte.poner("Comentarios", g.Comentarios);
    apunte.poner("Miembros", static_cast<std::int64_t>(g.miembros.size()));
    texto += apunte.texto();
  }
  return texto;
}

cPadronActGrupos* frmActividad::elegido() {
  if (msgGrupos.row() == 0) {
    ui().beep();
    return nullptr;
  }
  return buscarGrupo(colGrupos_, static_cast<std::int32_t>(msgGrupos.rowKey(msgGrupos.row())));
}

void frmActividad::agregar() {
  if (!bloqueos_->tomarTabla()) return;
  if (!abrirGrupo(cCOperacion::ANADIR, 0)) return bloqueos_->unaMenos();
  CargaGridGrupos();
  msgGrupos.setRow(msgGrupos.rowCount());
}

void frmActividad::modificar() {
  const cPadronActGrupos* grupo = elegido();
  if (!grupo) return;
  if (abrirGrupo(cCOperacion::EDITAR, grupo->IDGrupo)) return CargaGridGrupos();
  if (grupo->Estado) bloqueos_->soltarRegistro(grupo->IDGrupo);
}

void frmActividad::quitar() {
  cPadronActGrupos* grupo = elegido();
  if (!grupo) return;
  const std::int32_t id = grupo->IDGrupo;
  const bool guardado = grupo->Estado;
  const auto tomado =
      guardado ? bloqueos_->tomarRegistro(id) : BloqueosDeLista::Registro::NO_EXISTE;
  if (tomado == BloqueosDeLista::Registro::OCUPADO) return;
  if (tomado == BloqueosDeLista::Registro::TOMADO)
    grupo->Operacion = cCOperacion::Borrar;
  else  // never stored, or removed from another workstation
    std::erase_if(colGrupos_, [&](const cPadronActGrupos& g) { return g.IDGrupo == id; });
  if (!guardado) bloqueos_->unaMenos();
  CargaGridGrupos();
}

bool frmActividad::abrirGrupo(cCOperacion operacion, std::int32_t IDGrupo) {
  frmActividadGrupos dialogo(contexto_);
  dialogo.conBaseDatos = conBaseDatos;
  dialogo.Operacion = operacion;
  dialogo.IDGrupo = IDGrupo;
  dialogo.IDActividad = IDActividad;
  dialogo.colGrupos = &colGrupos_;
  dialogo.Origen = Origen;
  dialogo.Show();
  return dialogo.blnAceptado;
}

}  // namespace fidaleon
