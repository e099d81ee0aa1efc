#include "store/sqlite/NetworkVfs.h"

#include <sqlite3.h>

namespace fidaleon::store {

namespace {

sqlite3_vfs& system() {
  return *sqlite3_vfs_find(nullptr);
}

int openWithoutSharedMemory(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags,
                            int* how) {
  const int code = system().xOpen(&system(), name, file, flags, how);
  if (code != SQLITE_OK || (flags & SQLITE_OPEN_MAIN_DB) == 0) return code;
  static const sqlite3_io_methods first = [&] {
    sqlite3_io_methods methods = *file->pMethods;
    methods.iVersion = 1;  // the version that knew of no shared memory
    return methods;
  }();
  file->pMethods = &first;
  return code;
}

}  // namespace

const char* networkVfs() {
  static sqlite3_vfs vfs = [] {
    sqlite3_vfs like = system();
    like.zName = "fidaleon-red";
    like.xOpen = openWithoutSharedMemory;
    like.pNext = nullptr;
    return like;
  }();
  static const int registered = sqlite3_vfs_register(&vfs, 0);
  return registered == SQLITE_OK ? vfs.zName : nullptr;
}

}  // namespace fidaleon::store
