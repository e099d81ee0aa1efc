// The entry dialog of any register, opened from the list of its book.

#include "registers/books/frmPropiedadesLibro.h"
#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

class ListedEntry : public EntryWorld {
 protected:
  void openBook(std::int32_t id, forms::ScriptedUser::Act act) {
    w.user.expectForm("frmPropiedadesLibro" + word(), [act](FormDriver& d) {
      d.tab("mstLibro", frmPropiedadesLibro::TAB_PARTIDAS);
      act(d);
    });
    const auto dialog = propiedadesDeLibro(k.s)(w.contexto);
    dialog->conBaseDatos = &w.con();
    dialog->lngLibro = id;
    dialog->Show();
  }
  void press(FormDriver& d, int which, forms::ScriptedUser::Act act) {
    w.user.expectForm("frmPartida" + word(), std::move(act));
    d.click("cmdPartidas(" + std::to_string(which) + ")");
  }
};
INSTANTIATE_TEST_SUITE_P(Registers, ListedEntry, EVERY_ENTRY, wordOf);

TEST_P(ListedEntry, WorkingCopy_TakesNewAndCorrectedEntriesAndStoresThemWithTheBook) {
  const std::int32_t libro = book("Libro 1");
  entry("Luis", libro, 1, "1");
  openBook(libro, [&](FormDriver& d) {
    press(d, 0, [&](FormDriver& e) {
      EXPECT_TRUE(e.locked(list(k.institution)) && e.locked(list(k.book)));
      EXPECT_FALSE(e.enabled("cmdAltaInstitucion"));
      typePerson(e, "Ana", "Otro", "Más");
      acceptNew(e, Answer::Yes);
      EXPECT_EQ(e.text("txtLibro(1)"), "3");
      typePerson(e, "Ana", "Otro", "Más");
      if (!k.asksOnce) w.user.expectMessage(k.blanks, Answer::Yes);
      w.user.expectMessage(
          "La partida de Ana Otro Más ya existe en el libro correspondiente, ¿Quiere continuar?",
          Answer::No);
      accept(e);
      cancel(e);
    });
    d.row("msgPartidas", 1);
    press(d, 1, [&](FormDriver& e) {
      tab(e, k.personTab);
      e.type(name(), "Luis María");
      acceptEdit(e);
    });
    auto& grid = d.get<forms::Grid>("msgPartidas");
    EXPECT_EQ(grid.cell(1, 2) + ", " + grid.cell(2, 2), "Luis María, Ana");
    EXPECT_EQ(entries(), 1);
    d.click("cmdBoton(0)");
  });
  EXPECT_EQ(entries(), 2);
  EXPECT_EQ(entries("Folio=2 AND Numero=\"2\""), 1);
  for (const char* who : {"Luis María", "Ana"})
    EXPECT_EQ(w.count(std::string(k.person) + " WHERE Nombre=\"" + who + "\""), 1) << who;
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_P(ListedEntry, OldBook_IsCopiedIntoAndOnlyMarkedUntilItIsAccepted) {
  const std::int32_t libro = book("Antiguo", false);
  openBook(libro, [&](FormDriver& d) {
    press(d, 0, [&](FormDriver& e) {
      EXPECT_EQ(e.caption(), std::string(k.oldCaption) + k.position);
      EXPECT_FALSE(e.locked("txtLibro(1)"));
      EXPECT_TRUE(e.visible(text(k.notes)));
      typePerson(e, "Luis");
      acceptOld(e, Answer::No);
    });
    d.row("msgPartidas", 1);
    d.click("cmdPartidas(2)");
    EXPECT_EQ(entries(), 0);
    d.click("cmdBoton(0)");
  });
  EXPECT_EQ(entries("Anulada=true"), 1);
  EXPECT_EQ(bookValue("FolioSiguiente"), "2");
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace fidaleon::tests
