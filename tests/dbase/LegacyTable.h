#pragma once
// Tables as older programs left them, byte by byte.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

namespace fidaleon::dbase {

class LegacyTable {
 public:
  enum class Memos { Marked, Signed, Fpt };  // dBase III, dBase IV, FoxPro

  std::uint8_t version = 0x8B;
  std::uint8_t language = 0x02;
  Memos memos = Memos::Signed;

  LegacyTable& column(const std::string& name, char letter, int width, int decimals = 0) {
    std::string d = name.substr(0, 11);
    d.resize(11, '\0');
    d += letter + std::string(4, '\0') + char(width) + char(decimals) + std::string(14, '\0');
    descriptors_ += d;
    hasMemos_ |= letter == 'M';
    columns_.push_back({letter, static_cast<std::size_t>(width)});
    return *this;
  }
  /// Values as they are stored, filled up with blanks: numbers to their left. A text in a memo
  /// column goes to the other file.
  LegacyTable& row(const std::vector<std::string>& values, char mark = ' ') {
    records_ += mark;
    for (std::size_t i = 0; i < columns_.size(); ++i) records_ += stored(columns_[i], values[i]);
    ++count_;
    return *this;
  }

  std::string dbf() const {
    std::string size;
    std::size_t width = 1;
    for (const auto& c : columns_) width += c.second;
    std::string head = char(version) + std::string("\x5F\x01\x01") + little(count_, 4) +
                       little(32 + descriptors_.size() + 1, 2) + little(width, 2);
    head.resize(32, '\0');
    head[29] = char(language);
    return head + descriptors_ + '\r' + records_ + '\x1A';
  }
  std::string memoFile() const {
    std::string head(512, '\0');
    if (memos == Memos::Fpt) head[6] = 0, head[7] = 64;
    if (memos == Memos::Signed) head[21] = 2;  // blocks of 512
    if (memos == Memos::Marked) head[16] = 3;
    return head + memoBlocks_;
  }
  void write(const std::filesystem::path& folder, const std::string& name) const {
    std::ofstream(folder / (name + ".DBF"), std::ios::binary) << dbf();
    if (hasMemos_)
      std::ofstream(folder / (name + (memos == Memos::Fpt ? ".FPT" : ".DBT")), std::ios::binary)
          << memoFile();
  }

  static std::string little(std::uint64_t n, int bytes) {
    std::string s;
    for (; bytes > 0; --bytes, n >>= 8) s += char(n & 0xFF);
    return s;
  }

 private:
  using Column = std::pair<char, std::size_t>;

  std::string stored(const Column& c, std::string value) {
    if (c.first == 'M' && !value.empty() && value[0] != '\x01') value = put(value);
    if (value.starts_with('\x01')) value.erase(0, 1);  // a pointer as it stands
    if (c.first == 'N' && value.size() < c.second)
      value.insert(0, std::string(c.second - value.size(), ' '));
    value.resize(c.second, ' ');
    return value;
  }
  std::string put(const std::string& text) {
    const std::size_t block = memos == Memos::Fpt ? 64 : 512;
    const std::string number = std::to_string((512 + memoBlocks_.size()) / block);
    std::string big = little(text.size(), 4);
    std::reverse(big.begin(), big.end());
    if (memos == Memos::Fpt) memoBlocks_ += std::string("\0\0\0\1", 4) + big + text;
    if (memos == Memos::Signed)
      memoBlocks_ += std::string("\xFF\xFF\x08\0", 4) + little(text.size() + 8, 4) + text;
    if (memos == Memos::Marked) memoBlocks_ += text + "\x1A\x1A";
    memoBlocks_.resize((memoBlocks_.size() + block - 1) / block * block, '\0');
    return std::string(10 - number.size(), '0') + number;
  }

  std::vector<Column> columns_;
  bool hasMemos_ = false;
  std::string descriptors_, records_, memoBlocks_;
  std::size_t count_ = 0;
};

}  // namespace fidaleon::dbase
