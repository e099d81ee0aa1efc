#pragma once

#include <cstdint>
#include <exception>
#include <optional>
#include <string>

namespace fidaleon::forms {

class Form;

enum class Answer { None, Ok, Yes, No, Cancel };
enum class MsgButtons { Ok, OkCancel, YesNo, YesNoCancel };
enum class MsgIcon { None, Information, Exclamation, Question, Critical };

/// What a message box holds.
struct Message {
  std::string text;
  MsgButtons buttons = MsgButtons::Ok;
  MsgIcon icon = MsgIcon::None;
  std::string title;              // empty: the application's
  std::string below;              // what is meant, or why, in lines of its own; may be empty
  Answer byEnter = Answer::None;  // what Enter answers; None: the first button
};

/// Thrown by progressMove when the user has asked to stop. The work ends there as it would on an
/// error, and what it had written so far is taken back.
class Cancelled : public std::exception {
 public:
  const char* what() const noexcept override {
    return "Operación cancelada. No queda nada de ella.";
  }
};

/// The one port between dialogs and whoever sits in front of them: a window, or a scripted user.
/// Everything blocks until the user has answered.
class UserInterface {
 public:
  virtual ~UserInterface() = default;

  /// Shows the form and returns when it has been unloaded.
  virtual void showModal(Form& form) = 0;
  virtual Answer showMessage(const Message& message) = 0;
  Answer msgBox(const std::string& text, MsgButtons buttons, MsgIcon icon,
                const std::string& title = {}) {
    return showMessage({text, buttons, icon, title, {}, Answer::None});
  }
  /// Empty when cancelled.
  virtual std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                              const std::string& initial = {}) = 0;
  virtual void beep() = 0;
  /// Calls nest.
  virtual void setHourglass(bool on) = 0;

  virtual std::string clipboardText() const = 0;
  virtual void setClipboardText(const std::string& text) = 0;

  virtual bool hasPrinter() const = 0;
  /// Width of a text on the printer, in twentieths of a point, at 8 points of the named font.
  virtual double printerTextWidth(const std::string& text, const std::string& font) const = 0;

  virtual void progressOpen(std::int64_t count, const std::string& message) = 0;
  /// May throw Cancelled.
  virtual void progressMove(std::int64_t position) = 0;
  virtual void progressClose() = 0;
};

/// Hourglass pointer for the length of a block.
class Hourglass {
 public:
  explicit Hourglass(UserInterface& ui) : ui_(ui) { ui_.setHourglass(true); }
  ~Hourglass() { ui_.setHourglass(false); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  UserInterface& ui_;
};

/// What hangs on a question.
enum class Stake {
  Little,  // Enter says yes
  Loss,    // what a yes does is not undone, or is likely a slip: a warning sign, and Enter says no
};

/// A beep and a message with one button, as every refusal of the dialogs is told. `why` stands in
/// lines of its own below the text.
void warn(UserInterface& ui, const std::string& text, MsgIcon icon = MsgIcon::Exclamation,
          const std::string& why = {});
/// A beep and a question; true for Yes. `below` names under the question what it is about.
bool ask(UserInterface& ui, const std::string& text, const std::string& title = {},
         Stake stake = Stake::Little, const std::string& below = {});

}  // namespace fidaleon::forms
