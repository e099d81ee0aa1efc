#include "store/postgres/Link.h"

#include <poll.h>

#include <charconv>
#include <cstdlib>
#include <exception>

#include "text/Utf8.h"

namespace fidaleon::store {

namespace {

constexpr int kOldest = 140000;  // the first that looks whether its client is still there

constexpr const char* kSettings =
    "SET search_path TO fidaleon; SET standard_conforming_strings TO on; "
    "SET client_min_messages TO warning; SET lock_timeout TO '4s'; "
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
  if (PQserverVersion(link_.get()) < kOldest)
    throw Error(ErrorKind::NotADatabase,
                "El servidor es demasiado antiguo: hace falta PostgreSQL 14 o posterior.");
  PQsetNoticeProcessor(
      link_.get(), [](void*, const char*) {}, nullptr);
  run(kSettings);
}

void Link::renew() {
  PQreset(link_.get());
  ++generation_;
  settle();
}

bool Link::inTransaction() const {
  const auto status = PQtransactionStatus(link_.get());
  return status == PQTRANS_INTRANS || status == PQTRANS_INERROR;
}

void Link::check(const Answer& answer) {
  if (answer.get() == nullptr || isFailure(answer.get()))
    throw postgresError(answer.get(), link_.get());
}

void Link::run(const std::string& sql) {
  ++journeys_;
  check(Answer(PQexec(link_.get(), sql.c_str())));
}

Answer Link::ask(const std::string& sql, const std::vector<std::string>& values) {
  Request request{{}, sql};
  for (const std::string& value : values) {
    request.values.push_back(value.c_str());
    request.lengths.push_back(static_cast<int>(value.size()));
  }
  return carryOut({request});
}

void Link::send(const Request& request) {
  PGconn* link = link_.get();
  const int count = static_cast<int>(request.values.size());
  const char* name = request.name.c_str();
  const bool sent =
      request.name.empty()
          ? PQsendQueryParams(link, request.sql.c_str(), count, nullptr, request.values.data(),
                              request.lengths.data(), nullptr, 0) != 0
          : (request.sql.empty() || PQsendPrepare(link, name, request.sql.c_str(), 0, nullptr)) &&
                PQsendQueryPrepared(link, name, count, request.values.data(),
                                    request.lengths.data(), nullptr, 0) != 0;
  if (!sent) throw postgresError(nullptr, link);
}

/// The one answer to one statement, and the end of it.
Answer Link::receive() {
  Answer answer(PQgetResult(link_.get()));
  while (PGresult* further = PQgetResult(link_.get())) PQclear(further);
  return answer;
}

Answer Link::receiveAll(std::size_t requests) {
  Answer last;
  Answer failure;
  for (std::size_t i = 0; i < requests; ++i) {
    last = receive();
    if (failure.get() != nullptr || last.get() == nullptr || !isFailure(last.get())) continue;
    failure = std::move(last);
  }
  // The mark behind the last one comes with nothing after it.
  Answer(PQgetResult(link_.get()));
  if (isOpen()) PQexitPipelineMode(link_.get());
  if (failure.get() != nullptr) check(failure);
  check(last);
  return last;
}

Answer Link::carryOut(const std::vector<Request>& requests) {
  ++journeys_;
  const bool alone = requests.size() == 1 && (requests[0].name.empty() || requests[0].sql.empty());
  if (alone) {
    send(requests[0]);
    Answer answer = receive();
    check(answer);
    return answer;
  }
  PQenterPipelineMode(link_.get());
  std::size_t answers = 0;
  for (const Request& request : requests) {
    send(request);
    answers += !request.name.empty() && !request.sql.empty() ? 2 : 1;
  }
  if (PQpipelineSync(link_.get()) == 0) throw postgresError(nullptr, link_.get());
  return receiveAll(answers);
}

std::vector<Link::Notice> Link::notices() {
  if (PQconsumeInput(link_.get()) == 0) throw postgresError(nullptr, link_.get());
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
