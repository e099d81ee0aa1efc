// What the main window is put together from.

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include "qt/Accessibility.h"
#include "window/Beside.h"
#include "window/Icons.h"
#include "window/MainWindow.h"
#include "window/TreeModel.h"

namespace fidaleon::app {
namespace {

/// Keeps numbers, which stand at the right, off the text of the next column.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!(option->displayAlignment & Qt::AlignRight)) return;
    option->text += QChar(0x2003);
    option->font.setStrikeOut(false);  // it would run on as a dash behind the number
  }
};

}  // namespace

void MainWindow::buildTree() {
  tree_ = new QTreeView(splitter_);
  tree_->setModel(makeTreeModel(palette(), tree_));
  tree_->setHeaderHidden(true);
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_->setAccessibleName(tr("Apartados"));
  tree_->expandAll();
  connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { nodeChosen(); });
  connect(tree_, &QTreeView::activated, this, [this] {
    if (node_ && isReport(node_->kind)) openChosen();
  });
}

void MainWindow::buildList() {
  right_ = new QStackedWidget(splitter_);
  folder_ = new QLabel(tr("Elija un apartado del árbol."), right_);
  folder_->setAlignment(Qt::AlignCenter);
  folder_->setForegroundRole(QPalette::PlaceholderText);
  right_->addWidget(folder_);

  auto* page = new QWidget(right_);
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(6, 6, 6, 0);
  filter_ = new QLineEdit(page);
  filter_->setPlaceholderText(
      tr("Filtrar: escriba parte de un nombre, un apellido, una fecha…  (Ctrl+F)"));
  filter_->setClearButtonEnabled(true);
  filter_->setAccessibleName(tr("Filtro"));
  qt::nameClearButton(*filter_, tr("Vaciar el filtro"));
  filter_->installEventFilter(this);
  scope_ = new QToolButton(page);
  scope_->setObjectName("scope");
  scope_->setIcon(icon("close", palette()));
  scope_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  scope_->setToolTip(tr("Muestra de nuevo las partidas de todos los libros"));
  scope_->hide();
  auto* top = new QHBoxLayout;
  top->addWidget(scope_);
  top->addWidget(filter_);
  layout->addLayout(top);

  shown_.setSourceModel(&rows_);
  shown_.setBeside([this](const auto& work) {
    try {
      runBeside(this, tr("Se está ordenando la lista…"), MayCancel::Yes, work);
      return true;
    } catch (const store::Error& e) {
      if (e.kind() != store::ErrorKind::Cancelled) throw;
      return false;
    }
  });
  table_ = new QTableView(page);
  table_->setAccessibleName(tr("Lista"));
  table_->setModel(&shown_);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setAlternatingRowColors(true);
  table_->setShowGrid(false);
  table_->setWordWrap(false);
  table_->setTabKeyNavigation(false);
  table_->setItemDelegate(new CellDelegate(table_));
  table_->setSortingEnabled(true);
  table_->setContextMenuPolicy(Qt::CustomContextMenu);
  table_->verticalHeader()->hide();
  fitLetters();
  table_->horizontalHeader()->setHighlightSections(false);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  table_->horizontalHeader()->setSortIndicatorClearable(true);
  table_->horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(table_->horizontalHeader(), &QWidget::customContextMenuRequested, this,
          [this] { actions_.at("columnas")->trigger(); });
  table_->installEventFilter(this);
  table_->viewport()->installEventFilter(this);
  layout->addWidget(table_);
  right_->addWidget(page);

  empty_ = new QLabel(table_->viewport());
  empty_->setAlignment(Qt::AlignCenter);
  empty_->setWordWrap(true);
  empty_->setForegroundRole(QPalette::PlaceholderText);
  empty_->setAttribute(Qt::WA_TransparentForMouseEvents);
  empty_->hide();

  connect(&shown_, &RowsFilter::sortGivenUp, this, [this](int column, Qt::SortOrder order) {
    const QSignalBlocker quiet(table_->horizontalHeader());
    table_->horizontalHeader()->setSortIndicator(column, order);
    table_->horizontalHeader()->viewport()->update();
  });
  connect(scope_, &QToolButton::clicked, this, [this] {
    setScope(0, {});
    filterChanged();
    table_->setFocus(Qt::OtherFocusReason);
  });
  connect(filter_, &QLineEdit::textChanged, this, [this] { filterChanged(); });
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { updateCommands(); });
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { updateCommands(); });
  connect(table_, &QTableView::doubleClicked, this, [this] { openChosen(); });
  connect(table_, &QTableView::customContextMenuRequested, this,
          [this](const QPoint& at) { showContextMenu(at); });
}

