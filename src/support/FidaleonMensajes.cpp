// Messages and progress.

#include <exception>

#include "support/Fidaleon.h"
#include "text/Utf8.h"

namespace fidaleon::support {

namespace {

std::string currentError() {
  const std::exception_ptr current = std::current_exception();
  if (!current) return {};
  try {
    std::rethrow_exception(current);
  } catch (const std::exception& e) {
    return e.what();
  } catch (...) {
    return "Error desconocido.";
  }
}

}  // namespace

std::string textoError(const std::string& mensaje, const std::string& modulo,
                       const std::string& objeto, const std::string& procedimiento) {
  const std::string what = mensaje.empty() ? "Error desconocido." : mensaje;
  return "Se ha producido un error y no se ha podido terminar la operación.\n\n" + what + "\n\n(" +
         modulo + " / " + objeto + " / " + procedimiento + ")";
}

std::string textoFalta(const std::string& rotulo) {
  std::string caption = text::trim(text::replaceAll(rotulo, "&", ""));
  while (caption.ends_with(':')) caption = text::trim(caption.substr(0, caption.size() - 1));
  return "Falta rellenar el campo «" + caption + "».";
}

Fidaleon::Fidaleon(forms::UserInterface& ui, Settings& settings, const Clock& clock,
                   ErrorLog* errors)
    : ui_(ui), settings_(settings), clock_(clock), errors_(errors) {}

void Fidaleon::vererror(const std::string& modulo, const std::string& objeto,
                        const std::string& procedimiento) {
  if (errors_) errors_->note(clock_, modulo + " / " + objeto + " / " + procedimiento);
  ui_.msgBox(textoError(currentError(), modulo, objeto, procedimiento), forms::MsgButtons::Ok,
             forms::MsgIcon::Critical);
}

void Fidaleon::vererror(const std::string& mensaje) {
  const std::string cause = currentError();
  if (errors_) errors_->note(clock_, "mensaje");
  ui_.msgBox(cause.empty() || cause == mensaje ? mensaje : mensaje + "\n\n" + cause,
             forms::MsgButtons::Ok, forms::MsgIcon::Critical);
}

void Fidaleon::verfalta(const forms::Label& etiqueta) {
  forms::warn(ui_, textoFalta(etiqueta.caption()));
}

void Fidaleon::ProgresoLoad(std::int64_t cuenta, const std::string& mensaje, int) {
  ui_.progressOpen(cuenta, mensaje);
}

void Fidaleon::ProgresoRefresh(std::int64_t posicion) {
  ui_.progressMove(posicion);
}

void Fidaleon::ProgresoUnload() {
  ui_.progressClose();
}

}  // namespace fidaleon::support
