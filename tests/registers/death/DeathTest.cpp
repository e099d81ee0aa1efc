// What the dialog of deaths has of its own.

#include "registers/Rows.h"
#include "registers/death/frmPartidaDefuncion.h"

namespace fidaleon::tests {

using FDAPI::cCOperacion;
using FDAPI::cCOrigen;
using forms::Answer;
using forms::FormDriver;
using P = frmPartidaDefuncion;

constexpr const char* EMPTY_FIELDS =
    "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea continuar?";
constexpr const char* FURTHER = "¿Desea dar de alta nuevas partidas?";

class Death : public ::testing::Test {
 protected:
  void open(cCOperacion operation, forms::ScriptedUser::Act act, std::int32_t id = 0) {
    w.user.expectForm("frmPartidaDefuncion", std::move(act));
    P dialog(w.contexto);
    dialog.conBaseDatos = &w.con();
    dialog.lngID = id;
    dialog.Operacion = operation;
    dialog.Origen = cCOrigen::PRINCIPAL;
    dialog.Show();
  }
  static std::string text(P::Texto field) { return "txtDefuncion(" + std::to_string(field) + ")"; }
  static void accept(FormDriver& d) { d.click("cmdDefuncion(0)"); }
  static void cancel(FormDriver& d) { d.click("cmdDefuncion(1)"); }
  static void chooseBook(FormDriver& d) {
    d.choose("cboDefuncion(8)", "San Pedro");
    d.choose("cboDefuncion(9)", "Libro 1");
  }
  static void typePerson(FormDriver& d, const std::string& name) {
    d.tab("mstDefuncion", P::TAB_DIFUNTO);
    d.type(text(P::Nombre), name);
    d.type(text(P::PrimerApellido), "García");
    d.type(text(P::SegundoApellido), "Pérez");
    d.type("adtpDefuncion(1)", "20/11/2026");
  }
  std::int32_t entry(const std::string& name, bool isNew) {
    return insertEntry(w, DEFUNCION,
                       {name, insertBook(w, DEFUNCION, parish, {"Libro 1", isNew}), 1, "1"});
  }
  std::string stored(const std::string& column) {
    return w.value("SELECT " + column +
                   " FROM Defuncion, Defuncion_Datos WHERE CodDifunto=IDDifunto");
  }

  TestWorld w;
  std::int32_t town = w.municipio("Alcalá de Henares", "Madrid");
  std::int32_t parish = w.institucion("San Pedro", town);
};

TEST_F(Death, New_BeginsWithTheInstitutionAndStoresWhatIsKnown) {
  insertBook(w, DEFUNCION, parish);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d);
    EXPECT_EQ(d.caption(), "Alta de partida de defunción nueva. Folio:1, número:1");
    EXPECT_FALSE(d.visible("cmdDefuncion(2)"));
    EXPECT_FALSE(d.visible(text(P::NotasMarginales)));
    EXPECT_EQ(d.text(text(P::Parroquia)), "San Pedro");
    EXPECT_EQ(d.text(text(P::Sacerdote)), "Pedro Ruiz Sanz");
    for (const char* townList : {"1", "3", "5", "7"})
      EXPECT_EQ(d.text("cboDefuncion(" + std::string(townList) + ")"), "Alcalá de Henares");
    typePerson(d, "Ana");
    d.type("txtHoraDefuncion", "0715");
    d.tab("mstDefuncion", P::TAB_FAMILIA);
    EXPECT_EQ(d.text(text(P::NombrePadre)), "--- García ---");
    EXPECT_EQ(d.text(text(P::NombreMadre)), "--- Pérez ---");
    d.type(text(P::NumeroHijos), "2x");
    EXPECT_EQ(w.user.beeps(), 1) << "digits alone";
    d.type(text(P::RelacionDifunto), "Hija");
    w.user.expectMessage(EMPTY_FIELDS, Answer::No);
    accept(d);
    w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
    w.user.expectMessage(FURTHER, Answer::Yes);
    accept(d);
    EXPECT_EQ(d.text("txtLibro(1)") + "/" + d.text("txtLibro(2)"), "2/2");
    EXPECT_EQ(d.text(text(P::Nombre)) + d.text(text(P::NombrePadre)), "");
    EXPECT_EQ(d.text(text(P::Parroco)), "Pedro Ruiz Sanz") << "what the institution says stays";
    typePerson(d, "Eva");
    w.user.expectMessage(FURTHER, Answer::No);
    accept(d);  // what was agreed to once is not asked again
  });
  EXPECT_EQ(w.count("Defuncion WHERE CodMunicipioParr=" + std::to_string(town)), 2);
  w.con().Execute("DELETE * FROM Defuncion WHERE Nombre=\"Eva\"");
  EXPECT_EQ(stored("FechaDefuncion") + stored("HoraDefuncion") + stored("FechaInhumacion"),
            "2026112007:1520261122");
  EXPECT_EQ(stored("Causa") + stored("NumeroHijos") + stored("RelacionDifunto"), "---2Hija");
  EXPECT_EQ(stored("NotasMarginales") + stored("NombreContacto"), "------");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(Death, BurialBeforeTheDeath_IsAskedAboutAndNothingStored) {
  insertBook(w, DEFUNCION, parish);
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d);
    typePerson(d, "Ana");
    d.type("adtpDefuncion(1)", "22/11/2026");
    d.tab("mstDefuncion", P::TAB_PARROQUIA);
    d.type("adtpDefuncion(0)", "21/11/2026");
    w.user.expectMessage("Hay fechas que no pueden ser. ¿Desea guardarlas así?", Answer::No);
    accept(d);
    cancel(d);
  });
  EXPECT_EQ(w.count("Defuncion"), 0);
}

