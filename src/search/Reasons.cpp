#include "search/Reasons.h"

#include <algorithm>

#include "search/Words.h"
#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon::search {
namespace {

std::string quoted(const std::string& word) {
  return "«" + word + "»";
}

std::string capital(const std::string& word) {
  return text::upper(text::left(word, 1)) + text::mid(word, 1);
}

/// The word as it stands in the text, with its accents and points.
std::string asWritten(const std::string& text, const std::string& word) {
  for (std::size_t i = 0, end = 0; i < text.size(); i = end + 1) {
    end = std::min(text.find(' ', i), text.size());
    const std::string piece = text.substr(i, end - i);
    const auto words = wordsOf(piece);
    if (std::find(words.begin(), words.end(), word) != words.end()) return piece;
  }
  return capital(word);
}

class Reason {
 public:
  void add(const std::string& part) {
    if (!part.empty() && text_.find(part) == std::string::npos)
      text_ += (text_.empty() ? "" : "; ") + part;
  }
  std::string take() { return std::move(text_); }

 private:
  std::string text_;
};

std::string subject(const Match& match) {
  int names = 0, surnames = 0;
  for (const Match::Piece& p : match.pieces) {
    if (!isName(p.field) || whoOf(p.field) > Who::Bride) continue;
    ++(partOf(p.field) == Part::Name ? names : surnames);
  }
  if (names == 0) return surnames == 0 ? "" : surnames == 1 ? "apellido" : "apellidos";
  return surnames == 0 ? "nombre" : surnames == 1 ? "nombre y apellido" : "nombre y apellidos";
}

std::string likenessOf(const Match::Piece& piece, const std::string& typed,
                       const std::string& written) {
  switch (piece.how) {
    case Likeness::WrittenOut:
      return quoted(written) + " es " + quoted(capital(typed));
    case Likeness::Sound:
    case Likeness::SoundBegins:
      return quoted(written) + " suena igual";
    case Likeness::Familiar:
      return quoted(written) + ", que también se dice " + quoted(capital(typed));
    case Likeness::Letter:
      return quoted(written) + " se aparta en una letra";
    default:
      return {};
  }
}

/// "Libro VII", also where the book is called that.
std::string bookOf(const Entry& entry, const Places& places) {
  const std::string& name = places.book(entry.in, entry.number(Field::Book));
  const auto words = wordsOf(name);
  return !words.empty() && words.front() == "libro" ? name : "Libro " + name;
}

std::string placeOf(const Match::Piece& piece, const Entry& entry, const Vocabulary& words,
                    const Places& places) {
  switch (piece.field) {
    case Field::Town:
      return "lugar: " + places.town(piece.word);
    case Field::Book:
      return bookOf(entry, places);
    case Field::Institution:
      return "institución: " + places.institution(piece.word);
    default:
      return "lugar: " + asWritten(entry.text(Field::Place), words.word(piece.word));
  }
}

std::string onDay(std::int32_t day, const Entry& entry) {
  const text::Date date{day / 10000, day / 100 % 100, day % 100};
  return (entry.day(Field::Day) == day ? "el " : "nacimiento el ") + text::toShort(date);
}

std::string year(const Query& query, const Entry& entry) {
  const auto fits = [&](Field field) {
    const int year = entry.day(field) / 10000;
    return year >= query.fromYear && year <= query.toYear && year != 0;
  };
  if (query.fromYear == 0) return {};
  if (query.day != 0) return onDay(query.day, entry);
  if (fits(Field::Day)) return "año " + std::to_string(entry.day(Field::Day) / 10000);
  return "nacimiento en " + std::to_string(entry.day(Field::Born) / 10000);
}

/// "y Ana", "e Isabel", "y Hiedra".
std::string conjoined(const std::string& name) {
  const std::string plain = text::searchKey(name);
  const bool sounds = plain.starts_with("i") || plain.starts_with("hi") || plain.starts_with("y ");
  const bool glides = plain.starts_with("ia") || plain.starts_with("io") ||
                      plain.starts_with("hia") || plain.starts_with("hie");
  return (sounds && !glides ? " e " : " y ") + name;
}

std::string whereOf(const Entry& entry, const Places& places) {
  if (entry.in == Register::Census) {
    const bool both = entry.number(Field::Person) != 0 && entry.number(Field::Collaborator) != 0;
    return places.institution(entry.number(Field::Institution)) + (both ? ", y colaborador" : "");
  }
  const std::int64_t book = entry.number(Field::Book);
  if (book == 0) return places.institution(entry.number(Field::Institution));
  return bookOf(entry, places) + ", folio " + entry.text(Field::Folio) + ", n.º " +
         entry.text(Field::Number) + ", " +
         places.institution(places.institutionOf(entry.in, book));
}

}  // namespace

const char* roleOf(Register in, Who who) {
  const bool marriage = in == Register::Marriage;
  switch (who) {
    case Who::Self:
      return marriage ? "novio" : "";
    case Who::Bride:
      return "novia";
    case Who::Father:
      return marriage ? "padre del novio" : "padre";
    case Who::Mother:
      return marriage ? "madre del novio" : "madre";
    case Who::BridesFather:
      return "padre de la novia";
    case Who::BridesMother:
      return "madre de la novia";
    case Who::Spouse:
      return "consorte";
    case Who::Godfather:
      return "padrino";
    case Who::Godmother:
      return "madrina";
  }
  return "";
}

Hit hitOf(const Entry& entry, const Places& places) {
  Hit hit;
  hit.in = entry.in;
  hit.key = entry.key;
  hit.request = entry.isRequest();
  hit.annulled = entry.isAnnulled();
  hit.collaborator = entry.in == Register::Census && entry.number(Field::Person) == 0;
  hit.name = entry.name(Who::Self);
  if (entry.in == Register::Marriage) hit.name += conjoined(entry.name(Who::Bride));
  hit.day = entry.day(Field::Day);
  hit.born = entry.day(Field::Born);
  hit.where = whereOf(entry, places);
  return hit;
}

std::string reasonOf(const Query& query, const Match& match, const Entry& entry,
                     const Vocabulary& words, const Places& places) {
  Reason reason;
  reason.add(subject(match));
  for (const Match::Piece& p : match.pieces)
    if (isName(p.field) && whoOf(p.field) > Who::Bride)
      reason.add(std::string(roleOf(entry.in, whoOf(p.field))) + ": " + entry.name(whoOf(p.field)));
  if (match.swapped) reason.add("apellidos en otro orden");
  for (const Match::Piece& p : match.pieces) {
    if (isName(p.field))
      reason.add(likenessOf(p, query.words[p.typed].text,
                            asWritten(entry.text(p.field), words.word(p.word))));
    else
      reason.add(placeOf(p, entry, words, places));
  }
  if (match.withoutSecond)
    reason.add("no consta el segundo apellido");
  else if (match.missing)
    reason.add("falta " + quoted(capital(query.words[*match.missing].text)));
  reason.add(year(query, entry));
  if (query.folio != 0) reason.add("folio " + std::to_string(query.folio));
  if (!query.book.empty()) reason.add(bookOf(entry, places));
  return reason.take();
}

}  // namespace fidaleon::search
