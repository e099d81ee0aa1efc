// New and old entries through the dialog, from the tree and from a book's list.

#include "registers/BaptismWorld.h"

namespace fidaleon::tests {

class NewBaptism : public BaptismWorld {};

TEST_F(NewBaptism, UsualEntry_IsStoredAndFollowedByTheNext) {
  book("Libro 1", true, 3);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Agregar partida de bautismo nueva");
    EXPECT_FALSE(d.visible("cmdBautismo(2)"));
    chooseBook(d, "Libro 1");
    EXPECT_EQ(d.text("txtLibro(1)"), "1");
    EXPECT_EQ(d.text("txtLibro(2)"), "1");
    EXPECT_TRUE(d.locked("txtLibro(1)"));
    typeChild(d, "Luis");
    EXPECT_EQ(d.caption(), "Agregar partida de bautismo nueva. Folio:1 número:1");
    EXPECT_EQ(d.text("adtpBautismo(2)"), "22/11/2026");
    d.choose("cboBautismo(20)", "Hombre");
    d.type("txtHoraNac", "9:05");
    d.choose("cboBautismo(0)", "Madrid");
    d.choose("cboBautismo(1)", "Alcalá de Henares");
    typeParents(d);
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::Yes);
    accept(d);
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    EXPECT_EQ(d.text("txtBautismo(7)"), "");
    EXPECT_EQ(d.get<forms::TabStrip>("mstBautismo").tab(), 0);
    cancel(d);
  });
  EXPECT_EQ(w.count("bautismo"), 1);
  EXPECT_EQ(w.value("SELECT Folio FROM bautismo"), "1");
  EXPECT_EQ(w.value("SELECT FechaBautismo FROM bautismo"), "20261122");
  EXPECT_EQ(w.value("SELECT Padrino FROM bautismo"), "---");
  EXPECT_EQ(w.value("SELECT Sexo FROM bautismo_hijo"), "Hombre");
  EXPECT_EQ(w.value("SELECT HoraNac FROM bautismo_hijo"), "09:05");
  EXPECT_EQ(w.value("SELECT CodMunicipioNac FROM bautismo_hijo"), std::to_string(town));
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_madres"), "Ana");
  EXPECT_EQ(w.contexto.leerAjuste("ultimos", "ultimos_Institucion"), "San Pedro");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, RequiredFields_AreAskedForOneByOne) {
  book("Libro 1", true, 3);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    w.user.expectMessage("Falta rellenar el campo «NOMBRE».");
    accept(d);
    EXPECT_EQ(d.focused(), "txtBautismo(7)");
    d.type("txtBautismo(7)", "Luis");
    w.user.expectMessage("Falta rellenar el campo «PRIMER APELLIDO».");
    accept(d);
    EXPECT_EQ(d.focused(), "txtBautismo(8)");
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
    EXPECT_EQ(d.text("txtBautismo(9)"), "");
    cancel(d);
  });
  EXPECT_EQ(w.count("bautismo"), 0);
  EXPECT_EQ(w.count("bautismo_padres"), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, WithoutInstitutionOrBook_TabsAndAcceptanceAreRefused) {
  book("Libro 1", true, 3);
  book("Cerrado", true, 3, "19900101", true);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    w.user.expectMessage(
        "¡Antes de introducir datos en la partida, tiene que elegir una Institución!");
    d.tab("mstBautismo", 1);
    EXPECT_EQ(d.get<forms::TabStrip>("mstBautismo").tab(), 0);
    EXPECT_EQ(d.focused(), "cboBautismo(22)");
    d.choose("cboBautismo(22)", "San Pedro");
    EXPECT_EQ(d.get<forms::ComboBox>("cboBautismo(23)").listCount(), 1);  // no closed book
    w.user.expectMessage("¡Antes de introducir datos en la partida, tiene que elegir un libro!");
    accept(d);
    EXPECT_EQ(d.focused(), "cboBautismo(23)");
    cancel(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, SameDataAgain_AsksTheExistenceQuestion) {
  book("Libro 1", true, 3);
  const std::string again =
      "La partida de Luis García Pérez ya existe en el libro correspondiente, ¿Quiere continuar?";
  const auto enter = [&](FormDriver& d) {
    typeChild(d, "Luis");
    typeParents(d);
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
  };
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    enter(d);
    w.user.expectMessage(FURTHER, Answer::Yes);
    accept(d);
    w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) { hits.click("cmdBoton(1)"); });
    enter(d);
    w.user.expectMessage(again, Answer::No);
    accept(d);
    EXPECT_FALSE(d.closed());
    d.tab("mstBautismo", frmPartidaBautismo::TAB_PADRE);
    d.type("txtBautismo(33)", "600 000 000");         // another telephone, another father
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);  // no list has a choice yet
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.count("bautismo"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, PageLimitPassed_IsRefusedUntilComputedAnew) {
  const std::int32_t libro = book("Libro 1", true, 3);
  store(record("Luis", libro, 1, "1"));
  w.contexto.guardarAjuste("documentos", "DOCUMENTOS_MAXPAGLIBRO", "1");
  const char* limit = "¡Ha llegado al límite de folios establecidos para un libro!";
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    w.user.expectMessage(limit);
    chooseBook(d, "Libro 1");
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    typeChild(d, "Eva", "Otro", "Más");
    w.user.expectMessage(limit);
    accept(d);
    w.contexto.guardarAjuste("documentos", "DOCUMENTOS_MAXPAGLIBRO", "5");
    d.tab("mstBautismo", 0);
    d.choose("cboBautismo(23)", "Libro 1");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.count("bautismo"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, AnyText_IsKeptWithoutBreakingTheStatementOrTheField) {
  book("Libro 1", true, 3);
  const std::string full = "\"" + std::string(253, 'x') + "\"";
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Jo\"sé");
    d.paste("txtBautismo(7)", "José \"Pepe\" 👶");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
    d.paste("txtBautismo(31)", "Ermita \"La Luz\"\x01; DELETE * FROM bautismo");
    d.paste("txtBautismo(32)", full);
    d.tab("mstBautismo", frmPartidaBautismo::TAB_NOTAS);
    d.paste("txtBautismo(23)", "Línea 1\nΔοκιμή \"dos\"");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_hijo"), "José Pepe 👶");
  EXPECT_EQ(w.value("SELECT Parroquia FROM bautismo"), "Ermita ''La Luz''; DELETE * FROM bautismo");
  EXPECT_EQ(w.value("SELECT Diocesis FROM bautismo"), "'" + full.substr(1, 253) + "'");
  EXPECT_EQ(w.value("SELECT NotasMarginales FROM bautismo"), "Línea 1\r\nΔοκιμή ''dos''");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, FailingStore_KeepsTheDialogAndWhatWasTyped) {
  book("Libro 1", true, 3);
  auto* faults = store::FailingEngine::wrap(w.con());
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Luis");
    faults->failOn("INSERT INTO bautismo_padres", store::ErrorKind::DiskFull);
    w.user.answerAnything(Answer::Yes);
    accept(d);
    EXPECT_FALSE(d.closed());
    EXPECT_EQ(d.text("txtBautismo(7)"), "Luis");
    EXPECT_THAT(w.user.messages().back().text, ::testing::HasSubstr("AltaPartidaBautismo"));
    EXPECT_EQ(w.count("bautismo"), 0);
    accept(d);
    cancel(d);
  });
  EXPECT_EQ(w.count("bautismo"), 1);
  EXPECT_EQ(w.user.hourglassDepth(), 0);
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

