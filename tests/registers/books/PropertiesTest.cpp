// The data of a book in its dialog: showing, changing, refusing, cancelling.

#include "registers/PropertiesWorld.h"

namespace fidaleon::tests {

using ::testing::ElementsAreArray;

class BookData : public PropertiesWorld {
 protected:
  std::string bookColumn(std::int32_t id, const std::string& name) {
    return w.value("SELECT " + name + sql(" FROM {Libros} WHERE {IDLibro}=") + std::to_string(id));
  }
  void setType(std::int32_t id, int type) {
    w.con().Execute(sql("UPDATE {Libros} SET CodTipoNombre=") + std::to_string(type) +
                    sql(" WHERE {IDLibro}=") + std::to_string(id));
  }
};

TEST_P(BookData, Dialog_ShowsTheBookAndItsEntries) {
  const std::int32_t nuevo = book({"2003/01", true, 2, false, "20030115"});
  setType(nuevo, 1);
  fill(nuevo, {"Luis", "Eva", "Ana"}, 2);
  const bool marriage = &k.s == &MATRIMONIO;
  openBook(nuevo, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "2003/01 (Libro Nuevo)");
    EXPECT_EQ(d.text("txtInstitucion"), "San Pedro");
    EXPECT_EQ(d.text("txtFormato"),
              w.value("SELECT Descripcion FROM Libros_Formato WHERE IdFormato=2"));
    EXPECT_EQ(d.text("txtNombreLibro"), "2003/01");
    EXPECT_EQ(d.get<forms::ComboBox>("cboTipoNombre").data(), 1);
    EXPECT_TRUE(d.locked("txtNombreLibro"));
    EXPECT_EQ(d.text("txtFolios"), "2") << "two entries on one folio count once";
    EXPECT_EQ(d.text("dtpFecha"), "15/01/2003");
    const forms::Grid& g = grid(d);
    const Rows persons = marriage ? Rows{"Nombre Novio=Luis",          "1er Apellido Novio=García",
                                         "2º Apellido Novio=Pérez",    "Nombre Novia=Eva",
                                         "1er Apellido Novia=Sanz",    "2º Apellido Novia=---",
                                         "Fecha Matrimonio=10/05/1999"}
                                  : Rows{"Nombre=Luis", "1er Apellido=García", "2º Apellido=Pérez",
                                         "Fecha=10/05/1999"};
    Rows cells;
    for (int c = 0; c < g.columns(); ++c) cells.push_back(g.header(c) + "=" + g.cell(1, c));
    EXPECT_THAT(Rows(cells.begin() + 2, cells.end() - 1), ElementsAreArray(persons));
    EXPECT_EQ(cells[0] + cells[1] + cells.back(), "Folio=1Número=1Anulada=NO");
    EXPECT_EQ(g.columnWidth(g.columns() - 2), marriage ? 1410 : 1200);
    d.tab("mstLibro", 1);
    EXPECT_EQ(d.focused(), "cmdPartidas(0)");
    d.tab("mstLibro", 0);
    EXPECT_EQ(d.focused(), "cboTipoNombre");
    d.get<forms::Grid>("msgPartidas").setColumnWidth(2, 2222);
    d.escape();
    EXPECT_TRUE(d.closed()) << "nothing was changed, nothing is asked";
  });
  EXPECT_EQ(w.settings.read("Fidaleon",
                            "ana\\Castellano\\Grids\\Propiedades Libros\\PropiedadesLibro" +
                                std::string(marriage ? "Matrimonio" : ""),
                            "2"),
            "2222");
}

