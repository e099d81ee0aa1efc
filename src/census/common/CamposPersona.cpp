#include "census/common/CamposPersona.h"

#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

bool esTecleado(const forms::KeyPress& tecla) {
  const bool caracter = tecla.key == forms::Key::Character || tecla.key == forms::Key::Space;
  return caracter && !tecla.ctrl && !tecla.alt;
}

}  // namespace

void soloDigitos(Contexto& contexto, forms::TextBox& campo) {
  campo.setDigitsOnly(true);
  campo.onKeyPress = [&contexto](forms::KeyPress& tecla) {
    if (!esTecleado(tecla) || (tecla.character >= U'0' && tecla.character <= U'9')) return;
    contexto.ui().beep();
    tecla.swallow();
  };
}

void enMinusculas(forms::TextBox& campo) {
  campo.onKeyPress = [](forms::KeyPress& tecla) {
    if (!esTecleado(tecla) || tecla.character == U'"') return;
    tecla.replaceWith(text::lower(text::toUtf8(std::u32string(1, tecla.character))));
  };
  campo.onLostFocus = [&campo](forms::Control*) {
    if (!campo.locked()) campo.setText(text::lower(campo.text()));
  };
}

std::string conCerosNIF(const std::string& cifras) {
  constexpr std::size_t CIFRAS_NIF = 8;
  const std::size_t largo = text::length(cifras);
  return largo == 0 || largo >= CIFRAS_NIF ? cifras : std::string(CIFRAS_NIF - largo, '0') + cifras;
}

std::string fechaEnLugarDe(const std::string& anterior, const forms::DateField& campo) {
  const bool seMostraba = text::parseStored(anterior).has_value();
  return seMostraba || !campo.text().empty() ? campo.stored() : anterior;
}

}  // namespace fidaleon
