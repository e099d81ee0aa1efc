#include "window/FoundList.h"

#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

#include "qt/Appearance.h"
#include "window/FoundRow.h"

namespace fidaleon::app {
namespace {

constexpr int PAD = 4;

class FoundDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
    return {200, 2 * option.fontMetrics.lineSpacing() + 2 * PAD};
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& item,
             const QModelIndex& index) const override {
    QStyleOptionViewItem option = item;
    initStyleOption(&option, index);
    option.text.clear();
    option.icon = {};
    option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    painter->save();
    const bool chosen = option.state & QStyle::State_Selected;
    const QRect inner = option.rect.adjusted(2 * PAD, PAD, -2 * PAD, -PAD);
    const int line = option.fontMetrics.lineSpacing();
    const QRect icon(inner.left(), inner.top() + line / 2, line + 4, line + 4);
    index.data(Qt::DecorationRole)
        .value<QIcon>()
        .paint(painter, icon, Qt::AlignCenter, chosen ? QIcon::Selected : QIcon::Normal);
    QRect text = inner.adjusted(icon.width() + 3 * PAD, 0, 0, 0);
    painter->setPen(option.palette.color(chosen ? QPalette::HighlightedText : QPalette::Text));
    draw(painter, option, text, index);
    painter->restore();
  }

 private:
  static void draw(QPainter* painter, const QStyleOptionViewItem& option, const QRect& text,
                   const QModelIndex& index) {
    const auto put = [&](QRect at, QString what, Qt::Alignment side) {
      what = painter->fontMetrics().elidedText(what, Qt::ElideRight, at.width());
      painter->drawText(at, side | Qt::AlignVCenter, what);
      return painter->fontMetrics().horizontalAdvance(what) + 4 * PAD;
    };
    QRect upper = text, lower = text;
    upper.setBottom(text.top() + option.fontMetrics.lineSpacing());
    lower.setTop(upper.bottom());
    QFont font = option.font;
    upper.setRight(upper.right() -
                   put(upper, index.data(FoundModel::WhenRole).toString(), Qt::AlignRight));
    font.setBold(index.data(FoundModel::ExactRole).toBool());
    font.setStrikeOut(index.data(FoundModel::AnnulledRole).toBool());
    painter->setFont(font);
    put(upper, index.data(Qt::DisplayRole).toString(), Qt::AlignLeft);
    painter->setFont(option.font);
    const QString why = index.data(FoundModel::WhyRole).toString();
    QRect left = lower;
    left.setWidth(lower.width() * (why.isEmpty() ? 20 : 11) / 20);
    lower.setLeft(left.left() +
                  put(left, index.data(FoundModel::WhereRole).toString(), Qt::AlignLeft));
    font = option.font;
    font.setItalic(true);
    painter->setFont(font);
    put(lower, why, Qt::AlignRight);
  }
};

}  // namespace

void FoundModel::show(std::vector<search::Hit> hits) {
  beginResetModel();
  hits_ = std::move(hits);
  endResetModel();
}

int FoundModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(hits_.size());
}

QVariant FoundModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const search::Hit& found = hit(index.row());
  const QString where = registerOf(found) + ": " + QString::fromStdString(found.where) +
                        (found.annulled ? tr(" (ANULADA)") : QString());
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(found.name);
    case Qt::DecorationRole:
      return iconOf(found, qt::legible({}));
    case WhenRole:
      return daysOf(found);
    case WhereRole:
      return where;
    case WhyRole:
      return QString::fromStdString(found.why);
    case AnnulledRole:
      return found.annulled;
    case ExactRole:
      return found.exact;
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
      return QStringList{QString::fromStdString(found.name), daysOf(found), where,
                         QString::fromStdString(found.why)}
          .join(". ");
    default:
      return {};
  }
}

FoundList::FoundList(QWidget* parent) : QListView(parent) {
  setModel(&model_);
  setItemDelegate(new FoundDelegate(this));
  setUniformItemSizes(true);
  setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAlternatingRowColors(true);
  setAccessibleName(tr("Lo que se ha encontrado"));
}

void FoundList::show(std::vector<search::Hit> hits) {
  model_.show(std::move(hits));
  if (model_.rowCount() > 0) setCurrentIndex(model_.index(0));
}

const search::Hit* FoundList::chosen() const {
  return currentIndex().isValid() ? &model_.hit(currentIndex().row()) : nullptr;
}

void FoundList::move(int rows) {
  if (model_.rowCount() == 0) return;
  setCurrentIndex(model_.index(std::clamp(currentIndex().row() + rows, 0, model_.rowCount() - 1)));
}

int FoundList::rowHeight() const {
  return 2 * fontMetrics().lineSpacing() + 2 * PAD;
}

}  // namespace fidaleon::app
