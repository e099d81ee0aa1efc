#include "registers/books/LibroNuevo.h"

#include "core/statements/Citas.h"
#include "core/statements/Sentencia.h"

namespace fidaleon {

void insertarLibro(FDAPI::Conexion& conexion, const Sacramento& sacramento, const LibroNuevo& l) {
  conexion.Execute(
      sentencia(sacramento, l.clave == 0 ? PlantillaSql("INSERT into {Libros} (")
                                         : PlantillaSql("INSERT into {Libros} ({IDLibro}, ")) +
      "codinstitucion, codFormato, codTipoNombre, nombre, fechacreacion, Nuevo, Cerrado, "
      "NumeroSiguiente, FolioSiguiente) values (" +
      (l.clave == 0 ? std::string() : std::to_string(l.clave) + ", ") +
      std::to_string(l.institucion) + ", " + std::to_string(l.formato) + ", " +
      std::to_string(l.tipoNombre) + ", " + entreComillas(l.nombre) + ", " +
      entreComillas(l.fechaCreacion) + ", " + (l.nuevo ? "1" : "0") + ", 0, 1, 1)");
}

std::int32_t ultimoLibro(FDAPI::Conexion& conexion, const Sacramento& sacramento) {
  return static_cast<std::int32_t>(
      conexion.Execute(sentencia(sacramento, "SELECT MAX({IDLibro}) AS ID FROM {Libros}"))
          .integer("ID"));
}

}  // namespace fidaleon
