#pragma once
// One baptism in a book, and the rows that its documents leave.

#include "documents/cInformes.h"
#include "support/Fields.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {

struct BautismoWorld : TestWorld {
  BautismoWorld() {
    getafe = municipio("Getafe", "Madrid");
    municipio("Écija", "Sevilla");
    municipio("Toledo", "Toledo");
    parroquia = institucion("San Ginés", getafe, "Getafe");
    run("UPDATE Institucion SET InstitucionNombre=\"San Ginés Mártir\", CP=\"28901\"");
    // Getafe is 1, Écija 2, Toledo 3.
    insert(con(), "Libro_Bautismo", R"(CodInstitucion=1; CodFormato=3; CodTipoNombre=1
        Nombre=2003/01; FechaCreacion=20030101; Nuevo=TRUE; NumeroSiguiente=1; FolioSiguiente=1)");
    insert(con(), "Bautismo_Padres", R"(Nombre=Luis; PrimerApellido=García; SegundoApellido=Mora
        CodMunicipio=1; Abuelo=Antonio García; CodMunicipioAbuelo=2; Abuela=Rosa Mora
        CodMunicipioAbuela=0; PadreParroquiaBaut=Santa Cruz; PadreCodMunicipioParrBaut=2
        PadreProfesion=Maestro; AbueloPatParroquiaBaut=Santa Ana; AbueloPatCodMunicipioParrBaut=3
        AbuelaPatParroquiaBaut=; AbuelaPatCodMunicipioParrBaut=0)");
    insert(con(), "Bautismo_Madres", R"(Nombre=Ana; PrimerApellido=Pérez; SegundoApellido=Ruiz
        CodMunicipio=3; Abuelo=Juan Pérez; CodMunicipioAbuelo=1; Abuela=Elena Ruiz
        CodMunicipioAbuela=3; MadreParroquiaBaut=San Pedro; MadreCodMunicipioParrBaut=3
        MadreProfesion=; AbueloMatParroquiaBaut=San Juan; AbueloMatCodMunicipioParrBaut=1
        AbuelaMatParroquiaBaut=San Blas; AbuelaMatCodMunicipioParrBaut=2)");
    insert(con(), "Bautismo_Matrimonio", R"(Parroquia=Santa María; FechaMatr=---
        CodMunicipioMatr=3; DireccionPadres=Calle Real, 7; CodMunicipioPadres=1
        DiocesisMatrimonio=Toledo; TelefonoPadres=916950000)");
    insert(con(), "Bautismo", R"(CodPadres=1; CodMadres=1; CodMatrimonio=1
        InstitucionSolicitud=0; FechaBautismo=20030524; Padrino=Pablo Mora; Madrina=Inés Ruiz
        Ministro=José Vidal; Parroquia=San Ginés; CodMunicipio=1; Diocesis=Getafe
        NotasMarginales=Confirmada en 2018; CodLibro=1; Folio=12; Numero=23a; EdadPadrino=30
        EdadMadrina=; ParroquiaDomicilioPadrino=San José; ParroquiaDomicilioMadrina=---
        ProfesionPadrino=Fuster; NaturalPadrino=Maó; EstatPadrino=Casat; ProfesionMadrina=)");
    insert(con(), "Bautismo_Hijo", R"(CodBautismo=1; Nombre=Lucía; PrimerApellido=García
        SegundoApellido=Pérez; Sexo=Mujer; FechaNac=20030401; HoraNac=09:30
        DireccionNac=Calle Real, 7; CodMunicipioNac=3)");
  }

  void run(const std::string& sql) { con().Execute(sql); }
  std::int64_t filas(const std::string& tabla = "Documentos_Bautismo") {
    return conInformes().Execute("SELECT * FROM " + tabla).RecordCount();
  }
  /// The one row of the table; empty, and a failure, when there is not exactly one.
  Row fila(const std::string& tabla = "Documentos_Bautismo") {
    const std::vector<Row> rows = rowsIn(conInformes(), tabla);
    EXPECT_EQ(rows.size(), 1u);
    return rows.size() == 1 ? rows[0] : Row();
  }
  /// All rows, without the keys that tie tables together.
  std::vector<Row> todas(const std::string& tabla) {
    std::vector<Row> rows = rowsIn(conInformes(), tabla);
    for (Row& row : rows)
      for (const char* key : {"IDDocumentos_Matrimonio", "CodDocumentos_Matrimonio"})
        row.erase(key);
    return rows;
  }
  std::string columna(const std::string& nombre) { return fila()[nombre]; }

  std::int32_t getafe = 0;
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
