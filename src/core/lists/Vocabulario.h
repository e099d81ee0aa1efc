#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "forms/Control.h"

namespace fidaleon {

/// What a field is about: fields of the same kind share what has been written in any of them.
enum class Voz {
  Ninguna,
  Ministro,
  Cargo,
  Parroquia,
  Diocesis,
  Padrino,
  Cementerio,
  Domicilio,
  Profesion,
  Causa,
  Sacramentos,
  CodigoPostal,
  EstadoCivil,
  PosicionFamiliar,
  Curso,
  Dia,
  Hora,
  Sala,
  Apellido,
  Lugar,  // the key of a town
  CUANTAS
};

/// Texts that have been written, with how often. What is blank or begins with dashes is no text.
class Vocabulario {
 public:
  void anotar(Voz voz, const std::string& texto);
  /// Without regard to case.
  int veces(Voz voz, const std::string& texto) const;
  /// Those with a word that goes on from what is typed, whatever the accents: first those that
  /// begin so, the most used first.
  std::vector<forms::Offer> proponer(Voz voz, const std::string& tecleado) const;
  /// The text of a kind that is used most of those that many use and that differ from this one,
  /// which nobody uses, by one letter or by two that changed places; empty when there is none.
  std::string parecido(Voz voz, const std::string& texto) const;

  static constexpr std::size_t PROPUESTAS = 8;
  static constexpr int MUCHAS = 5;

 private:
  struct Palabra {
    std::string texto;
    std::string igual;  // but for case
    std::string clave;  // without accents
    int veces = 0;
  };
  struct Palabras {
    std::deque<Palabra> todas;
    std::unordered_map<std::string_view, Palabra*> porTexto;
    std::unordered_map<std::string_view, int> iguales;  // how often, but for case
  };
  std::array<Palabras, static_cast<std::size_t>(Voz::CUANTAS)> voces_;

  Palabras& de(Voz voz) { return voces_[static_cast<std::size_t>(voz)]; }
  const Palabras& de(Voz voz) const { return voces_[static_cast<std::size_t>(voz)]; }
};

/// They differ by one letter more, less or other, or by two neighbours that changed places.
bool aUnaLetra(std::u32string_view a, std::u32string_view b);

}  // namespace fidaleon
