#include "documents/Lookups.h"

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
  if (wording == Wording::Castellano) return dates_->FechaNumAFechaLetra(fecha);
  // The Catalan words are asked for by the digits of the short form, day first.
  return dates_->FechaNumAFechaLetraMenorca(text::replaceAll(shortDate(fecha), "/", ""));
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
