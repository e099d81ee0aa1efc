#include "export/CsvText.h"

#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon::app {
namespace {

constexpr const char* UTF8_MARK = "\xEF\xBB\xBF";
constexpr const char* LINE_END = "\r\n";

/// Spreadsheets look for the sign behind blanks too.
bool wouldRun(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  return first != std::string::npos &&
         std::string_view("=+-@").find(text[first]) != std::string_view::npos;
}

std::string quoted(const std::string& text) {
  const bool plain = text.find_first_of(";,\"\t\n") == std::string::npos &&
                     !text.starts_with(' ') && !text.ends_with(' ');
  return plain ? text : '"' + text::replaceAll(text, "\"", "\"\"") + '"';
}

std::string field(const std::string& stored) {
  std::string text = text::replaceAll(text::sanitized(stored), "\r\n", "\n");
  text = text::replaceAll(text, "\r", "\n");
  return quoted(wouldRun(text) ? "'" + text : text);
}

std::string field(const ListCell& cell) {
  if (cell.kind == ListCell::Kind::Text) return field(cell.value);
  if (cell.kind != ListCell::Kind::Date) return cell.value;
  const auto day = text::parseStored(text::replaceAll(cell.value, "-", ""));
  return day ? text::toShort(*day) : std::string();
}

template <class Cells, class Write>
std::string line(const Cells& cells, const Write& write) {
  std::string all;
  for (const auto& cell : cells) all += (&cell == &cells.front() ? "" : ";") + write(cell);
  return all + LINE_END;
}

}  // namespace

void writeCsv(const ListTable& table, const Sink& sink) {
  sink(UTF8_MARK +
       line(table.columns, [](const ListColumn& column) { return field(column.title); }));
  for (std::size_t row = 0; row < table.count; ++row)
    sink(line(table.row(row), [](const ListCell& cell) { return field(cell); }));
}

}  // namespace fidaleon::app
