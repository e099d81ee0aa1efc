#pragma once

#include <deque>
#include <memory>
#include <vector>

#include "paper/PageComposer.h"

namespace fidaleon::paper {

/// The pages of a document, numbered from 0. Remembers where each begins and holds only the layout
/// of the last ones asked for.
class Pages {
 public:
  /// All must outlive the pages.
  Pages(const ReportTemplate& t, const Rows& rows, const Binding& binding, PageComposer::Mark mark);

  bool complete() const { return composer_.atEnd(next_); }
  int count() const { return static_cast<int>(starts_.size()); }
  std::size_t rows() const { return composer_.rowsBefore(next_); }
  int held() const { return static_cast<int>(held_.size()); }

  /// Lays out one page more. Not when complete.
  void composeNext();
  /// Whether another page follows this one, which is there. Lays out nothing.
  bool goesOnAfter(int page) const { return page + 1 < count() || !complete(); }
  /// Whether there is such a page; lays out what is needed to know.
  bool has(int page);
  /// Laid out again if it is not held. Only for pages that are there.
  std::shared_ptr<const Page> page(int number);
  /// Pages of the page's document: of its row where each row is a document. Lays out that far.
  int totalOf(int page);
  FragmentPtr furniture(const Furniture& f, const Page& page, int total) const {
    return composer_.furniture(f, page, total);
  }

 private:
  std::shared_ptr<const Page> hold(int number, Page page);

  const ReportTemplate& t_;
  PageComposer composer_;
  PageComposer::Start next_;
  std::vector<PageComposer::Start> starts_;
  std::deque<std::pair<int, std::shared_ptr<const Page>>> held_;  // the last one in front
};

}  // namespace fidaleon::paper
