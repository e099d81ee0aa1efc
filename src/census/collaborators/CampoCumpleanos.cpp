#include "census/collaborators/CampoCumpleanos.h"

#include <algorithm>

#include "forms/Form.h"
#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr std::size_t CIFRAS = 4;
constexpr std::size_t TRAS_EL_DIA = 2;
constexpr const char* AÑO_BISIESTO = "/2000";  // 29/02 is a birthday too

bool esCifra(char32_t c) {
  return c >= U'0' && c <= U'9';
}

std::string cifrasDe(std::string_view texto) {
  std::string cifras;
  std::copy_if(texto.begin(), texto.end(), std::back_inserter(cifras), esCifra);
  return cifras;
}

/// Whether these digits may begin a "ddmm".
bool puedeSerFecha(const std::string& cifras) {
  if (cifras.size() > CIFRAS) return false;
  const auto parte = [&](std::size_t desde, char maximo, char maximoDeLaSegunda) {
    if (cifras.size() <= desde) return true;
    if (cifras[desde] > maximo) return false;
    if (cifras.size() == desde + 1) return true;
    if (cifras[desde] == '0') return cifras[desde + 1] != '0';
    return cifras[desde] != maximo || cifras[desde + 1] <= maximoDeLaSegunda;
  };
  return parte(0, '3', '1') && parte(TRAS_EL_DIA, '1', '2');
}

}  // namespace

std::optional<std::string> diaYMes(std::string_view tecleado) {
  std::string texto = text::trim(tecleado);
  if (texto.size() == CIFRAS && cifrasDe(texto) == texto) texto.insert(TRAS_EL_DIA, "/");
  const auto fecha = text::parseShort(texto + AÑO_BISIESTO);
  if (!fecha) return std::nullopt;
  return text::toShort(*fecha).substr(0, CIFRAS + 1);
}

CampoCumpleaños::CampoCumpleaños(forms::TextBox& campo) : campo_(campo) {
  campo_.setMaxLength(CIFRAS + 1);
  campo_.setWidthChars(CIFRAS + 2);
  campo_.onKeyPress = [this](forms::KeyPress& pulsada) { tecla(pulsada); };
  campo_.onLostFocus = [this](forms::Control* siguiente) { alSalir(siguiente); };
}

void CampoCumpleaños::poner(const std::string& guardado) {
  guardado_ = guardado;
  campo_.setText(guardado);
}

bool CampoCumpleaños::valido() const {
  const std::string& texto = campo_.text();
  return text::trim(texto).empty() || texto == guardado_ || diaYMes(texto).has_value();
}

std::string CampoCumpleaños::aviso() const {
  return "«" + campo_.text() + "» no es un día del año. Escriba el cumpleaños como día/mes: 03/05.";
}

void CampoCumpleaños::tecla(forms::KeyPress& pulsada) {
  if (campo_.locked() || pulsada.ctrl || pulsada.alt) return;
  if (pulsada.key == forms::Key::Backspace) {
    if (campo_.selLength() > 0 || campo_.selStart() != TRAS_EL_DIA + 1) return;
    if (text::mid(campo_.text(), TRAS_EL_DIA, 1) != "/") return;
    borrarConBarra();
    return pulsada.swallow();
  }
  if (pulsada.key != forms::Key::Character && pulsada.key != forms::Key::Space) return;
  escribir(pulsada.character);
  pulsada.swallow();
}

void CampoCumpleaños::escribir(char32_t c) {
  const std::string& texto = campo_.text();
  const int inicio = campo_.selStart();
  const std::string antes = text::left(texto, inicio);
  const bool barraPuesta = c == U'/' && antes.ends_with('/');
  std::string cifras = cifrasDe(antes);
  const std::size_t escritas = cifras.size() + 1;
  cifras += static_cast<char>(c) + cifrasDe(text::mid(texto, inicio + campo_.selLength()));
  if (barraPuesta) return;
  if (!esCifra(c) || !puedeSerFecha(cifras)) return campo_.form().ui().beep();
  if (cifras.size() >= TRAS_EL_DIA) cifras.insert(TRAS_EL_DIA, "/");
  campo_.setText(cifras);
  campo_.setSelection(static_cast<int>(escritas + (escritas >= TRAS_EL_DIA ? 1 : 0)), 0);
}

void CampoCumpleaños::borrarConBarra() {
  const std::string texto = campo_.text();
  campo_.setText(text::left(texto, TRAS_EL_DIA - 1) + text::mid(texto, TRAS_EL_DIA + 1));
  campo_.setSelection(TRAS_EL_DIA - 1, 0);
}

void CampoCumpleaños::alSalir(forms::Control* siguiente) {
  if (campo_.locked() || campo_.text() == guardado_) return;
  campo_.setText(diaYMes(campo_.text()).value_or(text::trim(campo_.text())));
  const auto* boton = dynamic_cast<const forms::Button*>(siguiente);
  if (valido() || (boton && boton->isCancel())) return;
  forms::warn(campo_.form().ui(), aviso());
  campo_.selectAll();
  campo_.form().setFocus(campo_);
}

}  // namespace fidaleon
