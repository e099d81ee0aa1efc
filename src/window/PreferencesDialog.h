#pragma once

#include <QDialog>
#include <filesystem>
#include <optional>

#include "parish/Desk.h"
#include "parish/Preferences.h"
#include "parish/UsualKeeper.h"
#include "window/ParishDoor.h"

class QComboBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

namespace fidaleon::app {

/// What a user may choose of the program. All of it is written when the dialog is accepted, and
/// counts from then on; what needs the parish to be opened again says so.
class PreferencesDialog : public QDialog {
  Q_OBJECT

 public:
  PreferencesDialog(Desk& desk, ParishDoor& door, QWidget* parent = nullptr);

  /// Once accepted: the folder of the parish to be opened, where what was changed needs it.
  const std::optional<std::filesystem::path>& reopens() const { return reopens_; }

  void accept() override;

 private:
  QWidget* generalPage();
  QWidget* paperPage();
  QWidget* copiesPage();
  void showKeepers();
  void chooseParish();
  void chooseCopiesFolder();
  /// False when the user has been told what cannot be.
  bool isComplete();
  bool changeEdition(const std::string& code);
  void write();

  Desk& desk_;
  ParishDoor& door_;
  std::vector<InstitutionKeepers> keepers_;
  std::optional<std::filesystem::path> reopens_;
  QLineEdit* user_ = nullptr;
  QComboBox* edition_ = nullptr;
  QLineEdit* folder_ = nullptr;
  QComboBox* letter_ = nullptr;
  QComboBox* enter_ = nullptr;
  QComboBox* printer_ = nullptr;
  QComboBox* institution_ = nullptr;
  QComboBox* keeper_ = nullptr;
  QSpinBox* pages_ = nullptr;
  QSpinBox* copies_ = nullptr;
  QLineEdit* copiesFolder_ = nullptr;
};

}  // namespace fidaleon::app
