#pragma once

#include <string>

#include "core/contract/Contexto.h"
#include "forms/Controls.h"

namespace fidaleon {

/// Only digits can be typed; any other character beeps and the focus stays. Keys that edit or move
/// pass, and of what is pasted the digits stay. Takes the field's onKeyPress.
void soloDigitos(Contexto& contexto, forms::TextBox& campo);

/// Letters become small ones as they are typed, and those that were pasted on leaving the field.
/// Takes the field's onKeyPress and onLostFocus.
void enMinusculas(forms::TextBox& campo);

/// The digits of a NIF as they are stored, with zeros in front; none of none.
std::string conCerosNIF(const std::string& cifras);

/// What a date field stores in the place of `anterior`, "yyyymmdd" or empty. A text that is no
/// date cannot be shown; it stays unless a date is put in its place.
std::string fechaEnLugarDe(const std::string& anterior, const forms::DateField& campo);

}  // namespace fidaleon
