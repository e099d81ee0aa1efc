#include "import/NombreCompleto.h"

#include <vector>

#include "text/Utf8.h"

namespace fidaleon {

namespace {

using Palabras = std::vector<std::string>;

bool empiezaPorLetra(std::string_view palabra) {
  return static_cast<unsigned char>(palabra[0]) > 64;
}

/// `sobra` tells that one was dropped.
Palabras palabrasDe(std::string_view texto, bool& sobra) {
  Palabras palabras;
  while (!texto.empty()) {
    const std::size_t fin = std::min(texto.find_first_of(" \t\r\n"), texto.size());
    const std::string_view palabra = texto.substr(0, fin);
    if (!palabra.empty() && empiezaPorLetra(palabra)) palabras.emplace_back(palabra);
    sobra |= !palabra.empty() && !empiezaPorLetra(palabra);
    texto.remove_prefix(std::min(fin + 1, texto.size()));
  }
  return palabras;
}

/// Where the words of a text of so many stand, by number from 0; -1: none.
struct Reparto {
  int nombre[2], apellido1[2], apellido2[2];
};

/// By the number of words, from 1 to 5.
constexpr Reparto NOMBRE_DELANTE[] = {
    {{0, -1}, {-1, -1}, {-1, -1}}, {{0, -1}, {1, -1}, {-1, -1}}, {{0, -1}, {1, -1}, {2, -1}},
    {{0, 1}, {2, -1}, {3, -1}},    {{0, 1}, {2, 3}, {4, -1}},
};
constexpr Reparto NOMBRE_DETRAS[] = {
    {{0, -1}, {-1, -1}, {-1, -1}}, {{1, -1}, {0, -1}, {-1, -1}}, {{2, -1}, {0, -1}, {1, -1}},
    {{2, 3}, {0, -1}, {1, -1}},    {{4, -1}, {0, 1}, {2, 3}},
};

std::string unidas(const Palabras& palabras, const int (&cuales)[2]) {
  std::string texto;
  for (const int n : cuales)
    if (n >= 0) texto += (texto.empty() ? "" : " ") + palabras[static_cast<std::size_t>(n)];
  return texto;
}

void repartir(Palabras palabras, std::uint8_t orden, NombreCompleto& n) {
  if (palabras.empty()) return;
  if (palabras.size() > 5) {
    palabras[4] = palabras.back();
    palabras.resize(5);
    n.incompleto = true;
  }
  const Reparto& r = (orden == 0 ? NOMBRE_DELANTE : NOMBRE_DETRAS)[palabras.size() - 1];
  n.nombre = unidas(palabras, r.nombre);
  n.apellido1 = unidas(palabras, r.apellido1);
  n.apellido2 = unidas(palabras, r.apellido2);
}

void repartirApellidos(const Palabras& p, NombreCompleto& n) {
  if (p.empty()) return;
  n.apellido1 = p.size() < 3 ? p[0] : p[0] + " " + p[1];
  if (p.size() == 2) n.apellido2 = p[1];
  if (p.size() == 3) n.apellido2 = p[2];
  if (p.size() == 4) n.apellido2 = p[2] + " " + p[3];
  if (p.size() > 4) n.apellido2 = p.back();
  n.incompleto |= p.size() > 4;
}

}  // namespace

NombreCompleto separarNombre(std::string_view texto, std::uint8_t orden) {
  NombreCompleto n;
  const std::size_t coma = texto.find(',');
  const std::string nombre =
      coma == std::string_view::npos ? std::string() : text::trim(texto.substr(coma + 1));
  const Palabras palabras = palabrasDe(texto.substr(0, coma), n.incompleto);
  if (nombre.empty()) {
    repartir(palabras, orden, n);
  } else {
    n.nombre = nombre;
    repartirApellidos(palabras, n);
  }
  return n;
}

}  // namespace fidaleon
