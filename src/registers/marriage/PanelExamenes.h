#pragma once

#include <array>
#include <vector>

#include "forms/Form.h"
#include "registers/marriage/Examenes.h"

namespace fidaleon {

/// The examinations in the dialog of a marriage: a tab for each person, each question above the
/// field of its answer. The fields are named by person and column: "txtExamenNovio(7)".
class PanelExamenes {
 public:
  /// The form outlives it.
  explicit PanelExamenes(forms::Form& form);

  forms::LayoutNode pagina();
  /// Every answer, page by page.
  const std::vector<forms::TextBox*>& campos() const { return campos_; }

  RespuestasExamen respuestas() const;
  void mostrar(const RespuestasExamen& respuestas);

  forms::TabStrip mstExamenes;

 private:
  struct Pagina {
    Pagina(forms::Form& form, const PaginaExamen& de);
    forms::ControlArray<forms::TextBox> respuestas;
    forms::ControlArray<forms::Frame> apartados;
  };
  std::array<Pagina, PAGINAS_EXAMEN> paginas_;
  std::vector<forms::TextBox*> campos_;
};

}  // namespace fidaleon
