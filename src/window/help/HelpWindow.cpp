#include "window/help/HelpWindow.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <chrono>

#include "qt/Accessibility.h"
#include "qt/Appearance.h"
#include "qt/Room.h"
#include "window/Icons.h"
#include "window/help/HelpPage.h"

namespace fidaleon::app {
namespace {

constexpr int LEFT_CHARS = 34, PAGE_CHARS = 84, HEIGHT_LINES = 44;
constexpr std::size_t CONTEXT_LETTERS = 110;
constexpr std::chrono::milliseconds BETWEEN_KEYS{120};
enum Role { FileRole = Qt::UserRole, HeadingRole };

QString toQt(const std::string& s) {
  return QString::fromStdString(s);
}

Place placeOf(const QTreeWidgetItem& item) {
  return {item.data(0, FileRole).toString().toStdString(),
          item.data(0, HeadingRole).toString().toStdString()};
}

/// The part of the line around the first of the words.
QString around(const QString& line, const QString& words) {
  const QString first = folded(words).section(' ', 0, 0, QString::SectionSkipEmpty);
  const auto room = static_cast<qsizetype>(CONTEXT_LETTERS);
  const qsizetype at = std::max<qsizetype>(0, folded(line).indexOf(first));
  if (line.size() <= room) return line;
  const qsizetype from = at < room / 2 ? 0 : line.lastIndexOf(' ', at - room / 3) + 1;
  return (from > 0 ? "…" : "") + line.mid(from, room).trimmed() +
         (from + room < line.size() ? "…" : "");
}

/// Heading in bold, what was found below it.
class HitDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem own = option;
    initStyleOption(&own, index);
    own.text.clear();
    own.widget->style()->drawControl(QStyle::CE_ItemViewItem, &own, painter, own.widget);
    QTextDocument text;
    fill(text, own, index);
    QAbstractTextDocumentLayout::PaintContext context;
    const bool chosen = own.state & QStyle::State_Selected;
    context.palette.setColor(
        QPalette::Text, own.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    painter->save();
    painter->translate(own.rect.topLeft());
    text.documentLayout()->draw(painter, context);
    painter->restore();
  }

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QTextDocument text;
    fill(text, option, index);
    return text.size().toSize();
  }

 private:
  static void fill(QTextDocument& text, const QStyleOptionViewItem& option,
                   const QModelIndex& index) {
    const auto* list = qobject_cast<const QListWidget*>(option.widget);
    text.setDefaultFont(option.font);
    text.setDocumentMargin(6);
    text.setTextWidth(list ? list->viewport()->width() : option.rect.width());
    const QStringList parts = index.data().toString().split('\n');
    text.setHtml("<b>" + parts.value(0).toHtmlEscaped() + "</b><br>" +
                 parts.mid(1).join('\n').toHtmlEscaped());
  }
};

}  // namespace

HelpWindow::HelpWindow(const Manual& manual, QWidget* parent)
    : QWidget(parent, Qt::Window), manual_(manual) {
  setWindowTitle(tr("Ayuda de Fidaleon"));
  setObjectName("HelpWindow");
  setPalette(qt::legible(palette()));
  // The program ends without asking whether anybody still reads.
  setAttribute(Qt::WA_QuitOnClose, false);
  page_ = new HelpPage(manual_, this);
  buildLeft();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(buildBar());
  auto* both = new QSplitter(this);
  both->addWidget(left_);
  both->addWidget(page_);
  both->setStretchFactor(1, 1);
  both->setSizes({qt::charsWidth(*this, LEFT_CHARS), qt::charsWidth(*this, PAGE_CHARS)});
  layout->addWidget(both);
  const QSize wish(qt::charsWidth(*this, LEFT_CHARS + PAGE_CHARS),
                   fontMetrics().height() * HEIGHT_LINES);
  qt::resizeWithin(*this, wish);
  connect(page_, &QTextBrowser::sourceChanged, this, [this] { follow(); });
  connect(page_->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { follow(); });
}

