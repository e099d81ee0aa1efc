#pragma once

#include <QDialog>

#include "paper/Report.h"

class QAction;
class QComboBox;
class QLabel;
class QScrollArea;

namespace fidaleon::app {

/// Shows the pages of a report and prints or saves them.
class PreviewDialog : public QDialog {
  Q_OBJECT

 public:
  explicit PreviewDialog(paper::Report report, QWidget* parent = nullptr);
  ~PreviewDialog() override;

  void showPage(int page);
  int page() const { return page_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Sheet;
  void buildBar();
  void setZoom(double percent);
  void applyZoom();
  QSizeF naturalSize() const;
  void zoomStep(int direction);
  void print();
  void savePdf();

  paper::Report report_;
  Sheet* sheet_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QLabel* place_ = nullptr;
  QComboBox* zooms_ = nullptr;
  QAction* first_ = nullptr;
  QAction* back_ = nullptr;
  QAction* forward_ = nullptr;
  QAction* last_ = nullptr;
  int page_ = 0;
  double zoom_ = 0;  // percent; 0 fits the width, -1 the page
};

}  // namespace fidaleon::app
