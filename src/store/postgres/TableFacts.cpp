#include "store/postgres/TableFacts.h"

namespace fidaleon::store {

void KnownTables::read(Link& link) {
  const Answer tables = link.ask(
      "SELECT c.oid, c.relname, a.attname, EXISTS (SELECT FROM pg_index i WHERE i.indrelid = c.oid "
      "AND i.indisunique AND NOT i.indisprimary) FROM pg_class c JOIN pg_namespace n ON n.oid = "
      "c.relnamespace AND n.nspname = 'fidaleon' LEFT JOIN pg_attribute a ON a.attrelid = c.oid "
      "AND a.attidentity <> '' WHERE c.relkind = 'r'");
  facts_.clear();
  names_.clear();
  for (int row = 0; row < tables.rows(); ++row) {
    const std::string table(tables.text(row, 1));
    names_.emplace(static_cast<Oid>(tables.integer(row, 0)), table);
    facts_[table] = {table, std::string(tables.text(row, 2)), tables.text(row, 3) == "f"};
  }
}

const TableFacts* KnownTables::find(const std::string& table) const {
  const auto found = facts_.find(table);
  return found == facts_.end() ? nullptr : &found->second;
}

std::string KnownTables::name(Oid number) const {
  const auto found = names_.find(number);
  return found == names_.end() ? std::string() : found->second;
}

}  // namespace fidaleon::store