TEST_F(Death, BaptismFound_BringsBirthAndParentsAndNothingElse) {
  insertBook(w, DEFUNCION, parish);
  insertEntry(
      w, BAUTISMO,
      {"Ana", insertBook(w, BAUTISMO, parish, {"B", false, 1, false, "19500101"}), 4, "12"});
  w.con().Execute("UPDATE Bautismo_Hijo SET CodMunicipioNac=" +
                  std::to_string(w.municipio("Getafe", "Madrid")));
  open(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d);
    w.user.expectForm("frmBuscaPadres", [](FormDriver& hits) {
      EXPECT_EQ(hits.caption(), "Búsqueda por García Pérez");
      hits.click("cmdBoton(0)");
    });
    typePerson(d, "Anita");
    EXPECT_EQ(d.text(text(P::Nombre)), "Ana");
    EXPECT_EQ(d.text(text(P::NombrePadre)), "Juan García");
    EXPECT_EQ(d.text("cboDefuncion(7)"), "Getafe");
    EXPECT_EQ(d.text("cboDefuncion(3)"), "Alcalá de Henares");
    EXPECT_EQ(d.text(text(P::DomicilioActual)), "");
    cancel(d);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(Death, Corrected_AsksOnlyForBlankTexts) {
  const std::int32_t id = entry("Ana", true);
  for (const char* cause : {"Vejez", "Pulmonía"})
    open(
        cCOperacion::EDITAR,
        [&](FormDriver& d) {
          d.tab("mstDefuncion", P::TAB_DIFUNTO);
          d.type(text(P::Causa), cause);
          if (cause == std::string("Vejez")) w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
          accept(d);  // the second time the lists and dates alone are blank
        },
        id);
  EXPECT_EQ(stored("Causa") + stored("EstadoCivil"), "Pulmonía---");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(Death, FirstEntryOfAnOldBook_TakesItsDateBack) {
  insertBook(w, DEFUNCION, parish, {"Libro 1", false, 3, false, "19500101"});
  w.user.answerAnything(Answer::Yes);
  open(cCOperacion::ANTIGUA, [&](FormDriver& d) {
    chooseBook(d);
    typePerson(d, "Ana");
    d.type("adtpDefuncion(1)", "01/01/1890");
    accept(d);
    cancel(d);
  });
  EXPECT_EQ(w.value("SELECT FechaCreacion FROM Libro_Defuncion"), "18900101");
}

TEST_F(Death, TypedFolioAboveTheLimit_IsRefusedUnlessItStoodThere) {
  w.contexto.guardarAjuste("documentos", "DOCUMENTOS_MAXPAGLIBRO", "5");
  const std::int32_t id = entry("Ana", false);
  w.con().Execute("UPDATE Defuncion SET Folio=9");
  const char* limit = "¡Ha llegado al límite de folios establecidos para un libro!";
  open(
      cCOperacion::EDITAR,
      [&](FormDriver& d) {
        d.type("txtLibro(1)", "7");
        d.tab("mstDefuncion", P::TAB_NOTAS);
        w.user.expectMessage(limit);
        accept(d);
        EXPECT_EQ(d.get<forms::TabStrip>("mstDefuncion").tab(), 0);
        d.type("txtLibro(1)", "9");
        w.user.expectMessage(EMPTY_FIELDS, Answer::Yes);
        accept(d);
        EXPECT_TRUE(d.closed());
      },
      id);
  EXPECT_EQ(stored("Folio"), "9");
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace fidaleon::tests
