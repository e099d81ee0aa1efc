// The list of a book's entries as a working copy.

#include "registers/PropertiesWorld.h"

namespace fidaleon::tests {

class BookEntries : public PropertiesWorld {
 protected:
  std::int32_t nuevo = book({"Libro 1", true, 3});
  std::int32_t antiguo = book({"Antiguo", false, 1});

  std::string replacedBy(const std::string& number) const {
    return std::string("La partida que va a introducir coincide con otra. El ") + k.replaced +
           " por el " + number + " ¿Desea continuar?";
  }
  std::int32_t idOf(const std::string& name) {
    return std::stoi(w.value("SELECT * FROM " + nameTable() + " WHERE Nombre=\"" + name + "\""));
  }
};

TEST_P(BookEntries, AddTwoRemoveOne_ReachTheTablesOnlyOnAcceptance) {
  fill(nuevo, {"Luis", "Eva"});
  const auto work = [&](FormDriver& d) {
    toEntries(d);
    add(d, "Ana");
    add(d, "Blas");
    EXPECT_EQ(grid(d).row(), 4) << "what was added is chosen";
    remove(d, 4);
    EXPECT_THAT(shown(d), ElementsAre("1/1 Luis", "2/2 Eva", "3/3 Ana"));
    EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Eva"));
  };
  openBook(nuevo, [&](FormDriver& d) {
    work(d);
    w.user.expectMessage(LOSE_CHANGES, Answer::Yes);
    cancelBook(d);
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Eva"));
  EXPECT_EQ(w.count(r.childTable), 2);
  openBook(nuevo, [&](FormDriver& d) {
    work(d);
    acceptBook(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Eva", "3/3 Ana"));
}

TEST_P(BookEntries, EmptyBook_OnlyAddsUntilItHoldsSomething) {
  openBook(nuevo, [&](FormDriver& d) {
    EXPECT_EQ(d.text("txtFolios"), "0");
    toEntries(d);
    for (const char* boton : {"cmdPartidas(1)", "cmdPartidas(2)", "cmdPartidas(3)"})
      EXPECT_FALSE(d.enabled(boton)) << boton;
    EXPECT_EQ(d.focused(), "cmdPartidas(0)");
    d.doubleClick("msgPartidas", 0);
    add(d, "Ana");
    EXPECT_TRUE(d.enabled("cmdPartidas(1)"));
    remove(d, 1);
    EXPECT_FALSE(d.enabled("cmdPartidas(3)"));
    acceptBook(d);
  });
  EXPECT_EQ(entries(), 0);
}

TEST_P(BookEntries, HiddenRows_KeepTheOthersInTheirPlace) {
  fill(antiguo, {"Luis", "Eva", "Ana", "Blas"}, 4);
  changeBook(antiguo, [&](FormDriver& d) {
    remove(d, 2);
    EXPECT_EQ(grid(d).row(), 1) << "the row before the one that went";
    remove(d, 1);
    EXPECT_THAT(shown(d), ElementsAre("1/3 Ana", "1/4 Blas"));
    rename(d, 2, "Blas", "Benito");
    EXPECT_EQ(grid(d).row(), 2);
    rename(d, 1, "Ana", "Aurora");
    rename(d, 1, "Aurora", "Alba");  // what was changed is not read again
    EXPECT_THAT(shown(d), ElementsAre("1/3 Alba", "1/4 Benito"));
  });
  EXPECT_THAT(stored(antiguo), ElementsAre("1/3 Alba", "1/4 Benito"));
  EXPECT_EQ(w.value(sql("SELECT FolioSiguiente FROM {Libros} WHERE Nombre=\"Antiguo\"")), "1");
}

TEST_P(BookEntries, NewBook_LosesOnlyItsLastEntry) {
  fill(nuevo, {"Luis", "Eva", "Ana"});
  changeBook(nuevo, [&](FormDriver& d) {
    remove(d, 1);
    EXPECT_EQ(grid(d).rowCount(), 3) << "refused without a word";
    remove(d, 3);
    remove(d, 2);
    EXPECT_THAT(shown(d), ElementsAre("1/1 Luis"));
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis"));
  EXPECT_THAT(w.user.messages(), IsEmpty());
}

TEST_P(BookEntries, ClosedNewBook_ItsEntriesCanBeCorrectedOnly) {
  const std::int32_t cerrado = book({"Cerrado", true, 3, true});
  fill(cerrado, {"Luis", "Eva"});
  w.user.expectMessage(
      "¡El libro Cerrado está cerrado; no se pueden cambiar datos del libro. Sólo se podrán "
      "modificar las partidas!");
  openBook(cerrado, [&](FormDriver& d) {
    for (const char* campo : {"txtNombreLibro", "cboTipoNombre", "dtpFecha"})
      EXPECT_FALSE(d.enabled(campo)) << campo;
    toEntries(d);
    w.user.expectMessage("¡No se pueden añadir partidas a un libro nuevo cerrado!");
    d.click("cmdPartidas(0)");
    EXPECT_EQ(w.user.beeps(), 2);
    remove(d, 2);
    EXPECT_EQ(grid(d).rowCount(), 2);
    rename(d, 2, "Eva", "Elena");
    acceptBook(d);
  });
  EXPECT_THAT(stored(cerrado), ElementsAre("1/1 Luis", "2/2 Elena"));
}

TEST_P(BookEntries, AnnulAndValidate_ShowAtOnceAndAreStoredOnAcceptance) {
  fill(nuevo, {"Luis", "Eva"});
  const auto annul = [&](FormDriver& d) {
    toEntries(d);
    d.row("msgPartidas", 2);
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Anular");
    d.click("cmdPartidas(2)");
    EXPECT_EQ(annulled(d, 2), "SI");
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Anular") << "by the value before the change";
    EXPECT_FALSE(d.enabled("cmdPartidas(3)"));
    EXPECT_TRUE(d.enabled("cmdPartidas(1)"));
    d.row("msgPartidas", 1);
    EXPECT_FALSE(d.enabled("cmdPartidas(3)")) << "not the last of a new book";
    d.row("msgPartidas", 2);
    EXPECT_TRUE(d.enabled("cmdPartidas(3)"));
  };
  openBook(nuevo, [&](FormDriver& d) {
    annul(d);
    w.user.expectMessage(LOSE_CHANGES, Answer::Yes);
    cancelBook(d);
  });
  EXPECT_EQ(w.count(sql("{Partidas} WHERE Anulada=true")), 0);
  openBook(nuevo, [&](FormDriver& d) {
    annul(d);
    acceptBook(d);
  });
  EXPECT_EQ(w.value(sql("SELECT Folio FROM {Partidas} WHERE Anulada=true")), "2");
  changeBook(nuevo, [&](FormDriver& d) {
    d.row("msgPartidas", 2);
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Validar");
    d.click("cmdPartidas(2)");
    EXPECT_EQ(annulled(d, 2), "NO");
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Validar");
  });
  EXPECT_EQ(w.count(sql("{Partidas} WHERE Anulada=true")), 0);
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Eva"));
}

TEST_P(BookEntries, AnnulledByAnotherDeskMeanwhile_IsToldAndNotValidated) {
  fill(nuevo, {"Luis", "Eva"});
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    d.row("msgPartidas", 2);
    w.con().Execute(sql("UPDATE {Partidas} SET Anulada=1 WHERE Folio=2"));
    w.user.expectMessage("Otro puesto ya ha anulado esta partida: no se ha cambiado nada.");
    d.click("cmdPartidas(2)");
    EXPECT_EQ(annulled(d, 2), "SI");
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Validar");
    cancelBook(d);  // nothing to lose
  });
}

TEST_P(BookEntries, AnnulledBeforeItWasStored_IsStoredAnnulled) {
  w.con().Execute(sql("UPDATE {Libros} SET codFormato=3 WHERE Nuevo=false"));
  for (const std::int32_t libro : {nuevo, antiguo})
    openBook(libro, [&](FormDriver& d) {
      const char* name = libro == antiguo ? "Ana" : "Berta";
      toEntries(d);
      add(d, name, libro == antiguo);
      d.click("cmdPartidas(2)");
      reopen(d, 1);
      acceptBook(d);
    });
  for (const std::int32_t libro : {nuevo, antiguo})
    EXPECT_EQ(w.count(sql("{Partidas} WHERE Anulada=true AND CodLibro=") + std::to_string(libro)),
              1);
  EXPECT_EQ(w.value(sql("SELECT FolioSiguiente FROM {Libros} WHERE Nombre=\"Antiguo\"")), "2")
      << "the counters of an old book follow";
}

TEST_P(BookEntries, EmptySignInTheTable_DoesNotBringBackWhatWasChanged) {
  fill(nuevo, {"Luis"});
  w.con().Execute(r.emptySign);
  changeBook(nuevo, [&](FormDriver& d) {
    d.click("cmdPartidas(2)");
    reopen(d, 1);
  });
  EXPECT_EQ(w.count(sql("{Partidas} WHERE Anulada=true")), 1);
}

TEST_P(BookEntries, HeldElsewhere_IsReadOnlyUntilItIsFree) {
  fill(nuevo, {"Luis", "Eva"});
  w.user.answerAnything(Answer::Ok);  // the lock service says who has it
  changeBook(nuevo, [&](FormDriver& d) {
    auto other = w.otherHolds(k.s.tablaPartidas);
    d.click("cmdPartidas(0)");
    EXPECT_EQ(w.user.messages().size(), 1u) << "nothing is added";
    other.reset();
    other = w.otherHolds(k.s.tablaPartidas, idOf("Eva"));
    w.user.expectForm(dialog(), [&](FormDriver& e) {
      EXPECT_FALSE(e.enabled(button(0)));
      e.escape();
    });
    d.doubleClick("msgPartidas", 2);
    d.click("cmdPartidas(2)");
    remove(d, 2);
    EXPECT_THAT(shown(d), ElementsAre("1/1 Luis", "2/2 Eva"));
    EXPECT_EQ(annulled(d, 2), "NO");
    EXPECT_EQ(w.user.messages().size(), 4u);
    w.user.expectForm(dialog(), [&](FormDriver& e) {
      w.con().Execute("UPDATE " + nameTable() + " SET Nombre=\"Elena\" WHERE Nombre=\"Eva\"");
      other.reset();
      e.click("cmdReintentar");
    });
    rename(d, 2, "Elena", "Esther");  // as the other has left it
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Esther"));
}

TEST_P(BookEntries, EntryDeletedElsewhere_OpensNothing) {
  fill(nuevo, {"Luis", "Eva"});
  w.user.answerAnything(Answer::Ok);
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    w.con().Execute(sql("DELETE * FROM {Partidas} WHERE Folio=2"));
    d.doubleClick("msgPartidas", 2);
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("Ya no existe"));
    cancelBook(d);
  });
}

TEST_P(BookEntries, EntryThatLostARow_IsNotOpenedHalfRead) {
  fill(nuevo, {"Luis"});
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    w.con().Execute("DELETE * FROM " + r.childTable);
    for (const char* boton : {"cmdPartidas(1)", "cmdPartidas(2)"}) {
      w.user.expectMessage("¡No se han podido leer todos los datos de esta partida!");
      d.click(boton);
    }
    EXPECT_EQ(annulled(d, 1), "NO");
    cancelBook(d);
  });
}

TEST_P(BookEntries, LocksOfEntries_LastAsLongAsTheDialog) {
  fill(nuevo, {"Luis", "Eva"});
  changeBook(nuevo, [&](FormDriver& d) {
    rename(d, 1, "Luis", "Lucas");
    EXPECT_FALSE(w.isFree(k.s.tablaPartidas, idOf("Luis")));
  });
  EXPECT_TRUE(w.isFree(k.s.tablaPartidas, idOf("Lucas")));
}

TEST_P(BookEntries, StoreFailingInTheMiddle_KeepsTheDialogAndStoresTheRestLater) {
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  changeBook(nuevo, [&](FormDriver& d) {
    for (const char* nombre : {"Ana", "Blas", "Carmen"}) add(d, nombre);
    faults->failOn(sql("INSERT INTO {Partidas} ("), store::ErrorKind::DiskFull, 2);
    acceptBook(d);
    EXPECT_FALSE(d.closed());
    EXPECT_THAT(w.user.messages().back().text, HasSubstr(sql("AltaPartida{Palabra}")));
    EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Ana"));
    EXPECT_THAT(shown(d), ElementsAre("1/1 Ana", "2/2 Blas", "3/3 Carmen"));
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Ana", "2/2 Blas", "3/3 Carmen"));
}

TEST_P(BookEntries, EntryStoredByHalfAndNotGoneOnWith_LeavesNothingBehind) {
  fill(nuevo, {"Luis"});
  auto* faults = store::FailingEngine::wrap(w.con());
  for (const bool removed : {true, false}) {
    w.user.answerAnything(Answer::Yes);
    openBook(nuevo, [&](FormDriver& d) {
      toEntries(d);
      add(d, "Ana");
      faults->failOn("INSERT INTO " + r.childTable, store::ErrorKind::DiskFull);
      acceptBook(d);
      EXPECT_FALSE(d.closed());
      if (removed) remove(d, 2);
      removed ? acceptBook(d) : cancelBook(d);
      EXPECT_TRUE(d.closed());
    });
    EXPECT_EQ(entries(), 1);
    EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis"));
  }
}

TEST_P(BookEntries, ListThatCannotBeRead_IsNotShown) {
  fill(nuevo, {"Luis"});
  auto* faults = store::FailingEngine::wrap(w.con());
  for (const std::string& sentencia : {sql("SELECT * FROM {Libros} WHERE IdLibro"), r.childTable}) {
    faults->failOn(sentencia);
    w.user.answerAnything(Answer::Ok);
    const auto book = bookDialog(nuevo);
    book->Show();
    EXPECT_TRUE(book->isUnloaded());
  }
  EXPECT_EQ(w.user.messages().size(), 2u);
}

TEST_P(BookEntries, OldBook_ProposesTheHolesOfTheWorkingCopy) {
  fill(antiguo, {"Luis", "Eva", "Ana", "Blas", "Carmen"}, 4);
  changeBook(antiguo, [&](FormDriver& d) {
    remove(d, 2);
    add(d, "Dario", true);
    EXPECT_EQ(shown(d).back(), "1/2 Dario");
    add(d, "Elena", true);
    EXPECT_EQ(shown(d).back(), "2/6 Elena");
  });
  EXPECT_THAT(stored(antiguo), ElementsAre("1/1 Luis", "1/2 Dario", "1/3 Ana", "1/4 Blas",
                                           "2/5 Carmen", "2/6 Elena"));
}

TEST_P(BookEntries, TypedPosition_IsCheckedAgainstTheWorkingCopy) {
  fill(antiguo, {"Luis", "Eva", "Ana", "Blas"}, 4);
  const auto at = [&](FormDriver& d, const std::string& folio, const std::string& numero,
                      const std::string& nombre, const std::string& pregunta) {
    w.user.expectForm(dialog(), [=, this](FormDriver& e) {
      e.type("txtLibro(1)", folio);
      e.type("txtLibro(2)", numero);
      if (!pregunta.empty()) w.user.expectMessage(pregunta, Answer::Yes);
      typeEntry(e, nombre, "20/11/1989");
      acceptOld(e, Answer::No);
    });
    d.click("cmdPartidas(0)");
  };
  changeBook(antiguo, [&](FormDriver& d) {
    remove(d, 4);
    at(d, "1", "3", "Dario", replacedBy("3a"));
    w.user.expectForm(dialog(), [&](FormDriver& e) {
      e.type("txtLibro(1)", "1");
      e.type("txtLibro(2)", "9");
      w.user.expectMessage(
          "¡No puede introducir ninguna partida en el folio 1 porque ya hay cuatro partidas en "
          "él!");
      e.tab("mst" + word(), 1);
      EXPECT_EQ(e.focused(), "txtLibro(1)");
      cancel(e);
    });
    d.click("cmdPartidas(0)");
    at(d, "5", "12", "Elena", {});
    at(d, "5", "12", "Fermin", replacedBy("12a"));
    at(d, "5", "12", "Gema", replacedBy("12b"));
  });
  EXPECT_THAT(stored(antiguo), ElementsAre("1/1 Luis", "1/2 Eva", "1/3 Ana", "1/3a Dario",
                                           "5/12 Elena", "5/12a Fermin", "5/12b Gema"));
}

TEST_P(BookEntries, WorkNotStored_ComesBackFromItsDraft) {
  fill(nuevo, {"Luis", "Eva"});
  std::string work;
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    rename(d, 1, "Luis", "Lucas");
    add(d, "Ana");
    work = d.form().ownWork();
    w.user.expectMessage(LOSE_CHANGES, Answer::Yes);
    cancelBook(d);
  });
  for (const bool changedMeanwhile : {false, true}) {
    openBook(nuevo, [&](FormDriver& d) {
      const std::string left = d.form().putBackOwnWork(work);
      EXPECT_EQ(left.empty(), !changedMeanwhile) << left;
      changedMeanwhile ? cancelBook(d) : acceptBook(d);
    });
    EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Lucas", "2/2 Eva", "3/3 Ana"));
  }
}

INSTANTIATE_TEST_SUITE_P(Registers, BookEntries, ::testing::ValuesIn(registers()), nameOfRegister);

}  // namespace fidaleon::tests
