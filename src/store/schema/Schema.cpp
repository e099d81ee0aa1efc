#include "store/schema/Schema.h"

#include <stdexcept>

#include "text/Utf8.h"

namespace fidaleon::store {

bool isText(Type type) {
  return type == Type::Text || type == Type::Memo;
}

bool isWhole(Type type) {
  return type == Type::Counter || type == Type::Long || type == Type::Integer || type == Type::Byte;
}

Table::Table(std::string name, int since)
    : name_(std::move(name)), since_(since), version_(since) {}

Table& Table::from(int version) {
  version_ = version;
  return *this;
}

Table& Table::add(Type type, std::initializer_list<const char*> columns, int width) {
  for (const char* column : columns) {
    if (!byName_.emplace(text::foldCase(column), columns_.size()).second) {
      throw std::logic_error("column twice: " + name_ + "." + column);
    }
    columns_.push_back(Column{column, type, width, version_});
  }
  return *this;
}

Table& Table::counter(const std::string& column) {
  add(Type::Counter, {column.c_str()});
  key_ = {column};
  uniqueKey_ = true;
  return *this;
}

Table& Table::refers(const std::string& table, std::initializer_list<const char*> columns,
                     Type type) {
  const std::size_t first = columns_.size();
  add(type, columns, isText(type) ? 255 : 0);
  for (std::size_t i = first; i < columns_.size(); ++i) columns_[i].refersTo = table;
  return *this;
}

Table& Table::belongsTo(const std::string& table, const std::string& column) {
  refers(table, {column.c_str()});
  columns_.back().belongs = true;
  return *this;
}

Table& Table::zeroNumbers() {
  zeroNumbers_ = true;
  return *this;
}

Table& Table::key(std::initializer_list<const char*> columns, bool unique) {
  key_.assign(columns.begin(), columns.end());
  uniqueKey_ = unique;
  return index(columns, unique);
}

Table& Table::index(std::initializer_list<const char*> columns, bool unique) {
  indexes_.push_back(Index{{columns.begin(), columns.end()}, unique, version_});
  return *this;
}

Table& Table::figures(std::initializer_list<int> rows) {
  indexes_.back().figures = rows;
  return *this;
}

Table& Table::indexMarked(const char* mark, const char* column) {
  indexes_.push_back(Index{{column}, false, version_, mark});
  return *this;
}

Table& Table::row(std::vector<Value> values) {
  if (values.size() != columns_.size()) throw std::logic_error("row of another width: " + name_);
  rows_.push_back(std::move(values));
  return *this;
}

const Column* Table::find(std::string_view column) const {
  const auto found = byName_.find(text::foldCase(column));
  return found == byName_.end() ? nullptr : &columns_[found->second];
}

Schema::Schema(std::string name, int version, std::vector<Table> tables)
    : name_(std::move(name)), version_(version), tables_(std::move(tables)) {
  for (std::size_t i = 0; i < tables_.size(); ++i) {
    if (!byName_.emplace(text::foldCase(tables_[i].name()), i).second) {
      throw std::logic_error("table twice: " + tables_[i].name());
    }
  }
  for (const Table& table : tables_)
    for (const Column& column : table.columns())
      if (!column.refersTo.empty() && find(column.refersTo) == nullptr)
        throw std::logic_error(table.name() + "." + column.name + " refers to no table");
}

const Table* Schema::find(std::string_view table) const {
  const auto found = byName_.find(text::foldCase(table));
  return found == byName_.end() ? nullptr : &tables_[found->second];
}

}  // namespace fidaleon::store
