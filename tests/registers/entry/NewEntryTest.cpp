// New entries of any register through the dialog, from the tree.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

class NewEntry : public EntryWorld {};
INSTANTIATE_TEST_SUITE_P(Registers, NewEntry, EVERY_ENTRY, wordOf);

TEST_P(NewEntry, UsualOne_IsStoredAndFollowedByTheNext) {
  book("Libro 1");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), std::string(k.adds) + "nueva" + k.position) << "the only book";
    EXPECT_FALSE(d.visible(button(2)));
    EXPECT_TRUE(d.locked("txtLibro(1)"));
    typePerson(d, "Luis");
    EXPECT_EQ(d.caption(), std::string(k.adds) + "nueva" + k.position);
    tab(d, k.where.tab);
    d.type(text(k.where.index), "San Juan");
    tab(d, 0);
    chooseBook(d, "Libro 1");  // again: what was written stays
    tab(d, k.day.tab);
    d.type(date(k.day.index), "20/11/2026");
    acceptNew(d, Answer::Yes);
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    EXPECT_EQ(d.text(name()), "");
    EXPECT_EQ(d.text(text(k.where.index)), k.nextPlace);
    EXPECT_EQ(d.text(date(k.day.index)), &k.s == &CONFIRMACION ? "20/11/2026" : "22/11/2026");
    EXPECT_EQ(tab(d), k.nextAtName ? k.name.tab : 0);
    EXPECT_EQ(d.focused() == name(), k.nextAtName);
  });
  EXPECT_EQ(entries("Folio=1 AND Numero=\"1\" AND Parroquia=\"San Juan\""), 1);
  EXPECT_EQ(entries(), 1);
  EXPECT_EQ(w.contexto.leerAjuste("ultimos", "ultimos_Institucion"), "San Pedro");
}

TEST_P(NewEntry, RequiredFields_AreAskedForOneByOneAndBlanksAfterThem) {
  book("Libro 1");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    k.settle(d);
    w.user.expectMessage("Falta rellenar el campo «NOMBRE».");
    accept(d);
    EXPECT_EQ(d.focused(), name());
    d.type(name(), "Luis");
    w.user.expectMessage("Falta rellenar el campo «PRIMER APELLIDO».");
    accept(d);
    EXPECT_EQ(d.focused(), text(k.name.index + 1));
    d.type(text(k.name.index + 1), "García");
    w.user.expectMessage(k.blanks, Answer::No);
    accept(d);
    EXPECT_EQ(d.text(text(k.name.index + 2)), "");
  });
  EXPECT_EQ(entries(), 0);
}

TEST_P(NewEntry, WithoutInstitutionOrBook_TabsAndAcceptanceAreRefused) {
  book("Libro 1");
  book("Libro 2");
  book("Cerrado", true, 3, "19900101", true);
  w.institucion("Santa Ana");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), std::string(k.adds) + "nueva" + k.noPosition);
    w.user.expectMessage(
        std::string("¡Antes de introducir datos en la partida, tiene que elegir una ") +
        k.institutionWord + "!");
    tab(d, 1);
    EXPECT_EQ(tab(d), 0);
    EXPECT_EQ(d.focused(), list(k.institution));
    d.choose(list(k.institution), "San Pedro");
    EXPECT_EQ(d.get<forms::ComboBox>(list(k.book)).listCount(), 2);  // no closed book
    w.user.expectMessage("¡Antes de introducir datos en la partida, tiene que elegir un libro!");
    accept(d);
    EXPECT_EQ(d.focused(), list(k.book));
  });
}

TEST_P(NewEntry, WhatRepeats_IsOfferedAndTakenFromTheEntryBefore) {
  const std::int32_t only = book("Libro 1");
  for (int i = 1; i <= 5; ++i) entry("Luis", only, i, std::to_string(i));
  w.con().Execute(std::string("UPDATE ") + k.s.tablaPartidas + " SET Parroquia=\"San Juan\"");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    k.settle(d);
    tab(d, k.where.tab);
    d.focus(text(k.where.index));
    d.former();
    EXPECT_EQ(d.text(text(k.where.index)), "San Juan");
    EXPECT_THAT(d.offered(text(k.where.index), "JUÁ"), ElementsAre("San Juan"));
    tab(d, k.born.tab);
    d.takeOffer(list(k.born.index + 1), "alcala");
    EXPECT_EQ(d.text(list(k.born.index)), "Madrid");
    EXPECT_EQ(d.text(list(k.born.index + 1)), "Alcalá de Henares");
    typePerson(d, "Ana", "Garcia", "Pérez");
    tab(d, 0);
    EXPECT_THAT(d.get<forms::TextBox>(text(k.name.index + 1)).doubt(), HasSubstr("¿García?"));
    EXPECT_EQ(d.get<forms::TextBox>(text(k.name.index + 2)).doubt(), "");
  });
}

