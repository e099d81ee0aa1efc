#include "locks/Reach.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <string>

namespace fidaleon::locks {

namespace {

constexpr std::array<std::uint32_t, 8> NEVER_TOLD_TO_OTHERS{
    0x65735546,  // FUSE: sshfs, davfs, what file managers mount, and foreign local disks
    0x01021997,  // 9P
    0x786F4256,  // shared folder of a virtual machine
    0xBACBACBC,  // likewise
    0x5346414F,  // AFS
    0x73757245,  // Coda
    0x564C,      // NCP
    0x7461636F,  // OCFS2
};

// NFS, SMB and Lustre, as they can be mounted.
constexpr std::array<std::string_view, 5> KEPT_TO_ITSELF{"nolock", "local_lock=all",
                                                         "local_lock=posix", "nobrl", "localflock"};

template <class List, class Item>
bool has(const List& list, const Item& item) {
  return std::find(list.begin(), list.end(), item) != list.end();
}

/// The options of the mount that has this device.
std::string optionsOf(dev_t device) {
  const std::string wanted = std::to_string(major(device)) + ":" + std::to_string(minor(device));
  std::ifstream mounts("/proc/self/mountinfo");
  for (std::string line; std::getline(mounts, line);) {
    std::istringstream fields(line);
    std::string number, parent, found;
    fields >> number >> parent >> found;
    if (found == wanted) return line.substr(line.rfind(' ') + 1);
  }
  return {};
}

}  // namespace

Reach reachOf(std::uint32_t kind, std::string_view options) {
  if (has(NEVER_TOLD_TO_OTHERS, kind)) return Reach::OneMachine;
  while (!options.empty()) {
    const std::size_t comma = options.find(',');
    if (has(KEPT_TO_ITSELF, options.substr(0, comma))) return Reach::OneMachine;
    options.remove_prefix(comma == std::string_view::npos ? options.size() : comma + 1);
  }
  return Reach::Everywhere;
}

Reach reachOf(const std::filesystem::path& folder) {
  struct statfs disk = {};
  struct stat facts = {};
  if (::statfs(folder.c_str(), &disk) != 0 || ::stat(folder.c_str(), &facts) != 0)
    return Reach::OneMachine;
  return reachOf(static_cast<std::uint32_t>(disk.f_type), optionsOf(facts.st_dev));
}

}  // namespace fidaleon::locks
