#include "qt/views/OfferList.h"

#include <QListWidget>
#include <QPointer>

#include "qt/Text.h"

namespace fidaleon::qt {

OfferList::OfferList(QWidget& field) : QObject(&field), field_(field) {}

OfferList::~OfferList() = default;

void OfferList::make() {
  list_ = new QListWidget(field_.window());
  list_->setObjectName(field_.objectName() + QStringLiteral("Ofertas"));
  list_->setAccessibleName(QStringLiteral("Lo que se ha escrito otras veces"));
  list_->setFocusPolicy(Qt::NoFocus);
  list_->setUniformItemSizes(true);
  list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_->setTextElideMode(Qt::ElideRight);
  list_->hide();
  connect(list_, &QListWidget::clicked, this, [this](const QModelIndex& at) {
    if (offers_.empty()) return;
    const forms::Offer taken = offers_.at(static_cast<std::size_t>(at.row()));
    hide();
    if (onClick) onClick(taken);
  });
}

void OfferList::show(std::vector<forms::Offer> offers, bool first) {
  offers_ = std::move(offers);
  if (offers_.empty()) return hide();
  if (!list_) make();
  list_->clear();
  for (const forms::Offer& offer : offers_) list_->addItem(toQt(offer.text));
  list_->setCurrentRow(first ? 0 : -1);
  place();
  list_->show();
  list_->raise();
}

void OfferList::say(const QString& why) {
  offers_.clear();
  if (!list_) make();
  list_->clear();
  list_->addItem(why);
  list_->item(0)->setFlags(Qt::NoItemFlags);
  place();
  list_->show();
  list_->raise();
}

/// Below the field, or above it where the window ends.
void OfferList::place() {
  const QWidget& window = *field_.window();
  const int frame = 2 * list_->frameWidth();
  const int height = list_->sizeHintForRow(0) * list_->count() + frame;
  const QPoint below = field_.mapTo(&window, QPoint(0, field_.height()));
  const int most = std::max(field_.width(), window.width() - below.x() - frame);
  const int width = std::clamp(list_->sizeHintForColumn(0) + frame + 8, field_.width(), most);
  const bool fits = below.y() + height <= window.height();
  const int top = fits ? below.y() : std::max(0, below.y() - field_.height() - height);
  list_->setGeometry(below.x(), top, width, std::min(height, window.height()));
}

void OfferList::hide() {
  if (list_) list_->hide();
}

bool OfferList::isShown() const {
  return list_ && list_->isVisible();
}

bool OfferList::moves(const QKeyEvent& event) {
  if (!isShown() || (event.key() != Qt::Key_Down && event.key() != Qt::Key_Up)) return false;
  if (offers_.empty()) return true;
  const int row = list_->currentRow() + (event.key() == Qt::Key_Down ? 1 : -1);
  list_->setCurrentRow(row >= list_->count() || row < -1 ? -1 : row);
  if (const forms::Offer* at = chosen()) field_.setAccessibleDescription(toQt(at->text));
  return true;
}

const forms::Offer* OfferList::chosen() const {
  if (!isShown() || offers_.empty() || list_->currentRow() < 0) return nullptr;
  return &offers_.at(static_cast<std::size_t>(list_->currentRow()));
}

}  // namespace fidaleon::qt
