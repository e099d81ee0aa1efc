// What is baptism's own in a new entry, from the tree and from a book's list.

#include "registers/BaptismWorld.h"

namespace fidaleon::tests {

class NewBaptism : public BaptismWorld {};

TEST_F(NewBaptism, FieldsOfAllTabs_ReachTheirRows) {
  book("Libro 1", true, 3);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Luis");
    d.choose("cboBautismo(20)", "Hombre");
    d.type("txtHoraNac", "9:05");
    d.choose("cboBautismo(0)", "Madrid");
    d.choose("cboBautismo(1)", "Alcalá de Henares");
    typeParents(d);
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.value("SELECT FechaBautismo FROM bautismo"), "20261122");
  EXPECT_EQ(w.value("SELECT Padrino FROM bautismo"), "---");
  EXPECT_EQ(w.value("SELECT Sexo FROM bautismo_hijo"), "Hombre");
  EXPECT_EQ(w.value("SELECT HoraNac FROM bautismo_hijo"), "09:05");
  EXPECT_EQ(w.value("SELECT CodMunicipioNac FROM bautismo_hijo"), std::to_string(town));
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_madres"), "Ana");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, BirthAndWeddingOfToday_AreAskedAboutUntilTheyAreTyped) {
  book("Libro 1", true, 3);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
    d.type("txtBautismo(7)", "Luis");
    d.type("txtBautismo(8)", "García");
    w.user.expectMessage(
        "La fecha de nacimiento y la fecha de la boda de los padres siguen siendo la de hoy "
        "(22/11/2026). ¿Es correcto?");
    d.enter();
    EXPECT_EQ(w.user.messages().back().byEnter, Answer::No);
    EXPECT_EQ(d.focused(), "adtpBautismo(0)");
    d.type("adtpBautismo(0)", "22/11/2026");  // today indeed
    w.user.expectMessage(
        "La fecha de la boda de los padres sigue siendo la de hoy (22/11/2026). ¿Es correcto?",
        Answer::Yes);
    w.user.expectMessage(EMPTY_FIELDS, Answer::No);
    accept(d);
    cancel(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, EntryWithoutItsChild_IsGoneOnWithWhenAcceptedAgain) {
  const std::int32_t libro = book("Libro 1", true, 3);
  store(record("Luis", libro, 1, "1"));
  const std::string brothersFather = w.value("SELECT IDPadres FROM bautismo_padres");
  auto* faults = store::FailingEngine::wrap(w.con());
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Eva", "Otro", "Más");
    faults->failOn("INSERT INTO bautismo_hijo", store::ErrorKind::DiskFull);
    w.user.answerAnything(Answer::Yes);
    accept(d);
    EXPECT_FALSE(d.closed());
    EXPECT_EQ(w.count("bautismo"), 2);
    // Meanwhile she finds the brother, whose rows must stay his.
    w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) { hits.click("cmdBoton(0)"); });
    typeChild(d, "Eva María");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
    d.type("txtBautismo(11)", "Pablo");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(w.count("bautismo"), 2);
  EXPECT_EQ(w.count("bautismo_padres"), 2);
  EXPECT_EQ(w.count("bautismo_hijo WHERE Nombre=\"Eva María\""), 1);
  EXPECT_EQ(w.count("bautismo_padres WHERE Nombre=\"Pablo\""), 1);
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_padres WHERE IDPadres=" + brothersFather), "Juan");
}

class OldBaptism : public BaptismWorld {};

TEST_F(OldBaptism, DatesThatCannotBe_AreNamedOnceAndNotRefused) {
  book("Antiguo", false, 3);
  const char* odd = "Hay fechas que no pueden ser. ¿Desea guardarlas así?";
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    typeChild(d, "Eva");
    d.type("adtpBautismo(0)", "6/7/1961");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_MATRIMONIO);
    d.type("adtpBautismo(1)", "1/1/1499");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
    d.type("adtpBautismo(2)", "23/11/2026");
    w.user.expectMessage(odd);
    accept(d);
    EXPECT_EQ(w.user.messages().back().below,
              "La fecha de la boda de los padres (01/01/1499) es anterior al año 1500.\n"
              "La fecha de bautismo (23/11/2026) es posterior a hoy.");
    EXPECT_EQ(d.focused(), "adtpBautismo(1)");
    d.type("adtpBautismo(1)", "");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
    d.type("adtpBautismo(2)", "5/7/1961");
    w.user.expectMessage(odd);
    accept(d);
    EXPECT_EQ(w.user.messages().back().below,
              "La fecha de nacimiento (06/07/1961) es posterior a la fecha de bautismo "
              "(05/07/1961).");
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.value("SELECT FechaNac FROM bautismo_hijo"), "19610706");
  EXPECT_SCRIPT_DONE(w.user);
}

class BaptismOfAList : public BaptismWorld {};

TEST_F(BaptismOfAList, EditedItems_KeepWhatIsStillToBeDoneToThem) {
  const std::int32_t libro = book("Antiguo", false, 3);
  const std::int32_t id = store(record("Luis", libro, 1, "1"));
  ColeccionBautismo items{cBautismo(), record("Eva", libro, 2, "2")};
  ASSERT_TRUE(cBaseDatos(w.contexto).ActualizarColeccion(w.con(), id, items, 0));
  items[0].Estado = true;
  const auto rename = [&](std::size_t position) {
    openFromList(
        cCOperacion::EDITAR, 0, items,
        [&](FormDriver& d) {
          d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
          d.type("txtBautismo(11)", "Pedro");
          accept(d);
        },
        position);
  };
  rename(0);
  rename(1);
  EXPECT_EQ(items[0].Operacion, cCOperacion::EDITAR);
  EXPECT_TRUE(items[0].CambioPadre);
  EXPECT_FALSE(items[0].CambioMadre);
  EXPECT_EQ(items[1].Operacion, cCOperacion::ANADIR);  // still to be added
  EXPECT_EQ(items[1].NombrePadres, "Pedro");
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_padres"), "Juan");
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace fidaleon::tests
