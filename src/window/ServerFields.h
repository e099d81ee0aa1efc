#pragma once

#include <QWidget>
#include <filesystem>
#include <optional>

#include "parish/server/ServerLook.h"

class QLabel;
class QLineEdit;
class QSpinBox;

namespace fidaleon::app {

class PasswordField;

/// Which server, as whom, and the folder of this desk; with a button that tries it out, and the
/// answer below.
class ServerFields : public QWidget {
  Q_OBJECT

 public:
  ServerFields(const store::ServerAddress& proposal, const std::filesystem::path& folder,
               QWidget* parent);

  store::ServerAddress address() const;
  std::filesystem::path folder() const;
  /// Enters the server, beside the window, and says what is there. Nothing when something is
  /// missing or does not go: that is told below the fields.
  std::optional<ServerLook> look();
  /// Shows a sentence below the fields.
  void tell(const QString& sentence, bool good = false);
  /// The password goes with the address from now on.
  void usePassword();

 private:
  QLineEdit* line(const QString& text, int most);
  QWidget* withButton(QLineEdit* field, const QString& name, const std::function<void()>& choose);
  void chooseCertificate();
  void chooseFolder();
  /// False, told and with the focus where it is, when something is missing.
  bool isComplete();

  QLineEdit* host_;
  QSpinBox* port_;
  QLineEdit* database_;
  QLineEdit* user_;
  PasswordField* password_;
  QLineEdit* certificate_;
  QLineEdit* folder_;
  QLabel* sign_;
  QLabel* answer_;
};

}  // namespace fidaleon::app
