#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "registers/allocation/Posicion.h"

namespace fidaleon {

/// How full the folios of an old book are, and where it goes on. What is known of the book stays
/// known while entries are added to it.
class FoliosOcupados {
 public:
  /// 1, 2 or 4 entries to a folio.
  explicit FoliosOcupados(int porFolio) : porFolio_(porFolio) {}

  /// Entries of one folio, or more of them: how many, and of their numbers the one by which the
  /// numbering goes on: the highest as text, in a book of one to a folio the lowest by value.
  void sumar(std::int64_t folio, const std::string& numero, std::int64_t partidas = 1);

  using Hay = std::function<bool(std::int64_t numero, std::int64_t folio)>;
  /// The first folio with room, or the one behind the last; of one to a folio, the one behind the
  /// unbroken run that the book begins with. None without entries. `hay`: the table has it.
  std::optional<Posicion> siguiente(const Hay& hay);

 private:
  struct Folio {
    std::int64_t partidas = 0;
    std::string numero;
  };
  Posicion trasLaSerie();
  Posicion conSitio(const Hay& hay);

  int porFolio_;
  std::map<std::int64_t, Folio> folios_;
  std::optional<std::int64_t> visto_;  // where the next look begins
};

}  // namespace fidaleon
