// Correcting an entry of any register, and its requests.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

class EditedEntry : public EntryWorld {
 protected:
  void rename(FormDriver& d, const std::string& to) {
    tab(d, k.name.tab);
    d.type(name(), to);
  }
  std::string stored() { return w.value(std::string("SELECT Nombre FROM ") + k.person); }

  std::int32_t libro = book("Libro 1");
  std::int32_t id = entry("Luis", libro, 1, "1");
};
INSTANTIATE_TEST_SUITE_P(Registers, EditedEntry, EVERY_ENTRY, wordOf);

TEST_P(EditedEntry, Correction_IsStoredAndThePositionIsNotForTheUser) {
  edit(id, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), k.edits + std::string("nueva") + k.position);
    EXPECT_EQ(d.visible(button(2)), k.annulsEdit);
    for (const std::string& fixed : {std::string("txtLibro(1)"), list(k.institution), list(k.book)})
      EXPECT_TRUE(d.locked(fixed)) << fixed;
    EXPECT_EQ(d.text(list(k.book)), "Libro 1");
    rename(d, "Luis María");
    acceptEdit(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(stored(), "Luis María");
  EXPECT_EQ(entries(), 1);
}

TEST_P(EditedEntry, NothingChangedOrCancelled_WritesNothing) {
  store::FailingEngine::wrap(w.con())->failAlwaysOn("UPDATE");
  edit(id, [&](FormDriver& d) { acceptEdit(d); });
  edit(id, [&](FormDriver& d) {
    rename(d, "Otro");
    cancel(d);
  });
  EXPECT_EQ(stored(), "Luis");
}

TEST_P(EditedEntry, FailingUpdate_KeepsTheDialogOpen) {
  store::FailingEngine::wrap(w.con())->failOn(std::string("UPDATE ") + k.lastRow,
                                              store::ErrorKind::Busy);
  w.user.answerAnything(Answer::Yes);
  edit(id, [&](FormDriver& d) {
    rename(d, "Otro");
    accept(d);
    EXPECT_FALSE(d.closed());
    accept(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(stored(), "Otro");
}

TEST_P(EditedEntry, FailingLoad_ShowsNothingThatCouldBeAccepted) {
  store::FailingEngine::wrap(w.con())->failOn("SELECT * FROM " + std::string(k.lastRow));
  w.user.answerAnything(Answer::Ok);
  const auto shown = dialogFor(cCOperacion::EDITAR, id);
  shown->Show();
  EXPECT_TRUE(shown->isUnloaded());
  ASSERT_FALSE(w.user.messages().empty());
  EXPECT_THAT(w.user.messages()[0].text, HasSubstr(dialog() + " / Form_Load"));
}

TEST_P(EditedEntry, RowOfItGone_MayBeReadButNotChanged) {
  w.con().Execute(std::string("DELETE * FROM ") + k.lastRow);
  w.user.answerAnything(Answer::Ok);
  edit(id, [&](FormDriver& d) {
    EXPECT_FALSE(d.enabled(button(0)));
    cancel(d);
  });
  EXPECT_EQ(w.user.messages().size(), 1u);
}

TEST_P(EditedEntry, Annulled_IsLockedAsItsRegisterSaysAndKeepsItsMark) {
  w.con().Execute(std::string("UPDATE ") + k.s.tablaLibros + " SET Nuevo=0");
  if (!k.annulsEdit)
    w.con().Execute(std::string("UPDATE ") + k.s.tablaPartidas + " SET Anulada=1");
  else
    edit(id, [&](FormDriver& d) {
      if (k.asksOthers) w.user.expectMessage(k.blanks, Answer::Yes);
      d.click(button(2));
      EXPECT_EQ(d.text(button(2)), "&Validar");
      accept(d);
    });
  edit(id, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), k.edits + std::string("antigua") + k.position);
    EXPECT_TRUE(d.visible("lblPartidaAnulada"));
    EXPECT_TRUE(d.locked("txtLibro(1)"));
    EXPECT_EQ(d.locked(name()), k.annulledIsLocked);
    tab(d, k.notes.tab);
    EXPECT_EQ(d.locked(text(k.notes.index)), !k.notesStayOpen);
    if (k.notesStayOpen) d.type(text(k.notes.index), "Por error de folio");
    accept(d);
  });
  EXPECT_EQ(entries("Anulada=true"), 1);
  EXPECT_EQ(entries("NotasMarginales=\"Por error de folio\""), k.notesStayOpen ? 1 : 0);
  if (!k.annulsEdit) return;
  forms::Contents typed;
  edit(id, [&](FormDriver& d) {
    d.click(button(2));
    d.type("txtLibro(1)", "7");
    typed = forms::Contents::of(d.form());
    cancel(d);
  });
  edit(id, [&](FormDriver& d) {
    putBack(d, typed);
    accept(d);
  });
  EXPECT_EQ(entries("Anulada=false AND Folio=7"), 1);
}

