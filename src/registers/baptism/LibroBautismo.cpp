// Institution, book, position and tabs of the baptism dialog.

#include "registers/baptism/frmPartidaBautismo.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

void frmPartidaBautismo::llenarLibros() {
  if (Operacion == cCOperacion::ANADIR) listas_->CargarComboLibrosNuevos();
  if (Operacion == cCOperacion::ANTIGUA) listas_->CargarComboLibrosAntiguos();
}

void frmPartidaBautismo::abrirPosicion(bool abierta) {
  for (const CampoLibro campo : {FOLIO, NUMERO}) txtLibro[campo].setLocked(!abierta);
}

void frmPartidaBautismo::cboInstitucion_Click() {
  procedimiento("cboBautismo_Click", [this] {
    if (!esAlta() || esSolicitud() || lngLibro != 0) return;
    llenarLibros();
    vaciarPosicion();
  });
}

void frmPartidaBautismo::vaciarPosicion() {
  for (const CampoLibro campo : {FOLIO, NUMERO}) txtLibro[campo].setText("");
}

void frmPartidaBautismo::cboLibro_Click() {
  if (esAlta()) proponerPosicion();
}

bool frmPartidaBautismo::proponerPosicion() {
  if (esSolicitud()) return true;
  bool propuesta = false;
  procedimiento("cboBautismo_Click", [&] {
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
void frmPartidaBautismo::avisarNumeroRepetido() {
  if (!posicion_ || cargando_ || txtLibro[NUMERO].locked()) return;
  posicion_->avisarNumeroRepetido(registro_.IDBautismo);
}

void frmPartidaBautismo::calcularPosicion() {
  if (desdeLista())
    posicion_->CalcularColeccionFolioyNumero(static_cast<std::int32_t>(cboBautismo[Libro].data()));
  else if (Operacion == cCOperacion::ANADIR)
    posicion_->RellenarFolioyNumero();
  else
    posicion_->ComprobarFolioyNumeroAntiguas();
}

std::vector<Posicion> frmPartidaBautismo::posicionesDeColeccion() const {
  std::vector<Posicion> posiciones;
  for (std::size_t i = 0; i < colPartidas->size(); ++i) {
    const cBautismo& item = (*colPartidas)[i];
    const bool esEsta = !esAlta() && i == lngPosicion;
    if (item.Operacion != cCOperacion::Borrar && !esEsta)
      posiciones.push_back({text::toInteger(item.FolioBautismo).value_or(0), item.NumeroBautismo});
  }
  return posiciones;
}

void frmPartidaBautismo::refrescarTitulo() {
  std::string titulo;
  switch (Operacion) {
    case cCOperacion::ANADIR:
      titulo = "Agregar partida de bautismo nueva";
      break;
    case cCOperacion::ANTIGUA:
      titulo = "Agregar partida de bautismo antigua";
      break;
    case cCOperacion::EDITAR:
      titulo =
          std::string("Propiedades de partida de bautismo ") + (libroNuevo_ ? "nueva" : "antigua");
      break;
    case cCOperacion::ANADIRSOLICITUD:
      titulo = "Agregar solicitud de bautismo";
      break;
    default:
      titulo = "Propiedades de solicitud de bautismo";
  }
  const std::string folio = txtLibro[FOLIO].text();
  const bool conPosicion = Operacion != cCOperacion::ANADIR || !folio.empty();
  if (!esSolicitud() && conPosicion)
    titulo += ". Folio:" + folio + " número:" + txtLibro[NUMERO].text();
  setCaption(titulo);
}

bool frmPartidaBautismo::faltaInstitucionOLibro() {
  std::string mensaje;
  Lista falta = Institucion;
  if (cboBautismo[Institucion].listIndex() < 0) {
    mensaje = std::string("¡Antes de introducir datos en la ") +
              (esSolicitud() ? "solicitud" : "partida") + ", tiene que elegir una Institución!";
  } else if (!esSolicitud() && cboBautismo[Libro].listIndex() < 0) {
    mensaje = "¡Antes de introducir datos en la partida, tiene que elegir un libro!";
    falta = Libro;
  }
  if (mensaje.empty()) return false;
  forms::warn(ui(), mensaje);
  mstBautismo.setTab(TAB_GENERAL);
  setFocus(cboBautismo[falta]);
  return true;
}

bool frmPartidaBautismo::faltaPosicion() {
  if (esSolicitud()) return false;
  for (const auto& [campo, nombre] : {std::pair{FOLIO, "folio"}, {NUMERO, "número"}}) {
    if (!text::trim(txtLibro[campo].text()).empty()) continue;
    forms::warn(ui(), std::string("¡Debe introducir datos en el campo ") + nombre + "!");
    mstBautismo.setTab(TAB_GENERAL);
    setFocus(txtLibro[campo]);
    return true;
  }
  return false;
}

bool frmPartidaBautismo::mstBautismo_MouseDown() {
  bool adelante = false;
  procedimiento("mstBautismo_MouseDown", [&] {
    const bool comprobar = mstBautismo.tab() == TAB_GENERAL && Operacion == cCOperacion::ANTIGUA;
    adelante = !comprobar || (elecciones_->siguen() && posicion_->comprobarPosicionTecleada());
  });
  return adelante;
}

void frmPartidaBautismo::mstBautismo_Click() {
  procedimiento("mstBautismo_Click", [this] {
    if (faltaInstitucionOLibro()) return;
    refrescarTitulo();
    for (forms::Control* control : tabOrder()) {
      if (control->strip() != &mstBautismo || !control->reachable()) continue;
      setFocus(*control);
      return;
    }
  });
}

void frmPartidaBautismo::txtLibro_LostFocus(CampoLibro indice, const forms::Control* siguiente) {
  if (siguiente == &cmdBautismo[CANCELAR] || !text::trim(txtLibro[indice].text()).empty()) return;
  if (txtLibro[indice].locked()) return;
  forms::warn(ui(), std::string("¡Debe introducir datos en el campo ") +
                        (indice == FOLIO ? "folio!" : "número!"));
  // Without a book there is no proposal either: the way back to the lists stays open.
  if (cboBautismo[Libro].listIndex() >= 0) setFocus(txtLibro[indice]);
}

}  // namespace fidaleon
