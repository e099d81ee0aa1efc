// Institution, book, position and tabs of an entry dialog.

#include "registers/entry/frmPartida.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void frmPartida::llenarLibros() {
  if (Operacion == cCOperacion::ANADIR) listas_->CargarComboLibrosNuevos();
  if (Operacion == cCOperacion::ANTIGUA) listas_->CargarComboLibrosAntiguos();
}

void frmPartida::abrirPosicion(bool abierta) {
  for (const CampoLibro campo : {FOLIO, NUMERO}) txtLibro[campo].setLocked(!abierta);
}

void frmPartida::vaciarPosicion() {
  for (const CampoLibro campo : {FOLIO, NUMERO}) txtLibro[campo].setText("");
}

bool frmPartida::proponerPosicion() {
  if (esSolicitud()) return true;
  bool propuesta = false;
  procedimiento(suceso(libro(), "Click").c_str(), [&] {
    if (!elecciones_->siguen()) return;
    calcularPosicion();
    propuesta = true;
  });
  // A position that could not be worked out must not be taken for the one of the entry before.
  if (!propuesta) vaciarPosicion();
  avisarNumeroRepetido();
  return propuesta;
}

/// Only where the number can be typed: a new book counts by itself.
void frmPartida::avisarNumeroRepetido() {
  if (!posicion_ || cargando_ || txtLibro[NUMERO].locked()) return;
  posicion_->avisarNumeroRepetido(datos().id);
}

void frmPartida::calcularPosicion() {
  if (desdeLista())
    posicion_->CalcularColeccionFolioyNumero(static_cast<std::int32_t>(libro().data()));
  else if (Operacion == cCOperacion::ANADIR)
    posicion_->RellenarFolioyNumero();
  else
    posicion_->ComprobarFolioyNumeroAntiguas();
}

const std::vector<Posicion>& frmPartida::posicionesDeColeccion() {
  if (!ocupadas_) ocupadas_ = posicionesEnLista();
  return *ocupadas_;
}

store::Recordset frmPartida::filaDeInstitucion() const {
  return conBaseDatos->Execute("SELECT * FROM institucion WHERE nombre=" +
                               entreComillas(institucion().text()));
}

bool frmPartida::faltaInstitucionOLibro() {
  std::string mensaje;
  forms::ComboBox* falta = &institucion();
  if (falta->listIndex() < 0) {
    mensaje = std::string("¡Antes de introducir datos en la ") +
              (esSolicitud() ? "solicitud" : "partida") + ", tiene que elegir una " +
              variante_.institucion + "!";
  } else if (!esSolicitud() && libro().listIndex() < 0) {
    mensaje = "¡Antes de introducir datos en la partida, tiene que elegir un libro!";
    falta = &libro();
  }
  if (mensaje.empty()) return false;
  forms::warn(ui(), mensaje);
  mstPartida.setTab(TAB_GENERAL);
  setFocus(*falta);
  return true;
}

bool frmPartida::faltaPosicion() {
  if (esSolicitud()) return false;
  for (const auto& [campo, nombre] : {std::pair{FOLIO, "folio"}, {NUMERO, "número"}}) {
    if (!text::trim(txtLibro[campo].text()).empty()) continue;
    forms::warn(ui(), std::string("¡Debe introducir datos en el campo ") + nombre + "!");
    mstPartida.setTab(TAB_GENERAL);
    setFocus(txtLibro[campo]);
    return true;
  }
  return false;
}

}  // namespace fidaleon
