// rooms: dbase import support
// Tables of the older program: reading them beside a loop that knows its columns, and bringing them
// into books.

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "benches/Bench.h"
#include "benches/World.h"
#include "dbase/Table.h"
#include "import/cImportarInpar.h"

namespace {

using namespace fidaleon;
namespace fs = std::filesystem;

constexpr int kTexts = 55;
constexpr int kWidth = 20;
constexpr int kRuns = 3;

std::string number(std::uint64_t n, int bytes) {
  std::string s;
  for (; bytes > 0; --bytes, n >>= 8) s += static_cast<char>(n & 0xFF);
  return s;
}

struct Column {
  const char* name;
  char letter;
  int width;
};

/// The first columns are those of a register of baptisms; the others only fill the row.
std::vector<Column> columns() {
  std::vector<Column> all = {
      {"LIBRO_B", 'N', 4},    {"FOLIO_B", 'N', 5},     {"NUMERO_B", 'N', 5},
      {"FECHA_BAU", 'D', 8},  {"OBSERVA", 'M', 10},    {"NOMBRE", 'C', kWidth},
      {"APELLIDO1", 'C', 20}, {"APELLIDO2", 'C', 20},  {"PADRE", 'C', 20},
      {"MADRE", 'C', 20},     {"POBL_PADRE", 'C', 20}, {"PROV_PADRE", 'C', 20},
      {"PADRINO", 'C', 20},   {"MINISTRO", 'C', 20}};
  static std::vector<std::string> names;
  names.reserve(kTexts);
  while (all.size() < kTexts + 5) {
    names.push_back("C" + std::to_string(all.size()));
    all.push_back({names.back().c_str(), 'C', kWidth});
  }
  return all;
}

std::string padded(std::string text, int width, bool left) {
  const std::string blanks(static_cast<std::size_t>(width) - text.size(), ' ');
  return left ? blanks + text : text + blanks;
}

void writeTable(const fs::path& folder, int rows) {
  const std::vector<Column> all = columns();
  std::string head = number(0x8B, 1) + "\x5F\x01\x01" + number(static_cast<unsigned>(rows), 4);
  std::size_t width = 1;
  for (const Column& c : all) width += static_cast<std::size_t>(c.width);
  head += number(32 + 32 * all.size() + 1, 2) + number(width, 2) + std::string(20, '\0');
  head[29] = 2;
  for (const Column& c : all)
    head += padded(c.name, 11, false)
                .replace(std::string(c.name).size(), 11 - std::string(c.name).size(),
                         11 - std::string(c.name).size(), '\0') +
            c.letter + std::string(4, '\0') + number(static_cast<unsigned>(c.width), 1) +
            std::string(15, '\0');
  std::ofstream table(folder / "BAUT.DBF", std::ios::binary),
      memos(folder / "BAUT.DBT", std::ios::binary);
  table << head << '\r';
  std::string memoHead(512, '\0');
  memoHead[21] = 2;
  memos << memoHead;
  for (int i = 0; i < rows; ++i) {
    std::string note =
        "Nota de la partida n\xA3mero " + std::to_string(i) + ", tal como est\xA0 en el libro.";
    std::string block = std::string("\xFF\xFF\x08\0", 4) + number(note.size() + 8, 4) + note;
    block.resize(512, '\0');
    memos << block;
    std::string record = " ";
    for (const Column& c : all) {
      const std::string name = c.name;
      std::string value =
          "Garc\xA1"
          "a " +
          std::to_string((i * 7 + c.width) % 997);
      if (name == "LIBRO_B") value = std::to_string(1 + i / 2000);
      if (name == "FOLIO_B") value = std::to_string(1 + i % 2000 / 4);
      if (name == "NUMERO_B") value = std::to_string(1 + i % 4);
      if (c.letter == 'D') value = "19" + std::to_string(10 + i % 80) + "0217";
      if (c.letter == 'M') value = padded(std::to_string(1 + i), 10, true);
      if (name == "PADRE" || name == "MADRE") value = "Juan P\x82rez L\xA2pez";
      if (name == "POBL_PADRE") value = "Pueblo " + std::to_string(i % 50);
      if (name == "PROV_PADRE") value = "Provincia " + std::to_string(i % 5);
      record += padded(value, c.width, c.letter == 'N');
    }
    table << record;
  }
  table << '\x1A';
}

/// What whoever knows these columns would write: each value converted, nothing checked.
std::size_t readByHand(const fs::path& folder, int rows) {
  const std::vector<Column> all = columns();
  std::size_t width = 1, sum = 0;
  for (const Column& c : all) width += static_cast<std::size_t>(c.width);
  FILE* table = std::fopen((folder / "BAUT.DBF").c_str(), "rb");
  FILE* memos = std::fopen((folder / "BAUT.DBT").c_str(), "rb");
  std::fseek(table, static_cast<long>(33 + 32 * all.size()), SEEK_SET);
  std::vector<char> record(width), block(512);
  std::string letters[256];
  for (int i = 0; i < 256; ++i) letters[i] = i < 128 ? std::string(1, char(i)) : "\xC3\xA1";
  std::vector<std::string> row(all.size());
  for (int i = 0; i < rows && std::fread(record.data(), 1, width, table) == width; ++i) {
    const char* at = record.data() + 1;
    for (std::size_t c = 0; c < all.size(); at += all[c].width, ++c) {
      row[c].clear();
      const char* end = at + all[c].width;
      while (end > at && end[-1] == ' ') --end;
      if (all[c].letter == 'N' || all[c].letter == 'D')
        sum += static_cast<std::size_t>(std::atol(std::string(at, end).c_str()));
      if (all[c].letter == 'M') {
        std::fseek(memos, std::atol(std::string(at, end).c_str()) * 512, SEEK_SET);
        if (std::fread(block.data(), 1, 512, memos) != 512) continue;
        const unsigned char* length = reinterpret_cast<const unsigned char*>(block.data()) + 4;
        for (unsigned k = 8; k < length[0] + 256U * length[1]; ++k)
          row[c] += letters[static_cast<unsigned char>(block[k])];
      }
      if (all[c].letter == 'C')
        for (const char* p = at; p < end; ++p) row[c] += letters[static_cast<unsigned char>(*p)];
      sum += row[c].size();
    }
  }
  std::fclose(table);
  std::fclose(memos);
  return sum;
}

std::size_t readOurs(const fs::path& folder) {
  dbase::Table table = dbase::Table::open(folder / "BAUT.DBF", "", {});
  std::size_t sum = 0;
  for (dbase::Row row; table.next(row);)
    for (std::size_t i = 0; i < row.size(); ++i) sum += row[i].text.size();
  return sum;
}

struct NoProgress : FDAPI::cProgreso {
  void Cargar(std::int64_t, const std::string&, int, int) override {}
  void setValue(std::int64_t) override {}
};

std::int64_t import(const fs::path& folder, const fs::path& parish) {
  bench::World world;
  fs::remove(parish);
  const auto connection = store::createDatabase(parish, store::parishSchema());
  cImportarInpar inpar(world.contexto);
  inpar.strAno00 = "20";
  NoProgress progress;
  inpar.InparBautismo({*connection, {}, 1, progress}, folder.string(),
                      {true, "San Juan", "Madrid", 1, 1});
  return inpar.resultado().registros.at(0).escritas;
}

double megabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void atLeast(const std::string& what, double rate, double aim, const std::string& limit) {
  bench::line(what, bench::shown(rate, "/s"), limit, "-", ">= " + bench::shown(aim, "/s"),
              rate >= aim);
}

}  // namespace

