#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/schema/Schema.h"

namespace fidaleon::store {

/// What the names in one SELECT, UPDATE or DELETE can mean.
class Scope {
 public:
  struct Source {
    const Table* table;
    std::string exposed;  // the alias, or the table's own name
  };
  struct Found {
    const Source* source;
    const Column* column;
  };

  explicit Scope(const Scope* outer = nullptr) : outer_(outer) {}

  void add(const Table& table, std::string_view alias);
  /// `expression` as the engine is told it.
  void addAlias(std::string alias, std::string expression) {
    aliases_.push_back({std::move(alias), std::move(expression)});
  }
  const std::vector<Source>& sources() const { return sources_; }

  /// The first table that has it, inner tables before outer ones.
  std::optional<Found> column(std::string_view name) const;
  std::optional<Found> column(std::string_view source, std::string_view name) const;
  const Source* source(std::string_view name) const;
  /// A column of the select list by the name given to it, as it is spelt there.
  struct Alias {
    std::string name;
    std::string expression;
  };
  const Alias* alias(std::string_view name) const;

 private:
  const Scope* outer_;
  std::vector<Source> sources_;
  std::vector<Alias> aliases_;
};

}  // namespace fidaleon::store
