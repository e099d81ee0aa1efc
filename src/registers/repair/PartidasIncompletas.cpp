#include "registers/repair/PartidasIncompletas.h"

#include <ranges>

#include "core/contract/NombreYApellidos.h"
#include "core/statements/Citas.h"
#include "core/statements/Sentencia.h"
#include "registers/common/Guiones.h"
#include "store/Transaction.h"
#include "store/schema/Schema.h"

namespace fidaleon {

using FDAPI::Conexion;

namespace {

bool esPropia(const FormaPartida& clase, const FilaDePartida& ficha) {
  return text::equalsNoCase(ficha.enlace, clase.sacramento.clavePartida);
}

/// "FROM Bautismo WHERE (IDBautismo NOT IN (SELECT CodBautismo FROM Bautismo_Hijo) OR ...)"
std::string sqlIncompletas(const FormaPartida& clase) {
  std::string condicion;
  for (const FilaDePartida& f : clase.filas) {
    if (!f.nombre) continue;
    const std::string enlace = f.enlace;
    condicion += (condicion.empty() ? "" : " OR ") + enlace + " NOT IN (SELECT " + f.clave +
                 " FROM " + f.tabla + " WHERE " + f.clave + " IS NOT NULL)";
    if (!esPropia(clase, f)) condicion += " OR " + enlace + " IS NULL";
  }
  return sentencia(clase.sacramento, " FROM {Partidas} WHERE (") + condicion + ")";
}

std::string nombreDelLibro(Conexion& conexion, const Sacramento& s, std::int32_t libro) {
  if (libro == 0) return "(solicitud)";
  const store::Recordset fila = conexion.Execute(
      sentencia(s, "SELECT Nombre FROM {Libros} WHERE {IDLibro}=") + std::to_string(libro));
  return fila.EOF_() ? "(ya no existe)" : fila.text("Nombre");
}

/// Looks for each of its rows: which are missing, and what the others say.
void mirarFichas(Conexion& conexion, const store::Recordset& fila, PartidaIncompleta& p) {
  for (const FilaDePartida& f : p.clase->filas | std::views::reverse) {
    const store::Recordset ficha =
        conexion.Execute(std::string("SELECT * FROM ") + f.tabla + " WHERE " + f.clave + "=" +
                         std::to_string(fila.integer(f.enlace)));
    if (ficha.EOF_()) {
      p.faltan.push_back(&f);
      continue;
    }
    const store::Table& tabla = *conexion.schema().find(f.tabla);
    if (tabla.find(p.clase->fecha)) p.fecha = ficha.text(p.clase->fecha);
    if (!tabla.find("PrimerApellido")) continue;
    const std::string quien = nombreYApellidos(ficha);
    const std::string de = f.nombre ? std::string(f.nombre) + ": " : std::string();
    if (!quien.empty()) p.queda += (p.queda.empty() ? "" : "; ") + de + quien;
  }
}

PartidaIncompleta leida(Conexion& conexion, const FormaPartida& clase,
                        const store::Recordset& fila) {
  PartidaIncompleta p;
  p.clase = &clase;
  p.id = static_cast<std::int32_t>(fila.integer(clase.sacramento.clavePartida));
  p.codLibro = static_cast<std::int32_t>(fila.integer("CodLibro"));
  p.libro = nombreDelLibro(conexion, clase.sacramento, p.codLibro);
  p.folio = p.codLibro == 0 ? "" : fila.text("Folio");
  p.numero = p.codLibro == 0 ? "" : fila.text("Numero");
  mirarFichas(conexion, fila, p);
  return p;
}

/// The row itself gives the key by which entries find it.
bool daSuClave(const store::Table& tabla, const FilaDePartida& ficha) {
  const store::Column* clave = tabla.find(ficha.clave);
  return clave && clave->type == store::Type::Counter;
}

/// A row that says nothing, as the registers write it; without `clave` it gives itself one.
std::string sqlFichaEnBlanco(const store::Table& tabla, const FilaDePartida& ficha,
                             std::int64_t clave) {
  std::string columnas, valores;
  const auto agregar = [&](const std::string& columna, const std::string& valor) {
    columnas += (columnas.empty() ? "" : ", ") + columna;
    valores += (valores.empty() ? "" : ", ") + valor;
  };
  for (const store::Column& c : tabla.columns()) {
    const bool esClave = text::equalsNoCase(c.name, ficha.clave);
    if (c.type == store::Type::Counter && (!esClave || clave == 0)) continue;
    if (esClave)
      agregar(c.name, std::to_string(clave));
    else
      agregar(c.name, store::isText(c.type) ? entreComillas(GUIONES) : "0");
  }
  return std::string("INSERT INTO ") + ficha.tabla + " (" + columnas + ") VALUES (" + valores + ")";
}

/// The row gets the key under which the entry looks for it, so that what else bears that key is
/// found again with it. Where the entry has none, it takes the one that the row gets.
void ponerFicha(Conexion& conexion, const Sacramento& s, const std::string& id,
                const FilaDePartida& f) {
  const store::Table& tabla = *conexion.schema().find(f.tabla);
  const std::string partida = sentencia(s, " WHERE {IDPartida}=") + id;
  const std::int64_t clave =
      conexion
          .Execute(std::string("SELECT ") + f.enlace + sentencia(s, " FROM {Partidas}") + partida)
          .integer(f.enlace);
  conexion.Execute(sqlFichaEnBlanco(tabla, f, clave));
  if (clave != 0 || !daSuClave(tabla, f)) return;
  const std::string nueva =
      conexion.Execute(std::string("SELECT MAX(") + f.clave + ") AS ID FROM " + f.tabla).text("ID");
  conexion.Execute(sentencia(s, "UPDATE {Partidas} SET ") + f.enlace + "=" + nueva + partida);
}

}  // namespace

std::int64_t cuentaPartidasIncompletas(Conexion& conexion) {
  std::int64_t cuantas = 0;
  for (const FormaPartida& clase : formasPartida())
    cuantas += conexion
                   .Execute(sentencia(clase.sacramento, "SELECT COUNT({IDPartida}) AS N") +
                            sqlIncompletas(clase))
                   .integer("N");
  return cuantas;
}

std::vector<PartidaIncompleta> partidasIncompletas(Conexion& conexion) {
  std::vector<PartidaIncompleta> todas;
  for (const FormaPartida& clase : formasPartida())
    for (store::Recordset filas = conexion.Execute("SELECT *" + sqlIncompletas(clase));
         !filas.EOF_(); filas.MoveNext())
      todas.push_back(leida(conexion, clase, filas));
  return todas;
}

PartidaIncompleta releida(Conexion& conexion, const PartidaIncompleta& partida) {
  const Sacramento& s = partida.clase->sacramento;
  const store::Recordset fila =
      conexion.Execute("SELECT *" + sqlIncompletas(*partida.clase) +
                       sentencia(s, " AND {IDPartida}=") + std::to_string(partida.id));
  return fila.EOF_() ? PartidaIncompleta{} : leida(conexion, *partida.clase, fila);
}

void completarPartida(Conexion& conexion, const PartidaIncompleta& partida) {
  const Sacramento& s = partida.clase->sacramento;
  store::Transaction transaccion(conexion);
  for (const bool conClave : {true, false})  // first those whose key others bear
    for (const FilaDePartida* f : partida.faltan)
      if (daSuClave(*conexion.schema().find(f->tabla), *f) == conClave)
        ponerFicha(conexion, s, std::to_string(partida.id), *f);
  transaccion.commit();
}

}  // namespace fidaleon
