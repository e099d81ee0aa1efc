#pragma once

#include <string>
#include <vector>

#include "search/Searcher.h"

namespace fidaleon::search {

enum class Kinship { Own, ParentsWedding, Sibling, Child };

/// An entry that belongs to somebody or to the family.
struct Kin {
  Kinship kinship = Kinship::Own;
  Hit hit;
  bool sure = false;   // more agrees than the name
  std::string reason;  // what agrees, and what does not
};

/// One of those whom an entry is about, with what the parish has of them.
struct FamilyPage {
  std::string name;
  std::vector<Kin> kin;  // by kinship, then by day; among them the entry itself
};

/// Puts together what belongs together, by names, days and parents; nothing of it is stored. Two
/// pages for a marriage, none when the entry is gone. Throws store::Error.
std::vector<FamilyPage> familyOf(store::Connection& parish, Searcher& searcher, Register in,
                                 std::int32_t key);

}  // namespace fidaleon::search
