#pragma once

#include <string>

#include "sample/SamplePopulation.h"

namespace fidaleon::app::sample {

/// Gives the people their marriages in the parish, and lets some of the young get engaged.
void makeWeddings(Population& people, int home, const std::string& parish, const text::Date& last);

}  // namespace fidaleon::app::sample
