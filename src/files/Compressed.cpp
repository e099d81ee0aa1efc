#include "files/Compressed.h"

#include <fcntl.h>
#include <unistd.h>
#include <zstd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

#include "files/PrivateFile.h"

namespace fidaleon::files {

namespace fs = std::filesystem;

namespace {

// A fifth of the time of the next levels, for a tenth more of a file.
constexpr int LEVEL = 3;
constexpr std::string_view BEGINNING = "\x28\xB5\x2F\xFD";

[[noreturn]] void fail(const char* what, const fs::path& file, int why = errno) {
  throw fs::filesystem_error(what, file, std::error_code(why, std::generic_category()));
}

class Input {
 public:
  explicit Input(const fs::path& file)
      : path_(file), file_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (file_.number() < 0) fail("open", file);
  }
  /// Empty at the end of the file. Stays until the next call.
  std::string_view block(std::size_t most) {
    buffer_.resize(most);
    for (;;) {
      const ssize_t got = ::read(file_.number(), buffer_.data(), most);
      if (got >= 0) return {buffer_.data(), static_cast<std::size_t>(got)};
      if (errno != EINTR) fail("read", path_);
    }
  }
  /// As much as asked for, unless the file ends before.
  bool isNext(std::string_view expected) {
    while (!expected.empty()) {
      const std::string_view got = block(expected.size());
      if (got.empty() || !expected.starts_with(got)) return false;
      expected.remove_prefix(got.size());
    }
    return true;
  }
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
  Descriptor file_;
  std::vector<char> buffer_;
};

class Output {
 public:
  explicit Output(const fs::path& file)
      : path_(file), file_(::open(file.c_str(), O_WRONLY | O_NOFOLLOW | O_TRUNC | O_CLOEXEC)) {
    if (file_.number() < 0) fail("open", file);
  }
  void write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t put = ::write(file_.number(), bytes.data(), bytes.size());
      if (put < 0 && errno != EINTR) fail("write", path_);
      if (put > 0) bytes.remove_prefix(static_cast<std::size_t>(put));
    }
  }

 private:
  fs::path path_;
  Descriptor file_;
};

using Taker = std::function<bool(std::string_view)>;

/// Hands over piece by piece what the compressed file holds, until the taker has enough. False when
/// it was ended half way.
bool unpack(Input& in, const Taker& take, const GoesOn& goesOn) {
  const std::unique_ptr<ZSTD_DCtx, decltype(&ZSTD_freeDCtx)> context(ZSTD_createDCtx(),
                                                                     &ZSTD_freeDCtx);
  std::vector<char> room(ZSTD_DStreamOutSize());
  std::size_t left = 1;  // of the frame: 0 at its end
  for (auto block = in.block(ZSTD_DStreamInSize()); !block.empty();
       block = in.block(ZSTD_DStreamInSize())) {
    if (goesOn && !goesOn()) return false;
    ZSTD_inBuffer source{block.data(), block.size(), 0};
    for (bool more = true; more;) {
      ZSTD_outBuffer made{room.data(), room.size(), 0};
      left = ZSTD_decompressStream(context.get(), &made, &source);
      if (ZSTD_isError(left)) throw NotCompressed(in.path());
      if (!take({room.data(), made.pos})) return true;
      more = source.pos < source.size || made.pos == made.size;
    }
  }
  if (left != 0) throw NotCompressed(in.path());
  return true;
}

}  // namespace

NotCompressed::NotCompressed(const fs::path& file)
    : std::runtime_error("«" + file.string() + "» está cortado o dañado.") {}

bool isCompressed(const fs::path& file) {
  return Input(file).isNext(BEGINNING);
}

bool compress(const fs::path& from, const fs::path& to, const GoesOn& goesOn) {
  Input in(from);
  Output out(to);
  const std::unique_ptr<ZSTD_CCtx, decltype(&ZSTD_freeCCtx)> context(ZSTD_createCCtx(),
                                                                     &ZSTD_freeCCtx);
  ZSTD_CCtx_setParameter(context.get(), ZSTD_c_compressionLevel, LEVEL);
  ZSTD_CCtx_setParameter(context.get(), ZSTD_c_checksumFlag, 1);
  std::vector<char> room(ZSTD_CStreamOutSize());
  for (bool ended = false; !ended;) {
    if (goesOn && !goesOn()) return false;
    const std::string_view block = in.block(ZSTD_CStreamInSize());
    ended = block.empty();
    ZSTD_inBuffer source{block.data(), block.size(), 0};
    for (std::size_t left = 1; ended ? left != 0 : source.pos < source.size;) {
      ZSTD_outBuffer made{room.data(), room.size(), 0};
      left =
          ZSTD_compressStream2(context.get(), &made, &source, ended ? ZSTD_e_end : ZSTD_e_continue);
      if (ZSTD_isError(left)) fail("compress", from, ENOMEM);
      out.write({room.data(), made.pos});
    }
  }
  return true;
}

bool expand(const fs::path& from, const fs::path& to, const GoesOn& goesOn) {
  Input in(from);
  Output out(to);
  return unpack(
      in,
      [&](std::string_view piece) {
        out.write(piece);
        return true;
      },
      goesOn);
}

bool holdsTheSame(const fs::path& compressed, const fs::path& plain, const GoesOn& goesOn) {
  Input in(compressed);
  Input beside(plain);
  bool same = true;
  const bool whole = unpack(
      in, [&](std::string_view piece) { return same = beside.isNext(piece); }, goesOn);
  return whole && same && beside.block(1).empty();
}

}  // namespace fidaleon::files
