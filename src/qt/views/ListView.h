#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include "qt/views/ControlView.h"
#include "qt/views/ListModel.h"

namespace fidaleon::qt {

/// What drop-down and open lists have in common: lines come in together when the program is idle,
/// and typed letters find a line by its beginning, without regard to case and accents.
class ListView : public ControlView {
 public:
  explicit ListView(forms::ListControl& list);
  void refresh(forms::Change what) override;
  void flush() override;

 protected:
  forms::ListControl& list() const { return list_; }
  ListModel& model() { return model_; }
  bool keyPressed(QKeyEvent& event) override;
  bool locked() const override { return list_.locked(); }
  bool showing() const { return showing_; }
  virtual void showSelection() = 0;
  virtual void showLocked() = 0;
  /// Chooses from the user's side, then shows what the form made of it.
  void choose(int index);

 private:
  bool find(const QString& letters);

  forms::ListControl& list_;
  ListModel model_;
  QTimer idle_;
  bool stale_ = false;
  bool showing_ = false;
  std::string searched_;
  QElapsedTimer sinceLetter_;
};

}  // namespace fidaleon::qt
