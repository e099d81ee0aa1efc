#include "registers/lookup/frmDetallePadres.h"

#include "registers/lookup/FormasDetalle.h"

namespace fidaleon {

frmDetallePadres::frmDetallePadres(Contexto& contexto)
    : Dialogo(contexto, "frmDetallePadres"),
      lblDetalle(*this, "lblDetalle"),
      txtDetalle(*this, "txtDetalle"),
      cmdCerrar(*this, "cmdCerrar", "&Cerrar") {
  forms::Nodes lineas;
  for (int i = 0; i < FormaDetalle::LINEAS; ++i) {
    lblDetalle.add(i);
    forms::TextBox& linea = txtDetalle.add(i);
    linea.setLabel(lblDetalle[i]);
    linea.setLocked(true);
    linea.setWidthChars(80);
    linea.setLines(2);
    linea.setGrows(true);
    lineas.push_back(forms::item(linea));
  }
  cmdCerrar.setCancel(true);
  cmdCerrar.setDefault(true);
  cmdCerrar.onClick = [this] { Unload(); };
  setDisposable();
  setLayout(forms::column({forms::fields(1, std::move(lineas)), forms::buttons({&cmdCerrar})}));
}

void frmDetallePadres::Form_Load() {
  const FormaDetalle* forma = formaDetalle(Origen);
  if (!forma) return Unload();
  const bool cargado = procedimiento(forma->procedimiento, [&] {
    setCaption(forma->titulo);
    const FormaDetalle::Lineas lineas = forma->lineas(contexto_, *conBaseDatos, lngID);
    for (int i = 0; i < FormaDetalle::LINEAS; ++i) {
      lblDetalle[i].setCaption(forma->etiquetas.at(i));
      txtDetalle[i].setText(lineas.at(i));
    }
  });
  if (!cargado) Unload();
}

}  // namespace fidaleon
