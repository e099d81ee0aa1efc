#pragma once

#include <functional>
#include <vector>

#include "census/search/cPadronNotas.h"
#include "core/dialogs/Dialogo.h"

namespace fidaleon {

/// The title and the text of one personal note. Works on the collection of the caller and stores
/// nothing. Set the public fields, then Show(); a cancelled dialog leaves the collection as it was.
class frmPadronNotas : public Dialogo {
 public:
  explicit frmPadronNotas(Contexto& contexto);

  /// ANADIR or EDITAR.
  FDAPI::cCOperacion Operacion{};
  /// Not owned; must be set before the dialog loads. A new note is put behind the others.
  std::vector<cPadronNotas>* colNotas = nullptr;
  /// Of the note to be edited, from 0.
  int posicion = -1;
  /// Called when the collection has changed, while the dialog is still open.
  std::function<void()> refrescar;

  enum Boton { ACEPTAR = 0, CANCELAR = 1 };

  forms::TextBox txtTitulo;
  forms::TextBox txtDescripcion;
  forms::ControlArray<forms::Button> cmdPadronNota;

 protected:
  void Form_Load() override;

 private:
  void cargar();
  void cmdPadronNota_Click();
  void aceptar();
  bool tituloEnUso() const;
  void guardar();
};

}  // namespace fidaleon
