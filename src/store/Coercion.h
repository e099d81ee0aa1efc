#pragma once

#include <deque>
#include <string>

#include "store/Literal.h"
#include "store/schema/Schema.h"

namespace fidaleon::store {

/// Most literals are what their column wants, which is told at a glance.
inline bool fits(const Literal& literal, const Column& column) {
  return literal.kind == Literal::Kind::Text &&
         (column.type == Type::Memo ||
          (column.type == Type::Text &&
           literal.text.size() <= static_cast<std::size_t>(column.width)));
}

/// Makes a literal fit the column that it is to be stored in: a number becomes text in a text
/// column, text a number in a number column (blank text and "---" are 0), any number but 0 is -1
/// in a Yes/No column. Throws Constraint for text that is no number and for numbers out of range,
/// TooLong for text longer than the column. `texts` keeps what the literal then points to.
void coerce(Literal& literal, const Column& column, std::deque<std::string>& texts);

}  // namespace fidaleon::store
