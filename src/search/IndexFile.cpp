#include "search/IndexFile.h"

#include <algorithm>

#include "files/Durable.h"
#include "files/PrivateFile.h"
#include "store/Companions.h"
#include "store/sqlite/SqliteEngine.h"
#include "store/sqlite/SqliteErrors.h"

namespace fidaleon::search {
namespace {

constexpr std::int64_t PARTS_OF_A_MARK = 1 << 16;

constexpr const char* TABLES =
    "PRAGMA cache_size = -16000;"
    "CREATE TABLE IF NOT EXISTS palabra(id INTEGER PRIMARY KEY, texto TEXT NOT NULL UNIQUE);"
    "CREATE TABLE IF NOT EXISTS ficha(id INTEGER PRIMARY KEY, registro INTEGER NOT NULL, "
    "clave INTEGER NOT NULL, resumen INTEGER NOT NULL, campos BLOB NOT NULL, "
    "UNIQUE(registro, clave));"
    "CREATE TABLE IF NOT EXISTS lugar(id INTEGER PRIMARY KEY, fichas BLOB NOT NULL);"
    "CREATE TABLE IF NOT EXISTS hasta(registro INTEGER PRIMARY KEY, clave INTEGER NOT NULL);";

/// A statement that stays prepared.
class Prepared {
 public:
  Prepared(sqlite3* db, const char* sql) : db_(db) {
    store::check(sqlite3_prepare_v3(db, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr),
                 db);
  }
  ~Prepared() { sqlite3_finalize(statement_); }
  Prepared(const Prepared&) = delete;
  Prepared& operator=(const Prepared&) = delete;

  template <class... Values>
  Prepared& with(const Values&... values) {
    sqlite3_reset(statement_);
    int number = 0;
    (bind(++number, values), ...);
    return *this;
  }
  bool step() {
    const int code = sqlite3_step(statement_);
    if (code == SQLITE_ROW) return true;
    sqlite3_reset(statement_);
    if (code != SQLITE_DONE) throw store::sqliteError(code, db_);
    return false;
  }
  /// The only row, of which nothing else is wanted.
  std::int64_t number() {
    const std::int64_t value = step() ? integer(0) : 0;
    sqlite3_reset(statement_);
    return value;
  }
  void done() { sqlite3_reset(statement_); }
  std::int64_t integer(int column) const { return sqlite3_column_int64(statement_, column); }
  std::string_view bytes(int column) const {
    const void* data = sqlite3_column_blob(statement_, column);
    return {static_cast<const char*>(data),
            static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
  }

 private:
  void bind(int number, std::int64_t value) {
    store::check(sqlite3_bind_int64(statement_, number, value), db_);
  }
  void bind(int number, const std::string& bytes) {
    store::check(sqlite3_bind_blob(statement_, number, bytes.data(), static_cast<int>(bytes.size()),
                                   SQLITE_STATIC),
                 db_);
  }
  void bind(int number, std::string_view text) {
    store::check(sqlite3_bind_text(statement_, number, text.data(), static_cast<int>(text.size()),
                                   SQLITE_STATIC),
                 db_);
  }

  sqlite3* db_;
  sqlite3_stmt* statement_ = nullptr;
};

constexpr std::int64_t firstPart(MarkId mark) {
  return static_cast<std::int64_t>(mark) * PARTS_OF_A_MARK;
}

/// Of this account alone, or of the group that its folder is for.
void makeIfMissing(const std::filesystem::path& file) {
  if (files::isThere(file)) return;
  try {
    files::create(file);
  } catch (const std::filesystem::filesystem_error& e) {
    if (e.code() != std::errc::file_exists)  // another desk has just made it
      throw store::Error(store::ErrorKind::ReadOnly,
                         "No se puede escribir el índice de la búsqueda en la carpeta «" +
                             file.parent_path().string() + "» (" + e.code().message() + ").");
  }
}

void endUnfinished(store::SqliteEngine& engine) {
  try {
    if (engine.inTransaction()) engine.rollback(0);
  } catch (const store::Error&) {
    // The engine undoes it when the connection closes.
  }
}

sqlite3* withTables(store::SqliteEngine& engine) {
  engine.run(TABLES);
  return engine.handle();
}

}  // namespace

struct IndexFile::Impl {
  explicit Impl(const std::filesystem::path& file)
      : engine(file, store::SqliteEngine::Access::Create) {}

