#include "search/Names.h"

#include <algorithm>

#include "search/Vocabulary.h"
#include "search/Words.h"

namespace fidaleon::search {
namespace {

bool alike(const std::string& a, const std::string& b) {
  const auto how = likeness(a, b);
  return how &&
         (*how <= Likeness::WrittenOut || *how == Likeness::Sound || *how == Likeness::Familiar);
}

/// How many words of one are among those of the other.
std::size_t shared(const std::vector<std::string>& one, const std::vector<std::string>& other) {
  return static_cast<std::size_t>(std::count_if(one.begin(), one.end(), [&](const auto& word) {
    return std::any_of(other.begin(), other.end(),
                       [&](const auto& with) { return alike(word, with); });
  }));
}

/// The shorter lies within the longer.
bool contained(const std::vector<std::string>& one, const std::vector<std::string>& other) {
  const bool longer = one.size() > other.size();
  return longer ? shared(other, one) == other.size() : shared(one, other) == one.size();
}

Agreement parts(const Name& one, const Name& other) {
  if (!contained(one.given, other.given) || !contained(one.first, other.first) ||
      !contained(one.second, other.second))
    return Agreement::No;
  const bool surnames = !one.first.empty() && !other.first.empty();
  const bool both = !one.second.empty() && !other.second.empty();
  return surnames && both ? Agreement::Fully : Agreement::Partly;
}

}  // namespace

Name Name::of(const Entry& entry, Who who) {
  const auto words = [&](Part part) { return wordsOf(entry.text(search::of(who, part))); };
  Name name{words(Part::Name), words(Part::First), words(Part::Second), false};
  if (!name.given.empty()) return name;
  name.given = words(Part::Whole);
  name.whole = true;
  return name;
}

std::vector<std::string> Name::all() const {
  std::vector<std::string> words = given;
  words.insert(words.end(), first.begin(), first.end());
  words.insert(words.end(), second.begin(), second.end());
  return words;
}

Agreement agree(const Name& one, const Name& other) {
  if (!one.isKnown() || !other.isKnown()) return Agreement::Unknown;
  if (!one.whole && !other.whole) return parts(one, other);
  const auto a = one.all();
  const auto b = other.all();
  if (!contained(a, b) || shared({one.given.front()}, b) + shared({other.given.front()}, a) == 0)
    return Agreement::No;
  return std::min(a.size(), b.size()) > 2 ? Agreement::Fully : Agreement::Partly;
}

}  // namespace fidaleon::search
