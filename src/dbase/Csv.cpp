#include "dbase/Csv.h"

#include <algorithm>
#include <cstdio>

namespace fidaleon::dbase {

namespace {

void put(std::string_view text, std::string& line) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) {
    line += text;
    return;
  }
  line += '"';
  for (const char c : text) line.append(c == '"' ? 2 : 1, c);
  line += '"';
}

void put(const text::Date& day, std::string& line) {
  char room[40];
  line.append(room, static_cast<std::size_t>(std::snprintf(room, sizeof room, "%04d-%02d-%02d",
                                                           day.year, day.month, day.day)));
}

void putTime(std::int64_t milliseconds, std::string& line) {
  // Moments come out of fractions of a day: a whole second may lack a little.
  const auto seconds = static_cast<int>(std::min<std::int64_t>((milliseconds + 500) / 1000, 86399));
  char room[40];
  line.append(room, static_cast<std::size_t>(std::snprintf(room, sizeof room, " %02d:%02d:%02d",
                                                           seconds / 3600, seconds / 60 % 60,
                                                           seconds % 60)));
}

void put(const Cell& cell, std::string& line) {
  switch (cell.kind) {
    case Cell::Kind::Missing:
      return;
    case Cell::Kind::Logical:
      line += cell.integer != 0 ? 'T' : 'F';
      return;
    case Cell::Kind::Date:
    case Cell::Kind::Moment:
      put(cell.date, line);
      if (cell.kind == Cell::Kind::Moment) putTime(cell.integer, line);
      return;
    default:
      put(cell.text, line);
  }
}

}  // namespace

void writeCsv(Table& table, std::ostream& out) {
  std::string line;
  for (const Field& field : table.fields()) {
    if (&field != &table.fields().front()) line += ',';
    put(field.name, line);
  }
  out << line << '\n';
  for (Row row; table.next(row) && out;) {
    line.clear();
    for (std::size_t i = 0; i < row.size(); ++i) {
      if (i > 0) line += ',';
      put(row[i], line);
    }
    out << line << '\n';
  }
}

}  // namespace fidaleon::dbase
