#include "paper/Row.h"

#include "text/Utf8.h"

namespace fidaleon::paper {
namespace {

QString printable(const std::string& stored) {
  QString s = QString::fromStdString(text::sanitized(stored));
  s.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  s.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  s.replace(QLatin1Char('\t'), QLatin1Char(' '));
  while (s.endsWith(QLatin1Char('\n'))) s.chop(1);
  s.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
  return s.isNull() ? QStringLiteral("") : s;
}

}  // namespace

Rows::Rows(store::Connection& connection, const std::string& table) {
  store::Recordset rows = connection.Execute("SELECT * FROM " + table);
  const int count = rows.FieldCount();
  for (int i = 0; i < count; ++i) columns_.append(QString::fromStdString(rows.FieldName(i)));
  for (; !rows.EOF_(); rows.MoveNext()) {
    std::vector<QString>& row = rows_.emplace_back(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
      const store::Value value = rows.Fields(i).Value();
      if (!value.isNull()) row[static_cast<std::size_t>(i)] = printable(value.text());
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
