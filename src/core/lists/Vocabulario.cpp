#include "core/lists/Vocabulario.h"

#include <algorithm>

#include "text/Utf8.h"

namespace fidaleon {

namespace {

/// Of one kind; what is older than so many different texts is only counted where it is known.
constexpr std::size_t DISTINTAS = 30'000;
/// Surnames are few, and each counts.
constexpr std::size_t APELLIDOS = 300'000;

/// 0 at the beginning, 1 at that of another word, 2 nowhere.
int lugarEn(const std::string& clave, const std::string& tecleado) {
  if (clave.starts_with(tecleado)) return 0;
  for (auto at = clave.find(tecleado); at != std::string::npos; at = clave.find(tecleado, at + 1)) {
    const auto before = static_cast<unsigned char>(clave[at - 1]);
    if (before < 0x80 && !std::isalnum(before)) return 1;
  }
  return 2;
}

}  // namespace

void Vocabulario::anotar(Voz voz, const std::string& escrito) {
  const std::string texto = text::trim(escrito);
  if (voz == Voz::Ninguna || texto.empty() || texto.starts_with("--")) return;
  Palabras& palabras = de(voz);
  auto found = palabras.porTexto.find(texto);
  if (found == palabras.porTexto.end()) {
    if (palabras.todas.size() >= (voz == Voz::Apellido ? APELLIDOS : DISTINTAS)) return;
    Palabra& nueva =
        palabras.todas.emplace_back(Palabra{texto, text::foldCase(texto), text::searchKey(texto)});
    found = palabras.porTexto.emplace(nueva.texto, &nueva).first;
  }
  ++found->second->veces;
  ++palabras.iguales[found->second->igual];
}

int Vocabulario::veces(Voz voz, const std::string& texto) const {
  const auto found = de(voz).iguales.find(text::foldCase(text::trim(texto)));
  return found == de(voz).iguales.end() ? 0 : found->second;
}

std::vector<forms::Offer> Vocabulario::proponer(Voz voz, const std::string& tecleado) const {
  const std::string clave = text::searchKey(text::trim(tecleado));
  std::vector<std::pair<int, const Palabra*>> dan;
  for (const Palabra& p : de(voz).todas)
    if (const int lugar = lugarEn(p.clave, clave); lugar < 2) dan.push_back({lugar, &p});
  const auto antes = [](const auto& a, const auto& b) {
    if (a.first != b.first) return a.first < b.first;
    if (a.second->veces != b.second->veces) return a.second->veces > b.second->veces;
    return a.second->clave < b.second->clave;
  };
  const auto hasta = dan.begin() + static_cast<std::ptrdiff_t>(std::min(PROPUESTAS, dan.size()));
  std::partial_sort(dan.begin(), hasta, dan.end(), antes);
  std::vector<forms::Offer> ofertas;
  for (auto it = dan.begin(); it != hasta; ++it) ofertas.push_back({it->second->texto, 0});
  return ofertas;
}

std::string Vocabulario::parecido(Voz voz, const std::string& texto) const {
  const std::string igual = text::foldCase(text::trim(texto));
  const std::u32string letras = text::toUtf32(igual);
  if (letras.size() < 3 || veces(voz, texto) > 0) return {};
  const Palabra* mejor = nullptr;
  int masVeces = MUCHAS - 1;
  for (const Palabra& p : de(voz).todas) {
    const auto largo = static_cast<std::ptrdiff_t>(p.igual.size() - igual.size());
    if (p.veces <= masVeces || largo < -3 || largo > 3) continue;
    if (!aUnaLetra(text::toUtf32(p.igual), letras)) continue;
    mejor = &p;
    masVeces = p.veces;
  }
  return mejor ? mejor->texto : std::string();
}

bool aUnaLetra(std::u32string_view a, std::u32string_view b) {
  const auto igualesDelante = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  a.remove_prefix(static_cast<std::size_t>(igualesDelante.first - a.begin()));
  b.remove_prefix(static_cast<std::size_t>(igualesDelante.second - b.begin()));
  while (!a.empty() && !b.empty() && a.back() == b.back()) {
    a.remove_suffix(1);
    b.remove_suffix(1);
  }
  if (a.size() == 2 && b.size() == 2) return a[0] == b[1] && a[1] == b[0];
  return a.size() <= 1 && b.size() <= 1 && a.size() + b.size() > 0;
}

}  // namespace fidaleon
