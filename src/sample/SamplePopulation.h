#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "text/Dates.h"

namespace fidaleon::app::sample {

/// One grown-up as the registers name one: a line, two surnames, a town of TOWNS by position.
struct Person {
  std::string name;
  std::string first;
  std::string second;
  int town = 0;
  bool woman = false;
  std::string full() const { return name + " " + first + " " + second; }
};

struct Couple {
  Person father;
  Person mother;
  // The grandparents by their full names, with their towns.
  std::string fathersFather, fathersMother, mothersFather, mothersMother;
  int fathersTown = 0, mothersTown = 0;
  std::string trade;
  std::string street;
  text::Date wedding;
  std::string weddingParish;
  int weddingTown = 0;
};

/// One baptism, with everything that a register says of it.
struct Baptism {
  std::string name;
  bool girl = false;
  text::Date birth;
  std::string hour;
  text::Date day;
  int couple = 0;  // position in Population::couples
  std::string godfather, godmother;
  std::string minister;
  std::string marginalNotes;
  std::string remarks;
  bool annulled = false;
  text::Date confirmed;  // in this parish; no day when not
  int ownCouple = -1;    // position in Population::couples of the own marriage, -1 without one
};

/// One confirmation. Those of a day stand together, by surname.
struct Confirmation {
  Person person;
  int baptism = -1;  // position in Population::baptisms, -1 for one baptised elsewhere
  text::Date birth, baptised;
  std::string father, mother;
  std::string street;
  std::string baptismParish;
  int baptismTown = 0;
  text::Date day;
  std::string sponsor;
  std::string minister, office;
  bool annulled = false;
};

/// One burial.
struct Burial {
  Person person;
  int baptism = -1;  // position in Population::baptisms, -1 for one who came from elsewhere
  int couple = -1;   // position in Population::couples, -1 for one who was not married
  std::string father, mother;
  bool widowed = false;
  int age = 0;
  text::Date death, funeral;
  std::string hour;
  std::string cause;
  std::string minister;
  bool anointed = false;
  bool annulled = false;
};

/// Groom or bride.
struct Spouse {
  Person person;
  int baptism = -1;  // position in Population::baptisms, -1 for one baptised elsewhere
  text::Date birth, baptised, confirmed;
  std::string father, mother;
  std::string baptismParish;
  int baptismTown = 0;
  std::string trade;
  bool widowed = false;
  // Home before the wedding, and the parish that has to publish the banns there.
  std::string street;
  int town = 0;
  std::string homeParish;
};

/// One marriage of the parish, or one that is being prepared. What an old book does not say, or a
/// dossier not yet, is empty.
struct Marriage {
  Spouse groom, bride;
  bool detailed = false;  // with the papers that are asked for since 1960
  text::Date day;
  std::string hour;
  std::string street;  // the new home
  std::string godfather, godmother, witnesses;
  Person first, second;  // witnesses of the dossier
  std::string celebrant;
  std::string nihilObstat;
  std::string marginalNotes, remarks;
  bool annulled = false;
};

/// The people of the sample parish: couples, their children, and the children of those. The same
/// seed gives the same people.
struct Population {
  std::vector<Couple> couples;
  std::vector<Baptism> baptisms;            // in the order of the day of baptism
  std::vector<Confirmation> confirmations;  // in the order of their days
  std::vector<Burial> burials;              // in the order of the day of death
  std::vector<Marriage> marriages;          // in the order of their days
  std::vector<Marriage> engaged;            // the further the dossier, the later
};

/// `home` is the position of the parish's town in TOWNS; nothing happens after `last`.
Population makePopulation(std::uint32_t seed, int home, const std::string& parish,
                          const text::Date& last);

}  // namespace fidaleon::app::sample
