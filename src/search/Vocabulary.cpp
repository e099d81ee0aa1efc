#include "search/Vocabulary.h"

#include <algorithm>

#include "search/Words.h"

namespace fidaleon::search {
namespace {

constexpr std::size_t SURE = 5;  // letters, below which another letter is another name

/// A word that was typed, with its normal forms.
struct Wanted {
  Wanted(const std::string& word, Vocabulary::Typed typed, Vocabulary::Letters letters)
      : text(word),
        sound(soundOf(search::writtenOut(word))),
        writtenOut(search::writtenOut(word)),
        usual(usualName(word)),
        unfinished(typed == Vocabulary::Typed::Unfinished),
        oneWrong(letters == Vocabulary::Letters::OneWrong) {}

  std::string_view text;
  std::string sound;
  std::string_view writtenOut;
  std::string_view usual;
  bool unfinished;
  bool oneWrong;
};

/// Mario and María, Luis and Luisa are two names.
bool differsInGender(std::string_view a, std::string_view b) {
  const auto stem = [](std::string_view s) {
    return s.substr(0, s.size() - (!s.empty() && (s.back() == 'a' || s.back() == 'o')));
  };
  return stem(a) == stem(b);
}

bool isMisspelt(std::string_view a, std::string_view b) {
  if (differsInGender(a, b)) return false;
  const std::size_t longer = std::max(a.size(), b.size());
  return longer >= SURE && std::min(a.size(), b.size()) + 1 >= SURE && oneLetterApart(a, b);
}

bool hasDigit(std::string_view word) {
  return word.find_first_of("0123456789") != std::string_view::npos;
}

template <class Word>
std::optional<Likeness> compare(const Wanted& wanted, const Word& word) {
  if (word.text == wanted.text) return Likeness::Exact;
  if (word.writtenOut == wanted.writtenOut) return Likeness::WrittenOut;
  if (wanted.unfinished && word.text.size() > wanted.text.size() &&
      std::string_view(word.text).substr(0, wanted.text.size()) == wanted.text)
    return Likeness::Begins;
  if (hasDigit(wanted.text)) return {};
  if (word.sound == wanted.sound) return Likeness::Sound;
  if (wanted.unfinished && wanted.sound.size() > 3 &&
      std::string_view(word.sound).substr(0, wanted.sound.size()) == wanted.sound)
    return Likeness::SoundBegins;
  if (word.usual == wanted.usual) return Likeness::Familiar;
  if (wanted.oneWrong &&
      (isMisspelt(word.text, wanted.text) || isMisspelt(word.sound, wanted.sound)))
    return Likeness::Letter;
  return {};
}

}  // namespace

void Vocabulary::add(std::string word) {
  Word& added = words_.emplace_back(Word{std::move(word), {}, {}, {}});
  added.writtenOut = search::writtenOut(added.text);
  added.usual = usualName(added.text);
  added.sound = soundOf(added.writtenOut);
  ids_.emplace(added.text, size());
}

WordId Vocabulary::find(const std::string& word) const {
  const auto found = ids_.find(word);
  return found == ids_.end() ? 0 : found->second;
}

Vocabulary::Likes Vocabulary::like(const std::string& word, Typed typed, Letters letters) const {
  const Wanted wanted(word, typed, letters);
  Likes likes;
  for (std::size_t i = 0; i < words_.size(); ++i)
    if (const auto how = compare(wanted, words_[i]))
      likes.emplace(static_cast<WordId>(i + 1), *how);
  return likes;
}

std::optional<Likeness> likeness(const std::string& one, const std::string& other) {
  const auto whole = [](const std::string& word) {
    return Wanted(word, Vocabulary::Typed::Whole, Vocabulary::Letters::AsTyped);
  };
  return compare(whole(one), whole(other));
}

}  // namespace fidaleon::search
