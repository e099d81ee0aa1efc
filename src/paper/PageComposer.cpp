#include "paper/PageComposer.h"

#include <algorithm>

#include "paper/Fragments.h"
#include "paper/Units.h"

namespace fidaleon::paper {
namespace {

constexpr qreal kScaleStep = 0.04;
constexpr qreal kHeaderGap = 4;   // millimetres
constexpr qreal kEvenEnough = 1;  // millimetres

bool cutsOrOverflows(const Page& page, qreal bottom) {
  for (std::size_t i = 0; i < page.parts.size(); ++i) {
    const Placed& part = page.parts[i];
    if (part.isRow && part.top + part.content->height() > bottom) return true;
    if (i > 0 && page.parts[i - 1].isRow == part.isRow && page.parts[i - 1].row == part.row)
      return true;
  }
  return false;
}

}  // namespace

PageComposer::PageComposer(const ReportTemplate& t, const Rows& rows, const Binding& binding,
                           Mark mark)
    : t_(t), rows_(rows), binding_(binding), mark_(std::move(mark)), layout_(t) {}

std::size_t PageComposer::itemCount() const {
  if (rows_.size() == 0) return 0;
  return openings() + rows_.size() * t_.bodies.size() + (t_.closing.empty() ? 0 : 1);
}

bool PageComposer::isRow(std::size_t item) const {
  return item >= openings() && item < openings() + rows_.size() * t_.bodies.size();
}

std::size_t PageComposer::rowOf(std::size_t item) const {
  return std::min((std::max(item, openings()) - openings()) / t_.bodies.size(), rows_.size() - 1);
}

std::size_t PageComposer::bodyNumber(std::size_t item) const {
  return (item - openings()) % t_.bodies.size();
}

bool PageComposer::beginsDocument(const Start& start, const Page& before) const {
  return t_.flow == Flow::Page && start.cuts.empty() &&
         (rowOf(start.item) != before.lastRow || t_.bodies[bodyNumber(start.item)].ownPages);
}

void PageComposer::skipUnwanted(Start& start) const {
  for (; isRow(start.item) && start.cuts.empty(); ++start.item) {
    const auto& condition = t_.bodies[bodyNumber(start.item)].condition;
    if (!condition || holds(*condition, source(rowOf(start.item), 1))) return;
  }
}

std::size_t PageComposer::rowsBefore(const Start& start) const {
  return std::min((std::max(start.item, openings()) - openings()) / t_.bodies.size(), rows_.size());
}

std::size_t PageComposer::firstHead(std::size_t row) const {
  const auto changes = [&](int column) {
    const Source here{&rows_, &binding_, row, row - 1};
    return here.value(column) != here.value(column, true);
  };
  const auto begins = [&](const GroupHead& head) {
    return row == 0 || std::any_of(head.columns.begin(), head.columns.end(), changes);
  };
  const auto& heads = t_.groupHeads;
  return static_cast<std::size_t>(std::find_if(heads.begin(), heads.end(), begins) - heads.begin());
}

Source PageComposer::source(std::size_t row, int page) const {
  return {&rows_, &binding_, row, row, page, page, mark_ ? mark_(row) : QString()};
}

qreal PageComposer::pageWidth() const {
  return dotsOfMillimetres(t_.page.width() - t_.marginLeft - t_.marginRight);
}

qreal PageComposer::columnWidth() const {
  const qreal gaps = dotsOfMillimetres(t_.pageColumnGap) * (t_.pageColumns - 1);
  return (pageWidth() - gaps) / t_.pageColumns;
}

qreal PageComposer::bodyTop(const Start& start) const {
  qreal top = dotsOfMillimetres(t_.marginTop);
  if (start.number < t_.header.fromPage || t_.header.blocks.empty()) return top;
  const Source from = source(rowOf(start.item), start.number);
  if (const FragmentPtr header = layout_.layOut(t_.header.blocks, from, pageWidth()))
    top += header->height() + dotsOfMillimetres(kHeaderGap);
  return top;
}

qreal PageComposer::bodyBottom() const {
  return dotsOfMillimetres(t_.page.height() - t_.marginBottom);
}

FragmentPtr PageComposer::furniture(const Furniture& f, const Page& page, int total) const {
  if (f.blocks.empty() || page.number < f.fromPage || (f.onlyWhenSeveral && total < 2))
    return nullptr;
  Source from = source(page.firstRow, page.number);
  from.lastRow = page.lastRow;
  from.pages = total;
  return layout_.layOut(f.blocks, from, pageWidth());
}

/// A document a few lines too long gets slightly smaller type rather than a second sheet.
FragmentPtr PageComposer::layOutToFit(std::size_t item, int page) const {
  const Source from = source(rowOf(item), 1);
  const std::vector<Block>& blocks = t_.bodies[bodyNumber(item)].blocks;
  FragmentPtr natural = layout_.layOut(blocks, from, columnWidth());
  if (t_.flow != Flow::Page || !natural) return natural;
  const qreal room = bodyBottom() - bodyTop({item, {}, page});
  // Smaller type takes as much less height as width.
  const qreal least = natural->height() * t_.smallestScale * t_.smallestScale;
  if (natural->height() <= room || least > room) return natural;
  for (qreal scale = 1 - kScaleStep; scale >= t_.smallestScale; scale -= kScaleStep) {
    FragmentPtr smaller = BlockLayout(t_, scale).layOut(blocks, from, columnWidth());
    if (smaller->height() <= room) return smaller;
  }
  return natural;
}

FragmentPtr PageComposer::bodyOf(std::size_t item, int page) {
  if (held_ && heldItem_ == item) return held_;
  if (isRow(item)) {
    held_ = layOutToFit(item, page);
  } else {
    Source whole = source(0, 1);
    whole.lastRow = rows_.size() - 1;
    if (item >= openings()) whole.row = whole.lastRow;
    held_ = item < openings() ? layout_.layOut(t_.opening, whole, pageWidth(), true)
                              : layout_.layOut(t_.closing, whole, columnWidth(), true);
  }
  heldItem_ = item;
  return held_;
}

std::vector<FragmentPtr> PageComposer::headsOf(std::size_t row, std::size_t first) const {
  std::vector<FragmentPtr> heads;
  for (std::size_t i = first; i < t_.groupHeads.size(); ++i)
    if (FragmentPtr head =
            layout_.layOut(t_.groupHeads[i].blocks, source(row, 1), columnWidth(), true))
      heads.push_back(std::make_shared<StackFragment>(std::vector{std::move(head)},
                                                      StackFragment::Look{true, true, false}));
  return heads;
}

/// Puts what stands above a row on top of it, to stay with it.
FragmentPtr PageComposer::withHead(FragmentPtr body, std::size_t item, bool columnIsEmpty) {
  if (!body || !isRow(item)) return body;
  const std::size_t row = rowOf(item);
  const std::size_t first = firstHead(row);
  std::vector<FragmentPtr> stack;
  if (first < t_.groupHeads.size()) {
    stack = headsOf(row, first);
    if (columnIsEmpty && !stack.empty()) stack.front() = stack.front()->withoutLeadingSpace();
  } else if (!columnIsEmpty && !t_.between.empty()) {
    stack.push_back(layout_.layOut(t_.between, source(row, 1), columnWidth()));
  }
  std::erase(stack, nullptr);
  if (stack.empty()) return body;
  stack.push_back(std::move(body));
  return std::make_shared<StackFragment>(std::move(stack), true);
}

FragmentPtr PageComposer::remaining(const Start& start, bool columnIsEmpty) {
  FragmentPtr left = withHead(bodyOf(start.item, start.number), start.item, columnIsEmpty);
  for (const qreal cut : start.cuts)
    if (left) left = left->split(cut, true).rest;
  return left;
}

bool PageComposer::mustStartPage(const Start& start, const Page& page) const {
  if (page.parts.empty()) return false;
  return t_.flow == Flow::Page && start.cuts.empty();
}

/// The opening stands above all columns of the page.
qreal PageComposer::placeOpening(qreal top, Page& page, Start& start) {
  if (start.item >= openings()) return top;
  Column across{dotsOfMillimetres(t_.leftMargin(page.number)), top, bodyBottom(), top};
  if (FragmentPtr opening = bodyOf(start.item)) put(std::move(opening), across, page, start.item);
  ++start.item;
  return across.y;
}

void PageComposer::put(FragmentPtr content, Column& column, Page& page, std::size_t item) {
  const std::size_t row = rowOf(item);
  if (page.parts.empty()) page.firstRow = row;
  page.lastRow = row;
  const qreal height = content->height();
  page.parts.push_back({std::move(content), column.left, column.y, row, isRow(item)});
  column.y += height;
}

/// The last row goes overleaf with the closing, where that would be signed on a page of its own.
bool PageComposer::leavesClosingAlone(const Start& start, qreal height, qreal room) {
  if (t_.closing.empty() || !isRow(start.item) || isRow(start.item + 1)) return false;
  const FragmentPtr closing = bodyOf(start.item + 1);
  if (!closing) return false;
  const qreal both = height + closing->height();
  return both > room && both <= bodyBottom() - bodyTop({start.item, {}, start.number + 1});
}

/// False when the next item belongs on another page.
bool PageComposer::fill(Column& column, Page& page, Start& start) {
  for (;; ++start.item, start.cuts.clear()) {
    skipUnwanted(start);
    if (atEnd(start) || mustStartPage(start, page)) return false;
    FragmentPtr content = remaining(start, column.empty());
    if (!content) continue;
    const qreal room = column.bottom - column.y;
    if (content->height() <= room) {
      if (!column.empty() && leavesClosingAlone(start, content->height(), room)) return true;
      put(std::move(content), column, page, start.item);
      continue;
    }
    if (!column.empty()) return true;
    const Fragment::Parts parts = content->split(room, true);
    put(parts.head, column, page, start.item);
    if (!parts.rest) continue;
    start.cuts.push_back(room);
    return true;
  }
}

Page PageComposer::compose(Start& start) {
  const Start begin = start;
  Page page = composeTo(bodyBottom(), start);
  if (t_.pageColumns < 2 || !atEnd(start)) return page;
  return withEvenColumns(std::move(page), begin, start);
}

Page PageComposer::composeTo(qreal bottom, Start& start) {
  Page page;
  page.number = start.number;
  page.firstRow = page.lastRow = rowOf(start.item);
  const bool titlePage = start.item < openings() && t_.openingHasItsPage;
  const qreal top = placeOpening(bodyTop(start), page, start);
  const qreal step = columnWidth() + dotsOfMillimetres(t_.pageColumnGap);
  for (int i = 0; i < t_.pageColumns && !titlePage; ++i) {
    const qreal left = dotsOfMillimetres(t_.leftMargin(page.number)) + i * step;
    Column column{left, top, std::max(bottom, top), top};
    if (!fill(column, page, start)) break;
  }
  start.number = beginsDocument(start, page) ? 1 : start.number + 1;
  return page;
}

/// The columns of the last page end as high up as all that is left still fits.
Page PageComposer::withEvenColumns(Page page, const Start& begin, Start& start) {
  qreal enough = bodyBottom();
  qreal tooLittle = bodyTop(begin);
  while (enough - tooLittle > dotsOfMillimetres(kEvenEnough)) {
    const qreal tried = (enough + tooLittle) / 2;
    Start end = begin;
    Page shorter = composeTo(tried, end);
    if (!atEnd(end) || cutsOrOverflows(shorter, tried)) {
      tooLittle = tried;
      continue;
    }
    enough = tried;
    page = std::move(shorter);
    start = end;
  }
  return page;
}

}  // namespace fidaleon::paper
