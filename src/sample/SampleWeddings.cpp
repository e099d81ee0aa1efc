#include "sample/SampleWeddings.h"

#include <algorithm>

#include "sample/SampleDice.h"
#include "sample/SampleNames.h"

namespace fidaleon::app::sample {
namespace {

constexpr std::uint32_t SEED = 1563;
constexpr int DETAILED_FROM = 1960;
constexpr int CONFIRMED_AT = 14;

constexpr const char* TWICE = "Anulada por haberse inscrito dos veces.";
constexpr const char* NULLITY =
    "Por sentencia del Tribunal Metropolitano de fecha 12 de marzo de 1998, confirmada por decreto "
    "del Tribunal de la Rota de 9 de noviembre del mismo año, este matrimonio fue declarado nulo. "
    "Prot. 113/96. Se anota por mandato del Sr. Provisor.";
constexpr const char* LONG_NOTES =
    "Precedió dispensa del impedimento de consanguinidad en tercer grado de línea colateral igual, "
    "concedida por el Sr. Obispo el 3 de abril, y de dos de las tres canónicas moniciones.\r\n"
    "Por este matrimonio quedó legitimada su hija, bautizada en esta parroquia, cuya partida se "
    "ha corregido al margen por decreto de la Vicaría General.\r\n"
    "Se corrige el segundo apellido de la madre de la contrayente, que en el cuerpo de la partida "
    "se escribió con error, por decreto del Sr. Vicario General de 14 de febrero de 1961.\r\n"
    "Por auto del Tribunal Eclesiástico se concedió a los cónyuges la separación temporal de mesa "
    "y habitación el 22 de octubre de 1968. Reanudaron la vida en común el 1 de mayo de 1970, "
    "según comparecencia ante el párroco y dos testigos.\r\n"
    "Se expidió copia literal de esta partida el 7 de julio de 1974, el 18 de enero de 1983 y el "
    "30 de septiembre de 1991, a petición de los interesados.";
constexpr const char* BANNS = "Dispensadas las amonestaciones por el Sr. Vicario Episcopal.";

/// How far a dossier has come.
enum class Stage { Opened, WithAddresses, WithWitnesses, Complete };

class Weddings {
 public:
  Weddings(Population& people, int home, const std::string& parish, const text::Date& last)
      : dice_(SEED), people_(people), home_(home), parish_(parish), last_(last) {}

  void run() {
    for (std::size_t i = 0; i < people_.couples.size(); ++i) {
      const Couple& c = people_.couples[i];
      if (c.weddingParish == parish_ && c.weddingTown == home_) wed(static_cast<int>(i));
    }
    std::stable_sort(people_.marriages.begin(), people_.marriages.end(),
                     [](const Marriage& a, const Marriage& b) { return a.day < b.day; });
    annotate();
    engage();
  }

 private:
  void wed(int couple) {
    const Couple& c = people_.couples[static_cast<std::size_t>(couple)];
    Marriage m;
    m.day = c.wedding;
    m.street = c.street;
    m.groom = spouse(c.father, {c.fathersFather, c.fathersMother}, couple, m.day.year);
    m.bride = spouse(c.mother, {c.mothersFather, c.mothersMother}, couple, m.day.year);
    m.groom.trade = c.trade;
    celebrate(m);
    people_.marriages.push_back(m);
  }

  struct Parents {
    std::string father, mother;
  };

  Spouse spouse(const Person& who, const Parents& parents, int couple, int year) {
    const auto& all = people_.baptisms;
    const auto own = std::find_if(all.begin(), all.end(), [&](const Baptism& b) {
      return b.ownCouple == couple && b.girl == who.woman;
    });
    return own != all.end() ? fromHere(own) : fromElsewhere(who, parents, year);
  }

  Spouse fromHere(std::vector<Baptism>::const_iterator b) {
    const Couple& parents = people_.couples[static_cast<std::size_t>(b->couple)];
    Spouse s;
    s.person = {b->name, parents.father.first, parents.mother.first, home_, b->girl};
    s.baptism = static_cast<int>(b - people_.baptisms.begin());
    s.birth = b->birth;
    s.baptised = b->day;
    s.confirmed = b->confirmed;
    s.father = parents.father.full();
    s.mother = parents.mother.full();
    s.baptismParish = parish_;
    s.baptismTown = s.town = home_;
    s.street = parents.street;
    s.trade = dice_.pick(TRADES);
    return s;
  }

  Spouse fromElsewhere(const Person& who, const Parents& parents, int year) {
    Spouse s;
    s.person = who;
    s.birth = {year - dice_.between(22, 30), dice_.between(1, 12), dice_.between(1, 28)};
    s.baptised = daysAfter(s.birth, dice_.between(3, 60));
    if (!dice_.oneIn(4)) s.confirmed = {s.birth.year + CONFIRMED_AT, 5, dice_.between(1, 28)};
    s.father = parents.father;
    s.mother = parents.mother;
    s.baptismParish = dice_.pick(PARISHES);
    s.baptismTown = s.town = who.town;
    s.street = someStreet();
    s.trade = dice_.pick(TRADES);
    return s;
  }

