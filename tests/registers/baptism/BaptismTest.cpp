// What the dialog of baptisms has of its own: family, wedding, editions.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

using P = frmPartidaBautismo;

class Baptism : public EntryHands {
 protected:
  explicit Baptism(const char* edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID)
      : EntryHands(BAPTISM_ENTRY, edition) {}

  std::int32_t store(const std::string& who, int position,
                     const std::function<void(cBautismo&)>& change = {}) {
    cBautismo b = recordOf<OfBaptism>(who, libro, position, std::to_string(position));
    b.CodPoblacionPadres = town;
    if (change) change(b);
    ColeccionBautismo items{std::move(b)};
    bool jump = false;
    EXPECT_TRUE(cBaseDatos(w.contexto).GrabarColeccionBasesDatos(w.con(), items, jump));
    return items.front().IDBautismo;
  }
  void type(FormDriver& d, P::Pestana page, int field, const std::string& value) {
    tab(d, page);
    d.type(text(field), value);
  }
  std::string stored(const std::string& column, const std::string& table) {
    return w.value("SELECT " + column + " FROM bautismo" + table);
  }

  std::int32_t libro = book("Libro 1");
};

TEST_F(Baptism, FieldsOfAllTabs_ReachTheirRows) {
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Luis");
    d.choose(list(P::Sexo), "Hombre");
    d.type("txtHoraNac", "9:05");
    type(d, P::TAB_PADRE, P::NombrePadre, "Juan");
    type(d, P::TAB_MADRE, P::NombreMadre, "Ana");
    acceptNew(d, Answer::No);
  });
  EXPECT_EQ(stored("FechaBautismo", "") + stored("Padrino", ""), "20261122---");
  EXPECT_EQ(stored("Sexo", "_hijo") + stored("HoraNac", "_hijo"), "Hombre09:05");
  EXPECT_EQ(stored("Nombre", "_padres") + stored("Nombre", "_madres"), "JuanAna");
  EXPECT_EQ(stored("PrimerApellido", "_padres") + stored("PrimerApellido", "_madres"),
            "GarcíaPérez");
}

TEST_F(Baptism, BirthAndWeddingOfToday_AreAskedAboutUntilTheyAreTyped) {
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    type(d, P::TAB_BAUTIZADO, P::NombreHijo, "Luis");
    d.type(text(P::PrimerApellidoHijo), "García");
    w.user.expectMessage(
        "La fecha de nacimiento y la fecha de la boda de los padres siguen siendo la de hoy "
        "(22/11/2026). ¿Es correcto?");
    d.ctrlEnter();
    EXPECT_EQ(w.user.messages().back().byEnter, Answer::No);
    EXPECT_EQ(d.focused(), date(P::FechaNac));
    d.type(date(P::FechaNac), "22/11/2026");  // today indeed
    w.user.expectMessage(
        "La fecha de la boda de los padres sigue siendo la de hoy (22/11/2026). ¿Es correcto?",
        Answer::Yes);
    w.user.expectMessage(k.blanks, Answer::No);
    accept(d);
  });
}

TEST_F(Baptism, DatesThatCannotBe_AreNamedOnceAndNotRefused) {
  book("Antiguo", false);
  const auto refused = [&](FormDriver& d, const char* below) {
    w.user.expectMessage("Hay fechas que no pueden ser. ¿Desea guardarlas así?");
    accept(d);
    EXPECT_EQ(w.user.messages().back().below, below);
  };
  const auto typeDate = [&](FormDriver& d, P::Pestana page, int field, const char* day) {
    tab(d, page);
    d.type(date(field), day);
  };
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    typePerson(d, "Eva");
    d.type(date(P::FechaNac), "6/7/1961");
    typeDate(d, P::TAB_MATRIMONIO, P::FechaMatr, "1/1/1499");
    typeDate(d, P::TAB_BAUTISMO, P::FechaBautismo, "23/11/2026");
    refused(d,
            "La fecha de la boda de los padres (01/01/1499) es anterior al año 1500.\n"
            "La fecha de bautismo (23/11/2026) es posterior a hoy.");
    EXPECT_EQ(d.focused(), date(P::FechaMatr));
    d.type(date(P::FechaMatr), "");
    typeDate(d, P::TAB_BAUTISMO, P::FechaBautismo, "5/7/1961");
    refused(d,
            "La fecha de nacimiento (06/07/1961) es posterior a la fecha de bautismo "
            "(05/07/1961).");
    acceptOld(d, Answer::No);
  });
  EXPECT_EQ(stored("FechaNac", "_hijo"), "19610706");
}

