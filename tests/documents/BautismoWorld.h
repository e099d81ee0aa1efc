#pragma once
// One baptism in a book, and the rows that its documents leave.

#include <map>
#include <string>

#include "documents/cInformes.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

/// Column to value; a column that holds Null is not there.
using Row = std::map<std::string, std::string>;

struct BautismoWorld : TestWorld {
  BautismoWorld() {
    getafe = municipio("Getafe", "Madrid");
    ecija = municipio("Écija", "Sevilla");
    toledo = municipio("Toledo", "Toledo");
    parroquia = institucion("San Ginés", getafe, "Getafe");
    run("UPDATE Institucion SET InstitucionNombre=\"San Ginés Mártir\", CP=\"28901\" WHERE "
        "IDInstitucion=" +
        std::to_string(parroquia));
    run("INSERT INTO Libro_Bautismo (CodInstitucion, CodFormato, CodTipoNombre, Nombre, "
        "FechaCreacion, Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente) VALUES (" +
        std::to_string(parroquia) + ", 3, 1, \"2003/01\", \"20030101\", 1, 0, 1, 1)");
    run("INSERT INTO Bautismo_Padres (Nombre, PrimerApellido, SegundoApellido, CodMunicipio, "
        "Abuelo, CodMunicipioAbuelo, Abuela, CodMunicipioAbuela, PadreParroquiaBaut, "
        "PadreCodMunicipioParrBaut, PadreProfesion, AbueloPatParroquiaBaut, "
        "AbueloPatCodMunicipioParrBaut, AbuelaPatParroquiaBaut, AbuelaPatCodMunicipioParrBaut) "
        "VALUES (\"Luis\", \"García\", \"Mora\", " +
        std::to_string(getafe) + ", \"Antonio García\", " + std::to_string(ecija) +
        ", \"Rosa Mora\", 0, \"Santa Cruz\", " + std::to_string(ecija) +
        ", \"Maestro\", \"Santa Ana\", " + std::to_string(toledo) + ", \"\", 0)");
    run("INSERT INTO Bautismo_Madres (Nombre, PrimerApellido, SegundoApellido, CodMunicipio, "
        "Abuelo, CodMunicipioAbuelo, Abuela, CodMunicipioAbuela, MadreParroquiaBaut, "
        "MadreCodMunicipioParrBaut, MadreProfesion, AbueloMatParroquiaBaut, "
        "AbueloMatCodMunicipioParrBaut, AbuelaMatParroquiaBaut, AbuelaMatCodMunicipioParrBaut) "
        "VALUES (\"Ana\", \"Pérez\", \"Ruiz\", " +
        std::to_string(toledo) + ", \"Juan Pérez\", " + std::to_string(getafe) +
        ", \"Elena Ruiz\", " + std::to_string(toledo) + ", \"San Pedro\", " +
        std::to_string(toledo) + ", \"\", \"San Juan\", " + std::to_string(getafe) +
        ", \"San Blas\", " + std::to_string(ecija) + ")");
    run("INSERT INTO Bautismo_Matrimonio (Parroquia, FechaMatr, CodMunicipioMatr, "
        "DireccionPadres, CodMunicipioPadres, DiocesisMatrimonio, TelefonoPadres) VALUES "
        "(\"Santa María\", \"---\", " +
        std::to_string(toledo) + ", \"Calle Real, 7\", " + std::to_string(getafe) +
        ", \"Toledo\", \"916950000\")");
    run("INSERT INTO Bautismo (CodPadres, CodMadres, CodMatrimonio, InstitucionSolicitud, "
        "FechaBautismo, Padrino, Madrina, Ministro, Parroquia, CodMunicipio, Diocesis, "
        "NotasMarginales, CodLibro, Folio, Numero, Anulada, EdadPadrino, EdadMadrina, "
        "ParroquiaDomicilioPadrino, ParroquiaDomicilioMadrina, ProfesionPadrino, NaturalPadrino, "
        "EstatPadrino, ProfesionMadrina) VALUES (1, 1, 1, 0, \"20030524\", \"Pablo Mora\", "
        "\"Inés Ruiz\", \"José Vidal\", \"San Ginés\", " +
        std::to_string(getafe) +
        ", \"Getafe\", \"Confirmada en 2018\", 1, 12, \"23a\", 0, \"30\", \"\", \"San José\", "
        "\"---\", \"Fuster\", \"Maó\", \"Casat\", \"\")");
    run("INSERT INTO Bautismo_Hijo (CodBautismo, Nombre, PrimerApellido, SegundoApellido, Sexo, "
        "FechaNac, HoraNac, DireccionNac, CodMunicipioNac) VALUES (1, \"Lucía\", \"García\", "
        "\"Pérez\", \"Mujer\", \"20030401\", \"09:30\", \"Calle Real, 7\", " +
        std::to_string(toledo) + ")");
  }

  void run(const std::string& sql) { con().Execute(sql); }
  /// Turns the entry into a request of the parish.
  void hacerSolicitud() {
    run("UPDATE Bautismo SET CodLibro = 0, Folio = 0, Numero = \"---\", InstitucionSolicitud = " +
        std::to_string(parroquia));
  }

  std::int64_t filas(const std::string& tabla = "Documentos_Bautismo") {
    return conInformes().Execute("SELECT * FROM " + tabla).RecordCount();
  }
  /// The one row of the table; empty, and a failure, when there is not exactly one.
  Row fila(const std::string& tabla = "Documentos_Bautismo") {
    const store::Recordset rs = conInformes().Execute("SELECT * FROM " + tabla);
    EXPECT_EQ(rs.RecordCount(), 1);
    Row row;
    if (rs.RecordCount() != 1) return row;
    for (int i = 0; i < rs.FieldCount(); ++i)
      if (!rs.Fields(i).Value().isNull()) row[rs.FieldName(i)] = rs.Fields(i).Value().text();
    return row;
  }
  /// All rows, without the keys that tie tables together.
  std::vector<Row> todas(const std::string& tabla) {
    std::vector<Row> rows;
    for (store::Recordset rs = conInformes().Execute("SELECT * FROM " + tabla); !rs.EOF_();
         rs.MoveNext()) {
      Row& row = rows.emplace_back();
      for (int i = 0; i < rs.FieldCount(); ++i)
        if (!rs.Fields(i).Value().isNull() && !rs.FieldName(i).ends_with("Documentos_Matrimonio"))
          row[rs.FieldName(i)] = rs.Fields(i).Value().text();
    }
    return rows;
  }
  std::string columna(const std::string& nombre) { return fila()[nombre]; }

  std::int32_t getafe = 0;
  std::int32_t ecija = 0;
  std::int32_t toledo = 0;
  std::int32_t parroquia = 0;
  cInformes informes{contexto};
};

inline Row operator+(Row a, const Row& b) {
  for (const auto& [name, value] : b) a[name] = value;
  return a;
}

inline Row sin(Row row, std::initializer_list<const char*> names) {
  for (const char* name : names) EXPECT_EQ(row.erase(name), 1u) << name;
  return row;
}

}  // namespace fidaleon::tests
