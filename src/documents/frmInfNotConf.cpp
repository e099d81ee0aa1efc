#include "documents/frmInfNotConf.h"

#include <algorithm>

#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"
#include "documents/NotificacionSinLibro.h"
#include "documents/ProgresoImpresion.h"
#include "documents/frmInfNotConfDatos.h"
#include "registers/common/Guiones.h"
#include "registers/common/NuevaInstitucion.h"
#include "store/Transaction.h"

namespace fidaleon {

namespace {

const Rejilla& rejillaNotificaciones() {
  static const Rejilla r{"Grids\\Notifica\\Notifica",
                         {{"Nombre", 1935}, {"Fecha confirmación", 3630}}};
  return r;
}

}  // namespace

frmInfNotConf::frmInfNotConf(Contexto& contexto)
    : Dialogo(contexto, "frmInfNotConf"),
      mstNotificacion(*this, "mstNotificacion", {"INSTITUCIÓN", "NOTIFICACIONES"}),
      cboInstitucion(*this, "cboInstitucion", "INSTITUCIÓN:"),
      cmdInstitucion(*this, "cmdInstitucion", "Agregar institución"),
      msgNotificacion(*this, "msgNotificacion"),
      abpProgreso(*this, "abpProgreso"),
      cmdNotificacion(*this, "cmdNotificacion") {
  setCaption("Imprimir notificación sin libro");
  cboInstitucion.setWidthChars(50);
  const auto boton = [this](Boton indice, const char* texto, void (frmInfNotConf::*hace)()) {
    cmdNotificacion.add(indice, texto).onClick = [this, hace] {
      procedimiento("cmdNotificacion_Click()", [this, hace] { (this->*hace)(); });
    };
  };
  boton(AGREGAR, "AGREGAR", &frmInfNotConf::agregar);
  cmdNotificacion[AGREGAR].setDefault(true);
  boton(MODIFICAR, "MODIFICAR", &frmInfNotConf::modificar);
  boton(QUITAR, "QUITAR", &frmInfNotConf::quitar);
  boton(IMPRIMIR, "IMPRIMIR", &frmInfNotConf::imprimir);
  cmdNotificacion.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdNotificacion[CANCELAR].onClick = [this] { Unload(); };
  cboInstitucion.onClick = [this] {
    procedimiento("cboInstitucion_Click()", [this] { elegirInstitucion(); });
  };
  cmdInstitucion.onClick = [this] {
    procedimiento("cmdInstitucion_Click()", [this] { agregarInstitucion(); });
  };
  msgNotificacion.onDblClick = [this] {
    procedimiento("msgNotificacion_DblClick()", [this] { modificar(); });
  };
  mstNotificacion.onMouseDown = [this](int siguiente) { return salirDe(siguiente); };
  auto& b = cmdNotificacion;
  setLayout(forms::column(
      {forms::tabs(mstNotificacion,
                   {forms::page({forms::fields(1, {forms::item(cboInstitucion, {&cmdInstitucion})}),
                                 forms::stretch()}),
                    forms::page({forms::column(
                        {forms::item(msgNotificacion),
                         forms::buttons({&b[AGREGAR], &b[MODIFICAR], &b[QUITAR]})})})}),
       forms::fields(1, {forms::item(abpProgreso)}),
       forms::buttons({&b[IMPRIMIR], &b[CANCELAR]})}));
}

std::string frmInfNotConf::ownWork() const {
  std::string lineas;
  for (const cConfirmacion& n : notificaciones_)
    for (const std::string& dato :
         {n.Nombre + " " + n.PrimerApellido + " " + n.SegundoApellido, n.FechaConfirmacion,
          n.MinistroPrinc, n.Padrino, n.FechaNac, n.ParroquiaBaut, n.DireccionBaut, n.FechaBaut,
          n.LibroBaut + ", " + std::to_string(n.FolioBaut) + ", " + n.NumeroBaut})
      lineas += dato + "\n";
  return lineas;
}

void frmInfNotConf::Form_Load() {
  if (!procedimiento("Form_Load()", [this] { cargar(); })) Unload();
}

void frmInfNotConf::Form_Unload() {
  procedimiento("Form_Unload()",
                [this] { cIListas(contexto_).SaveGrid(msgNotificacion, rejillaNotificaciones()); });
}

void frmInfNotConf::cargar() {
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0, *conBaseDatos);
  if (cboInstitucion.listCount() == 1) cboInstitucion.setListIndex(0);
  cIListas(contexto_).ConfigGrid(msgNotificacion, rejillaNotificaciones(), "ConfigGrid()",
                                 "frmInfNotConf");
}

void frmInfNotConf::elegirInstitucion() {
  if (cboInstitucion.data() == institucion_) return;
  if (!notificaciones_.empty() &&
      !forms::ask(ui(),
                  "Si cambia de Institución perderá los datos actualmente guardados, ¿desea "
                  "continuar de todos modos?",
                  {}, forms::Stake::Loss)) {
    cboInstitucion.selectData(institucion_);
    return;
  }
  institucion_ = cboInstitucion.data();
  notificaciones_.clear();
  msgNotificacion.clearRows();
  markSaved();  // a choice alone is no loss
}

