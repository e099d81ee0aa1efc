#pragma once

#include <QWidget>

#include "window/help/Manual.h"

class QAction;
class QLineEdit;
class QListWidget;
class QStackedWidget;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

namespace fidaleon::app {

class HelpPage;

/// The manual: its headings at the left, or what was found of the words in the box above; the
/// chapter at the right.
class HelpWindow : public QWidget {
  Q_OBJECT

 public:
  /// The manual must outlive it.
  explicit HelpWindow(const Manual& manual, QWidget* parent = nullptr);

  void show(const Place& place);
  void search(const QString& words);
  QLineEdit& searchBox() { return *search_; }
  QListWidget& hits() { return *hits_; }
  HelpPage& page() { return *page_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolBar* buildBar();
  void buildLeft();
  void fillContents();
  void follow();
  void openHit(int row);

  const Manual& manual_;
  QLineEdit* search_ = nullptr;
  QStackedWidget* left_ = nullptr;
  QTreeWidget* contents_ = nullptr;
  QListWidget* hits_ = nullptr;
  HelpPage* page_ = nullptr;
  QString searched_;
  std::vector<Manual::Hit> found_;
  bool following_ = false;  // the tree shows where one is, without going there
};

}  // namespace fidaleon::app
