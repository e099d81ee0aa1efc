#include "search/Match.h"

#include <algorithm>
#include <bit>

namespace fidaleon::search {
namespace {

constexpr int COSTS[] = {0, 1, 2, 4, 6, 7, 20};  // of a Likeness
constexpr int BEGUN_BEFORE = 5;  // a word behind which another one was typed is rarely unfinished
constexpr int SWAPPED = 8;
constexpr int ONLY_SECOND = 5;   // the first surname is not the one that was typed
constexpr int FURTHER_NAME = 1;  // that was not typed
constexpr int NO_SECOND = 15;
constexpr int NAME_LEFT_OUT = 18;
constexpr int IN_A_PLACE = 10;
constexpr int TOGETHER = 40;
constexpr std::size_t MOST_WRONG_LETTERS = 1;

int costOf(Who who) {
  if (who <= Who::Bride) return 0;
  return who >= Who::Godfather ? 150 : 100;
}

using Words = unsigned;  // one bit for each word of the query

/// A word of a person's name.
struct NameWord {
  WordId word;
  Field field;
};

/// The names of one person, and what of the query is found among them.
class Person {
 public:
  Person(const Document& document, Who who, const std::vector<Meaning>& meanings) : who_(who) {
    for (const Part part : {Part::Name, Part::First, Part::Second, Part::Whole})
      for (const WordId word : document.numbers(of(who, part)))
        names_.push_back({word, of(who, part)});
    for (std::size_t i = 0; i < meanings.size(); ++i)
      for (const NameWord& name : names_)
        if (meanings[i].words.contains(name.word)) likes_ |= Words{1} << i;
  }

  bool isKnown() const { return !names_.empty(); }
  Who who() const { return who_; }
  /// The words that one of the names may be, taken each for itself.
  Words likes() const { return likes_; }
  bool has(Part part) const {
    return std::any_of(names_.begin(), names_.end(),
                       [&](const NameWord& n) { return partOf(n.field) == part; });
  }

  /// Each of the words on a name of its own, the nearest first; adds what is found.
  Words find(Words wanted, const std::vector<Meaning>& meanings, Match& match) const {
    std::vector<bool> taken(names_.size());
    Words found = 0;
    for (std::size_t i = 0; i < meanings.size(); ++i) {
      if (!(wanted >> i & 1)) continue;
      std::optional<std::size_t> best;
      Likeness how = Likeness::Letter;
      for (std::size_t n = 0; n < names_.size(); ++n) {
        const auto like = meanings[i].words.find(names_[n].word);
        if (taken[n] || like == meanings[i].words.end()) continue;
        if (best && like->second >= how) continue;
        best = n;
        how = like->second;
      }
      if (!best) continue;
      taken[*best] = true;
      found |= Words{1} << i;
      match.pieces.push_back({i, names_[*best].field, names_[*best].word, how});
      match.cost += COSTS[static_cast<int>(how)];
      if (how == Likeness::Begins && i + 1 < meanings.size()) match.cost += BEGUN_BEFORE;
    }
    weigh(taken, match);
    return found;
  }

 private:
  /// What was typed in another order, and what was not typed.
  void weigh(const std::vector<bool>& taken, Match& match) const {
    std::size_t first = SIZE_MAX, second = SIZE_MAX;
    for (const Match::Piece& piece : match.pieces) {
      if (piece.field == of(who_, Part::First)) first = std::min(first, piece.typed);
      if (piece.field == of(who_, Part::Second)) second = std::min(second, piece.typed);
    }
    match.swapped = match.swapped || (first != SIZE_MAX && second < first);
    match.cost += match.swapped ? SWAPPED : 0;
    match.cost += first == SIZE_MAX && second != SIZE_MAX ? ONLY_SECOND : 0;
    const auto isName = [&](std::size_t n) { return partOf(names_[n].field) == Part::Name; };
    bool anyName = false;
    int untyped = 0;
    for (std::size_t n = 0; n < names_.size(); ++n)
      if (isName(n)) (taken[n] ? anyName = true : (++untyped != 0));
    if (anyName) match.cost += untyped * FURTHER_NAME;
  }

  Who who_;
  std::vector<NameWord> names_;
  Words likes_ = 0;
};

class Matcher {
 public:
  Matcher(const Query& query, const std::vector<Meaning>& meanings, const Document& document)
      : query_(query), meanings_(meanings) {
    all_ = (Words{1} << meanings.size()) - 1;
    for (int who = 0; who < PERSONS; ++who) {
      Person person(document, static_cast<Who>(who), meanings);
      if (person.isKnown() && person.likes() != 0) persons_.push_back(std::move(person));
    }
    findPlaces(document);
  }

  std::optional<Match> take() {
    if (meanings_.empty()) return Match{};
    onePerson();
    if (!best_) together({});
    if (!best_ && meanings_.size() > 2) lackingAWord();
    if (!best_ && (places_ & all_) == all_) offer(withPlaces(all_, Match{}));
    return std::move(best_);
  }

 private:
  void findPlaces(const Document& document) {
    placeOf_.resize(meanings_.size());
    Words parishes = 0;
    for (std::size_t i = 0; i < meanings_.size(); ++i) {
      if (isIn(meanings_[i].places, document, i)) places_ |= Words{1} << i;
      if (isIn(meanings_[i].parishes, document, i) || isInWords(document, i))
        parishes |= Words{1} << i;
    }
    // "San Pedro", or a number: a parish has the names that people have.
    for (std::size_t i = 0; i < meanings_.size(); ++i) {
      const bool number = query_.words[i].text.find_first_of("0123456789") != std::string::npos;
      const Words beside = (parishes >> 1 | parishes << 1) >> i & 1;
      if (number || beside) places_ |= parishes & (Words{1} << i);
    }
    Words tail = all_;
    while ((places_ & tail) != tail) tail = (tail << 1) & all_;
    places_ &= tail;
  }

