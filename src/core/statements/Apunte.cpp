#include "core/statements/Apunte.h"

namespace fidaleon {

namespace {

constexpr const char* EN_BLANCO = "---";

std::string enUnaLinea(const std::string& valor) {
  std::string linea = text::replaceAll(valor, "\\", "\\\\");
  linea = text::replaceAll(linea, "\r", "\\r");
  return text::replaceAll(linea, "\n", "\\n");
}

std::string comoEra(const std::string& linea) {
  std::string valor;
  for (std::size_t i = 0; i < linea.size(); ++i) {
    const bool signo = linea[i] == '\\' && i + 1 < linea.size();
    const char c = signo ? linea[++i] : linea[i];
    valor += signo && c == 'r' ? '\r' : signo && c == 'n' ? '\n' : c;
  }
  return valor;
}

}  // namespace

void Apunte::poner(const std::string& nombre, const std::string& valor) {
  if (!valor.empty() && valor != EN_BLANCO) lineas_.emplace_back(nombre, valor);
}

std::string Apunte::valor(const std::string& nombre) const {
  for (const auto& [n, v] : lineas_)
    if (n == nombre) return v;
  return {};
}

void Apunte::leer(const std::string& nombre, std::string& valor) const {
  const std::string escrito = this->valor(nombre);
  valor = escrito.empty() ? EN_BLANCO : escrito;
}

std::string Apunte::texto() const {
  std::string todo;
  for (const auto& [nombre, valor] : lineas_) todo += nombre + ": " + enUnaLinea(valor) + "\n";
  return todo + "\n";
}

std::vector<Apunte> Apunte::todos(const std::string& texto) {
  std::vector<Apunte> apuntes;
  bool abierto = false;
  for (std::size_t desde = 0; desde < texto.size();) {
    const std::size_t hasta = std::min(texto.find('\n', desde), texto.size());
    const std::string linea = texto.substr(desde, hasta - desde);
    desde = hasta + 1;
    const std::size_t corte = linea.find(": ");
    if (corte == std::string::npos) {
      abierto = false;
      continue;
    }
    if (!std::exchange(abierto, true)) apuntes.emplace_back();
    apuntes.back().lineas_.emplace_back(linea.substr(0, corte), comoEra(linea.substr(corte + 2)));
  }
  return apuntes;
}

}  // namespace fidaleon
