#include "text/SystemErrors.h"

#include <cerrno>

namespace fidaleon::text {

std::string systemReason(const std::error_code& error) {
  switch (error.value()) {
    case ENOENT:
    case ENOTDIR:
      return "la carpeta no existe.";
    case EACCES:
    case EPERM:
    case EROFS:
      return "no hay permiso para escribir.";
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return "el disco está lleno.";
    case EIO:
      return "el disco falla.";
    case EMFILE:
    case ENFILE:
      return "hay demasiados archivos abiertos.";
    case ENAMETOOLONG:
      return "el nombre es demasiado largo.";
    case EISDIR:
      return "en su lugar hay una carpeta.";
    case EBUSY:
      return "otro programa lo está usando.";
    case ENOLCK:
    case EINVAL:
    case EOPNOTSUPP:
      return "la unidad no admite bloqueos.";
    default:
      return "el sistema responde con el error número " + std::to_string(error.value()) + ".";
  }
}

}  // namespace fidaleon::text
