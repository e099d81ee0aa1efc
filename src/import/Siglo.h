#pragma once

#include <optional>
#include <string>

#include "dbase/Row.h"

namespace fidaleon {

/// A date of its own kind, not one in a text.
inline bool esDia(const dbase::Cell& valor) {
  using Kind = dbase::Cell::Kind;
  return valor.kind == Kind::Date || valor.kind == Kind::Moment;
}

/// The day that a value of the older program stands for: a date, or a text like "3/12/41".
std::optional<text::Date> diaDe(const dbase::Cell& valor);

/// The older program knew two digits of a year: each day is of 19xx, and one of the year "00" of
/// what the user has typed to stand in front ("20" gives 2000). "yyyymmdd".
std::string conSiglo(const text::Date& dia, const std::string& strAno00);

}  // namespace fidaleon
