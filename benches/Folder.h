#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace fidaleon::bench {

/// A folder of its own that goes again.
class Folder {
 public:
  Folder() {
    std::string name = std::filesystem::temp_directory_path() / "fidaleon-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error(name);
    path_ = name;
  }
  ~Folder() { std::filesystem::remove_all(path_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const char* name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

}  // namespace fidaleon::bench
