#include "registers/common/LimiteNotas.h"

#include <string_view>

#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr const char* FUENTE_NOTAS = "Verdana";
constexpr double ANCHO_NOTAS = 1560;
constexpr int LINEAS_NOTAS = 42;

/// Calls `f` for each piece of the text between separators, empty ones too.
template <class F>
void partir(std::string_view texto, std::string_view separador, F&& f) {
  for (;;) {
    const std::size_t fin = texto.find(separador);
    f(texto.substr(0, fin));
    if (fin == std::string_view::npos) return;
    texto.remove_prefix(fin + separador.size());
  }
}

int lineasDeParrafo(const forms::UserInterface& ui, std::string_view parrafo,
                    const std::string& fuente, double ancho) {
  int lineas = 1;
  double suma = 0;
  partir(parrafo, " ", [&](std::string_view palabra) {
    const double largo = ui.printerTextWidth(std::string(palabra), fuente);
    suma += largo;
    if (suma <= ancho) return;
    ++lineas;
    suma = largo;
  });
  return lineas;
}

}  // namespace

bool MaximoLineas(const forms::UserInterface& ui, const std::string& texto,
                  const std::string& fuente, double ancho, int limite) {
  int lineas = 0;
  partir(texto, "\r\n", [&](std::string_view parrafo) {
    if (lineas <= limite) lineas += lineasDeParrafo(ui, parrafo, fuente, ancho);
  });
  return lineas > limite;
}

void LimiteNotas::comprobar() {
  const std::size_t longitud = text::length(notas_.text());
  if (avisado_ && longitud < longitudAvisada_) avisado_ = false;
  if (avisado_ || !ui_.hasPrinter()) return;
  if (!MaximoLineas(ui_, notas_.text(), FUENTE_NOTAS, ANCHO_NOTAS, LINEAS_NOTAS)) return;
  avisado_ = true;
  longitudAvisada_ = longitud;
  ui_.msgBox(aviso_, forms::MsgButtons::Ok, forms::MsgIcon::Information);
}

}  // namespace fidaleon
