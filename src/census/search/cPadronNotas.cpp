#include "census/search/cPadronNotas.h"

#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr std::size_t LETRAS_EN_REJILLA = 100;

}  // namespace

std::string recortada(const std::string& texto) {
  const std::string linea = text::replaceAll(text::replaceAll(texto, "\r\n", " "), "\n", " ");
  if (text::length(linea) <= LETRAS_EN_REJILLA) return linea;
  return text::left(linea, LETRAS_EN_REJILLA) + " ... ";
}

}  // namespace fidaleon
