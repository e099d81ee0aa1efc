#include "paper/Pages.h"

#include <algorithm>

namespace fidaleon::paper {
namespace {

constexpr std::size_t kHeldPages = 32;

}  // namespace

Pages::Pages(const ReportTemplate& t, const Rows& rows, const Binding& binding,
             PageComposer::Mark mark)
    : t_(t), composer_(t, rows, binding, std::move(mark)) {}

void Pages::composeNext() {
  starts_.push_back(next_);
  hold(count() - 1, composer_.compose(next_));
}

bool Pages::has(int page) {
  while (!complete() && count() <= page) composeNext();
  return page >= 0 && page < count();
}

std::shared_ptr<const Page> Pages::hold(int number, Page page) {
  held_.emplace_front(number, std::make_shared<const Page>(std::move(page)));
  if (held_.size() > kHeldPages) held_.pop_back();
  return held_.front().second;
}

std::shared_ptr<const Page> Pages::page(int number) {
  const auto found = std::find_if(held_.begin(), held_.end(),
                                  [&](const auto& held) { return held.first == number; });
  if (found != held_.end()) return found->second;
  PageComposer::Start start = starts_.at(static_cast<std::size_t>(number));
  return hold(number, composer_.compose(start));
}

int Pages::totalOf(int page) {
  if (t_.flow == Flow::Continuous) {
    while (!complete()) composeNext();
    return count();
  }
  while (has(page + 1) && starts_[static_cast<std::size_t>(page) + 1].number > 1) ++page;
  return starts_[static_cast<std::size_t>(page)].number;
}

}  // namespace fidaleon::paper
