#pragma once

#include <memory>
#include <string>

#include "store/Engine.h"
#include "store/postgres/Doubt.h"
#include "store/postgres/Link.h"
#include "store/postgres/PostgresSpelling.h"
#include "store/postgres/PreparedNames.h"
#include "store/postgres/TableFacts.h"
#include "store/postgres/Traits.h"

namespace fidaleon::store {

/// A database on a server, by one link.
///
/// What need not be waited for is not: a transaction begins with its first statement, a statement
/// that can only be refused for want of disk goes along with the next one that is waited for, and
/// fails there. Of those that may be refused inside a transaction each is a part of its own, so
/// that the others stand.
///
/// Those that write are one at a time, as with a file: who comes second waits four seconds.
///
/// A link that is lost outside of a transaction is taken up again by the next statement. When it is
/// lost while a transaction is being ended, the server is asked on a new link whether it came to
/// its end; when it does not answer, begin() asks before anything else is written, and refuses once
/// if what was thought lost is stored.
class PostgresEngine : public Engine {
 public:
  explicit PostgresEngine(const ServerAddress& address, const std::string& password = {},
                          const std::string& purpose = "Fidaleon");
  PostgresEngine(const PostgresEngine&) = delete;
  PostgresEngine& operator=(const PostgresEngine&) = delete;

  std::unique_ptr<Statement> prepare(std::string_view sql, std::string_view source) override;
  bool sameWay(const std::string& sql, const std::string& reversed) override;
  void run(std::string_view sql) override;
  void begin(int depth) override;
  void commit(int depth) override;
  void rollback(int depth) override;
  bool inTransaction() const override { return stage_ != Stage::None; }
  const Spelling& spelling() const override { return spelling_; }
  void onTouched(Touched told) override { touched_ = std::move(told); }
  std::int64_t touchedSoFar() const override { return touchedSoFar_; }
  void beginReading() override;
  std::int64_t othersStored() override;
  void backup(const std::filesystem::path& to, const Schema& schema,
              const Progress& progress) override;
  bool isTextOrderOld() override;
  void renewTextOrder() override;
  void prepareFor(Writing writing) override;
  void fenceWith(Fence* fence) override { fence_ = fence; }
  void interrupt() override { link_.cancel(); }

  Link& link() { return link_; }

  // For its statements:

  /// Carries it out, `request` being told the name it is prepared under. A statement that writes
  /// and can wait gives an answer without rows.
  Answer carryOut(const std::string& sql, const Traits& traits, Request& request);
  /// All of its rows, one by one.
  void read(const std::string& sql, Request& request, Link::Reader& reader);
  /// The canonical name of a table that the server numbers so; empty when there is none.
  std::string tableOf(Oid number);

 private:
  enum class Stage { None, Wanted, Open };
  const TableFacts* factsOf(const std::string& table);
  void readCatalogue();
  void forgetNames();
  void takeUp();
  void open();
  /// Whether what has failed may be tried once more; puts right what stood in its way.
  bool mayTryAgain(const Error& error);
  Answer attempt(const std::string& sql, const Traits& traits, Request& request);
  Answer readInside(const std::string& sql, const Traits& traits, Request& request);
  Answer write(const std::string& sql, const Traits& traits, Request& request);
  Answer tried(const std::string& sql, Request& request, const Link::Heard& heard);
  Answer finish();
  void giveUp();
  void end();
  void tell(const std::string& table, const Answer& answer);
  void savepoint(const char* what, const std::string& name);
  void hear();
  void requireStored(const Error& error);
  void settleDoubt();

  Link link_;
  PostgresSpelling spelling_;
  Stage stage_ = Stage::None;
  bool reading_ = false;           // the transaction only reads
  bool wrote_ = false;             // the transaction has something to tell others of
  ServerTransaction transaction_;  // once the server has told it
  Doubt doubt_;
  PreparedNames names_;
  int generation_ = 0;  // of the link that has these
  KnownTables tables_;
  Fence* fence_ = nullptr;
  Touched touched_;
  std::int64_t touchedSoFar_ = 0;
  bool listening_ = false;
  std::int64_t heard_ = 0;
};

}  // namespace fidaleon::store
