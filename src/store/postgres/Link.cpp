#include "store/postgres/Link.h"

#include <poll.h>

#include <charconv>
#include <cstdlib>
#include <utility>

#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

constexpr int kOldest = 140000;  // the first that looks whether its client is still there

constexpr const char* kSettings =
    "SET search_path TO fidaleon; SET standard_conforming_strings TO on; "
    "SET client_min_messages TO warning; SET lock_timeout TO '4s'; "
    "SET statement_timeout TO 0; SET idle_in_transaction_session_timeout TO 0; "
    "SET idle_session_timeout TO 0; "
    "SET jit TO off; "  // it takes longer than any statement of ours
    "SET tcp_keepalives_idle TO 10; SET tcp_keepalives_interval TO 5; "
    "SET tcp_keepalives_count TO 3; SET tcp_user_timeout TO '25s'; "
    "SET client_connection_check_interval TO '5s'";

PGconn* connect(const ServerAddress& address, const std::string& password,
                const std::string& purpose) {
  ServerAddress::Parameters all = address.parameters();
  all.emplace_back("application_name", purpose);
  if (!password.empty()) all.emplace_back("password", password);
  std::vector<const char*> keys, values;
  for (const auto& [key, value] : all) {
    keys.push_back(key.c_str());
    values.push_back(value.c_str());
  }
  keys.push_back(nullptr);
  values.push_back(nullptr);
  return PQconnectdbParams(keys.data(), values.data(), 0);
}

/// An answer that is not the server's: the library found out that the link is lost. Of a link that
/// can only not be written to any more it says elsewhere that all is well.
bool isOfLibrary(const PGresult* failure) {
  return PQresultErrorField(failure, PG_DIAG_SQLSTATE) == nullptr;
}

bool isFailure(const PGresult* answer) {
  switch (PQresultStatus(answer)) {
    case PGRES_COMMAND_OK:
    case PGRES_TUPLES_OK:
    case PGRES_SINGLE_TUPLE:
    case PGRES_PIPELINE_SYNC:
    case PGRES_EMPTY_QUERY:
      return false;
    default:
      return true;
  }
}

std::string quoted(std::string_view plain, const char* quote) {
  return quote + text::replaceAll(plain, quote, std::string(quote) + quote) + quote;
}

}  // namespace

std::int64_t Answer::integer(int row, int column) const {
  std::int64_t n = 0;
  const std::string_view digits = text(row, column);
  std::from_chars(digits.data(), digits.data() + digits.size(), n);
  return n;
}

std::int64_t Answer::touched() const {
  return std::strtoll(PQcmdTuples(result_.get()), nullptr, 10);
}

Link::Link(const ServerAddress& address, const std::string& password, const std::string& purpose)
    : address_(address), link_(connect(address, password, purpose)) {
  settle();
}

void Link::settle() {
  if (!isOpen()) throw connectionError(link_.get(), address_.shown());
  requireRecent(PQserverVersion(link_.get()));
  requireAllSigns();
  PQsetNoticeProcessor(
      link_.get(), [](void*, const char*) {}, nullptr);
  {
    const std::lock_guard guard(cancelling_);
    cancel_.reset(PQgetCancel(link_.get()));
  }
  run(kSettings);
}

void Link::requireRecent(int version) {
  if (version >= kOldest) return;
  throw Error(ErrorKind::NotADatabase, "El servidor tiene PostgreSQL " +
                                           std::to_string(version / 10000) +
                                           ": hace falta PostgreSQL 14 o posterior.");
}

void Link::requireAllSigns() const {
  const char* encoding = PQparameterStatus(link_.get(), "server_encoding");
  if (encoding != nullptr && std::string_view(encoding) == "UTF8") return;
  throw Error(ErrorKind::NotADatabase,
              "La base de datos " + address_.shown() +
                  " no puede guardar todas las letras: no está en UTF-8. Hay que crear otra, como "
                  "hace el guion de fidaleon --guion.");
}

void Link::renew() {
  freeForOthers();
  heard_.clear();
  PQreset(link_.get());
  isLost_ = false;
  ++generation_;
  try {
    settle();
  } catch (const Error& error) {
    throw stillAway(error);
  }
}

void Link::cancel() {
  const std::lock_guard guard(cancelling_);
  char words[256];
  if (cancel_ != nullptr) PQcancel(cancel_.get(), words, sizeof words);
}

bool Link::inTransaction() const {
  const auto status = PQtransactionStatus(link_.get());
  return status == PQTRANS_INTRANS || status == PQTRANS_INERROR;
}

