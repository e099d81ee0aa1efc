#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/UserInterface.h"

namespace fidaleon {

/// Lines that a text takes on paper, broken at CR LF and at blanks, exceed `limite`. `ancho` is in
/// twentieths of a point.
bool MaximoLineas(const forms::UserInterface& ui, const std::string& texto,
                  const std::string& fuente, double ancho, int limite);

// What the warning says, by register.
inline constexpr const char* AVISO_NOTAS =
    "El campo de notas marginales ha sobrepasado el límite máximo \n"
    "establecido para los documentos. Si continúa \n"
    "introduciendo datos puede ser que algunos de los informes se impriman en varias hojas.";
inline constexpr const char* AVISO_NOTAS_SEGUIDO =
    "El campo de notas marginales ha sobrepasado el límite máximo establecido para  los "
    "documentos. Si continúa introduciendo datos puede ser que algunos de los informes se "
    "impriman en varias hojas.";

/// Watches the marginal notes of a dialog and warns once when they outgrow the documents. Nothing
/// is refused. A text that becomes shorter again arms the warning anew.
class LimiteNotas {
 public:
  LimiteNotas(forms::UserInterface& ui, forms::TextBox& notas, const char* aviso)
      : ui_(ui), notas_(notas), aviso_(aviso) {}
  /// To be called on every change by the user.
  void comprobar();

 private:
  forms::UserInterface& ui_;
  forms::TextBox& notas_;
  const char* aviso_;
  bool avisado_ = false;
  std::size_t longitudAvisada_ = 0;
};

}  // namespace fidaleon