QToolBar* HelpWindow::buildBar() {
  auto* bar = new QToolBar(this);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  const auto add = [&](const char* drawing, const QString& text, const QKeySequence& key,
                       auto&& what) {
    QAction* action = bar->addAction(icon(drawing, palette()), text);
    action->setShortcut(key);
    action->setToolTip(tr("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, what);
    return action;
  };
  QAction* back = add("back", tr("Atrás"), tr("Alt+Left"), [this] { page_->backward(); });
  QAction* forward = add("forward", tr("Adelante"), tr("Alt+Right"), [this] { page_->forward(); });
  for (QAction* action : {back, forward}) action->setEnabled(false);
  connect(page_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(page_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
  add("list", tr("Índice"), tr("Alt+Home"), [this] {
    search_->clear();
    show({Manual::CONTENTS, {}});
  });
  bar->addSeparator();
  search_ = new QLineEdit(bar);
  search_->setPlaceholderText(tr("Buscar en todo el manual  (Ctrl+F)"));
  search_->setAccessibleName(tr("Buscar en el manual"));
  search_->setClearButtonEnabled(true);
  qt::nameClearButton(*search_, tr("Vaciar la búsqueda"));
  search_->installEventFilter(this);
  auto* pause = new QTimer(this);
  pause->setSingleShot(true);
  pause->setInterval(BETWEEN_KEYS);
  connect(pause, &QTimer::timeout, this, [this] { search(search_->text()); });
  connect(search_, &QLineEdit::textChanged, pause, [pause] { pause->start(); });
  bar->addWidget(search_);
  auto* find = new QAction(this);
  find->setShortcut(QKeySequence::Find);
  connect(find, &QAction::triggered, this, [this] {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
  });
  addAction(find);
  return bar;
}

void HelpWindow::buildLeft() {
  left_ = new QStackedWidget(this);
  contents_ = new QTreeWidget(left_);
  contents_->setHeaderHidden(true);
  contents_->setAccessibleName(tr("Índice del manual"));
  contents_->setWordWrap(true);
  contents_->setFrameShape(QFrame::NoFrame);
  fillContents();
  connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (item && !following_) page_->show(placeOf(*item));
  });
  left_->addWidget(contents_);
  hits_ = new QListWidget(left_);
  hits_->setAccessibleName(tr("Lo encontrado"));
  hits_->setFrameShape(QFrame::NoFrame);
  hits_->setItemDelegate(new HitDelegate(hits_));
  hits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  hits_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // lines keep the height they got
  hits_->setResizeMode(QListView::Adjust);
  connect(hits_, &QListWidget::currentRowChanged, this, [this](int row) { openHit(row); });
  connect(hits_, &QListWidget::itemClicked, this,
          [this](const QListWidgetItem* item) { openHit(hits_->row(item)); });
  left_->addWidget(hits_);
}

void HelpWindow::fillContents() {
  for (const Chapter& chapter : manual_.chapters()) {
    QTreeWidgetItem* top = nullptr;
    for (const Section& section : chapter.sections) {
      auto* item = top ? new QTreeWidgetItem(top) : new QTreeWidgetItem(contents_);
      item->setText(0, chapter.file == Manual::CONTENTS ? tr("Índice") : toQt(section.title));
      item->setData(0, FileRole, toQt(chapter.file));
      item->setData(0, HeadingRole, top ? toQt(section.title) : QString());
      if (!top) top = item;
    }
  }
}

void HelpWindow::show(const Place& place) {
  page_->show(place);
  follow();
}

// The tree shows what is being read.
void HelpWindow::follow() {
  const QScopedValueRollback quietly(following_, true);
  const Place at = page_->place();
  for (int i = 0; i < contents_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* chapter = contents_->topLevelItem(i);
    if (placeOf(*chapter).file != at.file) continue;
    QTreeWidgetItem* here = chapter;
    for (int k = 0; k < chapter->childCount(); ++k)
      if (sameHeading(placeOf(*chapter->child(k)).heading, at.heading)) here = chapter->child(k);
    if (contents_->currentItem() == here) return;
    contents_->setCurrentItem(here);
    contents_->scrollToItem(here);
  }
}

void HelpWindow::search(const QString& words) {
  if (std::exchange(searched_, words.trimmed()) == words.trimmed()) return;
  found_ = manual_.search(words.toStdString());
  hits_->clear();
  left_->setCurrentWidget(words.trimmed().isEmpty() ? static_cast<QWidget*>(contents_) : hits_);
  if (words.trimmed().isEmpty()) return page_->mark({});
  for (const Manual::Hit& hit : found_) {
    const QString where = hit.place.heading == hit.chapter
                              ? toQt(hit.chapter)
                              : toQt(hit.place.heading) + " — " + toQt(hit.chapter);
    hits_->addItem(where + "\n" + around(toQt(hit.line), words));
  }
  if (found_.empty()) {
    hits_->addItem(tr("No se encuentra.\nPruebe con menos palabras, o con otra."));
    hits_->item(0)->setFlags(Qt::NoItemFlags);
    return page_->mark({});
  }
  hits_->setCurrentRow(0);
}

void HelpWindow::openHit(int row) {
  if (row < 0 || static_cast<std::size_t>(row) >= found_.size()) return;
  show(found_[static_cast<std::size_t>(row)].place);
  page_->mark(search_->text());
}

bool HelpWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != search_ || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent*>(event)->key();
  if (key == Qt::Key_Escape && !search_->text().isEmpty()) {
    search_->clear();
    return true;
  }
  if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) search(search_->text());
  if (key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
  if (found_.empty()) return true;
  if (key == Qt::Key_Down)
    hits_->setFocus(Qt::TabFocusReason);
  else
    page_->setFocus(Qt::TabFocusReason);
  return true;
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return hide();
  QWidget::keyPressEvent(event);
}

}  // namespace fidaleon::app
