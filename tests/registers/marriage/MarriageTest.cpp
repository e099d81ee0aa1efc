// What the dialog of marriages does beside what all registers do.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

class Marriage : public EntryHands, public ::testing::WithParamInterface<const char*> {
 protected:
  explicit Marriage(const char* edition = FDAPI::cCAplicacion::APP_FIDALEON_MADRID)
      : EntryHands(MARRIAGE_ENTRY, edition) {}
  static std::string of(int spouse, int field) {
    return "txtMatrimonio(" + std::to_string(spouse + field) + ")";
  }
  /// The tab of a spouse.
  void to(FormDriver& d, int spouse, int page) const {
    tab(d, page + (spouse == DM::NOVIA ? DM::TABS_DE_NOVIA : 0));
  }
  void born(FormDriver& d, int spouse, const char* day) const {
    to(d, spouse, DM::TAB_PERSONALES);
    d.type(date(spouse + DM::FechaNac), day);
  }
  std::string stored(const std::string& column, const std::string& table) {
    return w.value("SELECT " + column + " FROM Matrimonio_" + table);
  }
};

TEST_F(Marriage, OnlyTheNames_AreAskedForAndTheRestIsDashesAndDefaults) {
  open(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
    d.choose(list(k.institution), "San Pedro");
    for (const int spouse : DM::CONTRAYENTES) {
      to(d, spouse, DM::TAB_PERSONALES);
      d.type(of(spouse, DM::Nombre), "Alex");
      d.type(of(spouse, DM::PrimerApellido), spouse == DM::NOVIA ? "Sanz" : "García");
    }
    EXPECT_FALSE(d.visible(text(DM::NotasMarginales)));
    w.user.expectMessage("La fecha de la boda sigue siendo la de hoy (22/11/2026). ¿Es correcto?",
                         Answer::Yes);
    acceptAfter(d, true, "¿Desea dar de alta nuevas solicitudes?", Answer::No);
  });
  for (const std::string spouse : {"Novios", "Novias"}) {
    EXPECT_EQ(stored("Edad", spouse), "0");
    EXPECT_EQ(stored("Religion", spouse), "católica");
    EXPECT_EQ(stored("CodMunicipioActual", spouse), "0");
    EXPECT_EQ(stored("EstadoCivil", spouse + "_RegCivil"),
              spouse == "Novios" ? "soltero" : "soltera");
  }
  EXPECT_EQ(stored("NombrePadre", "Novias_RegCivil"), "--- Sanz ---");
  EXPECT_EQ(stored("FolioBaut", "Novios_Bautismo"), "0");
  EXPECT_EQ(stored("Demarcacion", "Compromiso"), "---");
}

TEST_F(Marriage, Ages_AreFullYearsOnTheWeddingDayUnlessTheDayOfBirthIsNotKnown) {
  book("Antiguo", false);
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    typePerson(d, "Luis");
    tab(d, DM::TAB_COMPROMISO);
    d.type(date(DM::FechaMatrimonio), "10/05/1920");
    born(d, DM::NOVIO, "11/05/1895");
    EXPECT_EQ(d.text(of(DM::NOVIO, DM::Edad)), "24");
    tab(d, DM::TAB_COMPROMISO);
    d.type(date(DM::FechaMatrimonio), "11/05/1920");
    to(d, DM::NOVIA, DM::TAB_PERSONALES);
    d.type(of(DM::NOVIA, DM::Edad), "22");
    acceptOld(d, Answer::Yes);
    typePerson(d, "Juan");
    acceptOld(d, Answer::No);
  });
  EXPECT_EQ(w.count("Matrimonio_Novios WHERE Nombre=\"Luis\" AND Edad=\"25\""), 1);
  EXPECT_EQ(w.count("Matrimonio_Novias WHERE Edad=\"22\""), 1);
  EXPECT_EQ(w.count("Matrimonio_Novias WHERE Edad=\"0\""), 1) << "not that of the bride before";
}

TEST_F(Marriage, Fields_AreCompletedOnLeavingAndRefusedWhereTheyWouldNotFit) {
  book("Antiguo", false);
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d, "Antiguo");
    typePerson(d, "Luis");
    to(d, DM::NOVIO, DM::TAB_PERSONALES);
    d.type(of(DM::NOVIO, DM::DNI), "1234567-L");
    d.focus(of(DM::NOVIO, DM::Religion));
    EXPECT_EQ(d.text(of(DM::NOVIO, DM::DNI)), "01234567-L");
    w.user.expectMessage(
        "¡Si ha introducido un DNI, separe la letra de los números con un -. Si está ya separada, "
        "el DNI introducido no es correcto. Si no ha introducido un DNI continue!");
    d.type(of(DM::NOVIO, DM::DNI), "12345678-A");
    d.focus(of(DM::NOVIO, DM::Religion));
    to(d, DM::NOVIA, DM::TAB_OTROS);
    const int address = DM::NOVIA + DM::ProvinciaActual;
    d.choose(list(address), "Madrid");
    d.choose(list(address + 1), "Alcalá de Henares");
    d.type(of(DM::NOVIA, DM::TResidenciaDomAct), "256");
    EXPECT_EQ(d.text(of(DM::NOVIA, DM::PoblacionExhorto)), "Alcalá de Henares");
    tab(d, DM::TAB_COMPROMISO);
    EXPECT_FALSE(d.enabled(text(DM::Demarcacion)));
    d.get<forms::CheckBox>("chkLugar").setValue(true);
    d.type(text(DM::Demarcacion), "Santa María");
    w.user.expectMessage("«TIEMPO DE RESIDENCIA» no puede pasar de 255.");
    accept(d);
    EXPECT_EQ(d.focused(), of(DM::NOVIA, DM::TResidenciaDomAct));
    d.type(of(DM::NOVIA, DM::TResidenciaDomAct), "255");
    acceptOld(d, Answer::No);
  });
  EXPECT_EQ(stored("TResidenciaDomAct", "Novias"), "255");
  EXPECT_EQ(stored("Demarcacion", "Compromiso"), "Santa María");
}

class MarriageOfAnEdition : public Marriage {
 protected:
  MarriageOfAnEdition() : Marriage(GetParam()) {}
};

TEST_P(MarriageOfAnEdition, Fields_AreThoseOfTheEdition) {
  const std::string edition = GetParam();
  open(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
    for (const int field :
         {int{DM::Profesion}, DM::NOVIA + DM::SujetoDerecho, int{DM::TestigosParroquia}})
      EXPECT_EQ(d.visible(text(field)), edition == FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO);
    const bool menorca = edition == FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
    for (const int field : {DM::Padrino, DM::Testigos}) EXPECT_EQ(d.visible(text(field)), !menorca);
    for (const int field : {DM::CPCompromiso, DM::Testigo2NaturalDe})
      EXPECT_EQ(d.visible(text(field)), menorca);
    cancel(d);
  });
}

INSTANTIATE_TEST_SUITE_P(Editions, MarriageOfAnEdition,
                         ::testing::Values(FDAPI::cCAplicacion::APP_FIDALEON_MADRID,
                                           FDAPI::cCAplicacion::APP_FIDALEON_SANTIAGO,
                                           FDAPI::cCAplicacion::APP_FIDALEON_MENORCA));

}  // namespace fidaleon::tests
