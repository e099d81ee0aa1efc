#pragma once

#include <QList>
#include <QString>
#include <vector>

#include "paper/Row.h"
#include "paper/Template.h"

namespace fidaleon::paper {

/// What a template's text is filled from.
struct Source {
  const Rows* rows = nullptr;
  std::size_t row = 0;
  const std::vector<int>* positions = nullptr;  // of the template's columns in rows
  int page = 1;
  int pages = 1;

  const QString& value(int column) const {
    return rows->value(row, (*positions)[static_cast<std::size_t>(column)]);
  }
};

/// Where a table's rows hold the columns of a template.
/// Throws Error(MissingColumn) that names template, column and table.
std::vector<int> positionsOf(const ReportTemplate& t, const Rows& rows);

bool holds(const Condition& condition, const Source& source);

struct Face {
  bool bold = false;
  bool italic = false;
  bool smallCaps = false;

  friend bool operator==(const Face&, const Face&) = default;
};

/// A stretch of text in a face of its own.
struct Stretch {
  qsizetype start = 0;
  qsizetype length = 0;
  Face face;
};

struct Expanded {
  QString text;
  QList<Stretch> stretches;
  bool anyValue = false;  // some place-holder had something to print, or there is none
};

/// Values go in as they stand: they are text, never markup.
Expanded expand(const std::vector<Inline>& inlines, const Source& source);

}  // namespace fidaleon::paper
