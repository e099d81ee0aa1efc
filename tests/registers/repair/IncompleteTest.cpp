// Entries that have lost one of their rows or their institution.

#include "registers/PropertiesWorld.h"
#include "registers/repair/frmPartidasIncompletas.h"

namespace fidaleon::tests {

class IncompleteEntries : public PropertiesWorld {
 protected:
  void SetUp() override {
    fill(libro, {"Rosa", "Luis"});
    EXPECT_TRUE(r.add(w, "Ana", 0, 0, "---"));
    w.con().Execute(sql("UPDATE {Partidas} SET InstitucionSolicitud=") + std::to_string(parish));
    lose(2);
    lose(3);
  }
  /// The rows of entry `id`, which comes into being with it.
  void lose(std::int32_t id) {
    w.con().Execute("DELETE * FROM " + r.childTable + " WHERE " + r.childKey + "=" +
                    std::to_string(id));
  }
  void show(Act act) {
    w.user.expectForm("frmPartidasIncompletas", std::move(act));
    frmPartidasIncompletas dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.abrir = [this](const PartidaIncompleta& p) { opened.push_back(p.id); };
    dialog.Show();
  }
  static std::vector<std::string> row(FormDriver& d, int n) {
    std::vector<std::string> cells;
    for (int i = 0; i < 6; ++i) cells.push_back(grid(d).cell(n, i));
    return cells;
  }
  std::string lost() const {
    for (const FilaDePartida& f : formaPartida(k.s)->filas)
      if (text::equalsNoCase(f.tabla, r.childTable)) return f.nombre;
    return {};
  }
  /// What stands in the entry's own row is there still.
  std::string dayLeft() const { return &k.s == &BAUTISMO ? "10/05/1999" : ""; }

  std::int32_t libro = book({"Libro 1", true, 3});
  std::vector<std::int32_t> opened;
};

TEST_P(IncompleteEntries, Completed_HaveTheirRowsAgainAndAreOpened) {
  const std::string name = formaPartida(k.s)->registro;
  show([&](FormDriver& d) {
    ASSERT_EQ(grid(d).rowCount(), 2);
    EXPECT_THAT(row(d, 1), ElementsAre(name, "Libro 1", "2", "2", dayLeft(), lost()));
    EXPECT_THAT(row(d, 2), ElementsAre(name, "(solicitud)", "", "", dayLeft(), lost()));
    d.click("cmdBoton(0)");
    ASSERT_EQ(grid(d).rowCount(), 1);
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed()) << "nothing is left to do";
  });
  EXPECT_THAT(opened, ElementsAre(2, 3));
  openBook(libro, [&](FormDriver& d) {
    EXPECT_EQ(grid(d).rowCount(), 2);
    cancelBook(d);
  });
}

TEST_P(IncompleteEntries, Removed_GoWithAllTheirRows) {
  show([&](FormDriver& d) {
    const char* sure = "¿Está seguro que desea eliminar la partida?";
    w.user.expectMessage(sure, Answer::No);
    d.click("cmdBoton(1)");
    const auto& question = w.user.messages().back();
    EXPECT_THAT(question.below, StartsWith("Libro Libro 1, folio 2, número 2. Le falta: " + lost() +
                                           ".\nSe perderá lo que queda de "));
    EXPECT_THAT(question.below, EndsWith(&k.s == &BAUTISMO ? "padre: Juan García; madre: Ana Pérez."
                                         : &k.s == &MATRIMONIO ? "novia: Eva Sanz."
                                                               : "Luis García Pérez."));
    EXPECT_EQ(question.byEnter, Answer::No);
    EXPECT_EQ(entries(), 3);
    w.user.expectMessage(sure, Answer::Yes);
    d.click("cmdBoton(1)");
    EXPECT_EQ(grid(d).rowCount(), 1);
    d.click("cmdBoton(2)");
  });
  for (const FilaDePartida& f : formaPartida(k.s)->filas)
    EXPECT_EQ(w.count(f.tabla), text::equalsNoCase(f.tabla, r.childTable) ? 1 : 2) << f.tabla;
}

