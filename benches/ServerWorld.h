#pragma once
// A parish on a server of the tests' own, behind a relay that can be as slow as a network, with a
// scripted user before it.

#include <fstream>

#include "benches/Bench.h"
#include "benches/World.h"
#include "store/postgres/PostgresEngine.h"
#include "tests/support/NewDatabase.h"
#include "tests/support/Relay.h"

namespace fidaleon::bench {

struct Server {
  tests::PostgresDatabase database{tests::modelOf(store::parishSchema())};
  Folder socket;
  tests::Relay relay{database.address(), socket.path()};

  store::PostgresEngine* engine = nullptr;  // of the last connection

  std::unique_ptr<store::Connection> connect(const store::ServerAddress& address) {
    auto made = std::make_unique<store::PostgresEngine>(address);
    engine = made.get();
    return std::make_unique<store::Connection>(std::move(made), store::parishSchema(),
                                               (socket / "parroquia.mdb").string());
  }
};

/// The process of the server that serves a link.
inline int processOf(store::Link& link) {
  return static_cast<int>(link.ask("SELECT pg_backend_pid()").integer(0, 0));
}

/// Processor time of this program and of a process of the server, in milliseconds.
inline Time withServer(int process) {
  return [process] {
    std::ifstream in("/proc/" + std::to_string(process) + "/schedstat");
    double nanoseconds = 0;
    in >> nanoseconds;
    return now() + nanoseconds / 1e6;
  };
}

struct ServerWorld : Server, World {
  /// Through the relay, or else straight to the server.
  explicit ServerWorld(bool relayed)
      : World([&] { return connect(relayed ? relay.address() : database.address()); }) {}
};

}  // namespace fidaleon::bench
