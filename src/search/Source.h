#pragma once
// Where the registers keep what is searched: one description each, from which the statements come.

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/contract/Sacramento.h"
#include "search/Entry.h"
#include "store/Connection.h"

namespace fidaleon::search {

struct Column {
  const char* name;
  Field is;
};

/// A further table whose rows lead to the register's: a statement that ends in "=" and takes the
/// key of its row.
struct Relative {
  const char* table;
  const char* entriesOf;  // null: the row cannot be followed, any entry may be meant
};

struct Source {
  Register in;
  const Sacramento* sacrament;  // null for the census
  const char* table;
  const char* key;
  const char* from;
  std::vector<Column> columns;
  // What only the page of a family asks for: further tables, and their columns.
  const char* fromWhole;
  std::vector<Column> further;
  std::vector<Relative> relatives;
};

const Source& sourceOf(Register in);
std::span<const Source> sources();

enum class Extent { Searched, Whole };

using TakeEntry = std::function<void(Entry&)>;
/// The entries of the keys above one and up to another, in the order of their keys.
void readRange(store::Connection& connection, const Source& source, std::int64_t after,
               std::int64_t upTo, const TakeEntry& take);
/// Those of these keys that are there.
void readKeys(store::Connection& connection, const Source& source,
              const std::vector<std::int32_t>& keys, Extent extent, const TakeEntry& take);
/// 0 when there is none.
std::int64_t highestKey(store::Connection& connection, const Source& source);

}  // namespace fidaleon::search
