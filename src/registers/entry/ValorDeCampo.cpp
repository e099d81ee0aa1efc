#include "registers/entry/ValorDeCampo.h"

#include "registers/common/Guiones.h"
#include "text/Dates.h"

namespace fidaleon {

namespace {

std::string sinPerder(const forms::TextBox& campo, const std::string& legible,
                      const std::string& guardado, bool seMuestra) {
  return oGuiones(campo.text().empty() && !seMuestra ? guardado : legible);
}

bool ofrece(const forms::ComboBox& lista, const std::string& texto) {
  for (int i = 0; i < lista.listCount(); ++i)
    if (lista.list(i) == texto) return true;
  return false;
}

}  // namespace

std::string valorDe(const forms::TextBox& campo) {
  return campo.multiline() ? oGuiones(campo.text()) : nombreGuardado(campo.text());
}

std::string valorDe(const forms::DateField& campo, const std::string& guardado) {
  return sinPerder(campo, campo.stored(), guardado, text::parseStored(guardado).has_value());
}

std::string valorDe(const forms::TimeField& campo, const std::string& guardado) {
  return sinPerder(campo, campo.stored(), guardado, text::parseTime(guardado).has_value());
}

std::string valorDe(const forms::ComboBox& lista, const std::string& guardado) {
  const bool queda = lista.listIndex() < 0 && !ofrece(lista, guardado);
  return oGuiones(queda ? guardado : lista.text());
}

}  // namespace fidaleon
