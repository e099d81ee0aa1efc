#include "census/search/frmPadronNotas.h"

#include <algorithm>

#include "core/contract/Teclado.h"
#include "core/dialogs/Guard.h"
#include "text/Utf8.h"

namespace fidaleon {

using FDAPI::cCOperacion;

namespace {

constexpr int MAXIMO_TITULO = 255;
constexpr int LINEAS_DESCRIPCION = 8;

}  // namespace

frmPadronNotas::frmPadronNotas(Contexto& contexto)
    : Dialogo(contexto, "frmPadronNotas"),
      txtTitulo(*this, "txtTitulo", "TÍTULO:"),
      txtDescripcion(*this, "txtDescripcion", "DESCRIPCIÓN:"),
      cmdPadronNota(*this, "cmdPadronNota") {
  setEntersFields(introPasaDeCampo(contexto.entorno.settings));
  txtTitulo.setMaxLength(MAXIMO_TITULO);
  txtDescripcion.setLines(LINEAS_DESCRIPCION);
  cmdPadronNota.add(ACEPTAR, "ACEPTAR").setDefault(true);
  cmdPadronNota.add(CANCELAR, "CANCELAR").setCancel(true);
  cmdPadronNota[ACEPTAR].onClick = [this] { cmdPadronNota_Click(); };
  cmdPadronNota[CANCELAR].onClick = [this] { Unload(); };
  setLayout(forms::column({forms::fields(1, {forms::item(txtTitulo), forms::item(txtDescripcion)}),
                           forms::buttons({&cmdPadronNota[ACEPTAR], &cmdPadronNota[CANCELAR]})}));
}

void frmPadronNotas::Form_Load() {
  if (!procedimiento("Form_Load", [this] { cargar(); })) Unload();
}

void frmPadronNotas::cargar() {
  setCaption("Agregar nota personal");
  if (Operacion != cCOperacion::EDITAR) return;
  const cPadronNotas& nota = colNotas->at(posicion);
  setCaption("Propiedades nota personal " + nota.Nombre);
  txtTitulo.setText(nota.Nombre);
  txtDescripcion.setText(nota.Descripcion);
}

void frmPadronNotas::cmdPadronNota_Click() {
  procedimiento("cmdPadronNota_Click(", [this] { aceptar(); });
}

void frmPadronNotas::aceptar() {
  const bool sinTitulo = text::trim(txtTitulo.text()).empty();
  if (sinTitulo || tituloEnUso()) {
    forms::warn(ui(), sinTitulo ? "¡Debe introducir un título para la nota personal!"
                                : "¡Existe una nota personal con el mismo nombre!");
    return setFocus(txtTitulo);
  }
  guardar();
  if (refrescar) refrescar();
  Unload();
}

// By position, since notes that are not stored yet share the key 0.
bool frmPadronNotas::tituloEnUso() const {
  const std::string titulo = text::upper(txtTitulo.text());
  for (int i = 0; i < static_cast<int>(colNotas->size()); ++i) {
    const cPadronNotas& nota = (*colNotas)[i];
    const bool otra = Operacion != cCOperacion::EDITAR || i != posicion;
    if (otra && nota.Operacion != cCOperacion::Borrar && text::upper(nota.Nombre) == titulo)
      return true;
  }
  return false;
}

void frmPadronNotas::guardar() {
  const bool nueva = Operacion != cCOperacion::EDITAR;
  if (nueva) colNotas->emplace_back().Operacion = cCOperacion::ANADIR;
  cPadronNotas& nota = nueva ? colNotas->back() : colNotas->at(posicion);
  nota.Nombre = txtTitulo.text();
  nota.Descripcion = txtDescripcion.text();
  if (nota.Estado) nota.Operacion = cCOperacion::EDITAR;
}

}  // namespace fidaleon
