#include "core/statements/Citas.h"

namespace fidaleon {

void citarEn(std::string& sentencia, std::string_view texto, char comilla) {
  sentencia += comilla;
  for (auto at = texto.find(comilla); at != std::string_view::npos; at = texto.find(comilla)) {
    sentencia.append(texto, 0, at + 1);
    sentencia += comilla;
    texto.remove_prefix(at + 1);
  }
  sentencia += texto;
  sentencia += comilla;
}

std::string entreComillas(std::string_view texto) {
  std::string citado;
  citarEn(citado, texto);
  return citado;
}

std::string entreApostrofos(std::string_view texto) {
  std::string citado;
  citarEn(citado, texto, '\'');
  return citado;
}

}  // namespace fidaleon