int main(int argc, char** argv) {
  const int rows = argc > 1 ? std::atoi(argv[1]) : 50000;
  const fs::path folder = fs::temp_directory_path() / "fidaleon-bench-inpar";
  fs::create_directories(folder);
  writeTable(folder, rows);
  std::size_t ours = 0, hand = 0;
  const bench::Pair pair = bench::inTurn(
      kRuns, [&] { ours = readOurs(folder); }, [&] { hand = readByHand(folder, rows); });
  if (ours == 0 || hand == 0) return 1;
  atLeast("filas de 60 columnas con memo, leídas", rows / pair.ours * 1e3, 60000,
          bench::shown(rows / pair.limit * 1e3, "/s"));
  bench::ratio("leerlas / bucle a mano", pair, 2);
  bench::line("memoria al leer", bench::shown(megabytes(), " MB"), "-", "-", "<= 100 MB",
              megabytes() <= 100);
  std::int64_t written = 0;
  const double importing =
      bench::milliseconds(1, [&] { written = import(folder, folder / "parroquia.fidaleon"); });
  if (written != rows) return 1;
  atLeast("bautismos traídos a sus cinco tablas", rows / importing * 1e3, 20000, "-");
  bench::line("memoria al traerlos", bench::shown(megabytes(), " MB"), "-", "-", "<= 100 MB",
              megabytes() <= 100);
  fs::remove_all(folder);
  return 0;
}