TEST_F(NewBaptism, EntryWithoutItsChild_IsTakenBackWhenTheDialogCloses) {
  book("Libro 1", true, 3);
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Yes);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Eva");
    faults->failOn("INSERT INTO bautismo_hijo", store::ErrorKind::DiskFull);
    accept(d);
    EXPECT_EQ(w.count("bautismo"), 1);
    EXPECT_FALSE(w.con().inTransaction());
    cancel(d);
  });
  for (const char* table : {"bautismo", "bautismo_padres", "bautismo_madres"})
    EXPECT_EQ(w.count(table), 0) << table;
}

TEST_F(NewBaptism, StoreThatCannotCommit_KeepsNothingAndStoresOnceWhenTriedAgain) {
  book("Libro 1", true, 3);
  w.user.answerAnything(Answer::Yes);
  for (const int step : {1, 2, 3}) {  // the parents' rows, the entry, all of it
    auto* faults = store::FailingEngine::wrap(w.con());
    w.con().Execute("DELETE * FROM bautismo");
    open(cCOperacion::ANADIR, [&](FormDriver& d) {
      chooseBook(d, "Libro 1");
      typeChild(d, "Eva");
      faults->failOn("COMMIT", store::ErrorKind::DiskFull, step);
      accept(d);
      EXPECT_FALSE(d.closed());
      EXPECT_EQ(w.count("bautismo"), 0) << step;
      accept(d);
      EXPECT_EQ(w.count("bautismo"), 1) << step;
      cancel(d);
    });
    EXPECT_EQ(w.count("bautismo"), 1) << step;
  }
}

