// What the main window does with what the search has found.

#include <QApplication>
#include <QLineEdit>
#include <QTableView>

#include "window/FamilyDialog.h"
#include "window/FoundRow.h"
#include "window/MainWindow.h"

namespace fidaleon::app {

void MainWindow::focusSearch() {
  search_->setFocus(Qt::ShortcutFocusReason);
  search_->selectAll();
}

void MainWindow::runOnFound(SearchBox::Act act, const search::Hit& hit) {
  const Choice row = choiceOf(hit, desk_.entorno().installation.Aplicacion);
  if (act == SearchBox::Act::ShowInBook) return showInList(row);
  if (act == SearchBox::Act::ShowFamily) return showFamily(row);
  const Command* command =
      act == SearchBox::Act::Print ? printingCommand(row) : openingCommand(row);
  if (command) run(*command, row);
}

// Once the command that asks for it has ended, since the page gives commands of its own.
void MainWindow::showFamily(const Choice& chosen) {
  if (const auto entry = entryOf(chosen))
    QMetaObject::invokeMethod(
        this, [this, entry] { openFamily(entry->first, entry->second); }, Qt::QueuedConnection);
}

// What is opened from the page may change it: it is put together anew.
void MainWindow::openFamily(search::Register in, std::int32_t key) {
  FamilyDialog dialog(*search_, in, key, this);
  std::optional<search::Hit> left;
  dialog.onChosen([&](SearchBox::Act act, const search::Hit& hit) {
    if (act == SearchBox::Act::ShowInBook) {
      left = hit;
      return dialog.accept();
    }
    runOnFound(act, hit);
    dialog.ask();
  });
  dialog.exec();
  if (left) runOnFound(SearchBox::Act::ShowInBook, *left);
}

void MainWindow::showInList(const Choice& row) {
  showNode(row.node->node.Nombre);
  filter_->clear();
  setScope(0, {});
  if (!finishReading() || !chooseRow(row.id)) QApplication::beep();
  table_->setFocus(Qt::OtherFocusReason);
}

}  // namespace fidaleon::app
