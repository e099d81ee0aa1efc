#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "search/IndexFile.h"
#include "search/Source.h"

namespace fidaleon::search {

/// Brings an index up to what is stored, piece by piece: what is new, what has changed, what is
/// gone. Neither a desk that was killed, nor one that knows of no index, nor a copy that was
/// returned to leaves anything that the next round does not put right. One thread; throws
/// store::Error, after which there must be another Indexer.
class Indexer {
 public:
  Indexer(store::Connection& parish, IndexFile& index);

  /// Takes in a piece of the entries that nobody has looked at yet. False when there were none.
  bool takeNew();
  /// Compares a piece of what is known with what is stored. False when the round is over.
  bool compare();
  /// Takes these entries in as they are stored now, or out when they are not.
  void refresh(Register in, const std::vector<std::int32_t>& keys);
  /// Of all entries, how many have been looked at, in thousandths.
  int progress();

 private:
  std::vector<WordId> wordsOf(IndexFile::Writing& writing, const std::string& text);
  bool takeNew(const Source& source);

  store::Connection& parish_;
  IndexFile& index_;
  Vocabulary words_;
  std::unordered_map<std::string, std::vector<WordId>> known_;  // texts come again and again
  std::size_t comparing_ = 0;                                   // register
  std::int64_t compared_ = 0;                                   // up to this key
};

}  // namespace fidaleon::search