TEST_P(BookData, NameType_GivesTheNameAndBringsTheOldOneBack) {
  book({"7", false, 1});
  const std::int32_t antiguo = book({"Libro viejo", false, 1});
  setType(antiguo, 4);
  openBook(antiguo, [&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Libro viejo (Libro Antiguo)");
    auto& types = d.get<forms::ComboBox>("cboTipoNombre");
    EXPECT_EQ(types.listCount(), 3);
    EXPECT_EQ(types.data(), 4);
    EXPECT_FALSE(d.locked("txtNombreLibro"));
    d.type("txtNombreLibro", "Libro \"grande\"");
    d.chooseData("cboTipoNombre", 3);
    EXPECT_EQ(d.text("txtNombreLibro"), "I");
    EXPECT_TRUE(d.locked("txtNombreLibro"));
    d.chooseData("cboTipoNombre", 4);
    EXPECT_EQ(d.text("txtNombreLibro"), "Libro viejo");
    EXPECT_FALSE(d.locked("txtNombreLibro"));
    d.chooseData("cboTipoNombre", 2);
    EXPECT_EQ(d.text("txtNombreLibro"), "1");
    d.type("dtpFecha", "3/2/1898");
    acceptBook(d);
  });
  EXPECT_EQ(bookColumn(antiguo, "Nombre"), "1");
  EXPECT_EQ(bookColumn(antiguo, "CodTipoNombre"), "2");
  EXPECT_EQ(bookColumn(antiguo, "FechaCreacion"), "18980203");
}

TEST_P(BookData, NameThatCannotBeBuilt_FallsBackToAFreeOne) {
  const std::int32_t nuevo = book({"Primero", true, 3});
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  openBook(nuevo, [&](FormDriver& d) {
    faults->failOn(sql("SELECT Nombre FROM {Libros} WHERE CodInstitucion"));
    d.chooseData("cboTipoNombre", 1);
    EXPECT_EQ(d.get<forms::ComboBox>("cboTipoNombre").data(), 4);
    EXPECT_FALSE(d.locked("txtNombreLibro"));
    EXPECT_EQ(d.text("txtNombreLibro"), "Primero");
    cancelBook(d);
  });
}

TEST_P(BookData, RefusedAcceptance_KeepsEverythingInTheDialog) {
  for (const char* otro : {"Otro", "Libroviejo"}) book({otro, false, 1});
  const std::int32_t antiguo = book({"Libro viejo", false, 1});
  changeBook(antiguo, [&](FormDriver& d) {
    add(d, "Ana", true);
    d.tab("mstLibro", 0);
    d.type("txtNombreLibro", "o tro");
    w.user.expectMessage("¡El nombre del libro introducido ya existe!");
    acceptBook(d);
    for (const char* nombre : {"", "   "}) {
      d.type("txtNombreLibro", nombre);
      d.tab("mstLibro", 1);
      w.user.expectMessage("Falta rellenar el campo «Nombre del libro».");
      acceptBook(d);
      EXPECT_EQ(d.focused(), "txtNombreLibro");
    }
    d.type("txtNombreLibro", "Libro viejo");
    d.type("dtpFecha", "");
    w.user.expectMessage("Falta rellenar el campo «Fecha de creación».");
    acceptBook(d);
    EXPECT_EQ(entries(), 0);
    d.type("dtpFecha", "1/1/1950");
  });
  EXPECT_EQ(entries(), 1);
  EXPECT_EQ(bookColumn(antiguo, "FechaCreacion"), "19500101");
}

TEST_P(BookData, BookGoneMeanwhile_IsNamedAndNothingIsStored) {
  const std::int32_t antiguo = book({"Libro viejo", false, 1});
  openBook(antiguo, [&](FormDriver& d) {
    toEntries(d);
    add(d, "Ana", true);
    w.con().Execute(sql("DELETE * FROM {Libros}"));
    w.user.expectMessage(
        "Ya no existe, porque se ha eliminado desde otro puesto:\n\nel libro «Libro viejo»\n\nLo "
        "que ha escrito sigue aquí. Sin ello no se puede guardar.");
    acceptBook(d);
    EXPECT_EQ(grid(d).rowCount(), 1);
    w.user.expectMessage(LOSE_CHANGES, Answer::Yes);
    cancelBook(d);
  });
  EXPECT_EQ(entries(), 0);
}