  bool isIn(const std::unordered_set<MarkId>& marks, const Document& document, std::size_t i) {
    for (const auto& [field, mark] : {std::pair{Field::Town, Mark::Town},
                                      {Field::Book, Mark::Book},
                                      {Field::Institution, Mark::Institution}})
      for (const std::uint32_t number : document.numbers(field))
        if (marks.contains(markId(mark, number))) {
          placeOf_[i] = {i, field, number, Likeness::Exact};
          return true;
        }
    return false;
  }

  bool isInWords(const Document& document, std::size_t i) {
    for (const WordId word : document.numbers(Field::Place)) {
      const auto like = meanings_[i].words.find(word);
      if (like == meanings_[i].words.end() || like->second > Likeness::Sound) continue;
      placeOf_[i] = {i, Field::Place, word, Likeness::Exact};
      return true;
    }
    return false;
  }

  Match withPlaces(Words words, Match match) const {
    for (std::size_t i = 0; i < meanings_.size(); ++i)
      if (words >> i & 1) match.pieces.push_back(placeOf_[i]);
    match.cost += IN_A_PLACE * std::popcount(words);
    return match;
  }

  void offer(Match match) {
    const auto wrong = std::count_if(match.pieces.begin(), match.pieces.end(),
                                     [](const auto& p) { return p.how == Likeness::Letter; });
    if (static_cast<std::size_t>(wrong) > MOST_WRONG_LETTERS) return;
    if (!best_ || match.cost < best_->cost) best_ = std::move(match);
  }

  void onePerson() {
    for (const Person& person : persons_) {
      if (((person.likes() | places_) & all_) != all_) continue;
      Match match;
      const Words left = all_ & ~person.find(all_, meanings_, match);
      match.cost += costOf(person.who());
      if ((left & ~places_) == 0) offer(withPlaces(left, std::move(match)));
    }
  }

  /// Some words that stand together, and whose they are.
  struct Runs {
    Match match;
    std::size_t at = 0;  // the first word that is nobody's yet
    unsigned used = 0;   // persons
    int persons = 0;
    int names = 0;     // runs that are a given name alone
    int surnames = 0;  // that are a first surname alone
  };

  /// "Ana, de Juan García y María López": neighbours in the query are one person's.
  void together(const Runs& so) {
    if (so.at == meanings_.size()) {
      const bool telling = so.surnames == 0 || so.surnames == so.persons;
      if (so.persons > 1 && telling && so.names < so.persons) offer(so.match);
      return;
    }
    if (so.persons < 3)
      for (std::size_t to = meanings_.size(); to > so.at; --to)
        for (const Person& person : persons_) giveTo(person, to, so);
    if (places_ >> so.at & 1) {
      Runs more = so;
      more.match = withPlaces(Words{1} << so.at, so.match);
      ++more.at;
      together(more);
    }
  }

  void giveTo(const Person& person, std::size_t to, const Runs& so) {
    const unsigned bit = 1U << static_cast<int>(person.who());
    const Words run = ((Words{1} << to) - 1) & ~((Words{1} << so.at) - 1);
    if ((so.used & bit) || (run & ~person.likes())) return;
    Match own;
    if (person.find(run, meanings_, own) != run) return;
    Runs more = so;
    if (to - so.at < 2) {
      const Part part = partOf(own.pieces.front().field);
      const bool couple = persons_.size() > 1 && person.who() <= Who::Bride;
      if (!couple || (part != Part::Name && part != Part::First)) return;
      ++(part == Part::Name ? more.names : more.surnames);
    }
    more.match.pieces.insert(more.match.pieces.end(), own.pieces.begin(), own.pieces.end());
    more.match.swapped = so.match.swapped || own.swapped;
    more.match.cost += own.cost + (so.persons == 0 ? 0 : TOGETHER);
    more.at = to;
    more.used |= bit;
    ++more.persons;
    together(more);
  }

  /// A second surname that the entry does not have, or one of several given names.
  void lackingAWord() {
    for (const Person& person : persons_) {
      if (person.who() > Who::Bride) continue;
      Match match;
      const Words left = all_ & ~person.find(all_, meanings_, match) & ~places_;
      if (std::popcount(left) != 1) continue;
      bool has[4] = {};
      for (const Match::Piece& piece : match.pieces)
        has[static_cast<int>(partOf(piece.field))] = true;
      match.missing = static_cast<std::size_t>(std::countr_zero(left));
      if (!person.has(Part::Second) && has[0] && has[1]) {
        match.withoutSecond = true;
        match.cost += NO_SECOND;
      } else if (has[0] && has[1] && has[2]) {
        match.cost += NAME_LEFT_OUT;
      } else {
        continue;
      }
      if (query_.words[*match.missing].text.size() > 1) offer(std::move(match));
    }
  }

  const Query& query_;
  const std::vector<Meaning>& meanings_;
  Words all_ = 0;
  std::vector<Person> persons_;
  Words places_ = 0;
  std::vector<Match::Piece> placeOf_;
  std::optional<Match> best_;
};

}  // namespace

bool Match::isExact() const {
  return !missing && !swapped && !pieces.empty() &&
         std::all_of(pieces.begin(), pieces.end(), [](const Piece& p) {
           return p.how <= Likeness::WrittenOut && isName(p.field) && whoOf(p.field) <= Who::Bride;
         });
}

std::optional<Match> match(const Query& query, const std::vector<Meaning>& meanings,
                           const Document& document) {
  return Matcher(query, meanings, document).take();
}

}  // namespace fidaleon::search
