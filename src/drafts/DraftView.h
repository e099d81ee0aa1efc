#pragma once

#include "forms/Form.h"

namespace fidaleon::app {

/// What was being typed as a text to read and to copy, for when it cannot be put back.
class DraftView : public forms::Form {
 public:
  /// `why` says, in a sentence or two, why it stands here.
  DraftView(forms::UserInterface& ui, const std::string& why, const std::string& text);

  /// The user needs it no more.
  bool discarded() const { return discarded_; }

  forms::Label lblMotivo{*this, "lblMotivo"};
  forms::TextBox txtBorrador{*this, "txtBorrador"};
  forms::Button cmdCopiar{*this, "cmdCopiar", "COPIAR"};
  forms::Button cmdDescartar{*this, "cmdDescartar", "DESCARTAR"};
  forms::Button cmdConservar{*this, "cmdConservar", "CONSERVAR"};

 private:
  bool discarded_ = false;
};

}  // namespace fidaleon::app
