#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace fidaleon::dbase {

/// The content of one file, wherever it lies.
class Bytes {
 public:
  virtual ~Bytes() = default;
  virtual std::uint64_t size() const = 0;
  /// Fills all of `room` from `offset`; the caller asks for nothing beyond size(). Throws Error.
  virtual void read(std::uint64_t offset, std::span<char> room) const = 0;
};

/// An ordinary file, held open until this goes. Throws Error.
std::unique_ptr<Bytes> openFile(const std::filesystem::path& file);

/// What is read of a file is fetched in large pieces, of which one is kept.
class Window {
 public:
  Window(std::unique_ptr<Bytes> bytes, std::size_t piece)
      : bytes_(std::move(bytes)), pieceSize_(piece) {}

  std::uint64_t size() const { return bytes_->size(); }
  bool holds(std::uint64_t offset, std::uint64_t length) const {
    return offset <= size() && length <= size() - offset;
  }
  /// Only what it holds() may be asked for. Good until the next call. Throws Error.
  std::string_view at(std::uint64_t offset, std::size_t length);

 private:
  std::unique_ptr<Bytes> bytes_;
  std::size_t pieceSize_;
  std::vector<char> piece_;
  std::uint64_t begin_ = 0;
};

/// Whole numbers of the first bytes, which must be there.
std::uint32_t littleEndian(std::string_view bytes, std::size_t count = 4);
std::uint32_t bigEndian(std::string_view bytes, std::size_t count = 4);

}  // namespace fidaleon::dbase
