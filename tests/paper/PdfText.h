#pragma once

#include <filesystem>
#include <string>

#include "paper/Report.h"

namespace fidaleon::paper::test {

/// An empty folder that goes with its owner.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  void write(const std::string& name, const std::string& content) const;

 private:
  std::filesystem::path path_;
};

/// What a reader of the PDF can copy out of it: pdftotext, with runs of blanks and line ends
/// made one blank.
std::string pdfText(const Report& report);
std::string outputOf(const std::string& command);

}  // namespace fidaleon::paper::test
