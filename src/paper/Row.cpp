#include "paper/Row.h"

#include <QHash>
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

std::string Rows::want(store::Connection& connection, const std::string& table,
                       const QString& prefix, const QStringList& wanted) {
  std::string list;
  for (const QString& name : columnsOf(connection, table)) {
    const bool asked = wanted.contains(prefix + name, Qt::CaseInsensitive) ||
                       (position(name) < 0 && wanted.contains(name, Qt::CaseInsensitive));
    if (!asked) continue;
    columns_.append(prefix + name);
    list += (list.empty() ? "[" : ",[") + name.toStdString() + "]";
  }
  return list;
}

void Rows::read(const store::Recordset& from, int field, std::size_t row, int column,
                Printable& printable) {
  const store::Field stored = from.Fields(field);
  if (stored.Value().isNull()) return;
  const std::string text = text::sanitized(stored.Value().text());
  const Printable::Text made = printable.of(QString::fromStdString(text));
  rows_[row][static_cast<std::size_t>(column)] = *known_.insert(made.text);
  if (made.lost) losses_.push_back({row, column});
}

Rows::Rows(store::Connection& connection, const std::string& table, const QStringList& wanted,
           Printable& printable) {
  const std::string list = want(connection, table, {}, wanted);
  // A template without a column still has a page for each row.
  store::Recordset rows =
      connection.Execute("SELECT " + (list.empty() ? "1" : list) + " FROM " + table);
  const int count = static_cast<int>(columns_.size());
  for (; !rows.EOF_(); rows.MoveNext()) {
    rows_.emplace_back(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) read(rows, i, rows_.size() - 1, i, printable);
  }
}

void Rows::add(store::Connection& connection, const SideTable& side, const QStringList& wanted,
               Printable& printable) {
  const int first = static_cast<int>(columns_.size());
  const std::string table = side.table.toStdString();
  const std::string list = want(connection, table, side.name + QLatin1Char('.'), wanted);
  const int link = position(side.of);
  if (list.empty() || link < 0) return;
  QHash<QString, std::size_t> places;  // of the rows that have no side row yet
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    rows_[i].resize(static_cast<std::size_t>(columns_.size()));
    places.insert(value(i, link), i);
  }
  const std::string which = side.where.isEmpty() ? "1" : "[" + side.where.toStdString() + "]";
  const std::string is = side.where.isEmpty() ? "1" : side.is.toStdString();
  store::Recordset rows = connection.Execute("SELECT " + which + ",[" + side.key.toStdString() +
                                             "]," + list + " FROM " + table);
  for (; !rows.EOF_(); rows.MoveNext()) {
    if (rows.Fields(0).Value().text() != is) continue;
    const auto place = places.find(QString::fromStdString(rows.Fields(1).Value().text()));
    if (place == places.end()) continue;
    for (int i = first; i < columns_.size(); ++i)
      read(rows, i - first + 2, place.value(), i, printable);
    places.erase(place);
  }
}

Rows::Rows(QStringList columns, std::vector<std::vector<QString>> rows)
    : columns_(std::move(columns)), rows_(std::move(rows)) {}

int Rows::position(const QString& column) const {
  for (int i = 0; i < columns_.size(); ++i)
    if (columns_[i].compare(column, Qt::CaseInsensitive) == 0) return i;
  for (int i = 0; i < columns_.size(); ++i)
    if (columns_[i].endsWith(QLatin1Char('.') + column, Qt::CaseInsensitive)) return i;
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

QStringView withoutFilling(QStringView value) {
  value = value.trimmed();
  while (value.endsWith(QStringLiteral(" ."))) value = value.chopped(2).trimmed();
  return value;
}

bool isBlankValue(const QString& value) {
  const QStringView rest = withoutFilling(value);
  return rest.isEmpty() || rest == QLatin1String(".") || rest == QLatin1String("---") ||
         rest == QLatin1String("//");
}

}  // namespace fidaleon::paper
