#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "paper/Report.h"
#include "window/LongRun.h"

class QAction;
class QComboBox;
class QLabel;
class QScrollArea;
class QTimer;

namespace fidaleon::app {

class Desk;

/// Shows the pages of a report and prints or saves them. Of a report whose pages are laid out as
/// needed the first one stands there at once, and the others are counted while it is being read.
class PreviewDialog : public QDialog {
  Q_OBJECT

 public:
  /// `run` is what the report tells its progress to.
  explicit PreviewDialog(paper::Report report, QWidget* parent = nullptr,
                         std::shared_ptr<LongRun> run = std::make_shared<LongRun>());
  ~PreviewDialog() override;

  /// The folder of the last document and its printer are proposed again; the desk must outlive the
  /// dialog.
  void keepHabits(Desk& desk) { desk_ = &desk; }
  void showPage(int page);
  int page() const { return page_; }
  const paper::Report& report() const { return report_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  class Sheet;
  void buildBar();
  QWidget* noticeBar();
  void setZoom(double percent);
  void applyZoom();
  QSizeF naturalSize() const;
  void zoomStep(int direction);
  void composeSome();
  void showPlace();
  void goToEnd();
  bool work(const QString& what, const std::function<void()>& body);
  void print();
  void savePdf();

  Desk* desk_ = nullptr;
  paper::Report report_;
  std::shared_ptr<LongRun> run_;
  QTimer* composing_ = nullptr;
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
