#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "store/Connection.h"
#include "store/postgres/ServerAddress.h"
#include "text/Dates.h"

namespace fidaleon::app {

enum class Content { Empty, Sample };

/// What the first run asks for.
struct NewParish {
  std::string name;     // of the parish, as its documents print it
  std::string edition;  // a code of FDAPI::cCAplicacion
  std::string user;
  std::string town;
  std::int32_t province = 0;  // official code of its province
  Content content = Content::Empty;
  std::filesystem::path directory;
  std::optional<store::ServerAddress> server;  // that is to have it; otherwise a file does
  std::optional<gid_t> group;  // whose accounts may work on it too; otherwise as the folder says
};

/// A group of accounts of this machine.
struct AccountGroup {
  gid_t id;
  std::string name;
};
/// Those that this account belongs to and others may too.
std::vector<AccountGroup> ownGroups();

/// What is missing or wrong in it, in Spanish; empty when it can be made.
std::string whatIsMissing(const NewParish& parish);

/// What puts an invented register into the empty parish that has been described.
using Filling = std::function<void(store::Connection&, const NewParish&, const text::Date& today)>;

/// Creates the directory, the note of the edition and the parish database with its first
/// institution (or what `sample` fills in when asked for), which takes its name last: there is a
/// whole parish or none. Throws store::Error and locks::Unusable; nothing stays behind then of what
/// this call has made, and nothing else is ever touched. Of several who do this at once in one
/// directory one makes the parish, and the others get store::NameTaken.
void createParish(const NewParish& parish, const text::Date& today, const Filling& sample = {});

/// Adds an institution with its line in Ultimos and gives its key.
std::int32_t addInstitution(store::Connection& connection, const std::string& name,
                            std::int32_t town);
/// The key of the town in the province of that official code, added if it is new.
std::int32_t townKey(store::Connection& connection, const std::string& town, std::int32_t province);

}  // namespace fidaleon::app
