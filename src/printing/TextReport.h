#pragma once

#include <string>

#include "paper/Report.h"

namespace fidaleon::app {

/// Lines of text on paper: those that begin with a blank are details, the others head them; empty
/// ones count nothing. Throws paper::Error and store::Error.
paper::Report makeTextReport(const std::string& title, const std::string& text,
                             paper::ReportOptions options = {});

}  // namespace fidaleon::app
