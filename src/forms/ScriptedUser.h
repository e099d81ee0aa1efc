#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Form.h"

namespace fidaleon::forms {

/// Hands on one form: does what a person could do with keys and mouse, and nothing else. What a
/// person could not do (type into a locked field, click a disabled button, reach a hidden tab) is
/// noted as a problem and not done.
class FormDriver {
 public:
  FormDriver(Form& form, std::vector<std::string>& problems);

  Form& form() const { return form_; }
  /// Goes to the field, selects what it holds and types over it, key by key.
  void type(const std::string& control, const std::string& text);
  void paste(const std::string& control, const std::string& text);
  void press(const std::string& control, KeyPress key);
  /// Goes to the list and chooses the line with this text.
  void choose(const std::string& control, const std::string& text);
  void chooseData(const std::string& control, std::int64_t data);
  /// Button, check box or option button.
  void click(const std::string& control);
  void tab(const std::string& strip, int index);
  void row(const std::string& grid, int row);
  void doubleClick(const std::string& grid, int row);
  void focus(const std::string& control);
  void enter();
  void ctrlEnter();
  /// F4, and Shift+F4 for the whole page.
  void former(bool page = false);
  /// What the field offers for these letters, once all that is read beside the typing has been.
  std::vector<std::string> offered(const std::string& control, const std::string& typed) const;
  /// Types them and takes the first offer.
  void takeOffer(const std::string& control, const std::string& typed);
  void escape();
  void close();

  /// What the user sees; empty for a control of that name that does not exist (noted).
  std::string text(const std::string& control) const;
  bool enabled(const std::string& control) const;
  bool visible(const std::string& control) const;
  bool locked(const std::string& control) const;
  std::string caption() const { return form_.caption(); }
  std::string focused() const;
  bool closed() const { return form_.isUnloaded(); }
  template <class T>
  T& get(const std::string& control) const {
    return dynamic_cast<T&>(require(control));
  }

 private:
  Control& require(const std::string& name) const;
  void chooseLine(ListControl& list, int index);
  bool reach(Control& control);
  void problem(const std::string& text) const;
  Form& form_;
  std::vector<std::string>& problems_;
};

/// A user without a window, told in advance what will be asked and what to answer. What comes
/// unexpected, comes in another order, or never comes is kept in problems() and answered in the
/// safest way (Cancel, No, close); it never throws, since the guards of the dialogs would swallow
/// that.
class ScriptedUser : public UserInterface {
 public:
  using Act = std::function<void(FormDriver&)>;

  /// The next form must have this name; `act` works on it and must leave it closed.
  void expectForm(std::string formName, Act act);
  /// The next message must have exactly this text. `meanwhile` is what happens elsewhere while it
  /// stands.
  void expectMessage(std::string text, Answer answer = Answer::Ok,
                     std::function<void()> meanwhile = {});
  /// The next prompt must have this text; no reply cancels it.
  void expectInput(std::string prompt, std::optional<std::string> reply);
  /// Answers any message from now on that nothing else is expected for (for stress and demos).
  void answerAnything(Answer answer) { fallback_ = answer; }

  /// What went against the script, with what was expected and never came last. Empty is good.
  std::vector<std::string> problems() const;
  int beeps() const { return beeps_; }
  /// Every message shown, with all that stood in it.
  const std::vector<Message>& messages() const { return messages_; }
  int hourglassDepth() const { return hourglass_; }
  std::vector<std::string> progressLog;
  bool printer = true;
  /// Called for each form before its script and after each step of a demo.
  std::function<void(Form&)> onForm;

  void showModal(Form& form) override;
  Answer showMessage(const Message& message) override;
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                      const std::string& initial) override;
  void beep() override { ++beeps_; }
  void setHourglass(bool on) override { hourglass_ += on ? 1 : -1; }
  std::string clipboardText() const override { return clipboard_; }
  void setClipboardText(const std::string& text) override { clipboard_ = text; }
  bool hasPrinter() const override { return printer; }
  double printerTextWidth(const std::string& text, const std::string& font) const override;
  void progressOpen(std::int64_t count, const std::string& message) override;
  void progressMove(std::int64_t position) override;
  void progressClose() override;

 private:
  struct Expected {
    enum class Kind { Form, Message, Input } kind;
    std::string text;
    Act act;
    Answer answer = Answer::None;
    std::optional<std::string> reply;
    std::function<void()> meanwhile;
  };
  std::optional<Expected> take(Expected::Kind kind, const std::string& text);

  std::deque<Expected> script_;
  std::vector<std::string> problems_;
  std::vector<Message> messages_;
  std::optional<Answer> fallback_;
  std::string clipboard_;
  int beeps_ = 0;
  int hourglass_ = 0;
};

}  // namespace fidaleon::forms
