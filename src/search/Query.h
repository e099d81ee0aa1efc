#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "search/Entry.h"
#include "search/Vocabulary.h"

namespace fidaleon::search {

/// What somebody typed, taken apart.
struct Query {
  struct Word {
    std::string text;
    Vocabulary::Typed typed = Vocabulary::Typed::Whole;
    friend bool operator==(const Word&, const Word&) = default;
  };
  std::vector<Word> words;        // of names and places
  std::vector<std::string> book;  // of a book's name
  std::vector<Kinds> kinds;       // the row is one of these

  bool onlyRequests = false;
  bool onlyAnnulled = false;
  int fromYear = 0, toYear = 0;  // 0: any
  std::int32_t day = 0;          // "yyyyMMdd"
  std::uint32_t folio = 0;
  std::string number;

  bool empty() const {
    return words.empty() && book.empty() && kinds.empty() && !onlyRequests && !onlyAnnulled &&
           fromYear == 0 && folio == 0;
  }
};

/// "garcía lópez 1924", "boda ana 1920-1930", "3/5/1924", "libro VII folio 12". A word of three
/// letters may be unfinished, and so is the last one unless a blank follows it; `kindsAreNames`
/// reads what might be a kind of row as part of a name.
Query readQuery(std::string_view typed, bool kindsAreNames = false);

}  // namespace fidaleon::search
