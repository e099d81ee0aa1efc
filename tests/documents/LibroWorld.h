#pragma once
// A book of any register with further entries, for what is printed of whole books.

#include <ostream>

#include "GoldenRows.h"
#include "core/facade/Documentos.h"
#include "registers/Rows.h"
#include "registers/common/FormaPartida.h"

namespace fidaleon::tests {

/// What the documents of whole books differ in from register to register.
struct Registro {
  const Sacramento& sacramento;
  SinFirma libro, libroMenorca, indice;
  const char* nodo;  // of the duplicates
  const char* porFecha;
  const char* formula;  // of the date
  const char* porApellidos;
  const char* progreso;
  Row (*duplicada)();
  const char* ano;  // of the entry in PartidasWorld

  const FilasDocumento& filas() const { return *filasDocumento(sacramento); }
  /// The loader of marriages has its own transaction, and tells of its errors by itself.
  bool porCargador() const { return &sacramento == &MATRIMONIO; }
  std::string insercion() const { return std::string("INSERT INTO ") + filas().tabla + " ("; }
  std::string miembro(const char* cual) const {
    return std::string("Imprimir") + cual + sacramento.palabra;
  }
};

inline const Registro REGISTROS[] = {
    {BAUTISMO, &cInformes::ImprimirLibroBautismo, &cInformes::ImprimirLibroBautismoMenorca,
     &cInformes::ImprimirIndiceLibroBautismo, "Duplicadas de bautismo", "Fecha de Bautismo",
     "+{@FechaBautismo}", "Apellidos del bautizado", "Procesando vista preliminar ...",
     duplicadaDeBautismo, "2003"},
    {CONFIRMACION, &cInformes::ImprimirLibroConfirmacion,
     &cInformes::ImprimirLibroConfirmacionMenorca, &cInformes::ImprimirIndiceLibroConfirmacion,
     "Duplicadas de confirmación", "Fecha de Confirmación", "+{@FechaConfirmacion}",
     "Apellidos del Confirmado", "Procesando vista preliminar ...", duplicadaDeConfirmacion,
     "2019"},
    {MATRIMONIO, &cInformes::ImprimirLibroMatrimonio, &cInformes::ImprimirLibroMatrimonioMenorca,
     &cInformes::ImprimirIndiceLibroMatrimonio, "Duplicadas de matrimonio", "Fecha de Matrimonio",
     "+{@FechaMatrimonio}", "Apellidos del Matrimonio", "Procesando vista preliminar ...",
     duplicadaDeMatrimonio, "2020"},
    {DEFUNCION, &cInformes::ImprimirLibroDefuncion, &cInformes::ImprimirLibroDefuncionMenorca,
     &cInformes::ImprimirIndiceLibroDefuncion, "Duplicadas de defunción", "Fecha de Defunción",
     "+{@FechaDefuncion}", "Apellidos del Difunto", "Procesando vista preliminar...",
     duplicadaDeDefuncion, "2024"},
};

inline void PrintTo(const Registro& registro, std::ostream* out) {
  *out << registro.sacramento.palabra;
}

struct Entrada {
  std::string apellido = "García";
  std::string nombre = "Eva";
  std::string folio = "1";
  std::string numero = "1";
  int libro = 1;
  std::string fecha = "20030601";
};

/// The first entry of every register is Lucía García Pérez, of 24 May 2003, on 12/23a.
struct LibroWorld : PartidasWorld {
  explicit LibroWorld(const Registro& r) : registro(r) {
    vaciarLibro();
    agregar({"García", "Lucía", "12", "23a", 1, "20030524"});
    en("UPDATE {Libros} SET Nombre=\"2003/01\"");
  }

  void en(const PlantillaSql& plantilla, const std::string& resto = "") {
    run(sentencia(registro.sacramento, plantilla) + resto);
  }
  /// Where the register keeps the name.
  const char* tablaPersona() const { return formaPartida(registro.sacramento)->personas.front(); }
  /// The key of the new entry.
  std::string agregar(const Entrada& e) {
    return std::to_string(
        insertEntry(*this, registro.sacramento,
                    {e.nombre, e.libro, std::stoi(e.folio), e.numero, 0, {}, e.apellido, e.fecha}));
  }
  /// The key of a further book.
  int libro(const std::string& nombre, const std::string& creacion, int institucionDelLibro = 1) {
    return insertBook(*this, registro.sacramento, institucionDelLibro,
                      {nombre, false, 1, false, creacion});
  }
  void vaciarLibro() { en("DELETE * FROM {Partidas}"); }

  void imprimir(SinFirma miembro) { (informes.*miembro)(con(), conInformes(), 1); }
  std::int64_t filas() { return PartidasWorld::filas(registro.filas().tabla); }
  void vaciarInformes() {
    for (const char* tabla : {registro.filas().tabla, registro.filas().persona.tabla})
      conInformes().Execute(std::string("DELETE * FROM ") + tabla);
  }
  /// The table that holds a column.
  std::string tablaDe(const std::string& columna) const {
    const PersonaDocumento& p = registro.filas().persona;
    return columna == p.nombre || columna == p.primerApellido ? p.tabla : registro.filas().tabla;
  }
  /// A column of all rows, in the order in which they were written.
  std::vector<std::string> columnas(const std::string& nombre) {
    std::vector<std::string> todas;
    for (store::Recordset rs = conInformes().Execute("SELECT * FROM " + tablaDe(nombre));
         !rs.EOF_(); rs.MoveNext())
      todas.push_back(rs.text(nombre));
    return todas;
  }
  std::vector<std::string> nombres() { return columnas(registro.filas().persona.nombre); }

  const Registro& registro;
};

inline std::string nombreDelRegistro(const ::testing::TestParamInfo<Registro>& caso) {
  return caso.param.sacramento.palabra;
}

}  // namespace fidaleon::tests
