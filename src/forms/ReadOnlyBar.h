#pragma once

#include "forms/Form.h"

namespace fidaleon::forms {

/// What a form shows at its top while it can only be read.
class Form::ReadOnlyBar {
 public:
  ReadOnlyBar(Form& form, ReadOnly notice);

  ReadOnly notice;
  Label why;
  Button retry;
};

}  // namespace fidaleon::forms
