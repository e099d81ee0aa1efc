// Accepting the baptism dialog: required fields, building the record, storing, a further entry.

#include <limits>
#include <stdexcept>

#include "core/statements/Citas.h"
#include "registers/allocation/LimiteFolios.h"
#include "registers/baptism/frmPartidaBautismo.h"
#include "registers/cBaseDatos.h"
#include "registers/common/Guiones.h"
#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;

namespace {

/// What an untouched field stands for: a stored text that the field cannot show stays as it is.
std::string valorDe(const forms::TextBox& campo, const std::string& legible,
                    const std::string& guardado, bool seMuestra) {
  return campo.text().empty() && !seMuestra ? oGuiones(guardado) : oGuiones(legible);
}

bool ofrece(const forms::ComboBox& lista, const std::string& texto) {
  for (int i = 0; i < lista.listCount(); ++i)
    if (lista.list(i) == texto) return true;
  return false;
}

/// The register keeps the institution of a request in one byte.
std::uint8_t institucionDeSolicitud(std::int64_t id) {
  if (id < 0 || id > std::numeric_limits<std::uint8_t>::max())
    throw std::overflow_error("Desbordamiento: la clave de la institución (" + std::to_string(id) +
                              ") es mayor que 255 y la solicitud no puede guardarla.");
  return static_cast<std::uint8_t>(id);
}

}  // namespace

void frmPartidaBautismo::aceptar() {
  if (faltaInstitucionOLibro() || !elecciones_->siguen() || faltaPosicion()) return;
  if (!mstBautismo_MouseDown()) return;
  if (esAlta() && posicion_->limiteSuperado()) {
    forms::warn(ui(), MENSAJE_LIMITE_FOLIOS);
    mstBautismo.setTab(TAB_GENERAL);
    return;
  }
  if (!ComprobarCampos() || !ComprobarDatosBaseDatos()) return;
  // Questions have been standing since: what they were about may have gone.
  if (!elecciones_->siguen()) return;
  if (!esAlta()) {
    if (guardarEdicion()) Unload();
  } else if (guardarAlta()) {
    otraPartida();
  }
}

bool frmPartidaBautismo::ComprobarCampos() {
  for (const Texto obligado : {NombreHijo, PrimerApellidoHijo}) {
    forms::TextBox& campo = txtBautismo[obligado];
    if (!text::trim(campo.text()).empty()) continue;
    contexto_.fidaleon()->verfalta(*campo.label());
    mstBautismo.setTab(TAB_BAUTIZADO);
    setFocus(campo);
    return false;
  }
  if (!fechasRevisadas_.aceptar()) return false;
  if (Operacion == cCOperacion::ANADIR && hayCamposVacios() &&
      !forms::ask(ui(),
                  "Tiene campos sin rellenar. Estos campos se rellenarán con guiones. "
                  "¿Desea continuar?"))
    return false;
  rellenarGuiones();
  return true;
}

bool frmPartidaBautismo::hayCamposVacios() const {
  for (const auto& e : textos_)
    if (e.campo->visible() && text::trim(e.campo->text()).empty()) return true;
  for (const auto& e : fechas_)
    if (e.campo->stored().empty()) return true;
  for (const auto& e : municipios_)
    if (e.campo->visible() && e.campo->valor() == 0) return true;
  return txtHoraNac.stored().empty() || cboBautismo[Sexo].listIndex() < 0;
}

void frmPartidaBautismo::rellenarGuiones() {
  cargando_ = true;
  for (const auto& e : textos_)
    if (text::trim(e.campo->text()).empty()) e.campo->setText(GUIONES);
  cargando_ = false;
}

cBautismo frmPartidaBautismo::leerCampos() const {
  cBautismo partida = registro_;
  for (const auto& e : textos_)
    partida.*e.miembro =
        e.campo->multiline() ? oGuiones(e.campo->text()) : nombreGuardado(e.campo->text());
  for (const auto& e : fechas_) {
    const std::string& guardada = registro_.*e.miembro;
    partida.*e.miembro =
        valorDe(*e.campo, e.campo->stored(), guardada, text::parseStored(guardada).has_value());
  }
  for (const auto& e : municipios_) partida.*e.miembro = e.campo->valor();
  partida.HoraNacHijo = valorDe(txtHoraNac, txtHoraNac.stored(), registro_.HoraNacHijo,
                                text::parseTime(registro_.HoraNacHijo).has_value());
  const bool sinElegir = cboBautismo[Sexo].listIndex() < 0;
  partida.SexoHijo = sinElegir && !ofrece(cboBautismo[Sexo], registro_.SexoHijo)
                         ? oGuiones(registro_.SexoHijo)
                         : oGuiones(cboBautismo[Sexo].text());
  partida.AnuladaBautismo = anulada_;
  partida.FolioBautismo = esSolicitud() ? "0" : text::trim(txtLibro[FOLIO].text());
  partida.NumeroBautismo = esSolicitud() ? GUIONES : text::trim(txtLibro[NUMERO].text());
  return partida;
}

