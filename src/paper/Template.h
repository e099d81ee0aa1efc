#pragma once
// What a template file says, as plain data. Lengths are millimetres and type sizes points, as in
// the file. Columns are positions in ReportTemplate::columns.
//
// A column whose name begins with "@" is none of the table: "@Marca" is the word that marks the
// row, "@Fila" the row's number, "@Filas" the count of rows, a formula's name its text, any other a
// value that the caller gives; one that he has only chosen is there.

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
  bool changes = false;  // instead: the last row of the page has another value than the first
};

enum class Filter {
  Apostrophes,  // two apostrophes, as one was typed for a statement, are one
  Unfilled,     // without the " . . ." that fills its line
  Upper,        // all capitals
  Capital,      // first letter a capital
  Letter,       // the letter it stands under in an index: a capital without accent; Ñ is its own
  Weekday,      // of a date "dd/mm/yyyy", in the template's language; nothing of any other text
};

/// Mends the seam between a template's words and the value that follows them: of "el Presbítero D."
/// and "Rvdo. D. Julián" one title goes, of "de" and "el Carmen" comes "del Carmen".
struct Join {
  QRegularExpression before;   // what the words end in
  QRegularExpression value;    // what the value begins with
  std::optional<QString> put;  // stands for what `before` found; without it that stays
  bool cut = false;            // what `value` found is left out
};

struct Inline {
  enum class Kind { Text, Value, PageNumber, PageTotal, Break, Group };
  Kind kind = Kind::Text;
  QString text;
  int column = -1;
  std::vector<Filter> filters;
  QString otherwise;       // printed where there is no value
  bool ofLastRow = false;  // of the last row of the page (or document), not of its first
  // A group: its children, under a condition, in another face.
  std::vector<Inline> children;
  std::optional<Condition> condition;
  bool clause = false;  // left out when none of its place-holders has something to print
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
  qreal indent = 0;      // of the first line
  qreal hang = 0;        // of all others
  bool leader = false;   // dots from the end of the last line to the edge
  bool oneLine = false;  // what does not fit is cut, with an ellipsis
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
    Cross,
    Space,
    WriteLines,  // dotted lines to write on; as the last block of a column, down to its foot
  };
  Kind kind = Kind::Group;
  TextStyle style;
  TextStyle labelStyle;  // Field
  TextStyle valueStyle;  // Field: its style, whose leading goes above the value alone
  std::vector<Inline> label;
  std::vector<Inline> text;
  std::vector<Block> children;
  std::optional<Condition> condition;
  bool clause = false;    // Paragraph, Field: left out when none of its values is known
  bool keep = false;      // not cut in two where it fits on a page
  bool withNext = false;  // never the last thing on a page: a heading
  bool clear = false;     // Group: a mark across the row ends above it
  qreal width = 0;        // Group in Columns: 0 shares what is left; Field: of the label
  qreal height = 0;       // Space, Box and WriteLines (at least)
  qreal gap = 0;          // Columns; WriteLines: between two lines
  qreal padding = 0;      // Box
  qreal thickness = 0.2;  // Rule, Box, divider of Columns
  bool divider = false;   // Columns
  bool atFoot = false;    // Columns: each stands at the foot of the tallest
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

/// What is printed of a row. Of several each begins a page.
struct Body {
  std::vector<Block> blocks;
  std::optional<Condition> condition;  // nothing of it is printed where it does not hold
  bool ownPages = false;               // counts its pages anew: a document of its own
};

/// A heading above the first row of each run of rows that have the same values in its columns and
/// in those of the headings around it.
struct GroupHead {
  std::vector<int> columns;
  std::vector<Block> blocks;
};

/// A second table, of which each row of the principal one may have a row. Its columns are named
/// with its name in front: "novio.NombreNovio".
struct SideTable {
  QString name;
  QString table;
  QString key;    // its column that holds the value of `of`
  QString of;     // column of the principal table
  QString where;  // where a row has several there: the column that tells which one is meant, and
  QString is;     // its value; otherwise empty
};

struct ReportTemplate {
  qreal leftMargin(int pageNumber) const {
    return mirrored && pageNumber % 2 == 0 ? marginRight : marginLeft;
  }

  QString name;
  QString table;
  std::vector<SideTable> sides;
  QString language = QStringLiteral("es");
  QSizeF page{210, 297};
  qreal marginTop = 20, marginRight = 20, marginBottom = 20, marginLeft = 20;
  bool mirrored = false;  // even pages, the backs of the sheets, swap left and right
  Flow flow = Flow::Page;
  qreal smallestScale = 1;  // type may shrink to this for a row to fit on one page
  QString order;            // of the rows, where the caller asks for none: "+{@Folio},-{@Numero}"
  QStringList fonts;
  int pageColumns = 1;
  qreal pageColumnGap = 8;
  std::vector<Body> bodies;  // several only where each row starts a page
  // Of a continuous flow: before the first row, after the last, between two of one page column.
  std::vector<Block> opening;
  bool openingHasItsPage = false;
  std::vector<Block> closing;
  std::vector<Block> between;
  std::vector<GroupHead> groupHeads;  // the outermost first
  bool marksAcross = true;            // a row's mark is printed large across it
  bool readsTotal = false;            // something on a page depends on how many pages there are
  Furniture header;
  Furniture footer;
  std::vector<Formula> formulas;
  std::vector<Join> joins;
  QRegularExpression anyJoin;         // what the value of some join begins with
  std::optional<Condition> feminine;  // the words of <f> are meant, not those of <m>
  QStringList columns;                // every column it reads, once each
};

}  // namespace fidaleon::paper
