#pragma once

#include <string>

#include "census/money/Importe.h"
#include "forms/Controls.h"

namespace fidaleon {

/// Typing, showing and converting amounts in pesetas and euros. In all texts "." is the sign of
/// thousands and "," that of decimals, whatever the machine has. Keeps nothing of its own.
///
/// A field for an amount shows each key to both operations in turn:
///   campo.onKeyPress = [&](forms::KeyPress& tecla) {
///     moneda.VerificarCurrencyKeyDown(campo, tecla, 7, 2, false);
///     moneda.VerificarCurrencyKeyPress(campo, tecla, 7, 2, false);
///   };
/// A refused key is swallowed and leaves the field as it is. Where a key does more than type
/// itself, the field is changed here and the key swallowed.
class cCurrency {
 public:
  /// `enteros` and `decimales`: most digits before and behind the comma; `signo`: "+" and "-" may
  /// be typed. Keys that type nothing (arrows, shortcuts) and locked fields are left alone.
  void VerificarCurrencyKeyPress(forms::TextBox& campo, forms::KeyPress& tecla, int enteros,
                                 int decimales, bool signo);
  /// Notes the point of the keypad in the tag of the field, for the operation above to make it a
  /// comma, and watches the Delete key.
  void VerificarCurrencyKeyDown(forms::TextBox& campo, forms::KeyPress& tecla, int enteros,
                                int decimales, bool signo);

  /// "1.234,50" or, without decimals, "1.235", of a text in either form; a half is rounded away
  /// from zero. A text that is no number is 0; one that would be longer than 14 characters loses
  /// its last digits.
  std::string FormatearCurrency(const std::string& valor, bool decimales);

  /// Leaves the result in `cantidad` as well.
  std::string PesetasAEuros(Importe& cantidad);
  std::string EurosAPesetas(const Importe& cantidad);
};

}  // namespace fidaleon