class RequestedEntry : public EntryWorld {
 protected:
  void enter(const std::string& who) {
    open(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
      EXPECT_EQ(d.caption(), k.requestCaption);
      for (const std::string& hidden :
           {list(k.book), std::string("fraLibro"), std::string("cmdAltaLibro"), button(2)})
        EXPECT_FALSE(d.visible(hidden)) << hidden;
      d.choose(list(k.institution), "San Pedro");
      typePerson(d, who);
      acceptAfter(d, k.asksOthers, "¿Desea dar de alta nuevas solicitudes?", Answer::No);
    });
  }
};
INSTANTIATE_TEST_SUITE_P(Registers, RequestedEntry,
                         ::testing::Values(&BAPTISM_ENTRY, &CONFIRMATION_ENTRY, &MARRIAGE_ENTRY),
                         wordOf);

TEST_P(RequestedEntry, New_IsStoredOutsideAnyBookAndCorrectedThere) {
  enter("Luis");
  EXPECT_EQ(entries("codlibro=0 AND folio=0 AND numero=\"---\""), 1);
  const std::int32_t other = w.institucion("Santa Ana", town);
  w.institucion("San Blas", town);
  const bool moves = &k.s == &BAUTISMO;
  for (const bool chosen : {false, true}) {
    EXPECT_EQ(value("InstitucionSolicitud"), std::to_string(parish));
    open(
        cCOperacion::EDITARSOLICITUD,
        [&](FormDriver& d) {
          EXPECT_EQ(d.text(list(k.institution)), "San Pedro");
          EXPECT_EQ(d.locked(list(k.institution)), !moves);
          EXPECT_EQ(d.enabled("cmdAltaInstitucion"), moves);
          if (chosen && moves) {
            d.choose(list(k.institution), "San Blas");
            w.con().Execute("DELETE * FROM Institucion WHERE Nombre=\"San Blas\"");
            w.user.expectMessage(deleted("la institución «San Blas»"));
            accept(d);
            d.choose(list(k.institution), "Santa Ana");
          }
          tab(d, k.name.tab);
          d.type(name(), "Carlos");
          accept(d);
        },
        std::stoi(value(k.s.clavePartida)));
  }
  EXPECT_EQ(w.value(std::string("SELECT Nombre FROM ") + k.person), "Carlos");
  EXPECT_EQ(value("InstitucionSolicitud"), std::to_string(moves ? other : parish));
  w.con().Execute("DELETE * FROM Institucion");
  w.user.answerAnything(Answer::Ok);
  open(
      cCOperacion::EDITARSOLICITUD,
      [&](FormDriver& d) {
        tab(d, k.name.tab);
        EXPECT_EQ(tab(d), moves ? 0 : k.name.tab) << "can be read where no other can be chosen";
        cancel(d);
      },
      std::stoi(value(k.s.clavePartida)));
}

TEST_P(RequestedEntry, WithoutInstitution_IsRefusedInItsOwnWords) {
  w.institucion("Santa Ana");
  openAndCancel(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
    w.user.expectMessage(
        std::string("¡Antes de introducir datos en la solicitud, tiene que elegir una ") +
        k.institutionWord + "!");
    tab(d, 1);
  });
}

TEST_P(RequestedEntry, InstitutionBeyondOneByte_IsReportedAndNothingWritten) {
  w.con().Execute("INSERT INTO Institucion (IDInstitucion, Nombre) VALUES (300, \"Lejana\")");
  w.user.answerAnything(Answer::Yes);
  openAndCancel(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
    d.choose(list(k.institution), "Lejana");
    typePerson(d, "Luis");
    accept(d);
    EXPECT_FALSE(d.closed());
  });
  EXPECT_THAT(w.user.messages().back().text, HasSubstr("255"));
  EXPECT_EQ(entries() + w.count("bautismo_padres") + w.count("matrimonio_novios"), 0);
}

}  // namespace fidaleon::tests