void Link::check(const Answer& answer) {
  if (answer.get() != nullptr && !isFailure(answer.get())) return;
  if (isOfLibrary(answer.get())) lost();
  throw postgresError(answer.get());
}

void Link::lost() {
  heard_.clear();
  isLost_ = true;
  throw postgresError(nullptr);
}

void Link::freeForOthers() {
  if (reader_ != nullptr) std::exchange(reader_, nullptr)->takeAll();
}

void Link::run(const std::string& sql) {
  freeForOthers();
  ++journeys_;
  check(Answer(PQexec(link_.get(), sql.c_str())));
}

Answer Link::ask(const std::string& sql, const std::vector<std::string>& values) {
  Request request{{}, sql};
  for (const std::string& value : values) request.values.push_back(value.c_str());
  return exec(request);
}

void Link::send(const Request& request) {
  PGconn* link = link_.get();
  const int count = static_cast<int>(request.values.size());
  const char* const* values = request.values.data();
  const bool sent = request.name.empty()
                        ? PQsendQueryParams(link, request.sql.c_str(), count, nullptr, values,
                                            nullptr, nullptr, 0) != 0
                        : PQsendQueryPrepared(link, request.name.c_str(), count, values, nullptr,
                                              nullptr, 0) != 0;
  if (!sent) lost();
}

/// The one answer to one statement, and the end of it.
Answer Link::receive() {
  Answer answer(PQgetResult(link_.get()));
  while (PGresult* further = PQgetResult(link_.get())) PQclear(further);
  return answer;
}

Answer Link::exec(const Request& request) {
  freeForOthers();
  ++journeys_;
  send(request);
  Answer answer = receive();
  check(answer);
  return answer;
}

Answer Link::carryOut(const std::vector<Request>& requests) {
  for (const Request& request : requests) add(request);
  return finish();
}

void Link::addPrepared(const Request& request) {
  freeForOthers();
  PQenterPipelineMode(link_.get());
  if (!PQsendPrepare(link_.get(), request.name.c_str(), request.sql.c_str(), 0, nullptr)) lost();
  heard_.emplace_back();
}

void Link::add(const Request& request, Heard heard) {
  freeForOthers();
  PQenterPipelineMode(link_.get());
  if (!request.name.empty() && !request.sql.empty()) addPrepared(request);
  send(request);
  heard_.push_back(std::move(heard));
}

Answer Link::finish() {
  ++journeys_;
  if (PQpipelineSync(link_.get()) == 0) lost();
  const std::deque<Heard> heard = std::exchange(heard_, {});
  Answer last;
  Answer failure;
  for (std::size_t i = 0; i < heard.size(); ++i) {
    last = receive();
    if (failure.get() != nullptr) continue;
    if (last.get() == nullptr || isFailure(last.get())) {
      failedAt_ = i;
      failure = std::move(last);
      if (isOfLibrary(failure.get()) || !isOpen()) lost();
    } else if (heard[i]) {
      heard[i](last);
    }
  }
  if (!isOpen()) lost();
  Answer(PQgetResult(link_.get()));  // the mark behind the last one, with nothing after it
  PQexitPipelineMode(link_.get());
  if (failure.get() != nullptr) check(failure);
  return last;
}

void Link::read(const Request& request, Reader& reader) {
  freeForOthers();
  ++journeys_;
  send(request);
  PQsetSingleRowMode(link_.get());
  reader_ = &reader;
}

Answer Link::next() {
  Answer answer(PQgetResult(link_.get()));
  if (answer.isRow()) return answer;
  reader_ = nullptr;
  while (PGresult* further = PQgetResult(link_.get())) PQclear(further);
  // The library goes on giving rows singly to what is sent next in a bundle, until something is
  // sent by itself.
  ++journeys_;
  PQclear(PQexec(link_.get(), ""));
  check(answer);
  return answer;
}

std::vector<Link::Notice> Link::notices() {
  if (PQconsumeInput(link_.get()) == 0) lost();
  std::vector<Notice> all;
  while (PGnotify* notice = PQnotifies(link_.get())) {
    all.push_back({notice->relname, notice->extra, notice->be_pid == PQbackendPID(link_.get())});
    PQfreemem(notice);
  }
  return all;
}

bool Link::wait(std::chrono::milliseconds most) {
  pollfd look{PQsocket(link_.get()), POLLIN, 0};
  return poll(&look, 1, static_cast<int>(most.count())) > 0;
}

std::string Link::name(std::string_view plain) {
  return quoted(plain, "\"");
}

std::string Link::text(std::string_view plain) {
  return quoted(plain, "'");
}

}  // namespace fidaleon::store
