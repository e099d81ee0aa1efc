#include "store/postgres/Traits.h"

#include <algorithm>
#include <vector>

namespace fidaleon::store {

namespace {

/// The words and signs of a statement outside of names and texts; a name is its quoted self.
class Pieces {
 public:
  explicit Pieces(std::string_view sql) : rest_(sql) {}

  std::vector<std::string_view> all() {
    std::vector<std::string_view> pieces;
    for (skip(); !rest_.empty(); skip()) {
      const std::string_view piece = rest_.substr(0, length());
      rest_.remove_prefix(piece.size());
      pieces.push_back(piece);
    }
    return pieces;
  }

 private:
  static bool isWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '$' || c == ':';
  }
  void skip() {
    while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == '\n'))
      rest_.remove_prefix(1);
  }
  std::size_t length() const {
    const char c = rest_.front();
    if (c == '"' || c == '\'') {
      const auto end = rest_.find(c, 1);
      return end == std::string_view::npos ? rest_.size() : end + 1;
    }
    if (!isWord(c)) return 1;
    const auto end = std::find_if_not(rest_.begin(), rest_.end(), isWord);
    return static_cast<std::size_t>(end - rest_.begin());
  }

  std::string_view rest_;
};

bool isAny(std::string_view piece, std::initializer_list<std::string_view> words) {
  return std::find(words.begin(), words.end(), piece) != words.end();
}

bool isName(std::string_view piece) {
  return piece.starts_with('"');
}

/// A column that another column is put into may be too narrow for it.
bool putsColumns(const std::vector<std::string_view>& pieces) {
  for (std::size_t i = 0; i + 1 < pieces.size() && pieces[i] != "WHERE"; ++i)
    if (pieces[i] == "=" && isName(pieces[i + 1])) return true;
  return false;
}

bool isHarmless(const std::vector<std::string_view>& pieces, bool reads) {
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    const std::string_view piece = pieces[i];
    const bool all = piece == "*" && (pieces[i - 1] == "(" || pieces[i - 1] == ".");
    if (isAny(piece, {"+", "*", "/", "|"}) && !all) return false;
    if (piece == "-" && !isAny(pieces[i - 1], {"=", "(", ",", ">"})) return false;
    if (isAny(piece, {"cint", "clng", "sino"}) || piece.ends_with("::numeric")) return false;
    if (!reads && isAny(piece, {"SELECT", "val", "cstr"})) return false;
  }
  return reads || !putsColumns(pieces);
}

std::vector<std::string> namesBefore(const std::vector<std::string_view>& pieces,
                                     std::string_view word) {
  std::vector<std::string> names;
  for (const std::string_view piece : pieces) {
    if (piece == word) break;
    if (isName(piece)) names.emplace_back(piece);
  }
  return names;
}

std::string plain(std::string_view name) {
  return isName(name) ? std::string(name.substr(1, name.size() - 2)) : std::string(name);
}

}  // namespace

Traits traitsOf(std::string_view sql) {
  const std::vector<std::string_view> pieces = Pieces(sql).all();
  Traits traits;
  if (pieces.size() < 3) return traits;
  traits.reads = pieces[0] == "SELECT" || pieces[0] == "WITH";
  const auto has = [&](std::string_view word) {
    return std::find(pieces.begin(), pieces.end(), word) != pieces.end();
  };
  traits.harmless = isHarmless(pieces, traits.reads);
  if (!traits.reads) {
    traits.table = plain(pieces[0] == "UPDATE" ? pieces[1] : pieces[2]);
    traits.sets = namesBefore(pieces, pieces[0] == "UPDATE" ? "WHERE" : "VALUES");
    return traits;
  }
  const auto from = std::find(pieces.begin(), pieces.end(), "FROM");
  const bool oneTable = from != pieces.end() && from + 2 < pieces.end() && isName(from[1]) &&
                        isAny(from[2], {"WHERE", "ORDER"});
  traits.sliced = pieces[0] == "SELECT" && oneTable && has("ORDER") && !has("DISTINCT") &&
                  !has("GROUP") && !has("LIMIT") &&
                  std::count(pieces.begin(), pieces.end(), "SELECT") == 1;
  traits.fromTheEnd = has("DESC");
  return traits;
}

}  // namespace fidaleon::store
