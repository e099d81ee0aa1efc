#pragma once
// The two places where desks meet, for tests that hold at both.

#include <gtest/gtest.h>

#include <fstream>

#include "store/postgres/ServerAccess.h"
#include "support/PostgresCluster.h"

namespace fidaleon::tests {

/// One for all tests of a program: each gives back what it has taken.
inline store::ServerAddress meetingServer() {
  static const PostgresDatabase database;
  return database.address();
}

/// Whoever meets in this folder meets on the server from now on.
inline void meetOnServer(const std::filesystem::path& folder) {
  std::ofstream(folder / store::ADDRESS_FILE) << meetingServer().written();
}

enum class Place { Folder, Server };
inline void PrintTo(Place place, std::ostream* out) {
  *out << (place == Place::Folder ? "Folder" : "Server");
}
#define MEETING_PLACES(suite)                                                            \
  INSTANTIATE_TEST_SUITE_P(Both, suite, ::testing::Values(Place::Folder, Place::Server), \
                           ::testing::PrintToStringParamName())

}  // namespace fidaleon::tests
