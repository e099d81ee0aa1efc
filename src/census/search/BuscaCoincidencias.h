#pragma once

#include <cstdint>
#include <string>

#include "core/contract/Contexto.h"
#include "forms/Controls.h"

namespace fidaleon {

/// Whether a person of the same name is in the census already: looked up once after each change of
/// a name, when a name field is left and all three are filled. The fields are the dialog's.
class BuscaCoincidencias {
 public:
  /// `origen`: PADRON or COLABORADOR.
  BuscaCoincidencias(Contexto& contexto, forms::TextBox& nombre, forms::TextBox& primerApellido,
                     forms::TextBox& segundoApellido, FDAPI::cCOrigen origen);

  /// Arms the search; to be called whenever one of the three changes.
  void nombreCambiado() { cambiado_ = true; }
  /// Forgets a change, for names that the program itself has put there.
  void olvidarCambio() { cambiado_ = false; }
  /// To be called when one of the three is left. Shows those found; the key of the one chosen, or
  /// 0. `otra` is the key of the person being edited, who is not looked for, or 0. Throws what the
  /// store throws, and then too does not search again before the next change.
  std::int32_t alSalir(FDAPI::Conexion& conexion, std::int32_t otra, bool blnSeleccionar);

 private:
  bool completo() const;
  std::string sentencia(std::int32_t otra) const;

  Contexto& contexto_;
  forms::TextBox& nombre_;
  forms::TextBox& primerApellido_;
  forms::TextBox& segundoApellido_;
  FDAPI::cCOrigen origen_;
  bool cambiado_ = false;
};

}  // namespace fidaleon
