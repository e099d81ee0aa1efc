#pragma once
// What a template file says, as plain data. Lengths are millimetres and type sizes points, as in
// the file. Columns are positions in ReportTemplate::columns.

#include <QRegularExpression>
#include <QSizeF>
#include <QString>
#include <optional>
#include <vector>

namespace fidaleon::paper {

/// Holds when any of the columns has something to print, or, with a pattern, when its text
/// matches. Null, blanks, "---" and "//" are nothing to print.
struct Condition {
  std::vector<int> columns;
  std::optional<QRegularExpression> pattern;
  bool negated = false;
};

enum class Filter {
  None,
  Upper,    // all capitals
  Capital,  // first letter a capital
  Dashes,   // "---" for Null and blank
};

struct Inline {
  enum class Kind { Text, Value, PageNumber, PageTotal, Break, Group };
  Kind kind = Kind::Text;
  QString text;
  int column = -1;
  Filter filter = Filter::None;
  // A group: its children, under a condition, in another face.
  std::vector<Inline> children;
  std::optional<Condition> condition;
  bool bold = false;
  bool italic = false;
  bool smallCaps = false;
};

struct TextStyle {
  qreal size = 11;
  bool bold = false;
  bool italic = false;
  bool smallCaps = false;
  qreal tracking = 0;  // per cent of the size between letters
  qreal leading = 1;   // times the natural height of a line
  qreal before = 0;
  qreal after = 0;
  qreal indent = 0;  // of the first line
  Qt::Alignment align = Qt::AlignLeft;
};

struct Block {
  enum class Kind {
    Paragraph,
    Group,    // children one below the other
    Columns,  // its children, each a Group, side by side
    Box,      // a frame around its children
    Field,    // a label and, on a hairline, a value
    Rule,
    Space,
  };
  Kind kind = Kind::Group;
  TextStyle style;
  TextStyle labelStyle;  // Field
  std::vector<Inline> label;
  std::vector<Inline> text;
  std::vector<Block> children;
  std::optional<Condition> condition;
  bool keep = false;      // not cut in two where it fits on a page
  qreal width = 0;        // Group in Columns: 0 shares what is left; Field: of the label
  qreal height = 0;       // Space, Box (at least)
  qreal gap = 0;          // Columns
  qreal padding = 0;      // Box
  qreal thickness = 0.2;  // Rule, Box, divider of Columns
  bool divider = false;   // Columns
  bool dashed = false;    // Box
  bool writeIn = false;   // Field: where there is no value, an empty line to write on
};

struct Formula {
  enum class As { Text, Number, Date };
  QString name;
  std::vector<Inline> text;
  As as = As::Text;
};

/// Blocks above or below the text of a page.
struct Furniture {
  std::vector<Block> blocks;
  int fromPage = 1;
  bool onlyWhenSeveral = false;  // not when the document has a single page
};

enum class Flow {
  Page,        // each row starts a page and counts its own pages
  Continuous,  // rows follow one another
};

struct ReportTemplate {
  QString name;
  QString table;
  QString language = QStringLiteral("es");
  QSizeF page{210, 297};
  qreal marginTop = 20, marginRight = 20, marginBottom = 20, marginLeft = 20;
  Flow flow = Flow::Page;
  qreal smallestScale = 1;  // type may shrink to this for a row to fit on one page
  QStringList fonts;
  std::vector<Block> body;
  Furniture header;
  Furniture footer;
  std::vector<Formula> formulas;
  QStringList columns;  // every column it reads, once each
};

}  // namespace fidaleon::paper
