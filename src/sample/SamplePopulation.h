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
};

/// The people of the sample parish: couples, their children, and the children of those. The same
/// seed gives the same people.
struct Population {
  std::vector<Couple> couples;
  std::vector<Baptism> baptisms;  // in the order of the day of baptism
};

/// `home` is the position of the parish's town in TOWNS; nobody is baptised after `last`.
Population makePopulation(std::uint32_t seed, int home, const std::string& parish,
                          const text::Date& last);

}  // namespace fidaleon::app::sample
