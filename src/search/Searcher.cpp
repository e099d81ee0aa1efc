#include "search/Searcher.h"

#include <algorithm>
#include <tuple>

#include "search/Reasons.h"
#include "search/Source.h"
#include "text/Utf8.h"

namespace fidaleon::search {
namespace {

constexpr std::size_t LOOKED_AT = 600;  // documents of one round
constexpr std::size_t ENOUGH = 20;      // with so many, no letter is taken for wrong
constexpr std::size_t PLACE_BEGUN = 4;  // letters
constexpr std::size_t MOST_WORDS = 8;
constexpr std::size_t KEPT_SETS = 48;

}  // namespace

/// Looks at sets of documents one after the other, at none twice.
class Searcher::Round {
 public:
  Round(Searcher& searcher, const Query& query) : searcher_(searcher), query_(query) {}

  void mean(Vocabulary::Letters letters) {
    letters_ = letters;
    seen_ = taken_;
    meanings_.clear();
    for (const Word& word : query_.words)
      meanings_.push_back(searcher_.setsOf(word, letters).meaning);
  }

  /// Those that are in a set of each word.
  void lookAt(const DocumentSet& limits, DocumentSet Sets::*which) {
    DocumentSet set = limits;
    for (const Word* word : telling()) set &= searcher_.setsOf(*word, letters_).*which;
    lookAt(std::move(set));
  }

  /// Those that lack one of the words.
  void lookAtLacking(const DocumentSet& limits) {
    const auto words = telling();
    if (words.size() < 3) return;
    for (std::size_t left = 0; left < words.size(); ++left) {
      DocumentSet set = limits;
      for (std::size_t i = 0; i < words.size(); ++i)
        if (i != left) set &= searcher_.setsOf(*words[i], letters_).subject;
      lookAt(std::move(set));
    }
  }

  void lookAt(DocumentSet set) {
    set -= seen_;
    seen_ |= set;
    const std::vector<std::int64_t> numbers = set.last(LOOKED_AT + 1);
    more = more || numbers.size() > LOOKED_AT;
    for (const std::int64_t number : numbers) {
      Document document = searcher_.index_.document(number);
      if (document.key == 0) continue;
      if (!isOnTheDay(document)) continue;
      auto found = match(query_, meanings_, document);
      if (!found) continue;
      taken_.add(number);
      candidates.push_back({std::move(*found), std::move(document)});
    }
  }

  std::vector<Candidate> candidates;
  bool more = false;

 private:
  /// A single letter is in too many names to be looked for, unless there is nothing else.
  std::vector<const Word*> telling() const {
    std::vector<const Word*> words;
    for (const Word& word : query_.words)
      if (word.text.size() > 1) words.push_back(&word);
    return words;
  }

  bool isOnTheDay(const Document& document) const {
    if (query_.day == 0) return true;
    for (const Field field : {Field::Day, Field::Born})
      for (const std::uint32_t day : document.numbers(field))
        if (day == static_cast<std::uint32_t>(query_.day)) return true;
    return false;
  }

