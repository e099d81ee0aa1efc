#include "window/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "core/statements/Sentencia.h"
#include "parish/Preferences.h"
#include "parish/WindowSettings.h"
#include "printing/DocumentReport.h"
#include "qt/Appearance.h"
#include "qt/Room.h"
#include "window/AboutDialog.h"
#include "window/ChosenRows.h"
#include "window/PreviewDialog.h"
#include "window/TreeModel.h"
#include "window/help/Help.h"

namespace fidaleon::app {
namespace {

constexpr RowsModel::Time A_WHILE{200};
constexpr RowsModel::Time SLICE{15};  // of reading, between what the user does

const char* hintOf(NodeKind kind) {
  switch (kind) {
    case NodeKind::Reports:
      return "Pulse Intro en el árbol, o Ctrl+P, para imprimir.";
    case NodeKind::ListReports:
      return "Pulse Intro en el árbol, o Ctrl+P, para elegir qué se imprime.\n"
             "Con Ctrl+Mayúsculas+P se imprime todo.";
    default:
      return "Elija un apartado del árbol.";
  }
}

}  // namespace

MainWindow::MainWindow(Desk& desk, FormWatch* watch, QWidget* parent)
    : QMainWindow(parent),
      desk_(desk),
      watch_(watch),
      door_(desk.entorno().settings, desk.entorno().clock),
      copies_(desk.files().directory, copiesKept(desk.entorno().settings, desk.config())),
      removals_(desk.parish()),
      daily_(desk, [this] { sayDamaged(); }),
      identity_(files::identityOf(desk.files().parish())),
      others_(desk.parish()),
      touched_(desk.parish()),
      slices_(new QTimer(this)) {
  connect(slices_, &QTimer::timeout, this, [this] {
    // A list that is taken over under a menu would give its command another row.
    const bool occupied = QApplication::activePopupWidget() || QApplication::activeModalWidget();
    slices_->setInterval(occupied ? A_WHILE : RowsModel::Time(0));
    if (!occupied) reading([this] { return rows_.readOn(SLICE); });
  });
  takeUpLog();
  setObjectName("MainWindow");
  setPalette(qt::legible(palette()));
  splitter_ = new QSplitter(this);
  setCentralWidget(splitter_);
  buildTree();
  buildList();
  buildCommands();
  buildStatusBar();
  showParishName();
  splitter_->setStretchFactor(1, 1);
  restoreWindow();
  showNode("PartidasBautismo");
  table_->setFocus();
  const auto every = [this](std::chrono::seconds pause, auto work) {
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, work);
    timer->start(pause);
  };
  every(std::chrono::seconds(30), [this] { desk_.presence().tellAgain(); });
  every(std::chrono::seconds(3), [this] { renewIfChanged(); });
}

MainWindow::~MainWindow() = default;

QAction* MainWindow::action(const std::string& command) const {
  return actions_.at(command);
}

void MainWindow::showNode(const std::string& name) {
  const QModelIndex index = treeIndexOf(*tree_->model(), name);
  if (index.isValid()) tree_->setCurrentIndex(index);
}

void MainWindow::nodeChosen() {
  const QModelIndex index = tree_->currentIndex();
  const NodeView* chosen = findNode(index.data(NodeNameRole).toString().toStdString());
  if (!chosen || chosen == node_) return;
  rememberColumns();
  node_ = chosen;
  setProperty(Help::ABOUT, QString::fromStdString(node_->node.Nombre));
  table_->setAccessibleName(QString::fromStdString(node_->node.Path).replace('\\', ", "));
  filter_->clear();
  setScope(0, {});
  right_->setCurrentIndex(hasRows(node_->kind) ? 1 : 0);
  folder_->setText(tr(hintOf(node_->kind)));
  loadRows();
  if (!node_->day.empty()) finishReading();
  applyColumns();
  selectFirst();
  updateCommands();
}

// The first row, or the next that is to come.
void MainWindow::selectFirst() {
  if (shown_.rowCount() == 0) return;
  const int coming = rows_.nextFrom(text::toStored(desk_.entorno().clock.today()));
  const QModelIndex index = shown_.mapFromSource(rows_.index(coming, 0));
  chooseOnly(*table_, index.isValid() ? index.row() : 0);
  if (index.isValid()) table_->scrollTo(index, QAbstractItemView::PositionAtTop);
}

void MainWindow::showEntriesOf(const Sacramento& sacrament, std::int32_t book) {
  const NodeView* node = entriesNode(sacrament);
  const auto row = parish().Execute(
      sentencia(sacrament, "SELECT Nombre FROM {Libros} WHERE {IDLibro}=") + std::to_string(book));
  if (!node || row.EOF_()) return;
  showNode(node->node.Nombre);
  table_->setFocus();
  filter_->clear();
  setScope(book, QString::fromStdString(row.text("Nombre")));
  finishReading();
  selectFirst();
  updateCommands();
  table_->setFocus(Qt::OtherFocusReason);
}

