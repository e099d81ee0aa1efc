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

/// Whether it may begin a day ("31") or a month ("12"), given as its highest.
bool puedeSer(const std::string& parte, const char* maximo) {
  if (parte.size() > 2 || !std::all_of(parte.begin(), parte.end(), esCifra)) return false;
  if (parte.empty() || parte[0] > maximo[0]) return parte.empty();
  if (parte.size() == 1) return true;
  return parte[0] == '0' ? parte[1] != '0' : parte[0] != maximo[0] || parte[1] <= maximo[1];
}

bool puedeSerFecha(const std::string& conBarra) {
  const std::size_t barra = conBarra.find('/');
  const bool sinMes = barra == std::string::npos;
  return puedeSer(conBarra.substr(0, barra), "31") &&
         (sinMes || puedeSer(conBarra.substr(barra + 1), "12"));
}

}  // namespace

std::optional<std::string> diaYMes(std::string_view tecleado) {
  std::string texto = text::trim(tecleado);
  if (texto.size() == CIFRAS && std::all_of(texto.begin(), texto.end(), esCifra))
    texto.insert(TRAS_EL_DIA, "/");
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
  const int inicio = campo_.selStart();
  const std::string antes = text::left(campo_.text(), inicio);
  const std::string despues = text::mid(campo_.text(), inicio + campo_.selLength());
  if (c == U'/' && antes.ends_with('/')) return;
  if (c == U'/' && despues.starts_with('/')) return campo_.setSelection(inicio + 1, 0);
  std::string nuevo = antes + static_cast<char>(c) + despues;
  std::size_t cursor = antes.size() + 1;
  const bool faltaBarra = nuevo.find('/') == std::string::npos && nuevo.size() >= TRAS_EL_DIA;
  if (faltaBarra) nuevo.insert(TRAS_EL_DIA, "/");
  if (!esCifra(c) || !puedeSerFecha(nuevo)) return campo_.form().ui().beep();
  if (cursor == TRAS_EL_DIA || (faltaBarra && cursor > TRAS_EL_DIA)) ++cursor;
  campo_.setText(nuevo);
  campo_.setSelection(static_cast<int>(cursor), 0);
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
