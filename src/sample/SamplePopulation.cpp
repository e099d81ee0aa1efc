#include "sample/SamplePopulation.h"

#include <algorithm>
#include <deque>

#include "sample/SampleDice.h"
#include "sample/SampleNames.h"
#include "sample/SampleWeddings.h"
#include "text/Utf8.h"

namespace fidaleon::app::sample {
namespace {

constexpr int FOUNDERS = 12;
constexpr int YEARS_BETWEEN_FOUNDERS = 2;
// The bishop, or somebody for him, comes every so many years and confirms all who are of age.
constexpr int FIRST_VISIT = 1940;
constexpr int YEARS_BETWEEN_VISITS = 4;

struct Confirmer {
  std::string_view name;
  std::string_view office;
};
constexpr std::array<Confirmer, 6> CONFIRMERS{
    {{"Mons. Casimiro Baltanás Lucio", "Obispo"},
     {"Mons. Laureano Espinosa Tejedor", "Obispo"},
     {"Mons. Fidel Arrizabalaga Monzón", "Obispo auxiliar"},
     {"D. Heliodoro Cansado Vizcaíno", "Vicario episcopal"},
     {"Mons. Aurelio Quintanilla Salas", "Obispo"},
     {"D. Prudencio Tamames Ortiz", "Vicario episcopal"}}};

constexpr std::array<std::string_view, 10> CAUSES{
    {"parada cardiorrespiratoria", "neumonía", "insuficiencia cardíaca", "ancianidad",
     "enfermedad de corazón", "derrame cerebral", "bronquitis crónica", "cáncer",
     "insuficiencia renal", "accidente"}};

text::Date visitOf(int year) {
  return {year, 4 + year % 3, 1 + year * 7 % 28};
}

/// The first visit from that day on.
text::Date visitAfter(const text::Date& day) {
  int year = FIRST_VISIT;
  while (visitOf(year) < day) year += YEARS_BETWEEN_VISITS;
  return visitOf(year);
}

class Builder {
 public:
  Builder(std::uint32_t seed, int home, const std::string& parish, const text::Date& last)
      : dice_(seed), home_(home), parish_(parish), last_(last) {}

  Population run() {
    for (int i = 0; i < FOUNDERS; ++i) found(i);
    while (!waiting_.empty()) {
      const int couple = waiting_.front();
      waiting_.pop_front();
      haveChildren(couple);
    }
    std::stable_sort(made_.baptisms.begin(), made_.baptisms.end(),
                     [](const Baptism& a, const Baptism& b) { return a.day < b.day; });
    confirm();
    bury();
    makeWeddings(made_, home_, parish_, last_);
    return std::move(made_);
  }

 private:
  Person stranger(bool woman, int year) {
    Person p;
    p.woman = woman;
    p.name = givenName(woman, year);
    p.first = dice_.pick(SURNAMES);
    do p.second = dice_.pick(SURNAMES);
    while (p.second == p.first);
    p.town = dice_.oneIn(2) ? home_ : dice_.upTo(static_cast<int>(TOWNS.size()));
    return p;
  }

  std::string givenName(bool woman, int year) { return dice_.givenName(woman, year); }

  std::string ancestor(bool woman, const std::string& first) {
    return givenName(woman, 1900) + " " + first + " " + dice_.pick(SURNAMES);
  }

  void found(int position) {
    const text::Date wedding{FIRST_YEAR - 1 + position * YEARS_BETWEEN_FOUNDERS, 1 + dice_.upTo(12),
                             1 + dice_.upTo(28)};
    Person father = stranger(false, 1900);
    Person mother = stranger(true, 1900);
    // The first founders carry the names that the whole valley descends from.
    father.first = std::string(SURNAMES[static_cast<std::size_t>(position)]);
    if (father.second == father.first) father.second = "Arribas";
    marry(father, mother, nullptr, nullptr, wedding);
  }

  void grandparents(Couple& c, const Couple* his, const Couple* hers) {
    c.fathersFather = his ? his->father.full() : ancestor(false, c.father.first);
    c.fathersMother = his ? his->mother.full() : ancestor(true, c.father.second);
    c.fathersTown = his ? his->father.town : c.father.town;
    c.mothersFather = hers ? hers->father.full() : ancestor(false, c.mother.first);
    c.mothersMother = hers ? hers->mother.full() : ancestor(true, c.mother.second);
    c.mothersTown = hers ? hers->father.town : c.mother.town;
  }

  void marry(const Person& father, const Person& mother, const Couple* his, const Couple* hers,
             const text::Date& wedding) {
    Couple c;
    c.father = father;
    c.mother = mother;
    grandparents(c, his, hers);
    c.trade = dice_.pick(TRADES);
    c.street = dice_.pick(STREETS) + ", " + std::to_string(dice_.between(1, 48));
    c.wedding = wedding;
    const bool here = !dice_.oneIn(4);
    c.weddingParish = here ? parish_ : dice_.pick(PARISHES);
    c.weddingTown = here ? home_ : mother.town;
    made_.couples.push_back(c);
    waiting_.push_back(static_cast<int>(made_.couples.size()) - 1);
  }

