#include "core/lists/cConversor.h"

#include <array>
#include <cstdlib>

#include "text/Utf8.h"

namespace fidaleon {

namespace {

struct Letras {
  const char* uno;
  const char* cinco;
  const char* diez;
};

// Units first.
constexpr std::array<Letras, 5> LETRAS{{
    {"I", "V", "X"},
    {"X", "L", "C"},
    {"C", "D", "M"},
    {"M", "Û", "H"},
    {"H", "W", "Z"},
}};

std::string repetir(const char* letra, int veces) {
  std::string s;
  for (int i = 0; i < veces; ++i) s += letra;
  return s;
}

std::string cifra(int digito, const Letras& l) {
  if (digito < 4) return repetir(l.uno, digito);
  if (digito == 4) return std::string(l.uno) + l.cinco;
  if (digito == 9) return std::string(l.uno) + l.diez;
  return l.cinco + repetir(l.uno, digito - 5);
}

std::int64_t valor(char32_t letra) {
  switch (letra) {
    case 'I':
      return 1;
    case 'V':
      return 5;
    case 'X':
      return 10;
    case 'L':
      return 50;
    case 'C':
      return 100;
    case 'D':
      return 500;
    case 'M':
      return 1000;
    case 'Q':
      return 5000;
    case 'H':
      return 10000;
    default:
      return 0;
  }
}

}  // namespace

std::string cConversor::ConvertirRomano(std::int64_t numero) const {
  std::string romano;
  for (std::size_t i = 0; i < LETRAS.size(); ++i, numero /= 10)
    romano = cifra(static_cast<int>(std::abs(numero % 10)), LETRAS[i]) + romano;
  return romano;
}

std::int64_t cConversor::ConvertirArabe(std::string_view texto) const {
  const std::u32string letras = text::toUtf32(text::trim(texto));
  std::int64_t suma = 0;
  for (std::size_t i = 0; i < letras.size(); ++i) {
    const std::int64_t v = valor(letras[i]);
    const std::int64_t siguiente = i + 1 < letras.size() ? valor(letras[i + 1]) : 0;
    suma += v < siguiente ? -v : v;
  }
  return suma;
}

}  // namespace fidaleon
