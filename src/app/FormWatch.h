#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/UserInterface.h"

namespace fidaleon::app {

/// A user interface in front of another that remembers which forms are open, so that what stands
/// in their fields can be saved if the program has to end.
class FormWatch : public forms::UserInterface {
 public:
  explicit FormWatch(forms::UserInterface& behind) : behind_(behind) {}

  void showModal(forms::Form& form) override;
  forms::Answer showMessage(const forms::Message& message) override;
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                      const std::string& initial = {}) override;
  void beep() override { behind_.beep(); }
  void setHourglass(bool on) override { behind_.setHourglass(on); }
  std::string clipboardText() const override { return behind_.clipboardText(); }
  void setClipboardText(const std::string& text) override { behind_.setClipboardText(text); }
  bool hasPrinter() const override { return behind_.hasPrinter(); }
  double printerTextWidth(const std::string& text, const std::string& font) const override;
  void progressOpen(std::int64_t count, const std::string& message) override;
  void progressMove(std::int64_t position) override { behind_.progressMove(position); }
  void progressClose() override { behind_.progressClose(); }

  /// What stands in the fields of the open forms, one line each; empty when no form is open or
  /// nothing has been written.
  std::string draft() const;

 private:
  forms::UserInterface& behind_;
  std::vector<const forms::Form*> open_;
};

/// Writes the draft into the directory, under a name that no earlier draft has. Empty when there
/// was nothing to save or it could not be written.
std::filesystem::path saveDraft(const FormWatch& watch, const std::filesystem::path& directory,
                                const std::string& moment);

}  // namespace fidaleon::app
