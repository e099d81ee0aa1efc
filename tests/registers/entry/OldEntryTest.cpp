// Entries copied into the old books of any register.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

class OldEntry : public EntryWorld {};
INSTANTIATE_TEST_SUITE_P(Registers, OldEntry, EVERY_ENTRY, wordOf);

TEST_P(OldEntry, TypedPosition_IsCheckedOnLeavingTheFirstTabAndTheJumpBehindItTold) {
  const std::int32_t old = book("Antiguo", false);
  entry("A", old, 1, "1");
  entry("B", old, 3, "3");
  w.con().Execute(std::string("UPDATE ") + k.s.tablaLibros +
                  " SET FolioSiguiente=2, NumeroSiguiente=\"2\"");
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    EXPECT_FALSE(d.locked("txtLibro(1)"));
    d.type("txtLibro(1)", "1");
    w.user.expectMessage(
        "¡No puede introducir ninguna partida en el folio 1 porque ya tiene una partida!");
    tab(d, 1);
    EXPECT_EQ(tab(d), 0);
    EXPECT_EQ(d.focused(), "txtLibro(1)");
    d.type("txtLibro(1)", "2");
    d.type("txtLibro(2)", "3");
    EXPECT_EQ(d.text("lblNumeroRepetido"), "El 3 ya está en el folio 3");
    d.type("txtLibro(2)", "2");
    EXPECT_FALSE(d.visible("lblNumeroRepetido"));
    typePerson(d, "Eva", "Otro", "Más");
    if (k.asksOthers) w.user.expectMessage(k.blanks, Answer::Yes);
    w.user.expectMessage(FURTHER_ENTRY, Answer::Yes);
    w.user.expectMessage(
        std::string("¡Se ha producido un salto, la siguiente partida a introducir es ") +
        (&k.s == &MATRIMONIO ? "" : "\n") + "la correspondiente al folio 4, número 4!");
    accept(d);
    EXPECT_EQ(d.text("txtLibro(1)"), "4");
  });
}

TEST_P(OldEntry, TakenNumber_IsSaidWithItsFoliosAndReplacedWhenTheUserAgrees) {
  const std::int32_t old = book("Antiguo", false, 1);
  entry("A", old, 3, "12");
  entry("B", old, 3, "12a");
  entry("C", old, 5, "12");
  const std::string question =
      std::string("La partida que va a introducir coincide con otra. El ") + k.replaced +
      " por el 12b ¿Desea continuar?";
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    d.type("txtLibro(1)", "3");
    d.type("txtLibro(2)", "12A");
    EXPECT_EQ(d.text("lblNumeroRepetido"), "El 12A ya está en el folio 3");
    d.type("txtLibro(2)", "12");
    EXPECT_EQ(d.text("lblNumeroRepetido"), "El 12 ya está en los folios 3 y 5");
    for (const Answer answer : {Answer::No, Answer::Yes}) {
      w.user.expectMessage(question, answer);
      tab(d, 1);
      const bool agreed = answer == Answer::Yes;
      EXPECT_EQ(w.user.messages().back().title, "Fidaleon2000");
      EXPECT_EQ(d.text("txtLibro(2)"), agreed ? "12b" : "12");
      EXPECT_EQ(tab(d), agreed ? 1 : 0);
      EXPECT_EQ(d.focused() == "txtLibro(1)", !agreed);
    }
  });
}

TEST_P(OldEntry, NumberOfAnotherForm_IsRefusedWhenTypedAndKeptWhenStored) {
  const std::int32_t id = entry("A", book("Antiguo", false), 1, "12 bis");
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    d.type("txtLibro(2)", "12 bis");
    EXPECT_EQ(d.text("txtLibro(2)"), "12b");
    EXPECT_EQ(w.user.beeps(), 3);
    d.paste("txtLibro(2)", "12 bis");
    EXPECT_EQ(d.text("txtLibro(2)"), "12b");
  });
  edit(id, [&](FormDriver& d) {
    EXPECT_EQ(d.text("txtLibro(2)"), "12 bis");
    EXPECT_FALSE(d.visible("lblNumeroRepetido")) << "by itself";
    tab(d, k.name.tab);
    d.type(name(), "B");
    acceptEdit(d);
  });
  EXPECT_EQ(value("Numero"), "12 bis");
  EXPECT_EQ(w.count(std::string(k.person) + " WHERE Nombre=\"B\""), 1);
}

