#include "registers/allocation/PosicionEnLista.h"

#include <algorithm>
#include <set>

namespace fidaleon {

namespace {

struct Ocupada {
  std::int64_t folio;
  std::int64_t numero;
};

/// The positions of a list in order, counted from 1 as the rules count them.
class Ocupadas {
 public:
  explicit Ocupadas(const std::vector<Posicion>& posiciones) {
    filas_.reserve(posiciones.size());
    for (const Posicion& p : posiciones) filas_.push_back({p.folio, valNumero(p.numero)});
    const auto orden = [](const Ocupada& o) { return std::pair(o.folio, o.numero); };
    if (!std::ranges::is_sorted(filas_, {}, orden)) std::ranges::stable_sort(filas_, {}, orden);
  }

  int cuenta() const { return static_cast<int>(filas_.size()); }
  std::int64_t folio(int i) const { return filas_[static_cast<std::size_t>(i - 1)].folio; }
  std::int64_t numero(int i) const { return filas_[static_cast<std::size_t>(i - 1)].numero; }

  /// The `p` entries that end with `i` lie on one folio.
  bool llenan(int i, int p) const { return folio(i) == folio(i - p + 1); }

  /// First of the entries that share a folio with `i`.
  int primeraDelFolio(int i) const {
    while (i > 1 && folio(i - 1) == folio(i)) --i;
    return i;
  }

  /// The number behind the highest break between the entries `desde` and `hasta`, else behind the
  /// last of them.
  std::int64_t trasLaRotura(int desde, int hasta) const {
    for (int i = hasta; i > desde; --i)
      if (numero(i) - numero(i - 1) != 1) return numero(i - 1) + 1;
    return numero(hasta) + 1;
  }

  std::int64_t menorLibre(int hasta) const {
    std::set<std::int64_t> usados;
    for (int i = 1; i <= hasta; ++i) usados.insert(numero(i));
    std::int64_t libre = 1;
    while (usados.contains(libre)) ++libre;
    return libre;
  }

  /// First entry that lies on a later folio than its place in the order gives it; 0 without one.
  int primerHueco(int p) const {
    for (int i = 1; i <= cuenta(); ++i)
      if (folio(i) > (i + p - 1) / p) return i;
    return 0;
  }

 private:
  std::vector<Ocupada> filas_;
};

Posicion posicion(std::int64_t folio, std::int64_t numero) {
  return {static_cast<std::int32_t>(folio), std::to_string(numero)};
}

Posicion tras(const Ocupadas& o, int i) {
  return posicion(o.folio(i) + 1, o.numero(i) + 1);
}

Posicion enHueco(const Ocupadas& o, int hueco, int p) {
  if (hueco == 1) return {};
  const int previa = hueco - 1;
  if (p == 1) return tras(o, previa);
  if (hueco <= p) return posicion(1, o.menorLibre(previa));
  if (o.llenan(previa, p)) return tras(o, previa);
  return posicion(o.folio(previa), o.trasLaRotura(hueco - p, previa));
}

Posicion alFinal(const Ocupadas& o, int p) {
  const int n = o.cuenta();
  if (p == 1) return tras(o, n);
  if (n < p) return o.numero(1) == 1 ? posicion(1, o.trasLaRotura(1, n)) : Posicion{};
  if (o.llenan(n, p)) return tras(o, n);
  return posicion(o.folio(n), o.trasLaRotura(o.primeraDelFolio(n), n));
}

}  // namespace

std::optional<Posicion> siguienteEnLista(const std::vector<Posicion>& ocupadas, int partidasFolio,
                                         Numeracion numeracion) {
  if (ocupadas.empty()) return Posicion{};
  const Ocupadas o(ocupadas);
  if (numeracion == Numeracion::SoloAdelante) return tras(o, o.cuenta());
  if (partidasFolio != 1 && partidasFolio != 2 && partidasFolio != 4) return std::nullopt;
  const int hueco = o.primerHueco(partidasFolio);
  return hueco ? enHueco(o, hueco, partidasFolio) : alFinal(o, partidasFolio);
}

}  // namespace fidaleon