TEST_P(IncompleteEntries, WithoutInstitutionOrBook_AreGivenTheChosenOne) {
  const std::int32_t gone = book({"Libro 2", true, 3});
  EXPECT_TRUE(r.add(w, "Eva", gone, 1, "1"));
  w.con().Execute(sql("DELETE * FROM {Libros} WHERE {IDLibro}=") + std::to_string(gone));
  w.con().Execute(sql("UPDATE {Libros} SET CodInstitucion=99"));
  w.con().Execute(sql("UPDATE {Partidas} SET InstitucionSolicitud=99"));
  w.institucion("San Juan");
  w.con().Execute("UPDATE Institucion SET IDInstitucion=300 WHERE Nombre=\"San Juan\"");
  const std::string name = formaPartida(k.s)->registro;
  show([&](FormDriver& d) {
    ASSERT_EQ(grid(d).rowCount(), 4);
    EXPECT_THAT(row(d, 1), ElementsAre(name, "Libro 1", "", "", "01/01/1990", "institución"));
    EXPECT_THAT(row(d, 2), ElementsAre(name, "(ya no existe)", "", "", "", "libro, institución"));
    EXPECT_EQ(grid(d).cell(2, 6), "una partida");
    EXPECT_EQ(grid(d).cell(3, 5), lost()) << "the institution is that of its book";
    EXPECT_EQ(grid(d).cell(4, 5), lost() + ", institución");
    w.user.answerAnything(Answer::Ok);
    for (const char* button : {"cmdBoton(0)", "cmdBoton(1)"}) d.click(button);
    ASSERT_EQ(grid(d).rowCount(), 4) << "none is chosen, and a book is not removed from here";
    d.row("msgPartidas", 4);
    d.choose("cboInstitucion", "San Juan");
    d.click("cmdBoton(0)");
    ASSERT_EQ(grid(d).rowCount(), 4) << "a request does not hold that key";
    d.row("msgPartidas", 1);
    d.choose("cboInstitucion", "San Pedro");
    for (int i = 0; i < 4; ++i) d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed());
  });
  EXPECT_THAT(opened, ElementsAre(0, 0, 2, 3));
  EXPECT_EQ(w.value(sql("SELECT Nombre FROM {Libros} WHERE {IDLibro}=") + std::to_string(gone)),
            "Recuperado 2");
  EXPECT_EQ(w.count(sql("{Libros} WHERE CodInstitucion=") + std::to_string(parish)), 2);
  EXPECT_EQ(entries("InstitucionSolicitud=" + std::to_string(parish)), 1);
}

TEST_P(IncompleteEntries, HeldOrMendedElsewhere_AreLeftAlone) {
  auto other = w.otherSession();
  FDAPI::DefinicionBloqueo table;
  table.strTabla = k.s.tablaPartidas;
  other->DefinirBloqueo(table);
  show([&](FormDriver& d) {
    ASSERT_EQ(other->lngEfectuarBloqueos(), 0);
    w.user.answerAnything(Answer::Yes);
    for (const char* button : {"cmdBoton(0)", "cmdBoton(1)"}) d.click(button);
    EXPECT_EQ(grid(d).rowCount(), 2);
    other->LiberarBloqueos();
    w.con().Execute(sql("DELETE * FROM {Partidas} WHERE {IDPartida}=2"));
    d.click("cmdBoton(1)");
    EXPECT_EQ(w.user.messages().back().text,
              "Esta partida ya no está incompleta: alguien la ha completado o eliminado.");
    EXPECT_EQ(grid(d).rowCount(), 1);
    d.click("cmdBoton(2)");
  });
  EXPECT_THAT(opened, IsEmpty());
  EXPECT_EQ(entries(), 2);
}

INSTANTIATE_TEST_SUITE_P(Registers, IncompleteEntries, ::testing::ValuesIn(registers()),
                         nameOfRegister);

}  // namespace fidaleon::tests
