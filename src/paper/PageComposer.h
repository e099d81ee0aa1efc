#pragma once

#include <functional>
#include <vector>

#include "paper/BlockLayout.h"

namespace fidaleon::paper {

/// A row, or a part of one, at its place on a page; also what opens, closes and groups them.
struct Placed {
  FragmentPtr content;
  qreal left = 0;  // dots from the sheet's edge
  qreal top = 0;
  std::size_t row = 0;
  bool isRow = true;
};

struct Page {
  std::vector<Placed> parts;
  int number = 1;
  std::size_t firstRow = 0;
  std::size_t lastRow = 0;
};

/// Makes one page after the other, and any page again from where it begins. Each row is measured
/// and placed; none is cut in two where it fits on a page.
class PageComposer {
 public:
  /// Where a page begins. Small, so that those of a long document can be kept.
  struct Start {
    std::size_t item = 0;
    std::vector<qreal> cuts;  // heights at which earlier pages have cut the item
    int number = 1;
  };
  using Mark = std::function<QString(std::size_t row)>;

  /// All must outlive the composer.
  PageComposer(const ReportTemplate& t, const Rows& rows, const Binding& binding, Mark mark);

  bool atEnd(const Start& start) const { return start.item >= itemCount(); }
  /// Rows that stand on the pages before. Never more than there are.
  std::size_t rowsBefore(const Start& start) const;
  /// Makes the page and moves on to where the next one begins.
  Page compose(Start& start);

  /// A header or footer; null when it prints nothing.
  FragmentPtr furniture(const Furniture& f, const Page& page, int total) const;

 private:
  struct Column {
    qreal left, top, bottom, y;
    bool empty() const { return y <= top; }
  };

  // What opens and what closes the document are items like the bodies of its rows.
  std::size_t openings() const { return t_.opening.empty() ? 0 : 1; }
  std::size_t itemCount() const;
  bool isRow(std::size_t item) const;
  std::size_t rowOf(std::size_t item) const;
  /// Of a row's item.
  std::size_t bodyNumber(std::size_t item) const;
  /// Whether the next page, whose text begins at the start, is the first of a document.
  bool beginsDocument(const Start& start, const Page& before) const;
  /// Moves on past bodies of which nothing is to be printed.
  void skipUnwanted(Start& start) const;
  /// The outermost heading that begins anew at the row, as all within it do; behind the last when
  /// none does.
  std::size_t firstHead(std::size_t row) const;
  Source source(std::size_t row, int page) const;

  qreal pageWidth() const;
  qreal columnWidth() const;
  qreal bodyTop(const Start& start) const;
  qreal bodyBottom() const;
  FragmentPtr layOutToFit(std::size_t item, int page) const;
  FragmentPtr bodyOf(std::size_t item, int page = 1);
  std::vector<FragmentPtr> headsOf(std::size_t row, std::size_t first) const;
  FragmentPtr withHead(FragmentPtr body, std::size_t item, bool columnIsEmpty);
  FragmentPtr remaining(const Start& start, bool columnIsEmpty);
  bool mustStartPage(const Start& start, const Page& page) const;
  qreal placeOpening(qreal top, Page& page, Start& start);
  bool fill(Column& column, Page& page, Start& start);
  bool leavesClosingAlone(const Start& start, qreal height, qreal room);
  void put(FragmentPtr content, Column& column, Page& page, std::size_t item);
  Page composeTo(qreal bottom, Start& start);
  Page withEvenColumns(Page page, const Start& begin, Start& start);

  const ReportTemplate& t_;
  const Rows& rows_;
  const Binding& binding_;
  Mark mark_;
  BlockLayout layout_;
  // The row that did not fit any more is the first one of the next page.
  std::size_t heldItem_ = 0;
  FragmentPtr held_;
};

}  // namespace fidaleon::paper
