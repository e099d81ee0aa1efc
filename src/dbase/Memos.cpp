#include "dbase/Memos.h"

#include <algorithm>

#include "dbase/Error.h"

namespace fidaleon::dbase {

namespace {

constexpr std::uint64_t kHead = 512;
constexpr std::uint64_t kLongest = 16 * 1024 * 1024;
constexpr std::uint64_t kMemoHead = 8;
constexpr char kEndOfText = '\x1A';
constexpr std::string_view kSigned("\xFF\xFF\x08\x00", 4);
constexpr std::size_t kPiece = 64 * 1024;
constexpr std::size_t kFirstLook = 4096;

Memos::Memo doubtful(const char* why) {
  return {{}, true, why};
}

}  // namespace

Memos::Memos(std::unique_ptr<Bytes> file, Kind kind) : file_(std::move(file), kPiece), kind_(kind) {
  if (!file_.holds(0, 24)) throw Error("El archivo de los memos está vacío o cortado.");
  const std::string_view head = file_.at(0, 24);
  if (kind_ == Kind::Fpt) {
    blockSize_ = std::max<std::uint32_t>(bigEndian(head.substr(6), 2), 1);
  } else if (head[16] == 3) {
    kind_ = Kind::Marked;
  } else if (kind_ == Kind::Signed && littleEndian(head.substr(20), 2) != 0) {
    blockSize_ = littleEndian(head.substr(20), 2);
  }
}

Memos::Memo Memos::read(std::uint32_t block) {
  const std::uint64_t at = block * blockSize_;
  // The first block is the head, which may take up several small ones.
  if (at < std::min(kHead, blockSize_) || !file_.holds(at, 1))
    return doubtful("apunta fuera del archivo de los memos");
  const bool isSigned = file_.holds(at, kMemoHead) && file_.at(at, 4) == kSigned;
  if (kind_ == Kind::Marked && !isSigned) return readMarked(at);
  if (kind_ == Kind::Signed && !isSigned) return doubtful("apunta donde no empieza ningún memo");
  if (!file_.holds(at, kMemoHead)) return doubtful("su memo está cortado");
  const std::string_view head = file_.at(at, kMemoHead);
  if (kind_ != Kind::Fpt) {
    const std::uint32_t all = littleEndian(head.substr(4));
    return all < kMemoHead ? doubtful("su memo está dañado")
                           : readSized(at, kMemoHead, all - kMemoHead);
  }
  const std::uint32_t type = bigEndian(head);
  if (type > 2) return doubtful("su memo está dañado");
  Memo memo = readSized(at, kMemoHead, bigEndian(head.substr(4)));
  memo.isText = type == 1;
  return memo;
}

Memos::Memo Memos::readSized(std::uint64_t at, std::uint64_t head, std::uint64_t length) {
  if (!file_.holds(at + head, length)) return doubtful("su memo está cortado");
  if (length > kLongest) return doubtful("su memo es demasiado largo");
  return {file_.at(at + head, static_cast<std::size_t>(length))};
}

Memos::Memo Memos::readMarked(std::uint64_t at) {
  std::size_t known = 0;
  const std::uint64_t most = std::min(kLongest, file_.size() - at);
  while (known < most) {
    const auto more =
        static_cast<std::size_t>(std::min<std::uint64_t>(std::max(2 * known, kFirstLook), most));
    const std::string_view text = file_.at(at, more);
    const std::size_t end = text.find(kEndOfText, known);
    if (end != std::string_view::npos) return {text.substr(0, end)};
    known = more;
  }
  if (most == kLongest) return doubtful("su memo es demasiado largo");
  return {file_.at(at, known), true, "su memo no tiene fin; puede faltar una parte"};
}

}  // namespace fidaleon::dbase
