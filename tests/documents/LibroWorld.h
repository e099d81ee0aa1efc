#pragma once
// Further baptisms in the books of BautismoWorld.

#include <vector>

#include "BautismoWorld.h"

namespace fidaleon::tests {

struct Entrada {
  std::string apellido = "García";
  std::string nombre = "Eva";
  std::string folio = "1";
  std::string numero = "1";
  int libro = 1;
  std::string fecha = "20030601";
};

struct LibroWorld : BautismoWorld {
  /// The key of the new entry, which shares parents and marriage with the first one.
  std::string agregar(const Entrada& e) {
    run("INSERT INTO Bautismo (CodPadres, CodMadres, CodMatrimonio, CodLibro, Folio, Numero, "
        "FechaBautismo) VALUES (1, 1, 1, " +
        std::to_string(e.libro) + ", " + e.folio + ", \"" + e.numero + "\", \"" + e.fecha + "\")");
    const std::string id = value("SELECT MAX(IDBautismo) AS ID FROM Bautismo");
    run("INSERT INTO Bautismo_Hijo (CodBautismo, Nombre, PrimerApellido, SegundoApellido, Sexo) "
        "VALUES (" +
        id + ", \"" + e.nombre + "\", \"" + e.apellido + "\", \"Sanz\", \"Hombre\")");
    return id;
  }
  /// The key of a further book.
  int libro(const std::string& nombre, const std::string& creacion, int institucionDelLibro = 1) {
    run("INSERT INTO Libro_Bautismo (CodInstitucion, CodFormato, CodTipoNombre, Nombre, "
        "FechaCreacion, Nuevo) VALUES (" +
        std::to_string(institucionDelLibro) + ", 1, 1, \"" + nombre + "\", \"" + creacion +
        "\", 0)");
    return std::stoi(value("SELECT MAX(IDLibroBautismo) AS ID FROM Libro_Bautismo"));
  }
  /// The first entry goes, so that a test sees its own alone.
  void vaciarLibro() { run("DELETE * FROM Bautismo"); }

  void imprimirLibro() { informes.ImprimirLibroBautismo(con(), conInformes(), 1); }
  void imprimirIndice() { informes.ImprimirIndiceLibroBautismo(con(), conInformes(), 1); }
  /// A column of all rows, in the order in which they were written.
  std::vector<std::string> columnas(const std::string& nombre) {
    std::vector<std::string> todas;
    for (store::Recordset rs = conInformes().Execute("SELECT * FROM Documentos_Bautismo");
         !rs.EOF_(); rs.MoveNext())
      todas.push_back(rs.text(nombre));
    return todas;
  }
};

}  // namespace fidaleon::tests
