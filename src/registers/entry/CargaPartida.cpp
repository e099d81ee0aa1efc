// Opening an entry dialog in its modes.

#include <stdexcept>
#include <utility>

#include "core/statements/Sentencia.h"
#include "forms/Held.h"
#include "registers/common/Guiones.h"
#include "registers/entry/frmPartida.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;

namespace {

constexpr const char* MENSAJE_QUEDA_A_MEDIAS =
    "La partida ha quedado guardada a medias y no se ha podido retirar. La encontrará en Registro, "
    "«Partidas incompletas».";

}  // namespace

bool frmPartida::esSolicitud() const {
  return Operacion == cCOperacion::ANADIRSOLICITUD || Operacion == cCOperacion::EDITARSOLICITUD;
}

bool frmPartida::esAlta() const {
  return Operacion == cCOperacion::ANADIR || Operacion == cCOperacion::ANTIGUA ||
         Operacion == cCOperacion::ANADIRSOLICITUD;
}

void frmPartida::Form_Load() {
  // Half-loaded fields must never be accepted over what is stored.
  if (!procedimiento("Form_Load", [this] { cargar(); })) {
    if (variante_.avisaCargaFallida) forms::warn(ui(), variante_.cargaIncompleta);
    return Unload();
  }
  cargando_ = false;
  procedimiento("Form_Load", [this] { avisarNumeroRepetido(); });
}

/// What a failure left in the tables without all its rows stands in no list.
void frmPartida::Form_Unload() {
  if (esAlta() && !desdeLista() && !retirarAMedias()) forms::warn(ui(), MENSAJE_QUEDA_A_MEDIAS);
}

void frmPartida::cargar() {
  const forms::Hourglass reloj(ui());
  cargando_ = true;
  ocupadas_.reset();
  if (!strPortapapeles.empty()) ui().setClipboardText(strPortapapeles);
  listas_->abrir(*conBaseDatos);
  refrescarMemoria();
  posicion_->abrir(*conBaseDatos, Origen);
  vigilarElecciones();
  for (ParProvinciaPoblacion& par : pares_) par.abrir(*conBaseDatos);
  mostrarModo();
  limpiarCampos(false);
  if (esSolicitud()) prepararSolicitud();
  if (Operacion == cCOperacion::ANADIR || Operacion == cCOperacion::ANTIGUA) prepararAlta();
  if (Operacion == cCOperacion::EDITAR) prepararEdicion();
  alCargar();
  refrescarTitulo();
  // An update of a row that is gone would lose what is typed for it.
  if (!incompleta_) return;
  forms::warn(ui(), variante_.cargaIncompleta);
  setReadOnly({"Solo se puede consultar: faltan datos de esta partida en la base de datos.", {}});
}

void frmPartida::vigilarElecciones() {
  elecciones_.emplace(contexto_, *conBaseDatos);
  elecciones_->vigilar({&institucion(), "Institucion", "IDInstitucion", "la institución", [this] {
                          listas_->cargarInstituciones(0);
                          libro().clear();
                          vaciarPosicion();
                        }});
  elecciones_->vigilar(
      {&libro(), sacramento().tablaLibros, sacramento().claveLibro, "el libro", [this] {
         llenarLibros();
         vaciarPosicion();
       }});
  for (ParProvinciaPoblacion& par : pares_)
    elecciones_->vigilar({&par.poblacion(), "Municipio", "IDMunicipio", "la población",
                          [&par] { par.olvidarPoblacion(); }});
}

void frmPartida::mostrarModo() {
  cmdPartida[ANULAR].setVisible((Operacion == cCOperacion::ANTIGUA && variante_.anularAntigua) ||
                                (Operacion == cCOperacion::EDITAR && variante_.anularEdicion));
  const bool sinNotas = esSolicitud() ? !variante_.notasEnSolicitud
                                      : Operacion == cCOperacion::ANADIR && !variante_.notasEnNueva;
  notas_->setVisible(!sinNotas);
  for (forms::Control* campo : deHoy_) campo->setPassedByEnter(Operacion == cCOperacion::ANTIGUA);
}

void frmPartida::limpiarCampos(bool quedaLaSerie) {
  const auto queda = [&](const forms::Control& c) { return quedaLaSerie && serie_.contains(&c); };
  vaciarRegistro();
  for (Persona& persona : personas_) persona.busqueda.empezar();
  propuestos_.clear();
  hechos_.clear();
  for (forms::TextBox* campo : textos_) {
    if (!queda(*campo)) campo->setText("");
    propuestos_[campo] = campo->text();
  }
  for (ParProvinciaPoblacion& par : pares_)
    if (!queda(par.poblacion())) par.poner(0);
  for (forms::ComboBox* lista : elegibles_)
    if (!queda(*lista)) lista->setListIndex(-1);
  for (forms::TimeField* hora : horas_)
    if (!queda(*hora)) hora->setText("");
  fechasRevisadas_.empezar(Operacion == cCOperacion::ANADIR, queda);
  anulada_ = false;
  mostrarAnulada();
  LimpiarDatos();
}

void frmPartida::prepararAlta() {
  listas_->cargarInstituciones(lngInstitucion);
  abrirPosicion(Operacion == cCOperacion::ANTIGUA);
  if (lngInstitucion != 0) {
    institucion().setLocked(true);
    cmdAltaInstitucion.setEnabled(false);
  }
  if (lngLibro != 0) {
    const store::Recordset fila = conBaseDatos->Execute(
        sentencia(sacramento(), "SELECT nuevo,nombre FROM {libros} WHERE {idlibro}=") +
        std::to_string(lngLibro));
    if (!fila.flag("nuevo")) {
      Operacion = cCOperacion::ANTIGUA;
      mostrarModo();
      fechasRevisadas_.empezar(false);
      abrirPosicion(true);
      preestablecer();
    }
    libro().setLocked(true);
    cmdAltaLibro.setEnabled(false);
    listas_->fijarLibro(lngLibro, fila.text("nombre"));
  } else if (lngInstitucion != 0) {
    llenarLibros();
  }
  if (Origen == cCOrigen::PRINCIPAL && lngInstitucion == 0) listas_->elegirUltimaInstitucion();
  elegirUnico(institucion());
  if (lngLibro == 0) elegirUnico(libro());
}

