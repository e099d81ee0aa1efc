#include "store/PlanCache.h"

namespace fidaleon::store {

std::shared_ptr<Plan> PlanCache::find(std::string_view shape) {
  const auto found = byShape_.find(shape);
  return found == byShape_.end() ? nullptr : used(found->second);
}

void PlanCache::add(std::shared_ptr<Plan> plan) {
  plans_.push_front(std::move(plan));
  byShape_.emplace(plans_.front()->shape().text, plans_.begin());
  if (plans_.size() <= capacity_) return;
  plans_.back()->retire();
  byShape_.erase(plans_.back()->shape().text);
  plans_.pop_back();
}

void PlanCache::clear() {
  for (const auto& plan : plans_) plan->retire();
  byShape_.clear();
  plans_.clear();
}

}  // namespace fidaleon::store
