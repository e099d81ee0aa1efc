#include "store/FileFault.h"

#include <cerrno>

#include "text/SystemErrors.h"

namespace fidaleon::store {

Error fileFault(const std::string& what, const std::filesystem::path& file,
                const std::error_code& why) {
  ErrorKind kind = ErrorKind::Connection;
  switch (why.value()) {
    case EFBIG:
    case ENOSPC:
    case EDQUOT:
      kind = ErrorKind::DiskFull;
      break;
    case EACCES:
    case EPERM:
    case EROFS:
    case ENOTDIR:
      kind = ErrorKind::ReadOnly;
      break;
    default:
      break;
  }
  return Error(kind, what + " «" + file.string() + "»: " + text::systemReason(why));
}

}  // namespace fidaleon::store
