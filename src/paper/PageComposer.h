#pragma once

#include <functional>
#include <vector>

#include "paper/BlockLayout.h"

namespace fidaleon::paper {

/// A row, or a part of one, at its place on a page.
struct Placed {
  FragmentPtr content;
  qreal top = 0;  // dots below the sheet's edge
  std::size_t row = 0;
};

struct Page {
  std::vector<Placed> parts;
  int number = 1;
  int total = 1;
};

/// Measures each row and places it; no row is cut in two where it fits on a page.
class PageComposer {
 public:
  /// Told after each row how many are done; false stops the work.
  using Progress = std::function<bool(std::size_t done, std::size_t total)>;

  /// All must outlive the composer.
  PageComposer(const ReportTemplate& t, const Rows& rows, const std::vector<int>& positions);

  /// Throws Error(Cancelled).
  std::vector<Page> compose(const Progress& progress);

 private:
  Source source(std::size_t row) const { return {&rows_, row, &positions_, 1, 1}; }
  qreal width() const;
  qreal bodyTop(std::size_t row) const;
  qreal bodyBottom() const;
  FragmentPtr layOutToFit(std::size_t row) const;
  void startPage(std::size_t row);
  void place(FragmentPtr content, std::size_t row);
  void setTotals(std::size_t firstPage);

  const ReportTemplate& t_;
  const Rows& rows_;
  const std::vector<int>& positions_;
  BlockLayout layout_;
  std::vector<Page> pages_;
  int number_ = 0;
  qreal y_ = 0;
};

}  // namespace fidaleon::paper
