#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "core/contract/Contexto.h"

namespace fidaleon::documents {

/// Language of the dates in words. MenorcaStored asks for the Catalan ones by the stored date, as
/// the book of deaths does. The last two are forms that single columns ask for.
enum class Wording { Castellano, Menorca, MenorcaStored, AlwaysSpanish, YearInWords };

/// What one run of a document asks of the support library: dates in words and names of places.
/// Places are asked for once and remembered for the length of the run, during which the entry or
/// the book is locked; a whole book asks for few places many times.
class Lookups {
 public:
  /// The connection must outlive this object.
  Lookups(const Contexto& contexto, FDAPI::Conexion& conFidaleon);

  /// All dates are given as stored, "yyyymmdd" or "---".
  std::string shortDate(const std::string& fecha);
  std::string longDate(const std::string& fecha, Wording wording);
  /// Whole years from a birth to a later day, and to today. "---" where a date is not known: the
  /// support library would call that 0.
  std::string age(const std::string& nacimiento, const std::string& fecha);
  std::string ageToday(const std::string& nacimiento);
  /// Names behind a key of Municipio, as they are; empty where there is none.
  const std::string& town(std::int32_t municipio) { return place(municipio).town; }
  const std::string& province(std::int32_t municipio) { return place(municipio).province; }

 private:
  struct Place {
    std::string province;
    std::string town;
  };
  const Place& place(std::int32_t municipio);

  FDAPI::Conexion& conFidaleon_;
  std::unique_ptr<FDAPI::cFidaleon> fidaleon_;
  std::unique_ptr<FDAPI::cInformes> dates_;
  std::map<std::int32_t, Place> places_;
};

}  // namespace fidaleon::documents
