#pragma once

#include <QDialog>
#include <filesystem>

#include "store/postgres/ServerAddress.h"

namespace fidaleon::app {

class ServerFields;

/// Connects a folder of this desk to the parish that a server has. Where it has none yet, and one
/// can be made, it is accepted for that.
class ServerDialog : public QDialog {
  Q_OBJECT

 public:
  /// `folder` is the one that is offered.
  explicit ServerDialog(const std::filesystem::path& folder, QWidget* parent = nullptr);

  /// Once accepted: there is no parish yet, and the user wants to make one there.
  bool makesNew() const { return makesNew_; }
  store::ServerAddress address() const;
  std::filesystem::path folder() const;
  void accept() override;

 private:
  void join();
  bool wantsANewOne();

  ServerFields* fields_;
  bool makesNew_ = false;
};

}  // namespace fidaleon::app
