#include "registers/common/NombrePartida.h"

#include "core/contract/NombreYApellidos.h"
#include "core/contract/Sentencia.h"

namespace fidaleon {

namespace {

/// Only a baptism keeps the person in a row apart.
PlantillaSql sqlPersona(const Sacramento& s) {
  if (&s == &BAUTISMO)
    return "SELECT Nombre, PrimerApellido, SegundoApellido FROM Bautismo_Hijo WHERE CodBautismo=";
  return "SELECT Nombre, PrimerApellido, SegundoApellido FROM {Partidas} WHERE {IDPartida}=";
}

}  // namespace

std::string quienDePartida(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                           std::int32_t lngID) {
  const store::Recordset persona =
      conexion.Execute(sentencia(sacramento, sqlPersona(sacramento)) + std::to_string(lngID));
  return persona.EOF_() ? std::string() : nombreYApellidos(persona);
}

std::string nombrePartida(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                          std::int32_t lngID) {
  const std::string quien = quienDePartida(conexion, sacramento, lngID);
  const store::Recordset sitio = conexion.Execute(
      sentencia(sacramento,
                "SELECT {Libros}.Nombre, {Partidas}.Folio, {Partidas}.Numero FROM {Partidas} "
                "INNER JOIN {Libros} ON {Libros}.{IDLibro}={Partidas}.CodLibro WHERE "
                "{IDPartida}=") +
      std::to_string(lngID));
  if (sitio.EOF_()) return quien;
  return quien + "\n" + sitio.text("Nombre") + ", folio " + sitio.text("Folio") + ", número " +
         sitio.text("Numero");
}

}  // namespace fidaleon
