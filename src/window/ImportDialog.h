#pragma once

#include <QDialog>
#include <array>
#include <filesystem>

#include "import/Etiquetas.h"
#include "parish/Desk.h"
#include "parish/legacy/ImportOrder.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;

namespace fidaleon::app {

/// Asks what is to be brought from the older program, shows how it will be read, tries it out and
/// carries it out. Accepted when something was written.
class ImportDialog : public QDialog {
  Q_OBJECT

 public:
  /// The desk must outlive it.
  explicit ImportDialog(Desk& desk, QWidget* parent = nullptr);

  /// Looks for the tables in that folder and below it.
  void lookInto(const std::filesystem::path& folder);
  ImportOrder order() const;
  /// A trial writes nothing, and is wanted before anything is written.
  void run(bool trial);

 private:
  struct Line {
    QCheckBox* bring = nullptr;
    QLabel* where = nullptr;
    QComboBox* format = nullptr;
    QCheckBox* useParish = nullptr;
    QLineEdit* parish = nullptr;
    QLineEdit* diocese = nullptr;
    QComboBox* town = nullptr;
    std::filesystem::path folder;
  };

  QWidget* registersPage();
  QWidget* namesPage();
  QWidget* lettersPage();
  void addLine(std::size_t which, QGridLayout& grid);
  void fillFormats(QComboBox& list);
  void fillTowns(QComboBox& list);
  void fillInstitutions();
  void institutionChosen();
  void chooseFolder();
  void showNames();
  void showRows();
  /// What was tried out is no longer what would be done.
  void changed();
  bool sure();
  void carryOut(bool trial);

  Desk& desk_;
  QLineEdit* folder_ = nullptr;
  QComboBox* institution_ = nullptr;
  std::array<Line, 4> lines_;
  QComboBox* order_ = nullptr;
  QLineEdit* year00_ = nullptr;
  QTableWidget* names_ = nullptr;
  QComboBox* codePage_ = nullptr;
  QComboBox* shownTable_ = nullptr;
  QTableWidget* rows_ = nullptr;
  QLabel* reading_ = nullptr;
  QPushButton* try_ = nullptr;
  QPushButton* bring_ = nullptr;
};

}  // namespace fidaleon::app
