#include "registers/books/frmAltaLibro.h"

#include <array>

#include "core/dialogs/Guard.h"
#include "core/lists/cIListas.h"
#include "core/statements/NombreRepetido.h"
#include "core/statements/Sentencia.h"
#include "registers/books/LibroNuevo.h"
#include "registers/common/NuevaInstitucion.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCRegistry;
struct VarianteAltaLibro {
  const char* titulo;
  const char* tras;  // between "Institución" and the name of the institution
  const char* errorDeCarga;
  const char* errorDeBoton;
};

namespace {

constexpr std::array<VarianteAltaLibro, 4> VARIANTES{{
    {"Agregar libro de bautismo", "", "Form_Load()", "cmdBoton_Click()"},
    {"Agregar libro de confirmación", "", "From_Load()", "cmdBoton_Click()"},
    {"Agregar libro de matrimonio", "", "From_Load()", "cmdBoton_Click(Index As Integer)"},
    {"Agregar libro de defunción", " ", "Form_Load()", "cmdBoton_Click()"},
}};

constexpr std::int64_t NOMBRE_ABIERTO = 4;  // of Libros_TipoNombre: typed freely

bool vacio(const std::string& texto) {
  return text::trim(texto).empty();
}

}  // namespace

frmAltaLibro::frmAltaLibro(Contexto& contexto, const Sacramento& sacramento)
    : DialogoConMemoria(contexto, std::string("frmAltaLibro") + sacramento.palabra),
      cboInstituciones(*this, "cboInstituciones", "Institución:"),
      cmdAgregarInstitucion(*this, "cmdAgregarInstitucion", "Agregar Institución"),
      optNuevo(*this, "optNuevo", "Nuevo", "libro"),
      optAntiguo(*this, "optAntiguo", "Antiguo", "libro"),
      cboTipoNombre(*this, "cboTipoNombre", "Tipo de nombre:"),
      txtNombreLibro(*this, "txtNombreLibro", "Nombre del libro:"),
      cboFormato(*this, "cboFormato", "Formato:"),
      adtpAltaLibro(*this, "adtpAltaLibro", "Fecha de creación:"),
      cmdBoton(*this, "cmdBoton"),
      sacramento_(sacramento),
      variante_(VARIANTES.at(sacramento.byte)) {
  setCaption(variante_.titulo);
  prepararControles();
}

void frmAltaLibro::prepararControles() {
  forms::Button& aceptarBoton = cmdBoton.add(ACEPTAR, "ACEPTAR");
  forms::Button& cancelarBoton = cmdBoton.add(CANCELAR, "CANCELAR");
  aceptarBoton.setDefault(true);
  cancelarBoton.setCancel(true);
  optNuevo.setLabel(makeLabel("lblEleccion", "Libro nuevo o antiguo:"));
  txtNombreLibro.setQuoteRule(forms::QuoteRule::Remove);
  setLayout(forms::column({
      forms::fields(
          1, {forms::item(cboInstituciones, {&cmdAgregarInstitucion}),
              forms::item(optNuevo, {&optAntiguo}), forms::item(cboTipoNombre),
              forms::item(txtNombreLibro), forms::item(cboFormato), forms::item(adtpAltaLibro)}),
      forms::stretch(),
      forms::buttons({&aceptarBoton, &cancelarBoton}),
  }));
  cboInstituciones.onClick = [this] { cboInstituciones_Click(); };
  cmdAgregarInstitucion.onClick = [this] { cmdAgregarInstitucion_Click(); };
  optNuevo.onClick = [this] { optNuevo_Click(); };
  optAntiguo.onClick = [this] { optAntiguo_Click(); };
  cboTipoNombre.onClick = [this] { cboTipoNombre_Click(); };
  aceptarBoton.onClick = [this] { cmdBoton_Click(ACEPTAR); };
  cancelarBoton.onClick = [this] { cmdBoton_Click(CANCELAR); };
}

void frmAltaLibro::Form_Load() {
  procedimiento(variante_.errorDeCarga, [&] {
    const forms::Hourglass reloj(ui());
    cboTipoNombre.setEnabled(false);
    optNuevo.setEnabled(false);
    optAntiguo.setEnabled(false);
    txtNombreLibro.setEnabled(false);
    txtNombreLibro.setText("");
    txtNombreLibro.setLocked(true);
    cboFormato.setEnabled(false);
    elecciones_.emplace(contexto_, *conBaseDatos);
    elecciones_->vigilar({&cboInstituciones, "Institucion", "IDInstitucion", "la institución",
                          [this] { vaciarInstituciones(); }});
    cargarInstituciones();
  });
}

