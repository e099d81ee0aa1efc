#include "core/statements/NombreRepetido.h"

#include "text/Names.h"

namespace fidaleon {

bool hayMismoNombre(FDAPI::Conexion& conexion, const std::string& sql, std::string_view nombre) {
  for (store::Recordset filas = conexion.Execute(sql); !filas.EOF_(); filas.MoveNext())
    if (text::sameName(filas.Fields(0).Value().text(), nombre)) return true;
  return false;
}

}  // namespace fidaleon
