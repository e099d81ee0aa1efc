#pragma once
// Where everything of the older program goes, as data: one description for each register, and in it
// one for each of the tables that an entry has here.

#include <string>
#include <utility>
#include <vector>

namespace fidaleon {

/// How the value of a column comes about. "Fuente" is a column of the older table; without one it
/// is that of the same name, and where there is none the value is "---" or 0.
enum class Origen {
  Texto,        // the source, "---" when blank
  Fecha,        // with the century put right
  Falta,        // a name; one that is missing is "Falta" and a number
  Nombre,       // of a full name in the source
  Apellido1,    // likewise
  Apellido2,    // likewise
  Union,        // several sources, with blanks between them: "Nom_Cony Ap1_Cony Ap2_Cony"
  Lugar,        // town in the source, province in the other
  LugarSuelto,  // a town that is told without its province
  Edad,         // years from the source, or the first of several, to the other
  Sexo,         // H, M
  Lineas,       // Linea1 to Linea20
  Valor,        // the leading number of the source
  Parroquia,    // as given for the whole register
  ParroquiaO,   // likewise, or else the source
  Diocesis,     // as given for the whole register
  Municipio,    // likewise
  Llave,        // of a row that was written before
  Cero,
  Uno,
  No,
};

/// Keys that the rows of an entry refer to each other by.
enum class Clave { Libro, Padres, Madres, Enlace, Novios, Novias, Partida, Cuantas };

struct Destino {
  std::string columna;
  Origen origen = Origen::Texto;
  std::string fuente = {};
  std::string otra = {};
  int limite = 0;  // characters, when fewer than the column holds
  Clave clave = Clave::Cuantas;
};

inline Destino llave(std::string columna, Clave clave) {
  return {std::move(columna), Origen::Llave, {}, {}, 0, clave};
}

struct TablaDestino {
  std::string tabla;
  std::string error;  // what the user is told when its row cannot be written
  std::vector<Destino> columnas;
  /// Reads back the key of the row and keeps it as this; empty when nothing refers to the row.
  std::string sqlClave = {};
  Clave clave = Clave::Cuantas;
};

/// One register of the older program and what becomes of it.
struct RegistroInpar {
  std::string palabra;  // of its tables here: "Defuncion"
  std::string titulo;   // "Defunción"
  std::string tabla;    // "BAUT"
  int etapa = 1;        // place among the stage labels, from 1
  std::string columnaLibro, columnaFolio, columnaNumero, columnaFecha;  // folio: may be none
  std::string sqlLibros;
  std::string sqlPartidas, sqlPartidasOrden;
  std::string sqlFecha;  // of the book; empty: it is that of the book's first entry
  std::string sqlSiguiente;
  std::string tablaLibros, sqlClaveLibro;
  std::string sqlTrasLibro;  // run with the book's key behind its last entry; may be empty
  std::string errorLibro;
  std::vector<TablaDestino> tablas;
};

const RegistroInpar& inparBautismo();
const RegistroInpar& inparConfirmacion();
const RegistroInpar& inparMatrimonio();
const RegistroInpar& inparDefuncion();

}  // namespace fidaleon
