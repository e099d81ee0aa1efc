#pragma once

#include <string>

#include "search/Searcher.h"

namespace fidaleon::search {

/// The entry as it is shown; not yet why.
Hit hitOf(const Entry& entry, const Places& places);
/// Why the entry answers the query, for a person to read: "nombre y apellidos", "padre: Juan Gil",
/// "«Giménez» suena igual".
std::string reasonOf(const Query& query, const Match& match, const Entry& entry,
                     const Vocabulary& words, const Places& places);
/// What somebody is in an entry of that register: "padre del novio".
const char* roleOf(Register in, Who who);

}  // namespace fidaleon::search
