#include "dbase/Table.h"

#include <algorithm>

#include "dbase/Folder.h"
#include "text/Utf8.h"

namespace fidaleon::dbase {

namespace {

constexpr std::size_t kPiece = 64 * 1024;
constexpr char kLive = ' ';
constexpr char kDeleted = '*';

/// What can be shown of bytes that are not what they should be.
std::string shown(std::string_view bytes) {
  std::string all;
  for (const char c : bytes.substr(0, 40)) all += c >= ' ' && c < 0x7F ? c : '?';
  return "«" + all + "»";
}

}  // namespace

std::string Doubt::sentence() const {
  std::string where = record > 0 ? "Registro " + std::to_string(record) : "";
  if (!column.empty()) where += (where.empty() ? "Columna " : ", columna ") + column;
  return where.empty() ? what + "." : where + ": " + what + ".";
}

struct Table::Reader {
  Reader(Files files, const std::string& chosen, Told to)
      : told(std::move(to)),
        file(std::move(files.table), kPiece),
        header(readHeader(file)),
        codePage(pageOf(chosen, files.codePage)),
        memos(files.memos ? std::make_unique<Memos>(std::move(files.memos), files.kind) : nullptr),
        conversion(codePage, memos.get()) {
    if (header.hasMemos && memos == nullptr)
      throw Error("Falta el archivo de los memos de la tabla (.dbt o .fpt).");
    for (Field& field : header.fields) nameField(field);
    if (header.unfinished)
      tell("se cerró mal la última vez; puede faltar lo último que se escribió");
  }

  CodePage pageOf(const std::string& chosen, const std::string& besides);
  void nameField(Field& field);
  void tell(std::string what, std::int64_t record = 0, std::string column = {}) const;

  /// The bytes of the next record, deleted or not; empty at the end.
  std::string_view nextRecord();
  std::string_view beyondAnnounced(std::uint64_t at);
  bool isLive(std::string_view record);
  bool flag(std::string_view record, int bit) const;
  void convert(std::string_view record, std::int64_t number, Row& row);
  void convert(std::string_view record, const Field& field, Row& row, Cell& cell);