void frmAltaLibro::cargarInstituciones() {
  const auto listas = contexto_.entorno.support.create_cIListas();
  listas->fillInstituciones(cboInstituciones, lngInstitucion, *conBaseDatos);
  if (lngInstitucion != 0) {
    cboInstituciones.setLocked(true);
    cmdAgregarInstitucion.setEnabled(false);
    return;
  }
  cboInstituciones.selectText(
      contexto_.leerAjuste(cCRegistry::ultimos, cCRegistry::ultimos_Institucion));
  elegirUnico(cboInstituciones);
}

void frmAltaLibro::vaciarInstituciones() {
  contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstituciones, 0,
                                                                 *conBaseDatos);
}

void frmAltaLibro::cboInstituciones_Click() {
  procedimiento("cboInstituciones_Click()", [&] {
    if (cboInstituciones.text().empty()) return;
    for (forms::OptionButton* opcion : {&optNuevo, &optAntiguo}) {
      opcion->setEnabled(true);
      opcion->setValue(false);
    }
    cboTipoNombre.setEnabled(true);
    cboFormato.setEnabled(true);
    txtNombreLibro.setText("");
  });
}

void frmAltaLibro::cmdAgregarInstitucion_Click() {
  procedimiento("cmdAgregarInstitucion_Click()", [&] {
    const std::int32_t agregada = nuevaInstitucion(contexto_, *conBaseDatos);
    if (agregada == 0) return;
    cboInstituciones.clear();
    contexto_.entorno.support.create_cIListas()->fillInstituciones(cboInstituciones, agregada,
                                                                   *conBaseDatos);
  });
}

void frmAltaLibro::optNuevo_Click() {
  procedimiento("optNuevo_Click()", [&] {
    if (hayFilas(sentencia("Select * from {Libros} where codinstitucion=") + institucion() +
                 " and nuevo=1")) {
      rechazar(std::string("¡Ya existe un libro abierto para la Institución") + variante_.tras +
               cboInstituciones.text() + "!");
      return;
    }
    cIListas listas(contexto_);
    cboTipoNombre.setEnabled(true);
    listas.fillTipoNombre(cboTipoNombre, *conBaseDatos, "Nuevo");
    listas.fillFormatoLibro(cboFormato, FDAPI::cCOrigen::NuevoLibro, *conBaseDatos, 1);
    cboFormato.setEnabled(true);
    elegirUnico(cboFormato);
    txtNombreLibro.setText("");
    adtpAltaLibro.setToday(contexto_.hoy());
    adtpAltaLibro.setLocked(true);
  });
}

void frmAltaLibro::optAntiguo_Click() {
  procedimiento("optAntiguo_Click()", [&] {
    cIListas listas(contexto_);
    listas.fillTipoNombre(cboTipoNombre, *conBaseDatos, "Antiguo");
    listas.fillFormatoLibro(cboFormato, FDAPI::cCOrigen::ANTIGUOLIBRO, *conBaseDatos, 0);
    txtNombreLibro.setText("");
    adtpAltaLibro.setLocked(false);
    adtpAltaLibro.setText("");
  });
}

void frmAltaLibro::cboTipoNombre_Click() {
  procedimiento("cboTipoNombre_Click()", [&] {
    const forms::Hourglass reloj(ui());
    if (cboInstituciones.listIndex() >= 0 && cboTipoNombre.listIndex() >= 0) construirNombre();
  });
}

void frmAltaLibro::construirNombre() {
  txtNombreLibro.setEnabled(true);
  txtNombreLibro.setLocked(cboTipoNombre.data() != NOMBRE_ABIERTO);
  bool sinNombre = false;
  txtNombreLibro.setText(cIListas(contexto_).ObtenerNombreLibro(
      *conBaseDatos, cboTipoNombre.data(), cboInstituciones.data(), sacramento_.byte, sinNombre));
  if (sinNombre) cboTipoNombre.selectData(NOMBRE_ABIERTO);
}

void frmAltaLibro::cmdBoton_Click(Boton boton) {
  if (boton == CANCELAR) return Unload();
  procedimiento(variante_.errorDeBoton, [&] { aceptar(); });
}

