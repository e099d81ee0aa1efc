#pragma once
// Stands between a program and the tests' server, as a slow or a broken network does.

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <list>
#include <stdexcept>
#include <string>
#include <thread>

#include "files/PrivateFile.h"
#include "store/postgres/ServerAddress.h"

namespace fidaleon::tests {

class Relay {
 public:
  /// What becomes of the first packet to the server that holds the text of cutAt().
  enum class Cut { None, Before, Behind };
  /// The whole statement: what begins a transaction has the word in it too.
  static inline const std::string COMMIT{"COMMIT", 7};

  /// Its socket lies in `folder`, which outlives it.
  Relay(store::ServerAddress server, const std::filesystem::path& folder)
      : server_(std::move(server)), folder_(folder), door_(socketAt(folder_, true)) {
    thread_ = std::thread([this] { run(); });
  }
  ~Relay() {
    over_ = true;
    thread_.join();
  }
  Relay(const Relay&) = delete;
  Relay& operator=(const Relay&) = delete;

  store::ServerAddress address() const {
    store::ServerAddress address = server_;
    address.host = folder_;
    return address;
  }
  /// Every packet to the server arrives so much later.
  void setDelay(std::chrono::microseconds delay) { delay_ = delay; }
  /// The link is cut there, and those who come later are turned away until open().
  void cutAt(const std::string& text, Cut cut) {
    text_ = text;
    cut_ = cut;
  }
  void open() { closed_ = false; }
  /// Those who come later are let in at once.
  void stayOpen(bool stays = true) { staysOpen_ = stays; }

 private:
  struct Pair {
    files::Descriptor client, server;
  };

  files::Descriptor socketAt(const std::string& folder, bool listens) const {
    files::Descriptor made(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    sockaddr_un name{AF_UNIX, {}};
    (folder + "/.s.PGSQL.5432").copy(name.sun_path, sizeof name.sun_path - 1);
    const auto* address = reinterpret_cast<const sockaddr*>(&name);
    const int done = listens ? bind(made.number(), address, sizeof name)
                             : connect(made.number(), address, sizeof name);
    if (done != 0 || (listens && listen(made.number(), 8) != 0))
      throw std::runtime_error("relay: " + folder);
    return made;
  }

  void run() {
    while (!over_) {
      std::vector<pollfd> ends{{door_.number(), POLLIN, 0}};
      for (const Pair& pair : pairs_)
        for (const files::Descriptor* end : {&pair.client, &pair.server})
          ends.push_back({end->number(), POLLIN, 0});
      if (poll(ends.data(), ends.size(), 20) <= 0) continue;
      std::size_t at = 0;
      const bool knocked = ends[at++].revents != 0;
      for (auto pair = pairs_.begin(); pair != pairs_.end();) {
        const bool fromClient = ends[at++].revents != 0, fromServer = ends[at++].revents != 0;
        const bool goesOn = (!fromClient || pass(pair->client, pair->server, true)) &&
                            (!fromServer || pass(pair->server, pair->client, false));
        pair = goesOn ? std::next(pair) : pairs_.erase(pair);
      }
      if (knocked) letIn();
    }
  }

  void letIn() {
    files::Descriptor client(accept(door_.number(), nullptr, nullptr));
    if (!closed_) pairs_.push_back({std::move(client), socketAt(server_.host, false)});
  }

  /// False when the pair is to be let go.
  bool pass(const files::Descriptor& from, const files::Descriptor& to, bool toServer) {
    char block[1 << 16];
    const ssize_t got = read(from.number(), block, sizeof block);
    if (got <= 0) return false;
    const std::string_view packet(block, static_cast<std::size_t>(got));
    const bool cut = toServer && cut_ != Cut::None && packet.find(text_) != std::string_view::npos;
    if (toServer) std::this_thread::sleep_for(delay_.load());
    const bool before = cut && cut_ == Cut::Before;
    if (!before && send(to.number(), block, packet.size(), MSG_NOSIGNAL) != got) return false;
    if (!cut) return true;
    if (!before) read(to.number(), block, sizeof block);  // the answer that nobody hears
    cut_ = Cut::None;
    closed_ = !staysOpen_;
    return false;
  }

  store::ServerAddress server_;
  std::string folder_;
  files::Descriptor door_;
  std::list<Pair> pairs_;
  std::string text_;
  std::atomic<Cut> cut_ = Cut::None;
  std::atomic<std::chrono::microseconds> delay_{};
  std::atomic<bool> closed_ = false, staysOpen_ = false, over_ = false;
  std::thread thread_;
};

}  // namespace fidaleon::tests
