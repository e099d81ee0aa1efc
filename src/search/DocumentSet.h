#pragma once
// Sets of documents. In memory one bit for each; in the index in parts of 65,536 documents, each
// as a sorted list of 16-bit numbers or, where that is longer, as bits.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fidaleon::search {

inline constexpr std::int64_t PART = 65536;  // documents

/// The documents of a part, as the index keeps them, and back. `documents` are sorted.
std::string packedPart(const std::vector<std::uint16_t>& documents);
std::vector<std::uint16_t> unpackedPart(std::string_view bytes);

class DocumentSet {
 public:
  /// Of documents below `end`; none of them at first.
  explicit DocumentSet(std::int64_t end = 0);

  static DocumentSet all(std::int64_t end);
  /// Adds those of a packed part.
  void add(std::int64_t part, std::string_view bytes);
  void add(std::int64_t document);
  DocumentSet& operator|=(const DocumentSet& other);
  DocumentSet& operator&=(const DocumentSet& other);
  DocumentSet& operator-=(const DocumentSet& other);
  std::int64_t count() const;
  bool none() const { return count() == 0; }
  /// The highest `most` of them, the highest first.
  std::vector<std::int64_t> last(std::size_t most) const;

 private:
  std::vector<std::uint64_t> bits_;
};

}  // namespace fidaleon::search
