#pragma once

#include <QDialog>
#include <string>

namespace fidaleon::app {

/// What came of an import, to be read, printed and saved elsewhere.
class ImportReport : public QDialog {
  Q_OBJECT

 public:
  /// `saved` says where it has been saved already; may be empty.
  ImportReport(const std::string& text, const QString& saved, QWidget* parent = nullptr);

 private:
  void print();
  void save();

  std::string text_;
};

}  // namespace fidaleon::app
