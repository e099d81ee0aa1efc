#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "forms/Controls.h"

namespace fidaleon {

/// Day and month as "dd/mm", also of "d/m", "ddmm" and with "-" or "." between; 29/02 is one. Empty
/// when there is no such day.
std::optional<std::string> diaYMes(std::string_view tecleado);

/// Keeps a text field to a birthday, "dd/mm" or nothing, key by key: the slash comes by itself and
/// digits that make no day or month beep. What was pasted is put right on leaving, and what is
/// still no day is told and keeps the focus. Takes the field's onKeyPress and onLostFocus.
class CampoCumpleaños {
 public:
  /// The field must outlive this.
  explicit CampoCumpleaños(forms::TextBox& campo);
  CampoCumpleaños(const CampoCumpleaños&) = delete;
  CampoCumpleaños& operator=(const CampoCumpleaños&) = delete;

  /// Shows what is stored; whatever it is, it is valid as long as nobody changes it.
  void poner(const std::string& guardado);
  bool valido() const;
  /// What the user is told of a text that is not valid.
  std::string aviso() const;

 private:
  void tecla(forms::KeyPress& pulsada);
  void escribir(char32_t cifra);
  void borrarConBarra();
  void alSalir(forms::Control* siguiente);

  forms::TextBox& campo_;
  std::string guardado_;
};

}  // namespace fidaleon