TEST_F(Baptism, OldTexts_SurviveACorrection) {
  const std::int32_t id = store("Luis", 1);
  for (const char* row :
       {"Libro_Bautismo SET Nombre='El \"Viejo\"'", "bautismo SET parroquia='\"La Luz\"'",
        "bautismo_padres SET abuela='Ana \"la\" d''Ors'",
        "bautismo_hijo SET sexo='Varón', horanac='al alba', fechanac='1890'"})
    w.con().Execute(std::string("UPDATE ") + row);
  edit(id, [&](FormDriver& d) {
    EXPECT_EQ(d.text(list(P::ProvinciaPadre + 1)), "Alcalá de Henares");
    EXPECT_EQ(d.text(list(P::Sexo)), "") << "which the list does not know";
    type(d, P::TAB_BAUTIZADO, P::DireccionNac, "Calle Real");
    type(d, P::TAB_PADRE, P::TelefonoPadre, "600");
    type(d, P::TAB_MADRE, P::TelefonoMadre, "700");
    accept(d);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(stored("TelefonoPadre", "_padres") + stored("TelefonoMadre", "_madres"), "600700");
  EXPECT_EQ(stored("Abuela", "_padres"), "Ana \"la\" d'Ors");
  EXPECT_EQ(stored("Parroquia", ""), "\"La Luz\"");
  EXPECT_EQ(stored("Sexo", "_hijo") + stored("HoraNac", "_hijo") + stored("FechaNac", "_hijo"),
            "Varónal alba1890");
  EXPECT_EQ(stored("DireccionNac", "_hijo"), "Calle Real");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "El \"Viejo\"");
    EXPECT_EQ(d.text("txtLibro(1)"), "2");
  });
}

TEST_F(Baptism, SecondChild_TakesTheParentsOverIntoRowsOfItsOwn) {
  store("Luis", 1, [&](cBautismo& b) {
    b.AbueloPadres = "Tomás García";
    b.FechaMatrMatrimonio = "19980606";
    b.TelefonoPadre = "611";
  });
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    w.user.expectForm("frmBuscaPadres", [&](FormDriver& hits) {
      hits.get<forms::Grid>("msgBusquedaPadres").setColumnWidth(0, 2000);
      hits.click("cmdBoton(0)");
    });
    typePerson(d, "Eva");
    for (const int field : {P::DireccionNac, P::SegundoApellidoHijo, P::DireccionNac})
      d.focus(text(field));  // the same pair of surnames is not looked for again
    EXPECT_EQ(d.text(text(P::NombrePadre)) + d.text(text(P::AbueloPaterno)), "JuanTomás García");
    EXPECT_EQ(d.text(date(P::FechaMatr)), "06/06/1998");
    EXPECT_EQ(d.text(text(P::TelefonoPadre)), "");
    d.focus(list(P::ProvinciaNac + 1));
    d.enter();
    EXPECT_EQ(d.focused(), text(P::ParroquiaMatrimonio)) << "the parents are known; been there";
    acceptNew(d, Answer::No);
  });
  EXPECT_EQ(w.count("bautismo_padres WHERE Abuelo=\"Tomás García\""), 2);
  EXPECT_EQ(w.count("bautismo_matrimonio WHERE FechaMatr=\"19980606\""), 2);
  EXPECT_EQ(w.settings.read("Fidaleon", "ana\\Castellano\\Grids\\BuscaPadres\\BuscaPadres", "0"),
            "2000");
}

TEST_F(Baptism, SecondOfTwoChildren_IsTheSameBaptismUnlessHourOrTelephoneDiffer) {
  store("Eva", 1);
  store("Iván", 2);
  for (const bool hour : {true, false})
    open(cCOperacion::ANADIR, [&](FormDriver& d) {
      chooseBook(d, "Libro 1");
      w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) {
        hits.row("msgBusquedaPadres", 2);
        hits.click("cmdBoton(0)");
      });
      typePerson(d, "Iván");
      d.choose(list(P::Sexo), "Hombre");
      d.type(date(P::FechaNac), "");
      tab(d, P::TAB_BAUTISMO);
      d.type(date(P::FechaBautismo), "10/05/1999");
      w.user.expectMessage(k.blanks, Answer::Yes);
      w.user.expectMessage(
          "La partida de Iván García Pérez ya existe en el libro correspondiente, "
          "¿Quiere continuar?",
          Answer::No);
      accept(d);
      tab(d, P::TAB_BAUTIZADO);
      if (hour)
        d.type("txtHoraNac", "9:05");
      else
        type(d, P::TAB_PADRE, P::TelefonoPadre, "600 000 000");
      acceptNew(d, Answer::No);
    });
  EXPECT_EQ(entries(), 4);
}

