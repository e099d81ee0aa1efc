// Correcting an entry, the look-up of a family, requests and editions.

#include "registers/BaptismWorld.h"

namespace fidaleon::tests {

class EditedBaptism : public BaptismWorld {
 protected:
  std::int32_t libro = book("Libro 1", true, 3);
  std::int32_t id = store(record("Luis", libro, 1, "1"));
};

TEST_F(EditedBaptism, Correction_ReachesTheRowsItBelongsTo) {
  open(
      cCOperacion::EDITAR,
      [&](FormDriver& d) {
        EXPECT_EQ(d.caption(), "Propiedades de partida de bautismo nueva. Folio:1 número:1");
        EXPECT_TRUE(d.locked("txtLibro(1)"));
        EXPECT_TRUE(d.locked("cboBautismo(22)"));
        EXPECT_EQ(d.text("cboBautismo(3)"), "Alcalá de Henares");
        EXPECT_EQ(d.text("adtpBautismo(2)"), "10/05/1999");
        d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
        d.type("txtBautismo(7)", "Luis María");
        d.tab("mstBautismo", frmPartidaBautismo::TAB_MADRE);
        d.type("txtBautismo(35)", "600");
        accept(d);
      },
      id);
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_hijo"), "Luis María");
  EXPECT_EQ(w.value("SELECT TelefonoMadre FROM bautismo_madres"), "600");
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_padres"), "Juan");
  EXPECT_EQ(w.count("bautismo"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(EditedBaptism, QuotesOfOldData_AreNoHindrance) {
  w.con().Execute("UPDATE Libro_Bautismo SET Nombre='El \"Viejo\"'");
  w.con().Execute("UPDATE bautismo SET parroquia='\"La Luz\"'");
  w.con().Execute("UPDATE bautismo_padres SET abuela='Ana \"la\" d''Ors'");
  open(
      cCOperacion::EDITAR,
      [&](FormDriver& d) {
        d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
        d.type("txtBautismo(33)", "600");
        accept(d);
        EXPECT_TRUE(d.closed());
      },
      id);
  EXPECT_EQ(w.value("SELECT Abuela FROM bautismo_padres WHERE TelefonoPadre=\"600\""),
            "Ana \"la\" d'Ors");
  EXPECT_EQ(w.value("SELECT Parroquia FROM bautismo"), "\"La Luz\"");
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "El \"Viejo\"");
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    cancel(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(EditedBaptism, SexThatTheListDoesNotKnow_StaysAsItIs) {
  w.con().Execute("UPDATE bautismo_hijo SET sexo=\"Varón\"");
  open(
      cCOperacion::EDITAR,
      [](FormDriver& d) {
        EXPECT_EQ(d.text("cboBautismo(20)"), "");
        d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
        d.type("txtBautismo(7)", "Luis María");
        accept(d);
      },
      id);
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_hijo"), "Luis María");
  EXPECT_EQ(w.value("SELECT Sexo FROM bautismo_hijo"), "Varón");
}

TEST_F(EditedBaptism, StoredTextThatNoFieldCanShow_SurvivesAnEdit) {
  w.con().Execute("UPDATE bautismo_hijo SET horanac=\"al alba\", fechanac=\"1890\"");
  open(
      cCOperacion::EDITAR,
      [](FormDriver& d) {
        d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
        d.type("txtBautismo(10)", "Calle Real");
        accept(d);
      },
      id);
  EXPECT_EQ(w.value("SELECT HoraNac FROM bautismo_hijo"), "al alba");
  EXPECT_EQ(w.value("SELECT FechaNac FROM bautismo_hijo"), "1890");
  EXPECT_EQ(w.value("SELECT DireccionNac FROM bautismo_hijo"), "Calle Real");
  EXPECT_SCRIPT_DONE(w.user);
}

class Family : public BaptismWorld {
 protected:
  void SetUp() override {
    cBautismo first = record("Luis", libro, 1, "1");
    first.AbueloPadres = "Tomás García";
    first.CodPoblacionMatrMatrimonio = town;
    first.FechaMatrMatrimonio = "19980606";
    first.DireccionPadresMatrimonio = "Calle Mayor, 3";
    first.TelefonoPadre = "611";
    store(first);
  }
  std::int32_t libro = book("Libro 1", true, 3);
};

TEST_F(Family, SecondChild_TakesTheParentsOverIntoRowsOfItsOwn) {
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    w.user.expectForm("frmBuscaPadres", [&](FormDriver& hits) {
      EXPECT_EQ(hits.caption(), "Búsqueda de padres por García Pérez");
      auto& grid = hits.get<forms::Grid>("msgBusquedaPadres");
      ASSERT_EQ(grid.rowCount(), 1);
      EXPECT_EQ(grid.cell(1, 0), "Juan");
      EXPECT_EQ(grid.cell(1, 3), "Ana");
      w.user.expectForm("frmDetallePadres", [](FormDriver& details) {
        EXPECT_EQ(details.caption(), "Detalles de bautismo de un hermano del bautizado.");
        EXPECT_EQ(details.text("lblDetalle(4)"), "Matrimonio:");
        EXPECT_EQ(details.text("txtDetalle(0)"),
                  "Juan García, natural de Alcalá de Henares (Madrid)");
        EXPECT_EQ(details.text("txtDetalle(4)"),
                  "Se casaron el día 06/06/1998 en San Juan, Alcalá de Henares (Madrid)");
        EXPECT_EQ(details.text("txtDetalle(5)"), "Calle Mayor, 3");
        details.escape();
      });
      hits.click("cmdBoton(2)");
      grid.setColumnWidth(0, 2000);
      hits.click("cmdBoton(0)");
    });
    typeChild(d, "Eva");
    d.focus("txtBautismo(10)");  // leaves the pair of surnames
    d.focus("txtBautismo(9)");
    d.focus("txtBautismo(10)");  // the same pair is not looked for again
    EXPECT_EQ(d.text("txtBautismo(11)"), "Juan");
    EXPECT_EQ(d.text("txtBautismo(14)"), "Tomás García");
    EXPECT_EQ(d.text("cboBautismo(15)"), "Alcalá de Henares");
    EXPECT_EQ(d.text("adtpBautismo(1)"), "06/06/1998");
    EXPECT_EQ(d.text("txtBautismo(33)"), "");  // telephones are not taken over
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.count("bautismo_padres WHERE Abuelo=\"Tomás García\""), 2);
  EXPECT_EQ(w.count("bautismo_matrimonio WHERE FechaMatr=\"19980606\""), 2);
  EXPECT_EQ(w.settings.read("Fidaleon", "ana\\Castellano\\Grids\\BuscaPadres\\BuscaPadres", "0"),
            "2000");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(Family, SecondOfTwoChildren_IsFoundAsTheSameBaptism) {
  store(record("Eva", libro, 2, "2"));
  store(record("Iván", libro, 3, "3"));
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) {
      hits.row("msgBusquedaPadres", 2);
      hits.click("cmdBoton(0)");
    });
    typeChild(d, "Iván");
    d.choose("cboBautismo(20)", "Hombre");
    d.type("adtpBautismo(0)", "");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
    d.type("adtpBautismo(2)", "10/05/1999");
    w.con().Execute(
        "UPDATE bautismo SET padrino=\"---\", madrina=\"---\", ministro=\"---\", "
        "parroquia=\"---\", diocesis=\"---\"");
    w.con().Execute("UPDATE bautismo_hijo SET direccionnac=\"---\"");
    for (const char* table : {"padres", "madres"})
      w.con().Execute(std::string("UPDATE bautismo_") + table +
                      " SET abuelo=\"---\", abuela=\"---\" WHERE abuelo=\"\"");
    w.con().Execute(
        "UPDATE bautismo_padres SET abuela=\"---\", telefonopadre=\"---\", "
        "emailpadre=\"---\"");
    w.con().Execute("UPDATE bautismo_madres SET telefonomadre=\"---\", emailmadre=\"---\"");
    w.con().Execute(
        "UPDATE bautismo_matrimonio SET direccionpadres=\"---\" WHERE "
        "direccionpadres=\"\"");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(
        "La partida de Iván García Pérez ya existe en el libro correspondiente, "
        "¿Quiere continuar?",
        Answer::No);
    accept(d);
    d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
    d.type("txtBautismo(33)", "600 000 000");  // another telephone, another father
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

class SantiagoBaptism : public BaptismWorld {
 protected:
  SantiagoBaptism() : BaptismWorld(FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO) {}
};
class MenorcaBaptism : public BaptismWorld {
 protected:
  MenorcaBaptism() : BaptismWorld(FDAPI::cCAplicacion::APP_FIDALEON_MENORCA) {}
};

TEST_F(SantiagoBaptism, ParishesOfBaptismAndAgeOfSponsors_AreShownAndStored) {
  book("Libro 1", true, 3);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Luis");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
    d.type("txtSC(2)", "San Froilán");
    d.choose("cboBautismo(24)", "Madrid");
    d.choose("cboBautismo(25)", "Alcalá de Henares");
    d.type("txtSC(5)", "Santa Ana");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
    d.type("txtSC(8)", "4x2");
    EXPECT_FALSE(d.visible("txtSC(12)"));
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.value("SELECT PadreParroquiaBaut FROM bautismo_padres"), "San Froilán");
  EXPECT_EQ(w.value("SELECT PadreCodMunicipioParrBaut FROM bautismo_padres"), std::to_string(town));
  EXPECT_EQ(w.value("SELECT AbuelaPatParroquiaBaut FROM bautismo_padres"), "Santa Ana");
  EXPECT_EQ(w.value("SELECT EdadPadrino FROM bautismo"), "42");
  EXPECT_EQ(w.value("SELECT EdadMadrina FROM bautismo"), "---");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(MenorcaBaptism, SponsorsHaveTheirOwnFields) {
  book("Libro 1", true, 3);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Luis");
    EXPECT_FALSE(d.visible("txtSC(2)"));
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
    d.type("txtSC(13)", "Maestra");
    d.type("txtSC(15)", "Ciutadella");
    d.type("txtSC(17)", "casada");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.value("SELECT ProfesionMadrina FROM bautismo"), "Maestra");
  EXPECT_EQ(w.value("SELECT NaturalMadrina FROM bautismo"), "Ciutadella");
  EXPECT_EQ(w.value("SELECT EstatMadrina FROM bautismo"), "casada");
  EXPECT_EQ(w.value("SELECT EstatPadrino FROM bautismo"), "---");
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace fidaleon::tests