void frmInfNotConf::agregarInstitucion() {
  const std::int32_t nueva = nuevaInstitucion(contexto_, *conBaseDatos);
  // The list is filled anew without a choice, which is none of the user's.
  const std::int64_t antes = std::exchange(institucion_, 0);
  const std::vector<cConfirmacion> guardadas = std::exchange(notificaciones_, {});
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0, *conBaseDatos);
  institucion_ = antes;
  notificaciones_ = guardadas;
  cboInstitucion.selectData(notificaciones_.empty() && nueva != 0 ? nueva : antes);
}

bool frmInfNotConf::salirDe(int pestana) {
  if (pestana == INSTITUCION || cboInstitucion.listIndex() >= 0) return true;
  forms::warn(ui(), "¡Debe seleccionar una Institución!");
  return false;
}

std::vector<std::string> frmInfNotConf::celdas(const cConfirmacion& notificacion) const {
  return {notificacion.Nombre, contexto_.fidaleon()->stringdate(notificacion.FechaConfirmacion)};
}

cConfirmacion frmInfNotConf::modelo() const {
  cConfirmacion nueva;
  const store::Recordset fila = conBaseDatos->Execute(
      "SELECT * FROM Institucion WHERE IDInstitucion=" + std::to_string(institucion_));
  if (!fila.EOF_()) {
    nueva.Parroquia = fila.text("InstitucionNombre");
    nueva.InstitucionTipo = fila.text("InstitucionTipo");
    nueva.Domicilio = fila.text("Domicilio");
    nueva.DiocesisParr = fila.text("Diocesis");
    nueva.CodMunicipioParr = static_cast<std::int32_t>(fila.integer("CodMunicipio"));
  }
  if (notificaciones_.empty()) return nueva;
  nueva.FechaConfirmacion = notificaciones_.back().FechaConfirmacion;
  nueva.MinistroPrinc = notificaciones_.back().MinistroPrinc;
  return nueva;
}

cConfirmacion* frmInfNotConf::elegida() {
  const int fila = msgNotificacion.row();
  if (fila == 0) return nullptr;
  const auto hallada = std::find_if(
      notificaciones_.begin(), notificaciones_.end(),
      [&](const cConfirmacion& n) { return n.IDConfirmacion == msgNotificacion.rowKey(fila); });
  return hallada == notificaciones_.end() ? nullptr : &*hallada;
}

void frmInfNotConf::agregar() {
  frmInfNotConfDatos dialogo(contexto_);
  dialogo.conBaseDatos = conBaseDatos;
  dialogo.Operacion = FDAPI::cCOperacion::ANADIR;
  dialogo.colNotificaciones = &notificaciones_;
  dialogo.notificacion = modelo();
  dialogo.Show();
  if (!dialogo.aceptada) return;
  cConfirmacion nueva = *dialogo.aceptada;
  nueva.IDConfirmacion = notificaciones_.empty() ? 1 : notificaciones_.back().IDConfirmacion + 1;
  notificaciones_.push_back(nueva);
  msgNotificacion.setRow(msgNotificacion.addRow(celdas(nueva), nueva.IDConfirmacion));
}

void frmInfNotConf::modificar() {
  cConfirmacion* const cual = elegida();
  if (!cual) return;
  frmInfNotConfDatos dialogo(contexto_);
  dialogo.conBaseDatos = conBaseDatos;
  dialogo.Operacion = FDAPI::cCOperacion::EDITAR;
  dialogo.colNotificaciones = &notificaciones_;
  dialogo.notificacion = *cual;
  dialogo.Show();
  if (!dialogo.aceptada) return;
  *cual = *dialogo.aceptada;
  const std::vector<std::string> textos = celdas(*cual);
  for (int c = 0; c < static_cast<int>(textos.size()); ++c)
    msgNotificacion.setCell(msgNotificacion.row(), c, textos[static_cast<std::size_t>(c)]);
}

void frmInfNotConf::quitar() {
  const cConfirmacion* const cual = elegida();
  if (!cual) return;
  notificaciones_.erase(notificaciones_.begin() + (cual - notificaciones_.data()));
  msgNotificacion.removeRow(msgNotificacion.row());
}

void frmInfNotConf::imprimir() {
  if (msgNotificacion.rowCount() == 0)
    return forms::warn(ui(), "¡No se ha encontrado ningún registro!", forms::MsgIcon::Information);
  const forms::Hourglass hourglass(ui());
  escribir();
  Unload();
}

void frmInfNotConf::escribir() {
  abpProgreso.Cargar(static_cast<std::int64_t>(notificaciones_.size()), documents::PROCESANDO);
  std::int64_t escritas = 0;
  store::Transaction todas(*conInformes);
  for (const cConfirmacion& notificacion : notificaciones_) {
    documents::escribirNotificacion(*conBaseDatos, *conInformes, notificacion, contexto_.hoy());
    abpProgreso.setValue(++escritas);
  }
  todas.commit();
}

}  // namespace fidaleon
