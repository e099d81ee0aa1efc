#include "forms/ScriptedUser.h"

#include "text/Utf8.h"

namespace fidaleon::forms {

void ScriptedUser::expectForm(std::string formName, Act act) {
  script_.push_back(
      {Expected::Kind::Form, std::move(formName), std::move(act), Answer::None, {}, {}});
}

void ScriptedUser::expectMessage(std::string text, Answer answer, std::function<void()> meanwhile) {
  script_.push_back(
      {Expected::Kind::Message, std::move(text), {}, answer, {}, std::move(meanwhile)});
}

void ScriptedUser::expectInput(std::string prompt, std::optional<std::string> reply) {
  script_.push_back(
      {Expected::Kind::Input, std::move(prompt), {}, Answer::None, std::move(reply), {}});
}

namespace {

const char* const KINDS[] = {"form", "message", "prompt"};

}  // namespace

std::optional<ScriptedUser::Expected> ScriptedUser::take(Expected::Kind kind,
                                                         const std::string& text) {
  const std::string came = std::string(KINDS[static_cast<int>(kind)]) + " «" + text + "»";
  if (script_.empty()) {
    if (kind == Expected::Kind::Message && fallback_) return std::nullopt;
    problems_.push_back("unexpected " + came);
    return std::nullopt;
  }
  const Expected& next = script_.front();
  if (next.kind != kind || next.text != text) {
    if (kind == Expected::Kind::Message && fallback_) return std::nullopt;
    problems_.push_back("expected " + std::string(KINDS[static_cast<int>(next.kind)]) + " «" +
                        next.text + "», came " + came);
    return std::nullopt;
  }
  Expected taken = std::move(script_.front());
  script_.pop_front();
  return taken;
}

std::vector<std::string> ScriptedUser::problems() const {
  std::vector<std::string> all = problems_;
  for (const Expected& left : script_)
    all.push_back("never came: " + std::string(KINDS[static_cast<int>(left.kind)]) + " «" +
                  left.text + "»");
  if (hourglass_ != 0) all.push_back("the hourglass was left on");
  return all;
}

void ScriptedUser::showModal(Form& form) {
  auto expected = take(Expected::Kind::Form, form.name());
  form.focusFirst();
  if (onForm) onForm(form);
  if (expected && expected->act) {
    FormDriver driver(form, problems_);
    try {
      expected->act(driver);
    } catch (const std::exception& e) {
      problems_.push_back("script of «" + form.name() + "» broke off: " + e.what());
    }
    if (!form.isUnloaded()) problems_.push_back("form «" + form.name() + "» was left open");
  }
  form.Unload();
}

Answer ScriptedUser::showMessage(const Message& message) {
  messages_.push_back(message);
  if (const auto expected = take(Expected::Kind::Message, message.text)) {
    if (expected->meanwhile) expected->meanwhile();
    return expected->answer;
  }
  if (fallback_) return *fallback_;
  switch (message.buttons) {
    case MsgButtons::Ok:
      return Answer::Ok;
    case MsgButtons::YesNo:
      return Answer::No;
    default:
      return Answer::Cancel;
  }
}

std::optional<std::string> ScriptedUser::inputBox(const std::string& prompt, const std::string&,
                                                  const std::string&) {
  const auto expected = take(Expected::Kind::Input, prompt);
  return expected ? expected->reply : std::nullopt;
}

double ScriptedUser::printerTextWidth(const std::string& text, const std::string&) const {
  // About the mean width of a letter at 8 points.
  return 80.0 * static_cast<double>(text::length(text));
}

void ScriptedUser::progressOpen(std::int64_t count, const std::string& message) {
  progressLog.push_back("open " + std::to_string(count) + " " + message);
}

void ScriptedUser::progressMove(std::int64_t position) {
  progressLog.push_back(std::to_string(position));
}

void ScriptedUser::progressClose() {
  progressLog.push_back("close");
}

}  // namespace fidaleon::forms
