#include "store/PlanCache.h"

namespace fidaleon::store {

std::shared_ptr<Plan> PlanCache::find(std::string_view shape) {
  // Loops issue one shape again and again.
  if (!plans_.empty() && plans_.front()->shape() == shape) return plans_.front();
  const auto found = byShape_.find(shape);
  if (found == byShape_.end()) return nullptr;
  plans_.splice(plans_.begin(), plans_, found->second);
  return plans_.front();
}

void PlanCache::add(std::shared_ptr<Plan> plan) {
  plans_.push_front(std::move(plan));
  byShape_.emplace(plans_.front()->shape(), plans_.begin());
  if (plans_.size() <= capacity_) return;
  plans_.back()->retire();
  byShape_.erase(plans_.back()->shape());
  plans_.pop_back();
}

void PlanCache::clear() {
  for (const auto& plan : plans_) plan->retire();
  byShape_.clear();
  plans_.clear();
}

}  // namespace fidaleon::store
