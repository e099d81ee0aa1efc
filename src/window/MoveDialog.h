#pragma once

#include <QDialog>
#include <filesystem>

#include "parish/Desk.h"
#include "parish/server/MoveNote.h"
#include "parish/server/ServerParish.h"

class QLabel;
class QLineEdit;

namespace fidaleon::app {

class ServerFields;

/// Asks where the open parish is to be moved: one in a file onto a server, one on a server into a
/// file. Says before what will happen. Accepted when nothing that can be seen from here stands in
/// the way.
class MoveDialog : public QDialog {
  Q_OBJECT

 public:
  /// `folder` is the one that is offered. One that was begun and not ended is offered as it was.
  MoveDialog(Desk& desk, const std::filesystem::path& folder, QWidget* parent = nullptr);

  MoveOrder order() const;
  void accept() override;

 private:
  QWidget* toServer(const std::filesystem::path& folder);
  QWidget* toFile(const std::filesystem::path& folder);
  /// Why not, in Spanish; empty when nothing stands in the way or the user has been told.
  std::string obstacle();
  void tell(const QString& sentence);

  Desk& desk_;
  std::optional<MoveNote> begun_;
  ServerFields* server_ = nullptr;  // one of both
  QLineEdit* folder_ = nullptr;
  QLabel* answer_ = nullptr;
};

}  // namespace fidaleon::app
