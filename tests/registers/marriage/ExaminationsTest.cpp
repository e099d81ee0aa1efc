// The sworn examinations: typed, stored with a marriage that has no key yet, read again.

#include "registers/entry/EntryWorld.h"
#include "registers/marriage/Examenes.h"

namespace fidaleon::tests {

class Examinations : public EntryHands {
 protected:
  Examinations() : EntryHands(MARRIAGE_ENTRY) {}
  static void answer(FormDriver& d, const std::string& given) {
    d.tab("mstMatrimonio", DM::TAB_EXAMENES);
    d.tab("mstExamenes", EXAMEN_GENERAL);
    d.type("txtExamenDatosGenerales(31)", given);
    d.tab("mstExamenes", EXAMEN_TESTIGO2);
    d.type("txtExamenTestigo2(22)", given);
  }
  void typeRequest(FormDriver& d) {
    d.choose(list(k.institution), "San Pedro");
    typePerson(d, "Luis");
    answer(d, "D'Ors");
    w.user.expectMessage(k.blanks, Answer::Yes);
  }
  /// How many persons of the marriage with that key answered so.
  std::int64_t answers(std::int32_t marriage, const std::string& given) {
    std::int64_t rows = 0;
    for (auto row = w.con().Execute("SELECT * FROM Matrimonio_Cursos WHERE CodMatrimonio=" +
                                    std::to_string(marriage));
         !row.EOF_(); row.MoveNext())
      rows += row.text("31") == given || row.text("22") == given;
    return rows;
  }
};

TEST_F(Examinations, Answered_AreStoredWithoutKeyAndUnderItAndReadAgain) {
  open(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
    typeRequest(d);
    EXPECT_EQ(d.get<forms::TabStrip>("mstMatrimonio").note(DM::TAB_OTROS), "Luis García Pérez");
    w.user.expectMessage("¿Desea dar de alta nuevas solicitudes?", Answer::Yes);
    accept(d);
    EXPECT_EQ(d.text("txtExamenTestigo2(22)"), "");
    cancel(d);
  });
  EXPECT_EQ(answers(0, "D'Ors"), 2);
  EXPECT_EQ(answers(1, "D'Ors"), 2);
  w.con().Execute("UPDATE Matrimonio_Cursos SET 23 = 'sobra' WHERE CodMatrimonio=1");
  open(
      cCOperacion::EDITARSOLICITUD,
      [&](FormDriver& d) {
        EXPECT_EQ(d.text("txtExamenTestigo2(22)"), "D'Ors");
        answer(d, "Otra");
        accept(d);
      },
      1);
  EXPECT_EQ(answers(1, "Otra"), 2);
  EXPECT_EQ(w.count("Matrimonio_Cursos"), 8);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST_F(Examinations, StoringThatFails_KeepsTheAnswersInTheDialogAndTheMarriageOnce) {
  auto* faults = store::FailingEngine::wrap(w.con());
  w.user.answerAnything(Answer::Ok);
  open(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
    typeRequest(d);
    for (const char* step : {"INSERT INTO Matrimonio_Cursos", "SELECT 0 FROM Matrimonio_Cursos"}) {
      faults->failOn(step, store::ErrorKind::DiskFull);
      accept(d);
      ASSERT_FALSE(d.closed()) << step;
    }
    EXPECT_THAT(w.user.messages(),
                Contains(::testing::Field(&forms::Message::text, HasSubstr("sus exámenes no"))));
    accept(d);
  });
  EXPECT_EQ(answers(1, "D'Ors"), 2);
  EXPECT_EQ(entries(), 1);
}

TEST_F(Examinations, OfAnEntryThatAListAdds_WaitForItsKey) {
  RespuestasExamen given = respuestasEnBlanco();
  given[EXAMEN_TESTIGO1][22] = "Nada\r\nmás";
  ColeccionMatrimonio items{recordOf<OfMarriage>("Luis", 0, 0, "---")};
  items[0].ExamenesEnEspera = textoDeExamenes(given);
  bool jump = false;
  cBaseDatos db(w.contexto);
  w.user.answerAnything(Answer::Ok);
  store::FailingEngine::wrap(w.con())->failOn("INSERT INTO Matrimonio_Cursos");
  EXPECT_FALSE(db.GrabarColeccionBaseDatosMatrimonio(w.con(), items, jump));
  EXPECT_EQ(items[0].Operacion, cCOperacion::EDITAR) << "and the list still asks about it";
  ASSERT_TRUE(db.GrabarColeccionBaseDatosMatrimonio(w.con(), items, jump));
  EXPECT_EQ(CargarExamenes(w.con(), items[0].IDMatrimonio), given);
}

}  // namespace fidaleon::tests
