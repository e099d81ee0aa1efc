#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "search/Documents.h"

namespace fidaleon::search {

/// How a word of an entry comes to stand for a word that somebody typed; the nearer the first.
enum class Likeness : std::uint8_t {
  Exact,
  WrittenOut,   // "Fco." and "Francisco"
  Begins,       // it begins with what was typed so far
  Sound,        // "Jiménez" and "Giménez"
  SoundBegins,  // it sounds as it begins
  Familiar,     // "Paco" and "Francisco"
  Letter,       // one letter is another
};

/// All words that the entries of a parish have, with their normal forms. Knows them by the numbers
/// that the index gave them.
class Vocabulary {
 public:
  /// The words come in the order of their numbers, from 1.
  void add(std::string word);
  WordId size() const { return static_cast<WordId>(words_.size()); }
  /// 0 for a word that it does not have.
  WordId find(const std::string& word) const;
  const std::string& word(WordId id) const { return words_[id - 1].text; }

  using Likes = std::unordered_map<WordId, Likeness>;
  enum class Typed { Whole, Unfinished };
  enum class Letters { AsTyped, OneWrong };
  /// The words that may be meant.
  Likes like(const std::string& word, Typed typed, Letters letters) const;

 private:
  struct Word {
    std::string text;
    std::string sound;
    std::string_view writtenOut;
    std::string_view usual;
  };
  std::deque<Word> words_;  // they stay where they are: others look into them
  std::unordered_map<std::string_view, WordId> ids_;
};

/// How one word may stand for another; nothing when it may not.
std::optional<Likeness> likeness(const std::string& one, const std::string& other);

}  // namespace fidaleon::search
