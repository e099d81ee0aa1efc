#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace fidaleon::store {

/// What the text of a statement, as the dialect spells it, says about carrying it out.
struct Traits {
  bool reads = false;
  /// Nothing in it can be refused but for want of disk or link: no reckoning, no function that
  /// refuses text, nothing but values that the dialect has fitted to their columns.
  bool harmless = false;
  /// Rows of one table in an order that leaves none of two alike: a few of them can be had first.
  bool sliced = false;
  /// The first row is what is wanted of it, most likely.
  bool fromTheEnd = false;
  /// The table that is written to; empty where rows are read.
  std::string table;
  /// The columns that it sets, each as it is quoted.
  std::vector<std::string> sets;
};

Traits traitsOf(std::string_view sql);

}  // namespace fidaleon::store
