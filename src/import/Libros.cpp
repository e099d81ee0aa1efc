#include "import/Libros.h"

#include <algorithm>
#include <cmath>

#include "core/statements/Citas.h"
#include "import/Deshecha.h"
#include "import/Siglo.h"
#include "store/Transaction.h"
#include "text/Names.h"
#include "text/Numbers.h"
#include "text/Utf8.h"

namespace fidaleon {

namespace {

constexpr const char* SIN_FECHA = "19991231";
constexpr std::size_t kNombreLibro = 50;
constexpr int kAbierto = 4;  // IDTipoNombre of a name that is typed
constexpr std::size_t kNombres = 3;

std::size_t indice(Clave clave) {
  return static_cast<std::size_t>(clave);
}

}  // namespace

Libros::Libros(Avisos& avisos, FDAPI::Conexion& conexion, const RegistroInpar& registro,
               TablaInpar& tabla, const Traductor::Reglas& reglas, const Encargo& encargo,
               RegistroImportado& resultado)
    : avisos_(avisos),
      conexion_(conexion),
      registro_(registro),
      tabla_(tabla),
      reglas_(reglas),
      encargo_(encargo),
      resultado_(resultado),
      lugares_(avisos, conexion, encargo.ensayo) {
  const auto buscar = [&tabla](const std::string& nombre) { return tabla.columna(nombre); };
  for (const TablaDestino& destino : registro.tablas) {
    traductores_.emplace_back(destino, conexion.schema(), buscar, reglas_, lugares_, resultado_);
    for (const Destino& columna : destino.columnas) {
      if (columna.origen != Origen::Falta) continue;
      hayNombres_ = true;
      if (const auto donde = buscar(columna.fuente)) columnasNombre_.push_back(*donde);
    }
  }
  resultado_.enTabla = tabla.filas();
  resultado_.borradas = tabla.borradas();
}

void Libros::importar(FDAPI::cProgreso& progreso) {
  auto libros = tabla_.conexion().Execute(registro_.sqlLibros);
  const std::int64_t cuantos = libros.RecordCount();
  progreso.Cargar(cuantos, registro_.titulo, 1, 0);
  progreso.setValue(0);
  for (std::int64_t hechos = 0; !libros.EOF_(); libros.MoveNext()) {
    libro(libros.Fields(0).Value());
    progreso.setValue(++hechos);
  }
  progreso.setValue(cuantos);
}

void Libros::libro(const store::Value& codigo) {
  if (encargo_.ensayo) return partidas(codigo);
  const std::int64_t libros = resultado_.libros, escritas = resultado_.escritas;
  try {
    store::Transaction entero(conexion_);
    partidas(codigo);
    entero.commit();
  } catch (...) {
    // Nothing of the book is there.
    resultado_.libros = libros;
    resultado_.escritas = escritas;
    throw;
  }
  if (claves_[indice(Clave::Libro)] == 0) return;
  resultado_.encontradas +=
      conexion_
          .Execute("SELECT COUNT(*) AS Cuantas FROM " + registro_.palabra +
                   " WHERE CodLibro=" + std::to_string(claves_[indice(Clave::Libro)]))
          .integer("Cuantas");
}

void Libros::partidas(const store::Value& codigo) {
  claves_ = {};
  const bool conSuPrimera = registro_.sqlFecha.empty();
  bool abierto = !conSuPrimera && abrirLibro(codigo, 0);
  auto filas = tabla_.conexion().Execute(registro_.sqlPartidas + igualA(codigo) +
                                         registro_.sqlPartidasOrden);
  if (conSuPrimera) abierto = abrirLibro(codigo, filas.integer(TablaInpar::REGISTRO));
  for (; !filas.EOF_(); filas.MoveNext()) {
    const std::int64_t registro = filas.integer(TablaInpar::REGISTRO);
    ++resultado_.leidas;
    if (abierto) {
      partida(registro);
    } else {
      ++resultado_.rechazadas;
      resultado_.anotar({registro, "no se ha podido hacer su libro", true});
    }
  }
  if (abierto && !encargo_.ensayo && !registro_.sqlTrasLibro.empty())
    conexion_.Execute(registro_.sqlTrasLibro + std::to_string(claves_[indice(Clave::Libro)]));
}

bool Libros::abrirLibro(const store::Value& codigo, std::int64_t registro) {
  const std::string sql = sentenciaLibro(codigo, registro);
  try {
    if (!encargo_.ensayo) {
      conexion_.Execute(sql);
      claves_[indice(Clave::Libro)] = ultimaClave(registro_.sqlClaveLibro);
    }
    ++resultado_.libros;
    return true;
  } catch (const store::Error& error) {
    if (deshecha(conexion_)) throw;
    avisos_.avisar(registro_.errorLibro, error.what());
    resultado_.anotar({0, "Libro " + escrito(codigo) + ": " + error.what(), true});
    return false;
  }
}

std::string Libros::sentenciaLibro(const store::Value& codigo, std::int64_t registro) {
  const std::string valor = text::trim(escrito(codigo));
  const std::string nombre =
      text::left("INPAR - " + text::withoutQuotes(valor.empty() ? "---" : valor), kNombreLibro);
  const std::string fecha = fechaCreacion(codigo, registro);
  const auto maximos = tabla_.conexion().Execute(registro_.sqlSiguiente + igualA(codigo));
  const std::string folio =
      registro_.columnaFolio.empty() ? "1" : siguiente(maximos.value("Folio"), nombre);
  return "INSERT INTO " + registro_.tablaLibros +
         " (CodInstitucion,CodFormato,CodTipoNombre,Nombre,FechaCreacion,Nuevo, "
         "Cerrado,NumeroSiguiente,FolioSiguiente) VALUES (" +
         std::to_string(encargo_.lngIDInstitucion) + "," + std::to_string(reglas_.datos.formato) +
         "," + std::to_string(kAbierto) + "," + entreComillas(nombre) + "," + entreComillas(fecha) +
         ",False,False,\"" + siguiente(maximos.value("Numero"), nombre) + "\"," + folio + ")";
}

/// One that no book can have, of digits that were never meant so, does not keep its book out.
std::string Libros::siguiente(const store::Value& maximo, const std::string& libro) {
  const double ultimo = text::Val(escrito(maximo));
  if (std::abs(ultimo) < 2147483647.0) return std::to_string(static_cast<std::int64_t>(ultimo) + 1);
  resultado_.anotar(
      {0, "«" + libro + "» no puede seguir detrás de «" + escrito(maximo) + "»; sigue en 1",
       false});
  return "1";
}

/// The latest day of the book, or that of its first entry.
std::string Libros::fechaCreacion(const store::Value& codigo, std::int64_t registro) {
  if (registro_.sqlFecha.empty()) {
    const auto columna = tabla_.columna(registro_.columnaFecha);
    const auto dia = columna ? diaDe(tabla_.at(registro)[*columna]) : std::nullopt;
    return dia ? conSiglo(*dia, reglas_.strAno00) : std::string();
  }
  const std::string maxima =
      tabla_.conexion().Execute(registro_.sqlFecha + igualA(codigo)).Fields(0).Value().text();
  if (const auto dia = text::parseStored(maxima)) return conSiglo(*dia, reglas_.strAno00);
  dbase::Cell escrita;
  escrita.kind = dbase::Cell::Kind::Text;
  escrita.text = maxima;
  const auto dia = diaDe(escrita);
  return dia ? conSiglo(*dia, reglas_.strAno00) : SIN_FECHA;
}

void Libros::partida(std::int64_t registro) {
  const dbase::Row& fila = tabla_.at(registro);
  const std::int64_t libro = claves_[indice(Clave::Libro)];
  claves_ = {};
  claves_[indice(Clave::Libro)] = libro;
  bool entera = true;
  for (Traductor& traductor : traductores_) entera &= escribir(traductor, fila);
  ++(entera ? resultado_.escritas : resultado_.rechazadas);
  if (faltaAlguno(fila)) ++falta_;
}

bool Libros::escribir(Traductor& traductor, const dbase::Row& fila) {
  const TablaDestino& destino = traductor.tabla();
  const auto falta = [&](const std::string& porque) {
    resultado_.anotar({fila.record(), destino.tabla + ": " + porque, true});
    return false;
  };
  // What is tied to a row that is not there would be tied to that of another entry.
  if (!encargo_.ensayo && !traductor.tieneA(claves_)) return falta("depende de lo que falta");
  try {
    const std::string& sql = traductor.sentencia(fila, claves_, falta_);
    if (encargo_.ensayo) return true;
    conexion_.Execute(sql);
    if (!destino.sqlClave.empty()) claves_[indice(destino.clave)] = ultimaClave(destino.sqlClave);
    return true;
  } catch (const store::Error& error) {
    if (deshecha(conexion_)) throw;
    avisos_.avisar(destino.error, registro_.tabla + ", registro " + std::to_string(fila.record()) +
                                      ".\n" + error.what());
    return falta(error.what());
  }
}

/// A name that really is so counts as well.
bool Libros::faltaAlguno(const dbase::Row& fila) const {
  if (!hayNombres_) return false;
  if (columnasNombre_.size() < kNombres) return true;
  return std::any_of(columnasNombre_.begin(), columnasNombre_.end(), [&](std::size_t columna) {
    const std::string nombre = textoDe(fila[columna]);
    return nombre.empty() || nombre.find("Falta") != std::string::npos;
  });
}

std::int64_t Libros::ultimaClave(const std::string& sql) const {
  return conexion_.Execute(sql).Fields(0).Value().integer();
}

}  // namespace fidaleon
