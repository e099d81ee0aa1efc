#pragma once
// One connection to a PostgreSQL server. Everything throws store::Error.

#include <libpq-fe.h>

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "store/postgres/PostgresErrors.h"
#include "store/postgres/ServerAddress.h"

namespace fidaleon::store {

/// What the server has answered: rows, or nothing but that it is done.
class Answer {
 public:
  Answer() = default;
  explicit Answer(PGresult* result) : result_(result) {}

  int rows() const { return PQntuples(result_.get()); }
  int columns() const { return PQnfields(result_.get()); }
  bool isNull(int row, int column) const { return PQgetisnull(result_.get(), row, column) != 0; }
  /// Holds as long as the answer. Null is the empty text.
  std::string_view text(int row, int column) const {
    return {PQgetvalue(result_.get(), row, column),
            static_cast<std::size_t>(PQgetlength(result_.get(), row, column))};
  }
  std::int64_t integer(int row, int column) const;
  /// How many rows a statement has stored, changed or taken away.
  std::int64_t touched() const;
  bool isRow() const { return PQresultStatus(result_.get()) == PGRES_SINGLE_TUPLE; }
  PGresult* get() const { return result_.get(); }

 private:
  struct Clear {
    void operator()(PGresult* result) const { PQclear(result); }
  };
  std::unique_ptr<PGresult, Clear> result_;
};

/// A statement on its way: prepared on the link under a name, or given as text.
struct Request {
  std::string name;                      // of what is prepared; empty for `sql` as it stands
  std::string sql;                       // to be prepared under the name, when not empty
  std::vector<const char*> values = {};  // null pointers are Null; all as text
};

/// Settles on the server what each link needs: text without surprises, the schema "fidaleon" as
/// the place of its tables, and that a desk that is gone is known as gone within half a minute.
/// For one thread.
class Link {
 public:
  /// Throws Connection when there is no way to the server, with number() kWrongPassword when it
  /// does not admit the password; Missing when it has no such database; NotADatabase when it is too
  /// old (before 14). `purpose` is what the administrator sees: "Fidaleon (DESPACHO)".
  explicit Link(const ServerAddress& address, const std::string& password = {},
                const std::string& purpose = "Fidaleon");
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  /// Throws as the maker does; a version as the library numbers it, 150006 for 15.6.
  static void requireRecent(int version);
  /// Throws NotADatabase for a database that cannot keep every letter.
  void requireAllSigns() const;

  const ServerAddress& address() const { return address_; }
  /// False once an answer has not come. That a silent link is lost is not known before it is used.
  bool isOpen() const { return !isLost_ && PQstatus(link_.get()) == CONNECTION_OK; }
  /// A new link in the place of a lost one; whatever the old one had prepared or held is gone.
  void renew();
  /// Counts the links that this has been, so that others see that theirs is gone.
  int generation() const { return generation_; }
  /// As the server has last said. A transaction that an error has broken counts.
  bool inTransaction() const;
  bool isBroken() const { return PQtransactionStatus(link_.get()) == PQTRANS_INERROR; }

  /// Statements separated by semicolons, in one journey; what they return is thrown away.
  void run(const std::string& sql);
  /// One statement with values for $1, $2... A failed one outside a transaction leaves the link as
  /// it was.
  Answer ask(const std::string& sql, const std::vector<std::string>& values = {});
  /// Carries out all in one journey and answers for the last one. The first failure is thrown; what
  /// follows it is not carried out, and what came before it stays done only within a transaction
  /// that one of them has begun.
  Answer carryOut(const std::vector<Request>& requests);

  using Heard = std::function<void(Answer&)>;
  /// Puts one on its way without waiting for its answer, which `heard` is given by finish().
  void add(const Request& request, Heard heard = {});
  /// Only has it prepared.
  void addPrepared(const Request& request);
  /// Waits for the answers to all that was added and gives the last one. The first failure is
  /// thrown, once all have come; what followed it was not carried out.
  Answer finish();
  /// How many were added and not waited for.
  std::size_t added() const { return heard_.size(); }
  /// Which of those that finish() last waited for has failed, from 0.
  std::size_t failedAt() const { return failedAt_; }
  /// One alone, without what add() needs around it; nothing may be waiting.
  Answer exec(const Request& request);

  /// Whoever reads its rows one by one as they come. It has the link until it has all of them or
  /// somebody else needs it.
  class Reader {
   public:
    virtual ~Reader() = default;
    /// Takes all that is still to come. Never throws.
    virtual void takeAll() = 0;
  };
  /// Nothing may be waiting. The rows come by next(), until it gives an answer without one.
  void read(const Request& request, Reader& reader);
  Answer next();
  /// How many times the server was waited for.
  std::int64_t journeys() const { return journeys_; }

  /// What LISTEN has brought.
  struct Notice {
    std::string channel;
    std::string text;
    bool own = false;  // from this link
  };
  /// Those that have come; does not wait. Throws Connection when the link turns out to be lost.
  std::vector<Notice> notices();
  /// Waits until something comes on the link; false when nothing has come.
  bool wait(std::chrono::milliseconds most);

  /// For a name in a statement, and for a text.
  static std::string name(std::string_view plain);
  static std::string text(std::string_view plain);

  /// From another thread: what the server is doing for this link throws Cancelled.
  void cancel();

 private:
  struct Finish {
    void operator()(PGconn* link) const { PQfinish(link); }
    void operator()(PGcancel* cancel) const { PQfreeCancel(cancel); }
  };

  void settle();
  void send(const Request& request);
  Answer receive();
  void freeForOthers();
  [[noreturn]] void lost();
  /// Throws what the answer means, unless all went well.
  void check(const Answer& answer);

  ServerAddress address_;
  std::unique_ptr<PGconn, Finish> link_;
  std::mutex cancelling_;
  std::unique_ptr<PGcancel, Finish> cancel_;
  std::deque<Heard> heard_;  // for each that was added, and one more for what prepares it
  std::size_t failedAt_ = 0;
  Reader* reader_ = nullptr;
  bool isLost_ = false;
  int generation_ = 0;
  std::int64_t journeys_ = 0;
};

}  // namespace fidaleon::store