  std::string someStreet() {
    return dice_.pick(STREETS) + ", " + std::to_string(dice_.between(1, 48));
  }

  Person somebody(bool woman, int year) {
    return {dice_.givenName(woman, year), dice_.pick(SURNAMES), dice_.pick(SURNAMES), home_, woman};
  }

  void celebrate(Marriage& m) {
    const int year = m.day.year;
    m.detailed = year >= DETAILED_FROM;
    m.celebrant = ministerIn(year, last_.year);
    m.godfather = somebody(false, year - 50).full();
    m.godmother = somebody(true, year - 50).full();
    m.witnesses = somebody(false, year - 28).full() + " y " + somebody(true, year - 28).full();
    if (!m.detailed) return;
    m.hour = std::to_string(dice_.between(11, 19)) + (dice_.oneIn(2) ? ":30" : ":00");
    m.nihilObstat = std::to_string(dice_.between(20, 1900)) + "/" + std::to_string(year);
    bringWitnesses(m);
  }

  void bringWitnesses(Marriage& m) {
    m.first = somebody(false, last_.year - 40);
    m.second = somebody(true, last_.year - 38);
  }

  void annotate() {
    auto& all = people_.marriages;
    all.insert(all.begin() + static_cast<std::ptrdiff_t>(all.size() / 3), all[all.size() / 3]);
    all[all.size() / 3].annulled = true;
    all[all.size() / 3].marginalNotes = TWICE;
    for (std::size_t i = 9; i < all.size(); i += 9)
      if (all[i].marginalNotes.empty()) all[i].marginalNotes = BANNS;
    noteOf(1990, NULLITY);
    noteOf(1950, LONG_NOTES);
  }

  /// To the first marriage from that year on.
  void noteOf(int year, const char* note) {
    const auto it = std::find_if(people_.marriages.begin(), people_.marriages.end(),
                                 [year](const Marriage& m) { return m.day.year >= year; });
    if (it != people_.marriages.end()) it->marginalNotes = note;
  }

  void engage() {
    for (const Stage stage :
         {Stage::Opened, Stage::WithAddresses, Stage::WithWitnesses, Stage::Complete}) {
      Marriage m;
      m.groom = stage == Stage::WithWitnesses ? newcomer(false) : single(false);
      m.bride = stage == Stage::Complete ? newcomer(true) : single(true);
      prepare(m, stage);
      people_.engaged.push_back(m);
    }
  }

  /// The next of the unmarried who were baptised here; a newcomer when there is none.
  Spouse single(bool woman) {
    const auto& all = people_.baptisms;
    for (auto b = all.begin() + (woman ? nextGirl_ : nextBoy_); b != all.end(); ++b) {
      const int age = text::yearsBetween(b->birth, last_);
      if (b->girl != woman || b->annulled || b->ownCouple >= 0 || age < 20 || age > 48) continue;
      (woman ? nextGirl_ : nextBoy_) = b - all.begin() + 1;
      return fromHere(b);
    }
    return newcomer(woman);
  }

  Spouse newcomer(bool woman) {
    Person who = somebody(woman, last_.year - 27);
    who.town = townNearby();
    const Parents parents{
        somebody(false, last_.year - 55).name + " " + who.first + " " + dice_.pick(SURNAMES),
        somebody(true, last_.year - 55).name + " " + who.second + " " + dice_.pick(SURNAMES)};
    Spouse s = fromElsewhere(who, parents, last_.year);
    s.homeParish = dice_.pick(PARISHES);
    return s;
  }

  /// Another one of the same province, and so of the same diocese.
  int townNearby() {
    const auto province = [](int town) {
      return TOWNS[static_cast<std::size_t>(town)].provinceCode;
    };
    int town = home_;
    while (town == home_ || province(town) != province(home_))
      town = dice_.upTo(static_cast<int>(TOWNS.size()));
    return town;
  }

  void prepare(Marriage& m, Stage stage) {
    m.detailed = stage != Stage::Opened;
    if (stage == Stage::Opened) {
      m.remarks =
          "Vinieron a pedir fecha. Faltan las partidas de bautismo y los documentos civiles.";
      for (Spouse* s : {&m.groom, &m.bride}) s->street.clear();
      return;
    }
    m.day = daysAfter(last_, 60 + 20 * static_cast<int>(stage));
    m.street = someStreet();
    for (Spouse* s : {&m.groom, &m.bride})
      if (s->homeParish.empty()) s->homeParish = parish_;
    if (stage == Stage::WithAddresses) return;
    celebrate(m);
    if (stage == Stage::Complete) return;
    m.groom.widowed = true;
    m.nihilObstat = m.witnesses = m.celebrant = "";
    m.remarks = "Enviado el exhorto de amonestaciones. Pendiente el nihil obstat de la curia.";
  }

  Dice dice_;
  Population& people_;
  int home_;
  const std::string& parish_;
  text::Date last_;
  std::ptrdiff_t nextBoy_ = 0, nextGirl_ = 0;
};

}  // namespace

void makeWeddings(Population& people, int home, const std::string& parish, const text::Date& last) {
  Weddings(people, home, parish, last).run();
}

}  // namespace fidaleon::app::sample
