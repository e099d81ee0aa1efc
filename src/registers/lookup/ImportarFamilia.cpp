// What a baptism takes over from a brother or sister.

#include <stdexcept>

#include "registers/baptism/TablasBautismo.h"
#include "registers/common/Guiones.h"
#include "registers/lookup/Importacion.h"

namespace fidaleon {

namespace {

using B = cBautismo;

/// Rows that brothers and sisters have alike in their first columns.
struct Compartida {
  const Tabla<B>& tabla;
  std::size_t columnas;
  const char* clave;
  std::int32_t B::*id;
  const char* enlace;

  std::span<const Columna<B>> comunes() const { return tabla.columnas.first(columnas); }
};

const Compartida COMPARTIDAS[] = {
    {TABLA_MADRES, COLUMNAS_COMUNES_DE_PADRES, "IDMadres", &B::IDMadres, "CodMadres"},
    {TABLA_PADRES, COLUMNAS_COMUNES_DE_PADRES, "IDPadres", &B::IDPadres, "CodPadres"},
    {TABLA_MATRIMONIO, COLUMNAS_COMUNES_DE_MATRIMONIO, "IDMatrimonio", &B::IDMatrimonio,
     "CodMatrimonio"},
};

store::Recordset leer(FDAPI::Conexion& conexion, const std::string& sql) {
  store::Recordset fila = conexion.Execute(sql);
  if (fila.EOF_()) throw std::runtime_error("Los datos de esta partida ya no existen.");
  return fila;
}

std::string sqlFila(const Compartida& c, const B& familia) {
  std::string columnas;
  for (const Columna<B>& columna : c.comunes())
    columnas += (columnas.empty() ? "" : ", ") + std::string(columna.nombre);
  return "SELECT " + columnas + " FROM " + c.tabla.nombre + " WHERE " + c.clave + " = " +
         std::to_string(familia.*c.id);
}

template <class Trabajo>
void conCadaMiembro(const Trabajo& trabajo) {
  for (const Compartida& c : COMPARTIDAS)
    for (const Columna<B>& columna : c.comunes()) std::visit(trabajo, columna.miembro);
}

}  // namespace

cBautismo leerFamilia(FDAPI::Conexion& conexion, std::int32_t idBautismo) {
  const store::Recordset enlaces = leer(
      conexion, "SELECT CodMadres, CodPadres, CodMatrimonio FROM Bautismo WHERE IDBautismo = " +
                    std::to_string(idBautismo));
  B familia;
  for (const Compartida& c : COMPARTIDAS) {
    familia.*c.id = static_cast<std::int32_t>(enlaces.integer(c.enlace));
    const Tabla<B> comun{c.tabla.nombre, c.tabla.separador, c.tabla.asignar, c.comunes()};
    copiarFila(comun, leer(conexion, sqlFila(c, familia)), familia);
  }
  conCadaMiembro([&](auto miembro) {
    if constexpr (std::is_same_v<decltype(miembro), std::string B::*>)
      familia.*miembro = oGuiones(familia.*miembro);
  });
  return familia;
}

void copiarFamilia(const cBautismo& de, cBautismo& a) {
  conCadaMiembro([&](auto miembro) { a.*miembro = de.*miembro; });
}

}  // namespace fidaleon
