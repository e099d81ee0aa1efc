#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace fidaleon::app {

struct ZipEntry {
  enum Method { Stored, Packed };
  std::string name;
  /// Puts the next part of the content at the end of the text; nothing more to put ends it. What it
  /// throws ends the archive.
  std::function<void(std::string& part)> next;
  std::uint64_t atMost = 0;  // bytes of the content; exact for one that is stored
  Method method = Packed;
};

/// Writes an archive with these entries in this order; little of it is in memory at a time. Throws
/// std::system_error where the system refused, otherwise std::runtime_error, and what the entries
/// throw.
void writeZip(const std::filesystem::path& file, std::vector<ZipEntry> entries);

/// An entry of that content.
ZipEntry entryOf(std::string name, std::string content, ZipEntry::Method method);

}  // namespace fidaleon::app
