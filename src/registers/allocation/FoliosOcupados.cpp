#include "registers/allocation/FoliosOcupados.h"

#include <algorithm>

#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

std::int64_t siguienteNumero(const std::string& ultimo) {
  return static_cast<std::int64_t>(text::Val(ultimo)) + 1;
}

Posicion en(std::int64_t folio, std::int64_t numero) {
  return {static_cast<std::int32_t>(folio), std::to_string(numero)};
}

}  // namespace

void FoliosOcupados::sumar(std::int64_t folio, const std::string& numero, std::int64_t partidas) {
  const auto [donde, nuevo] = folios_.try_emplace(folio);
  Folio& f = donde->second;
  f.partidas += partidas;
  const bool manda = nuevo || (porFolio_ == 1 ? text::Val(numero) < text::Val(f.numero)
                                              : text::compare(numero, f.numero) > 0);
  if (manda) f.numero = numero;
  visto_ = std::min(visto_.value_or(folio), folio);
}

std::optional<Posicion> FoliosOcupados::siguiente(const Hay& hay) {
  if (folios_.empty()) return std::nullopt;
  return porFolio_ == 1 ? trasLaSerie() : conSitio(hay);
}

/// A second entry on a folio breaks the run as a missing folio does.
Posicion FoliosOcupados::trasLaSerie() {
  while (folios_.at(*visto_).partidas == 1 && folios_.contains(*visto_ + 1)) ++*visto_;
  return en(*visto_ + 1, siguienteNumero(folios_.at(*visto_).numero));
}

Posicion FoliosOcupados::conSitio(const Hay& hay) {
  if (folios_.begin()->first < 1) return en(1, 1);
  std::int64_t& folio = *visto_;
  const auto partidas = [&] {
    const auto este = folios_.find(folio);
    return este == folios_.end() ? 0 : este->second.partidas;
  };
  if (folios_.begin()->first > 1) folio = 1;
  while (partidas() >= porFolio_) ++folio;
  std::int64_t numero = folio == 1 ? 1 : siguienteNumero(folios_.at(folio - 1).numero);
  // A folio of two offers the number even when it is taken.
  while (porFolio_ == 4 && partidas() > 0 && hay(numero, folio)) ++numero;
  return en(folio, numero);
}

}  // namespace fidaleon