void frmPartida::prepararSolicitud() {
  libro().setVisible(false);
  fraLibro.setVisible(false);
  cmdAltaLibro.setVisible(false);
  fechasRevisadas_.permitirFuturo(*fechaSacramento_);  // it is still to be held
  const bool edicion = Operacion == cCOperacion::EDITARSOLICITUD;
  if (edicion) {
    incompleta_ = !leerRegistro();
    InstitucionSolicitud = datos().institucion;
  }
  listas_->cargarInstituciones(edicion ? 0 : InstitucionSolicitud);
  if (edicion) {
    const bool esta = institucion().selectData(InstitucionSolicitud);
    if (!esta && variante_.fijaInstitucionDeSolicitud) {
      // No other can be chosen in its stead: what there is can still be read.
      institucion().setListIndex(institucion().addItem(GUIONES, InstitucionSolicitud));
      incompleta_ = true;
    }
    institucion().setLocked(variante_.fijaInstitucionDeSolicitud);
    cmdAltaInstitucion.setEnabled(!variante_.fijaInstitucionDeSolicitud);
    mostrarLeida();
  } else if (InstitucionSolicitud == 0) {
    listas_->elegirUltimaInstitucion();
    elegirUnico(institucion());
  }
}

void frmPartida::prepararEdicion() {
  incompleta_ = !leerRegistro();
  const DatosPartida leidos = datos();
  const store::Recordset fila = conBaseDatos->Execute(
      sentencia(sacramento(), "SELECT nuevo,nombre,codinstitucion FROM {libros} WHERE {idlibro}=") +
      std::to_string(leidos.libro));
  if (fila.EOF_()) throw std::runtime_error("El libro de la partida ya no existe.");
  libroNuevo_ = fila.flag("nuevo");
  listas_->cargarInstituciones(static_cast<std::int32_t>(fila.integer("codinstitucion")));
  listas_->fijarLibro(leidos.libro, fila.text("nombre"));
  institucion().setLocked(true);
  libro().setLocked(true);
  cmdAltaInstitucion.setEnabled(false);
  cmdAltaLibro.setEnabled(false);
  anulada_ = leidos.anulada;
  mostrarLeida();
  mostrarAnulada();
}

void frmPartida::seguirCorrigiendo() {
  libroNuevo_ = Operacion == cCOperacion::ANADIR;
  Operacion = esSolicitud() ? cCOperacion::EDITARSOLICITUD : cCOperacion::EDITAR;
  lngID = datos().id;
  for (forms::ComboBox* lista : {&institucion(), &libro()}) lista->setLocked(true);
  for (forms::Button* boton : {&cmdAltaInstitucion, &cmdAltaLibro}) boton->setEnabled(false);
  mostrarModo();
  mostrarAnulada();
  refrescarTitulo();
}

void frmPartida::mostrarLeida() {
  mostrarRegistro();
  const DatosPartida leidos = datos();
  txtLibro[FOLIO].setText(leidos.folio);
  txtLibro[NUMERO].setText(leidos.numero);
  for (Persona& persona : personas_) persona.busqueda.empezarConElPar();
}

void frmPartida::mostrarAnulada() {
  lblPartidaAnulada.setVisible(anulada_);
  cmdPartida[ANULAR].setCaption(anulada_ ? "&Validar" : "A&nular");
  if (Operacion == cCOperacion::EDITAR) abrirPosicion(!libroNuevo_);
  bloquear(anulada_);
}

/// What was locked for another reason stays so when the entry is valid again.
void frmPartida::bloquear(bool anulada) {
  for (const auto& devolver : std::exchange(bloqueados_, {})) devolver();
  if (!anulada) return;
  const auto fijar = [this](auto& control) {
    if (control.locked()) return;
    control.setLocked(true);
    control.Tag = forms::HELD;
    bloqueados_.push_back([&control] {
      control.setLocked(false);
      control.Tag.clear();
    });
  };
  const bool soloPosicion = variante_.alAnular == VariantePartida::AlAnular::Posicion;
  if (!soloPosicion || Operacion == cCOperacion::EDITAR)
    for (const CampoLibro campo : {FOLIO, NUMERO}) fijar(txtLibro[campo]);
  if (soloPosicion) return;
  const bool quedanNotas = variante_.alAnular == VariantePartida::AlAnular::TodoMenosNotas;
  for (forms::TextBox* campo : textos_)
    if (campo != notas_ || !quedanNotas) fijar(*campo);
  for (forms::TextBox* campo : anexos_) fijar(*campo);
  for (forms::DateField* campo : fechas_) fijar(*campo);
  for (forms::TimeField* campo : horas_) fijar(*campo);
  for (const auto& [indice, lista] : cboPartida.all()) fijar(*lista);
  std::vector<forms::Control*> apagados{&cmdAltaInstitucion, &cmdAltaLibro, &cmdAltaProvincia,
                                        &cmdAltaPoblacion};
  apagados.insert(apagados.end(), marcas_.begin(), marcas_.end());
  for (forms::Control* control : apagados) {
    if (!control->enabled()) continue;
    control->setEnabled(false);
    bloqueados_.push_back([control] { control->setEnabled(true); });
  }
}

}  // namespace fidaleon
