#include "registers/lookup/Busqueda.h"

#include "core/statements/Sentencia.h"
#include "registers/common/Guiones.h"

namespace fidaleon {

namespace {

/// " AND (codlibro=3 OR codlibro=1)", or nothing when no book is as old as the entry's.
std::string librosHasta(FDAPI::Conexion& conexion, const Sacramento& sacramento,
                        const forms::ComboBox& institucion, const forms::ComboBox& libro) {
  store::Recordset filas = conexion.Execute(
      sentencia(sacramento,
                "SELECT idlibrobautismo FROM Libro_Bautismo WHERE fechacreacion<=(SELECT "
                "fechacreacion FROM {Libros} WHERE nombre=") +
      entreComillas(libro.text()) + " AND codinstitucion=" + std::to_string(institucion.data()) +
      ") ORDER BY fechacreacion DESC");
  std::string libros;
  for (; !filas.EOF_(); filas.MoveNext())
    libros += (libros.empty() ? "codlibro=" : " OR codlibro=") + filas.text("idlibrobautismo");
  return libros.empty() ? libros : " AND (" + libros + ")";
}

/// A baptism looks for brothers and sisters, by the keys of their parents' rows.
constexpr const char* DE_FAMILIA =
    "SELECT DISTINCT IDBautismo, PrimerApellido, SegundoApellido, CodPadres, CodMadres, "
    "CodMatrimonio FROM Bautismo, Bautismo_Hijo WHERE PrimerApellido = ";
constexpr const char* DE_PERSONA =
    "SELECT DISTINCT IDBautismo, Nombre, PrimerApellido, SegundoApellido, FechaBautismo FROM "
    "Bautismo, Bautismo_Hijo WHERE PrimerApellido = ";

FilaBusqueda leida(const store::Recordset& fila, bool familia) {
  const auto clave = [&](const char* columna) {
    return familia ? static_cast<std::int32_t>(fila.integer(columna)) : 0;
  };
  const auto dePersona = [&](const char* columna) {
    return familia ? std::string() : fila.text(columna);
  };
  return {static_cast<std::int32_t>(fila.integer("IDBautismo")),
          dePersona("Nombre"),
          fila.text("PrimerApellido"),
          fila.text("SegundoApellido"),
          dePersona("FechaBautismo"),
          clave("CodPadres"),
          clave("CodMadres"),
          clave("CodMatrimonio")};
}

}  // namespace

std::pair<std::string, std::string> BusquedaPorApellidos::par() const {
  return {nombreGuardado(primero_.text()), nombreGuardado(segundo_.text())};
}

bool BusquedaPorApellidos::toca() {
  const auto ahora = par();
  return ahora.first != GUIONES && buscados_.insert(ahora).second;
}

bool BusquedaPorApellidos::sale(const forms::Control* siguiente) const {
  return siguiente != &primero_ && siguiente != &segundo_;
}

std::string BusquedaPorApellidos::apellidos() const {
  const auto [primero, segundo] = par();
  return segundo == GUIONES ? primero : primero + " " + segundo;
}

std::vector<FilaBusqueda> BusquedaPorApellidos::buscar(FDAPI::Conexion& conexion,
                                                       const forms::ComboBox& institucion,
                                                       const forms::ComboBox& libro,
                                                       bool solicitud) const {
  const bool familia = &sacramento_ == &BAUTISMO;
  const std::string libros =
      solicitud ? "" : librosHasta(conexion, sacramento_, institucion, libro);
  // The register of deaths says it even where it names the books.
  const bool fueraSolicitudes = libros.empty() || &sacramento_ == &DEFUNCION;
  const auto [primero, segundo] = par();
  store::Recordset filas = conexion.Execute(
      (familia ? DE_FAMILIA : DE_PERSONA) + entreComillas(primero) +
      " AND SegundoApellido = " + entreComillas(segundo) + " AND CodBautismo = IDBautismo" +
      libros + (fueraSolicitudes ? " AND codLibro <> 0" : ""));
  std::vector<FilaBusqueda> encontradas;
  for (; !filas.EOF_(); filas.MoveNext()) encontradas.push_back(leida(filas, familia));
  return encontradas;
}

}  // namespace fidaleon
