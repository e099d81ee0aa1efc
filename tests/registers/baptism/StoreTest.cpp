// What reaches the five tables of a baptism, and in which words.

#include "registers/BaptismWorld.h"
#include "registers/baptism/TablasBautismo.h"
#include "registers/common/EliminarPartida.h"

namespace fidaleon::tests {

class BaptismStore : public BaptismWorld {};

TEST_F(BaptismStore, Statements_AreWordedAsTheTablesSay) {
  cBautismo b = record("Luis", 3, 1, "2");
  b.CodBautismo = b.IDBautismo = 9;
  b.DiocesisMatrimonio = "Madrid";
  b.TelefonoPadres = "---";
  b.DireccionPadresMatrimonio = "Calle \"Sol\"";
  EXPECT_EQ(sqlInsertar(TABLA_MATRIMONIO, b),
            "INSERT INTO bautismo_matrimonio (parroquia,fechamatr,codmunicipiomatr,"
            "direccionpadres,codmunicipiopadres,DiocesisMatrimonio ,TelefonoPadres) VALUES "
            "(\"San Juan\", \"---\", 0, \"Calle \"\"Sol\"\"\", 0, \"Madrid\", \"---\")");
  EXPECT_EQ(sqlInsertar(TABLA_HIJO, b),
            "INSERT INTO bautismo_hijo (codbautismo,nombre,primerapellido,segundoapellido,sexo,"
            "fechanac,horanac,direccionnac,codmunicipionac) VALUES (9, \"Luis\", \"García\", "
            "\"Pérez\", \"Hombre\", \"---\", \"---\", \"\", 0)");
  EXPECT_EQ(sqlActualizar(TABLA_MATRIMONIO_AL_ACTUALIZAR, b),
            "UPDATE bautismo_matrimonio SET parroquia=\"San Juan\", fechamatr=\"---\", "
            "codmunicipiomatr=0, direccionpadres=\"Calle \"\"Sol\"\"\", codmunicipiopadres=0, "
            "TelefonoPadres=\"---\", DiocesisMatrimonio=\"Madrid\"");
  EXPECT_THAT(
      sqlInsertar(TABLA_BAUTISMO, b),
      ::testing::StartsWith(
          "INSERT INTO bautismo (codpadres, codmadres, codmatrimonio, "
          "institucionsolicitud, fechabautismo, padrino, madrina, ministro, parroquia, "
          "codmunicipio, diocesis, notasmarginales, observaciones, codlibro, folio, numero, "
          "anulada, EdadPadrino, EdadMadrina, ParroquiaDomicilioPadrino, "
          "ParroquiaDomicilioMadrina, ProfesionPadrino, NaturalPadrino, EstatPadrino, "
          "ProfesionMadrina, NaturalMadrina, EstatMadrina ,MinistroCargo) VALUES (0, 0, 0, "
          "0, \"19990510\", "));
  EXPECT_THAT(sqlActualizar(TABLA_BAUTISMO_AL_ACTUALIZAR, b),
              ::testing::StartsWith("UPDATE bautismo SET codpadres = 0, codmadres = 0, "
                                    "codmatrimonio = 0, anulada = 0, institucionsolicitud"));
}

TEST_F(BaptismStore, NumericColumn_TakesZeroForDashes) {
  EXPECT_EQ(comoNumero("---"), "0");
  EXPECT_EQ(comoNumero(""), "0");
  EXPECT_EQ(comoNumero(" 12 "), "12");
  EXPECT_EQ(comoNumero("1; DELETE"), "0");
}

TEST_F(BaptismStore, NewEntries_GetParentRowsOfTheirOwn) {
  const std::int32_t libro = book("Nuevo", true, 3);
  cBautismo first = record("Luis", libro, 1, "1");
  first.EdadMadrina = "31";
  const std::int32_t one = store(first);
  const std::int32_t two = store(record("Eva", libro, 2, "2"));
  EXPECT_EQ(w.count("bautismo_padres"), 2);
  EXPECT_EQ(w.count("bautismo_madres"), 2);
  EXPECT_EQ(w.count("bautismo_matrimonio"), 2);
  EXPECT_NE(column(one, "codpadres"), column(two, "codpadres"));
  EXPECT_EQ(column(one, "EdadPadrino"), "0");
  EXPECT_EQ(column(one, "EdadMadrina"), "31");
  EXPECT_EQ(column(one, "nombre", "bautismo_hijo", "codbautismo"), "Luis");
  EXPECT_FALSE(w.con().inTransaction());
}

TEST_F(BaptismStore, List_IsOrderedByFolioAndValueAndFilledOnDemand) {
  const std::int32_t libro = book("Antiguo", false, 1);
  store(record("B", libro, 1, "10"));
  store(record("A", libro, 1, "9"));
  const std::int32_t lost = store(record("C", libro, 2, "11"));
  w.con().Execute("DELETE * FROM bautismo_madres WHERE idmadres=" + column(lost, "codmadres"));

  ColeccionBautismo items;
  cBaseDatos db(w.contexto);
  ASSERT_TRUE(db.GrabarBasedatosColeccion(w.con(), libro, items));
  ASSERT_EQ(items.size(), 2u);  // an entry that lost a shared row does not show
  EXPECT_EQ(items[0].NombreHijo, "A");
  EXPECT_EQ(items[0].NumeroBautismo, "9");
  EXPECT_TRUE(items[0].Estado);
  EXPECT_EQ(items[0].SexoHijo, "");

  ASSERT_TRUE(db.ActualizarColeccion(w.con(), items[0].IDBautismo, items, 0));
  EXPECT_EQ(items[0].SexoHijo, "Hombre");
  EXPECT_EQ(items[0].NombrePadres, "Juan");
  EXPECT_EQ(items[0].CodPoblacionPadres, town);
  EXPECT_EQ(items[0].IDPadres, items[0].CodPadres);
  EXPECT_FALSE(db.ActualizarColeccion(w.con(), 99999, items, 0));
}

TEST_F(BaptismStore, Update_WritesOnlyTheSharedRowsThatAreFlagged) {
  const std::int32_t libro = book("Nuevo", true, 3);
  const std::int32_t id = store(record("Luis", libro, 1, "1"));
  ColeccionBautismo items(1);
  cBaseDatos db(w.contexto);
  ASSERT_TRUE(db.ActualizarColeccion(w.con(), id, items, 0));
  cBautismo& b = items[0];
  b.Estado = true;
  b.Operacion = cCOperacion::EDITAR;
  b.NombrePadres = "Pedro";
  b.NombreMadres = "Luisa";
  b.NombreHijo = "Carlos";
  b.CambioPadre = true;
  bool jump = false;
  ASSERT_TRUE(db.GrabarColeccionBasesDatos(w.con(), items, jump));
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_padres"), "Pedro");
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_madres"), "Ana");
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_hijo"), "Carlos");
}

TEST_F(BaptismStore, Deleting_SparesSharedRowsThroughTheStoreButNotThroughTheFacade) {
  const std::int32_t libro = book("Antiguo", false, 1);
  const std::int32_t one = store(record("Luis", libro, 1, "1"));
  const std::int32_t two = store(record("Eva", libro, 1, "2"));
  const std::int32_t three = store(record("Iván", libro, 1, "3"));
  w.con().Execute("UPDATE bautismo SET codpadres=" + column(one, "codpadres"));
  const std::int64_t fathers = w.count("bautismo_padres");

  ASSERT_TRUE(cBaseDatos(w.contexto).BorrarPartidaBautismo(w.con(), three));
  EXPECT_EQ(w.count("bautismo_padres"), fathers);  // two others still use it
  EXPECT_EQ(w.count("bautismo_madres"), 2);
  EXPECT_EQ(w.value("SELECT FolioSiguiente FROM Libro_Bautismo"), "1");

  w.user.expectMessage("¿Está seguro que desea eliminar la partida?", Answer::Yes);
  borrarPreguntando(w.contexto, w.con(), two, BAUTISMO);
  EXPECT_EQ(w.count("bautismo_padres"), fathers - 1);
  ColeccionBautismo items;
  ASSERT_TRUE(cBaseDatos(w.contexto).GrabarBasedatosColeccion(w.con(), libro, items));
  EXPECT_TRUE(items.empty());  // the entry left has lost its father's row
  EXPECT_EQ(w.count("bautismo"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BaptismStore, Item_IsStoredOnceAndOnlyIfItsMarksSaySo) {
  const std::int32_t libro = book("Nuevo", true, 3);
  ColeccionBautismo items{record("Luis", libro, 1, "1"), record("Eva", libro, 2, "2")};
  items[1].Operacion = cCOperacion::Borrar;  // added and taken back before it was stored
  bool jump = false;
  cBaseDatos db(w.contexto);
  ASSERT_TRUE(db.GrabarColeccionBasesDatos(w.con(), items, jump));
  ASSERT_TRUE(db.GrabarColeccionBasesDatos(w.con(), items, jump));
  EXPECT_EQ(w.count("bautismo"), 1);
  items[0].Operacion = cCOperacion::Borrar;
  ASSERT_TRUE(db.GrabarColeccionBasesDatos(w.con(), items, jump));
  EXPECT_EQ(w.count("bautismo"), 0);
}

// A draft may bring back the key of an entry that has been removed or completed since.
TEST_F(BaptismStore, ItemWithTheKeyOfAnotherEntry_IsStoredAnewAndLeavesThatOneAlone) {
  const std::int32_t libro = book("Nuevo", true, 3);
  const std::int32_t whole = store(record("Eva", libro, 1, "1"));
  cBaseDatos db(w.contexto);
  for (const std::int32_t key : {whole, whole + 100}) {
    ColeccionBautismo items{record("Luis", libro, 2, "2")};
    items[0].IDBautismo = key;
    ColeccionBautismo dropped = items;
    EXPECT_TRUE(db.RetirarAMedias(w.con(), dropped));
    bool jump = false;
    EXPECT_TRUE(db.GrabarColeccionBasesDatos(w.con(), items, jump));
    EXPECT_EQ(column(items[0].IDBautismo, "nombre", "bautismo_hijo", "codbautismo"), "Luis");
    EXPECT_EQ(column(items[0].IDBautismo, "folio"), "2");
  }
  EXPECT_EQ(column(whole, "nombre", "bautismo_hijo", "codbautismo"), "Eva");
  EXPECT_EQ(w.count("bautismo"), 3);
  EXPECT_EQ(w.count("bautismo_hijo"), 3);
}

TEST_F(BaptismStore, FailedInsert_IsReportedAndLeavesNoTransactionOpen) {
  const std::int32_t libro = book("Nuevo", true, 3);
  for (const char* statement : {"INSERT INTO bautismo_madres", "SELECT MAX(IDMatrimonio)", "COMMIT",
                                "INSERT INTO bautismo (", "INSERT INTO bautismo_hijo"}) {
    auto* faults = store::FailingEngine::wrap(w.con());
    faults->failOn(statement, store::ErrorKind::DiskFull);
    const std::size_t told = w.user.messages().size();
    w.user.answerAnything(Answer::Ok);
    cBautismo b = record("Luis", libro, 1, "1");
    EXPECT_FALSE(cBaseDatos(w.contexto).AltaPartidaBautismo(w.con(), b)) << statement;
    ASSERT_EQ(w.user.messages().size(), told + 1) << statement;
    EXPECT_THAT(w.user.messages().back().text, ::testing::HasSubstr("AltaPartidaBautismo"));
    EXPECT_FALSE(w.con().inTransaction()) << statement;
  }
}

}  // namespace fidaleon::tests
