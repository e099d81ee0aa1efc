#include "support/Ficha.h"

#include "core/contract/Teclado.h"
#include "core/statements/Citas.h"
#include "text/Utf8.h"

namespace fidaleon::support {

Ficha::Ficha(forms::UserInterface& ui, Settings& settings, const Clock& clock,
             FDAPI::Conexion& conexion, const FDAPI::cConfig& config, std::string name,
             std::int32_t id)
    : Form(ui, std::move(name)),
      conexion_(conexion),
      config_(config),
      settings_(settings),
      clock_(clock),
      fidaleon_(ui, settings, clock),
      id_(id) {
  setEntersFields(introPasaDeCampo(settings));
  forms::Button& accept = cmdBoton.add(Aceptar, "ACEPTAR");
  accept.setDefault(true);
  accept.onClick = [this] { aceptar(); };
  forms::Button& cancel = cmdBoton.add(Cancelar, "CANCELAR");
  cancel.setCancel(true);
  cancel.onClick = [this] { Unload(); };
}

forms::LayoutNode Ficha::botones() {
  return forms::buttons({&cmdBoton[Aceptar], &cmdBoton[Cancelar]});
}

void Ficha::Form_Load() {
  if (!informado("Form_Load()", [this] { cargar(); })) Unload();
}

void Ficha::aceptar() {
  informado("cmdBoton_Click()", [this] {
    if (!comprobar()) return;
    guardar();
    aceptado_ = true;
    Unload();
  });
}

bool Ficha::falta(forms::Control& campo) {
  fidaleon_.verfalta(*campo.label());
  setFocus(campo);
  return false;
}

bool Ficha::rechazar(forms::Control& campo, const std::string& mensaje) {
  forms::warn(ui(), mensaje);
  setFocus(campo);
  return false;
}

std::string sinBlancos(const forms::TextBox& campo) {
  return text::trim(text::sanitized(campo.text()));
}

std::string entreComillas(const std::string& texto) {
  return fidaleon::entreComillas(text::trim(text::sanitized(texto)));
}

}  // namespace fidaleon::support
