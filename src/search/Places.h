#pragma once

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "search/Documents.h"
#include "search/Vocabulary.h"
#include "store/Connection.h"

namespace fidaleon::search {

/// The towns, books and institutions of a parish by their names: few, and read whole, so that an
/// entry keeps their keys alone and follows when one is renamed.
class Places {
 public:
  /// Reads them anew. Throws store::Error.
  void read(store::Connection& parish);

  /// By which of these: towns and books, whose names say what they are, or parishes, which are
  /// called as people are.
  enum class By { Towns, Books, Parishes };
  /// The marks of entries that belong to what has this word in its name.
  std::vector<MarkId> like(const std::string& word, Vocabulary::Typed typed, By by) const;

  /// Empty for a key that there is not.
  const std::string& town(std::int64_t key) const { return name(Mark::Town, key); }
  const std::string& institution(std::int64_t key) const { return name(Mark::Institution, key); }
  const std::string& book(Register in, std::int64_t key) const {
    return name(Mark::Book, bookNumber(in, key));
  }
  /// The institution that a book belongs to.
  std::int64_t institutionOf(Register in, std::int64_t book) const;

 private:
  void add(By by, Mark mark, std::uint32_t number, const std::string& name);
  void addUnder(By by, const std::string& name, MarkId mark);
  const std::string& name(Mark mark, std::int64_t number) const;

  Vocabulary words_;
  std::unordered_map<WordId, std::vector<std::pair<By, MarkId>>> marks_;
  std::unordered_map<MarkId, std::string> names_;
  std::unordered_map<std::uint32_t, std::int64_t> institutions_;  // of books
};

}  // namespace fidaleon::search