void MainWindow::setScope(std::int32_t group, const QString& name) {
  shown_.setGroup(group);
  scope_->setText(tr("Libro: %1").arg(name));
  scope_->setVisible(group != 0);
}

Choice MainWindow::choice() const {
  Choice c;
  c.node = node_;
  c.edition = desk_.entorno().installation.Aplicacion;
  const QModelIndex index = shown_.mapToSource(table_->currentIndex());
  if (!index.isValid() || !table_->selectionModel()->hasSelection()) return c;
  c.id = rows_.key(index.row());
  c.annulled = rows_.annulled(index.row());
  c.several = chosenCount(*table_) > 1;
  return c;
}

void MainWindow::run(const Command& command, const Choice& chosen) {
  const NodeView* const shown = node_;
  if (busy_ || !applies(command, chosen)) return;
  if (command.kinds != 0 && !isInPlace()) return;
  daily_.giveUp();
  const bool stopped = (command.kinds != 0 || command.refreshes) && rows_.stop();
  if (stopped) slices_->stop();
  busy_ = true;
  try {
    carryOut(command, chosen);
  } catch (const store::Error& e) {
    desk_.errors().note(desk_.entorno().clock, command.id);
    if (e.kind() == store::ErrorKind::NotADatabase) metDamage_ = isDamaged();
    if (!metDamage_)
      desk_.entorno().ui.msgBox(e.what(), forms::MsgButtons::Ok, forms::MsgIcon::Critical);
  } catch (const paper::Error& e) {
    desk_.errors().note(desk_.entorno().clock, command.id);
    desk_.entorno().ui.msgBox(e.what(), forms::MsgButtons::Ok, forms::MsgIcon::Critical);
  }
  busy_ = false;
  if (std::exchange(metDamage_, false)) sayDamaged();
  if (node_ == shown && stopped) renew();
  if (node_ == shown && command.refreshes)
    refresh(command, chosen.node == shown ? chosen.id : choice().id);
  activateWindow();
}

bool MainWindow::chooseRow(std::int32_t key) {
  const QModelIndex index = shown_.mapFromSource(rows_.index(rows_.rowOf(key), 0));
  if (!index.isValid()) return false;
  chooseOnly(*table_, index.row());
  table_->scrollTo(index);
  return true;
}

void MainWindow::updateCommands() {
  const Choice chosen = choice();
  for (const Command& command : commands()) {
    QAction* action = actions_.at(command.id);
    const bool given = applies(command, chosen);
    const bool other = command.needs == Needs::AnnulledRow || command.needs == Needs::ValidRow;
    // A hidden action never calls itself enabled, so it is shown first.
    action->setVisible(belongs(command, chosen) &&
                       (!other || given || (command.needs == Needs::ValidRow && !chosen.annulled)));
    action->setEnabled(given);
  }
  for (QAction* title : menuBar()->actions()) {
    const QList<QAction*> lines = title->menu()->actions();
    title->setEnabled(std::any_of(lines.begin(), lines.end(),
                                  [](const QAction* line) { return line->isVisible(); }));
  }
  updateCount();
}

void MainWindow::updateCount() {
  if (!node_ || !hasRows(node_->kind)) return count_->clear();
  const int shown = shown_.rowCount();
  const int all = rows_.rowCount();
  const QString things = QString::fromStdString(node_->things);
  count_->setText(shown == all ? tr("%L1 %2").arg(all).arg(
                                     all == 1 ? QString::fromStdString(node_->thing) : things)
                               : tr("%L1 de %L2 %3").arg(shown).arg(all).arg(things));
  if (const int chosen = chosenCount(*table_); chosen > 1)
    count_->setText(count_->text() + tr(" · %L1 filas elegidas").arg(chosen));
  if (rows_.isFilling())
    count_->setText(count_->text() + tr(" y se siguen leyendo…"));
  else if (!rows_.isWhole())
    count_->setText(count_->text() + tr(" y otras que no se han leído"));
  empty_->setText(
      rows_.view() != node_ ? tr("La lista no se ha podido leer.\nElíjala otra vez en el árbol.")
      : all == 0 ? tr("Todavía no hay %1.\nPulse la tecla Insert para añadir.").arg(things)
      : filter_->text().isEmpty() ? tr("Este libro todavía no tiene %1.").arg(things)
                                  : tr("Ninguna fila contiene «%1».").arg(filter_->text()));
  empty_->setVisible(shown == 0 && !rows_.isFilling());
}

void MainWindow::filterChanged() {
  const std::int32_t keep = choice().id;
  shown_.setText(filter_->text());
  if (!chooseRow(keep) && shown_.rowCount() > 0) chooseOnly(*table_, 0);
  updateCommands();
}

