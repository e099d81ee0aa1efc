#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dbase/Bytes.h"

namespace fidaleon::dbase {

/// One column as the header tells it.
struct Field {
  std::string name;   // UTF-8 once the table is open
  char letter = 'C';  // the kind, as the header spells it
  int width = 0;      // bytes of the record
  int decimals = 0;
  int offset = 0;  // in the record, whose first byte is the mark of deletion
  /// Bits of the column of flags that newer tables have: the value is missing; the text does not
  /// fill its width and says its length in the last byte. -1: it has none.
  int nullBit = -1;
  int lengthBit = -1;
};

/// What stands ahead of the records.
struct Header {
  std::uint8_t version = 0;
  std::uint8_t language = 0;
  std::uint32_t records = 0;  // as the header says; the file may hold others
  std::uint32_t size = 0;     // where the records begin
  std::uint32_t recordSize = 0;
  bool unfinished = false;  // a change was under way when the file was written last
  bool hasMemos = false;    // some column points into a second file
  std::vector<Field> fields;
  int flagsOffset = -1;  // of the column of flags, which is not among the fields; -1: none
  int flagsWidth = 0;

  /// Written by Visual FoxPro: columns may have missing values.
  bool isVisual() const { return version >= 0x30 && version <= 0x32; }
};

/// Throws Error for anything that is not a sound header of dBase III, IV, FoxPro or Visual FoxPro.
/// Names of columns come as they are in the file.
Header readHeader(Window& file);

}  // namespace fidaleon::dbase
