#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/Dates.h"

namespace fidaleon::support {

/// A date as documents hand it over: "yyyymmdd" or "ddmmyyyy". Eight digits that are a day in the
/// first form are taken as that; the two only clash for years before 1232.
std::optional<text::Date> fechaDeDocumento(std::string_view fecha);

/// "doce de mayo de 2003"; the first day is "uno".
std::string fechaEnCastellano(const text::Date& d);
/// "doce de mayo de dos mil tres".
std::string fechaEnCastellanoConAno(const text::Date& d);
/// "dotze de maig de 2003", "u d'abril de 2003".
std::string fechaEnCatalan(const text::Date& d);
/// 1 to 9999.
std::string numeroEnCastellano(int n);

}  // namespace fidaleon::support