TEST_P(NewEntry, SamePersonAgain_AsksTheExistenceQuestion) {
  book("Libro 1");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Luis");
    acceptNew(d, Answer::Yes);
    if (&k.s == &BAUTISMO)  // finds itself
      w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) { hits.click("cmdBoton(1)"); });
    typePerson(d, "Luis");
    if (!k.asksOnce) w.user.expectMessage(k.blanks, Answer::Yes);
    w.user.expectMessage(std::string("La partida de Luis García Pérez") + k.secondPerson +
                             " ya existe en el libro correspondiente, ¿Quiere continuar?",
                         Answer::No);
    accept(d);
    EXPECT_FALSE(d.closed());
  });
  EXPECT_EQ(entries(), 1);
}

TEST_P(NewEntry, PageLimitPassed_IsRefusedUntilComputedAnew) {
  entry("Luis", book("Libro 1"), 1, "1");
  w.contexto.guardarAjuste("documentos", "DOCUMENTOS_MAXPAGLIBRO", "1");
  const char* limit = "¡Ha llegado al límite de folios establecidos para un libro!";
  w.user.expectMessage(limit);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
    typePerson(d, "Eva", "Otro", "Más");
    w.user.expectMessage(limit);
    accept(d);
    w.contexto.guardarAjuste("documentos", "DOCUMENTOS_MAXPAGLIBRO", "5");
    tab(d, 0);
    d.choose(list(k.book), "Libro 1");
    acceptNew(d, Answer::No);
  });
  EXPECT_EQ(entries(), 2);
}

TEST_P(NewEntry, Positions_FillTheFoliosAndPassOverWhatIsAnnulled) {
  const std::int32_t two = book("De dos", true, 2);
  const std::int32_t one = book("De una", true, 3);
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    const auto fill = [&](std::int32_t id, const char* title, int perFolio) {
      for (int n = 1; n <= 5; ++n) {
        chooseBook(d, title);
        const int folio = (n + perFolio - 1) / perFolio;
        EXPECT_EQ(d.text("txtLibro(1)"), std::to_string(folio)) << title;
        EXPECT_EQ(d.text("txtLibro(2)"), std::to_string(n)) << title;
        entry("Luis", id, folio, std::to_string(n));
        w.con().Execute(std::string("UPDATE ") + k.s.tablaPartidas + " SET Anulada=1");
      }
    };
    fill(two, "De dos", 2);
    fill(one, "De una", 1);
  });
}

TEST_P(NewEntry, AnyText_IsKeptWithoutBreakingTheStatementOrTheField) {
  book("Libro 1");
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Jo\"sé");
    d.paste(name(), "José \"Pepe\" 👶");
    tab(d, k.where.tab);
    d.paste(text(k.where.index), "Ermita \"La Luz\"\x01; DELETE * FROM bautismo");
    tab(d, k.notes.tab);
    d.paste(text(k.remarks), "Línea 1\nΔοκιμή \"dos\"");
    acceptNew(d, Answer::No);
  });
  EXPECT_EQ(w.value(std::string("SELECT Nombre FROM ") + k.person),
            &k.s == &BAUTISMO ? "José Pepe 👶" : "José ''Pepe'' 👶");
  EXPECT_EQ(value("Parroquia"), "Ermita ''La Luz''; DELETE * FROM bautismo");
  EXPECT_EQ(value("Observaciones"), "Línea 1\r\nΔοκιμή ''dos''");
}

