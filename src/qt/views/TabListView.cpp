#include "qt/views/TabListView.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyledItemDelegate>

#include "qt/Appearance.h"
#include "qt/Text.h"

namespace fidaleon::qt {

namespace {

constexpr int MARKED = Qt::UserRole, NOTE = Qt::UserRole + 1;
constexpr int LEAST = 22, WIDEST = 26;  // letters of a line; a longer caption takes two
constexpr int LEAST_ROWS = 5;

QFont bold(QFont font) {
  font.setBold(true);
  return font;
}

}  // namespace

/// Caption above note; a caption without a note may take both lines, so that no row moves when a
/// name is typed.
class TabListView::Delegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QFontMetrics metrics(bold(option.font));
    const QString caption = index.data(Qt::DisplayRole).toString();
    int room = metrics.averageCharWidth() * WIDEST;
    const auto taken = [&] {
      return metrics.boundingRect(QRect(0, 0, room, 0), Qt::TextWordWrap, caption);
    };
    while (taken().height() > 2 * metrics.lineSpacing()) room += metrics.averageCharWidth();
    const int width = std::max(taken().width(), metrics.averageCharWidth() * LEAST);
    return {width + 2 * margin(metrics), 2 * metrics.lineSpacing() + margin(metrics)};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const QWidget& list = *option.widget;
    const bool front = option.state.testFlag(QStyle::State_Selected);
    const bool focus = list.hasFocus();
    const QPalette& palette = option.palette;
    painter->save();
    if (front)
      painter->fillRect(option.rect, focus ? palette.color(QPalette::Active, QPalette::Highlight)
                                           : restingColour(palette));
    painter->setPen(palette.color(QPalette::Active,
                                  front && focus ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(front ? bold(option.font) : option.font);
    paintTexts(*painter, option.rect, index);
    if (front && focus) paintFocus(*painter, option.rect);
    painter->restore();
  }

 private:
  static int margin(const QFontMetrics& metrics) { return metrics.height() / 2; }

  static void paintTexts(QPainter& painter, const QRect& row, const QModelIndex& index) {
    const QFontMetrics metrics = painter.fontMetrics();
    const QString note = index.data(NOTE).toString();
    const QRect room =
        row.adjusted(margin(metrics), margin(metrics) / 2, -margin(metrics), -margin(metrics) / 2);
    const int line = note.isEmpty() ? room.height() : metrics.lineSpacing();
    painter.drawText(QRect(room.topLeft(), QSize(room.width(), line)),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic | Qt::TextWordWrap,
                     index.data(MARKED).toString());
    painter.setOpacity(0.8);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine,
                     metrics.elidedText(note, Qt::ElideRight, room.width()));
    painter.setOpacity(1);
  }
  static void paintFocus(QPainter& painter, const QRect& row) {
    painter.setPen(QPen(painter.pen().color(), 1, Qt::DotLine));
    painter.drawRect(row.adjusted(2, 2, -3, -3));
  }
};

void AskingTabList::setLetters(const std::vector<char32_t>& letters) {
  if (letters == letters_) return;
  letters_ = letters;
  for (const int id : shortcuts_)
    if (id != 0) releaseShortcut(id);
  shortcuts_.clear();
  for (const char32_t letter : letters)
    shortcuts_.push_back(
        letter ? grabShortcut(QKeySequence::mnemonic(QStringLiteral("&") + QChar(char16_t(letter))))
               : 0);
}

QSize AskingTabList::sizeHint() const {
  int width = 0, height = 2 * frameWidth();
  for (int row = 0; row < count(); ++row) {
    const QSize hint = sizeHintForIndex(indexFromItem(item(row)));
    width = std::max(width, hint.width());
    if (!isRowHidden(row)) height += hint.height();
  }
  return {width + 2 * frameWidth(), height};
}

QSize AskingTabList::minimumSizeHint() const {
  return {sizeHint().width(), 2 * frameWidth() + LEAST_ROWS * sizeHintForRow(0)};
}

bool AskingTabList::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut) return QListWidget::event(event);
  const int id = static_cast<QShortcutEvent*>(event)->shortcutId();
  for (int tab = 0; tab < static_cast<int>(shortcuts_.size()); ++tab)
    if (shortcuts_[tab] == id && !isRowHidden(tab)) ask(tab);
  return true;
}

void AskingTabList::mousePressEvent(QMouseEvent* event) {
  const QListWidgetItem* pressed = itemAt(event->pos());
  if (event->button() == Qt::LeftButton && pressed) ask(row(pressed));
}

void AskingTabList::mouseMoveEvent(QMouseEvent*) {}

void AskingTabList::keyPressEvent(QKeyEvent* event) {
  const auto first = [this](int tab, int way) {
    while (tab >= 0 && tab < count() && isRowHidden(tab)) tab += way;
    if (tab >= 0 && tab < count()) step(tab);
  };
  switch (event->key()) {
    case Qt::Key_Up:
      return first(currentRow() - 1, -1);
    case Qt::Key_Down:
      return first(currentRow() + 1, 1);
    case Qt::Key_Home:
      return first(0, 1);
    case Qt::Key_End:
      return first(count() - 1, -1);
    default:
      return event->ignore();
  }
}

TabListView::TabListView(forms::TabStrip& strip, QWidget* parent)
    : TabsView(strip),
      both_(new QWidget(parent)),
      list_(new AskingTabList(both_)),
      pages_(new QStackedWidget(both_)) {
  auto* row = new QHBoxLayout(both_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(list_);
  row->addWidget(pages_, 1);
  list_->setItemDelegate(new Delegate(list_));
  list_->setFocusPolicy(Qt::TabFocus);
  list_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setAccessibleName(QStringLiteral("Apartados"));
  for (int tab = 0; tab < strip.tabCount(); ++tab) list_->addItem(plainCaption(strip.caption(tab)));
  list_->step = [&strip](int tab) {
    if (strip.userSelect(tab)) strip.form().setFocus(strip);
  };
  list_->ask = [this](int tab) { choose(tab); };
  watch();
}

void TabListView::addPage(QWidget* page) {
  pages_->addWidget(page);
}

void TabListView::showCaption() {
  std::vector<char32_t> letters;
  for (int tab = 0; tab < list_->count(); ++tab) {
    letters.push_back(strip().form().mnemonic(strip(), tab));
    list_->item(tab)->setData(MARKED, markedCaption(strip().caption(tab), letters.back()));
  }
  list_->setLetters(letters);
}

void TabListView::refresh(forms::Change what) {
  ControlView::refresh(what);
  if (what != forms::Change::Tab) return;
  for (int tab = 0; tab < list_->count(); ++tab) {
    QListWidgetItem& item = *list_->item(tab);
    const QString caption = plainCaption(strip().caption(tab)), note = toQt(strip().note(tab));
    const QString both = note.isEmpty() ? caption : caption + QStringLiteral(", ") + note;
    item.setText(caption);
    item.setData(NOTE, note);
    item.setData(Qt::AccessibleTextRole, both);
    item.setToolTip(note.isEmpty() ? QString() : both.toHtmlEscaped());
    item.setHidden(!strip().tabVisible(tab));
  }
  showCaption();
  list_->setCurrentRow(strip().tab());
  pages_->setCurrentIndex(strip().tab());
}

}  // namespace fidaleon::qt
