#pragma once

#include <cstdint>
#include <vector>

#include "store/Engine.h"
#include "store/schema/Schema.h"

namespace fidaleon::store {

/// How many rows each table of the schema has, in the order of the schema.
std::vector<std::int64_t> rowCounts(Engine& engine, const Schema& schema);

/// The only value that a statement gives, as a whole number.
std::int64_t onlyNumber(Engine& engine, const std::string& sql);

}  // namespace fidaleon::store
