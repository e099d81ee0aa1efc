#include "store/Backend.h"

#include "store/sqlite/FileBackend.h"

namespace fidaleon::store {

std::unique_ptr<Backend> backendAt(const std::filesystem::path& place) {
  return std::make_unique<FileBackend>(place);
}

}  // namespace fidaleon::store
