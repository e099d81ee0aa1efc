#pragma once

#include <QDialog>
#include <optional>
#include <vector>

#include "parish/copies/SafetyCopies.h"

class QPushButton;
class QTableWidget;

namespace fidaleon::app {

/// Lets the user choose the copy to return to: one of the list, or any other file. Only chooses.
class CopiesDialog : public QDialog {
  Q_OBJECT

 public:
  explicit CopiesDialog(const SafetyCopies& copies, QWidget* parent = nullptr);
  /// Set once the dialog has been accepted.
  const std::optional<SafetyCopy>& chosen() const { return chosen_; }
  QTableWidget& table() { return *table_; }

 private:
  void fillTable();
  void chooseRow();
  void chooseFile();
  void take(const SafetyCopy& copy);

  std::vector<SafetyCopy> copies_;
  std::filesystem::path directory_;
  std::optional<SafetyCopy> chosen_;
  QTableWidget* table_ = nullptr;
};

/// "sábado, 21 de noviembre de 2026, a las 10:30:05"
QString spoken(const Moment& moment);
/// What a list tells of why the copy was made.
QString reasonFor(const SafetyCopy& copy);

}  // namespace fidaleon::app
