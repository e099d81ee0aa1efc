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
#include "text/Utf8.h"

namespace {

using namespace fidaleon;
namespace fs = std::filesystem;

constexpr std::size_t kColumns = 60;
constexpr int kWidth = 20;
constexpr int kRuns = 3;

std::string number(std::uint64_t n, int bytes) {
  std::string s;
  for (; bytes > 0; --bytes, n >>= 8) s += static_cast<char>(n & 0xFF);
  return s;
}

struct Column {
  std::string name;
  char letter;
  int width;
  std::string value;  // "%" is a number that differs from row to row
};

/// All that the import asks of a register, and what else fills the row.
std::vector<Column> columns(const RegistroInpar& r) {
  std::vector<Column> all = {{r.columnaLibro, 'N', 4, ""}, {r.columnaNumero, 'N', 5, ""}};
  if (!r.columnaFolio.empty()) all.push_back({r.columnaFolio, 'N', 5, ""});
  const auto add = [&](const std::string& name, char letter, const char* value) {
    if (name.find(' ') != std::string::npos) return;
    for (const Column& c : all)
      if (text::equalsNoCase(c.name, name)) return;
    const int width = letter == 'D' ? 8 : letter == 'M' ? 10 : kWidth;
    all.push_back({name, letter, width, value});
  };
  add(r.columnaFecha, 'D', "");
  add("Observa", 'M', "");
  for (const TablaDestino& table : r.tablas)
    for (const Destino& d : table.columnas) {
      if (d.origen >= Origen::Edad && d.origen != Origen::Valor) continue;
      const bool place = d.origen == Origen::Lugar || d.origen == Origen::LugarSuelto;
      add(d.fuente.empty() ? d.columna : d.fuente, d.origen == Origen::Fecha ? 'D' : 'C',
          place                        ? "Pueblo %"
          : d.origen == Origen::Nombre ? "Juan P\x82rez L\xA2pez"
          : d.origen == Origen::Valor  ? "7"
                                       : "Garc\xA1 %");
      if (!d.otra.empty()) add(d.otra, 'C', "Madrid");
    }
  while (all.size() < kColumns) add("C" + std::to_string(all.size()), 'C', "Garc\xA1 %");
  return all;
}

std::string padded(std::string text, int width, bool left) {
  const std::string blanks(static_cast<std::size_t>(width) - text.size(), ' ');
  return left ? blanks + text : text + blanks;
}

std::string head(const std::vector<Column>& all, int rows) {
  std::size_t width = 1;
  std::string fields;
  for (const Column& c : all) {
    std::string name = c.name;
    name.resize(11, '\0');
    fields += name + c.letter + std::string(4, '\0') + char(c.width) + std::string(15, '\0');
    width += static_cast<std::size_t>(c.width);
  }
  std::string start = number(0x8B, 1) + "\x5F\x01\x01" + number(static_cast<unsigned>(rows), 4) +
                      number(32 + fields.size() + 1, 2) + number(width, 2) + std::string(20, '\0');
  start[29] = 2;
  return start + fields + '\r';
}

std::string valueOf(const RegistroInpar& r, const Column& c, int i) {
  if (c.name == r.columnaLibro) return std::to_string(1 + i / 2000);
  if (c.name == r.columnaFolio) return std::to_string(1 + i % 2000 / 4);
  if (c.name == r.columnaNumero) return std::to_string(1 + i % 2000);
  if (c.letter == 'D') return "19" + std::to_string(10 + i % 80) + "0217";
  if (c.letter == 'M') return std::to_string(1 + i);
  const int differs = c.value.starts_with("Pueblo") ? i % 50 : (i * 7 + c.width) % 997;
  return text::replaceAll(c.value, "%", std::to_string(differs));
}

void writeTable(const fs::path& folder, const RegistroInpar& r, int rows) {
  const std::vector<Column> all = columns(r);
  std::ofstream table(folder / (r.tabla + ".DBF"), std::ios::binary),
      memos(folder / (r.tabla + ".DBT"), std::ios::binary);
  table << head(all, rows);
  std::string memoHead(512, '\0');
  memoHead[21] = 2;
  memos << memoHead;
  for (int i = 0; i < rows; ++i) {
    const std::string note =
        "Nota de la partida n\xA3mero " + std::to_string(i) + ", tal como est\xA0 en el libro.";
    std::string block = std::string("\xFF\xFF\x08\0", 4) + number(note.size() + 8, 4) + note;
    block.resize(512, '\0');
    memos << block;
    std::string record = " ";
    for (const Column& c : all)
      record += padded(valueOf(r, c, i), c.width, c.letter == 'N' || c.letter == 'M');
    table << record;
  }
  table << '\x1A';
}

/// What whoever knows these columns would write: each value converted, nothing checked.
std::size_t readByHand(const fs::path& folder, int rows) {
  const std::vector<Column> all = columns(inparBautismo());
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

using Importer = void (cImportarInpar::*)(const cImportarInpar::Marco&, const std::string&,
                                          const DatosRegistro&);

std::int64_t import(Importer importer, const fs::path& folder) {
  bench::World world;
  const fs::path parish = folder / "parroquia.fidaleon";
  fs::remove(parish);
  const auto connection = store::createDatabase(parish, store::parishSchema());
  cImportarInpar inpar(world.contexto);
  inpar.strAno00 = "20";
  NoProgress progress;
  (inpar.*importer)({*connection, {}, 1, progress}, folder.string(),
                    {true, "San Juan", "Madrid", 1, 1});
  return inpar.resultado().registros.at(0).escritas;
}

/// Processor time of a general converter that copies the table, and no more, into one table of a
/// database, in milliseconds; 0 where there is none.
double convertedByOther(const fs::path& folder) {
  const std::string into = (folder / "otro.sqlite").string();
  const std::string command = "command -v ogr2ogr >/dev/null && ogr2ogr -f SQLite '" + into +
                              "' '" + (folder / "BAUT.DBF").string() + "' 2>/dev/null";
  if (std::system(command.c_str()) != 0) return 0;
  rusage usage{};
  getrusage(RUSAGE_CHILDREN, &usage);
  const auto in = [](const timeval& t) {
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
  };
  return in(usage.ru_utime) + in(usage.ru_stime);
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
  const std::string wanted = argc > 2 ? argv[2] : "BCMD";
  const struct {
    const RegistroInpar& legacy;
    Importer importer;
    const char* what;
  } registers[] = {
      {inparBautismo(), &cImportarInpar::InparBautismo, "bautismos, a cinco tablas"},
      {inparConfirmacion(), &cImportarInpar::InparConfirmacion, "confirmaciones, a tres tablas"},
      {inparMatrimonio(), &cImportarInpar::InparMatrimonio, "matrimonios, a nueve tablas"},
      {inparDefuncion(), &cImportarInpar::InparDefuncion, "defunciones, a dos tablas"}};
  const fs::path folder = fs::temp_directory_path() / "fidaleon-bench-inpar";
  fs::create_directories(folder);
  writeTable(folder, inparBautismo(), rows);
  std::size_t ours = 0, hand = 0;
  const bench::Pair pair = bench::inTurn(
      kRuns, [&] { ours = readOurs(folder); }, [&] { hand = readByHand(folder, rows); });
  if (ours == 0 || hand == 0) return 1;
  atLeast("filas de 60 columnas con memo, leídas", rows / pair.ours * 1e3, 60000,
          bench::shown(rows / pair.limit * 1e3, "/s"));
  bench::ratio("leerlas / bucle a mano", pair, 2);
  bench::line("memoria al leer", bench::shown(megabytes(), " MB"), "-", "-", "<= 100 MB",
              megabytes() <= 100);
  const double other = convertedByOther(folder);
  for (const auto& r : registers) {
    if (wanted.find(r.legacy.tabla[0]) == std::string::npos) continue;
    writeTable(folder, r.legacy, rows);
    std::int64_t written = 0;
    const double importing = bench::milliseconds(1, [&] { written = import(r.importer, folder); });
    if (written != rows) return 1;
    atLeast(r.what, rows / importing * 1e3, 20000, "-");
    if (&r == registers && other > 0)
      bench::ratio("traerlos / copiarlos ogr2ogr a una tabla", {importing, other}, 0.2);
    fs::remove(folder / (r.legacy.tabla + ".DBF")), fs::remove(folder / (r.legacy.tabla + ".DBT"));
  }
  if (other == 0) std::puts("ogr2ogr no está instalado: sin comparar | - | - | - | - | -");
  bench::line("memoria al traerlos", bench::shown(megabytes(), " MB"), "-", "-", "<= 100 MB",
              megabytes() <= 100);
  fs::remove_all(folder);
  return 0;
}
