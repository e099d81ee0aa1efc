#include "files/Naming.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "files/Durable.h"
#include "files/PrivateFile.h"

namespace fidaleon::files {

namespace fs = std::filesystem;

namespace {

enum class Outcome { Taken, Free, NotOffered };

/// What the call has come to; NotOffered when this disk has no such call.
Outcome outcomeOf(int result, const fs::path& name) {
  if (result == 0) return Outcome::Free;
  switch (errno) {
    case EEXIST:
      return Outcome::Taken;
    case EINVAL:
    case ENOSYS:
    case EPERM:
    case EOPNOTSUPP:
    case EMLINK:
      return Outcome::NotOffered;
    default:
      throw fs::filesystem_error("rename", name, std::error_code(errno, std::generic_category()));
  }
}

Outcome byRenaming(const fs::path& file, const fs::path& name) {
  return outcomeOf(::renameat2(AT_FDCWD, file.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE),
                   name);
}

Outcome byLinking(const fs::path& file, const fs::path& name) {
  const Outcome outcome = outcomeOf(::link(file.c_str(), name.c_str()), name);
  if (outcome == Outcome::Free) ::unlink(file.c_str());
  return outcome;
}

/// The name is first taken by an empty file, which the other then replaces.
Outcome byReserving(const fs::path& file, const fs::path& name) {
  try {
    create(name);
  } catch (const std::system_error& e) {
    if (e.code() == std::errc::file_exists) return Outcome::Taken;
    throw;
  }
  fs::rename(file, name);
  return Outcome::Free;
}

}  // namespace

bool takeFreeName(const fs::path& file, const fs::path& name) {
  for (const auto way : {byRenaming, byLinking, byReserving}) {
    const Outcome outcome = way(file, name);
    if (outcome == Outcome::Free) syncFolderOf(name);
    if (outcome != Outcome::NotOffered) return outcome == Outcome::Free;
  }
  return false;
}

}  // namespace fidaleon::files
