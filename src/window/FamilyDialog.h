#pragma once

#include <QDialog>

#include "window/SearchBox.h"

class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace fidaleon::app {

/// "La persona y su familia": what the parish has of those whom an entry is about, put together
/// each time, with the reason for each line. What is doubtful is told apart from what is clear.
class FamilyDialog : public QDialog {
  Q_OBJECT

 public:
  FamilyDialog(SearchBox& search, search::Register in, std::int32_t key, QWidget* parent);
  ~FamilyDialog() override;

  void onChosen(SearchBox::Chosen chosen) { chosen_ = std::move(chosen); }
  /// Has it put together, or put together anew.
  void ask();
  QTreeWidget& lines() { return *lines_; }
  bool isAnswered() const { return answered_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void build();
  void show(const search::Finder::Pages& pages);
  void addPage(const search::FamilyPage& page);
  void addLine(QTreeWidgetItem* under, const search::Kin& kin);
  const search::Hit* chosen() const;
  void chosenChanged();
  void act(SearchBox::Act act);

  SearchBox& search_;
  search::Register in_;
  std::int32_t key_;
  SearchBox::Chosen chosen_;
  QTreeWidget* lines_ = nullptr;
  QLabel* details_ = nullptr;  // of the chosen line, whole
  QLabel* status_ = nullptr;
  std::map<SearchBox::Act, QPushButton*> buttons_;
  std::vector<search::Hit> hits_;
  bool answered_ = false;
};

}  // namespace fidaleon::app