TEST_F(NewBaptism, BookAndTownDeletedMeanwhile_AreNamedAndOthersCanBeChosen) {
  const std::int32_t libro = book("Libro 1", true, 3);
  for (const char* other : {"Libro 2", "Libro 3"}) book(other, true, 3);
  const std::int32_t meco = w.municipio("Meco", "Madrid");
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typeChild(d, "Luis");
    d.choose("cboBautismo(0)", "Madrid");
    d.choose("cboBautismo(1)", "Meco");
    w.con().Execute("DELETE * FROM Libro_Bautismo WHERE IDLibroBautismo=" + std::to_string(libro));
    w.con().Execute("DELETE * FROM Municipio WHERE IDMunicipio=" + std::to_string(meco));
    w.user.expectMessage(gone("el libro «Libro 1»\nla población «Meco»"));
    accept(d);
    EXPECT_EQ(d.focused(), "cboBautismo(23)");
    d.choose("cboBautismo(23)", "Libro 2");
    EXPECT_EQ(d.text("txtLibro(1)"), "1");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
    EXPECT_EQ(d.text("txtBautismo(7)"), "Luis");
    EXPECT_EQ(d.text("cboBautismo(0)"), "Madrid");
    EXPECT_EQ(d.text("cboBautismo(1)"), "");
    d.choose("cboBautismo(1)", "Alcalá de Henares");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes, [&] {
      w.con().Execute("DELETE * FROM Libro_Bautismo WHERE Nombre=\"Libro 2\"");
    });
    w.user.expectMessage(gone("el libro «Libro 2»"));
    accept(d);
    d.choose("cboBautismo(23)", "Libro 3");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(w.value("SELECT CodMunicipioNac FROM bautismo_hijo"), std::to_string(town));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, FailedProposal_IsToldOnceAndLeavesNoPositionThatCouldBeTaken) {
  const std::int32_t libro = book("Libro 1", true, 3);
  store(record("Luis", libro, 1, "1"));
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Yes);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    typeChild(d, "Eva", "Otro", "Más");
    faults->failOn("SELECT folio,numero FROM bautismo");
    accept(d);
    EXPECT_EQ(w.user.messages().size(), 3u) << "two questions and one error";
    EXPECT_EQ(d.text("txtLibro(1)"), "");
    typeChild(d, "Ana", "Otra", "Más");
    accept(d);
    EXPECT_EQ(w.user.messages().back().text, "¡Debe introducir datos en el campo folio!");
    cancel(d);
  });
  EXPECT_EQ(w.count("bautismo"), 2);
}

