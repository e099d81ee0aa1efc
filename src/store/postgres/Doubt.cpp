#include "store/postgres/Doubt.h"

#include <thread>

namespace fidaleon::store {

namespace {

using namespace std::chrono_literals;

constexpr int kTries = 20;
constexpr int kNotYetGiven = sqlState("22023");

std::string stateOf(Link& link, const std::string& transaction) {
  return std::string(link.ask("SELECT pg_xact_status($1::text::xid8)", {transaction}).text(0, 0));
}

bool isStored(Link& link, const std::string& transaction) {
  for (int tries = 0; tries <= kTries; ++tries) {
    const std::string state = stateOf(link, transaction);
    if (state != "in progress") return state == "committed";
    // The server has not noticed yet that nobody listens to it.
    link.ask(
        "SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE usename = current_user AND "
        "backend_xid = ($1::text::xid8)::xid",
        {transaction});
    std::this_thread::sleep_for(50ms);
  }
  throw notKnown();
}

/// Only what is stored under the number may be another's.
bool mayBeStored(Link& link, const std::string& transaction) {
  try {
    return stateOf(link, transaction) == "committed";
  } catch (const Error& error) {
    if (error.number() != kNotYetGiven) throw;
    return false;
  }
}

}  // namespace

bool Doubt::resolve(Link& link) {
  const Answer now = link.ask(std::string("SELECT ") + ServerTransaction::kEra);
  if (now.text(0, 0) == transaction_.era) {
    const bool stored = isStored(link, transaction_.number);
    drop();
    return stored;
  }
  const bool mayBe = mayBeStored(link, transaction_.number);
  drop();
  if (!mayBe) return false;
  throw Error(ErrorKind::Other,
              "El servidor de la parroquia se paró, o lo ha relevado otro, mientras guardaba, y no "
              "es seguro "
              "que lo último que se aceptó haya quedado guardado. No lo acepte otra vez antes de "
              "comprobarlo en la lista.");
}

Error notKnown() {
  return Error(
      ErrorKind::Connection,
      "Se ha perdido la conexión con el servidor mientras guardaba, y no puede saberse todavía si "
      "lo ha guardado. No cierre lo que tiene escrito: cuando el servidor responda, vuelva a "
      "aceptar y el programa lo comprobará antes de guardar nada.");
}

Error storedAfterAll() {
  return Error(
      ErrorKind::Other,
      "Lo último que se aceptó antes de perderse la conexión con el servidor sí quedó guardado. No "
      "lo acepte otra vez: cierre sin guardar y compruébelo en la lista.");
}

}  // namespace fidaleon::store
