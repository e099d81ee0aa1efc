#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "core/statements/Columnas.h"

namespace fidaleon {

// Where the columns of a list have the position of an entry.
constexpr std::size_t LISTADO_FOLIO = 1;
constexpr std::size_t LISTADO_NUMERO = 2;

/// The entries of a book as its list holds them. A record is large, and of thousands listed few
/// are ever opened: until somebody asks for its record, an item is the columns of the list alone.
/// Places count from 0 and stay.
template <class Registro>
class PartidasListadas {
 public:
  /// `columnas` are those that fila() brings; not owned.
  void empezar(std::span<const Columna<Registro>> columnas, std::size_t filas) {
    *this = {};
    columnas_ = columnas;
    finales_.reserve(filas * columnas.size());
    enteras_.reserve(filas);
  }
  /// Adds the row on which `filas` stands; `lugares` says where in it each column is.
  void fila(const store::Recordset& filas, std::span<const int> lugares) {
    for (std::size_t c = 0; c < columnas_.size(); ++c) {
      textos_ += texto(columnas_[c], filas, lugares[c]);
      finales_.push_back(static_cast<std::uint32_t>(textos_.size()));
    }
    enteras_.emplace_back();
  }

  std::size_t size() const { return enteras_.size(); }
  /// The record to be changed. What has been asked for once counts as touched.
  Registro& at(std::size_t posicion) {
    std::unique_ptr<Registro>& entera = enteras_.at(posicion);
    if (!entera) {
      auto nueva = std::make_unique<Registro>();
      ver(posicion, *nueva);
      entera = std::move(nueva);
    }
    return *entera;
  }
  /// Null for an item that nobody has touched: the table holds it and nothing is to be done to it.
  const Registro* tocada(std::size_t posicion) const { return enteras_.at(posicion).get(); }
  /// The record, or, of an item that nobody has touched, `aux` with the columns of the list and no
  /// others: whoever goes through all of them keeps one record for that.
  const Registro& ver(std::size_t posicion, Registro& aux) const {
    if (const Registro* entera = tocada(posicion)) return *entera;
    for (std::size_t c = 0; c < columnas_.size(); ++c) poner(aux, columnas_[c], celda(posicion, c));
    aux.Estado = true;
    return aux;
  }
  void push_back(Registro r) { enteras_.push_back(std::make_unique<Registro>(std::move(r))); }

  /// The value of a column of the list, a Yes/No one excepted.
  std::string texto(std::size_t posicion, std::size_t columna) const {
    if (const Registro* entera = tocada(posicion)) return valorTexto(*entera, columnas_[columna]);
    return std::string(celda(posicion, columna));
  }

  std::int64_t numero(std::size_t posicion, std::size_t columna) const {
    return text::toInteger(celda(posicion, columna)).value_or(0);
  }
  /// `hacer` with each record that has been touched, as long as it answers true.
  template <class Hacer>
  bool cadaTocada(Hacer&& hacer) {
    for (const std::unique_ptr<Registro>& entera : enteras_)
      if (entera && !hacer(*entera)) return false;
    return true;
  }

 private:
  std::string_view celda(std::size_t posicion, std::size_t columna) const {
    const std::size_t cual = posicion * columnas_.size() + columna;
    const std::size_t desde = cual == 0 ? 0 : finales_[cual - 1];
    return std::string_view(textos_).substr(desde, finales_[cual] - desde);
  }
  static std::string texto(const Columna<Registro>& c, const store::Recordset& filas, int lugar) {
    if (std::holds_alternative<std::string Registro::*>(c.miembro)) return filas.text(lugar);
    return std::to_string(filas.integer(lugar));
  }
  static void poner(Registro& r, const Columna<Registro>& c, std::string_view celda) {
    if (const auto* miembro = std::get_if<std::string Registro::*>(&c.miembro)) {
      r.** miembro = celda;
      return;
    }
    std::visit(
        [&](auto miembro) {
          columnas_detalle::asignar(r.*miembro, store::Value(std::string(celda)));
        },
        c.miembro);
  }

  std::span<const Columna<Registro>> columnas_;
  std::string textos_;                  // all cells of the list, row by row
  std::vector<std::uint32_t> finales_;  // where each of them ends
  std::vector<std::unique_ptr<Registro>> enteras_;
};

}  // namespace fidaleon
