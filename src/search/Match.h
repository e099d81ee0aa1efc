#pragma once

#include <array>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "search/Documents.h"
#include "search/Query.h"
#include "search/Vocabulary.h"

namespace fidaleon::search {

/// What each word of a query may stand for.
struct Meaning {
  Vocabulary::Likes words;
  std::unordered_set<MarkId> places;    // towns and books
  std::unordered_set<MarkId> parishes;  // institutions, and books of theirs
};

/// How a document answers a query.
struct Match {
  struct Piece {
    std::size_t typed;  // which word of the query
    Field field;        // where it was found
    WordId word;
    Likeness how;
  };
  int cost = 0;  // the less, the nearer
  std::vector<Piece> pieces;
  bool swapped = false;                // the surnames stand in the other order
  std::optional<std::size_t> missing;  // a word of the query that the entry does not have
  bool withoutSecond = false;          // since it has no second surname

  /// Word for word, about the one whom the entry is about.
  bool isExact() const;
};

/// The words must be one person's, or those of a person and of their family one after the other;
/// what is left over, at the end, must be places. Nothing when the document does not answer.
std::optional<Match> match(const Query& query, const std::vector<Meaning>& meanings,
                           const Document& document);

}  // namespace fidaleon::search
