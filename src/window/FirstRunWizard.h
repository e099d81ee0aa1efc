#pragma once

#include <QWizard>

#include "parish/NewParish.h"

class QButtonGroup;
class QComboBox;
class QLineEdit;

namespace fidaleon::app {

/// Asks for what a new parish needs: who it is, what it begins with and where it is kept.
/// Accepted only when parish() can be made.
class FirstRunWizard : public QWizard {
  Q_OBJECT

 public:
  /// `proposal` fills the fields; its directory is the one that is offered, and settled already
  /// where a server is to have the parish.
  explicit FirstRunWizard(const NewParish& proposal, QWidget* parent = nullptr);

  NewParish parish() const;
  /// The folder holds a parish already, and the user wants to work on that one.
  bool opensWhatIsThere() const { return opensWhatIsThere_; }
  bool validateCurrentPage() override;
  void reject() override;

 private:
  QWidget* placePart(const NewParish& proposal, QWidget* page);
  QWizardPage* parishPage(const NewParish& proposal);
  QWizardPage* contentPage(const NewParish& proposal);
  void chooseDirectory();

  std::optional<store::ServerAddress> server_;
  bool opensWhatIsThere_ = false;
  QLineEdit* name_ = nullptr;
  QComboBox* province_ = nullptr;
  QLineEdit* town_ = nullptr;
  QComboBox* edition_ = nullptr;
  QLineEdit* user_ = nullptr;
  QLineEdit* directory_ = nullptr;
  QButtonGroup* content_ = nullptr;
  QComboBox* accounts_ = nullptr;
};

}  // namespace fidaleon::app
