#pragma once

#include <string>
#include <string_view>

namespace fidaleon {

// How a text stands in a statement. Whatever was stored, typed or pasted reaches a statement
// through here and nowhere else: a quote inside is doubled, so that the text is found and kept as
// it is and cannot end the literal.

/// Appends `texto` between two `comilla`.
void citarEn(std::string& sentencia, std::string_view texto, char comilla = '"');

/// "texto"
std::string entreComillas(std::string_view texto);
/// 'texto', for the statements that are written with apostrophes.
std::string entreApostrofos(std::string_view texto);

}  // namespace fidaleon
