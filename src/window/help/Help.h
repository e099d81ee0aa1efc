#pragma once

#include <QObject>
#include <filesystem>
#include <memory>
#include <string>

#include "window/help/Manual.h"

class QWidget;

namespace fidaleon::app {

class HelpWindow;

/// F1 anywhere in the program opens the manual where it speaks of what one is in. Its window can
/// be read and used while a dialog waits. One while the program runs; needs a QApplication.
class Help : public QObject {
  Q_OBJECT

 public:
  explicit Help(std::filesystem::path manual);
  ~Help() override;

  /// `name` as helpPlace() takes it; the list of contents for one without a place.
  void open(const std::string& name);
  /// The name by which one asks at that widget: that of the command marked in a menu, that of the
  /// list, form or window it stands in, or of those below. Empty when none has a place.
  static std::string nameAt(const QWidget* widget);
  /// Null before it was opened.
  HelpWindow* window() const { return window_.get(); }

  /// The property by which a window says what of it one asks about.
  static constexpr const char* ABOUT = "ayuda";

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void stayWithinReach();

  std::filesystem::path directory_;
  std::unique_ptr<Manual> manual_;
  std::unique_ptr<HelpWindow> window_;
};

}  // namespace fidaleon::app
