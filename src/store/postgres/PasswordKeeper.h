#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include "store/postgres/ServerAddress.h"

namespace fidaleon::store {

/// Keeps the passwords of servers for this account. Nothing else of the program stores or shows
/// one.
class PasswordKeeper {
 public:
  virtual ~PasswordKeeper() = default;

  virtual std::optional<std::string> find(const ServerAddress& address) = 0;
  /// In the place of an older one. Throws store::Error when it cannot be kept.
  virtual void keep(const ServerAddress& address, const std::string& password) = 0;
  /// Throws as keep.
  virtual void forget(const ServerAddress& address) = 0;
};

/// In a file that only the account can read, one line for each server as libpq's own password files
/// have them: "host:port:database:user:password". Lines of others stay as they are.
class PassFile : public PasswordKeeper {
 public:
  /// "claves" in the account's own folder.
  static std::filesystem::path defaultFile();
  explicit PassFile(std::filesystem::path file = defaultFile()) : file_(std::move(file)) {}

  std::optional<std::string> find(const ServerAddress& address) override;
  void keep(const ServerAddress& address, const std::string& password) override;
  void forget(const ServerAddress& address) override;

 private:
  void write(const ServerAddress& address, const std::optional<std::string>& password);

  std::filesystem::path file_;
};

/// The one that this program asks: a PassFile, unless another has been put before it.
PasswordKeeper& passwords();
/// From now on; for the beginning of the program.
void keepPasswordsIn(std::unique_ptr<PasswordKeeper> keeper);

enum class Remember { No, Yes };
/// Goes with that address until the program ends, before any that is kept; and is kept beyond that,
/// or what is kept is forgotten. Throws as keep, and is used all the same.
void usePassword(const ServerAddress& address, const std::string& password, Remember remember);

/// What goes with an address. Empty when none is known, or when PGPASSWORD says it: the library
/// then has its own ways. From any thread.
std::string passwordFor(const ServerAddress& address);

}  // namespace fidaleon::store
