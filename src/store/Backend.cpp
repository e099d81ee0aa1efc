#include "store/Backend.h"

#include "store/postgres/ServerAccess.h"
#include "store/postgres/ServerBackend.h"
#include "store/sqlite/FileBackend.h"

namespace fidaleon::store {

std::unique_ptr<Backend> backendAt(const std::filesystem::path& place) {
  if (isAddress(place)) return std::make_unique<ServerBackend>(place);
  return std::make_unique<FileBackend>(place);
}

}  // namespace fidaleon::store