TEST_F(NewBaptism, BookAndTownAddedFromInside_CanBeChosenAtOnce) {
  book("Libro 1", false, 3);
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    d.choose("cboBautismo(22)", "San Pedro");
    w.user.expectForm("frmAltaLibroBautismo", [](FormDriver& alta) {
      alta.click("optAntiguo");
      alta.choose("cboTipoNombre", "Abierto");
      alta.type("txtNombreLibro", "Libro viejo ");
      alta.choose("cboFormato", "Una partida por folio");
      alta.type("adtpAltaLibro", "01/01/1900");
      alta.click("cmdBoton(0)");
    });
    d.click("cmdAltaLibro");
    EXPECT_EQ(d.text("cboBautismo(23)"), "Libro viejo");
    const auto other = w.otherSession();
    FDAPI::DefinicionBloqueo added;
    added.strTabla = "Libro_Bautismo";
    added.strRegistro = w.value("SELECT MAX(IDLibroBautismo) AS ID FROM Libro_Bautismo");
    added.conBd = &w.con();
    other->DefinirBloqueo(added);
    w.otherUser.answerAnything(Answer::Ok);
    EXPECT_NE(other->lngEfectuarBloqueos(), 0) << "nobody deletes the book under the entry";
    EXPECT_EQ(d.text("txtLibro(1)"), "1");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
    d.choose("cboBautismo(0)", "Madrid");
    d.choose("cboBautismo(1)", "Alcalá de Henares");
    w.user.expectForm("frmMunicipio", [](FormDriver& municipio) {
      municipio.type("txtNombre", "Meco");
      municipio.choose("cboProvincia", "Madrid");
      municipio.click("cmdBoton(0)");
    });
    d.click("cmdAltaPoblacion");
    EXPECT_EQ(d.text("cboBautismo(1)"), "Alcalá de Henares");
    d.choose("cboBautismo(1)", "Meco");
    w.user.expectForm("frmProvincia", [](FormDriver& provincia) { provincia.escape(); });
    d.click("cmdAltaProvincia");
    EXPECT_EQ(d.text("cboBautismo(1)"), "Meco");
    d.tab("mstBautismo", 0);
    w.user.expectForm("frmInstitucion", [](FormDriver& institucion) { institucion.escape(); });
    d.click("cmdAltaInstitucion");
    EXPECT_EQ(d.text("cboBautismo(22)"), "San Pedro");
    EXPECT_EQ(d.text("cboBautismo(23)"), "Libro viejo");
    cancel(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(NewBaptism, MarginalNotes_WarnOnceUntilTheyBecomeShorter) {
  book("Libro 1", true, 3);
  const char* warning =
      "El campo de notas marginales ha sobrepasado el límite máximo \n"
      "establecido para los documentos. Si continúa \n"
      "introduciendo datos puede ser que algunos de los informes se impriman en varias hojas.";
  std::string lines;
  for (int i = 0; i < 42; ++i) lines += "línea\r\n";
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_NOTAS);
    d.paste("txtBautismo(23)", lines.substr(0, lines.size() - 2));  // 42 lines are the limit
    w.user.expectMessage(warning);
    d.paste("txtBautismo(23)", lines + "más");
    d.paste("txtBautismo(23)", lines + "más y más");
    d.paste("txtBautismo(23)", lines);  // shorter: the last line is empty, and counts
    w.user.expectMessage(warning);
    w.user.printer = false;
    d.paste("txtBautismo(23)", "corto");
    d.paste("txtBautismo(23)", lines + "sin impresora");
    w.user.printer = true;
    d.paste("txtBautismo(23)", lines + "con impresora");
    cancel(d);
  });
  EXPECT_EQ(w.user.messages().size(), 3u);
}

class OldBaptism : public BaptismWorld {};