TEST_P(OldEntry, Dates_MoveTheBookByTheRuleOfItsRegister) {
  book("Antiguo", false, 3, "19500101");
  const auto enter = [&](const std::string& folio, const char* day) {
    open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
      chooseBook(d, "Antiguo");
      for (const char* field : {"txtLibro(1)", "txtLibro(2)"}) d.type(field, folio);
      typePerson(d, "F" + folio, "Otro", folio);
      tab(d, k.day.tab);
      d.type(date(k.day.index), day);
      acceptOld(d, Answer::No);
    });
  };
  int row = 0;
  for (const char* day : {"5/7/1961", "5/7/1970", "5/7/1930"}) {
    enter(std::to_string(row + 1), day);
    EXPECT_EQ(bookValue("FechaCreacion"), k.bookDates[row++]) << day;
  }
  EXPECT_EQ(bookValue("FolioSiguiente"), "4");
}

TEST_P(OldEntry, AnnulledBeforeItIsStored_IsPutBackWholeAndStoredSo) {
  book("Antiguo", false);
  forms::Contents typed;
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    typePerson(d, "Eva");
    EXPECT_EQ(d.visible(button(2)), k.annulsOld);
    if (!k.annulsOld) return cancel(d);
    if (k.annulledIsLocked) w.user.expectMessage(k.blanks, Answer::Yes);
    d.click(button(2));
    EXPECT_EQ(d.text(button(2)), "&Validar");
    EXPECT_TRUE(d.visible("lblPartidaAnulada"));
    EXPECT_EQ(d.locked(name()), k.annulledIsLocked);
    EXPECT_EQ(d.enabled("cmdAltaPoblacion"), !k.annulledIsLocked);
    EXPECT_EQ(d.locked(text(k.notes.index)), !k.notesStayOpen);
    typed = forms::Contents::of(d.form());
  });
  if (!k.annulsOld) return;
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    putBack(d, typed);
    EXPECT_EQ(d.text(name()), "Eva");
    w.user.expectMessage(FURTHER_ENTRY, Answer::Yes);
    accept(d);
    EXPECT_FALSE(d.locked(name())) << "the next one is valid";
  });
  EXPECT_EQ(entries("Anulada=true AND Folio=1"), 1);
}

TEST_P(OldEntry, EmptyPosition_IsAskedForUnlessThereIsNoBook) {
  book("Antiguo", false);
  book("Otro", false);
  const char* empty = "¡Debe introducir datos en el campo folio!";
  openAndCancel(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    d.choose(list(k.institution), "San Pedro");
    d.focus("txtLibro(1)");
    w.user.expectMessage(empty);
    d.focus(list(k.book));
    EXPECT_EQ(d.focused(), list(k.book));
    d.choose(list(k.book), "Antiguo");
    EXPECT_EQ(d.caption(), std::string(k.adds) + "antigua" + k.position);
    d.type("txtLibro(1)", "");
    w.user.expectMessage(empty);
    d.focus("txtLibro(2)");
    EXPECT_EQ(d.focused(), "txtLibro(1)");
    d.type("txtLibro(1)", "1");
    tab(d, k.day.tab);
    d.type(date(k.day.index), "3-5-91");
    tab(d, 0);
    EXPECT_EQ(d.text(date(k.day.index)), "03/05/1991") << "the century of the book";
  });
}

}  // namespace fidaleon::tests
