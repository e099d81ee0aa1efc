#pragma once

#include <QPointer>
#include <memory>
#include <vector>

#include "forms/UserInterface.h"

class QPrinter;
class QWidget;

namespace fidaleon::qt {

class ProgressDialog;

/// The person in front of the screen. Dialogs and messages stand over the window at work.
class QtUserInterface : public forms::UserInterface {
 public:
  /// `mainWindow` may be null; not owned.
  explicit QtUserInterface(QWidget* mainWindow = nullptr);
  ~QtUserInterface() override;

  void showModal(forms::Form& form) override;
  forms::Answer showMessage(const forms::Message& message) override;
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& title,
                                      const std::string& initial) override;
  void beep() override;
  void setHourglass(bool on) override;
  std::string clipboardText() const override;
  void setClipboardText(const std::string& text) override;
  bool hasPrinter() const override;
  double printerTextWidth(const std::string& text, const std::string& font) const override;
  void progressOpen(std::int64_t count, const std::string& message) override;
  void progressMove(std::int64_t position) override;
  void progressClose() override;

 private:
  QWidget* windowAtWork() const;

  QPointer<QWidget> mainWindow_;
  int hourglass_ = 0;
  std::vector<std::unique_ptr<ProgressDialog>> progress_;
  mutable std::unique_ptr<QPrinter> printer_;
};

}  // namespace fidaleon::qt
