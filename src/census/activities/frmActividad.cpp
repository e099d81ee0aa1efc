// The activity itself: loading and acceptance.

#include "census/activities/frmActividad.h"

#include <stdexcept>

#include "core/lists/Rejilla.h"
#include "core/lists/cIListas.h"
#include "core/statements/Citas.h"
#include "core/statements/NombreRepetido.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

constexpr int MAXIMO_TEXTO = 255;

const Rejilla& rejillaGrupos() {
  static const Rejilla r{"Grids\\Actividad\\Actividad",
                         {{"Nombre", 2250}, {"Año"}, {"Día"}, {"Hora"}, {"Sala"}}};
  return r;
}

}  // namespace

frmActividad::frmActividad(Contexto& contexto)
    : DialogoConMemoria(contexto, "frmActividad"),
      mstActividad(*this, "mstActividad", {"ACTIVIDAD", "GRUPOS"}),
      txtActividad(*this, "txtActividad"),
      cboInstitucion(*this, "cboInstitucion", "INSTITUCIÓN:"),
      msgGrupos(*this, "msgGrupos"),
      cmdActividad(*this, "cmdActividad") {
  prepararControles();
}

void frmActividad::prepararControles() {
  txtActividad.add(NOMBRE, "NOMBRE:").setMaxLength(MAXIMO_TEXTO);
  txtActividad.add(DESCRIPCION, "DESCRIPCION:").setLines(6);
  cmdActividad.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdActividad.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdActividad.add(AGREGAR, "AGREGAR").setToolTip("Añade un grupo a la actividad");
  cmdActividad.add(MODIFICAR, "MODIFICAR").setToolTip("Abre el grupo de la fila elegida");
  cmdActividad.add(QUITAR, "QUITAR")
      .setToolTip("Quita de la actividad el grupo de la fila elegida");
  setLayout(forms::column(
      {forms::tabs(mstActividad,
                   {forms::page({forms::fields(
                        1, {forms::item(txtActividad[NOMBRE]), forms::item(cboInstitucion),
                            forms::item(txtActividad[DESCRIPCION])})}),
                    forms::page({forms::item(msgGrupos),
                                 forms::buttons({&cmdActividad[AGREGAR], &cmdActividad[MODIFICAR],
                                                 &cmdActividad[QUITAR]})})}),
       forms::buttons({&cmdActividad[ACEPTAR], &cmdActividad[CANCELAR]})}));
  mstActividad.onMouseDown = [this](int pestana) { return mstActividad_MouseDown(pestana); };
  msgGrupos.onDblClick = [this] {
    if (cmdActividad[MODIFICAR].usable()) cmdActividad_Click(MODIFICAR);
  };
  for (const auto& [indice, boton] : cmdActividad.all())
    boton->onClick = [this, indice = indice] { cmdActividad_Click(Boton(indice)); };
}

void frmActividad::Form_Load() {
  cargado_ = procedimiento("Form_Load", [this] { cargar(); }) &&
             (Operacion == cCOperacion::ANADIR || CargarDatosGrupos());
  // Groups that are not all there must never be accepted over those that are stored.
  if (!cargado_) return Unload();
  CargaGridGrupos();
}

void frmActividad::cargar() {
  bloqueos_ = std::make_unique<BloqueosDeLista>(contexto_, *conBaseDatos, "Grupo", "IdGrupo");
  setCaption("Agregar actividad");
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstitucion, 0, *conBaseDatos);
  if (Operacion == cCOperacion::ANADIR) elegirUnico(cboInstitucion);
  cIListas(contexto_).ConfigGrid(msgGrupos, rejillaGrupos(), "ConfigGridGrupos", "frmActividad");
  for (const Boton boton : {AGREGAR, MODIFICAR, QUITAR})
    cmdActividad[boton].setVisible(!blnOcultar);
}

