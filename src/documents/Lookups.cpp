#include "documents/Lookups.h"

#include "documents/TextRules.h"
#include "text/Dates.h"
#include "text/Utf8.h"

namespace fidaleon::documents {

Lookups::Lookups(const Contexto& contexto, FDAPI::Conexion& conFidaleon)
    : conFidaleon_(conFidaleon),
      fidaleon_(contexto.fidaleon()),
      dates_(contexto.entorno.support.create_cInformes()) {}

std::string Lookups::shortDate(const std::string& fecha) {
  return fidaleon_->stringdate(fecha);
}

std::string Lookups::longDate(const std::string& fecha, Wording wording) {
  switch (wording) {
    case Wording::Castellano:
      return dates_->FechaNumAFechaLetra(fecha);
    case Wording::AlwaysSpanish:
      return dates_->FechaNumAFechaLetraCastellano(fecha);
    case Wording::YearInWords:
      return dates_->FechaNumAFechaLetra1(fecha);
    case Wording::MenorcaStored:
      return dates_->FechaNumAFechaLetraMenorca(text::replaceAll(fecha, "/", ""));
    case Wording::Menorca:
      break;
  }
  // The Catalan words are asked for by the digits of the short form, day first.
  return dates_->FechaNumAFechaLetraMenorca(text::replaceAll(shortDate(fecha), "/", ""));
}

std::string Lookups::age(const std::string& nacimiento, const std::string& fecha) {
  if (!text::parseStored(nacimiento) || !text::parseStored(fecha)) return BLANK;
  return std::to_string(fidaleon_->Anos(nacimiento, fecha));
}

std::string Lookups::ageToday(const std::string& nacimiento) {
  return text::parseStored(nacimiento) ? std::to_string(fidaleon_->Edad(nacimiento)) : BLANK;
}

const Lookups::Place& Lookups::place(std::int32_t municipio) {
  const auto known = places_.find(municipio);
  if (known != places_.end()) return known->second;
  Place found;
  found.province = fidaleon_->PROVINCIA(conFidaleon_, municipio);
  found.town = fidaleon_->Poblacion(conFidaleon_, municipio);
  return places_.emplace(municipio, std::move(found)).first->second;
}

}  // namespace fidaleon::documents
