#include "search/DocumentSet.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace fidaleon::search {
namespace {

constexpr std::size_t BITS = PART / 8;  // bytes of a part that is kept as bits

std::uint16_t at(std::string_view bytes, std::size_t i) {
  std::uint16_t number = 0;
  std::memcpy(&number, bytes.data() + i * 2, 2);
  return number;
}

}  // namespace

std::string packedPart(const std::vector<std::uint16_t>& documents) {
  if (documents.size() * 2 < BITS)
    return {reinterpret_cast<const char*>(documents.data()), documents.size() * 2};
  std::string bytes(BITS, '\0');
  for (const std::uint16_t d : documents)
    bytes[d / 8U] = static_cast<char>(bytes[d / 8U] | (1 << (d % 8)));
  return bytes;
}

std::vector<std::uint16_t> unpackedPart(std::string_view bytes) {
  std::vector<std::uint16_t> documents;
  if (bytes.size() < BITS) {
    for (std::size_t i = 0; i < bytes.size() / 2; ++i) documents.push_back(at(bytes, i));
    return documents;
  }
  for (unsigned d = 0; d < PART; ++d)
    if (bytes[d / 8] >> (d % 8) & 1) documents.push_back(static_cast<std::uint16_t>(d));
  return documents;
}

DocumentSet::DocumentSet(std::int64_t end) {
  const std::int64_t parts = (end + PART - 1) / PART;
  bits_.resize(static_cast<std::size_t>(parts * (PART / 64)));
}

DocumentSet DocumentSet::all(std::int64_t end) {
  DocumentSet set(end);
  std::fill(set.bits_.begin(), set.bits_.end(), ~std::uint64_t{0});
  return set;
}

void DocumentSet::add(std::int64_t part, std::string_view bytes) {
  const auto from = static_cast<std::size_t>(part * (PART / 64));
  if (part < 0 || from + PART / 64 > bits_.size()) return;  // came to be since
  if (bytes.size() < BITS) {
    for (std::size_t i = 0; i < bytes.size() / 2; ++i) {
      const unsigned d = at(bytes, i);
      bits_[from + d / 64] |= std::uint64_t{1} << (d % 64);
    }
    return;
  }
  for (std::size_t w = 0; w < PART / 64; ++w) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data() + w * 8, 8);
    bits_[from + w] |= word;
  }
}

void DocumentSet::add(std::int64_t document) {
  bits_[static_cast<std::size_t>(document / 64)] |= std::uint64_t{1} << (document % 64);
}

DocumentSet& DocumentSet::operator|=(const DocumentSet& other) {
  for (std::size_t w = 0; w < bits_.size(); ++w) bits_[w] |= other.bits_[w];
  return *this;
}

DocumentSet& DocumentSet::operator&=(const DocumentSet& other) {
  for (std::size_t w = 0; w < bits_.size(); ++w) bits_[w] &= other.bits_[w];
  return *this;
}

DocumentSet& DocumentSet::operator-=(const DocumentSet& other) {
  for (std::size_t w = 0; w < bits_.size(); ++w) bits_[w] &= ~other.bits_[w];
  return *this;
}

std::int64_t DocumentSet::count() const {
  std::int64_t n = 0;
  for (const std::uint64_t word : bits_) n += std::popcount(word);
  return n;
}

std::vector<std::int64_t> DocumentSet::last(std::size_t most) const {
  std::vector<std::int64_t> documents;
  for (std::size_t w = bits_.size(); w-- > 0 && documents.size() < most;)
    for (std::uint64_t rest = bits_[w]; rest != 0 && documents.size() < most;) {
      const int highest = 63 - std::countl_zero(rest);
      documents.push_back(static_cast<std::int64_t>(w) * 64 + highest);
      rest &= ~(std::uint64_t{1} << highest);
    }
  return documents;
}

}  // namespace fidaleon::search
