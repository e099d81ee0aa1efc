#include "import/Lugares.h"

#include "core/statements/Citas.h"
#include "import/Deshecha.h"

namespace fidaleon {

std::optional<std::int64_t> Lugares::buscarOCrear(const Sentencias& s) {
  const auto filas = conexion_.Execute(s.buscar);
  if (!filas.EOF_()) return filas.integer(s.clave);
  if (ensayo_) return 0;
  try {
    conexion_.Execute(s.insertar);
    return conexion_.Execute(s.ultima).Fields(0).Value().integer();
  } catch (const store::Error& error) {
    if (deshecha(conexion_)) throw;
    avisos_.avisar("¡Ocurrió el error nº " + std::to_string(error.number()) +
                   " Descripción: " + error.what());
    return std::nullopt;
  }
}

std::optional<std::int64_t> Lugares::provincia(const std::string& nombre) {
  const std::string n = entreComillas(nombre);
  return buscarOCrear({"SELECT IDProvincia FROM Provincia WHERE Nombre=" + n, "IDProvincia",
                       "INSERT INTO Provincia (Nombre, Codigo_Oficial) VALUES (" + n + ", 0)",
                       "SELECT MAX(IDProvincia) AS ID FROM Provincia"});
}

std::optional<std::int64_t> Lugares::municipio(const std::string& poblacion,
                                               const std::string& nombreProvincia) {
  if (poblacion.empty() || nombreProvincia.empty()) return 0;
  const std::string par = poblacion + '\n' + nombreProvincia;
  if (const auto conocido = claves_.find(par); conocido != claves_.end()) return conocido->second;
  const auto p = provincia(nombreProvincia);
  if (!p) return std::nullopt;
  const std::string n = entreComillas(poblacion), cod = std::to_string(*p);
  const auto clave =
      buscarOCrear({"SELECT Nombre,CodProvincia,IDMunicipio FROM Municipio WHERE Nombre=" + n +
                        " AND CodProvincia=" + cod,
                    "IDMunicipio",
                    "INSERT INTO Municipio (Nombre, CodProvincia) VALUES (" + n + ", " + cod + ")",
                    "SELECT MAX(IDMunicipio) as IDMunicipio FROM Municipio"});
  if (clave) claves_.emplace(par, *clave);
  return clave;
}

}  // namespace fidaleon