TEST_P(NewEntry, WithoutAllItsRows_IsTakenBackWhenTheDialogClosesOrGoneOnWith) {
  book("Libro 1");
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Yes);
  const auto fail = [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Eva");
    faults->failOn(std::string("INSERT INTO ") + k.lastRow, store::ErrorKind::DiskFull);
    accept(d);
    EXPECT_FALSE(d.closed());
    EXPECT_EQ(d.text(name()), "Eva");
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("AltaPartida" + word()));
    EXPECT_EQ(entries(), 1);
    EXPECT_FALSE(w.con().inTransaction());
  };
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) { fail(d); });
  EXPECT_EQ(entries(), 0);
  EXPECT_EQ(w.count("bautismo_padres"), 0);
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    fail(d);
    d.type(name(), "Eva María");
    accept(d);
  });
  EXPECT_EQ(entries(), 1);
  EXPECT_EQ(w.count(std::string(k.person) + " WHERE Nombre=\"Eva María\""), 1);
  EXPECT_EQ(w.count(k.lastRow), 1);
  EXPECT_EQ(w.user.hourglassDepth(), 0);
}

TEST_P(NewEntry, StoreThatCannotCommit_KeepsNothingAndStoresOnceWhenTriedAgain) {
  book("Libro 1");
  w.user.answerAnything(Answer::Yes);
  for (int step = 1; step <= k.commits; ++step) {
    auto* faults = store::FailingEngine::wrap(w.con());
    w.con().Execute(std::string("DELETE * FROM ") + k.s.tablaPartidas);
    openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
      chooseBook(d, "Libro 1");
      typePerson(d, "Eva");
      faults->failOn("COMMIT", store::ErrorKind::DiskFull, step);
      accept(d);
      EXPECT_FALSE(d.closed());
      EXPECT_EQ(entries(), 0) << step;
      accept(d);
      EXPECT_EQ(entries(), 1) << step;
    });
    EXPECT_EQ(entries(), 1) << step;
  }
}

TEST_P(NewEntry, BookAndTownDeletedMeanwhile_AreNamedAndOthersCanBeChosen) {
  const std::int32_t first = book("Libro 1");
  for (const char* other : {"Libro 2", "Libro 3"}) book(other);
  const std::int32_t meco = w.municipio("Meco", "Madrid");
  const std::string books = std::string("DELETE * FROM ") + k.s.tablaLibros + " WHERE ";
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Luis");
    tab(d, k.born.tab);
    d.choose(list(k.born.index), "Madrid");
    d.choose(list(k.born.index + 1), "Meco");
    w.con().Execute(books + k.s.claveLibro + "=" + std::to_string(first));
    w.con().Execute("DELETE * FROM Municipio WHERE IDMunicipio=" + std::to_string(meco));
    w.user.expectMessage(deleted("el libro «Libro 1»\nla población «Meco»"));
    accept(d);
    EXPECT_EQ(d.focused(), list(k.book));
    d.choose(list(k.book), "Libro 2");
    EXPECT_EQ(d.text("txtLibro(1)"), "1");
    tab(d, k.born.tab);
    EXPECT_EQ(d.text(name()), "Luis");
    EXPECT_EQ(d.text(list(k.born.index)), "Madrid");
    EXPECT_EQ(d.text(list(k.born.index + 1)), "");
    d.choose(list(k.born.index + 1), "Alcalá de Henares");
    w.user.expectMessage(k.blanks, Answer::Yes,
                         [&] { w.con().Execute(books + "Nombre=\"Libro 2\""); });
    w.user.expectMessage(deleted("el libro «Libro 2»"));
    accept(d);
    d.choose(list(k.book), "Libro 3");
    w.user.answerAnything(Answer::Yes);  // lists are blank still, or nothing is
    accept(d);
  });
  EXPECT_EQ(entries(), 1);
  EXPECT_EQ(w.value(std::string("SELECT ") + k.bornColumn + " FROM " + k.person),
            std::to_string(town));
}

TEST_P(NewEntry, FailedProposal_IsToldOnceAndLeavesNoPositionThatCouldBeTaken) {
  entry("Luis", book("Libro 1"), 1, "1");
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Yes);
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Eva", "Otro", "Más");
    faults->failOn("SELECT folio,numero FROM " + text::lower(k.s.tablaPartidas));
    accept(d);
    EXPECT_EQ(w.user.messages().size(), 3u) << "two questions and one error";
    EXPECT_EQ(d.text("txtLibro(1)"), "");
    typePerson(d, "Ana", "Otra", "Más");
    accept(d);
    EXPECT_EQ(w.user.messages().back().text, "¡Debe introducir datos en el campo folio!");
  });
  EXPECT_EQ(entries(), 2);
}

