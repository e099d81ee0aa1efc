#pragma once

#include <string>

#include "core/contract/FDAPI.h"

namespace fidaleon::support {

/// Dates in words. What is no date is given back as it came: a document rather shows what the
/// register holds than nothing.
class Informes : public FDAPI::cInformes {
 public:
  /// "doce de mayo de 2003".
  std::string FechaNumAFechaLetra(const std::string& fecha) override;
  /// "dotze de maig de 2003".
  std::string FechaNumAFechaLetraMenorca(const std::string& fecha) override;
  /// "doce de mayo de dos mil tres".
  std::string FechaNumAFechaLetra1(const std::string& fecha) override;
  /// As FechaNumAFechaLetra, whatever the language of the program.
  std::string FechaNumAFechaLetraCastellano(const std::string& fecha) override;
};

}  // namespace fidaleon::support
