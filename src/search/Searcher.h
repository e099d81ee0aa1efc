#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "search/DocumentSet.h"
#include "search/IndexFile.h"
#include "search/Match.h"
#include "search/Places.h"
#include "store/Connection.h"

namespace fidaleon::search {

/// An entry that was found, as it is stored now.
struct Hit {
  Register in = Register::Baptism;
  std::int32_t key = 0;
  bool request = false;
  bool annulled = false;
  bool collaborator = false;  // of the census, and nothing else there
  std::string name;           // of a marriage both
  std::int32_t day = 0;       // of the sacrament, "yyyyMMdd"; 0 when it is not known
  std::int32_t born = 0;      // likewise
  std::string where;          // "Libro 2003/01, folio 4, n.º 7", and of whom
  std::string why;            // it was found
  int cost = 0;               // the less, the nearer to what was typed
  bool exact = false;         // word for word, about the one whom it is about
};

struct Found {
  std::vector<Hit> hits;  // the nearest first
  bool more = false;      // there are others
  bool asked = true;      // what was typed is enough to look for
  /// Entries that are no longer as the index has them. They are not among the hits.
  std::vector<std::pair<Register, std::int32_t>> stale;
};

/// Finds entries by what somebody types, through the index, and looks each up in the parish before
/// it gives it. One thread; throws store::Error.
class Searcher {
 public:
  Searcher(store::Connection& parish, IndexFile& index);

  Found find(std::string_view typed, std::size_t most = 60);
  Found find(const Query& query, std::size_t most);
  /// Towns, books or institutions have changed.
  void placesChanged() { placesRead_ = false; }
  const Places& places();

 private:
  /// The documents that a word may stand for.
  struct Sets {
    Meaning meaning;
    DocumentSet exact, subject, any;
  };
  using Word = Query::Word;
  struct Candidate {
    Match match;
    Document document;
  };
  class Round;

  void renewIfWritten();
  const Sets& setsOf(const Word& word, Vocabulary::Letters letters);
  std::vector<Candidate> candidates(const Query& query, std::size_t most, bool& more);
  DocumentSet limits(const Query& query);
  Found shown(const Query& query, std::vector<Candidate> candidates, std::size_t most);

  store::Connection& parish_;
  IndexFile& index_;
  Vocabulary words_;
  Places places_;
  bool placesRead_ = false;
  std::int64_t version_ = -1;
  std::int64_t end_ = 0;
  std::map<std::string, Sets> sets_;  // of the words typed last
};

}  // namespace fidaleon::search
