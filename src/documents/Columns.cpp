#include "documents/Columns.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace fidaleon::documents {

namespace {

Columns::iterator require(Columns& columns, std::string_view name) {
  const auto found =
      std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return name == c.name; });
  if (found == columns.end()) throw std::logic_error("no such column: " + std::string(name));
  return found;
}

}  // namespace

Columns joined(std::initializer_list<Columns> groups) {
  Columns all;
  for (const Columns& group : groups) all.insert(all.end(), group.begin(), group.end());
  return all;
}

Columns without(Columns columns, std::initializer_list<std::string_view> names) {
  for (std::string_view name : names) columns.erase(require(columns, name));
  return columns;
}

Columns replacing(Columns columns, std::string_view name, const Column& by) {
  *require(columns, name) = by;
  return columns;
}

Columns insertingBehind(Columns columns, std::string_view name, const Column& added) {
  columns.insert(require(columns, name) + 1, added);
  return columns;
}

}  // namespace fidaleon::documents