TEST_P(NewEntry, BookAndTownAddedFromInside_CanBeChosenAtOnce) {
  book("Libro 1", false);
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    d.choose(list(k.institution), "San Pedro");
    w.user.expectForm("frmAltaLibro" + word(), [](FormDriver& alta) {
      alta.click("optAntiguo");
      alta.choose("cboTipoNombre", "Abierto");
      alta.type("txtNombreLibro", "Libro viejo ");
      alta.choose("cboFormato", "Una partida por folio");
      alta.type("adtpAltaLibro", "01/01/1900");
      alta.click("cmdBoton(0)");
    });
    d.click("cmdAltaLibro");
    EXPECT_EQ(d.text(list(k.book)), "Libro viejo");
    EXPECT_FALSE(
        w.isFree(k.s.tablaLibros, std::stoi(bookValue(std::string("MAX(") + k.s.claveLibro + ")"))))
        << "nobody deletes the book under the entry";
    EXPECT_EQ(d.text("txtLibro(1)"), "1");
    tab(d, k.born.tab);
    d.choose(list(k.born.index), "Madrid");
    d.choose(list(k.born.index + 1), "Alcalá de Henares");
    w.user.expectForm("frmMunicipio", [](FormDriver& municipio) {
      municipio.type("txtNombre", "Meco");
      municipio.choose("cboProvincia", "Madrid");
      municipio.click("cmdBoton(0)");
    });
    d.click("cmdAltaPoblacion");
    EXPECT_EQ(d.text(list(k.born.index + 1)), "Alcalá de Henares");
    d.choose(list(k.born.index + 1), "Meco");
    w.user.expectForm("frmProvincia", [](FormDriver& provincia) { provincia.escape(); });
    d.click("cmdAltaProvincia");
    EXPECT_EQ(d.text(list(k.born.index + 1)), "Meco");
    tab(d, 0);
    w.user.expectForm("frmInstitucion", [](FormDriver& institucion) { institucion.escape(); });
    d.click("cmdAltaInstitucion");
    EXPECT_EQ(d.text(list(k.institution)), "San Pedro");
    EXPECT_EQ(d.text(list(k.book)), "Libro viejo");
  });
}

TEST_P(NewEntry, MarginalNotes_WarnOnceUntilTheyBecomeShorter) {
  book("Libro 1", false);
  const char* warning =
      &k.s == &CONFIRMACION || &k.s == &MATRIMONIO
          ? "El campo de notas marginales ha sobrepasado el límite máximo establecido para  los "
            "documentos. Si continúa introduciendo datos puede ser que algunos de los informes se "
            "impriman en varias hojas."
          : "El campo de notas marginales ha sobrepasado el límite máximo \n"
            "establecido para los documentos. Si continúa \n"
            "introduciendo datos puede ser que algunos de los informes se impriman en varias "
            "hojas.";
  std::string lines;
  for (int i = 0; i < 42; ++i) lines += "línea\r\n";
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    tab(d, k.notes.tab);
    const std::string notes = text(k.notes.index);
    d.paste(notes, lines.substr(0, lines.size() - 2));  // 42 lines are the limit
    w.user.expectMessage(warning);
    d.paste(notes, lines + "más");
    d.paste(notes, lines + "más y más");
    w.user.expectMessage(warning);
    d.paste(notes, lines);  // shorter: the last line is empty, and counts
    w.user.printer = false;
    d.paste(notes, "corto");
    d.paste(notes, lines + "sin impresora");
    w.user.printer = true;
    w.user.expectMessage(warning);
    d.paste(notes, lines + "con impresora");
    d.paste(notes, "corto");
    w.user.expectMessage(warning);
    d.paste(notes,
            lines.substr(0, lines.size() / 42 * 40) + "lunes lunes lunes lunes lunes lunes lunes");
  });
}

}  // namespace fidaleon::tests
