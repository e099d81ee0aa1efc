#include "search/Family.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <tuple>

#include "search/Names.h"
#include "search/Reasons.h"
#include "search/Source.h"

namespace fidaleon::search {
namespace {

constexpr std::size_t LOOKED_AT = 60;
constexpr int OLDEST = 115;  // years
constexpr int YOUNGEST_SPOUSE = 12;
constexpr int MOST_BETWEEN = 35;  // years between a wedding or a sibling and a birth
constexpr std::size_t MOST_DOUBTFUL = 12;

int yearOf(std::int32_t day) {
  return day / 10000;
}

std::string shown(std::int32_t day) {
  const auto two = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  return two(day % 100) + "/" + two(day / 100 % 100) + "/" + std::to_string(yearOf(day));
}

/// What an entry says of one of those whom it is about.
struct Person {
  const Entry* entry = nullptr;
  Who who = Who::Self;
  Name name, father, mother, spouse;
  std::int32_t born = 0;
  std::int32_t baptised = 0;
  std::string book, folio, number;  // of the baptism

  Person(const Entry& of, Who which, const Places& places) : entry(&of), who(which) {
    const bool bride = which == Who::Bride;
    name = Name::of(of, which);
    father = Name::of(of, bride ? Who::BridesFather : Who::Father);
    mother = Name::of(of, bride ? Who::BridesMother : Who::Mother);
    if (of.in == Register::Marriage) spouse = Name::of(of, bride ? Who::Self : Who::Bride);
    if (of.in == Register::Death) spouse = Name::of(of, Who::Spouse);
    born = of.day(bride ? Field::BrideBorn : Field::Born);
    baptised = of.day(bride ? Field::BrideBaptised : Field::Baptised);
    book = of.text(bride ? Field::BrideBaptismBook : Field::BaptismBook);
    folio = of.text(bride ? Field::BrideBaptismFolio : Field::BaptismFolio);
    number = of.text(bride ? Field::BrideBaptismNumber : Field::BaptismNumber);
    if (of.in != Register::Baptism) return;
    baptised = of.day(Field::Day);
    book = places.book(of.in, of.number(Field::Book));
    folio = of.text(Field::Folio);
    number = of.text(Field::Number);
  }

  /// When the person lived, as far as the entry says.
  std::int32_t day() const { return entry->day(Field::Day); }
  std::int32_t begin() const { return born != 0 ? born : baptised; }
};

/// Collects what speaks for a link and against it.
class Evidence {
 public:
  void speaks(const std::string& what) { add(what, reasons_), sure_ = true; }
  void fits(const std::string& what) { add(what, reasons_); }
  void contradicts(const std::string& what) { add(what, doubts_); }

  bool isSure() const { return sure_ && doubts_.empty(); }
  bool isContradicted() const { return !sure_ && !doubts_.empty(); }
  std::string reason() const {
    std::string all = reasons_;
    if (!sure_) add("nada más lo confirma", all);
    if (!doubts_.empty()) add("pero " + doubts_, all);
    return all;
  }

