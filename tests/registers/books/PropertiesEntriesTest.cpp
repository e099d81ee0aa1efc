// The list of a book's entries as a working copy.

#include "registers/PropertiesWorld.h"

namespace fidaleon::tests {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class BookEntries : public PropertiesWorld {
 protected:
  std::int32_t nuevo = book("Libro 1", true, 3);
  std::int32_t antiguo = book("Antiguo", false, 1);

  /// Another workstation works on one entry.
  std::unique_ptr<FDAPI::cProcesarBloqueos> heldElsewhere(std::int32_t id) {
    auto other = w.otherSession();
    FDAPI::DefinicionBloqueo entry;
    entry.strTabla = "Bautismo";
    entry.strRegistro = std::to_string(id);
    entry.conBd = &w.con();
    other->DefinirBloqueo(entry);
    EXPECT_EQ(other->lngEfectuarBloqueos(), 0);
    return other;
  }
  std::int32_t idOf(const std::string& name) {
    return std::stoi(
        w.value("SELECT CodBautismo FROM bautismo_hijo WHERE Nombre=\"" + name + "\""));
  }
};

TEST_F(BookEntries, AddTwoRemoveOne_ReachTheTablesOnlyOnAcceptance) {
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
  EXPECT_EQ(w.count("bautismo_padres"), 2);
  openBook(nuevo, [&](FormDriver& d) {
    work(d);
    acceptBook(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Eva", "3/3 Ana"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, EmptyBook_OnlyAddsUntilItHoldsSomething) {
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
  EXPECT_EQ(w.count("bautismo"), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, HiddenRows_KeepTheOthersInTheirPlace) {
  fill(antiguo, {"Luis", "Eva", "Ana", "Blas"}, 4);
  openBook(antiguo, [&](FormDriver& d) {
    toEntries(d);
    remove(d, 2);
    EXPECT_EQ(grid(d).row(), 1) << "the row before the one that went";
    remove(d, 1);
    EXPECT_THAT(shown(d), ElementsAre("1/3 Ana", "1/4 Blas"));
    rename(d, 2, "Blas", "Benito");
    EXPECT_EQ(grid(d).row(), 2);
    rename(d, 1, "Ana", "Aurora");
    rename(d, 1, "Aurora", "Alba");  // what was changed is not read again
    EXPECT_THAT(shown(d), ElementsAre("1/3 Alba", "1/4 Benito"));
    acceptBook(d);
  });
  EXPECT_THAT(stored(antiguo), ElementsAre("1/3 Alba", "1/4 Benito"));
  EXPECT_EQ(w.value("SELECT FolioSiguiente FROM Libro_Bautismo WHERE Nombre=\"Antiguo\""), "1");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, RemovedAndAddedInTheSamePlace_IsOneEntryAfterwards) {
  fill(nuevo, {"Luis", "Eva"});
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    remove(d, 2);
    add(d, "Ana");
    EXPECT_THAT(shown(d), ElementsAre("1/1 Luis", "2/2 Ana"));
    acceptBook(d);
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Ana"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, NewBook_LosesOnlyItsLastEntry) {
  fill(nuevo, {"Luis", "Eva", "Ana"});
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    remove(d, 1);
    EXPECT_EQ(grid(d).rowCount(), 3) << "refused without a word";
    remove(d, 3);
    remove(d, 2);
    EXPECT_THAT(shown(d), ElementsAre("1/1 Luis"));
    acceptBook(d);
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis"));
  EXPECT_THAT(w.user.messages(), IsEmpty());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, ClosedNewBook_ItsEntriesCanBeCorrectedOnly) {
  const std::int32_t cerrado = book("Cerrado", true, 3, "19900101", true);
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
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, AnnulAndValidate_ShowAtOnceAndAreStoredOnAcceptance) {
  fill(nuevo, {"Luis", "Eva"});
  const auto annul = [&](FormDriver& d) {
    toEntries(d);
    d.row("msgPartidas", 2);
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Anular");
    d.click("cmdPartidas(2)");
    EXPECT_EQ(grid(d).cell(2, 6), "SI");
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
  EXPECT_EQ(w.count("bautismo WHERE Anulada=true"), 0);
  openBook(nuevo, [&](FormDriver& d) {
    annul(d);
    acceptBook(d);
  });
  EXPECT_EQ(w.value("SELECT Folio FROM bautismo WHERE Anulada=true"), "2");
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    d.row("msgPartidas", 2);
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Validar");
    d.click("cmdPartidas(2)");
    EXPECT_EQ(grid(d).cell(2, 6), "NO");
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Validar");
    acceptBook(d);
  });
  EXPECT_EQ(w.count("bautismo WHERE Anulada=true"), 0);
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Eva"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, AnnulledByAnotherDeskMeanwhile_IsToldAndNotValidated) {
  fill(nuevo, {"Luis", "Eva"});
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    d.row("msgPartidas", 2);
    w.con().Execute("UPDATE bautismo SET Anulada=1 WHERE Folio=2");
    w.user.expectMessage("Otro puesto ya ha anulado esta partida: no se ha cambiado nada.");
    d.click("cmdPartidas(2)");
    EXPECT_EQ(grid(d).cell(2, 6), "SI");
    EXPECT_EQ(d.text("cmdPartidas(2)"), "Validar");
    cancelBook(d);  // nothing to lose
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, AnnulledBeforeItWasStored_IsStoredAnnulled) {
  w.con().Execute("UPDATE Libro_Bautismo SET codFormato=3 WHERE Nuevo=false");
  for (const std::int32_t libro : {nuevo, antiguo})
    openBook(libro, [&](FormDriver& d) {
      const char* name = libro == antiguo ? "Ana" : "Berta";
      toEntries(d);
      add(d, name, libro == antiguo);
      d.click("cmdPartidas(2)");
      rename(d, 1, name, "Alba");
      acceptBook(d);
    });
  for (const std::int32_t libro : {nuevo, antiguo})
    EXPECT_EQ(w.count("bautismo WHERE Anulada=true AND CodLibro=" + std::to_string(libro)), 1);
  EXPECT_EQ(w.value("SELECT FolioSiguiente FROM Libro_Bautismo WHERE Nombre=\"Antiguo\""), "2")
      << "the counters of an old book follow";
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, EmptySexInTheTable_DoesNotBringBackWhatWasChanged) {
  fill(nuevo, {"Luis"});
  w.con().Execute("UPDATE bautismo_hijo SET sexo=\"\"");
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    d.click("cmdPartidas(2)");
    rename(d, 1, "Luis", "Lucas");
    acceptBook(d);
  });
  EXPECT_EQ(w.count("bautismo WHERE Anulada=true"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, EntryHeldElsewhere_IsReadOnlyUntilItIsFree) {
  fill(nuevo, {"Luis", "Eva"});
  w.user.answerAnything(Answer::Ok);  // the lock service says who has it
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    auto other = heldElsewhere(idOf("Eva"));
    w.user.expectForm(DIALOG, [](FormDriver& e) {
      EXPECT_FALSE(e.enabled("cmdBautismo(0)"));
      e.escape();
    });
    d.doubleClick("msgPartidas", 2);
    d.click("cmdPartidas(2)");
    remove(d, 2);
    EXPECT_THAT(shown(d), ElementsAre("1/1 Luis", "2/2 Eva"));
    EXPECT_EQ(grid(d).cell(2, 6), "NO");
    EXPECT_EQ(w.user.messages().size(), 3u);
    w.user.expectForm(DIALOG, [&](FormDriver& e) {
      w.con().Execute("UPDATE bautismo_hijo SET nombre=\"Elena\" WHERE nombre=\"Eva\"");
      other.reset();
      e.click("cmdReintentar");
    });
    rename(d, 2, "Elena", "Esther");  // as the other has left it
    acceptBook(d);
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis", "2/2 Esther"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, EntryDeletedElsewhere_OpensNothing) {
  fill(nuevo, {"Luis", "Eva"});
  w.user.answerAnything(Answer::Ok);
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    w.con().Execute("DELETE * FROM bautismo WHERE folio=2");
    d.doubleClick("msgPartidas", 2);
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("Ya no existe"));
    cancelBook(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, EntryThatLostItsParents_IsNotOpenedHalfRead) {
  fill(nuevo, {"Luis"});
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    w.con().Execute("DELETE * FROM bautismo_padres");
    for (const char* boton : {"cmdPartidas(1)", "cmdPartidas(2)"}) {
      w.user.expectMessage("¡No se han podido leer todos los datos de esta partida!");
      d.click(boton);
    }
    EXPECT_EQ(grid(d).cell(1, 6), "NO");
    cancelBook(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, TableHeldElsewhere_NothingIsAdded) {
  w.user.answerAnything(Answer::Ok);
  const auto other = w.otherSession();
  FDAPI::DefinicionBloqueo table;
  table.strTabla = "Bautismo";
  other->DefinirBloqueo(table);
  ASSERT_EQ(other->lngEfectuarBloqueos(), 0);
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    d.click("cmdPartidas(0)");
    EXPECT_EQ(w.user.messages().size(), 1u);
    cancelBook(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, LocksOfEntries_LastAsLongAsTheDialog) {
  fill(nuevo, {"Luis", "Eva"});
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    rename(d, 1, "Luis", "Lucas");
    const auto other = w.otherSession();
    FDAPI::DefinicionBloqueo entry;
    entry.strTabla = "Bautismo";
    entry.strRegistro = std::to_string(idOf("Luis"));
    entry.conBd = &w.con();
    other->DefinirBloqueo(entry);
    w.otherUser.answerAnything(Answer::Ok);
    EXPECT_EQ(other->lngEfectuarBloqueos(), FDAPI::BloqueoRegistro);
    acceptBook(d);
  });
  heldElsewhere(idOf("Lucas"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, StoreFailingInTheMiddle_KeepsTheDialogAndStoresTheRestLater) {
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    for (const char* nombre : {"Ana", "Blas", "Carmen"}) add(d, nombre);
    faults->failOn("INSERT INTO bautismo (", store::ErrorKind::DiskFull, 2);
    acceptBook(d);
    EXPECT_FALSE(d.closed());
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("AltaPartidaBautismo"));
    EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Ana"));
    EXPECT_THAT(shown(d), ElementsAre("1/1 Ana", "2/2 Blas", "3/3 Carmen"));
    acceptBook(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Ana", "2/2 Blas", "3/3 Carmen"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, EntryStoredByHalfAndNotGoneOnWith_LeavesNothingBehind) {
  fill(nuevo, {"Luis"});
  auto* faults = store::FailingEngine::wrap(w.con());
  for (const bool removed : {true, false}) {
    w.user.answerAnything(Answer::Yes);
    openBook(nuevo, [&](FormDriver& d) {
      toEntries(d);
      add(d, "Ana");
      faults->failOn("INSERT INTO bautismo_hijo", store::ErrorKind::DiskFull);
      acceptBook(d);
      EXPECT_FALSE(d.closed());
      if (removed) remove(d, 2);
      removed ? acceptBook(d) : cancelBook(d);
      EXPECT_TRUE(d.closed());
    });
    EXPECT_EQ(w.count("bautismo"), 1);
    EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Luis"));
  }
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, ListThatCannotBeRead_IsNotShown) {
  fill(nuevo, {"Luis"});
  auto* faults = store::FailingEngine::wrap(w.con());
  for (const char* sentencia :
       {"SELECT * FROM Libro_Bautismo WHERE IdLibro", "Bautismo_Matrimonio"}) {
    faults->failOn(sentencia);
    w.user.answerAnything(Answer::Ok);
    frmPropiedadesLibroBautismo dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.lngLibro = nuevo;
    dialog.Show();
    EXPECT_TRUE(dialog.isUnloaded());
  }
  EXPECT_EQ(w.user.messages().size(), 2u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, OldBook_ProposesTheHolesOfTheWorkingCopy) {
  fill(antiguo, {"Luis", "Eva", "Ana", "Blas", "Carmen"}, 4);
  openBook(antiguo, [&](FormDriver& d) {
    toEntries(d);
    remove(d, 2);
    add(d, "Dario", true);
    EXPECT_EQ(shown(d).back(), "1/2 Dario");
    add(d, "Elena", true);
    EXPECT_EQ(shown(d).back(), "2/6 Elena");
    acceptBook(d);
  });
  EXPECT_THAT(stored(antiguo), ElementsAre("1/1 Luis", "1/2 Dario", "1/3 Ana", "1/4 Blas",
                                           "2/5 Carmen", "2/6 Elena"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(BookEntries, TypedPosition_IsCheckedAgainstTheWorkingCopy) {
  fill(antiguo, {"Luis", "Eva", "Ana", "Blas"}, 4);
  const auto at = [&](FormDriver& d, const std::string& folio, const std::string& numero,
                      const std::string& nombre, const char* pregunta) {
    w.user.expectForm(DIALOG, [=, this](FormDriver& e) {
      e.type("txtLibro(1)", folio);
      e.type("txtLibro(2)", numero);
      if (pregunta) w.user.expectMessage(pregunta, Answer::Yes);
      typeChild(e, nombre, "Nuevo", nombre);
      w.user.expectMessage(FURTHER, Answer::No);
      accept(e);
    });
    d.click("cmdPartidas(0)");
  };
  openBook(antiguo, [&](FormDriver& d) {
    toEntries(d);
    remove(d, 4);
    at(d, "1", "3", "Dario",
       "La partida que va a introducir coincide con otra. El numero se reemplazará por el 3a "
       "¿Desea continuar?");
    w.user.expectForm(DIALOG, [&](FormDriver& e) {
      e.type("txtLibro(1)", "1");
      e.type("txtLibro(2)", "9");
      w.user.expectMessage(
          "¡No puede introducir ninguna partida en el folio 1 porque ya hay cuatro partidas en "
          "él!");
      e.tab("mstBautismo", 1);
      EXPECT_EQ(e.focused(), "txtLibro(1)");
      cancel(e);
    });
    d.click("cmdPartidas(0)");
    at(d, "5", "12", "Elena", nullptr);
    at(d, "5", "12", "Fermin",
       "La partida que va a introducir coincide con otra. El numero se reemplazará por el 12a "
       "¿Desea continuar?");
    at(d, "5", "12", "Gema",
       "La partida que va a introducir coincide con otra. El numero se reemplazará por el 12b "
       "¿Desea continuar?");
    acceptBook(d);
  });
  EXPECT_THAT(stored(antiguo), ElementsAre("1/1 Luis", "1/2 Eva", "1/3 Ana", "1/3a Dario",
                                           "5/12 Elena", "5/12a Fermin", "5/12b Gema"));
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace fidaleon::tests