void MainWindow::showContextMenu(const QPoint& at) {
  QMenu menu(this);
  Menu last = Menu::Record;
  const Choice chosen = choice();
  for (const Command& command : commands()) {
    if (command.kinds == 0 || !belongs(command, chosen)) continue;
    if (!actions_.at(command.id)->isVisible()) continue;
    if (command.menu != last) menu.addSeparator();
    last = command.menu;
    menu.addAction(actions_.at(command.id));
    if (command.opens) menu.setDefaultAction(actions_.at(command.id));
  }
  if (!menu.isEmpty()) menu.exec(table_->viewport()->mapToGlobal(at));
}

void MainWindow::openChosen() {
  for (const Command& command : commands())
    if (command.opens && applies(command, choice())) return run(command);
}

void MainWindow::showDocument(const Documento& document, std::int32_t id) {
  preview([&](paper::ReportOptions options) {
    return makeReport(desk_, document, id, std::move(options));
  });
}

void MainWindow::showListReport(const ListReport& report, Extent extent) {
  preview([&](paper::ReportOptions options) {
    return makeListReport(desk_, report, extent, std::move(options));
  });
}

void MainWindow::preview(const Maker& make) {
  const auto run = std::make_shared<LongRun>();
  paper::ReportOptions options;
  options.composition = paper::ReportOptions::Composition::AsNeeded;
  options.progress = [run](std::size_t done, std::size_t total) { return run->tell(done, total); };
  std::optional<paper::Report> report = make(std::move(options));
  if (!report) return;
  PreviewDialog preview(std::move(*report), this, run);
  preview.keepHabits(desk_);
  preview.exec();
}

void MainWindow::tellOfIncompleteEntries() {
  const std::int64_t count = nucleo().CuentaPartidasIncompletas(parish());
  if (count == 0) return;
  const std::string text =
      count == 1
          ? "Hay una partida a la que le falta alguna de sus fichas o su institución: puede que no "
            "aparezca en las listas. ¿Desea verla ahora?"
          : "Hay " + std::to_string(count) +
                " partidas a las que les falta alguna de sus fichas o su institución: puede que no "
                "aparezcan en las listas. ¿Desea verlas ahora?";
  if (forms::ask(desk_.entorno().ui, text)) action("partidas-incompletas")->trigger();
}

void MainWindow::focusFilter() {
  filter_->setFocus(Qt::ShortcutFocusReason);
  filter_->selectAll();
}

void MainWindow::help(const std::string& name) {
  emit helpWanted(name.empty() ? Help::nameAt(this) : name);
}

void MainWindow::about() {
  AboutDialog(desk_, this).exec();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == table_->viewport() && event->type() == QEvent::Resize)
    empty_->setGeometry(table_->viewport()->rect());
  if (watched == table_ && event->type() == QEvent::FontChange) fitLetters();
  // Ctrl+K is the search's, and not the text field's that would cut off what is behind the caret.
  if (watched == filter_ && event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::DeleteEndOfLine)) {
    event->ignore();
    return true;
  }
  if (event->type() != QEvent::KeyPress) return QMainWindow::eventFilter(watched, event);
  auto* key = static_cast<QKeyEvent*>(event);
  if (watched == filter_) {
    if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
      table_->setFocus(Qt::TabFocusReason);
      return true;
    }
    if (key->key() == Qt::Key_Escape) {
      filter_->clear();
      table_->setFocus(Qt::TabFocusReason);
      return true;
    }
  } else if (watched == table_ && !key->text().isEmpty() && key->text().at(0).isLetterOrNumber() &&
             !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
    // Writing over the list filters it.
    filter_->setFocus(Qt::OtherFocusReason);
    filter_->setText(filter_->text() + key->text());
    return true;
  }
  return QMainWindow::eventFilter(watched, event);
}

std::string MainWindow::read(const std::string& key) const {
  return readWindowSetting(desk_, key);
}

void MainWindow::write(const std::string& key, const std::string& value) {
  writeWindowSetting(desk_, key, value);
}

void MainWindow::restoreWindow() {
  const std::string geometry = read("geometria");
  if (geometry.empty() || !restoreGeometry(QByteArray::fromBase64(geometry.c_str())))
    qt::resizeWithin(*this, {1180, 680});
  const std::string splitter = read("division");
  // Every node can be read without drawing the tree wider, but most of the room is the list's.
  tree_->resizeColumnToContents(0);
  const int treeWidth = std::min(tree_->columnWidth(0) + 2 * tree_->frameWidth(), width() * 2 / 5);
  if (splitter.empty() || !splitter_->restoreState(QByteArray::fromBase64(splitter.c_str())))
    splitter_->setSizes({treeWidth, width() - treeWidth});
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (busy_) return event->ignore();
  rememberColumns();
  write("geometria", saveGeometry().toBase64().toStdString());
  write("division", splitter_->saveState().toBase64().toStdString());
  QMainWindow::closeEvent(event);
}

}  // namespace fidaleon::app
