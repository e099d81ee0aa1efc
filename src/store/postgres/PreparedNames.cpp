#include "store/postgres/PreparedNames.h"

namespace fidaleon::store {

void PreparedNames::give(const std::string& sql, Request& request) {
  request.sql.clear();
  const auto known = names_.find(sql);
  if (known != names_.end()) {
    request.name = known->second;
    return;
  }
  request.name = "s" + std::to_string(++given_);
  request.sql = sql;
  names_.emplace(sql, request.name);
  fresh_.push_back(sql);
}

void PreparedNames::takeBack() {
  for (const std::string& sql : fresh_) names_.erase(sql);
  fresh_.clear();
}

void PreparedNames::forget() {
  names_.clear();
  fresh_.clear();
}

}  // namespace fidaleon::store