  void haveChildren(int couple) {
    text::Date birth = made_.couples[static_cast<std::size_t>(couple)].wedding;
    const int most = birth.year < 1955 ? 4 : birth.year < 1985 ? 3 : 2;
    const int count = dice_.between(1, most);
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) {
      birth = daysAfter(birth, dice_.between(400, 1100));
      const text::Date day =
          daysAfter(birth, birth.year < 1975 ? dice_.between(2, 12) : dice_.between(30, 180));
      if (day > last_) return;
      baptise(couple, birth, day, names);
    }
  }

  void baptise(int couple, const text::Date& birth, const text::Date& day,
               std::vector<std::string>& names) {
    const Couple parents = made_.couples[static_cast<std::size_t>(couple)];
    Baptism b;
    b.girl = dice_.oneIn(2);
    do b.name = givenName(b.girl, birth.year);
    while (std::find(names.begin(), names.end(), b.name) != names.end());
    names.push_back(b.name);
    b.birth = birth;
    b.day = day;
    b.couple = couple;
    if (!dice_.oneIn(3)) {
      const std::string hour = std::to_string(dice_.between(10, 23));
      b.hour = hour + (dice_.oneIn(2) ? ":30" : ":00");
    }
    sponsors(b, parents);
    b.minister = ministerOf(day.year);
    grow(b, parents);
    made_.baptisms.push_back(b);
  }

  void sponsors(Baptism& b, const Couple& parents) {
    b.godfather = givenName(false, b.birth.year - 35) + " " +
                  (dice_.oneIn(2) ? parents.father.first : parents.mother.first) + " " +
                  dice_.pick(SURNAMES);
    b.godmother = givenName(true, b.birth.year - 35) + " " +
                  (dice_.oneIn(2) ? parents.mother.first : parents.father.first) + " " +
                  dice_.pick(SURNAMES);
  }

  // What the register learns later: confirmation, marriage, and whether the entry was a mistake.
  void grow(Baptism& b, const Couple& parents) {
    if (dice_.oneIn(37)) {
      b.annulled = true;
      b.remarks = "Partida anulada por haberse inscrito dos veces.";
      return;
    }
    const text::Date grown{b.day.year + dice_.between(12, 16), dice_.between(4, 6),
                           dice_.between(1, 28)};
    const text::Date confirmed = visitAfter(grown);
    if (grown <= last_ && !dice_.oneIn(4) && confirmed <= last_) {
      b.confirmed = confirmed;
      b.marginalNotes =
          "Recibió la Confirmación en esta parroquia el día " + text::toShort(confirmed) + ".";
    }
    const text::Date wedding{b.day.year + dice_.between(23, 32), 1 + dice_.upTo(12),
                             dice_.between(1, 28)};
    if (wedding > last_ || dice_.oneIn(3)) return;
    settle(b, parents, wedding);
  }

  void settle(Baptism& b, const Couple& parents, const text::Date& wedding) {
    Person own{b.name, parents.father.first, parents.mother.first, home_, b.girl};
    Person spouse = stranger(!b.girl, wedding.year - 26);
    if (spouse.first == own.first) spouse.first = "Carrasco";
    if (b.girl)
      marry(spouse, own, nullptr, &parents, wedding);
    else
      marry(own, spouse, &parents, nullptr, wedding);
    const Couple& c = made_.couples.back();
    b.ownCouple = static_cast<int>(made_.couples.size()) - 1;
    if (!b.marginalNotes.empty()) b.marginalNotes += "\r\n";
    b.marginalNotes += "Contrajo matrimonio con " + spouse.full() + " en la parroquia " +
                       c.weddingParish + " de " +
                       std::string(TOWNS[static_cast<std::size_t>(c.weddingTown)].name) +
                       " el día " + text::toShort(wedding) + ".";
  }

  // Those who were baptised here, and others who live here or come from the villages around.
  void confirm() {
    for (int year = FIRST_VISIT; visitOf(year) <= last_; year += YEARS_BETWEEN_VISITS) {
      std::vector<Confirmation> group;
      for (std::size_t i = 0; i < made_.baptisms.size(); ++i)
        if (made_.baptisms[i].confirmed == visitOf(year)) group.push_back(fromHere(i));
      for (int n = dice_.between(12, 22); n > 0; --n) group.push_back(fromElsewhere(year));
      std::stable_sort(group.begin(), group.end(),
                       [](const Confirmation& a, const Confirmation& b) {
                         return text::compare(a.person.first, b.person.first) < 0;
                       });
      const Confirmer& who =
          CONFIRMERS[static_cast<std::size_t>(year / YEARS_BETWEEN_VISITS) % CONFIRMERS.size()];
      for (Confirmation& c : group) {
        c.day = visitOf(year);
        c.minister = who.name;
        c.office = who.office;
        c.sponsor = givenName(c.person.woman, year - 35) + " " + c.person.first + " " +
                    dice_.pick(SURNAMES);
        c.annulled = dice_.oneIn(90);
        made_.confirmations.push_back(c);
      }
    }
  }

