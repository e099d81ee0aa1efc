#include "paper/Row.h"

#include <QSet>
#include <algorithm>

#include "text/Utf8.h"

namespace fidaleon::paper {
namespace {

QStringList columnsOf(store::Connection& connection, const std::string& table) {
  const store::Recordset none = connection.Execute("SELECT * FROM " + table + " WHERE 1=0");
  QStringList names;
  for (int i = 0; i < none.FieldCount(); ++i)
    names.append(QString::fromStdString(none.FieldName(i)));
  return names;
}

}  // namespace

Rows::Rows(store::Connection& connection, const std::string& table, const QStringList& wanted,
           Printable& printable) {
  std::string list;
  for (const QString& name : columnsOf(connection, table)) {
    if (!wanted.contains(name, Qt::CaseInsensitive)) continue;
    columns_.append(name);
    list += (list.empty() ? "[" : ",[") + name.toStdString() + "]";
  }
  // A template without a column still has a page for each row.
  store::Recordset rows =
      connection.Execute("SELECT " + (list.empty() ? "1" : list) + " FROM " + table);
  const int count = static_cast<int>(columns_.size());
  // Names of towns and parishes come again and again: rows share them.
  QSet<QString> known;
  for (; !rows.EOF_(); rows.MoveNext()) {
    std::vector<QString>& row = rows_.emplace_back(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      const store::Field field = rows.Fields(i);
      if (field.Value().isNull()) continue;
      const std::string stored = text::sanitized(field.Value().text());
      const Printable::Text made = printable.of(QString::fromStdString(stored));
      row[static_cast<std::size_t>(i)] = *known.insert(made.text);
      if (made.lost) losses_.push_back({rows_.size() - 1, i});
    }
  }
}

Rows::Rows(QStringList columns, std::vector<std::vector<QString>> rows)
    : columns_(std::move(columns)), rows_(std::move(rows)) {}

int Rows::position(const QString& column) const {
  for (int i = 0; i < columns_.size(); ++i)
    if (columns_[i].compare(column, Qt::CaseInsensitive) == 0) return i;
  return -1;
}

void Rows::arrange(const std::vector<std::size_t>& order) {
  std::vector<std::vector<QString>> arranged;
  arranged.reserve(order.size());
  for (const std::size_t i : order) arranged.push_back(std::move(rows_[i]));
  rows_ = std::move(arranged);
}

QString Row::value(const QString& column) const {
  const int position = rows_->position(column);
  return position < 0 ? QString() : rows_->value(index_, position);
}

bool isBlankValue(const QString& value) {
  QStringView rest = QStringView(value).trimmed();
  while (rest.endsWith(QStringLiteral(" ."))) rest = rest.chopped(2).trimmed();
  return rest.isEmpty() || rest == QLatin1String(".") || rest == QLatin1String("---") ||
         rest == QLatin1String("//");
}

}  // namespace fidaleon::paper
