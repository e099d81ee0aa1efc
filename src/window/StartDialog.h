#pragma once

#include <QDialog>
#include <filesystem>
#include <optional>

#include "window/ParishDoor.h"

class QListWidget;
class QPushButton;

namespace fidaleon::app {

/// What the user sees while no parish is open: those of late, and the ways to another.
class StartDialog : public QDialog {
  Q_OBJECT

 public:
  explicit StartDialog(ParishDoor& door, QWidget* parent = nullptr);

  /// The folder of the parish to open, once accepted.
  const std::filesystem::path& chosen() const { return chosen_; }

 private:
  void open(const std::optional<std::filesystem::path>& directory);
  void openMarked();

  ParishDoor& door_;
  std::vector<KnownParish> known_;
  QListWidget* list_ = nullptr;
  std::filesystem::path chosen_;
};

}  // namespace fidaleon::app