cBautismo frmPartidaBautismo::GrabarDatosColeccion() {
  cBautismo partida = leerCampos();
  if (esSolicitud()) {
    partida.CodInstitucionBautismo = institucionDeSolicitud(cboBautismo[Institucion].data());
    partida.CodLibroBautismo = 0;
  } else if (esAlta()) {
    const store::Recordset libro =
        conBaseDatos->Execute("SELECT idlibrobautismo FROM libro_bautismo WHERE nombre=" +
                              entreComillas(cboBautismo[Libro].text()) + " AND codinstitucion=" +
                              std::to_string(cboBautismo[Institucion].data()));
    partida.CodInstitucionBautismo = 0;
    partida.CodLibroBautismo = static_cast<std::int32_t>(libro.integer("idlibrobautismo"));
  }
  partida.IDLibroBautismo = partida.CodLibroBautismo;
  // An item that only the list knows is still to be added, however often it is opened.
  if (esAlta() || partida.Estado) partida.Operacion = Operacion;
  if (Operacion == cCOperacion::EDITAR && Origen == cCOrigen::PRINCIPAL) {
    const store::Recordset enlaces = conBaseDatos->Execute(
        "SELECT codpadres,codmadres,codmatrimonio FROM bautismo WHERE idbautismo=" +
        std::to_string(partida.IDBautismo));
    partida.CodPadres = static_cast<std::int32_t>(enlaces.integer("codpadres"));
    partida.CodMadres = static_cast<std::int32_t>(enlaces.integer("codmadres"));
    partida.CodMatrimonio = static_cast<std::int32_t>(enlaces.integer("codmatrimonio"));
  }
  return partida;
}

void frmPartidaBautismo::adelantarFechaDelLibro(const cBautismo& partida) {
  if (Operacion != cCOperacion::ANTIGUA || partida.FechaBautismo == GUIONES) return;
  const store::Recordset libro = conBaseDatos->Execute(
      "SELECT idlibrobautismo,fechacreacion FROM libro_bautismo WHERE nombre=" +
      entreComillas(cboBautismo[Libro].text()) +
      " AND codinstitucion=" + std::to_string(cboBautismo[Institucion].data()));
  if (partida.FechaBautismo <= libro.text("fechacreacion")) return;
  conBaseDatos->Execute(
      "UPDATE libro_Bautismo SET FechaCreacion=" + entreComillas(partida.FechaBautismo) +
      " WHERE idlibrobautismo=" + libro.text("idlibrobautismo"));
}

bool frmPartidaBautismo::guardarAlta() {
  cBautismo partida = GrabarDatosColeccion();
  if (desdeLista()) {
    adelantarFechaDelLibro(partida);
    colPartidas->push_back(std::move(partida));
    return true;
  }
  ColeccionBautismo coleccion{std::move(partida)};
  const cBautismo& intentada = coleccion.front();
  // The entry and the date of the book, which it may move, come together or not at all.
  TransaccionSinVuelta transaccion(contexto_, *conBaseDatos);
  adelantarFechaDelLibro(intentada);
  almacenar(coleccion);
  transaccion.terminar();
  // An entry that reached the table must not be stored a second time, and one that got there
  // without its child is gone on with, or taken back when the dialog closes.
  registro_.IDBautismo = intentada.Estado ? 0 : intentada.IDBautismo;
  registro_.CodPadres = intentada.CodPadres;
  registro_.CodMadres = intentada.CodMadres;
  registro_.CodMatrimonio = intentada.CodMatrimonio;
  return intentada.Estado;
}

bool frmPartidaBautismo::guardarEdicion() {
  cBautismo partida = GrabarDatosColeccion();
  if (!ComprobarCambios(partida)) return true;
  ColeccionBautismo coleccion{std::move(partida)};
  if (!desdeLista()) return almacenar(coleccion);
  colPartidas->at(lngPosicion) = std::move(coleccion.front());
  return true;
}

bool frmPartidaBautismo::almacenar(ColeccionBautismo& coleccion) {
  bool blnSalto = false;
  return cBaseDatos(contexto_).GrabarColeccionBasesDatos(*conBaseDatos, coleccion, blnSalto);
}

void frmPartidaBautismo::otraPartida() {
  markSaved();
  if (!desdeLista())
    procedimiento("cmdBautismo_Click", [this] { listas_->guardarUltimaInstitucion(); });
  if (!forms::ask(ui(), esSolicitud() ? "¿Desea dar de alta nuevas solicitudes?"
                                      : "¿Desea dar de alta nuevas partidas?"))
    return Unload();
  const Posicion anterior = posicion_->enCampos();
  cargando_ = true;
  limpiarCampos();
  cargando_ = false;
  mstBautismo.setTab(TAB_GENERAL);
  if (proponerPosicion() && !esSolicitud()) posicion_->avisarSalto(anterior);
  refrescarTitulo();
  markSaved();
  focusFirst();
}

void frmPartidaBautismo::anular() {
  anulada_ = !anulada_;
  mostrarAnulada();
}

std::string frmPartidaBautismo::ownWork() const {
  if (anulada_ == registro_.AnuladaBautismo) return {};
  return std::string("Anulada: ") + (anulada_ ? "sí" : "no") + "\n";
}

std::string frmPartidaBautismo::putBackOwnWork(const std::string& work) {
  if (ownWork() != work) anular();
  return ownWork() == work ? std::string() : work;
}

}  // namespace fidaleon
