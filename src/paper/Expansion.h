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

struct Source;

/// Where the values of a template's columns come from. To be used from one thread, also where
/// const.
class Binding {
 public:
  /// Template and rows must outlive it. Throws Error(MissingColumn) that names template, column
  /// and table.
  Binding(const ReportTemplate& t, const Rows& rows, const GivenValues& given);

  const ReportTemplate& layout() const { return *t_; }
  /// Of the first or the last row of the source. The text of a formula stays until the next one
  /// of that formula is asked for.
  const QString& value(int column, const Source& source, bool ofLastRow) const;
  /// To be called when rows have changed their places.
  void forget();

 private:
  struct Place {
    enum class Kind { Row, Mark, RowNumber, Given, Formula };
    Kind kind;
    int index;
  };
  struct Computed {
    const std::vector<Inline>* formula;
    std::size_t row;
    QString text;
  };
  Place placeOf(const QString& column, const Rows& rows, const GivenValues& given);
  const QString& computed(int index, const Source& source, bool ofLastRow) const;

  const ReportTemplate* t_;
  std::vector<Place> places_;
  std::vector<QString> given_;
  mutable QString rowNumber_;
  mutable std::vector<Computed> computed_;  // two each: of a first row, of a last row
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
    return binding->value(column, *this, ofLastRow);
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
