#include "support/Informes.h"

#include "support/FechasLetra.h"

namespace fidaleon::support {

namespace {

template <class Wording>
std::string inWords(const std::string& fecha, Wording wording) {
  const auto d = fechaDeDocumento(fecha);
  return d ? wording(*d) : fecha;
}

}  // namespace

std::string Informes::FechaNumAFechaLetra(const std::string& fecha) {
  return inWords(fecha, fechaEnCastellano);
}

std::string Informes::FechaNumAFechaLetraMenorca(const std::string& fecha) {
  return inWords(fecha, fechaEnCatalan);
}

std::string Informes::FechaNumAFechaLetra1(const std::string& fecha) {
  return inWords(fecha, fechaEnCastellanoConAno);
}

std::string Informes::FechaNumAFechaLetraCastellano(const std::string& fecha) {
  return inWords(fecha, fechaEnCastellano);
}

}  // namespace fidaleon::support
