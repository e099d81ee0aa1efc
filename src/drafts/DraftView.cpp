#include "drafts/DraftView.h"

namespace fidaleon::app {
namespace {

constexpr int LINES = 16;
constexpr int WIDTH = 64;

}  // namespace

DraftView::DraftView(forms::UserInterface& ui, const std::string& why, const std::string& text)
    : Form(ui, "frmBorrador") {
  setCaption("Lo que se estaba escribiendo");
  lblMotivo.setCaption(why);
  txtBorrador.setLines(LINES);
  txtBorrador.setWidthChars(WIDTH);
  txtBorrador.setText(text);
  txtBorrador.setLocked(true);
  cmdCopiar.setToolTip("Copia el texto, para pegarlo en otro sitio");
  cmdCopiar.onClick = [this] { this->ui().setClipboardText(txtBorrador.text()); };
  cmdDescartar.setToolTip("Borra este texto: ya no hace falta");
  cmdDescartar.onClick = [this] {
    discarded_ = true;
    Unload();
  };
  cmdConservar.setToolTip("Cierra esta ventana y guarda el texto para otra vez");
  cmdConservar.setDefault(true);
  cmdConservar.setCancel(true);
  cmdConservar.onClick = [this] { Unload(); };
  setLayout(forms::column({forms::item(lblMotivo), forms::item(txtBorrador),
                           forms::buttons({&cmdCopiar, &cmdDescartar, &cmdConservar})}));
}

}  // namespace fidaleon::app
