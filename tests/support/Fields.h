#pragma once
// Names with their values as one text: columns of a row, fields of a dialog.

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "store/Connection.h"

namespace fidaleon::tests {

using Values = std::vector<std::pair<std::string, std::string>>;

/// "Folio=12; Numero=23a": each ends at "; " or with its line, and holds the rest as it stands.
inline Values fields(const std::string& text) {
  Values all;
  for (std::size_t at = text.find_first_not_of(" \n"), end = 0; at < text.size();
       at = text.find_first_not_of(" \n", end)) {
    end = std::min({text.find("; ", at), text.find('\n', at), text.size()});
    const std::size_t equals = text.find('=', at);
    all.emplace_back(text.substr(at, equals - at), text.substr(equals + 1, end - equals - 1));
    if (end < text.size() && text[end] == ';') ++end;
  }
  return all;
}
/// The same, to be looked up by name.
using Row = std::map<std::string, std::string>;
inline Row row(const std::string& text) {
  const Values all = fields(text);
  return {all.begin(), all.end()};
}
/// The rows of a table in the order in which they were written; a column that holds Null is not
/// there.
inline std::vector<Row> rowsIn(store::Connection& con, const std::string& table) {
  std::vector<Row> all;
  for (store::Recordset rs = con.Execute("SELECT * FROM " + table); !rs.EOF_(); rs.MoveNext()) {
    Row& one = all.emplace_back();
    for (int i = 0; i < rs.FieldCount(); ++i)
      if (!rs.Fields(i).Value().isNull()) one[rs.FieldName(i)] = rs.Fields(i).Value().text();
  }
  return all;
}
/// A row with these columns; TRUE and FALSE are the store's, the rest goes as text.
inline void insert(store::Connection& con, const std::string& table, const std::string& text) {
  std::string names, values;
  for (const auto& [name, value] : fields(text)) {
    names += (names.empty() ? "" : ", ") + name;
    const bool flag = value == "TRUE" || value == "FALSE";
    values += (values.empty() ? "" : ", ") + (flag ? value : "\"" + value + "\"");
  }
  con.Execute("INSERT INTO " + table + " (" + names + ") VALUES (" + values + ")");
}

}  // namespace fidaleon::tests
