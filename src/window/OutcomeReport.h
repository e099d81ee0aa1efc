#pragma once

#include <QDialog>
#include <QString>
#include <string>

namespace fidaleon::app {

/// What came of long work, to be read, printed and saved elsewhere.
class OutcomeReport : public QDialog {
  Q_OBJECT

 public:
  /// `file` is the name that is proposed for it; `saved` says where it has been saved already.
  OutcomeReport(const QString& title, const std::string& text, QString file, QWidget* parent,
                const QString& saved = {});

 private:
  void print();
  void save();

  std::string text_;
  QString file_;
};

}  // namespace fidaleon::app
