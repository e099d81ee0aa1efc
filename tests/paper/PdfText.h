#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "files/Machine.h"
#include "paper/Report.h"

namespace fidaleon::paper::test {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

/// An empty folder that goes with its owner.
struct TemporaryFolder : tests::TempDirectory {
  void write(const std::string& name, const std::string& content) const;
};

/// What a reader of the PDF can copy out of it: pdftotext, with runs of blanks and line ends
/// made one blank.
std::string pdfText(const Report& report);
/// The text of one page, from 0, in the order of its lines.
std::string pageText(const Report& report, int page);
/// What the group of the pattern matches, each time.
std::vector<std::string> found(const std::string& text, const char* pattern);
std::string outputOf(const std::string& command);

}  // namespace fidaleon::paper::test