bool frmActividad::CargarDatosGrupos() {
  return procedimiento("CargarDatosGrupos", [this] {
    mostrarActividad();
    colGrupos_ = leerGrupos(*conBaseDatos, IDActividad);
  });
}

void frmActividad::mostrarActividad() {
  const auto actividad = leerActividad(*conBaseDatos, IDActividad);
  if (!actividad) throw std::runtime_error("La actividad ya no existe.");
  setCaption("Propiedades de la actividad " + actividad->Nombre);
  txtActividad[NOMBRE].setText(actividad->Nombre);
  txtActividad[DESCRIPCION].setText(actividad->Descripcion);
  cboInstitucion.selectData(actividad->CodInstitucion);
}

void frmActividad::Form_Unload() {
  bloqueos_.reset();
  if (!cargado_) return;
  procedimiento("Form_Unload",
                [this] { cIListas(contexto_).SaveGrid(msgGrupos, rejillaGrupos()); });
}

bool frmActividad::mstActividad_MouseDown(int pestana) {
  if (pestana == TAB_ACTIVIDAD || cboInstitucion.listIndex() >= 0) return true;
  forms::warn(ui(), "¡Debe seleccionar una Institución!");
  return false;
}

void frmActividad::cmdActividad_Click(Boton boton) {
  procedimiento("cmdActividad_Click", [&] {
    switch (boton) {
      case ACEPTAR:
        return aceptar();
      case CANCELAR:
        return Unload();
      case AGREGAR:
        return agregar();
      case MODIFICAR:
        return modificar();
      case QUITAR:
        return quitar();
    }
  });
}

void frmActividad::aceptar() {
  if (!validar()) return;
  const forms::Hourglass reloj(ui());
  const bool alta = Operacion == cCOperacion::ANADIR;
  if (!(alta ? AgregarActividad() : EditarActividad())) return;
  if (alta) recordar({{cboInstitucion.name(), {}, {}, cboInstitucion.data()}});
  Unload();
}

bool frmActividad::validar() {
  if (text::trim(txtActividad[NOMBRE].text()).empty())
    return rehusar("¡Debe introducir el nombre de la actividad!", txtActividad[NOMBRE]);
  if (cboInstitucion.listIndex() < 0)
    return rehusar("¡Debe seleccionar una Institución!", cboInstitucion);
  if (repetida())
    return rehusar("¡Ya existe una actividad en la Institución con este nombre!",
                   txtActividad[NOMBRE]);
  return true;
}

bool frmActividad::rehusar(const char* mensaje, forms::Control& campo) {
  forms::warn(ui(), mensaje);
  mstActividad.setTab(TAB_ACTIVIDAD);
  setFocus(campo);
  return false;
}

bool frmActividad::repetida() {
  const Actividad a = datos();
  const std::string otra = Operacion == cCOperacion::EDITAR
                               ? " AND IDActividad<>" + std::to_string(IDActividad)
                               : std::string();
  const std::string vecinas = " CodInstitucion=" + std::to_string(a.CodInstitucion) + otra;
  return !conBaseDatos
              ->Execute("SELECT Nombre FROM Actividad WHERE Nombre=" + entreComillas(a.Nombre) +
                        " AND" + vecinas)
              .EOF_() ||
         hayMismoNombre(*conBaseDatos, "SELECT Nombre FROM Actividad WHERE" + vecinas, a.Nombre);
}

Actividad frmActividad::datos() const {
  return {IDActividad, text::trim(txtActividad[NOMBRE].text()), txtActividad[DESCRIPCION].text(),
          static_cast<std::int32_t>(cboInstitucion.data())};
}

bool frmActividad::AgregarActividad() {
  return procedimiento("AgregarActividad",
                       [this] { agregarActividad(*conBaseDatos, datos(), colGrupos_); });
}

bool frmActividad::EditarActividad() {
  return procedimiento("EditarActividad",
                       [this] { editarActividad(*conBaseDatos, datos(), colGrupos_); });
}

}  // namespace fidaleon
