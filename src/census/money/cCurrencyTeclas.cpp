// The keys of a field for an amount.

#include <algorithm>

#include "census/money/cCurrency.h"
#include "text/Utf8.h"

namespace fidaleon {

using forms::Key;
using forms::KeyPress;
using forms::TextBox;

namespace {

// Stands in the tag between the two operations; a key of the keypad is told from the one of the
// keyboard only by the first.
constexpr std::string_view MARCA_TECLADO_NUMERICO = "|Punto Tecl. Núm. pulsado|";
constexpr std::size_t DECIMALES_TRAS_PARTIR = 2;

/// `texto` without the characters of `conjunto` and without blanks.
std::string quitar(std::string_view texto, std::string_view conjunto) {
  std::string resto(texto);
  std::erase_if(resto,
                [&](char c) { return c == ' ' || conjunto.find(c) != std::string_view::npos; });
  return resto;
}

int cifras(std::string_view texto) {
  return static_cast<int>(quitar(texto, "+-.,").size());
}

/// The text around the caret, as it is once the selection has gone.
struct Alrededor {
  explicit Alrededor(const TextBox& campo)
      : antes(text::left(campo.text(), campo.selStart())),
        detras(text::mid(campo.text(), campo.selStart() + campo.selLength())) {}

  bool trasLaComa() const { return antes.find(',') != std::string::npos; }
  bool tieneComa() const { return trasLaComa() || detras.find(',') != std::string::npos; }
  /// Nothing may be typed in front of a sign.
  bool anteElSigno() const { return detras.starts_with('+') || detras.starts_with('-'); }

  std::string antes;
  std::string detras;
};

bool ajena(const TextBox& campo, const KeyPress& tecla) {
  return campo.locked() || !campo.usable() || tecla.changed() || tecla.ctrl || tecla.alt;
}

/// Whether a comma goes with what is taken out and leaves too long a number behind.
bool uniriaDemasiado(const TextBox& campo, int desde, int cuantas, int enteros) {
  if (campo.selLength() > 0) {
    desde = campo.selStart();
    cuantas = campo.selLength();
  }
  const std::string fuera = text::mid(campo.text(), desde, cuantas);
  if (fuera.find(',') == std::string::npos) return false;
  return cifras(campo.text()) - cifras(fuera) > enteros;
}

bool quitarMarca(TextBox& campo) {
  const std::string tag = text::trim(campo.Tag);
  if (!tag.ends_with(MARCA_TECLADO_NUMERICO)) return false;
  campo.Tag = tag.substr(0, tag.size() - MARCA_TECLADO_NUMERICO.size());
  return true;
}

void poner(TextBox& campo, KeyPress& tecla, const std::string& texto, std::size_t posicion) {
  tecla.swallow();
  const int longitud = static_cast<int>(text::length(texto));
  if (campo.maxLength() > 0 && longitud > campo.maxLength()) return;
  campo.setText(texto);
  campo.setSelection(static_cast<int>(posicion), 0);
}

std::string sinSigno(std::string texto) {
  texto.erase(0, texto.find_first_not_of(' '));
  if (texto.starts_with('+') || texto.starts_with('-')) texto.erase(0, 1);
  return texto;
}

void ponerSigno(TextBox& campo, KeyPress& tecla) {
  const Alrededor caret(campo);
  const std::string signo(1, static_cast<char>(tecla.character));
  poner(campo, tecla, signo + sinSigno(text::trim(caret.antes + caret.detras)),
        1 + text::length(sinSigno(caret.antes)));
}

void verificarCifra(const TextBox& campo, KeyPress& tecla, int enteros, int decimales) {
  const Alrededor caret(campo);
  const std::string texto = caret.antes + caret.detras;
  const std::size_t coma = std::min(texto.find(','), texto.size());
  const bool cabe = caret.trasLaComa() ? cifras(texto.substr(coma)) < decimales
                                       : cifras(texto.substr(0, coma)) < enteros;
  if (!cabe || caret.anteElSigno()) tecla.swallow();
}

void verificarComa(TextBox& campo, KeyPress& tecla) {
  const Alrededor caret(campo);
  if (caret.tieneComa() || caret.anteElSigno()) return tecla.swallow();
  if (caret.detras.empty()) return;
  // A thousands sign that is left over must not stand behind the comma: that is no number.
  const std::string cifrasDetras = quitar(caret.detras, "+-.");
  const std::string texto = caret.antes + "," + text::left(cifrasDetras, DECIMALES_TRAS_PARTIR);
  poner(campo, tecla, texto, text::length(texto));
}

}  // namespace

void cCurrency::VerificarCurrencyKeyDown(TextBox& campo, KeyPress& tecla, int enteros, int, bool) {
  if (ajena(campo, tecla)) return;
  if (tecla.keypad && (tecla.character == U'.' || tecla.character == U','))
    campo.Tag += MARCA_TECLADO_NUMERICO;
  if (tecla.key == Key::Delete && uniriaDemasiado(campo, campo.selStart(), 1, enteros))
    tecla.swallow();
}

void cCurrency::VerificarCurrencyKeyPress(TextBox& campo, KeyPress& tecla, int enteros,
                                          int decimales, bool signo) {
  if (ajena(campo, tecla)) return;
  if (quitarMarca(campo)) {
    tecla.character = U',';
    tecla.replaceWith(",");
  }
  if (tecla.key == Key::Backspace) {
    if (uniriaDemasiado(campo, campo.selStart() - 1, 1, enteros)) tecla.swallow();
    return;
  }
  if (tecla.character < U' ') return;
  // The field itself types over a selection; a refused key must leave it as it stands.
  if (tecla.character >= U'0' && tecla.character <= U'9')
    verificarCifra(campo, tecla, enteros, decimales);
  else if (tecla.character == U',')
    verificarComa(campo, tecla);
  else if (signo && (tecla.character == U'+' || tecla.character == U'-'))
    ponerSigno(campo, tecla);
  else
    tecla.swallow();
}

}  // namespace fidaleon
