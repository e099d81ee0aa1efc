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
  void add(std::shared_ptr<Plan> plan);
  void clear();

 private:
  using Plans = std::list<std::shared_ptr<Plan>>;

  std::size_t capacity_;
  Plans plans_;  // used last first
  std::unordered_map<std::string_view, Plans::iterator> byShape_;
};

}  // namespace fidaleon::store
