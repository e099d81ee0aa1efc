#pragma once

#include <string>
#include <string_view>

namespace fidaleon::support {

/// Control letter of a Spanish identity number: up to eight digits, or X, Y or Z and seven.
/// Blanks, points and hyphens are overlooked. Empty when it is no such number.
std::string letraNIF(std::string_view numero);
/// A whole identity number (DNI, NIE, or K, L, M and seven digits) with its right letter.
bool nifValido(std::string_view texto);
/// The number of a company or an entity with its right control character.
bool cifValido(std::string_view texto);

}  // namespace fidaleon::support