  Told told;
  Window file;
  Header header;
  CodePage codePage;
  std::unique_ptr<Memos> memos;
  Conversion conversion;
  std::int64_t record = 0;  // of the record read last
  std::int64_t deleted = 0;
  std::vector<bool> skipped;  // columns; may be shorter than those
  bool ended = false;
  bool toldOfMore = false;
};

CodePage Table::Reader::pageOf(const std::string& chosen, const std::string& besides) {
  if (!chosen.empty()) {
    if (auto page = CodePage::named(chosen)) return std::move(*page);
    throw Error("No se conoce la página de códigos «" + chosen + "».");
  }
  if (auto page = CodePage::ofLanguage(header.language)) return std::move(*page);
  if (auto page = CodePage::named(besides)) return std::move(*page);
  tell("la tabla no dice con qué página de códigos se escribió; se lee con la 850");
  return std::move(*CodePage::named("850"));
}

void Table::Reader::nameField(Field& field) {
  std::string name;
  codePage.append(field.name, name);
  field.name = text::trim(name);
  if (field.width == 0) tell("no tiene anchura, y queda vacía", 0, field.name);
}

void Table::Reader::tell(std::string what, std::int64_t at, std::string column) const {
  if (told) told({at, std::move(column), std::move(what)});
}

std::string_view Table::Reader::nextRecord() {
  if (ended) return {};
  const std::uint64_t at = header.size + static_cast<std::uint64_t>(record) * header.recordSize;
  if (record >= header.records) return beyondAnnounced(at);
  if (!file.holds(at, header.recordSize)) {
    ended = true;
    tell("el archivo está cortado: anuncia " + std::to_string(header.records) +
         " registros y solo hay " + std::to_string(record) + " enteros");
    return {};
  }
  ++record;
  return file.at(at, header.recordSize);
}

/// Programs that were not closed have left records that the header does not count. They end where
/// the mark stands; what is behind it was taken out of the table.
std::string_view Table::Reader::beyondAnnounced(std::uint64_t at) {
  ended = true;
  if (!file.holds(at, 1)) return {};
  const char mark = file.at(at, 1)[0];
  if (mark != kLive && mark != kDeleted) {
    if (file.holds(at, header.recordSize))
      tell("detrás del último registro hay " + std::to_string(file.size() - at) +
           " bytes más, que no se leen");
    return {};
  }
  if (!file.holds(at, header.recordSize)) {
    tell("el registro está cortado, y no se lee", record + 1);
    return {};
  }
  if (!toldOfMore)
    tell("hay más registros que los " + std::to_string(header.records) +
         " que la tabla anuncia, y se leen también");
  toldOfMore = true;
  ended = false;
  ++record;
  return file.at(at, header.recordSize);
}

bool Table::Reader::isLive(std::string_view bytes) {
  if (bytes[0] == kDeleted) ++deleted;
  if (bytes[0] == kLive || bytes[0] == kDeleted) return bytes[0] == kLive;
  if (bytes.find_first_not_of('\0') == std::string_view::npos) {
    tell("está vacío, y no se lee", record);
    return false;
  }
  tell("no se sabe si está borrado (" + shown(bytes.substr(0, 1)) + "), y se lee", record);
  return true;
}

bool Table::Reader::flag(std::string_view bytes, int bit) const {
  if (bit < 0 || header.flagsOffset < 0) return false;
  const char flags = bytes[static_cast<std::size_t>(header.flagsOffset + bit / 8)];
  return (static_cast<unsigned char>(flags) >> (bit % 8) & 1) != 0;
}

void Table::Reader::convert(std::string_view bytes, std::int64_t number, Row& row) {
  row.record_ = number;
  row.texts_.clear();
  row.cells_.resize(header.fields.size());
  for (std::size_t i = 0; i < header.fields.size(); ++i)
    if (i < skipped.size() && skipped[i])
      row.cells_[i] = Cell();
    else
      convert(bytes, header.fields[i], row, row.cells_[i]);
  // Only now do the texts stay where they are.
  const char* text = row.texts_.data();
  for (Cell& cell : row.cells_) {
    if (cell.text.empty()) continue;
    cell.text = {text, cell.text.size()};
    text += cell.text.size();
  }
}

void Table::Reader::convert(std::string_view bytes, const Field& field, Row& row, Cell& cell) {
  std::string_view value =
      bytes.substr(static_cast<std::size_t>(field.offset), static_cast<std::size_t>(field.width));
  cell = Cell();
  if (field.width == 0 || flag(bytes, field.nullBit)) return;
  if (flag(bytes, field.lengthBit)) {
    const auto length = static_cast<unsigned char>(value.back());
    value = value.substr(0, std::min<std::size_t>(length, value.size() - 1));
  }
  if (const char* doubt = conversion.convert(field, value, row.texts_, cell)) {
    const bool lost = cell.isMissing() && field.letter != 'M' && field.letter != 'G';
    tell(doubt + (lost ? " (" + shown(value) + ")" : std::string()), row.record_, field.name);
  }
}

Table::Table(Files files, const std::string& codePage, Told told)
    : reader_(std::make_unique<Reader>(std::move(files), codePage, std::move(told))) {}

Table Table::open(const std::filesystem::path& file, const std::string& codePage, Told told) {
  try {
    return Table(filesOf(file), codePage, std::move(told));
  } catch (const Error& error) {
    const std::string why = error.what();
    const std::string name = "«" + file.filename().string() + "»";
    throw why.find(name) == std::string::npos ? Error(name + ": " + why) : error;
  }
}

Table::Table(Table&&) noexcept = default;
Table::~Table() = default;

const std::vector<Field>& Table::fields() const {
  return reader_->header.fields;
}

std::optional<std::size_t> Table::find(std::string_view column) const {
  for (std::size_t i = 0; i < fields().size(); ++i)
    if (text::equalsNoCase(fields()[i].name, column)) return i;
  return std::nullopt;
}

const std::string& Table::codePage() const {
  return reader_->codePage.name();
}

std::int64_t Table::announced() const {
  return reader_->header.records;
}

bool Table::next(Row& row) {
  for (;;) {
    const std::string_view bytes = reader_->nextRecord();
    if (bytes.empty()) return false;
    if (!reader_->isLive(bytes)) continue;
    reader_->convert(bytes, reader_->record, row);
    return true;
  }
}

bool Table::at(std::int64_t record, Row& row) {
  Reader& r = *reader_;
  const std::uint64_t size = r.header.recordSize;
  const std::uint64_t at = r.header.size + static_cast<std::uint64_t>(record - 1) * size;
  if (record < 1 || !r.file.holds(at, size)) return false;
  r.convert(r.file.at(at, size), record, row);
  return true;
}

void Table::only(const std::vector<std::size_t>& columns) {
  reader_->skipped.assign(fields().size(), true);
  for (const std::size_t column : columns) reader_->skipped[column] = false;
}

std::int64_t Table::deleted() const {
  return reader_->deleted;
}

}  // namespace fidaleon::dbase
