#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "dbase/Bytes.h"

namespace fidaleon::dbase {

/// The file of long texts beside a table, in any of its three layouts.
class Memos {
 public:
  /// Texts that end with a mark; blocks that begin with a sign and their length; the same in
  /// blocks of type .fpt.
  enum class Kind { Marked, Signed, Fpt };
  struct Memo {
    std::string_view bytes;  // good until the next call
    bool isText = true;      // not a picture or an object
    /// In Spanish why there is no text, or, with text, why it may not be all; null when all is
    /// well.
    const char* doubt = nullptr;
  };

  /// Throws Error when there is no sound head.
  Memos(std::unique_ptr<Bytes> file, Kind kind);

  /// What begins at a block, counted from the beginning of the file. Never more than 16 MiB.
  /// Throws Error when the file cannot be read.
  Memo read(std::uint32_t block);
  /// Its lines may end where the editor broke them, in a mark of its own.
  bool hasSoftBreaks() const { return kind_ != Kind::Fpt; }

 private:
  Memo readSized(std::uint64_t at, std::uint64_t head, std::uint64_t length);
  Memo readMarked(std::uint64_t at);

  Window file_;
  Kind kind_;
  std::uint64_t blockSize_ = 512;
};

}  // namespace fidaleon::dbase
