#pragma once

#include "forms/UserInterface.h"

namespace fidaleon::forms {

/// A user interface in front of another, to which it passes on whatever it is asked. For those that
/// have a word of their own to say to a part of it.
class PassedOn : public UserInterface {
 public:
  /// `behind` must outlive it.
  explicit PassedOn(UserInterface& behind) : behind_(&behind) {}

  void showModal(Form& form) override { behind_->showModal(form); }
  Answer showMessage(const Message& message) override { return behind_->showMessage(message); }
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                      const std::string& initial = {}) override {
    return behind_->inputBox(prompt, title, initial);
  }
  void beep() override { behind_->beep(); }
  void setHourglass(bool on) override { behind_->setHourglass(on); }
  std::string clipboardText() const override { return behind_->clipboardText(); }
  void setClipboardText(const std::string& text) override { behind_->setClipboardText(text); }
  bool hasPrinter() const override { return behind_->hasPrinter(); }
  double printerTextWidth(const std::string& text, const std::string& font) const override {
    return behind_->printerTextWidth(text, font);
  }
  void progressOpen(std::int64_t count, const std::string& message) override {
    behind_->progressOpen(count, message);
  }
  void progressMove(std::int64_t position) override { behind_->progressMove(position); }
  void progressClose() override { behind_->progressClose(); }

  UserInterface& behind() const { return *behind_; }

 private:
  friend class Relief;
  UserInterface* behind_;
};

/// While it lives another stands behind the front in the place of who stood there.
class Relief {
 public:
  Relief(PassedOn& front, UserInterface& instead) : front_(front), relieved_(front.behind_) {
    front_.behind_ = &instead;
  }
  ~Relief() { front_.behind_ = relieved_; }
  Relief(const Relief&) = delete;
  Relief& operator=(const Relief&) = delete;

 private:
  PassedOn& front_;
  UserInterface* relieved_;
};

}  // namespace fidaleon::forms
