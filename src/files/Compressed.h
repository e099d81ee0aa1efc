#pragma once

#include <filesystem>
#include <functional>
#include <stdexcept>

namespace fidaleon::files {

/// A compressed file is cut short or not one at all.
class NotCompressed : public std::runtime_error {
 public:
  explicit NotCompressed(const std::filesystem::path& file);
};

/// Asked now and then while a file is gone through; false ends the work half way.
using GoesOn = std::function<bool()>;

bool isCompressed(const std::filesystem::path& file);
/// Both write into a file that is there already, over what it held. False when it was ended half
/// way. Throw std::filesystem::filesystem_error, whose code says why; expand() NotCompressed too.
bool compress(const std::filesystem::path& from, const std::filesystem::path& to,
              const GoesOn& goesOn = {});
bool expand(const std::filesystem::path& from, const std::filesystem::path& to,
            const GoesOn& goesOn = {});
/// Whether the compressed file holds what the other one does. Throws as expand() does.
bool holdsTheSame(const std::filesystem::path& compressed, const std::filesystem::path& plain,
                  const GoesOn& goesOn = {});

}  // namespace fidaleon::files
