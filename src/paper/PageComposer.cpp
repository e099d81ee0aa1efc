#include "paper/PageComposer.h"

#include "paper/Error.h"
#include "paper/Units.h"

namespace fidaleon::paper {
namespace {

constexpr qreal kScaleStep = 0.04;
constexpr qreal kHeaderGap = 4;  // millimetres

}  // namespace

PageComposer::PageComposer(const ReportTemplate& t, const Rows& rows,
                           const std::vector<int>& positions)
    : t_(t), rows_(rows), positions_(positions), layout_(t) {}

std::vector<Page> PageComposer::compose(const Progress& progress) {
  std::size_t firstPage = 0;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (t_.flow == Flow::Page) {
      setTotals(firstPage);
      firstPage = pages_.size();
      number_ = 0;
      startPage(row);
    } else if (pages_.empty()) {
      startPage(row);
    }
    if (FragmentPtr content = t_.flow == Flow::Page ? layOutToFit(row)
                                                    : layout_.layOut(t_.body, source(row), width()))
      place(std::move(content), row);
    if (progress && !progress(row + 1, rows_.size()))
      throw Error(ErrorKind::Cancelled, "Se ha cancelado la preparación del documento.");
  }
  setTotals(firstPage);
  return std::move(pages_);
}

qreal PageComposer::width() const {
  return dotsOfMillimetres(t_.page.width() - t_.marginLeft - t_.marginRight);
}

qreal PageComposer::bodyTop(std::size_t row) const {
  qreal top = dotsOfMillimetres(t_.marginTop);
  if (number_ < t_.header.fromPage || t_.header.blocks.empty()) return top;
  if (const FragmentPtr header = layout_.layOut(t_.header.blocks, source(row), width()))
    top += header->height() + dotsOfMillimetres(kHeaderGap);
  return top;
}

qreal PageComposer::bodyBottom() const {
  return dotsOfMillimetres(t_.page.height() - t_.marginBottom);
}

/// A document a few lines too long gets slightly smaller type rather than a second sheet.
FragmentPtr PageComposer::layOutToFit(std::size_t row) const {
  FragmentPtr natural = layout_.layOut(t_.body, source(row), width());
  const qreal room = bodyBottom() - y_;
  if (!natural || natural->height() <= room) return natural;
  for (qreal scale = 1 - kScaleStep; scale >= t_.smallestScale; scale -= kScaleStep) {
    FragmentPtr smaller = BlockLayout(t_, scale).layOut(t_.body, source(row), width());
    if (smaller->height() <= room) return smaller;
  }
  return natural;
}

void PageComposer::startPage(std::size_t row) {
  Page page;
  page.number = ++number_;
  pages_.push_back(std::move(page));
  y_ = bodyTop(row);
}

void PageComposer::place(FragmentPtr content, std::size_t row) {
  if (!pages_.back().parts.empty() && y_ + content->height() > bodyBottom()) startPage(row);
  while (content) {
    const Fragment::Parts parts = content->split(bodyBottom() - y_, true);
    pages_.back().parts.push_back({parts.head, y_, row});
    y_ += parts.head->height();
    content = parts.rest;
    if (content) startPage(row);
  }
}

void PageComposer::setTotals(std::size_t firstPage) {
  for (std::size_t i = firstPage; i < pages_.size(); ++i) pages_[i].total = number_;
}

}  // namespace fidaleon::paper
