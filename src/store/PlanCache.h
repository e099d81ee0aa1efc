#pragma once

#include <list>
#include <memory>
#include <string_view>
#include <unordered_map>

#include "store/Plan.h"

namespace fidaleon::store {

/// The plans used last, by the shape of their statements.
class PlanCache {
 public:
  explicit PlanCache(std::size_t capacity) : capacity_(capacity) {}
  ~PlanCache() { clear(); }
  PlanCache(const PlanCache&) = delete;
  PlanCache& operator=(const PlanCache&) = delete;

  /// Null when there is none.
  std::shared_ptr<Plan> find(std::string_view shape);
  /// The first of those used last that `suits`; null when none does.
  template <class Suits>
  std::shared_ptr<Plan> recent(const Suits& suits);
  void add(std::shared_ptr<Plan> plan);
  void clear();

 private:
  using Plans = std::list<std::shared_ptr<Plan>>;

  /// What one operation issues in turn.
  static constexpr int kRecent = 12;

  std::shared_ptr<Plan> used(Plans::iterator plan) {
    plans_.splice(plans_.begin(), plans_, plan);
    return plans_.front();
  }

  std::size_t capacity_;
  Plans plans_;  // used last first
  std::unordered_map<std::string_view, Plans::iterator> byShape_;
};

template <class Suits>
std::shared_ptr<Plan> PlanCache::recent(const Suits& suits) {
  int left = kRecent;
  for (auto plan = plans_.begin(); plan != plans_.end() && left-- > 0; ++plan)
    if (suits(**plan)) return used(plan);
  return nullptr;
}

}  // namespace fidaleon::store
