// Tables with arbitrary bytes: each is read whole or refused, and nothing else may happen. A longer
// run by hand: FIDALEON_FUZZ_ROUNDS=2000000 test_dbase --gtest_filter='Fuzz*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "dbase/LegacyTable.h"
#include "dbase/Reading.h"
#include "text/Utf8.h"

namespace {

namespace db = fidaleon::dbase;

std::string joined(db::Memos::Kind kind, const std::string& table, const std::string& memos) {
  return char(kind) + db::LegacyTable::little(table.size(), 4) + table + memos;
}

void requireSameOutOfTurn(const std::string& dbf, const std::string& memos, db::Memos::Kind kind) {
  db::Table inTurn(db::filesOf(dbf, memos, kind), {}, {});
  db::Table other(db::filesOf(dbf, memos, kind), {}, {});
  db::Row a, b;
  for (other.at(3, b); inTurn.next(a);)
    if (!other.at(a.record(), b) || a[0].kind != b[0].kind ||
        a[a.size() - 1].text != b[a.size() - 1].text)
      std::abort();
}

}  // namespace

/// One input: the layout of the memos, the length of the table, the table, its memos.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 5) return 0;
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const std::size_t length = std::min<std::size_t>(db::littleEndian(all.substr(1)), size - 5);
  const std::string table(all.substr(5, length)), memos(all.substr(5 + length));
  const auto kind = static_cast<db::Memos::Kind>(data[0] % 3);
  const db::Reading r = db::readBytes(table, memos, kind);
  if (fidaleon::text::sanitized(r.csv) != r.csv) std::abort();
  if (!r.refusal.empty() && !r.csv.empty()) std::abort();
  if (r.refusal.empty()) requireSameOutOfTurn(table, memos, kind);
  return 0;
}

namespace {

std::string contentOf(const std::string& name) {
  std::ifstream in(std::filesystem::path(DBASE_DATA) / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> corpus() {
  std::vector<std::string> all = {
      joined(db::Memos::Kind::Marked, contentOf("dbase3.dbf"), contentOf("dbase3.dbt")),
      joined(db::Memos::Kind::Fpt, contentOf("foxpro.dbf"), contentOf("foxpro.fpt")),
      joined(db::Memos::Kind::Fpt, contentOf("visual.dbf"), contentOf("visual.fpt")),
      joined(db::Memos::Kind::Signed, contentOf("utf8.dbf"), {})};
  db::LegacyTable table;
  table.column("A", 'C', 9).column("M", 'M', 10).column("N", 'N', 8, 2).column("D", 'D', 8);
  table.row({"uno", "nota", "1.5", "19410228"}).row({"dos", std::string(900, 'n'), "", ""});
  all.push_back(joined(db::Memos::Kind::Signed, table.dbf(), table.memoFile()));
  return all;
}

std::string mutated(std::string input, std::mt19937& random) {
  constexpr unsigned char EDGES[] = {0, 1, 0x0D, 0x1A, ' ', '*', '9', 0x7F, 0x80, 0xFF};
  for (unsigned left = 1 + random() % 6; left > 0; --left) {
    // The head decides most, and is a small part of the whole.
    const std::size_t at =
        random() % (random() % 2 == 0 ? std::min<std::size_t>(input.size(), 300) : input.size());
    const unsigned how = random() % 8;
    if (how < 4) input[at] = char(EDGES[random() % sizeof EDGES]);
    if (how == 4 || how == 5) input[at] = char(random());
    if (how == 6) input[at] = char(input[at] ^ (1 << random() % 8));
    if (how == 7 && random() % 4 == 0) input.resize(at + 6);
  }
  return input;
}

TEST(Fuzz, readsOrRefusesWhateverItIsGiven) {
  const char* asked = std::getenv("FIDALEON_FUZZ_ROUNDS");
  const long rounds = asked != nullptr ? std::atol(asked) : 2500;
  const std::vector<std::string> seeds = corpus();
  std::mt19937 random(20030517);
  for (long i = 0; i < rounds; ++i) {
    const std::string input = mutated(seeds[static_cast<std::size_t>(i) % seeds.size()], random);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
  }
}

}  // namespace
