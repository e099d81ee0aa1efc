#pragma once

#include <libpq-fe.h>

#include <string>
#include <string_view>

#include "store/Error.h"

namespace fidaleon::store {

/// The five signs by which PostgreSQL tells errors apart, as Error::number() has them.
constexpr int sqlState(std::string_view signs) {
  int number = 0;
  for (const char c : signs) number = number * 36 + (c >= 'A' && c <= 'Z' ? c - 'A' + 10 : c - '0');
  return number;
}

constexpr int kWrongPassword = sqlState("28P01");

/// What the server says by an answer, told in Spanish; that it is gone, where it is not the
/// server's or there is none.
Error postgresError(const PGresult* answer);
/// The same when no link came about; the library tells only words. `shown` names the server.
Error connectionError(PGconn* link, const std::string& shown);
/// The same in the middle of work, with what becomes of that.
Error stillAway(const Error& error);

}  // namespace fidaleon::store
