#pragma once

#include <string>
#include <vector>

#include "search/Entry.h"

namespace fidaleon::search {

/// Somebody's name in an entry, as words.
struct Name {
  std::vector<std::string> given;  // the whole name where the register has it as one text
  std::vector<std::string> first;
  std::vector<std::string> second;
  bool whole = false;

  static Name of(const Entry& entry, Who who);
  bool isKnown() const { return !given.empty(); }
  std::vector<std::string> all() const;
};

enum class Agreement {
  Unknown,  // one of them is not known
  No,
  Partly,  // what both say agrees, but it is little
  Fully,   // given name and two surnames, or one and the same whole name
};

/// Whether both may be one person's. Names that sound alike or are used for one another agree.
Agreement agree(const Name& one, const Name& other);

}  // namespace fidaleon::search