 private:
  static void add(const std::string& what, std::string& to) {
    to += (to.empty() ? "" : "; ") + what;
  }
  std::string reasons_, doubts_;
  bool sure_ = false;
};

void compareDays(const char* what, std::int32_t a, std::int32_t b, Evidence& evidence) {
  if (a == 0 || b == 0) return;
  if (a == b)
    evidence.speaks(std::string("la misma fecha de ") + what + ", " + shown(a));
  else
    evidence.contradicts(std::string("la fecha de ") + what + " es otra: " + shown(b));
}

void compareParents(const Person& a, const Person& b, Evidence& evidence) {
  const Agreement father = agree(a.father, b.father);
  const Agreement mother = agree(a.mother, b.mother);
  if (father == Agreement::No || mother == Agreement::No)
    return evidence.contradicts(father == mother          ? "los padres son otros"
                                : father == Agreement::No ? "el padre es otro"
                                                          : "la madre es otra");
  if (father != Agreement::Unknown && mother != Agreement::Unknown)
    return evidence.speaks("los mismos padres");
  if (father == Agreement::Fully) return evidence.speaks("el mismo padre");
  if (mother == Agreement::Fully) return evidence.speaks("la misma madre");
}

bool isPossible(const Person& a, const Person& b) {
  std::int32_t begin = std::max(a.begin(), b.begin());
  for (const Person* p : {&a, &b}) {
    if (p->day() == 0) continue;
    const int age = yearOf(p->day()) - yearOf(begin);
    if (begin != 0 && (age < 0 || age > OLDEST)) return false;
    if (begin != 0 && p->entry->in == Register::Marriage && age < YOUNGEST_SPOUSE) return false;
  }
  const Person& dead = a.entry->in == Register::Death ? a : b;
  const Person& other = &dead == &a ? b : a;
  if (dead.entry->in != Register::Death || dead.day() == 0 || other.day() == 0) return true;
  return other.day() <= dead.day() && yearOf(dead.day()) - yearOf(other.day()) <= OLDEST;
}

/// Both are the same person.
std::optional<Evidence> samePerson(const Person& a, const Person& b) {
  const Agreement names = agree(a.name, b.name);
  if (names == Agreement::No || names == Agreement::Unknown || !isPossible(a, b)) return {};
  const bool once = a.entry->in == b.entry->in && a.entry->in != Register::Marriage;
  Evidence evidence;
  evidence.fits(names == Agreement::Fully ? "el nombre y los apellidos" : "parte del nombre");
  compareDays("nacimiento", a.born, b.born, evidence);
  compareDays("bautismo", a.baptised, b.baptised, evidence);
  if (!a.book.empty() && !a.folio.empty() && a.book == b.book && a.folio == b.folio &&
      a.number == b.number)
    evidence.speaks("cita la partida de bautismo: libro " + a.book + ", folio " + a.folio);
  compareParents(a, b, evidence);
  const Agreement spouse = agree(a.spouse, b.spouse);
  if (spouse == Agreement::Fully || spouse == Agreement::Partly)
    evidence.speaks("el mismo cónyuge");
  if (spouse == Agreement::No && once) return {};
  if (evidence.isContradicted()) return {};
  return evidence;
}

/// Father and mother of one are those two.
std::optional<Evidence> sameCouple(const Name& father, const Name& mother, const Name& man,
                                   const Name& woman, const char* what) {
  const Agreement fathers = agree(father, man);
  const Agreement mothers = agree(mother, woman);
  const auto isSo = [](Agreement a) { return a == Agreement::Partly || a == Agreement::Fully; };
  if (!isSo(fathers) || !isSo(mothers)) return {};
  Evidence evidence;
  if (fathers == Agreement::Fully && mothers == Agreement::Fully)
    evidence.speaks(std::string(what) + ", con sus apellidos");
  else
    evidence.fits(std::string(what) + ", aunque no constan todos sus apellidos");
  return evidence;
}

class Family {
 public:
  Family(store::Connection& parish, Searcher& searcher) : parish_(parish), searcher_(searcher) {}

  FamilyPage page(const Entry& base, Who who) {
    FamilyPage page;
    const Person self(base, who, searcher_.places());
    page.name = base.name(who);
    std::vector<Person> own{self};
    add(Kinship::Own, base, true, "la partida de la que se parte");
    entries_.push_back(base);
    findOwn(self, own);
    doubtWhatFollowsADeath(base);
    const Person& known = bestOf(own);
    findParentsWedding(known);
    findSiblings(known);
    for (const Person& p : own)
      if (p.entry->in == Register::Marriage) findChildren(p);
    page.kin = take();
    return page;
  }

 private:
  using Link = std::function<std::optional<Evidence>(const Entry&)>;

  void add(Kinship kinship, const Entry& entry, bool sure, const std::string& reason) {
    if (!seen_.insert({entry.in, entry.key}).second) return;
    kin_.push_back({kinship, hitOf(entry, searcher_.places()), sure, reason});
  }

  /// The entries of those kinds that have the words, as far as they are linked.
  void find(Kinship kinship, std::vector<std::string> words, std::vector<Kinds> kinds,
            const Link& link) {
    if (words.size() < 2) return;
    Query query;
    for (std::string& word : words)
      query.words.push_back({std::move(word), Vocabulary::Typed::Whole});
    query.kinds = std::move(kinds);
    std::map<Register, std::vector<std::int32_t>> keys;
    for (const Hit& hit : searcher_.find(query, LOOKED_AT).hits) keys[hit.in].push_back(hit.key);
    for (const auto& [in, wanted] : keys)
      readKeys(parish_, sourceOf(in), wanted, Extent::Whole, [&](const Entry& entry) {
        if (seen_.contains({entry.in, entry.key})) return;
        if (const auto evidence = link(entry))
          add(kinship, entry, evidence->isSure(), evidence->reason());
      });
  }

  void findOwn(const Person& self, std::vector<Person>& own) {
    std::vector<std::string> words = self.name.all();
    find(Kinship::Own, std::move(words), {}, [&](const Entry& entry) {
      std::optional<Evidence> best;
      for (const Who who : {Who::Self, Who::Bride}) {
        if (who == Who::Bride && entry.in != Register::Marriage) break;
        const Person other(entry, who, searcher_.places());
        auto evidence = samePerson(self, other);
        if (!evidence || (best && !evidence->isSure())) continue;
        best = std::move(evidence);
        if (!best->isSure()) continue;
        entries_.push_back(entry);
        own.emplace_back(entries_.back(), who, searcher_.places());
      }
      return best;
    });
  }

