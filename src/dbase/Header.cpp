#include "dbase/Header.h"

#include <algorithm>

#include "dbase/Error.h"

namespace fidaleon::dbase {

namespace {

constexpr std::uint32_t kPrefix = 32;
constexpr std::uint32_t kDescriptor = 32;
constexpr char kEndOfFields = '\x0D';

constexpr std::uint8_t VERSIONS[] = {0x03, 0x04, 0x05, 0x30, 0x31, 0x32, 0x43, 0x63,
                                     0x7B, 0x83, 0x8B, 0x8E, 0xCB, 0xF5, 0xFB};

/// Which widths a column of a kind may have; other kinds are not known.
struct Kind {
  char letter;
  int least, most;
};
constexpr Kind KINDS[] = {
    {'C', 0, 65535}, {'N', 0, 255}, {'F', 0, 255}, {'D', 8, 8},   {'L', 1, 1},
    {'M', 10, 10},   {'M', 4, 4},   {'G', 10, 10}, {'G', 4, 4},   {'P', 10, 10},
    {'P', 4, 4},     {'B', 10, 10}, {'B', 8, 8},   {'W', 4, 4},   {'I', 4, 4},
    {'Y', 8, 8},     {'T', 8, 8},   {'V', 1, 255}, {'Q', 1, 255},
};

constexpr char kFlags = '0';
constexpr int kNullable = 2;  // of the flags of a descriptor

bool isKnown(const Field& field, bool visual) {
  if (field.letter == kFlags) return visual;
  return std::any_of(std::begin(KINDS), std::end(KINDS), [&](const Kind& k) {
    return k.letter == field.letter && field.width >= k.least && field.width <= k.most;
  });
}

std::string quoted(const Field& field) {
  std::string name;
  for (const char c : field.name) name += c >= ' ' && c < 0x7F ? c : '?';
  return "«" + name + "»";
}

void requireVersion(std::uint8_t version) {
  if (std::find(std::begin(VERSIONS), std::end(VERSIONS), version) != std::end(VERSIONS)) return;
  if (version == 0x02) throw Error("Es una tabla de dBase II, que es demasiado antigua.");
  if (version == 0x8C) throw Error("Es una tabla de dBase 7, que tiene otro formato.");
  throw Error("No es una tabla de dBase ni de FoxPro.");
}

Field readField(std::string_view descriptor) {
  Field field;
  const std::string_view name = descriptor.substr(0, 11);
  field.name = name.substr(0, name.find('\0'));
  field.letter = descriptor[11];
  field.width = static_cast<unsigned char>(descriptor[16]);
  field.decimals = static_cast<unsigned char>(descriptor[17]);
  return field;
}

/// Long texts keep the higher byte of their width where numbers have their decimals. Which tables
/// do, only the length of the record tells.
void widenTexts(std::vector<Field>& fields) {
  for (Field& field : fields)
    if (field.letter == 'C') field.width += 256 * field.decimals;
}

std::uint32_t widthOf(const std::vector<Field>& fields) {
  std::uint32_t all = 1;
  for (const Field& field : fields) all += static_cast<std::uint32_t>(field.width);
  return all;
}

class Reader {
 public:
  explicit Reader(Window& file) : file_(file) {}

  Header read() {
    if (!file_.holds(0, kPrefix + 1)) throw Error("El archivo está vacío o cortado.");
    readPrefix();
    readFields();
    requireColumns();
    fitRecord();
    place();
    requireColumns();  // besides that of flags
    return std::move(header_);
  }

 private:
  void requireColumns() const {
    if (header_.fields.empty()) throw Error("La tabla no tiene columnas.");
  }

  void readPrefix() {
    const std::string_view prefix = file_.at(0, kPrefix);
    header_.version = static_cast<std::uint8_t>(prefix[0]);
    requireVersion(header_.version);
    header_.records = littleEndian(prefix.substr(4));
    header_.size = littleEndian(prefix.substr(8), 2);
    header_.recordSize = littleEndian(prefix.substr(10), 2);
    header_.unfinished = prefix[14] != 0;
    header_.language = static_cast<std::uint8_t>(prefix[29]);
    if (prefix[15] != 0) throw Error("La tabla está cifrada.");
    if (!file_.holds(0, header_.size)) throw Error("El archivo está cortado en la cabecera.");
  }

  void readFields() {
    const std::string_view all = file_.at(0, header_.size);
    for (std::size_t at = kPrefix; at < all.size() && all[at] != kEndOfFields; at += kDescriptor) {
      if (at + kDescriptor > all.size()) throw Error("La cabecera de la tabla está dañada.");
      flags_.push_back(static_cast<unsigned char>(all[at + 18]));
      header_.fields.push_back(readField(all.substr(at, kDescriptor)));
    }
  }

  void fitRecord() {
    std::vector<Field>& fields = header_.fields;
    if (widthOf(fields) != header_.recordSize) widenTexts(fields);
    const std::uint32_t width = widthOf(fields);
    for (const Field& field : fields) {
      if (!isKnown(field, header_.isVisual()))
        throw Error("La columna " + quoted(field) + " es de una clase o una anchura que no se " +
                    "conoce.");
    }
    if (width != header_.recordSize) {
      throw Error("La cabecera de la tabla está dañada: sus columnas ocupan " +
                  std::to_string(width) + " bytes y dice que son " +
                  std::to_string(header_.recordSize) + ".");
    }
  }

  /// Gives each column its place and its bits, and takes out the column of flags.
  void place() {
    int offset = 1, bit = 0;
    for (std::size_t i = 0; i < header_.fields.size(); ++i) {
      Field& field = header_.fields[i];
      field.offset = offset;
      offset += field.width;
      if (field.letter == 'V' || field.letter == 'Q') field.lengthBit = bit++;
      if (header_.isVisual() && (flags_[i] & kNullable) != 0 && field.letter != kFlags)
        field.nullBit = bit++;
      header_.hasMemos |= isMemo(field);
    }
    takeOutFlags();
    if (bit > header_.flagsWidth * 8) throw Error("La cabecera de la tabla está dañada.");
  }

  void takeOutFlags() {
    const auto found = std::find_if(header_.fields.begin(), header_.fields.end(),
                                    [](const Field& field) { return field.letter == kFlags; });
    if (found == header_.fields.end()) return;
    header_.flagsOffset = found->offset;
    header_.flagsWidth = found->width;
    header_.fields.erase(found);
  }

  static bool isMemo(const Field& field) {
    return field.letter == 'M' || field.letter == 'G' || field.letter == 'P' ||
           field.letter == 'W' || (field.letter == 'B' && field.width == 10);
  }

  Window& file_;
  Header header_;
  std::vector<int> flags_;
};

}  // namespace

Header readHeader(Window& file) {
  return Reader(file).read();
}

}  // namespace fidaleon::dbase
