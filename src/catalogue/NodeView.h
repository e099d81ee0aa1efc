#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/contract/Sacramento.h"
#include "core/contract/cNodo.h"
#include "store/TouchedRows.h"

namespace fidaleon::app {

enum class NodeKind : unsigned {
  Folder = 1,
  Books = 2,
  Entries = 4,
  Requests = 8,
  Institutions = 16,
  Provinces = 32,
  Towns = 64,
  Reports = 128,  // has no rows: the node itself is what is run
  People = 256,
  Collaborators = 512,
  Activities = 1024,
  Offices = 2048,
  Tasks = 4096,
  ListReports = 8192,  // on the people and tasks of the parish; no rows either
};

constexpr unsigned bit(NodeKind kind) {
  return static_cast<unsigned>(kind);
}

/// The node itself is what is run.
constexpr bool isReport(NodeKind kind) {
  return kind == NodeKind::Reports || kind == NodeKind::ListReports;
}

constexpr bool hasRows(NodeKind kind) {
  return kind != NodeKind::Folder && !isReport(kind);
}

/// How a column is shown and sorted: texts in Spanish order, numbers by value ("12a" as 12), dates
/// by their stored form and shown as dd/mm/yyyy, times "HHmm" as HH:mm, flags as a word or nothing.
enum class ColumnKind { Text, Number, Date, Time, Flag };

struct ColumnView {
  std::string field;  // of the node's statement
  std::string title;
  ColumnKind kind = ColumnKind::Text;
  int chars = 12;    // wished width in characters
  std::string word;  // of a Flag that is set
};

/// A table from which the rows of a list come, and how a row of it leads to the list's, whose key
/// the lead gives. Without one where the two are one.
struct RowPart {
  std::string table;
  store::TouchedRows::Lead lead;
};

/// One node of the tree with the list it shows.
struct NodeView {
  cNodo node;
  NodeKind kind = NodeKind::Folder;
  const Sacramento* sacrament = nullptr;
  std::string report = "duplicadas";  // of Reports: the document that it is
  std::string key;                    // field of the statement that tells the rows apart
  std::vector<ColumnView> columns;
  std::string annulled;  // field of the mark of an annulled row; empty when there is none
  std::string group;     // field that puts rows together, such as their book; or empty
  // How the list is read book by book, in its order: the statement of the books, and the column of
  // the entries' table that names theirs. Empty where it is read as one.
  std::string groups;
  std::string groupColumn;
  // What a change in them changes in the list is one row each; the first has the list's key. A
  // change in another table of the statement may change any row.
  std::vector<RowPart> parts;
  // The rows lie elsewhere than an index leads to them in the order of the list: only the first are
  // read by it, all of them as they lie.
  bool scattered = false;
  std::vector<std::string> order;  // fields by which the rows (of a book) are sorted, then the key
  std::string day;     // field by which the list opens at today; empty for its first row
  std::string thing;   // "partida": what a row is, for the status bar
  std::string things;  // "partidas"
};

/// The nodes that work, parents before their children. `Nombre` of a node is the name that the
/// operations take ("PartidasBautismo"); no two have the same, though two may read alike.
const std::vector<NodeView>& nodeViews();
/// The node's statement for the rows of that book, for those of the keys above one and up to
/// another in the order of the keys, and for those of these keys alone.
std::string statementOfGroup(const NodeView& view, std::int32_t group);
std::string statementOfRange(const NodeView& view, std::int64_t after, std::int64_t upTo);
std::string statementOfKeys(const NodeView& view, const std::vector<std::int32_t>& keys);
/// The statement reads from that table.
bool readsFrom(const NodeView& view, std::string_view table);

/// Null when there is none of that name.
const NodeView* findNode(std::string_view name);
/// The node of a register's entries. Null when it has none.
const NodeView* entriesNode(const Sacramento& sacrament);

}  // namespace fidaleon::app