  /// Each may be clear by itself, but not both of them.
  void doubtWhatFollowsADeath(const Entry& base) {
    const auto doubt = [&](Kin& kin, const char* why) {
      if (kin.hit.in == base.in && kin.hit.key == base.key) return;
      if (kin.reason.find(why) == std::string::npos) kin.reason += std::string("; pero ") + why;
      kin.sure = false;
    };
    for (Kin& death : kin_)
      for (Kin& kin : kin_)
        if (death.hit.in == Register::Death && death.hit.day != 0 && kin.hit.day > death.hit.day) {
          doubt(kin, "es posterior a la defunción");
          doubt(death, "hay registros posteriores");
        }
  }

  /// The one that says most of the parents.
  static const Person& bestOf(const std::vector<Person>& own) {
    return *std::max_element(own.begin(), own.end(), [](const Person& a, const Person& b) {
      const auto said = [](const Person& p) {
        return p.father.all().size() + p.mother.all().size();
      };
      return said(a) < said(b);
    });
  }

  static std::vector<std::string> couple(const Name& one, const Name& other) {
    std::vector<std::string> words;
    for (const Name* name : {&one, &other}) {
      std::vector<std::string> all = name->all();
      if (!name->whole && name->given.size() > 1)  // of several given names the first
        all.erase(all.begin() + 1, all.begin() + static_cast<std::ptrdiff_t>(name->given.size()));
      words.insert(words.end(), all.begin(), all.end());
    }
    return words;
  }

  void findParentsWedding(const Person& self) {
    if (!self.father.isKnown() || !self.mother.isKnown()) return;
    const std::int32_t told = self.entry->day(Field::ParentsWedding);
    find(Kinship::ParentsWedding, couple(self.father, self.mother), {Kinds::Marriage},
         [&](const Entry& entry) {
           auto evidence = sameCouple(self.father, self.mother, Name::of(entry, Who::Self),
                                      Name::of(entry, Who::Bride), "se casan el padre y la madre");
           if (evidence) compareDays("matrimonio", told, entry.day(Field::Day), *evidence);
           const bool near = isNear(entry.day(Field::Day), self.begin());
           return near ? evidence : std::nullopt;
         });
  }

  static bool isNear(std::int32_t a, std::int32_t b) {
    return a == 0 || b == 0 || std::abs(yearOf(a) - yearOf(b)) <= MOST_BETWEEN;
  }

  void findBaptisms(Kinship kinship, const Name& father, const Name& mother, std::int32_t near,
                    const char* what) {
    find(kinship, couple(father, mother), {Kinds::Baptism}, [&](const Entry& entry) {
      const Person child(entry, Who::Self, searcher_.places());
      return isNear(child.begin(), near)
                 ? sameCouple(child.father, child.mother, father, mother, what)
                 : std::nullopt;
    });
  }

  void findSiblings(const Person& self) {
    if (self.father.isKnown() && self.mother.isKnown())
      findBaptisms(Kinship::Sibling, self.father, self.mother, self.begin(), "los mismos padres");
  }

  void findChildren(const Person& spouse) {
    const bool bride = spouse.who == Who::Bride;
    findBaptisms(Kinship::Child, bride ? spouse.spouse : spouse.name,
                 bride ? spouse.name : spouse.spouse, spouse.day(),
                 "los padres son los de esta boda");
  }

  /// In order; of what is doubtful no more than can be looked through.
  std::vector<Kin> take() {
    std::stable_sort(kin_.begin(), kin_.end(), [](const Kin& a, const Kin& b) {
      return std::tuple(a.kinship, !a.sure, a.hit.day) < std::tuple(b.kinship, !b.sure, b.hit.day);
    });
    std::size_t doubtful = 0;
    std::erase_if(kin_, [&](const Kin& k) { return !k.sure && ++doubtful > MOST_DOUBTFUL; });
    return std::move(kin_);
  }

  store::Connection& parish_;
  Searcher& searcher_;
  std::set<std::pair<Register, std::int32_t>> seen_;
  std::deque<Entry> entries_;  // they stay where they are
  std::vector<Kin> kin_;
};

}  // namespace

std::vector<FamilyPage> familyOf(store::Connection& parish, Searcher& searcher, Register in,
                                 std::int32_t key) {
  std::vector<FamilyPage> pages;
  std::optional<Entry> base;
  readKeys(parish, sourceOf(in), {key}, Extent::Whole, [&](Entry& entry) { base = entry; });
  if (!base) return pages;
  for (const Who who : {Who::Self, Who::Bride})
    if (Name::of(*base, who).isKnown()) pages.push_back(Family(parish, searcher).page(*base, who));
  return pages;
}

}  // namespace fidaleon::search
