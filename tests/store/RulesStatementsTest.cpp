// Statements as the program issues them, run through the store: whatever is here must be
// understood, and must mean what the registers rest on.

#include <gtest/gtest.h>

#include "store/Error.h"
#include "support/NewDatabase.h"

namespace fidaleon::store::RulesStatementsTest {

std::string rowsOf(Recordset&& set) {
  std::string all;
  for (; !set.EOF_(); set.MoveNext()) {
    if (!all.empty()) all += " | ";
    for (int i = 0; i < set.FieldCount(); ++i) {
      all += (i > 0 ? "," : "") + set.Fields(i).Value().text();
    }
  }
  return all;
}

class Registers : public testing::Test {
 protected:
  void SetUp() override {
    run(R"(INSERT INTO Provincia (Nombre, Codigo_Oficial) VALUES ("Provincia ""nueva""", 99))");
    run(R"(INSERT INTO Municipio (Nombre, CodProvincia) VALUES ("Alcalá", 28))");
    run(R"(INSERT INTO Institucion (Nombre, InstitucionNombre, CodMunicipio, Parroco, Diocesis, Vicaria)
           VALUES ("San Pedro", "Parroquia de San Pedro", 1, "", "", ""))");
    run(R"(INSERT INTO Institucion (Nombre) VALUES ("Ñuestra Señora"))");
    run(R"(INSERT into Libro_Bautismo (codinstitucion, codFormato, codTipoNombre, nombre, fechacreacion, Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente) values (1, 3, 1, "2003/01", "20030101", 1, 0, 1, 1))");
    run(R"(INSERT into Libro_Bautismo (codinstitucion, codFormato, codTipoNombre, nombre, fechacreacion, Nuevo, Cerrado, NumeroSiguiente, FolioSiguiente) values (1, 1, 2, "7", "19000101", 0, 0, 1, 1))");
    baptism("Álvarez", "Núñez", "José", 2, 1, "1");
    baptism("alvarez", "Nunez", "Ana", 2, 1, "2");
    baptism("Ñáñez", "Ruiz", "Eva", 2, 1, "10");
    baptism("Zurita", "Ruiz", "Luz", 2, 3, "12a");
    baptism("Oro", "Ruiz", "Pío", 2, 3, "12");
  }

  void run(const std::string& sql) { connection->Execute(sql); }
  std::string rows(const std::string& sql) { return rowsOf(connection->Execute(sql)); }

  void baptism(const std::string& first, const std::string& second, const std::string& name,
               int book, int folio, const std::string& number) {
    const std::string b = std::to_string(book), f = std::to_string(folio);
    run("INSERT INTO bautismo_padres (nombre, primerapellido, segundoapellido, codmunicipio) "
        "VALUES (\"Juan\", \"" +
        first + "\", \"---\", 1)");
    const std::string id =
        rows("SELECT MAX(IDPadres) AS ID FROM bautismo_padres WHERE Nombre = \"JUAN\"");
    run("INSERT INTO bautismo_madres (nombre, primerapellido) VALUES (\"Ana\", \"" + second +
        "\")");
    run("INSERT INTO bautismo_matrimonio (parroquia,fechamatr,codmunicipiomatr,DiocesisMatrimonio "
        ",TelefonoPadres) VALUES (\"San Pedro\", \"20000101\",1,\"Alcalá\" ,\"---\")");
    run("INSERT INTO bautismo (codpadres, codmadres, codmatrimonio, fechabautismo, codlibro, "
        "folio, "
        "numero, anulada, EdadPadrino ,MinistroCargo) VALUES (" +
        id + "," + id + "," + id + ",\"20030504\"," + b + "," + f + ",\"" + number +
        "\",0,\"0\" ,\"---\")");
    const auto last = connection->Execute("SELECT * FROM bautismo ORDER BY idbautismo DESC");
    run("INSERT INTO bautismo_hijo (codbautismo,nombre,primerapellido,segundoapellido) VALUES (" +
        last.text("idbautismo") + ",\"" + name + "\",\"" + first + "\",\"" + second + "\")");
  }

  std::unique_ptr<Connection> connection = tests::newDatabase(parishSchema());
};

/// As the rules name all the books of a parish.
std::string ofBooks(int last) {
  std::string books = "codlibro=1";
  for (int book = 2; book <= last; ++book) books += " OR codlibro=" + std::to_string(book);
  return books;
}

TEST_F(Registers, Reads_GiveWhatTheRegistersExpect) {
  const struct {
    std::string sql;
    const char* rows;
  } cases[] = {
      // A book and its entries.
      {"Select * from Libro_Bautismo where codinstitucion=1 and nuevo=1", ""},
      {"SELECT IDLibroBautismo FROM Libro_Bautismo WHERE  Nuevo = True AND Cerrado = False", "1"},
      {"SELECT Nombre FROM Libro_Bautismo WHERE CodInstitucion = 1 AND Nombre = '7'", "7"},
      {"SELECT Nuevo, NumeroSiguiente, FolioSiguiente FROM Libro_Bautismo WHERE nuevo<>0",
       "-1,1,1"},
      {"SELECT Bautismo.IDBautismo, Bautismo.Folio as Folio, Bautismo.Numero, "
       "Bautismo_Hijo.PrimerApellido FROM Bautismo, Bautismo_Hijo, Bautismo_Madres, "
       "Bautismo_Padres, Bautismo_Matrimonio, Libro_Bautismo WHERE CodLibro=2 AND "
       "idBautismo=codBautismo AND IdLibroBautismo=CodLibro AND "
       "Bautismo_Madres.IDMadres=Bautismo.CodMadres AND "
       "Bautismo_Padres.IDPadres=Bautismo.CodPadres AND "
       "Bautismo_Matrimonio.IDMatrimonio=Bautismo.CodMatrimonio ORDER BY Folio, Val(Numero), "
       "IDBautismo",
       "1,1,1,Álvarez | 2,1,2,alvarez | 3,1,10,Ñáñez | 4,3,12a,Zurita | 5,3,12,Oro"},
      {"SELECT bautismo.folio, COUNT(bautismo.folio) AS totalpartidas, MAX(bautismo.numero) AS "
       "numeromayor,MIN(bautismo.numero) AS numeromenor FROM bautismo WHERE codlibro=2 GROUP BY "
       "bautismo.folio",
       "1,3,2,1 | 3,2,12a,12"},
      {"SELECT DISTINCT Folio FROM Bautismo WHERE codLibro = 2 ORDER BY Folio", "1 | 3"},
      {"SELECT MAX(CInt(Folio)) FROM Bautismo WHERE CodLibro = 2", "3"},
      {"SELECT numero FROM bautismo ORDER BY Val(CStr(Folio)) , Val(Numero)",
       "1 | 2 | 10 | 12a | 12"},
      {"SELECT Numero FROM bautismo WHERE folio=3 AND numero=\"12A\"", "12a"},
      {"SELECT Numero FROM bautismo WHERE folio=\"3\" AND numero=12", "12"},
      {"SELECT COUNT(IDBautismo) AS Total FROM Bautismo WHERE CodLibro=2", "5"},
      // Surnames: case does not count, accents do, and ñ follows n.
      {"SELECT Nombre FROM Bautismo_Hijo WHERE PrimerApellido=\"ÁLVAREZ\"", "José"},
      {"SELECT Nombre FROM Bautismo_Hijo WHERE PrimerApellido=\"Álvarez \"", ""},
      {"SELECT DISTINCT IDBautismo, Nombre, PrimerApellido, SegundoApellido, FechaBautismo FROM "
       "Bautismo, Bautismo_Hijo WHERE PrimerApellido = \"zurita\" AND SegundoApellido = \"RUIZ\" "
       "AND CodBautismo = IDBautismo AND (" +
           ofBooks(1200) + ");",
       "4,Luz,Zurita,Ruiz,20030504"},
      {"SELECT PrimerApellido FROM Bautismo_Hijo ORDER BY PrimerApellido",
       "alvarez | Álvarez | Ñáñez | Oro | Zurita"},
      {"SELECT DISTINCT SegundoApellido FROM Bautismo_Hijo", "Nunez | Núñez | Ruiz"},
      {"SELECT DISTINCT primerapellido FROM Bautismo_Hijo ORDER BY PrimerApellido",
       "alvarez | Álvarez | Ñáñez | Oro | Zurita"},
      {"SELECT MAX(PrimerApellido) FROM Bautismo_Hijo WHERE PrimerApellido < 'Oz'", "Oro"},
      {"SELECT Nombre FROM Bautismo_Hijo WHERE PrimerApellido IN ('ORO', \"zurita\")", "Luz | Pío"},
      // Institutions, with Null in columns that were left out.
      {"SELECT IDInstitucion FROM Institucion WHERE IDInstitucion NOT IN (SELECT IDInstitucion "
       "FROM Institucion WHERE Parroco<>'' OR Diocesis<>'' OR Vicaria<>'')",
       "1 | 2"},
      {"SELECT Institucionnombre FROM Libro_Bautismo, Institucion WHERE "
       "CodInstitucion=IDInstitucion AND IDLibroBautismo=1",
       "Parroquia de San Pedro"},
      {"SELECT IDInstitucion, Nombre FROM Institucion WHERE IDInstitucion IN (SELECT "
       "CodInstitucion FROM Libro_Bautismo WHERE IDLibroBautismo IN (SELECT CodLibro FROM Bautismo "
       "WHERE IDBautismo = 3))",
       "1,San Pedro"},
      {"SELECT IDLibroBautismo FROM Libro_Bautismo WHERE FechaCreacion <= (SELECT FechaCreacion "
       "FROM Libro_Bautismo WHERE Nombre = \"2003/01\" AND CodInstitucion = 1) ORDER BY "
       "FechaCreacion DESC",
       "1 | 2"},
      {"SELECT TOP 1 * From Institucion_Encargado, INSTITUCION WHERE CodInstitucion=1", ""},
      {"SELECT TOP 2 Nombre FROM Bautismo_Hijo WHERE SegundoApellido='ruiz' ORDER BY Nombre",
       "Eva | Luz"},
      {"SELECT Nombre FROM Provincia WHERE Codigo_Oficial = 99", "Provincia \"nueva\""},
      {"SELECT MAX(IDProvincia) AS ID FROM Provincia", "53"},
      {"SELECT * FROM Municipio,Provincia WHERE IDMunicipio=1 AND "
       "Municipio.CodProvincia=Provincia.IDProvincia",
       "1,Alcalá,28,28,Madrid,28"},
      {"SELECT * FROM [Padron_TipoPersona] WHERE CodPadron=1 And CodTipoPersona=2", ""},
      {"SELECT 0 FROM Matrimonio_Cursos WHERE CodMatrimonio=1 and Cod_Tipo_Persona = 4", ""},
      {"SELECT DISTINCT(Nombre) FROM Bautismo_Hijo WHERE CodBautismo <= 2", "Ana | José"},
  };
  for (const auto& c : cases) EXPECT_EQ(rows(c.sql), c.rows) << c.sql;
}

TEST_F(Registers, Writes_ChangeWhatTheyName) {
  run("UPDATE Bautismo SET Anulada = 1 WHERE IDBautismo=3");
  EXPECT_EQ(rows("SELECT IDBautismo, Anulada FROM Bautismo WHERE Anulada = True"), "3,-1");
  run("UPDATE libro_bautismo SET cerrado=true WHERE idlibrobautismo=1");
  EXPECT_EQ(rows("Select IDLibroBautismo from libro_bautismo where cerrado=false"), "2");
  run("UPDATE Libro_Bautismo SET FolioSiguiente = 4, NumeroSiguiente = 13 WHERE "
      "IDLibroBautismo = 2");
  EXPECT_EQ(rows("SELECT FolioSiguiente,NumeroSiguiente FROM Libro_Bautismo WHERE Nombre=\"7\""),
            "4,13");
  run("DELETE * FROM bautismo_hijo WHERE codbautismo=4");
  run("DELETE * FROM bautismo WHERE idbautismo=4;");
  EXPECT_EQ(rows("SELECT COUNT(*) FROM bautismo"), "4");
  run("UPDATE Institucion SET Parroco=\"D. ''Pepe''\",Diocesis='L''Hospitalet',Vicaria=\"\" WHERE "
      "IDInstitucion=2");
  EXPECT_EQ(rows("SELECT Parroco, Diocesis, Vicaria FROM Institucion WHERE IDInstitucion=2"),
            "D. ''Pepe'',L'Hospitalet,");
}

TEST_F(Registers, ColumnsNamedByNumbers_AreWrittenAsTheyStand) {
  run("INSERT INTO Matrimonio_cursos (CodMatrimonio, Cod_Tipo_Persona, 0, 1, 33) VALUES (5, 4, "
      "'d''or', '2', 'tres')");
  run("UPDATE Matrimonio_Cursos SET 1 = 'dos', 31 = '4' WHERE CodMatrimonio=5 AND "
      "Cod_Tipo_Persona = 4");
  const auto row = connection->Execute("SELECT * FROM Matrimonio_Cursos WHERE CodMatrimonio=5");
  EXPECT_EQ(row.text("0"), "d'or");
  EXPECT_EQ(row.text("1"), "dos");
  EXPECT_EQ(row.text("31"), "4");
  EXPECT_EQ(row.text("33"), "tres");
  EXPECT_TRUE(row.value("2").isNull());
}

TEST_F(Registers, NamesOutsideAscii_AreFoundInAnyCase) {
  run("INSERT INTO Padron (Nombre,[Profesion/Colegio],CUMPLEAÑOS,añonacimiento) VALUES "
      "(\"Íñigo\",\"Cantero\",'0504','1950');");
  const auto row = connection->Execute(
      "SELECT AÑONACIMIENTO, [profesion/colegio] AS Profesion, "
      "Cumpleaños FROM padron");
  EXPECT_EQ(row.text("AñoNacimiento"), "1950");
  EXPECT_EQ(row.text("profesion"), "Cantero");
  EXPECT_EQ(row.text("cumpleaÑos"), "0504");
  run("UPDATE Padron_Comunion SET AñoComunion='',ParroquiaCom='';");
  const auto reports = memoryDatabase(reportsSchema());
  reports->Execute(
      "INSERT INTO documentos_bautismo ([Al niño/A la niña], [Nacido/Nacida], Año) "
      "VALUES (\"al niño\", \"nacido\", \"1950\")");
  EXPECT_EQ(reports->Execute("SELECT * FROM Documentos_Bautismo").text("AL NIÑO/A LA NIÑA"),
            "al niño");
}

TEST_F(Registers, FieldsOfTwoTables_ByBareAndByQualifiedName) {
  const auto row = connection->Execute(
      "SELECT * FROM Libro_Bautismo, Institucion WHERE IDInstitucion=CodInstitucion AND "
      "IDLibroBautismo=1");
  EXPECT_EQ(row.text("nombre"), "2003/01");
  EXPECT_EQ(row.text("Institucion.Nombre"), "San Pedro");
  EXPECT_EQ(row.text("LIBRO_BAUTISMO.NOMBRE"), "2003/01");
  EXPECT_EQ(row.Fields(0).Name(), "IDLibroBautismo");
  EXPECT_THROW(row.text("Apellido"), Error);
  EXPECT_THROW(row.Fields(-1), Error);
}

}  // namespace fidaleon::store::RulesStatementsTest
