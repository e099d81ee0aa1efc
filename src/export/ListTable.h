#pragma once

#include <string>
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

struct ListColumn {
  std::string title;
  double centimetres = 3;
};

/// A list as it is shown, ready to be saved.
struct ListTable {
  std::string name;
  std::vector<ListColumn> columns;
  std::vector<std::vector<ListCell>> rows;  // each as wide as the columns
};

}  // namespace fidaleon::app
