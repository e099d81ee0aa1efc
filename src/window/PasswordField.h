#pragma once

#include <QWidget>

#include "store/postgres/ServerAddress.h"

class QCheckBox;
class QLineEdit;

namespace fidaleon::app {

/// A password for a server, and whether it is to be kept beyond this run of the program.
class PasswordField : public QWidget {
  Q_OBJECT

 public:
  explicit PasswordField(QWidget* parent = nullptr);

  std::string password() const;
  /// Goes with that address from now on. An empty one leaves what is known as it is. What keeps it
  /// from being kept is told.
  void use(const store::ServerAddress& address);
  QLineEdit& field() { return *password_; }

 private:
  QLineEdit* password_;
  QCheckBox* remember_;
};

/// Asks for the password of that address, which is used from then on; `why` says what became of the
/// one that was known. False when the user gave up.
bool askForPassword(QWidget* over, const store::ServerAddress& address, const QString& why);

}  // namespace fidaleon::app
