#include "parish/Insert.h"

#include "core/statements/Citas.h"

namespace fidaleon::app {

Insert& Insert::add(const std::string& column, const std::string& value) {
  if (!columns_.empty()) {
    columns_ += ", ";
    values_ += ", ";
  }
  columns_ += column;
  values_ += value;
  return *this;
}

Insert& Insert::text(const std::string& column, const std::string& value) {
  return add(column, entreComillas(value));
}

Insert& Insert::number(const std::string& column, std::int64_t value) {
  return add(column, std::to_string(value));
}

std::string Insert::sql() const {
  return "INSERT INTO " + table_ + " (" + columns_ + ") VALUES (" + values_ + ")";
}

std::int32_t Insert::into(store::Connection& connection, const std::string& key) const {
  connection.Execute(sql());
  const auto rows = connection.Execute("SELECT MAX(" + key + ") AS ID FROM " + table_);
  return static_cast<std::int32_t>(rows.integer("ID"));
}

}  // namespace fidaleon::app
