// The entry dialog of any register, opened from the list of its book.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

class ListedEntry : public EntryWorld {
 protected:
  /// Adds an entry to the list; `act` works on its dialog.
  void add(std::int32_t libro, Act act) {
    const auto openBook = propiedadesDeLibro(k.s)(w.contexto);
    openBook->conBaseDatos = &w.con();
    openBook->lngLibro = libro;
    w.user.expectForm("frmPropiedadesLibro" + word(), [&](FormDriver& d) {
      w.user.expectForm(dialog(), act);
      d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS);
      d.click("cmdPartidas(0)");
      d.click("cmdBoton(0)");
    });
    openBook->Show();
  }
};
INSTANTIATE_TEST_SUITE_P(Registers, ListedEntry, EVERY_ENTRY, wordOf);

TEST_P(ListedEntry, SamePersonInTheWorkingCopy_AsksTheExistenceQuestion) {
  add(book("Antiguo", false), [&](FormDriver& e) {
    EXPECT_EQ(e.caption(), std::string(k.adds) + "antigua" + k.position);
    EXPECT_TRUE(e.locked(list(k.institution)) && e.locked(list(k.book)));
    EXPECT_TRUE(e.visible(text(k.notes.index)));
    typePerson(e, "Ana");
    acceptOld(e, Answer::Yes);
    EXPECT_EQ(e.text("txtLibro(1)"), "2");
    tab(e, 0);
    e.type("txtLibro(2)", "1");
    EXPECT_EQ(e.text("lblNumeroRepetido"), "El 1 ya está en el folio 1");
    typePerson(e, "Ana");
    if (k.asksOthers && !k.asksOnce) w.user.expectMessage(k.blanks, Answer::Yes);
    w.user.expectMessage(std::string("La partida de Ana García Pérez") + k.secondPerson +
                             " ya existe en el libro correspondiente, ¿Quiere continuar?",
                         Answer::No);
    accept(e);
    cancel(e);
  });
  EXPECT_EQ(entries(), 1);
  EXPECT_EQ(bookValue("FolioSiguiente"), "2");
}

TEST_P(ListedEntry, InANewBook_GoesForwardExceptInMenorca) {
  const std::int32_t libro = book("Libro 1", true, 2);
  entry("Luis", libro, 1, "1");
  for (const bool menorca : {false, true}) {
    if (menorca) w.entorno.installation.Aplicacion = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
    add(libro, [&](FormDriver& e) {
      EXPECT_EQ(e.text("txtLibro(1)") + "/" + e.text("txtLibro(2)"), menorca ? "1/2" : "2/2");
      cancel(e);
    });
  }
}

}  // namespace fidaleon::tests
