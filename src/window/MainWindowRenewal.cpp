// How the list of the main window is read: in slices, and after a change only what has changed.

#include <QApplication>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <algorithm>

#include "window/ChosenRows.h"
#include "window/LongRun.h"
#include "window/MainWindow.h"

namespace fidaleon::app {
namespace {

constexpr RowsModel::Time AT_ONCE{40};  // before the list is shown for the first time

/// The part of a table that is in sight, by the row on top of it.
class Sight {
 public:
  explicit Sight(QTableView& table)
      : table_(table),
        across_(table.horizontalScrollBar()->value()),
        down_(table.verticalScrollBar()->value()),
        top_(table.indexAt({0, 0}).data(RowsModel::KeyRole).toInt()) {}

  void restore(const QModelIndex& top) const {
    table_.verticalScrollBar()->setValue(down_);
    if (top.isValid()) table_.scrollTo(top, QAbstractItemView::PositionAtTop);
    table_.horizontalScrollBar()->setValue(across_);
  }
  std::int32_t top() const { return top_; }

 private:
  QTableView& table_;
  int across_;
  int down_;
  std::int32_t top_;
};

/// The highest key that was not among the others; 0 when there is none.
std::int32_t newKey(std::vector<std::int32_t> before, const std::vector<std::int32_t>& after) {
  std::sort(before.begin(), before.end());
  std::int32_t added = 0;
  for (const std::int32_t key : after)
    if (key > added && !std::binary_search(before.begin(), before.end(), key)) added = key;
  return added;
}

}  // namespace

void MainWindow::loadRows() {
  others_.since();  // what is read now is what they have left
  takeTouched();
  chooseAdded_ = false;
  reading([this] { return rows_.begin(desk_.parish(), *node_, AT_ONCE); });
  if (rows_.view() != node_) rows_.clear();  // no command may take another list's row for its own
}

void MainWindow::renew(bool chooseAdded) {
  if (!node_ || !hasRows(node_->kind)) return;
  if (rows_.view() != node_) return loadRows();  // it could not be read before
  others_.since();
  chooseAdded_ = chooseAdded && rows_.isWhole();
  reading([this] { return rows_.renew(desk_.parish(), AT_ONCE); });
}

void MainWindow::reading(const std::function<RowsModel::Reading()>& read) {
  slices_->stop();
  try {
    const RowsModel::Reading reading = read();
    if (reading == RowsModel::Reading::More) slices_->start();
    if (reading == RowsModel::Reading::Renewed) takeOver();
    if (reading == RowsModel::Reading::Whole) readingEnded();
  } catch (const store::Error& e) {
    desk_.entorno().ui.msgBox(e.what(), forms::MsgButtons::Ok, forms::MsgIcon::Critical);
  }
  updateCount();
}

// Only now can the rows be sorted, and one be chosen that a filter let through late.
void MainWindow::readingEnded() {
  if (shown_.sortIfRead()) table_->scrollTo(table_->currentIndex());
  if (table_->currentIndex().isValid() || shown_.rowCount() == 0) return;
  selectFirst();
  updateCommands();
}

void MainWindow::takeOver() {
  const Choice chosen = choice();
  const std::vector<std::int32_t> all =
      chosen.several ? chosenKeys(*table_) : std::vector<std::int32_t>();
  const int place = table_->currentIndex().row();
  const Sight sight(*table_);
  std::vector<std::int32_t> before;
  if (chooseAdded_) before = rows_.keys();
  rows_.takeOver();
  shown_.sortIfRead();
  const std::int32_t added = std::exchange(chooseAdded_, false) ? newKey(before, rows_.keys()) : 0;
  const bool found = (added != 0 && chooseRow(added)) || chosen.id == 0 || chooseRow(chosen.id);
  if (!found && shown_.rowCount() > 0)
    chooseOnly(*table_, std::clamp(place, 0, shown_.rowCount() - 1));
  if (added == 0 && !all.empty()) chooseKeys(*table_, all);
  if (!table_->currentIndex().isValid()) readingEnded();
  if (added == 0) sight.restore(shown_.mapFromSource(rows_.index(rows_.rowOf(sight.top()), 0)));
  updateCommands();
}

bool MainWindow::finishReading() {
  if (rows_.isWhole()) return true;
  if (rows_.isRead()) renew();  // it was broken off
  slices_->stop();
  LongRun run;
  run.run(this, tr("Se está leyendo la lista…"), [&] {
    std::size_t looks = 0;  // what grows is shown; rows that come unseen do not
    while (!rows_.isRead() && run.tell(++looks, 0)) {
      reading([this] { return rows_.readOn(AT_ONCE); });
      slices_->stop();
    }
  });
  if (!rows_.isRead()) slices_->start();
  return rows_.isWhole();
}

store::TouchedRows::Rows MainWindow::takeTouched() {
  store::TouchedRows::Rows rows = touched_.take();
  search_->touched(rows);
  return rows;
}

MainWindow::Touched MainWindow::touchedRows() {
  const store::TouchedRows::Rows rows = takeTouched();
  Touched touched{rows.all, {}};
  bool lost = false;  // rows beside the list's own that are gone, perhaps with it
  const std::vector<RowPart>& parts = node_->parts;
  for (const auto& row : rows.rows) {
    const auto part = std::find_if(parts.begin(), parts.end(),
                                   [&](const RowPart& p) { return p.table == row.table; });
    if (part == parts.end()) {
      touched.all = touched.all || readsFrom(*node_, row.table);
      continue;
    }
    const std::vector<std::int64_t> keys =
        part->lead.column.empty() ? std::vector{row.key} : touched_.numbersOf(part->lead, row.key);
    lost = lost || keys.empty();
    for (const std::int64_t key : keys) touched.keys.push_back(static_cast<std::int32_t>(key));
  }
  touched.all = touched.all || (lost && touched.keys.empty());
  return touched;
}

// A row that came to be is chosen after a command that may add one; otherwise the one that was, or
// the one that took its place.
void MainWindow::refresh(const Command& after, std::int32_t keep) {
  const bool mayAdd = after.kinds != 0 && after.needs == Needs::Nothing;
  bool anew = others_.since() || after.kinds == 0 || rows_.view() != node_;
  try {
    Touched touched = touchedRows();
    if (rows_.view() != node_) touched.keys.clear();
    anew = anew || touched.all;
    if (!touched.keys.empty() && keep != 0) touched.keys.push_back(keep);
    if (!touched.keys.empty()) update(touched.keys, mayAdd, anew);
  } catch (const store::Error& e) {
    desk_.entorno().ui.msgBox(e.what(), forms::MsgButtons::Ok, forms::MsgIcon::Critical);
  }
  if (anew) renew(mayAdd);
  updateCommands();
}

void MainWindow::update(const std::vector<std::int32_t>& keys, bool mayAdd, bool& anew) {
  const std::int32_t keep = choice().id;
  const int place = table_->currentIndex().row();
  const RowsModel::Update update = rows_.update(desk_.parish(), keys);
  anew = anew || !update.placed;
  const bool chosen = (mayAdd && update.added != 0 && chooseRow(update.added)) || chooseRow(keep);
  if (!chosen && shown_.rowCount() > 0)
    chooseOnly(*table_, std::clamp(place, 0, shown_.rowCount() - 1));
}

void MainWindow::renewIfChanged() {
  const bool occupied =
      busy_ || QApplication::activeModalWidget() || QApplication::activePopupWidget();
  if (!occupied && node_ && hasRows(node_->kind) && others_.since()) renew();
}

}  // namespace fidaleon::app
