// Entries that have lost one of their rows.

#include "registers/BaptismWorld.h"
#include "registers/repair/frmPartidasIncompletas.h"

namespace fidaleon::tests {

class IncompleteEntries : public BaptismWorld {
 protected:
  void SetUp() override {
    cBautismo request = record("Ana", 0, 0, "---");
    request.Operacion = cCOperacion::ANADIRSOLICITUD;
    asked = store(request);
    w.con().Execute("DELETE * FROM bautismo_hijo WHERE codbautismo=" + std::to_string(childless));
    w.con().Execute("INSERT INTO bautismo_hijo (nombre) VALUES (\"Sin partida\")");
    w.con().Execute("DELETE * FROM bautismo_madres WHERE idmadres=" + column(asked, "codmadres"));
  }
  void show(forms::ScriptedUser::Act act) {
    w.user.expectForm("frmPartidasIncompletas", std::move(act));
    frmPartidasIncompletas dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.abrir = [this](const PartidaIncompleta& p) { opened.push_back(p.id); };
    dialog.Show();
  }
  static std::vector<std::string> row(FormDriver& d, int n) {
    std::vector<std::string> cells;
    for (int i = 0; i < 7; ++i) cells.push_back(d.get<forms::Grid>("msgPartidas").cell(n, i));
    return cells;
  }
  static int rows(FormDriver& d) { return d.get<forms::Grid>("msgPartidas").rowCount(); }

  std::int32_t libro = book("Libro 1", true, 3);
  std::int32_t whole = store(record("Eva", libro, 1, "1"));
  std::int32_t childless = store(record("Luis", libro, 2, "2"));
  std::int32_t asked = 0;
  std::vector<std::int32_t> opened;
};

TEST_F(IncompleteEntries, Completed_HaveTheirRowsAgainAndAreOpened) {
  show([&](FormDriver& d) {
    ASSERT_EQ(rows(d), 2);
    EXPECT_THAT(row(d, 1),
                ::testing::ElementsAre("Bautismo", "Libro 1", "2", "2", "10/05/1999", "bautizado",
                                       "padre: Juan García; madre: Ana Pérez"));
    EXPECT_THAT(row(d, 2),
                ::testing::ElementsAre("Bautismo", "(solicitud)", "", "", "10/05/1999", "madre",
                                       "bautizado: Ana García Pérez; padre: Juan García"));
    d.click("cmdBoton(0)");
    ASSERT_EQ(rows(d), 1);
    d.click("cmdBoton(0)");
    EXPECT_TRUE(d.closed()) << "nothing is left to do";
  });
  EXPECT_THAT(opened, ::testing::ElementsAre(childless, asked));
  EXPECT_EQ(column(childless, "nombre", "bautismo_hijo", "codbautismo"), "---");
  EXPECT_EQ(column(std::stoi(column(asked, "codmadres")), "nombre", "bautismo_madres", "idmadres"),
            "---");
  ColeccionBautismo items;
  cBaseDatos(w.contexto).GrabarBasedatosColeccion(w.con(), libro, items);
  EXPECT_EQ(items.size(), 2u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(IncompleteEntries, Removed_GoWithTheRowsThatNobodyElseUses) {
  w.con().Execute("UPDATE bautismo SET codpadres=" + column(whole, "codpadres"));
  show([&](FormDriver& d) {
    const char* sure = "¿Está seguro que desea eliminar la partida?";
    w.user.expectMessage(sure, Answer::No);
    d.click("cmdBoton(1)");
    EXPECT_EQ(w.user.messages().back().below,
              "Libro Libro 1, folio 2, número 2. Le falta: bautizado.\n"
              "Se perderá lo que queda de ella: padre: Juan García; madre: Ana Pérez.");
    EXPECT_EQ(w.user.messages().back().byEnter, Answer::No);
    EXPECT_EQ(w.count("bautismo"), 3);
    w.user.expectMessage(sure, Answer::Yes);
    d.click("cmdBoton(1)");
    EXPECT_EQ(rows(d), 1);
    d.click("cmdBoton(2)");
  });
  EXPECT_EQ(w.count("bautismo"), 2);
  EXPECT_EQ(w.count("bautismo_madres"), 1);
  EXPECT_EQ(w.count("bautismo_padres WHERE idpadres=" + column(whole, "codpadres")), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(IncompleteEntries, HeldOrMendedElsewhere_AreLeftAlone) {
  auto other = w.otherSession();
  FDAPI::DefinicionBloqueo table;
  table.strTabla = "Bautismo";
  other->DefinirBloqueo(table);
  show([&](FormDriver& d) {
    ASSERT_EQ(other->lngEfectuarBloqueos(), 0);
    w.user.answerAnything(Answer::Yes);
    for (const char* button : {"cmdBoton(0)", "cmdBoton(1)"}) d.click(button);
    EXPECT_EQ(rows(d), 2);
    other->LiberarBloqueos();
    w.con().Execute("DELETE * FROM bautismo WHERE idbautismo=" + std::to_string(childless));
    d.click("cmdBoton(1)");
    EXPECT_EQ(w.user.messages().back().text,
              "Esta partida ya no está incompleta: alguien la ha completado o eliminado.");
    EXPECT_EQ(rows(d), 1);
    d.click("cmdBoton(2)");
  });
  EXPECT_THAT(opened, ::testing::IsEmpty());
  EXPECT_EQ(w.count("bautismo"), 2);
}

}  // namespace fidaleon::tests