  store::SqliteEngine engine;
  sqlite3* db = withTables(engine);
  Prepared version{db, "PRAGMA data_version"};
  Prepared words{db, "SELECT texto FROM palabra WHERE id>? ORDER BY id"};
  Prepared addWord{db, "INSERT INTO palabra(texto) VALUES(?)"};
  Prepared wordId{db, "SELECT id FROM palabra WHERE texto=?"};
  Prepared highest{db, "SELECT max(id) FROM ficha"};
  Prepared count{db, "SELECT count(*) FROM ficha"};
  Prepared marked{db, "SELECT id, fichas FROM lugar WHERE id>=? AND id<?"};
  Prepared part{db, "SELECT fichas FROM lugar WHERE id=?"};
  Prepared putPart{db, "INSERT OR REPLACE INTO lugar VALUES(?,?)"};
  Prepared dropPart{db, "DELETE FROM lugar WHERE id=?"};
  Prepared document{db, "SELECT registro, clave, resumen, campos FROM ficha WHERE id=?"};
  Prepared known{db,
                 "SELECT clave, resumen FROM ficha WHERE registro=? AND clave>? AND clave<=? ORDER "
                 "BY clave"};
  Prepared placeOf{db, "SELECT id, campos FROM ficha WHERE registro=? AND clave=?"};
  Prepared putDocument{db, "INSERT OR REPLACE INTO ficha VALUES(?,?,?,?,?)"};
  Prepared dropDocument{db, "DELETE FROM ficha WHERE id=?"};
  Prepared reached{db, "SELECT clave FROM hasta WHERE registro=?"};
  Prepared setReached{db, "INSERT OR REPLACE INTO hasta VALUES(?,?)"};
};

std::filesystem::path IndexFile::fileIn(const std::filesystem::path& folder) {
  return folder / "parroquia.busqueda";
}

IndexFile::IndexFile(const std::filesystem::path& file) : file_(file) {
  makeIfMissing(file);
  try {
    impl_ = std::make_unique<Impl>(file);
  } catch (const store::Error& e) {
    if (e.kind() != store::ErrorKind::NotADatabase) throw;
    identity_ = files::identityOf(file);
    remove();
    throw;
  }
  identity_ = files::identityOf(file);
}

IndexFile::~IndexFile() = default;

void IndexFile::remove() noexcept {
  if (!isInPlace()) return;
  std::error_code ignored;
  std::filesystem::remove(file_, ignored);
  for (const auto& companion : store::companionsOf(file_))
    std::filesystem::remove(companion, ignored);
}

bool IndexFile::isInPlace() const {
  return identity_ && files::identityOf(file_) == identity_;
}

void IndexFile::learn(Vocabulary& words) {
  Prepared& rows = impl_->words.with(static_cast<std::int64_t>(words.size()));
  while (rows.step()) words.add(std::string(rows.bytes(0)));
}

std::int64_t IndexFile::version() {
  return impl_->version.with().number();
}

std::int64_t IndexFile::end() {
  return impl_->highest.with().number() + 1;
}

std::int64_t IndexFile::count() {
  return impl_->count.with().number();
}

void IndexFile::add(DocumentSet& set, MarkId mark) {
  const std::int64_t first = firstPart(mark);
  Prepared& rows = impl_->marked.with(first, first + PARTS_OF_A_MARK);
  while (rows.step()) set.add(rows.integer(0) - first, rows.bytes(1));
}

Document IndexFile::document(std::int64_t number) {
  Document document;
  Prepared& row = impl_->document.with(number);
  if (!row.step()) return document;
  document.in = static_cast<Register>(row.integer(0));
  document.key = static_cast<std::int32_t>(row.integer(1));
  document.digest = static_cast<std::uint64_t>(row.integer(2));
  const bool sound = unpack(row.bytes(3), document);
  row.done();
  if (!sound || document.in > Register::Census)
    throw store::Error(store::ErrorKind::NotADatabase, "El índice de la búsqueda está dañado.");
  return document;
}

std::vector<IndexFile::Known> IndexFile::known(Register in, std::int64_t after, std::int64_t upTo) {
  std::vector<Known> all;
  Prepared& rows = impl_->known.with(static_cast<std::int64_t>(in), after, upTo);
  while (rows.step())
    all.push_back(
        {static_cast<std::int32_t>(rows.integer(0)), static_cast<std::uint64_t>(rows.integer(1))});
  return all;
}

std::int64_t IndexFile::reached(Register in) {
  return impl_->reached.with(static_cast<std::int64_t>(in)).number();
}

IndexFile::Reading::Reading(IndexFile& file) : file_(file) {
  file_.impl_->engine.beginReading();
}

IndexFile::Reading::~Reading() {
  endUnfinished(file_.impl_->engine);
}

IndexFile::Writing::Writing(IndexFile& file) : file_(file) {
  file_.impl_->engine.begin(0);
}

IndexFile::Writing::~Writing() {
  if (!committed_) endUnfinished(file_.impl_->engine);
}

void IndexFile::Writing::setReached(Register in, std::int64_t key) {
  file_.impl_->setReached.with(static_cast<std::int64_t>(in), key).step();
}

WordId IndexFile::Writing::add(const std::string& word) {
  const std::int64_t known = file_.impl_->wordId.with(std::string_view(word)).number();
  if (known != 0) return static_cast<WordId>(known);
  file_.impl_->addWord.with(std::string_view(word)).step();
  return static_cast<WordId>(sqlite3_last_insert_rowid(file_.impl_->db));
}

/// Takes back the marks of an entry; its number among the documents, or 0.
std::int64_t IndexFile::Writing::forget(Register in, std::int32_t key) {
  Prepared& row = file_.impl_->placeOf.with(static_cast<std::int64_t>(in), std::int64_t{key});
  if (!row.step()) return 0;
  const std::int64_t number = row.integer(0);
  Document document;
  unpack(row.bytes(1), document);
  row.done();
  for (const MarkId mark : marksOf(document)) gone_.push_back({mark, number});
  return number;
}

void IndexFile::Writing::put(const std::vector<Document>& documents) {
  std::int64_t next = file_.end();
  for (const Document& d : documents) {
    const std::int64_t before = forget(d.in, d.key);
    const std::int64_t number = before != 0 ? before : next++;
    for (const MarkId mark : marksOf(d)) come_.push_back({mark, number});
    file_.impl_->putDocument
        .with(number, static_cast<std::int64_t>(d.in), std::int64_t{d.key},
              static_cast<std::int64_t>(d.digest), packed(d))
        .step();
  }
  apply();
}

void IndexFile::Writing::remove(Register in, const std::vector<std::int32_t>& keys) {
  for (const std::int32_t key : keys)
    if (const std::int64_t number = forget(in, key); number != 0)
      file_.impl_->dropDocument.with(number).step();
  apply();
}

/// Each part of each mark is read and written once for all its documents.
void IndexFile::Writing::apply() {
  std::sort(gone_.begin(), gone_.end());
  std::sort(come_.begin(), come_.end());
  auto gone = gone_.begin();
  auto come = come_.begin();
  const auto placeOf = [](const Change& c) { return firstPart(c.mark) + c.document / PART; };
  std::vector<std::uint16_t> out, in, rest, whole;
  const auto collect = [&](auto& at, auto end, std::int64_t place, std::vector<std::uint16_t>& to) {
    for (to.clear(); at != end && placeOf(*at) == place; ++at)
      to.push_back(static_cast<std::uint16_t>(at->document % PART));
  };
  while (gone != gone_.end() || come != come_.end()) {
    std::int64_t place = INT64_MAX;
    if (gone != gone_.end()) place = placeOf(*gone);
    if (come != come_.end()) place = std::min(place, placeOf(*come));
    collect(gone, gone_.end(), place, out);
    collect(come, come_.end(), place, in);
    if (out == in) continue;
    Prepared& row = file_.impl_->part.with(place);
    const std::vector<std::uint16_t> before =
        row.step() ? unpackedPart(row.bytes(0)) : std::vector<std::uint16_t>();
    row.done();
    rest.clear();
    whole.clear();
    std::set_difference(before.begin(), before.end(), out.begin(), out.end(),
                        std::back_inserter(rest));
    std::set_union(rest.begin(), rest.end(), in.begin(), in.end(), std::back_inserter(whole));
    if (whole.empty())
      file_.impl_->dropPart.with(place).step();
    else
      file_.impl_->putPart.with(place, packedPart(whole)).step();
  }
  gone_.clear();
  come_.clear();
}

void IndexFile::Writing::commit() {
  file_.impl_->engine.commit(0);
  committed_ = true;
}

}  // namespace fidaleon::search
