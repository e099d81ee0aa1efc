#include "forms/UserInterface.h"

namespace fidaleon::forms {

void warn(UserInterface& ui, const std::string& text, MsgIcon icon) {
  ui.beep();
  ui.msgBox(text, MsgButtons::Ok, icon);
}

bool ask(UserInterface& ui, const std::string& text, const std::string& title) {
  ui.beep();
  return ui.msgBox(text, MsgButtons::YesNo, MsgIcon::Question, title) == Answer::Yes;
}

}  // namespace fidaleon::forms