TEST_F(Baptism, EntryWithoutItsChild_IsGoneOnWithAndLeavesTheBrothersRowsAlone) {
  store("Luis", 1);
  const std::string father = stored("IDPadres", "_padres");
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Eva", "Otro", "Más");
    store::FailingEngine::wrap(w.con())->failOn("INSERT INTO bautismo_hijo",
                                                store::ErrorKind::DiskFull);
    w.user.answerAnything(Answer::Yes);
    accept(d);
    EXPECT_FALSE(d.closed());
    // Meanwhile she finds the brother.
    w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) { hits.click("cmdBoton(0)"); });
    typePerson(d, "Eva María");
    type(d, P::TAB_PADRE, P::NombrePadre, "Pablo");
    acceptNew(d, Answer::No);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(entries(), 2);
  EXPECT_EQ(w.count("bautismo_hijo WHERE Nombre=\"Eva María\""), 1);
  EXPECT_EQ(stored("Nombre", "_padres WHERE IDPadres=" + father), "Juan");
  EXPECT_EQ(stored("Nombre", "_padres WHERE IDPadres<>" + father), "Pablo");
}

struct Edition {
  const char* name;
  const char* key;
  const char* hidden;
  struct Field {
    P::Pestana page;
    const char* control;
    const char* value;
  };
  std::vector<Field> fields;
  std::vector<std::pair<const char*, const char*>> stored;
};

class BaptismOfAnEdition : public Baptism, public ::testing::WithParamInterface<Edition> {
 protected:
  BaptismOfAnEdition() : Baptism(GetParam().key) {}
};

TEST_P(BaptismOfAnEdition, ItsOwnFields_AreShownAndStored) {
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    typePerson(d, "Luis");
    EXPECT_FALSE(d.visible(GetParam().hidden));
    for (const Edition::Field& f : GetParam().fields) {
      tab(d, f.page);
      std::string(f.control).starts_with("cbo") ? d.choose(f.control, f.value)
                                                : d.type(f.control, f.value);
    }
    acceptNew(d, Answer::No);
  });
  for (const auto& [column, value] : GetParam().stored)
    EXPECT_EQ(w.value(std::string("SELECT ") + column), value) << column;
}

INSTANTIATE_TEST_SUITE_P(
    Editions, BaptismOfAnEdition,
    ::testing::Values(Edition{"Santiago",
                              FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO,
                              "txtSC(12)",
                              {{P::TAB_PADRE, "txtSC(2)", "San Froilán"},
                               {P::TAB_PADRE, "cboBautismo(24)", "Madrid"},
                               {P::TAB_PADRE, "cboBautismo(25)", "Alcalá de Henares"},
                               {P::TAB_PADRE, "txtSC(5)", "Santa Ana"},
                               {P::TAB_BAUTISMO, "txtSC(8)", "4x2"}},
                              {{"PadreParroquiaBaut FROM bautismo_padres", "San Froilán"},
                               {"PadreCodMunicipioParrBaut FROM bautismo_padres", "1"},
                               {"AbuelaPatParroquiaBaut FROM bautismo_padres", "Santa Ana"},
                               {"EdadPadrino FROM bautismo", "42"},
                               {"EdadMadrina FROM bautismo", "---"}}},
                      Edition{"Menorca",
                              FDAPI::cCAplicacion::APP_FIDALEON_MENORCA,
                              "txtSC(2)",
                              {{P::TAB_BAUTISMO, "txtSC(13)", "Maestra"},
                               {P::TAB_BAUTISMO, "txtSC(15)", "Ciutadella"},
                               {P::TAB_BAUTISMO, "txtSC(17)", "casada"}},
                              {{"ProfesionMadrina FROM bautismo", "Maestra"},
                               {"NaturalMadrina FROM bautismo", "Ciutadella"},
                               {"EstatMadrina FROM bautismo", "casada"},
                               {"EstatPadrino FROM bautismo", "---"}}}),
    [](const auto& p) { return std::string(p.param.name); });

}  // namespace fidaleon::tests
