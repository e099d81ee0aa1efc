#pragma once
// An entry, a request or a person of the census, as the search sees it: texts, each with what it
// is. Which columns they come from is told by Source.

#include <cstdint>
#include <string>
#include <vector>

namespace fidaleon::search {

enum class Register : std::uint8_t { Baptism, Confirmation, Marriage, Death, Census };
inline constexpr int REGISTERS = 5;

/// Whom a name belongs to. The first two are those whom the entry is about.
enum class Who : std::uint8_t {
  Self,
  Bride,
  Father,
  Mother,
  BridesFather,
  BridesMother,
  Spouse,
  Godfather,
  Godmother
};
inline constexpr int PERSONS = 9;

/// Surnames where the register keeps them apart; else the whole name is one text.
enum class Part : std::uint8_t { Name, First, Second, Whole };

/// What a text of an entry is: a part of somebody's name, or one of these.
enum class Field : std::uint8_t {
  Place = 64,  // a parish, in words
  Town,        // key of a municipality, from here on numbers
  Book,
  Institution,
  Folio,
  Day,          // of the sacrament, "yyyyMMdd"
  Born,         // likewise
  Kind,         // what sort of a row it is: see Kinds
  Number = 96,  // from here on only to be shown or compared, not to be found
  Annulled,
  Person,        // of the census: not 0 for an empadronado
  Collaborator,  // likewise
  Baptised,      // day of the baptism, as another entry tells it
  BaptismBook,
  BaptismFolio,
  BaptismNumber,
  BrideBorn,
  BrideBaptised,
  BrideBaptismBook,
  BrideBaptismFolio,
  BrideBaptismNumber,
  ParentsWedding,
  Age,  // at death, as it is written
};

constexpr Field of(Who who, Part part) {
  return static_cast<Field>(static_cast<int>(who) * 4 + static_cast<int>(part));
}
constexpr bool isName(Field field) {
  return static_cast<int>(field) < PERSONS * 4;
}
constexpr Who whoOf(Field field) {
  return static_cast<Who>(static_cast<int>(field) / 4);
}
constexpr Part partOf(Field field) {
  return static_cast<Part>(static_cast<int>(field) % 4);
}

/// What a row can be asked to be.
enum class Kinds : std::uint8_t {
  Baptism,
  Confirmation,
  Marriage,
  Death,
  Census,
  Request,
  Annulled,
  Collaborator
};

struct Entry {
  Register in = Register::Baptism;
  std::int32_t key = 0;
  std::uint64_t digest = 0;  // of all its texts: another one, another entry
  std::vector<std::pair<Field, std::string>> texts;

  /// Empty when it is not known.
  const std::string& text(Field field) const;
  std::int64_t number(Field field) const;
  /// "yyyyMMdd", or 0.
  std::int32_t day(Field field) const;
  bool isRequest() const { return in != Register::Census && number(Field::Book) == 0; }
  bool isAnnulled() const { return number(Field::Annulled) != 0; }
  /// A name as it is written: given name, then surnames.
  std::string name(Who who) const;
};

}  // namespace fidaleon::search
