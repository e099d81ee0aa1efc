#pragma once

#include "sample/SamplePopulation.h"
#include "store/Connection.h"

namespace fidaleon::app {

/// What the spouses and witnesses of the marriage stored last have sworn to.
void fillSampleExaminations(store::Connection& connection, const sample::Marriage& marriage,
                            const std::string& parish);

}  // namespace fidaleon::app