  Searcher& searcher_;
  const Query& query_;
  Vocabulary::Letters letters_ = Vocabulary::Letters::AsTyped;
  std::vector<Meaning> meanings_;
  DocumentSet seen_{searcher_.end_};   // in this meaning
  DocumentSet taken_{searcher_.end_};  // as candidates
};

Searcher::Searcher(store::Connection& parish, IndexFile& index) : parish_(parish), index_(index) {}

const Places& Searcher::places() {
  if (!placesRead_) {
    sets_.clear();
    places_.read(parish_);
    placesRead_ = true;
  }
  return places_;
}

void Searcher::renewIfWritten() {
  const std::int64_t version = index_.version();
  if (version == version_) return;
  version_ = version;
  index_.learn(words_);
  end_ = index_.end();
  sets_.clear();
}

const Searcher::Sets& Searcher::setsOf(const Word& word, Vocabulary::Letters letters) {
  const std::string name = word.text + (word.typed == Vocabulary::Typed::Whole ? " " : "*") +
                           (letters == Vocabulary::Letters::AsTyped ? "" : "?");
  const auto [at, isNew] = sets_.try_emplace(name);
  Sets& sets = at->second;
  if (!isNew) return sets;
  sets.exact = sets.subject = sets.any = DocumentSet(end_);
  sets.meaning.words = words_.like(word.text, word.typed, letters);
  for (const auto& [id, how] : sets.meaning.words) {
    if (word.text.size() < 2) break;
    index_.add(how <= Likeness::WrittenOut ? sets.exact : sets.subject,
               markId(Mark::OfSubject, id));
    index_.add(sets.any, markId(Mark::OfOthers, id));
    if (how <= Likeness::Sound) index_.add(sets.any, markId(Mark::Place, id));
  }
  sets.subject |= sets.exact;
  sets.any |= sets.subject;
  const auto typed = word.text.size() < PLACE_BEGUN ? Vocabulary::Typed::Whole : word.typed;
  const auto addPlaces = [&](Places::By by, std::unordered_set<MarkId>& to) {
    for (const MarkId mark : places().like(word.text, typed, by)) {
      to.insert(mark);
      index_.add(sets.any, mark);
    }
  };
  addPlaces(Places::By::Towns, sets.meaning.places);
  addPlaces(Places::By::Books, sets.meaning.places);
  addPlaces(Places::By::Parishes, sets.meaning.parishes);
  return sets;
}

DocumentSet Searcher::limits(const Query& query) {
  DocumentSet limits = DocumentSet::all(end_);
  const auto only = [&](const std::vector<MarkId>& marks) {
    DocumentSet set(end_);
    for (const MarkId mark : marks) index_.add(set, mark);
    limits &= set;
  };
  const auto kind = [](Kinds k) { return markId(Mark::Kind, static_cast<std::uint32_t>(k)); };
  std::vector<MarkId> marks;
  for (int year = query.fromYear; year != 0 && year <= query.toYear; ++year)
    marks.push_back(markId(Mark::Year, static_cast<std::uint32_t>(year)));
  if (!marks.empty()) only(marks);
  marks.clear();
  for (const Kinds k : query.kinds) marks.push_back(kind(k));
  if (!marks.empty()) only(marks);
  if (query.onlyRequests) only({kind(Kinds::Request)});
  if (query.onlyAnnulled) only({kind(Kinds::Annulled)});
  if (query.folio != 0) only({markId(Mark::Folio, query.folio)});
  for (const std::string& word : query.book)
    only(places().like(word, Vocabulary::Typed::Whole, Places::By::Books));
  return limits;
}

std::vector<Searcher::Candidate> Searcher::candidates(const Query& query, std::size_t most,
                                                      bool& more) {
  const DocumentSet within = limits(query);
  Round round(*this, query);
  round.mean(Vocabulary::Letters::AsTyped);
  if (query.words.empty()) {
    round.lookAt(within);
  } else {
    for (DocumentSet Sets::*which : {&Sets::exact, &Sets::subject, &Sets::any})
      if (round.candidates.size() < most) round.lookAt(within, which);
    if (round.candidates.size() < ENOUGH) round.lookAtLacking(within);
    if (round.candidates.size() < ENOUGH) {
      round.mean(Vocabulary::Letters::OneWrong);
      round.lookAt(within, &Sets::subject);
      if (round.candidates.size() < ENOUGH) round.lookAt(within, &Sets::any);
    }
  }
  more = round.more;
  return std::move(round.candidates);
}

Found Searcher::find(std::string_view typed, std::size_t most) {
  const Query query = readQuery(typed);
  Found found = find(query, most);
  const bool kinds = !query.kinds.empty() || query.onlyRequests || query.onlyAnnulled;
  if (!found.hits.empty() || !kinds) return found;
  return find(readQuery(typed, true), most);
}

Found Searcher::find(const Query& asked, std::size_t most) {
  const IndexFile::Reading together(index_);  // one lock for all documents
  renewIfWritten();
  if (sets_.size() > KEPT_SETS) sets_.clear();
  places();
  Query query = asked;
  if (query.words.size() > MOST_WORDS) query.words.resize(MOST_WORDS);
  const bool tooShort = query.words.size() == 1 && query.words.front().text.size() < 2;
  if (query.empty() || tooShort) return {{}, false, false, {}};
  bool more = false;
  std::vector<Candidate> found = candidates(query, most, more);
  Found result = shown(query, std::move(found), most);
  result.more = result.more || more;
  return result;
}

Found Searcher::shown(const Query& query, std::vector<Candidate> candidates, std::size_t most) {
  std::stable_sort(
      candidates.begin(), candidates.end(),
      [](const Candidate& a, const Candidate& b) { return a.match.cost < b.match.cost; });
  Found found;
  found.more = candidates.size() > most;
  if (found.more) candidates.resize(most);
  std::map<Register, std::vector<std::int32_t>> keys;
  for (const Candidate& c : candidates) keys[c.document.in].push_back(c.document.key);
  std::map<std::pair<Register, std::int32_t>, Entry> entries;
  for (const auto& [in, wanted] : keys)
    readKeys(parish_, sourceOf(in), wanted, Extent::Searched, [&](Entry& entry) {
      entries.emplace(std::pair{entry.in, entry.key}, entry);
    });
  for (const Candidate& c : candidates) {
    const std::pair which{c.document.in, c.document.key};
    const auto at = entries.find(which);
    if (at == entries.end() || at->second.digest != c.document.digest) {
      found.stale.push_back(which);
      continue;
    }
    const Entry& entry = at->second;
    if (!query.number.empty() && entry.text(Field::Number) != query.number) continue;
    Hit hit = hitOf(entry, places_);
    hit.exact = c.match.isExact();
    hit.why = reasonOf(query, c.match, entry, words_, places_);
    hit.cost = c.match.cost;
    found.hits.push_back(std::move(hit));
  }
  std::stable_sort(found.hits.begin(), found.hits.end(), [](const Hit& a, const Hit& b) {
    return std::tuple(a.cost, text::searchKey(a.name), a.day) <
           std::tuple(b.cost, text::searchKey(b.name), b.day);
  });
  return found;
}

}  // namespace fidaleon::search
