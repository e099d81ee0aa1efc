#pragma once

#include <string>
#include <vector>

namespace fidaleon::app {

struct ZipEntry {
  enum Method { Stored, Packed };
  std::string name;
  std::string content;
  Method method = Packed;
};

/// The bytes of an archive with these entries in this order. Throws std::runtime_error.
std::string zipArchive(const std::vector<ZipEntry>& entries);

}  // namespace fidaleon::app