void MainWindow::fitLetters() {
  table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
  const int letter = table_->fontMetrics().averageCharWidth();
  const QHeaderView* header = table_->horizontalHeader();
  for (int c = 0; letter_ > 0 && c < header->count(); ++c)
    if (!header->isSectionHidden(c))
      table_->setColumnWidth(c, table_->columnWidth(c) * letter / letter_);
  letter_ = letter;
}

void MainWindow::buildCommands() {
  const std::map<Menu, QMenu*> menus{{Menu::File, menuBar()->addMenu(tr("&Archivo"))},
                                     {Menu::Record, menuBar()->addMenu(tr("&Registro"))},
                                     {Menu::Documents, menuBar()->addMenu(tr("&Documentos"))},
                                     {Menu::View, menuBar()->addMenu(tr("&Ver"))},
                                     {Menu::Help, menuBar()->addMenu(tr("A&yuda"))}};
  bar_ = addToolBar(tr("Órdenes"));
  bar_->setObjectName("commands");
  bar_->setMovable(false);
  bar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  for (const Command& command : commands()) {
    auto* action = new QAction(QString::fromStdString(command.text), this);
    action->setObjectName(QString::fromStdString(command.id));
    action->setIcon(icon(command.icon, palette()));
    const QKeySequence key(QString::fromStdString(command.shortcut));
    const QString tip = QString::fromStdString(command.tip);
    action->setToolTip(key.isEmpty() ? tip
                                     : tip + " (" + key.toString(QKeySequence::NativeText) + ")");
    action->setStatusTip(tip);
    if (key == QKeySequence(Qt::Key_Return))
      action->setShortcuts({key, QKeySequence(Qt::Key_Enter)});
    else
      action->setShortcut(key);
    // Keys that a text field needs for itself belong to the list; what needs no row also to the
    // tree.
    if (command.kinds != 0 && !command.shortcut.starts_with("Ctrl")) {
      action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
      table_->addAction(action);
      if (command.needs == Needs::Nothing) tree_->addAction(action);
    }
    connect(action, &QAction::triggered, this, [this, &command] { run(command); });
    menus.at(command.menu)->addAction(action);
    if (command.toolbar) bar_->addAction(action);
    actions_[command.id] = action;
  }
  search_ = new SearchBox(
      desk_, [this](SearchBox::Act act, const search::Hit& hit) { runOnFound(act, hit); }, this);
  connect(search_, &SearchBox::left, table_, [this] { table_->setFocus(Qt::OtherFocusReason); });
  auto* finding = addToolBar(tr("Búsqueda"));
  finding->setMovable(false);
  finding->addWidget(search_);
  recent_ = new QMenu(tr("Parroquias &recientes"), this);
  menus.at(Menu::File)->insertMenu(actions_.at("cerrar-parroquia"), recent_);
  menus.at(Menu::File)->insertSeparator(actions_.at("guardar-lista"));
  connect(menus.at(Menu::File), &QMenu::aboutToShow, this, [this] { fillRecent(); });
}

void MainWindow::buildStatusBar() {
  count_ = new QLabel(this);
  statusBar()->addWidget(count_, 1);
  if (!desk_.presence().seesOthers()) {
    auto* alone = new QLabel("  " + tr("Un solo equipo a la vez") + "  ", this);
    alone->setToolTip(tr(
        "Los datos están en una unidad en la que un equipo no ve lo que otro tiene abierto. Para "
        "trabajar varios a la vez, tienen que estar en una carpeta de un servidor que guarde los "
        "bloqueos."));
    statusBar()->addPermanentWidget(alone);
  }
  parishName_ = new QLabel(this);
  statusBar()->addPermanentWidget(parishName_);
  const QString user = QString::fromStdString(desk_.config().Usuario);
  const QString edition = QString::fromStdString(desk_.edition());
  for (const QString& text : {tr("Usuario: %1").arg(user), tr("Edición: %1").arg(edition)})
    statusBar()->addPermanentWidget(new QLabel("  " + text + "  ", this));
}

}  // namespace fidaleon::app
