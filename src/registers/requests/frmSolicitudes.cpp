// Choosing the requests that go into the book.

#include "registers/requests/frmSolicitudes.h"

#include <algorithm>
#include <numeric>

#include "registers/lookup/frmDetallePadres.h"
#include "registers/requests/ProcedimientoSolicitudes.h"

namespace fidaleon {

frmSolicitudes::frmSolicitudes(Contexto& contexto)
    : Form(contexto.ui(), "frmSolicitudes"),
      mstSolicitudes(*this, "mstSolicitudes", {"INSTITUCIÓN", "SOLICITUDES"}),
      cboInstitucion(*this, "cboInstitucion", "INSTITUCIÓN:"),
      lstSolicitudes(*this, "lstSolicitudes"),
      cmdMover(*this, "cmdMover"),
      cmdDetalles(*this, "cmdDetalles", "&DETALLES"),
      cmdBoton(*this, "cmdBoton"),
      contexto_(contexto) {
  prepararControles();
}

void frmSolicitudes::prepararControles() {
  forms::ListBox& disponibles = lstSolicitudes.add(DISPONIBLES, "ELEMENTOS DISPONIBLES:");
  forms::ListBox& seleccionados = lstSolicitudes.add(SELECCIONADOS, "ELEMENTOS SELECCIONADOS:");
  for (forms::ListBox* lista : {&disponibles, &seleccionados}) {
    lista->setMultiSelect(true);
    lista->setRows(12);
  }
  const auto boton = [this](Movimiento movimiento, const char* rotulo, const char* ayuda) {
    forms::Button& b = cmdMover.add(movimiento, rotulo);
    b.setToolTip(ayuda);
    b.onClick = [this, movimiento] { cmdMover_Click(movimiento); };
    return &b;
  };
  forms::Button* elegir = boton(ELEGIR, "&Agregar >", "Pasa al libro las solicitudes marcadas");
  forms::Button* elegirTodas =
      boton(ELEGIR_TODAS, "Agregar &todas >>", "Pasa al libro todas las solicitudes");
  forms::Button* quitar = boton(QUITAR, "< &Quitar", "Deja fuera las solicitudes marcadas");
  forms::Button* quitarTodas =
      boton(QUITAR_TODAS, "<< Quitar todas", "Deja fuera todas las solicitudes");
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  setLayout(forms::column(
      {forms::tabs(mstSolicitudes,
                   {forms::page({forms::fields(1, {forms::item(cboInstitucion)})}),
                    forms::page({forms::row({forms::item(disponibles),
                                             forms::column(
                                                 {forms::item(*elegir), forms::item(*elegirTodas),
                                                  forms::item(*quitar), forms::item(*quitarTodas)}),
                                             forms::item(seleccionados)}),
                                 forms::buttons({&cmdDetalles})})}),
       forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
  mstSolicitudes.onMouseDown = [this](int pestana) { return mstSolicitudes_MouseDown(pestana); };
  cboInstitucion.onClick = [this] { cboInstitucion_Click(); };
  disponibles.onDblClick = [this] { cmdMover_Click(ELEGIR); };
  seleccionados.onDblClick = [this] { cmdMover_Click(QUITAR); };
  cmdDetalles.onClick = [this] { cmdDetalles_Click(); };
  for (const auto& [indice, b] : cmdBoton.all())
    b->onClick = [this, indice = indice] { cmdBoton_Click(Boton(indice)); };
}

std::string frmSolicitudes::sentencia(const char* enBautismo) const {
  return enSacramento(origen_->sacramento, enBautismo);
}

void frmSolicitudes::Form_Load() {
  origen_ = origenSolicitudes(Origen);
  if (!origen_) return Unload();
  setCaption(origen_->titulo);
  const bool cargado = procedimiento("Form_Load", [this] {
    contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0,
                                                                   *conBaseDatos);
  });
  if (!cargado) Unload();
}

void frmSolicitudes::cboInstitucion_Click() {
  for (const auto& [indice, lista] : lstSolicitudes.all()) lista->clear();
  if (!procedimiento("cboInstitucion_Click", [this] { listarSolicitudes(); }))
    cboInstitucion.setListIndex(-1);
}

void frmSolicitudes::listarSolicitudes() {
  if (conBaseDatos
          ->Execute(sentencia("SELECT * FROM Libro_Bautismo WHERE CodInstitucion = ") +
                    institucion() + " AND Nuevo = true")
          .EOF_())
    return rechazarInstitucion("¡Esta Institución no tiene un libro nuevo abierto. Elija otra!");
  store::Recordset solicitudes = conBaseDatos->Execute(origen_->sqlSolicitudes + institucion());
  if (solicitudes.EOF_())
    return rechazarInstitucion("¡Esta Institución no tiene solicitudes para importar. Elija otra!");
  for (; !solicitudes.EOF_(); solicitudes.MoveNext())
    lstSolicitudes[DISPONIBLES].addItem(origen_->nombre(*conBaseDatos, solicitudes),
                                        solicitudes.integer(origen_->sacramento.clavePartida));
}

void frmSolicitudes::rechazarInstitucion(const char* mensaje) {
  forms::warn(ui(), mensaje);
  cboInstitucion.setListIndex(-1);
}

bool frmSolicitudes::mstSolicitudes_MouseDown(int pestana) {
  if (pestana == 0 || cboInstitucion.listIndex() >= 0) return true;
  forms::warn(ui(), "¡Tiene que elegir una Institución para ver las solicitudes!");
  return false;
}

void frmSolicitudes::cmdMover_Click(Movimiento movimiento) {
  procedimiento("cmdMover_Click", [&] {
    const bool haciaElLibro = movimiento == ELEGIR || movimiento == ELEGIR_TODAS;
    forms::ListBox& de = lstSolicitudes[haciaElLibro ? DISPONIBLES : SELECCIONADOS];
    forms::ListBox& a = lstSolicitudes[haciaElLibro ? SELECCIONADOS : DISPONIBLES];
    std::vector<int> filas(static_cast<std::size_t>(de.listCount()));
    std::iota(filas.begin(), filas.end(), 0);
    if (movimiento == ELEGIR || movimiento == QUITAR) {
      const auto fidaleon = contexto_.fidaleon();
      if (!fidaleon->ComprobarSeleccion(de)) return ui().beep();
      fidaleon->ListarSeleccionados(de, filas);
    }
    mover(de, a, filas);
  });
}

void frmSolicitudes::mover(forms::ListBox& de, forms::ListBox& a, const std::vector<int>& filas) {
  for (const int fila : filas) a.addItem(de.list(fila), de.itemData(fila));
  std::for_each(filas.rbegin(), filas.rend(), [&](int fila) { de.removeItem(fila); });
  if (filas.empty() || de.listCount() == 0) return;
  const int siguiente = std::min(filas.front(), de.listCount() - 1);
  de.setListIndex(siguiente);
  de.setSelected(siguiente, true);
}

void frmSolicitudes::cmdDetalles_Click() {
  procedimiento("cmdDetalles_Click", [this] {
    std::vector<int> filas;
    for (const Lista lista : {DISPONIBLES, SELECCIONADOS}) {
      contexto_.fidaleon()->ListarSeleccionados(lstSolicitudes[lista], filas);
      if (filas.empty()) continue;
      frmDetallePadres detalle(contexto_);
      detalle.conBaseDatos = conBaseDatos;
      detalle.lngID = static_cast<std::int32_t>(lstSolicitudes[lista].itemData(filas.front()));
      detalle.Origen = origen_->detalle;
      return detalle.Show();
    }
    ui().beep();
  });
}

}  // namespace fidaleon
