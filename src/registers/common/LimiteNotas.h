#pragma once

#include <string>

#include "forms/Controls.h"
#include "forms/UserInterface.h"

namespace fidaleon {

/// Lines that a text takes on paper, broken at CR LF and at blanks, exceed `limite`. `ancho` is in
/// twentieths of a point.
bool MaximoLineas(const forms::UserInterface& ui, const std::string& texto,
                  const std::string& fuente, double ancho, int limite);

/// Watches the marginal notes of a dialog and warns once when they outgrow the documents. Nothing
/// is refused. A text that becomes shorter again arms the warning anew.
class LimiteNotas {
 public:
  LimiteNotas(forms::UserInterface& ui, forms::TextBox& notas) : ui_(ui), notas_(notas) {}
  /// To be called on every change by the user.
  void comprobar();

 private:
  forms::UserInterface& ui_;
  forms::TextBox& notas_;
  bool avisado_ = false;
  std::size_t longitudAvisada_ = 0;
};

}  // namespace fidaleon
