#include "forms/UserInterface.h"

namespace fidaleon::forms {

void warn(UserInterface& ui, const std::string& text, MsgIcon icon, const std::string& why) {
  ui.beep();
  ui.showMessage({text, MsgButtons::Ok, icon, {}, why, Answer::None});
}

bool ask(UserInterface& ui, const std::string& text, const std::string& title, Stake stake,
         const std::string& below) {
  ui.beep();
  Message question{text, MsgButtons::YesNo, MsgIcon::Question, title, below, Answer::None};
  if (stake == Stake::Loss) {
    question.icon = MsgIcon::Exclamation;
    question.byEnter = Answer::No;
  }
  return ui.showMessage(question) == Answer::Yes;
}

}  // namespace fidaleon::forms