TEST_P(BookData, BookWithoutADate_StaysAcceptable) {
  const std::int32_t antiguo = book({"Sin fecha", false, 1, false, "---"});
  openBook(antiguo, [&](FormDriver& d) {
    EXPECT_EQ(d.text("dtpFecha"), "");
    acceptBook(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(bookColumn(antiguo, "FechaCreacion"), "---");
}

TEST_P(BookData, DateMovedByALaterEntry_IsNotPutBack) {
  const std::int32_t antiguo = book({"Antiguo", false, 1, false, "19000101"});
  changeBook(antiguo, [&](FormDriver& d) {
    add(d, "Ana", true, k.movesTheBook);
    EXPECT_EQ(d.text("dtpFecha"), k.movesTheBook);
  });
  EXPECT_EQ(bookColumn(antiguo, "FechaCreacion"),
            text::toStored(*text::parseShort(k.movesTheBook)));
}

TEST_P(BookData, Cancelling_AsksOnlyWhenEntriesWereChanged) {
  const std::int32_t nuevo = book({"Libro 1", true, 3});
  fill(nuevo, {"Luis"});
  openBook(nuevo, [&](FormDriver& d) {
    d.type("txtNombreLibro", "Cambiado");  // no entry
    toEntries(d);
    w.user.expectForm(dialog(), [this](FormDriver& e) { accept(e); });  // opened, nothing changed
    d.doubleClick("msgPartidas", 1);
    cancelBook(d);
    EXPECT_TRUE(d.closed());
  });
  openBook(nuevo, [&](FormDriver& d) {
    toEntries(d);
    rename(d, 1, "Luis", "Lucas");
    w.user.expectMessage(LOSE_CHANGES, Answer::No);
    d.close();
    EXPECT_FALSE(d.closed());
    w.user.expectMessage(LOSE_CHANGES, Answer::Yes);
    d.escape();
  });
  EXPECT_EQ(bookColumn(nuevo, "Nombre"), "Libro 1");
  EXPECT_EQ(w.value("SELECT Nombre FROM " + nameTable()), "Luis");
}

TEST_P(BookData, BookThatCannotBeStored_StaysOpenWithItsEntriesSaved) {
  const std::int32_t nuevo = book({"Libro 1", true, 3});
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  openBook(nuevo, [&](FormDriver& d) {
    d.type("txtNombreLibro", "Nuevo nombre");
    toEntries(d);
    add(d, "Ana");
    faults->failOn(sql("Update {Libros} Set codTipoNombre"), store::ErrorKind::Busy);
    acceptBook(d);
    EXPECT_FALSE(d.closed());
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("GuardarDatos()"));
    acceptBook(d);
  });
  EXPECT_EQ(bookColumn(nuevo, "Nombre"), "Nuevo nombre");
  EXPECT_THAT(stored(nuevo), ElementsAre("1/1 Ana"));
}

TEST_P(BookData, HeldByAnother_OnlyWhatIsFreeCanBeChanged) {
  const std::int32_t nuevo = book({"Libro 1", true, 3});
  fill(nuevo, {"Luis"});
  const auto open = [&](const auto& limit, Act act) {
    w.user.expectForm("frmPropiedadesLibro" + word(), std::move(act));
    const auto book = bookDialog(nuevo);
    book->Load();
    limit(*book);
    book->Show();
  };
  open([](frmPropiedadesLibro& d) { d.sinNombre(); },
       [&](FormDriver& d) {
         EXPECT_FALSE(d.enabled("txtNombreLibro"));
         EXPECT_FALSE(d.enabled("cboTipoNombre"));
         toEntries(d);
         rename(d, 1, "Luis", "Lucas");
         acceptBook(d);
       });
  open(
      [](frmPropiedadesLibro& d) {
        d.setReadOnly({"Lo tiene luis.", {}});
      },
      [&](FormDriver& d) {
        EXPECT_TRUE(d.locked("txtNombreLibro"));
        d.tab("mstLibro", 1);
        EXPECT_EQ(d.focused(), "msgPartidas");
        for (int i = 0; i < 4; ++i)
          EXPECT_FALSE(d.enabled("cmdPartidas(" + std::to_string(i) + ")")) << i;
        d.doubleClick("msgPartidas", 1);
        d.row("msgPartidas", 1);
        d.enter();
        EXPECT_FALSE(d.closed());
        d.escape();
      });
  EXPECT_EQ(w.value("SELECT Nombre FROM " + nameTable()), "Lucas");
}

INSTANTIATE_TEST_SUITE_P(Registers, BookData, ::testing::ValuesIn(registers()), nameOfRegister);

}  // namespace fidaleon::tests
