// Both engines answer the same: statements at random, with their rows, order, types, counts and
// errors compared.

#include <random>

#include "store/FailingEngine.h"
#include "support/NewDatabase.h"
#include "text/Utf8.h"

namespace fidaleon::store::EnginesTest {

/// Statements of the dialect over some tables, most of which make sense. The same for one seed.
class Statements {
 public:
  explicit Statements(unsigned seed) : chance_(seed) {}

  std::string next() {
    table_ = parishSchema().find(pick({"Libro_Bautismo", "Bautismo_Hijo", "Ultimos", "Cargo",
                                       "Matrimonio_Novios", "Matrimonio_Cursos", "Bautismo"}));
    const std::string name = table_->name();
    switch (below(10)) {
      case 0:
      case 1:
      case 2:
        return insertion(name);
      case 3:
        return "UPDATE " + name + " SET " + assignment() + where();
      case 4:
        return "DELETE FROM " + name + " WHERE " + condition() + " AND " + condition();
      case 5: {
        const std::string grouped = any();
        return "SELECT " + grouped + ", COUNT(*) AS n, MAX(" + any() + ") AS mayor FROM " + name +
               where() + " GROUP BY " + grouped;
      }
      case 6:
        return "SELECT DISTINCT " + any() + " FROM " + name + where();
      case 7:
        return "SELECT " + pick({"Val", "CStr", "CInt", "CLng"}) + "(" + any() + ") AS x FROM " +
               name + where();
      default:
        return "SELECT " + pick({"* FROM ", "TOP 3 * FROM "}) + name + where() + order();
    }
  }
  unsigned below(unsigned n) { return static_cast<unsigned>(chance_() % n); }

 private:
  std::string pick(std::initializer_list<const char*> from) {
    return from.begin()[below(static_cast<unsigned>(from.size()))];
  }
  const Column& column() {
    const auto& all = table_->columns();
    // Mostly the first ones, so that values meet.
    const auto few = std::min<std::size_t>(all.size(), below(4) == 0 ? all.size() : 8);
    return all[below(static_cast<unsigned>(few))];
  }
  std::string any() { return "[" + column().name + "]"; }
  std::string value(const Column& of) {
    const bool fits = below(8) != 0;
    if (fits && of.type == Type::YesNo) return pick({"True", "False", "1", "0", "-1"});
    if (fits && isText(of.type))
      return pick({"''", "'a'", "'A'", "\"Á\"", "'Ñu'", "'nz'", "'12'", "'12a'", "'3'", "'---'",
                   "'03'", "'b c'", "Null"});
    if (fits) return pick({"0", "1", "2", "3", "12", "-1", "Null", "'3'"});
    return pick({"'---'", "'12a'", "2.5", "70000", "-300", "''", "Null", "99999999999", "'1e3'"});
  }
  std::string assignment() {
    const Column& to = column();
    return "[" + to.name + "] = " + value(to);
  }
  std::string insertion(const std::string& name) {
    std::string columns, values;
    for (const Column& one : table_->columns()) {
      // What is undone gives its number back only in a file.
      const bool counter = one.type == Type::Counter;
      if (!counter && below(2) == 0) continue;
      columns += (columns.empty() ? "" : ", ") + ("[" + one.name + "]");
      if (counter && below(8) != 0) ++key_;
      values += (values.empty() ? "" : ", ") + (counter ? std::to_string(key_) : value(one));
    }
    if (columns.empty()) return next();
    return "INSERT INTO " + name + " (" + columns + ") VALUES (" + values + ")";
  }
  std::string condition() {
    const Column& of = column();
    const std::string name = "[" + of.name + "]";
    switch (below(6)) {
      case 0:
        return name + " IN (" + value(of) + ", " + value(of) + ")";
      case 1:
        return name + pick({" IS NULL", " IS NOT NULL"});
      case 2:
        return "NOT " + name + " = " + value(of);
      default:
        return name + pick({" = ", " <> ", " < ", " >= ", "="}) + value(of);
    }
  }
  std::string where() {
    if (below(3) == 0) return {};
    std::string all = " WHERE " + condition();
    if (below(3) == 0) all += pick({" AND ", " OR "}) + condition();
    return all;
  }
  /// A whole one: among rows that are alike no order is promised.
  std::string order() {
    if (table_->columns()[0].type != Type::Counter || below(2) == 0) return {};
    return " ORDER BY " + any() + pick({"", " DESC"}) + ", " + any() + ", " +
           table_->columns()[0].name + pick({"", " DESC"});
  }

  std::mt19937 chance_;
  const Table* table_ = nullptr;
  int key_ = 100;
};

std::string shown(const Value& value) {
  const char* type = value.isNull() ? "∅" : value.isText() ? "t" : value.isReal() ? "r" : "e";
  return type + value.text();
}

/// Of values that are alike but for case, any may stand for all of them.
bool standsForOthers(const std::string& sql) {
  return sql.find("DISTINCT") != std::string::npos || sql.find("GROUP BY") != std::string::npos;
}

std::string answer(Connection& connection, const std::string& sql) {
  try {
    auto set = connection.Execute(sql);
    if (set.State() == 0) return "done";
    std::string all = std::to_string(set.RecordCount());
    for (int i = 0; i < set.FieldCount(); ++i) all += " " + set.FieldName(i);
    for (; !set.EOF_(); set.MoveNext()) {
      all += "\n";
      for (int i = 0; i < set.FieldCount(); ++i) all += shown(set.Fields(i).Value()) + "|";
    }
    return standsForOthers(sql) ? text::foldCase(all) : all;
  } catch (const Error& error) {
    return "error " + std::to_string(static_cast<int>(error.kind()));
  }
}

/// Opens a transaction or a part of one, or ends or undoes the innermost.
void turn(Connection& connection, unsigned which, int& depth) {
  if (which < 2 && depth < 3) {
    ++depth;
    connection.BeginTrans();
  } else if (depth > 0) {
    --depth;
    which == 2 ? connection.RollbackTrans() : connection.CommitTrans();
  }
}

class Engines : public testing::TestWithParam<unsigned> {};

TEST_P(Engines, StatementsAtRandom_AreAnsweredAlike) {
  Statements statements(GetParam());
  const auto file = memoryDatabase(parishSchema());
  const auto server = tests::serverDatabase(parishSchema(), "/tmp/fidaleon.mdb");
  int depth = 0;
  for (int i = 0; i < 700; ++i) {
    if (const unsigned which = statements.below(24); which < 5) {
      int same = depth;
      turn(*file, which, same);
      turn(*server, which, depth);
    }
    const std::string sql = statements.next();
    const std::string expected = answer(*file, sql);
    EXPECT_EQ(answer(*server, sql), expected) << i << ": " << sql;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, Engines, testing::Values(1U, 2U));

}  // namespace fidaleon::store::EnginesTest
