#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sample/SamplePopulation.h"
#include "store/Connection.h"
#include "text/Dates.h"

namespace fidaleon::app {

/// What the people of the sample parish live in.
struct SampleGround {
  const sample::Population& people;
  const std::vector<std::int32_t>& towns;  // keys, by position in TOWNS
  std::int32_t institution = 0;
  std::int32_t town = 0;
  std::string parish;
  std::string postcode;
};

/// The living among them as the census knows them: families with their sacraments, some who have
/// died, collaborators with groups and offices, and the tasks of the year of `today`.
void fillSampleCensus(store::Connection& connection, const SampleGround& ground,
                      const text::Date& today);

}  // namespace fidaleon::app