void frmAltaLibro::aceptar() {
  if (hayFilas(sentencia("select * from {libros} where Cerrado=0 and Nuevo=1")) &&
      optNuevo.value()) {
    rechazar("¡No puede haber dos libros nuevos y abiertos a la vez!");
    return;
  }
  const forms::Hourglass reloj(ui());
  if (!ValidarDatos()) return avisarFalta();
  if (!elecciones_->siguen()) return;
  if (!GuardarDatos()) return setFocus(cboInstituciones);
  // The book is in the store: a setting that cannot be kept must not hold the dialog open.
  guarded(contexto_, name(), variante_.errorDeBoton, [&] {
    contexto_.guardarAjuste(cCRegistry::ultimos, cCRegistry::ultimos_Institucion,
                            cboInstituciones.text());
  });
  Unload();
}

bool frmAltaLibro::ValidarDatos() {
  bool completo = false;
  procedimiento("ValidarDatos()", [&] {
    completo = (optNuevo.value() || optAntiguo.value()) && !vacio(cboTipoNombre.text()) &&
               !vacio(txtNombreLibro.text()) && !vacio(cboFormato.text()) &&
               !vacio(cboInstituciones.text()) && !adtpAltaLibro.stored().empty();
  });
  return completo;
}

void frmAltaLibro::avisarFalta() {
  // Without the choice of new or old the name types have not been offered.
  const bool sinEleccion = !optNuevo.value() && !optAntiguo.value();
  const std::array<std::pair<forms::Control*, bool>, 6> orden{{
      {&cboInstituciones, vacio(cboInstituciones.text())},
      {&optNuevo, sinEleccion},
      {&cboTipoNombre, vacio(cboTipoNombre.text())},
      {&txtNombreLibro, vacio(txtNombreLibro.text())},
      {&cboFormato, vacio(cboFormato.text())},
      {&adtpAltaLibro, adtpAltaLibro.stored().empty()},
  }};
  for (const auto& [campo, falta] : orden) {
    if (!falta) continue;
    contexto_.fidaleon()->verfalta(*campo->label());
    return setFocus(*campo);
  }
}

bool frmAltaLibro::GuardarDatos() {
  bool guardado = false;
  procedimiento("GuardarDatos()", [&] {
    const std::string nombre = entreComillas(text::trim(txtNombreLibro.text()));
    if (hayFilas(sentencia("Select * from {libros} where codinstitucion=") + institucion() +
                 " and nuevo=true and cerrado=false") &&
        optNuevo.value()) {
      rechazar("¡Para la Institución " + cboInstituciones.text() +
               " ya existe un libro nuevo abierto!");
      return;
    }
    if (hayFilas(sentencia("Select * from {libros} where Nombre =") + nombre +
                 " and codinstitucion=" + institucion()) ||
        hayMismoNombre(
            *conBaseDatos,
            sentencia("Select Nombre from {libros} where codinstitucion=") + institucion(),
            txtNombreLibro.text())) {
      rechazar("¡El nombre del libro introducido ya existe!");
      return;
    }
    insertarLibro(*conBaseDatos, sacramento_,
                  {cboInstituciones.data(), cboFormato.data(), cboTipoNombre.data(),
                   text::trim(txtNombreLibro.text()), adtpAltaLibro.stored(), optNuevo.value()});
    strAgregado = text::trim(txtNombreLibro.text());
    guardado = true;
  });
  return guardado;
}

void frmAltaLibro::rechazar(const std::string& mensaje) {
  forms::warn(ui(), mensaje);
}

bool frmAltaLibro::hayFilas(const std::string& sql) {
  return conBaseDatos->Execute(sql).RecordCount() != 0;
}

std::string frmAltaLibro::institucion() const {
  return std::to_string(cboInstituciones.data());
}

std::string frmAltaLibro::sentencia(const PlantillaSql& plantilla) const {
  return fidaleon::sentencia(sacramento_, plantilla);
}

std::unique_ptr<frmAltaLibro> crearAltaLibro(Contexto& contexto, const Sacramento& sacramento) {
  switch (sacramento.byte) {
    case 0:
      return std::make_unique<frmAltaLibroBautismo>(contexto);
    case 1:
      return std::make_unique<frmAltaLibroConfirmacion>(contexto);
    case 2:
      return std::make_unique<frmAltaLibroMatrimonio>(contexto);
    default:
      return std::make_unique<frmAltaLibroDefuncion>(contexto);
  }
}

}  // namespace fidaleon
