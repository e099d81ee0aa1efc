// Dates, places and identity numbers.

#include "support/Fidaleon.h"
#include "support/Identidad.h"
#include "text/Utf8.h"

namespace fidaleon::support {

std::string Fidaleon::stringdate(const std::string& fecha) {
  if (text::trim(fecha).empty()) return "//";
  if (text::length(fecha) != 8) return fecha;
  return text::mid(fecha, 6, 2) + "/" + text::mid(fecha, 4, 2) + "/" + text::left(fecha, 4);
}

int Fidaleon::Anos(const std::string& nacimiento, const std::string& fecha) {
  const auto from = text::parseStored(nacimiento);
  const auto to = text::parseStored(fecha);
  return from && to ? text::yearsBetween(*from, *to) : 0;
}

int Fidaleon::Edad(const std::string& fecha) {
  return Anos(fecha, text::toStored(clock_.today()));
}

std::string Fidaleon::PROVINCIA(FDAPI::Conexion& conexion, std::int32_t idMunicipio) {
  return place(conexion, idMunicipio).province;
}

std::string Fidaleon::Poblacion(FDAPI::Conexion& conexion, std::int32_t idMunicipio) {
  return place(conexion, idMunicipio).town;
}

// A town whose province is gone keeps its name.
Fidaleon::Place Fidaleon::place(FDAPI::Conexion& connection, std::int32_t town) {
  if (town == 0) return {};
  const auto known = places_.find({&connection, town});
  if (known != places_.end()) return known->second;
  const store::Recordset towns = connection.Execute(
      "SELECT Nombre, CodProvincia FROM Municipio WHERE IDMunicipio=" + std::to_string(town));
  if (towns.EOF_()) return {};
  Place found{towns.text("Nombre"), {}};
  const store::Recordset provinces =
      connection.Execute("SELECT Nombre FROM Provincia WHERE IDProvincia=" +
                         std::to_string(towns.integer("CodProvincia")));
  if (!provinces.EOF_()) found.province = provinces.text("Nombre");
  return places_[{&connection, town}] = found;
}

std::string Fidaleon::ObtenerLetraNIF(const std::string& numero) {
  return letraNIF(numero);
}

bool Fidaleon::CIF_NIF_Valido(const std::string& texto) {
  return nifValido(texto) || cifValido(texto);
}

}  // namespace fidaleon::support
