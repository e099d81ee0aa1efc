#include "import/Siglo.h"

#include <cstdio>

#include "text/Utf8.h"

namespace fidaleon {

namespace {

/// "3/12/41": the century is that of the rule, whatever stands here.
std::optional<text::Date> conAnoCorto(const std::string& texto) {
  const std::size_t ultimo = texto.find_last_of("/-.");
  if (ultimo == std::string::npos || texto.size() - ultimo != 3) return std::nullopt;
  const std::string dia = texto.substr(0, ultimo + 1), ano = texto.substr(ultimo + 1);
  const auto leido = text::parseShort(dia + "19" + ano);
  return leido ? leido : text::parseShort(dia + "20" + ano);  // 29/2/00
}

}  // namespace

std::optional<text::Date> diaDe(const dbase::Cell& valor) {
  if (esDia(valor)) return valor.date;
  if (valor.kind != dbase::Cell::Kind::Text) return std::nullopt;
  const std::string texto = text::trim(valor.text);
  if (const auto dia = text::parseShort(texto)) return dia;
  return conAnoCorto(texto);
}

std::string conSiglo(const text::Date& dia, const std::string& strAno00) {
  char digitos[32];
  std::snprintf(digitos, sizeof digitos, "%02d%02d%02d", dia.year % 100, dia.month, dia.day);
  return (dia.year % 100 == 0 ? strAno00 : "19") + digitos;
}

}  // namespace fidaleon
