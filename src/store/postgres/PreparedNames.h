#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "store/postgres/Link.h"

namespace fidaleon::store {

/// Under which names one link has statements prepared.
class PreparedNames {
 public:
  /// Names the statement in the request, and tells its text there when the link is yet to be told.
  void give(const std::string& sql, Request& request);
  /// What was sent has arrived, or it has not.
  void confirm() { fresh_.clear(); }
  void takeBack();
  void forget();
  bool areTooMany() const { return names_.size() > kMost; }

 private:
  static constexpr std::size_t kMost = 600;

  std::unordered_map<std::string, std::string> names_;
  std::vector<std::string> fresh_;  // of those, what the server has not confirmed
  std::int64_t given_ = 0;          // none is given twice
};

}  // namespace fidaleon::store
