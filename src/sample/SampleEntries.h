#pragma once

#include <array>
#include <string>
#include <vector>

#include "registers/baptism/cBautismo.h"
#include "registers/confirmation/cConfirmacion.h"
#include "registers/death/cDefuncion.h"
#include "registers/marriage/cMatrimonio.h"
#include "sample/SamplePopulation.h"

namespace fidaleon::app::sample {

/// Where an entry stands; a request stands nowhere.
struct Place {
  std::int32_t book = 0;
  std::int32_t folio = 0;
  std::string number = "---";
  std::string bookName = "---";
};

/// The parish whose books they are.
struct Surroundings {
  std::string parish;
  std::string diocese;
  std::string postcode;
  std::int32_t institution = 0;
  std::int32_t town = 0;
  std::vector<std::int32_t> towns;  // keys, in the order of TOWNS
};

/// What the books say of the people of the sample parish.
class Entries {
 public:
  /// Both must outlive this object.
  Entries(const Population& people, const Surroundings& around) : people_(people), at_(around) {}

  cBautismo baptism(const Baptism& b, const Place& place) const;
  /// `baptised`: where the baptism stands in the books of the parish, if it does.
  cConfirmacion confirmation(const Confirmation& c, const Place& place,
                             const Place* baptised) const;
  cDefuncion death(const Burial& b, const Place& place) const;
  /// Groom and bride: where their baptisms stand in the books of the parish, if they do.
  cMatrimonio marriage(const Marriage& m, const Place& place,
                       std::array<const Place*, 2> baptised) const;

 private:
  const Couple& coupleOf(int position) const;
  std::int32_t town(int position) const;
  void putChild(cBautismo& r, const Baptism& b, const Couple& c) const;
  void putFather(cBautismo& r, const Couple& c) const;
  void putMother(cBautismo& r, const Couple& c) const;
  void putMarriage(cBautismo& r, const Couple& c) const;
  void putBaptism(cConfirmacion& r, const Confirmation& c, const Place* baptised) const;
  void putFamily(cDefuncion& r, const Burial& b) const;
  void putSpouse(cMatrimonio& r, std::size_t which, const Marriage& m, const Place* baptised) const;
  void putCelebration(cMatrimonio& r, const Marriage& m) const;
  void putWitnesses(cMatrimonio& r, const Marriage& m) const;

  const Population& people_;
  const Surroundings& at_;
};

}  // namespace fidaleon::app::sample
