#include "search/Words.h"

#include <algorithm>
#include <array>

#include "text/Utf8.h"

namespace fidaleon::search {
namespace {

constexpr std::array<std::string_view, 15> PARTICLES{
    "de", "del", "la", "las", "los", "el", "y", "e", "i", "da", "do", "dos", "das", "von", "van"};
constexpr std::array<std::string_view, 13> TITLES{
    "don", "dona", "d", "dn", "dna", "dª", "sr", "sra", "srta", "rvdo", "excmo", "sor", "fray"};

template <std::size_t N>
bool among(const std::array<std::string_view, N>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

bool isLetter(char c) {
  const auto u = static_cast<unsigned char>(c);
  return u >= 0x80 || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z');
}

bool isLower(char c) {
  return c >= 'a' && c <= 'z';
}

/// "M.ª", "M.a" and "Ant.o" as one word; apostrophes, and the point of "l·l", join what they stand
/// in.
std::string joined(std::string_view text) {
  std::string s = text::replaceAll(text, "ª", "a");
  for (const auto& [what, with] : {std::pair{"º", "o"},
                                   {"°", "o"},
                                   {"l·l", "l"},
                                   {"’", ""},
                                   {"'", ""},
                                   {"´", ""},
                                   {"`", ""},
                                   {"·", " "},
                                   {"–", " "},
                                   {"—", " "},
                                   {"«", " "},
                                   {"»", " "},
                                   {"\u00A0", " "}})
    s = text::replaceAll(s, what, with);
  std::string out;
  for (std::size_t i = 0; i < s.size(); ++i) {
    const bool high = s[i] == '.' && i > 0 && i + 1 < s.size() && isLower(s[i + 1]) &&
                      (i + 2 == s.size() || !isLetter(static_cast<char>(s[i + 2] | 0x20)));
    if (!high || s[i - 1] == ' ') out += s[i];
  }
  return out;
}

bool isFront(char c) {
  return c == 'e' || c == 'i';
}

bool isVowel(char c) {
  return c == 'a' || c == 'o' || c == 'u' || isFront(c);
}

/// Writes the sounds of one word, letter by letter.
class Sounds {
 public:
  explicit Sounds(std::string_view word) : word_(word) {}

  std::string take() {
    for (; at_ < word_.size(); ++at_) next();
    return std::move(out_);
  }

 private:
  char ahead(std::size_t by = 1) const { return at_ + by < word_.size() ? word_[at_ + by] : '\0'; }

  void put(char sound) {
    if (out_.empty() || out_.back() != sound) out_ += sound;
  }

  void pair(char sound) {
    put(sound);
    ++at_;
  }

  void next() {
    const char c = word_[at_];
    switch (c) {
      case 'h':
        return;
      case 'c':
        if (ahead() == 'h') return pair('#');
        return put(isFront(ahead()) || ahead() == 'y' ? 's' : 'k');
      case 'q':
        return ahead() == 'u' ? pair('k') : put('k');
      case 'g':
        if (ahead() == 'u' && isFront(ahead(2))) return pair('g');
        return put(isFront(ahead()) ? 'j' : 'g');
      case 'x':
        return put(isVowel(ahead()) ? 'j' : 's');
      case 'l':
        return ahead() == 'l' ? pair('i') : put('l');
      case 'n':
        return ahead() == 'y' && !isVowel(ahead(2)) ? pair('n') : put('n');
      case 'p':
        return ahead() == 'h' ? pair('f') : put('p');
      case 'm':
        return put(ahead() == 'p' || ahead() == 'b' || ahead() == 'v' ? 'n' : 'm');
      default:
        return put(c == 'z' ? 's' : c == 'v' || c == 'w' ? 'b' : c == 'y' ? 'i' : c);
    }
  }

  std::string_view word_;
  std::size_t at_ = 0;
  std::string out_;
};

}  // namespace

std::vector<std::string> wordsOf(std::string_view text) {
  if (text.empty() || text == "---") return {};
  const std::string folded = text::searchKey(joined(text));
  std::vector<std::string> all;
  for (std::size_t i = 0, end = 0; i < folded.size(); i = end + 1) {
    for (end = i; end < folded.size() && isLetter(folded[end]);) ++end;
    if (end > i) all.push_back(folded.substr(i, end - i));
  }
  std::vector<std::string> kept;
  for (const std::string& word : all)
    if (!among(PARTICLES, word) && !among(TITLES, word)) kept.push_back(word);
  return kept.empty() ? all : kept;
}

std::string soundOf(std::string_view word) {
  return Sounds(word).take();
}

bool oneLetterApart(std::string_view a, std::string_view b) {
  if (a.size() > b.size()) std::swap(a, b);
  if (b.size() - a.size() > 1 || a == b) return false;
  std::size_t same = 0;
  while (same < a.size() && a[same] == b[same]) ++same;
  if (a.size() < b.size()) return a.substr(same) == b.substr(same + 1);
  if (a.substr(same + 1) == b.substr(same + 1)) return true;
  return same + 1 < a.size() && a[same] == b[same + 1] && a[same + 1] == b[same] &&
         a.substr(same + 2) == b.substr(same + 2);
}

}  // namespace fidaleon::search
