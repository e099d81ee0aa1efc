#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "paper/Printable.h"
#include "paper/Template.h"
#include "store/Connection.h"

namespace fidaleon::paper {

/// The rows of a scratch table, as text that can be printed.
class Rows {
 public:
  /// All rows of the table, in the order in which they were written, with those of `wanted` that
  /// the table has. Throws store::Error.
  Rows(store::Connection& connection, const std::string& table, const QStringList& wanted,
       Printable& printable);
  Rows(QStringList columns, std::vector<std::vector<QString>> rows);

  /// Adds the columns of a side table that are wanted, with or without its name in front; a row
  /// without a side row has Null there, and of several side rows it takes the first. To be called
  /// before the rows change their order.
  /// Throws store::Error.
  void add(store::Connection& connection, const SideTable& side, const QStringList& wanted,
           Printable& printable);

  std::size_t size() const { return rows_.size(); }
  const QStringList& columns() const { return columns_; }
  /// A Null column is a null QString. `column` from position().
  const QString& value(std::size_t row, int column) const {
    return rows_[row][static_cast<std::size_t>(column)];
  }
  /// Position of a column whatever its case; -1 when there is none. A name that the principal table
  /// lacks is that of the first side table that has it.
  int position(const QString& column) const;

  void arrange(const std::vector<std::size_t>& order);

  /// A value of which something is printed as "?". The row is that of the reading.
  struct Loss {
    std::size_t row;
    int column;
  };
  const std::vector<Loss>& losses() const { return losses_; }

 private:
  /// The columns of the table that are wanted, each with `prefix` in front, as those of the rows;
  /// the list of a SELECT.
  std::string want(store::Connection& connection, const std::string& table, const QString& prefix,
                   const QStringList& wanted);
  void read(const store::Recordset& from, int field, std::size_t row, int column,
            Printable& printable);

  QStringList columns_;
  std::vector<std::vector<QString>> rows_;
  std::vector<Loss> losses_;
  // Names of towns and parishes come again and again: rows share them.
  QSet<QString> known_;
};

/// One row, as it is handed to the caller's questions about it.
class Row {
 public:
  Row(const Rows& rows, std::size_t index) : rows_(&rows), index_(index) {}
  /// Empty for Null and for a column that does not exist.
  QString value(const QString& column) const;
  std::size_t index() const { return index_; }

 private:
  const Rows* rows_;
  std::size_t index_;
};

/// What stands before the " . . ." that fills a line up.
QStringView withoutFilling(QStringView value);
/// Null, blanks, "---" and "//", also where " . . ." fills the line behind them: nothing that a
/// reader would miss.
bool isBlankValue(const QString& value);

}  // namespace fidaleon::paper