  Confirmation fromHere(std::size_t position) {
    const Baptism& b = made_.baptisms[position];
    const Couple& parents = made_.couples[static_cast<std::size_t>(b.couple)];
    Confirmation c;
    c.person = {b.name, parents.father.first, parents.mother.first, home_, b.girl};
    c.baptism = static_cast<int>(position);
    c.birth = b.birth;
    c.baptised = b.day;
    c.father = parents.father.full();
    c.mother = parents.mother.full();
    c.street = parents.street;
    c.baptismParish = parish_;
    c.baptismTown = home_;
    return c;
  }

  Confirmation fromElsewhere(int year) {
    Confirmation c;
    c.person = stranger(dice_.oneIn(2), year - 15);
    c.birth = {year - dice_.between(13, 17), dice_.between(1, 12), dice_.between(1, 28)};
    c.baptised = daysAfter(c.birth, dice_.between(10, 90));
    c.father = ancestor(false, c.person.first);
    c.mother = ancestor(true, c.person.second);
    c.street = dice_.pick(STREETS) + ", " + std::to_string(dice_.between(1, 48));
    c.baptismParish = dice_.pick(PARISHES);
    c.baptismTown = c.person.town;
    return c;
  }

  // Those who were baptised here, and their husbands and wives from elsewhere.
  void bury() {
    std::vector<bool> fromHere(made_.couples.size() * 2);
    for (std::size_t i = 0; i < made_.baptisms.size(); ++i) {
      const Baptism& b = made_.baptisms[i];
      if (b.annulled) continue;
      const Couple& parents = made_.couples[static_cast<std::size_t>(b.couple)];
      Burial d;
      d.person = {b.name, parents.father.first, parents.mother.first, home_, b.girl};
      d.baptism = static_cast<int>(i);
      d.couple = b.ownCouple;
      d.father = parents.father.full();
      d.mother = parents.mother.full();
      if (b.ownCouple >= 0) fromHere[static_cast<std::size_t>(b.ownCouple) * 2 + b.girl] = true;
      die(d, b.birth, b.confirmed);
    }
    for (std::size_t c = 0; c < made_.couples.size(); ++c)
      for (const Person* p : {&made_.couples[c].father, &made_.couples[c].mother}) {
        if (fromHere[c * 2 + p->woman]) continue;
        Burial d;
        d.person = *p;
        d.couple = static_cast<int>(c);
        d.father = ancestor(false, p->first);
        d.mother = ancestor(true, p->second);
        die(d, {made_.couples[c].wedding.year - dice_.between(22, 30), dice_.between(1, 12),
                dice_.between(1, 28)});
      }
    std::stable_sort(made_.burials.begin(), made_.burials.end(),
                     [](const Burial& a, const Burial& b) { return a.death < b.death; });
    made_.burials[made_.burials.size() / 2].annulled = true;
    findWidowed();
  }

  /// Not before that day.
  void die(Burial& d, const text::Date& birth, const text::Date& alive = {}) {
    d.age = d.couple < 0 && dice_.oneIn(9) ? dice_.between(1, 40) : dice_.between(61, 95);
    d.death = daysAfter({birth.year + d.age, birth.month, std::min(birth.day, 28)},
                        dice_.between(1, 330));
    d.funeral = daysAfter(d.death, dice_.between(1, 2));
    if (last_ < d.funeral) return;
    d.hour = std::to_string(dice_.between(10, 23)) + (dice_.oneIn(2) ? ":15" : ":40");
    d.cause = dice_.pick(CAUSES);
    d.anointed = !dice_.oneIn(4);
    d.minister = ministerOf(d.death.year);
    d.annulled = dice_.oneIn(40);
    if (alive < d.death) made_.burials.push_back(d);
  }

  void findWidowed() {
    std::vector<bool> one(made_.couples.size());
    for (Burial& d : made_.burials) {
      if (d.couple < 0) continue;
      d.widowed = one[static_cast<std::size_t>(d.couple)];
      one[static_cast<std::size_t>(d.couple)] = true;
    }
  }

  std::string ministerOf(int year) const { return ministerIn(year, last_.year); }

  Dice dice_;
  int home_;
  std::string parish_;
  text::Date last_;
  Population made_;
  std::deque<int> waiting_;
};

}  // namespace

Population makePopulation(std::uint32_t seed, int home, const std::string& parish,
                          const text::Date& last) {
  return Builder(seed, home, parish, last).run();
}

}  // namespace fidaleon::app::sample
