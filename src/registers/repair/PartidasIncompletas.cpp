#include "registers/repair/PartidasIncompletas.h"

#include <ranges>
#include <set>

#include "core/contract/NombreYApellidos.h"
#include "core/statements/Citas.h"
#include "core/statements/NombreRepetido.h"
#include "core/statements/Sentencia.h"
#include "registers/books/LibroNuevo.h"
#include "registers/common/Guiones.h"
#include "store/Transaction.h"
#include "store/schema/Schema.h"

namespace fidaleon {

using FDAPI::Conexion;

namespace {

constexpr std::int64_t FORMATO_DE_ANTIGUOS = 1;  // of Libros_Formato

bool esPropia(const FormaPartida& clase, const FilaDePartida& ficha) {
  return text::equalsNoCase(ficha.enlace, clase.sacramento.clavePartida);
}

constexpr const char* SIN_INSTITUCION =
    " NOT IN (SELECT IDInstitucion FROM Institucion WHERE IDInstitucion IS NOT NULL)";

/// "FROM Bautismo WHERE ((CodLibro=0 AND ...) OR IDBautismo NOT IN (SELECT CodBautismo FROM
/// Bautismo_Hijo) OR ...)"
std::string sqlIncompletas(const FormaPartida& clase) {
  std::string condicion = std::string("(CodLibro=0 AND (InstitucionSolicitud") + SIN_INSTITUCION +
                          " OR InstitucionSolicitud IS NULL))";
  for (const FilaDePartida& f : clase.filas) {
    if (!f.nombre) continue;
    const std::string enlace = f.enlace;
    condicion += " OR " + enlace + " NOT IN (SELECT " + f.clave + " FROM " + f.tabla + " WHERE " +
                 f.clave + " IS NOT NULL)";
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
  p.sinInstitucion =
      p.codLibro == 0 && conexion
                             .Execute("SELECT IDInstitucion FROM Institucion WHERE IDInstitucion=" +
                                      std::to_string(fila.integer("InstitucionSolicitud")))
                             .EOF_();
  mirarFichas(conexion, fila, p);
  return p;
}

std::int32_t entero(const store::Recordset& fila, const char* columna) {
  return static_cast<std::int32_t>(fila.integer(columna));
}

/// The books without an institution, and those that only entries know. Their keys are gone through
/// one by one by their index, since there are few of them and many entries.
std::set<std::int32_t> librosIncompletos(Conexion& conexion, const Sacramento& s) {
  std::set<std::int32_t> libros;
  const PlantillaSql siguiente = "SELECT MIN(CodLibro) AS Libro FROM {Partidas} WHERE CodLibro>";
  const auto tras = [&](std::int32_t libro) {
    return entero(conexion.Execute(sentencia(s, siguiente) + std::to_string(libro)), "Libro");
  };
  for (std::int32_t libro = tras(0); libro != 0; libro = tras(libro)) libros.insert(libro);
  for (store::Recordset fila =
           conexion.Execute(sentencia(s,
                                      "SELECT {IDLibro} AS Libro, IDInstitucion FROM {Libros} LEFT "
                                      "JOIN Institucion ON IDInstitucion=CodInstitucion"));
       !fila.EOF_(); fila.MoveNext())
    if (fila.integer("IDInstitucion") == 0)
      libros.insert(entero(fila, "Libro"));
    else
      libros.erase(entero(fila, "Libro"));
  return libros;
}

PartidaIncompleta libroLeido(Conexion& conexion, const FormaPartida& clase, std::int32_t libro) {
  const Sacramento& s = clase.sacramento;
  const std::string clave = std::to_string(libro);
  PartidaIncompleta p;
  p.clase = &clase;
  p.codLibro = libro;
  p.libro = nombreDelLibro(conexion, s, libro);
  const store::Recordset fila =
      conexion.Execute(sentencia(s, "SELECT FechaCreacion FROM {Libros} WHERE {IDLibro}=") + clave);
  p.sinLibro = fila.EOF_();
  if (!p.sinLibro) p.fecha = fila.text("FechaCreacion");
  p.sinInstitucion = true;
  const std::string partidas =
      conexion
          .Execute(sentencia(s, "SELECT COUNT({IDPartida}) AS N FROM {Partidas} WHERE CodLibro=") +
                   clave)
          .text("N");
  p.queda = partidas == "1" ? "una partida" : partidas + " partidas";
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

std::string nombreRecuperado(const PartidaIncompleta& libro) {
  return "Recuperado " + std::to_string(libro.codLibro);
}

/// An old book under the key that its entries have; the user gives it its name and its date.
LibroNuevo libroRecuperado(const PartidaIncompleta& libro, std::int64_t institucion) {
  LibroNuevo nuevo;
  nuevo.clave = libro.codLibro;
  nuevo.institucion = institucion;
  nuevo.formato = FORMATO_DE_ANTIGUOS;
  nuevo.nombre = nombreRecuperado(libro);
  nuevo.nuevo = false;
  return nuevo;
}

}  // namespace

std::int64_t cuentaPartidasIncompletas(Conexion& conexion) {
  std::int64_t cuantas = 0;
  for (const FormaPartida& clase : formasPartida())
    cuantas += conexion
                   .Execute(sentencia(clase.sacramento, "SELECT COUNT({IDPartida}) AS N") +
                            sqlIncompletas(clase))
                   .integer("N");
  for (const FormaPartida& clase : formasPartida())
    cuantas += std::ssize(librosIncompletos(conexion, clase.sacramento));
  return cuantas;
}

std::vector<PartidaIncompleta> partidasIncompletas(Conexion& conexion) {
  std::vector<PartidaIncompleta> todas;
  for (const FormaPartida& clase : formasPartida()) {
    for (const std::int32_t libro : librosIncompletos(conexion, clase.sacramento))
      todas.push_back(libroLeido(conexion, clase, libro));
    for (store::Recordset filas = conexion.Execute("SELECT *" + sqlIncompletas(clase));
         !filas.EOF_(); filas.MoveNext())
      todas.push_back(leida(conexion, clase, filas));
  }
  return todas;
}

PartidaIncompleta releida(Conexion& conexion, const PartidaIncompleta& partida) {
  const Sacramento& s = partida.clase->sacramento;
  if (partida.esLibro())
    return librosIncompletos(conexion, s).contains(partida.codLibro)
               ? libroLeido(conexion, *partida.clase, partida.codLibro)
               : PartidaIncompleta{};
  const store::Recordset fila =
      conexion.Execute("SELECT *" + sqlIncompletas(*partida.clase) +
                       sentencia(s, " AND {IDPartida}=") + std::to_string(partida.id));
  return fila.EOF_() ? PartidaIncompleta{} : leida(conexion, *partida.clase, fila);
}

bool hayOtroLibro(Conexion& conexion, const PartidaIncompleta& libro, std::int64_t institucion) {
  const Sacramento& s = libro.clase->sacramento;
  return hayMismoNombre(conexion,
                        sentencia(s, "SELECT Nombre FROM {Libros} WHERE CodInstitucion=") +
                            std::to_string(institucion),
                        libro.sinLibro ? nombreRecuperado(libro) : libro.libro);
}

void completarPartida(Conexion& conexion, const PartidaIncompleta& partida,
                      std::int64_t institucion) {
  const Sacramento& s = partida.clase->sacramento;
  const std::string id = std::to_string(partida.id);
  store::Transaction transaccion(conexion);
  for (const bool conClave : {true, false})  // first those whose key others bear
    for (const FilaDePartida* f : partida.faltan)
      if (daSuClave(*conexion.schema().find(f->tabla), *f) == conClave)
        ponerFicha(conexion, s, id, *f);
  if (partida.sinLibro)
    insertarLibro(conexion, s, libroRecuperado(partida, institucion));
  else if (partida.sinInstitucion)
    conexion.Execute(
        (partida.esLibro() ? sentencia(s, "UPDATE {Libros} SET CodInstitucion=")
                           : sentencia(s, "UPDATE {Partidas} SET InstitucionSolicitud=")) +
        std::to_string(institucion) +
        (partida.esLibro() ? sentencia(s, " WHERE {IDLibro}=") + std::to_string(partida.codLibro)
                           : sentencia(s, " WHERE {IDPartida}=") + id));
  transaccion.commit();
}

}  // namespace fidaleon
