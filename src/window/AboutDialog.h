#pragma once

#include <QDialog>

#include "parish/Desk.h"

namespace fidaleon::app {

/// What the program is, whose libraries it uses, where the data lie, and the report for whoever
/// helps.
class AboutDialog : public QDialog {
  Q_OBJECT

 public:
  explicit AboutDialog(Desk& desk, QWidget* parent = nullptr);

 private:
  QWidget* programPage();
  QWidget* librariesPage();
  QWidget* placesPage();
  void saveReport();

  Desk& desk_;
};

}  // namespace fidaleon::app
