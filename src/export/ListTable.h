#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fidaleon::app {

/// One cell of a saved list.
struct ListCell {
  enum class Kind {
    Text,    // UTF-8, lines ended in any way
    Number,  // a whole number, as in "-12"
    Date,    // "yyyy-mm-dd"
    Time,    // "HH:mm"
  };
  Kind kind = Kind::Text;
  std::string value;  // empty for nothing, whatever the kind
};
using ListLine = std::vector<ListCell>;

struct ListColumn {
  std::string title;
  double centimetres = 3;
};

/// A list as it is shown, ready to be saved. Its rows are asked for one by one, from the first to
/// the last; what the question throws ends the saving.
struct ListTable {
  std::string name;
  std::vector<ListColumn> columns;
  std::size_t count = 0;
  std::function<ListLine(std::size_t row)> row;  // as wide as the columns
};

/// Takes the next part of what is written.
using Sink = std::function<void(std::string_view part)>;

}  // namespace fidaleon::app
