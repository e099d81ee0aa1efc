#include "core/lists/PoblacionesOfrecidas.h"

#include <algorithm>
#include <tuple>

#include "text/Utf8.h"

namespace fidaleon {

void PoblacionesOfrecidas::leer(FDAPI::Conexion& conexion) {
  store::Recordset filas = conexion.Execute(
      "SELECT IDMunicipio, CodProvincia, Municipio.Nombre AS Poblacion, Provincia.Nombre AS "
      "Provincia FROM Municipio, Provincia WHERE CodProvincia = IDProvincia");
  for (; !filas.EOF_(); filas.MoveNext()) {
    const std::string nombre = filas.text(2);
    lugares_.push_back({filas.integer(0), filas.integer(1), nombre + " (" + filas.text(3) + ")",
                        text::searchKey(nombre)});
  }
}

std::vector<forms::Offer> PoblacionesOfrecidas::proponer(FDAPI::Conexion& conexion,
                                                         const Vocabulario& usados,
                                                         const std::string& tecleado,
                                                         std::int64_t provincia) {
  if (lugares_.empty()) leer(conexion);
  const std::string clave = text::searchKey(text::trim(tecleado));
  // Beginning before middle, the province that is chosen before others, used before unused.
  std::vector<std::tuple<bool, bool, int, const Lugar*>> dan;
  for (const Lugar& l : lugares_) {
    const bool empieza = l.clave.starts_with(clave);
    if (empieza || l.clave.find(" " + clave) != std::string::npos)
      dan.push_back({!empieza, l.provincia != provincia,
                     -usados.veces(Voz::Lugar, std::to_string(l.id)), &l});
  }
  const auto hasta =
      dan.begin() + static_cast<std::ptrdiff_t>(std::min(Vocabulario::PROPUESTAS, dan.size()));
  std::partial_sort(dan.begin(), hasta, dan.end(), [](const auto& a, const auto& b) {
    const auto orden = [](const auto& d) {
      return std::tie(std::get<0>(d), std::get<1>(d), std::get<2>(d), std::get<3>(d)->clave);
    };
    return orden(a) < orden(b);
  });
  std::vector<forms::Offer> ofertas;
  for (auto it = dan.begin(); it != hasta; ++it)
    ofertas.push_back({std::get<3>(*it)->texto, std::get<3>(*it)->id});
  return ofertas;
}

}  // namespace fidaleon
