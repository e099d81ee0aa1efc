#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "store/postgres/PasswordKeeper.h"

namespace fidaleon::app {

/// Keeps passwords with the others of the user's session, where the desktop has a service for that
/// and it is open: the user is never asked to open it, and it is not waited for long. Where there
/// is none it is as the other keeper. From any thread.
class SecretKeeper : public store::PasswordKeeper {
 public:
  explicit SecretKeeper(std::unique_ptr<store::PasswordKeeper> otherwise);

  std::optional<std::string> find(const store::ServerAddress& address) override;
  void keep(const store::ServerAddress& address, const std::string& password) override;
  void forget(const store::ServerAddress& address) override;

 private:
  std::mutex alone_;
  std::unique_ptr<store::PasswordKeeper> otherwise_;
  std::map<std::string, std::string> known_;  // the session may be locked later
};

}  // namespace fidaleon::app
