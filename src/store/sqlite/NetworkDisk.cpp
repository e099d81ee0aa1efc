#include "store/sqlite/NetworkDisk.h"

#include <sqlite3.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace fidaleon::store {

bool isNetworkDisk(const std::filesystem::path& file) {
  constexpr std::array<std::uint32_t, 15> kinds = {
      0x6969,      // NFS
      0x517B,      // SMB
      0xFF534D42,  // CIFS
      0xFE534D42,  // SMB 2 and later
      0x65735546,  // FUSE: sshfs, davfs and others
      0x5346414F,  // AFS
      0x73757245,  // Coda
      0x01021997,  // 9P
      0x564C,      // NCP
      0x00C36400,  // Ceph
      0x01161970,  // GFS2
      0x0BD00BD0,  // Lustre
      0x7461636F,  // OCFS2
      0x786F4256,  // shared folder of a virtual machine
      0xBACBACBC,  // likewise
  };
  struct statfs disk = {};
  const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
  if (statfs(file.c_str(), &disk) != 0 && statfs(folder.c_str(), &disk) != 0) return true;
  return std::find(kinds.begin(), kinds.end(), static_cast<std::uint32_t>(disk.f_type)) !=
         kinds.end();
}

bool usesWriteAheadLog(const std::filesystem::path& file) {
  // Bytes 18 and 19: the versions of the format that writing and reading ask for.
  std::array<char, 20> head{};
  sqlite3* db = nullptr;
  sqlite3_file* opened = nullptr;
  const bool read =
      sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr) ==
          SQLITE_OK &&
      sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, &opened) == SQLITE_OK &&
      opened->pMethods->xRead(opened, head.data(), head.size(), 0) == SQLITE_OK;
  sqlite3_close(db);
  return read && head[18] == 2;
}

}  // namespace fidaleon::store
