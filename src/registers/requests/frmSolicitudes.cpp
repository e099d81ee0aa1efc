// Choosing the requests that go into the book.

#include "registers/requests/frmSolicitudes.h"

#include "core/statements/Sentencia.h"
#include "registers/common/FormaPartida.h"
#include "registers/lookup/frmDetallePadres.h"

namespace fidaleon {

namespace {

ListaDoble::Textos textos() {
  ListaDoble::Textos t;
  t.ayudas = {"Pasa al libro las solicitudes marcadas", "Pasa al libro todas las solicitudes",
              "Deja fuera las solicitudes marcadas", "Deja fuera todas las solicitudes"};
  t.nadaMarcado = "";
  t.alMoverMarcados = t.alMoverTodos = "cmdMover_Click";
  return t;
}

}  // namespace

frmSolicitudes::frmSolicitudes(Contexto& contexto)
    : Dialogo(contexto, "frmSolicitudes"),
      mstSolicitudes(*this, "mstSolicitudes", {"INSTITUCIÓN", "SOLICITUDES"}),
      cboInstitucion(*this, "cboInstitucion", "INSTITUCIÓN:"),
      lstSolicitudes(*this, "lstSolicitudes"),
      cmdMover(*this, "cmdMover"),
      cmdDetalles(*this, "cmdDetalles", "&DETALLES"),
      cmdBoton(*this, "cmdBoton"),
      listas_(contexto, *this, lstSolicitudes.add(DISPONIBLES, "ELEMENTOS DISPONIBLES:"),
              lstSolicitudes.add(SELECCIONADOS, "ELEMENTOS SELECCIONADOS:"), cmdMover, textos()) {
  prepararControles();
}

void frmSolicitudes::prepararControles() {
  cmdBoton.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdBoton.add(CANCELAR, "CANCELAR").setCancel(true);
  setLayout(forms::column(
      {forms::tabs(mstSolicitudes,
                   {forms::page({forms::fields(1, {forms::item(cboInstitucion)})}),
                    forms::page({listas_.disposicion(), forms::buttons({&cmdDetalles})})}),
       forms::buttons({&cmdBoton[ACEPTAR], &cmdBoton[CANCELAR]})}));
  mstSolicitudes.onMouseDown = [this](int pestana) { return mstSolicitudes_MouseDown(pestana); };
  cboInstitucion.onClick = [this] { cboInstitucion_Click(); };
  cmdDetalles.onClick = [this] { cmdDetalles_Click(); };
  for (const auto& [indice, b] : cmdBoton.all())
    b->onClick = [this, indice = indice] { cmdBoton_Click(Boton(indice)); };
}

std::string frmSolicitudes::sentencia(const PlantillaSql& plantilla) const {
  return fidaleon::sentencia(origen_->sacramento, plantilla);
}

void frmSolicitudes::Form_Load() {
  origen_ = origenSolicitudes(Origen);
  if (!origen_) return Unload();
  setCaption(origen_->titulo);
  const bool cargado = procedimiento("Form_Load", [this] {
    contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0,
                                                                   *conBaseDatos);
  });
  if (!cargado) return Unload();
  if (elegida != 0) procedimiento("Form_Load", [this] { elegirSolicitud(); });
}

void frmSolicitudes::elegirSolicitud() {
  const store::Recordset fila = conBaseDatos->Execute(
      sentencia(
          "SELECT InstitucionSolicitud FROM {Partidas} WHERE CodLibro = 0 AND {IDPartida} = ") +
      std::to_string(elegida));
  if (fila.EOF_() || !cboInstitucion.selectData(fila.integer("InstitucionSolicitud"))) return;
  if (cboInstitucion.listIndex() >= 0) mstSolicitudes.setTab(1);
}

void frmSolicitudes::cboInstitucion_Click() {
  listas_.vaciar();
  if (!procedimiento("cboInstitucion_Click", [this] { listarSolicitudes(); }))
    cboInstitucion.setListIndex(-1);
}

void frmSolicitudes::listarSolicitudes() {
  if (conBaseDatos
          ->Execute(sentencia("SELECT * FROM {Libros} WHERE CodInstitucion = ") + institucion() +
                    " AND Nuevo = true")
          .EOF_())
    return rechazarInstitucion("¡Esta Institución no tiene un libro nuevo abierto. Elija otra!");
  store::Recordset solicitudes = conBaseDatos->Execute(
      sentencia("SELECT {IDPartida}") + origen_->columnas +
      sentencia(" FROM {Partidas} WHERE CodLibro = 0 AND InstitucionSolicitud = ") + institucion());
  if (solicitudes.EOF_())
    return rechazarInstitucion("¡Esta Institución no tiene solicitudes para importar. Elija otra!");
  std::vector<ListaDoble::Elemento> todas;
  for (; !solicitudes.EOF_(); solicitudes.MoveNext()) {
    const auto id =
        static_cast<std::int32_t>(solicitudes.integer(origen_->sacramento.clavePartida));
    const std::string quien =
        nombrePartida(*conBaseDatos, origen_->sacramento, id, origen_->entrePersonas);
    todas.push_back({id, quien.empty() ? "Solicitud " + std::to_string(id) : quien});
  }
  listas_.llenar(std::move(todas), {elegida});
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
