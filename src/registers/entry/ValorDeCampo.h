#pragma once

#include <string>

#include "forms/Controls.h"

namespace fidaleon {

// What a field of an entry is stored as: "---" when it is empty. A stored text that the field
// cannot show ("1890", "al alba") stays as long as nothing is typed over it.

std::string valorDe(const forms::TextBox& campo);
std::string valorDe(const forms::DateField& campo, const std::string& guardado);
std::string valorDe(const forms::TimeField& campo, const std::string& guardado);
std::string valorDe(const forms::ComboBox& lista, const std::string& guardado);

}  // namespace fidaleon
