#pragma once

#include <QList>
#include <QString>
#include <map>
#include <vector>

#include "paper/Row.h"
#include "paper/Template.h"

namespace fidaleon::paper {

/// Values that a template may print and that no row holds, by their names without the "@".
using GivenValues = std::map<QString, QString>;

/// Where the values of a template's columns come from.
class Binding {
 public:
  /// Throws Error(MissingColumn) that names template, column and table.
  Binding(const ReportTemplate& t, const Rows& rows, const GivenValues& given);

  static constexpr int kMark = -1;
  /// A position in the rows, kMark, or, below that, a given value.
  int position(int column) const { return positions_[static_cast<std::size_t>(column)]; }
  const QString& given(int position) const {
    return given_[static_cast<std::size_t>(kMark - 1 - position)];
  }

 private:
  std::vector<int> positions_;
  std::vector<QString> given_;
};

/// What a template's text is filled from.
struct Source {
  const Rows* rows = nullptr;
  const Binding* binding = nullptr;
  std::size_t row = 0;
  std::size_t lastRow = 0;
  int page = 1;
  int pages = 1;
  QString mark = {};

  const QString& value(int column, bool ofLastRow = false) const {
    const int position = binding->position(column);
    if (position >= 0) return rows->value(ofLastRow ? lastRow : row, position);
    return position == Binding::kMark ? mark : binding->given(position);
  }
};

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
