// Accepting an entry dialog: required fields, blanks, what all entries have, a further entry.

#include <limits>
#include <stdexcept>

#include "core/statements/Sentencia.h"
#include "registers/allocation/LimiteFolios.h"
#include "registers/common/Guiones.h"
#include "registers/entry/frmPartida.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using Vacios = VariantePartida::Vacios;

namespace {

/// The registers keep the institution of a request in one byte.
std::int32_t institucionDeSolicitud(std::int64_t id) {
  if (id < 0 || id > std::numeric_limits<std::uint8_t>::max())
    throw std::overflow_error("Desbordamiento: la clave de la institución (" + std::to_string(id) +
                              ") es mayor que 255 y la solicitud no puede guardarla.");
  return static_cast<std::int32_t>(id);
}

bool enBlanco(const forms::TextBox& campo) {
  return text::trim(campo.text()).empty();
}

}  // namespace

void frmPartida::aceptar() {
  completarCampos();
  if (faltaInstitucionOLibro() || !elecciones_->siguen() || faltaPosicion()) return;
  if (!mst_MouseDown()) return;
  if (pasaLimite()) {
    forms::warn(ui(), MENSAJE_LIMITE_FOLIOS);
    mstPartida.setTab(TAB_GENERAL);
    return;
  }
  if (!ComprobarCampos() || !ComprobarDatosBaseDatos()) return;
  // Questions have been standing since: what they were about may have gone.
  if (!elecciones_->siguen() || !GrabarDatosColeccion()) return;
  ocupadas_.reset();
  esAlta() ? otraPartida() : Unload();
}

bool frmPartida::pasaLimite() const {
  if (esAlta() && posicion_->limiteSuperado()) return true;
  const bool tecleado =
      !txtLibro[FOLIO].locked() && text::trim(txtLibro[FOLIO].text()) != datos().folio;
  return variante_.limiteAlTeclear && tecleado && posicion_->pasaLimite();
}

bool frmPartida::ComprobarCampos() {
  if (faltaNombre() || pasaDeSuLimite() || !fechasRevisadas_.aceptar() || !preguntarPorVacios())
    return false;
  rellenarGuiones();
  return true;
}

bool frmPartida::faltaNombre() {
  for (const Persona& persona : personas_)
    for (forms::TextBox* campo : {persona.nombre, persona.primero}) {
      if (!enBlanco(*campo)) continue;
      contexto_.fidaleon()->verfalta(*campo->label());
      mstPartida.setTab(campo->page());
      setFocus(*campo);
      return true;
    }
  return false;
}

bool frmPartida::pasaDeSuLimite() {
  for (const auto& [campo, maximo] : limites_) {
    if (text::toInteger(campo->text()).value_or(0) <= maximo) continue;
    const std::string& etiqueta = campo->label()->caption();
    forms::warn(ui(), "«" + etiqueta.substr(0, etiqueta.find(':')) + "» no puede pasar de " +
                          std::to_string(maximo) + ".");
    mstPartida.setTab(campo->page());
    setFocus(*campo);
    return true;
  }
  return false;
}

bool frmPartida::preguntarPorVacios() {
  const VariantePartida::PreguntaVacios& p = variante_.vacios;
  const Vacios cuales = esSolicitud()                       ? p.solicitud
                        : Operacion == cCOperacion::ANADIR  ? p.nueva
                        : Operacion == cCOperacion::ANTIGUA ? p.antigua
                                                            : p.edicion;
  const bool todoBloqueado = anulada_ && variante_.alAnular != VariantePartida::AlAnular::Posicion;
  if (cuales == Vacios::Callar || todoBloqueado || (p.unaVez && vaciosConsentidos_)) return true;
  if (!textosVacios() && (cuales == Vacios::Textos || !otrosVacios())) return true;
  return vaciosConsentidos_ = forms::ask(ui(), p.texto);
}

bool frmPartida::textosVacios() const {
  for (const forms::TextBox* campo : textos_) {
    const bool cuenta =
        (campo != notas_ || variante_.vacios.notas) && !prescindibles_.contains(campo);
    if (cuenta && campo->visible() && enBlanco(*campo)) return true;
  }
  return false;
}

bool frmPartida::otrosVacios() const {
  for (const forms::DateField* fecha : fechas_)
    if (fecha->stored().empty()) return true;
  for (const ParProvinciaPoblacion& par : pares_)
    if (par.visible() && par.valor() == 0) return true;
  for (const forms::TimeField* hora : horas_)
    if (hora->stored().empty()) return true;
  for (const forms::ComboBox* lista : elegibles_)
    if (lista->listIndex() < 0) return true;
  return false;
}

