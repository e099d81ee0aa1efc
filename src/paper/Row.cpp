#include "paper/Row.h"

#include <QSet>
#include <algorithm>

#include "text/Utf8.h"

namespace fidaleon::paper {
namespace {

QString printable(const std::string& stored) {
  QString s = QString::fromStdString(text::sanitized(stored));
  const bool plain = std::none_of(s.begin(), s.end(), [](QChar c) { return c < QLatin1Char(' '); });
  if (plain) return s.isNull() ? QStringLiteral("") : s;
  s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  s.replace(QLatin1Char('\t'), QLatin1Char(' '));
  while (s.endsWith(QLatin1Char('\n'))) s.chop(1);
  s.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
  return s.isNull() ? QStringLiteral("") : s;
}

QStringList columnsOf(store::Connection& connection, const std::string& table) {
  const store::Recordset none = connection.Execute("SELECT * FROM " + table + " WHERE 1=0");
  QStringList names;
  for (int i = 0; i < none.FieldCount(); ++i)
    names.append(QString::fromStdString(none.FieldName(i)));
  return names;
}

}  // namespace

Rows::Rows(store::Connection& connection, const std::string& table, const QStringList& wanted) {
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
      if (!field.Value().isNull())
        row[static_cast<std::size_t>(i)] = *known.insert(printable(field.Value().text()));
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
  const QString trimmed = value.trimmed();
  return trimmed.isEmpty() || trimmed == QLatin1String("---") || trimmed == QLatin1String("//");
}

}  // namespace fidaleon::paper
