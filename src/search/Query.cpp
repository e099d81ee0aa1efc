#include "search/Query.h"

#include <algorithm>
#include <utility>

#include "search/Words.h"
#include "text/Dates.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon::search {
namespace {

struct KindWord {
  std::string_view word;
  Kinds kind;
};
constexpr KindWord KINDS[] = {{"bautismo", Kinds::Baptism},
                              {"bautismos", Kinds::Baptism},
                              {"bautizo", Kinds::Baptism},
                              {"bautizos", Kinds::Baptism},
                              {"confirmacion", Kinds::Confirmation},
                              {"confirmaciones", Kinds::Confirmation},
                              {"matrimonio", Kinds::Marriage},
                              {"matrimonios", Kinds::Marriage},
                              {"boda", Kinds::Marriage},
                              {"bodas", Kinds::Marriage},
                              {"defuncion", Kinds::Death},
                              {"defunciones", Kinds::Death},
                              {"difunto", Kinds::Death},
                              {"difunta", Kinds::Death},
                              {"difuntos", Kinds::Death},
                              {"entierro", Kinds::Death},
                              {"padron", Kinds::Census},
                              {"colaborador", Kinds::Collaborator},
                              {"colaboradora", Kinds::Collaborator},
                              {"colaboradores", Kinds::Collaborator},
                              {"solicitud", Kinds::Request},
                              {"solicitudes", Kinds::Request},
                              {"expediente", Kinds::Request},
                              {"anulada", Kinds::Annulled},
                              {"anuladas", Kinds::Annulled}};

constexpr std::size_t NAME_BEGUN = 3;  // letters

std::vector<std::string> pieces(std::string_view typed) {
  std::string s = text::replaceAll(typed, "–", "-");
  for (const char* blank : {",", ";", "\t", "\"", "(", ")", "\u00A0"})
    s = text::replaceAll(s, blank, " ");
  std::vector<std::string> all;
  for (std::size_t i = 0, end = 0; i < s.size(); i = end + 1) {
    end = std::min(s.find(' ', i), s.size());
    if (end > i) all.push_back(s.substr(i, end - i));
  }
  return all;
}

int yearOf(std::string_view piece) {
  const auto year = piece.size() == 4 ? text::toInteger(piece) : std::nullopt;
  return year && *year >= 1400 && *year < 2200 ? *year : 0;
}

/// Reads one piece after the other.
class Reader {
 public:
  Reader(Query& query, bool kindsAreNames) : query_(query), kindsAreNames_(kindsAreNames) {}

  void read(const std::string& piece, bool last) {
    const std::string plain = plainOf(piece);
    if (expects_ != Expects::Nothing && takeExpected(piece, plain)) return;
    if (takeDate(piece) || takeYears(piece) || takeKey(plain, last) || takeKind(plain, last))
      return;
    if (isParticle(piece, last) && (!last || !query_.words.empty())) return;
    const std::vector<std::string> words = wordsOf(piece);
    for (std::size_t i = 0; i < words.size(); ++i)
      query_.words.push_back(
          {words[i], (last && i + 1 == words.size()) || words[i].size() >= NAME_BEGUN
                         ? Vocabulary::Typed::Unfinished
                         : Vocabulary::Typed::Whole});
  }

 private:
  enum class Expects { Nothing, Book, Folio, Number };

  static std::string plainOf(const std::string& piece) {
    std::string plain = text::searchKey(piece);
    while (!plain.empty() && (plain.back() == '.' || plain.back() == ':')) plain.pop_back();
    return plain;
  }

  /// wordsOf() keeps a particle that stands alone. "l" behind "de" will be one.
  bool isParticle(const std::string& piece, bool last) {
    const bool particle = wordsOf(piece + " x").size() == 1;
    const bool comes = afterParticle_ && last && (piece == "l" || piece == "lo");
    afterParticle_ = particle;
    return particle || comes;
  }

  bool takeExpected(const std::string& piece, const std::string& plain) {
    const Expects expected = std::exchange(expects_, Expects::Nothing);
    if (expected == Expects::Book) {
      for (const std::string& word : wordsOf(piece)) query_.book.push_back(word);
      return true;
    }
    if (plain.empty() || plain.front() < '0' || plain.front() > '9') return false;
    if (expected == Expects::Number)
      query_.number = plain;
    else
      query_.folio = static_cast<std::uint32_t>(text::Val(plain));
    return true;
  }

  bool takeDate(const std::string& piece) {
    const auto day = text::parseShort(piece);
    if (!day) return false;
    query_.day = day->year * 10000 + day->month * 100 + day->day;
    query_.fromYear = query_.toYear = day->year;
    return true;
  }

  bool takeYears(const std::string& piece) {
    const std::size_t dash = piece.find('-');
    const int from = yearOf(std::string_view(piece).substr(0, std::min(dash, piece.size())));
    if (from == 0) return false;
    int to = from;
    if (dash != std::string::npos && dash + 1 < piece.size()) {
      const std::string_view end = std::string_view(piece).substr(dash + 1);
      to = yearOf(end);
      if (to == 0 && end.size() == 2 && text::toInteger(end))
        to = from / 100 * 100 + *text::toInteger(end);
      if (to == 0) to = from;
    }
    query_.fromYear = query_.fromYear == 0 ? std::min(from, to) : std::min(query_.fromYear, from);
    query_.toYear = std::max({query_.toYear, from, to});
    return true;
  }

  bool takeKey(const std::string& plain, bool last) {
    if (last) return false;
    if (plain == "libro") expects_ = Expects::Book;
    if (plain == "folio" || plain == "fol" || plain == "f" || plain == "pagina")
      expects_ = Expects::Folio;
    if (plain == "numero" || plain == "num" || plain == "nº" || plain == "n.º" || plain == "no" ||
        plain == "n")
      expects_ = Expects::Number;
    return expects_ != Expects::Nothing;
  }

  bool takeKind(const std::string& plain, bool last) {
    if (kindsAreNames_ || (last && plain.size() < 4)) return false;
    const auto* found = std::find_if(std::begin(KINDS), std::end(KINDS),
                                     [&](const KindWord& k) { return k.word == plain; });
    if (found == std::end(KINDS)) return false;
    if (found->kind == Kinds::Request)
      query_.onlyRequests = true;
    else if (found->kind == Kinds::Annulled)
      query_.onlyAnnulled = true;
    else
      query_.kinds.push_back(found->kind);
    return true;
  }

  Query& query_;
  bool kindsAreNames_;
  bool afterParticle_ = false;
  Expects expects_ = Expects::Nothing;
};

}  // namespace

Query readQuery(std::string_view typed, bool kindsAreNames) {
  Query query;
  Reader reader(query, kindsAreNames);
  const std::vector<std::string> all = pieces(typed);
  const bool finished = !typed.empty() && typed.back() == ' ';
  for (std::size_t i = 0; i < all.size(); ++i)
    reader.read(all[i], !finished && i + 1 == all.size());
  return query;
}

}  // namespace fidaleon::search