void frmPartida::rellenarGuiones() {
  cargando_ = true;
  // What an edition does not show is stored so without being written.
  for (forms::TextBox* campo : textos_)
    if (campo->visible() && enBlanco(*campo)) campo->setText(GUIONES);
  cargando_ = false;
}

DatosPartida frmPartida::datosTecleados(DatosPartida d) const {
  d.anulada = anulada_;
  d.folio = esSolicitud() ? "0" : text::trim(txtLibro[FOLIO].text());
  d.numero = esSolicitud() ? GUIONES : text::trim(txtLibro[NUMERO].text());
  if (esSolicitud()) {
    d.institucion = institucionDeSolicitud(institucion().data());
    d.libro = 0;
  } else if (esAlta()) {
    const store::Recordset fila = conBaseDatos->Execute(
        sentencia(sacramento(), "SELECT {idlibro} FROM {libros} WHERE nombre=") +
        entreComillas(libro().text()) +
        " AND codinstitucion=" + std::to_string(institucion().data()));
    d.institucion = 0;
    d.libro = static_cast<std::int32_t>(fila.integer(sacramento().claveLibro));
  }
  return d;
}

void frmPartida::moverFechaDelLibro() const {
  using enum VariantePartida::FechaDelLibro;
  const std::string fecha = fechaSacramento_->stored();
  if (Operacion != cCOperacion::ANTIGUA || fecha.empty()) return;
  const bool primera =
      text::trim(txtLibro[FOLIO].text()) == "1" && text::trim(txtLibro[NUMERO].text()) == "1";
  if (variante_.fechaDelLibro != Adelanta && !primera) return;
  const store::Recordset fila = conBaseDatos->Execute(
      sentencia(sacramento(), "SELECT {idlibro},fechacreacion FROM {libros} WHERE nombre=") +
      entreComillas(libro().text()) +
      " AND codinstitucion=" + std::to_string(institucion().data()));
  const std::string creacion = fila.text("fechacreacion");
  const bool mueve =
      variante_.fechaDelLibro == AtrasaLaPrimera ? fecha < creacion : fecha > creacion;
  if (mueve)
    conBaseDatos->Execute(sentencia(sacramento(), "UPDATE {Libros} SET FechaCreacion=") +
                          entreComillas(fecha) + sentencia(sacramento(), " WHERE {idlibro}=") +
                          fila.text(sacramento().claveLibro));
}

void frmPartida::otraPartida() {
  markSaved();
  if (!desdeLista())
    procedimiento(suceso(cmdPartida[ACEPTAR], "Click").c_str(),
                  [this] { listas_->guardarUltimaInstitucion(); });
  if (!forms::ask(ui(), esSolicitud() ? "¿Desea dar de alta nuevas solicitudes?"
                                      : "¿Desea dar de alta nuevas partidas?"))
    return Unload();
  const Posicion anterior = posicion_->enCampos();
  cargando_ = true;
  limpiarCampos(true);
  preestablecer();
  cargando_ = false;
  mstPartida.setTab(TAB_GENERAL);
  const bool propuesta = proponerPosicion();
  if (propuesta && !esSolicitud()) posicion_->avisarSalto(anterior);
  refrescarTitulo();
  markSaved();
  if (propuesta && !posicion_->limiteSuperado() && !serie_.empty()) return irAlNombre();
  focusFirst();
}

/// What is typed next in a series: the position follows by itself.
void frmPartida::irAlNombre() {
  forms::TextBox& nombre = *personas_.front().nombre;
  mstPartida.setTab(nombre.page());
  setFocus(nombre);
}

void frmPartida::anular() {
  completarCampos();
  const bool valida = variante_.alAnular == VariantePartida::AlAnular::Posicion ||
                      (!faltaInstitucionOLibro() && ComprobarCampos());
  if (!valida) return;
  anulada_ = !anulada_;
  mostrarAnulada();
}

std::string frmPartida::ownWork() const {
  if (anulada_ == datos().anulada) return {};
  return std::string("Anulada: ") + (anulada_ ? "sí" : "no") + "\n";
}

std::string frmPartida::putBackOwnWork(const std::string& work) {
  if (ownWork() != work) {
    anulada_ = !anulada_;
    mostrarAnulada();
  }
  return ownWork() == work ? std::string() : work;
}

}  // namespace fidaleon
