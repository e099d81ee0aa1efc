#pragma once

#include <string>

#include "store/postgres/ServerAddress.h"

namespace fidaleon::app {

/// What whoever enters a server with an address finds there, and may do.
struct ServerLook {
  enum class Content { Nothing, HalfMoved, Parish };
  enum class Version { Older, Same };  // a newer one is refused

  Content content = Content::Nothing;
  Version version = Version::Same;
  std::string name;  // of the parish
  bool mayWrite = false;
  bool owns = false;  // may make tables, and change them

  /// Somebody can work there with this address.
  bool canBeJoined() const;
  /// A parish can be made there, or brought.
  bool canBeFilled() const { return content == Content::Nothing && owns; }
  /// One that was on its way can be brought to its end.
  bool canGoOn() const { return content == Content::HalfMoved && owns; }
};

/// Enters and looks. An empty password is the one that is known for the address. Throws
/// store::Error: Connection, Missing, NotADatabase, NewerSchema, and ReadOnly where the server
/// takes nothing.
ServerLook lookAt(const store::ServerAddress& address, const std::string& password = {});

/// The same in a sentence or two, in Spanish, with what is to be done where nothing can be.
std::string spoken(const ServerLook& look, const store::ServerAddress& address);

}  // namespace fidaleon::app