TEST_F(OldBaptism, TypedPosition_IsCheckedOnLeavingTheFirstTab) {
  const std::int32_t libro = book("Antiguo", false, 2);
  store(record("A", libro, 1, "1"));
  store(record("B", libro, 1, "2"));
  store(record("C", libro, 2, "12"));
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    EXPECT_FALSE(d.locked("txtLibro(1)"));
    d.type("txtLibro(1)", "1");
    w.user.expectMessage(
        "¡No puede introducir ninguna partida en el folio 1 porque ya hay 2 partidas en él!");
    d.tab("mstBautismo", 1);
    EXPECT_EQ(d.focused(), "txtLibro(1)");
    d.type("txtLibro(1)", "2");
    d.type("txtLibro(2)", "12");
    const char* taken =
        "La partida que va a introducir coincide con otra. El número se reemplazará por el 12a "
        "¿Desea continuar?";
    w.user.expectMessage(taken, Answer::No);
    d.tab("mstBautismo", 1);
    EXPECT_EQ(d.get<forms::TabStrip>("mstBautismo").tab(), 0);
    w.user.expectMessage(taken, Answer::Yes);
    d.tab("mstBautismo", 1);
    EXPECT_EQ(d.text("txtLibro(2)"), "12a");
    EXPECT_EQ(d.caption(), "Agregar partida de bautismo antigua. Folio:2 número:12a");
    typeChild(d, "Eva", "Otro", "Más");
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.count("bautismo WHERE Folio=2 AND Numero=\"12a\""), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(OldBaptism, NumberThatStandsInTheBook_IsSaidUnderTheFieldAndTakenAllTheSame) {
  const std::int32_t libro = book("Antiguo", false, 2);
  for (const char* numero : {"9", "10"}) store(record(std::string("N") + numero, libro, 1, numero));
  const auto line = [](FormDriver& d) {
    return d.visible("lblNumeroRepetido") ? d.text("lblNumeroRepetido") : "";
  };
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    EXPECT_EQ(d.text("txtLibro(2)"), "10") << "by the text, 9 is above 10";
    EXPECT_EQ(line(d), "El 10 ya está en el folio 1");
    d.type("txtLibro(2)", "11");
    EXPECT_EQ(line(d), "");
    d.type("txtLibro(2)", "9");
    EXPECT_EQ(line(d), "El 9 ya está en el folio 1");
    typeChild(d, "Eva", "Otro", "Más");
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  const std::int32_t id = std::stoi(w.value("SELECT IDBautismo FROM bautismo WHERE Folio=2"));
  open(
      cCOperacion::EDITAR,
      [&](FormDriver& d) {
        EXPECT_EQ(line(d), "El 9 ya está en el folio 1") << "not in its own place";
        cancel(d);
      },
      id);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(OldBaptism, NumberOfAnotherForm_IsRefusedWhenTypedAndKeptWhenStored) {
  const std::int32_t libro = book("Antiguo", false, 3);
  const std::int32_t id = store(record("A", libro, 1, "12 bis"));
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    EXPECT_EQ(d.text("txtLibro(2)"), "13");
    d.type("txtLibro(2)", "12 bis");
    EXPECT_EQ(d.text("txtLibro(2)"), "12b");
    EXPECT_EQ(w.user.beeps(), 3);
    d.paste("txtLibro(2)", "12 bis");
    EXPECT_EQ(d.text("txtLibro(2)"), "12b");
    cancel(d);
  });
  open(
      cCOperacion::EDITAR,
      [&](FormDriver& d) {
        EXPECT_EQ(d.text("txtLibro(2)"), "12 bis");
        d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
        d.type("txtBautismo(7)", "B");
        accept(d);
      },
      id);
  EXPECT_EQ(column(id, "Numero"), "12 bis");
  ColeccionBautismo items{record("A", libro, 1, "12 bis")};
  openFromList(cCOperacion::ANADIR, libro, items, [](FormDriver& d) {
    EXPECT_EQ(d.text("txtLibro(2)"), "13");
    cancel(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(OldBaptism, LaterDate_MovesTheBookForwardAndAnnulmentIsStored) {
  book("Antiguo", false, 3, "19500101");
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    d.type("txtLibro(1)", "");
    w.user.expectMessage("¡Debe introducir datos en el campo folio!");
    d.focus("txtLibro(2)");
    EXPECT_EQ(d.focused(), "txtLibro(1)");
    d.type("txtLibro(1)", "3");
    typeChild(d, "Eva");
    d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTISMO);
    d.type("adtpBautismo(2)", "5/7/1961");
    d.click("cmdBautismo(2)");
    EXPECT_EQ(d.text("cmdBautismo(2)"), "&Validar");
    EXPECT_TRUE(d.visible("lblPartidaAnulada"));
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.value("SELECT FechaCreacion FROM Libro_Bautismo"), "19610705");
  EXPECT_EQ(w.count("bautismo WHERE Anulada=true AND FechaBautismo=\"19610705\""), 1);
  EXPECT_EQ(w.value("SELECT FolioSiguiente FROM Libro_Bautismo"), "4");
  EXPECT_SCRIPT_DONE(w.user);
}

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

TEST_F(OldBaptism, EmptyPositionWithoutABook_DoesNotBarTheWayToTheLists) {
  book("Antiguo", false, 3);
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    d.choose("cboBautismo(22)", "San Pedro");
    d.focus("txtLibro(1)");
    w.user.expectMessage("¡Debe introducir datos en el campo folio!");
    d.focus("cboBautismo(23)");
    EXPECT_EQ(d.focused(), "cboBautismo(23)");
    d.choose("cboBautismo(23)", "Antiguo");
    EXPECT_EQ(d.text("txtLibro(1)"), "1");
    cancel(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(OldBaptism, JumpToTheNextHole_IsTold) {
  const std::int32_t libro = book("Antiguo", false, 3);
  store(record("A", libro, 1, "1"));
  store(record("B", libro, 3, "3"));
  w.con().Execute("UPDATE Libro_Bautismo SET FolioSiguiente=2, NumeroSiguiente=\"2\"");
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    typeChild(d, "Eva", "Otro", "Más");
    w.user.expectMessage(FURTHER, Answer::Yes);
    w.user.expectMessage(
        "¡Se ha producido un salto, la siguiente partida a introducir es \n"
        "la correspondiente al folio 4, número 4!");
    accept(d);
    EXPECT_EQ(d.text("txtLibro(1)"), "4");
    cancel(d);
  });
  EXPECT_EQ(w.count("bautismo WHERE FechaBautismo=\"---\" AND EdadPadrino=\"---\""), 1);
  EXPECT_EQ(w.value("SELECT FechaCreacion FROM Libro_Bautismo"), "19900101");
  EXPECT_SCRIPT_DONE(w.user);
}

class BaptismOfAList : public BaptismWorld {};

TEST_F(BaptismOfAList, NewItems_StayInTheCollectionAndTakeTheNextPositions) {
  const std::int32_t libro = book("Libro 1", true, 3);
  ColeccionBautismo items;
  openFromList(cCOperacion::ANADIR, libro, items, [&](FormDriver& d) {
    EXPECT_TRUE(d.locked("cboBautismo(22)"));
    EXPECT_TRUE(d.locked("cboBautismo(23)"));
    EXPECT_FALSE(d.enabled("cmdAltaInstitucion"));
    typeChild(d, "Luis");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::Yes);
    accept(d);
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    typeChild(d, "Luis");
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(
        "La partida de Luis García Pérez ya existe en el libro correspondiente, "
        "¿Quiere continuar?",
        Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  EXPECT_EQ(w.count("bautismo"), 0);
  ASSERT_EQ(items.size(), 2u);
  EXPECT_EQ(items[1].FolioBautismo, "2");
  EXPECT_FALSE(items[1].Estado);
  EXPECT_EQ(items[1].Operacion, cCOperacion::ANADIR);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BaptismOfAList, OldBook_TurnsTheOperationToAntigua) {
  const std::int32_t libro = book("Antiguo", false, 3);
  ColeccionBautismo items;
  openFromList(cCOperacion::ANADIR, libro, items, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Agregar partida de bautismo antigua. Folio:1 número:1");
    EXPECT_FALSE(d.locked("txtLibro(1)"));
    typeChild(d, "Luis");
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);
  });
  ASSERT_EQ(items.size(), 1u);
  EXPECT_EQ(items[0].Operacion, cCOperacion::ANTIGUA);
  EXPECT_SCRIPT_DONE(w.user);
}

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
