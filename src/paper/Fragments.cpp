#include "paper/Fragments.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "paper/Units.h"

namespace fidaleon::paper {

Fragment::Parts Fragment::split(qreal available, bool must) const {
  if (must || height() <= available) return {shared_from_this(), nullptr};
  return {nullptr, shared_from_this()};
}

FragmentPtr Fragment::withoutLeadingSpace() const {
  return shared_from_this();
}

namespace {

constexpr qreal kDot = 0.18;       // millimetres across
constexpr qreal kDotStep = 1.1;    // from dot to dot
constexpr qreal kLeaderGap = 1.2;  // between text and its dots
constexpr qreal kWithSignature = 14;

/// Dots stand at whole steps from the right, so that those of several lines are in columns.
void paintDots(QPainter& painter, qreal left, qreal right, qreal y) {
  if (right <= left) return;
  const qreal dot = dotsOfMillimetres(kDot);
  QPen pen(Qt::black, dot, Qt::CustomDashLine, Qt::FlatCap);
  pen.setDashPattern({1, kDotStep / kDot - 1});
  painter.setPen(pen);
  painter.drawLine(QPointF(right, y), QPointF(left, y));
  painter.setPen(Qt::black);
}

}  // namespace

void RuleFragment::paint(QPainter& painter, QPointF topLeft) const {
  painter.fillRect(QRectF(topLeft, QSizeF(width_, thickness_)),
                   ink_ == Ink::Black ? QColor(Qt::black) : QColor(130, 130, 130));
}

void CrossFragment::paint(QPainter& painter, QPointF topLeft) const {
  constexpr qreal kOfHeight = 0.72;
  QPainterPath arm({0.07, -0.07});
  arm.quadTo({0.13, -0.6}, {0.52, -1});
  arm.quadTo({0, -0.9}, {-0.52, -1});
  arm.quadTo({-0.13, -0.6}, {-0.07, -0.07});
  arm.lineTo(0, 0.07);
  arm.closeSubpath();
  painter.save();
  painter.translate(topLeft + QPointF(width_, height_) / 2);
  painter.scale(height_ * kOfHeight / 2, height_ * kOfHeight / 2);
  for (int i = 0; i < 4; ++i) {
    painter.fillPath(arm, Qt::black);
    painter.rotate(90);
  }
  painter.restore();
}

TextFragment::TextFragment(std::shared_ptr<const QTextLayout> layout, int first, int last,
                           qreal leading)
    : layout_(std::move(layout)), first_(first), last_(last), leading_(leading) {}

qreal TextFragment::heightOf(int line) const {
  return layout_->lineAt(line).height() * leading_;
}

qreal TextFragment::height() const {
  qreal sum = 0;
  for (int i = first_; i < last_; ++i) sum += heightOf(i);
  return sum;
}

void TextFragment::paint(QPainter& painter, QPointF topLeft) const {
  qreal y = topLeft.y();
  for (int i = first_; i < last_; ++i) {
    const QTextLine line = layout_->lineAt(i);
    const qreal lead = (heightOf(i) - line.height()) / 2;
    line.draw(&painter, {topLeft.x(), y + lead - line.y()});
    y += heightOf(i);
  }
}

FragmentPtr TextFragment::part(int first, int last) const {
  return std::make_shared<TextFragment>(layout_, first, last, leading_);
}

Fragment::Parts TextFragment::split(qreal available, bool must) const {
  const int count = last_ - first_;
  int fits = 0;
  for (qreal y = heightOf(first_); fits < count && y <= available;) {
    ++fits;
    if (fits < count) y += heightOf(first_ + fits);
  }
  if (fits == count) return {shared_from_this(), nullptr};
  // No single line of a longer paragraph is left alone at the foot or the head of a page.
  if (count > 3 && fits == count - 1) --fits;
  if (count > 3 && fits == 1 && !must) fits = 0;
  if (fits == 0 && must) fits = 1;
  if (fits == 0) return {nullptr, shared_from_this()};
  return {part(first_, first_ + fits), part(first_ + fits, last_)};
}

void LeaderFragment::paint(QPainter& painter, QPointF topLeft) const {
  TextFragment::paint(painter, topLeft);
  const int last = layout().lineCount() - 1;
  const QTextLine line = layout().lineAt(last);
  const qreal lead = (heightOf(last) - line.height()) / 2;
  const qreal baseline = topLeft.y() + height() - heightOf(last) + lead + line.ascent();
  paintDots(painter,
            topLeft.x() + line.x() + line.naturalTextWidth() + dotsOfMillimetres(kLeaderGap),
            topLeft.x() + width_, baseline - dotsOfMillimetres(kDot) / 2);
}

void WriteLinesFragment::paint(QPainter& painter, QPointF topLeft) const {
  // A hair's breadth, so that rounding takes no line away.
  for (qreal y = spacing_; y <= height_ + 1; y += spacing_)
    paintDots(painter, topLeft.x(), topLeft.x() + width_, topLeft.y() + y);
}

Fragment::Parts WriteLinesFragment::split(qreal available, bool must) const {
  if (height_ <= available) return {shared_from_this(), nullptr};
  const qreal head = std::floor(available / spacing_) * spacing_;
  if (head <= 0) return Fragment::split(available, must);
  return {std::make_shared<WriteLinesFragment>(width_, head, spacing_),
          std::make_shared<WriteLinesFragment>(width_, height_ - head, spacing_)};
}

StackFragment::StackFragment(std::vector<FragmentPtr> children, Look look)
    : children_(std::move(children)), look_(look), height_(0) {
  for (const FragmentPtr& c : children_) height_ += c->height();
}

void StackFragment::paint(QPainter& painter, QPointF topLeft) const {
  for (const FragmentPtr& c : children_) {
    c->paint(painter, topLeft);
    topLeft.ry() += c->height();
  }
}

qreal StackFragment::markedHeight() const {
  if (look_.clear) return 0;
  qreal marked = 0;
  for (const FragmentPtr& c : children_) {
    marked += c->markedHeight();
    if (c->markedHeight() < c->height()) break;
  }
  return marked;
}

namespace {

FragmentPtr stacked(std::vector<FragmentPtr> pieces) {
  if (pieces.empty()) return nullptr;
  return std::make_shared<StackFragment>(std::move(pieces), false);
}

/// Takes the headings that would be the last things on a page over to the next one, with the space
/// around them.
void takeHeadings(std::vector<FragmentPtr>& head, std::vector<FragmentPtr>& rest) {
  const auto first = std::find_if(head.rbegin(), head.rend(), [](const FragmentPtr& c) {
    return !c->isSpace() && !c->staysWithNext();
  });
  const auto from = std::find_if(first.base(), head.end(),
                                 [](const FragmentPtr& c) { return c->staysWithNext(); });
  rest.insert(rest.begin(), from, head.end());
  head.erase(from, head.end());
}

/// A signature does not stand alone on a page: the last lines above it go with it.
void takeLinesOver(std::vector<FragmentPtr>& head, std::vector<FragmentPtr>& rest) {
  if (rest.empty() || rest.front()->isSpace() || rest.front()->markedHeight() > 0) return;
  const auto isText = [](const FragmentPtr& c) { return !c->isSpace() && !c->staysWithNext(); };
  const auto last = std::find_if(head.rbegin(), head.rend(), isText);
  if (last == head.rend()) return;
  const FragmentPtr block = *last;
  const qreal over = dotsOfMillimetres(kWithSignature);
  const Fragment::Parts parts = block->height() > over ? block->split(block->height() - over, false)
                                                       : Fragment::Parts{nullptr, block};
  const bool leavesText = parts.head || std::any_of(last + 1, head.rend(), isText);
  if (!parts.rest || !leavesText) return;
  head.erase(last.base() - 1, head.end());
  if (parts.head) head.push_back(parts.head);
  rest.insert(rest.begin(), parts.rest);
}

}  // namespace

Fragment::Parts StackFragment::split(qreal available, bool must) const {
  if (height_ <= available) return {shared_from_this(), nullptr};
  if (look_.keep && !must) return {nullptr, shared_from_this()};
  std::vector<FragmentPtr> head, rest;
  bool printed = false;
  for (const FragmentPtr& c : children_) {
    if (!rest.empty()) {
      rest.push_back(c);
      continue;
    }
    const Parts parts = c->split(available, must && !printed && !c->isSpace());
    if (parts.head) {
      head.push_back(parts.head);
      available -= parts.head->height();
      printed = printed || (!c->isSpace() && !c->staysWithNext());
    }
    if (parts.rest && !c->isSpace()) rest.push_back(parts.rest);
  }
  if (!printed && !must) return {nullptr, shared_from_this()};
  if (printed && !rest.empty()) {
    takeLinesOver(head, rest);
    takeHeadings(head, rest);
  }
  return {stacked(std::move(head)), stacked(std::move(rest))};
}

FragmentPtr StackFragment::withoutLeadingSpace() const {
  std::vector<FragmentPtr> left;
  for (const FragmentPtr& c : children_)
    if (!left.empty())
      left.push_back(c);
    else if (FragmentPtr kept = c->withoutLeadingSpace())
      left.push_back(std::move(kept));
  if (left.empty()) return nullptr;
  return std::make_shared<StackFragment>(std::move(left), look_);
}

ColumnsFragment::ColumnsFragment(std::vector<Column> columns, Look look)
    : columns_(std::move(columns)), look_(look), height_(0) {
  for (const Column& c : columns_)
    if (c.content) height_ = std::max(height_, c.content->height());
}

void ColumnsFragment::paint(QPainter& painter, QPointF topLeft) const {
  for (const Column& c : columns_) {
    if (c.content) {
      const qreal down = look_.atFoot ? height_ - c.content->height() : 0;
      c.content->paint(painter, {topLeft.x() + c.x, topLeft.y() + down});
    }
    if (look_.dividerThickness > 0 && &c != &columns_.front())
      painter.fillRect(
          QRectF(topLeft.x() + c.x - look_.gap / 2, topLeft.y(), look_.dividerThickness, height_),
          Qt::black);
  }
}

Fragment::Parts ColumnsFragment::split(qreal available, bool must) const {
  if (height_ <= available) return {shared_from_this(), nullptr};
  if (look_.keep && !must) return {nullptr, shared_from_this()};
  std::vector<Column> head, rest;
  bool anyHead = false;
  bool anyRest = false;
  for (const Column& c : columns_) {
    const Parts parts = c.content ? c.content->split(available, must) : Parts{};
    head.push_back({c.x, parts.head});
    rest.push_back({c.x, parts.rest});
    anyHead = anyHead || parts.head;
    anyRest = anyRest || parts.rest;
  }
  if (!anyHead) return {nullptr, shared_from_this()};
  return {std::make_shared<ColumnsFragment>(std::move(head), look_),
          anyRest ? std::make_shared<ColumnsFragment>(std::move(rest), look_) : nullptr};
}

BoxFragment::BoxFragment(FragmentPtr content, Look look)
    : content_(std::move(content)), look_(look) {}

qreal BoxFragment::height() const {
  const qreal inside = content_ ? content_->height() : 0;
  return std::max(look_.leastHeight, inside + 2 * look_.padding);
}

void BoxFragment::paint(QPainter& painter, QPointF topLeft) const {
  QPen pen(Qt::black, look_.thickness, look_.dashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap,
           Qt::MiterJoin);
  painter.save();
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  const qreal half = look_.thickness / 2;
  if (look_.thickness > 0)
    painter.drawRect(
        QRectF(topLeft, QSizeF(look_.width, height())).adjusted(half, half, -half, -half));
  painter.restore();
  if (content_) content_->paint(painter, topLeft + QPointF(look_.padding, look_.padding));
}

Fragment::Parts BoxFragment::split(qreal available, bool must) const {
  if (height() <= available) return {shared_from_this(), nullptr};
  if ((look_.keep && !must) || !content_ || content_->height() + 2 * look_.padding <= available)
    return Fragment::split(available, must);
  const Parts parts = content_->split(available - 2 * look_.padding, must);
  if (!parts.head) return {nullptr, shared_from_this()};
  return {std::make_shared<BoxFragment>(parts.head, look_),
          parts.rest ? std::make_shared<BoxFragment>(parts.rest, look_) : nullptr};
}

}  // namespace fidaleon::paper
