#pragma once

#include <functional>
#include <memory>

#include "store/Connection.h"

namespace fidaleon::store {

/// Tells when a connection is about to take rows away. Stays between the connection and its engine
/// for as long as both live; without anybody to tell it does nothing.
class RemovalWatch {
 public:
  using Told = std::function<void()>;

  explicit RemovalWatch(Connection& connection);
  ~RemovalWatch();
  RemovalWatch(const RemovalWatch&) = delete;
  RemovalWatch& operator=(const RemovalWatch&) = delete;

  /// Somebody to be told, for as long as this lives. One at a time.
  class Listener {
   public:
    /// `told` is called ahead of every such statement, and of a transaction that says it has some.
    /// What it throws keeps them from being carried out and goes on to whoever issued them.
    Listener(RemovalWatch& watch, Told told);
    ~Listener();
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

   private:
    Told& place_;
  };

 private:
  std::shared_ptr<Told> told_;
};

}  // namespace fidaleon::store
