// The operations on entries and requests, in every register: which locks they take and how a
// refusal ends, what may be annulled and deleted.

#include "core/facade/FacadeWorld.h"
#include "registers/Rows.h"
#include "registers/requests/OrigenSolicitudes.h"
#include "store/FailingEngine.h"
#include "store/schema/Schema.h"

namespace fidaleon::tests::RegistersTest {

constexpr const char* BORRAR = "¿Está seguro que desea eliminar la partida?";
constexpr const char* NO_SE_PUEDE = "¡Esta partida no se puede eliminar!";

/// A parish with an open new book and one entry in it, both with the key 1.
struct RegisterWorld : TestWorld {
  explicit RegisterWorld(const Sacramento* sacrament) : s(*sacrament) {
    parish = institucion("San Pedro");
    insertBook(*this, s, parish);
    insertEntry(*this, s, {"Ana", 1, 12, "23", 0, {}});
  }
  std::string sql(const PlantillaSql& text) const { return sentencia(s, text); }
  void run(const std::string& statement) { con().Execute(statement); }
  std::int32_t another(int folio, const std::string& number) {
    return insertEntry(*this, s, {"Eva", 1, folio, number, 0, {}});
  }
  void makeRequest() {
    run(sql("UPDATE {Partidas} SET CodLibro=0, InstitucionSolicitud=") + std::to_string(parish));
  }
  std::string entries() const { return std::string("Partidas") + s.palabra; }
  std::string requests() const { return std::string("Solicitudes") + s.palabra; }
  std::string dialog() const { return std::string("frmPartida") + s.palabra; }
  std::string button(int index) const {
    return std::string("cmd") + s.palabra + "(" + std::to_string(index) + ")";
  }
  std::int64_t annulled() { return count(sql("{Partidas} WHERE Anulada = true")); }

  const Sacramento& s;
  std::int32_t parish = 0;
};

using Real = WithFacade<RegisterWorld>;
using Spied = WithSpy<RegisterWorld>;

class RegisterFacade : public ::testing::TestWithParam<const Sacramento*> {
 protected:
  bool hasRequests() const { return origenSolicitudes(GetParam()) != nullptr; }
  /// The dialog comes in this mode and is cancelled.
  template <class World>
  static void expect(World& w, const char* mode) {
    w.user.expectForm(w.dialog(), [&w, mode](FormDriver& u) {
      EXPECT_THAT(u.caption(), HasSubstr(mode));
      u.click(w.button(1));
    });
  }
};

TEST_P(RegisterFacade, EachOperation_OpensItsModeUnderItsLocks) {
  Spied w(GetParam());
  const std::string entry = w.sql(
      "{Partidas} [1] existe [SELECT {IDPartida} FROM {Partidas} "
      "WHERE {IDPartida}=1");
  const std::string book = w.sql("SELECT CodLibro FROM {Partidas} WHERE {IDPartida}=1");
  expect(w, " nueva");
  w.nucleo.NuevaPartida(w.con(), w.config, w.entries());
  EXPECT_THAT(w.bloqueos(),
              ElementsAre("Institucion compartida", "Provincia compartida", "Municipio compartida",
                          w.sql("{Libros} [SELECT {IDLibro} FROM {Libros} WHERE  Nuevo = True AND "
                                "Cerrado = False]"),
                          w.s.tablaPartidas, "efectuar", "liberar"));
  w.spy.log.clear();
  expect(w, " antigua");
  w.nucleo.AntiguaPartida(w.con(), w.config, w.entries());
  EXPECT_THAT(w.bloqueos(),
              ElementsAre("Institucion compartida", "Provincia compartida", "Municipio compartida",
                          w.sql("{Libros} [SELECT {IDLibro} FROM {Libros} WHERE Nuevo = False]"),
                          w.s.tablaPartidas, "efectuar", "liberar"));
  w.spy.log.clear();
  expect(w, "Propiedades de partida");
  w.nucleo.PropiedadesPartida(w.con(), 1, w.config, w.entries());
  EXPECT_THAT(
      w.bloqueos(),
      ElementsAre("Provincia compartida", "Municipio compartida",
                  w.sql("Institucion parcial [SELECT CodInstitucion FROM {Libros} WHERE {IDLibro} "
                        "IN (") +
                      book + ")]",
                  w.sql("{Libros} parcial [") + book + "]", entry + "]", "efectuar", "liberar"));
  w.spy.log.clear();
  w.nucleo.AnularPartidas(w.con(), 1, w.config, w.entries());
  EXPECT_THAT(w.bloqueos(), ElementsAre(entry + "]", "efectuar", "liberar"));
  w.spy.log.clear();
  if (hasRequests()) {
    w.makeRequest();
    expect(w, " solicitud de");
    w.nucleo.NuevaSolicitud(w.con(), w.config, w.requests());
    EXPECT_THAT(w.bloqueos(),
                ElementsAre("Institucion compartida", "Provincia compartida",
                            "Municipio compartida", w.s.tablaPartidas, "efectuar", "liberar"));
    w.spy.log.clear();
    expect(w, "Propiedades de solicitud");
    w.nucleo.PropiedadesSolicitudes(w.con(), 1, w.config, w.requests());
    EXPECT_THAT(w.bloqueos(), ElementsAre("Institucion compartida", "Provincia compartida",
                                          "Municipio compartida", entry + " AND CodLibro=0]",
                                          "efectuar", "liberar"));
  }
}

TEST_P(RegisterFacade, Refused_EndsSilentlyAndGivesNothingBack) {
  Spied w(GetParam());
  const auto refused = [&](long error, const auto& operation) {
    w.spy.answers = {error};
    w.spy.log.clear();
    operation();
    EXPECT_EQ(w.bloqueos().back(), "efectuar");
  };
  const auto open = [&] { w.nucleo.PropiedadesPartida(w.con(), 1, w.config, w.entries()); };
  refused(FDAPI::BloqueoTabla, [&] { w.nucleo.NuevaPartida(w.con(), w.config, w.entries()); });
  refused(FDAPI::BloqueoTabla, [&] { w.nucleo.AntiguaPartida(w.con(), w.config, w.entries()); });
  refused(FDAPI::BloqueoTabla, [&] { w.nucleo.AnularPartidas(w.con(), 1, w.config, w.entries()); });
  refused(FDAPI::BloqueoRegistroNoExiste, open);
  refused(FDAPI::BloqueoSesion, open);
  if (hasRequests())
    refused(FDAPI::BloqueoTabla, [&] { w.nucleo.NuevaSolicitud(w.con(), w.config, w.requests()); });
  EXPECT_EQ(w.annulled(), 0);
}

TEST_P(RegisterFacade, HeldByAnother_OpensWithTheCancelButtonOnly) {
  for (const long error : {FDAPI::BloqueoRegistro, FDAPI::BloqueoRegistroConPadres,
                           FDAPI::BloqueoTabla, FDAPI::BloqueoCompartido}) {
    Spied w(GetParam());
    w.spy.answers = {error};
    const auto onlyCancel = [&](FormDriver& u) {
      for (forms::Control* control : u.form().controls()) {
        if (!dynamic_cast<forms::Button*>(control)) continue;
        const bool on = control->name() == w.button(1) || control->name() == "cmdReintentar";
        EXPECT_EQ(control->enabled(), on) << control->name();
      }
      u.click(w.button(1));
    };
    w.user.expectForm(w.dialog(), onlyCancel);
    w.nucleo.PropiedadesPartida(w.con(), 1, w.config, w.entries());
    if (hasRequests()) {
      w.makeRequest();
      w.user.expectForm(w.dialog(), onlyCancel);
      w.nucleo.PropiedadesSolicitudes(w.con(), 1, w.config, w.requests());
    }
    EXPECT_EQ(w.bloqueos().back(), "liberar");
  }
}

TEST_P(RegisterFacade, OpenElsewhere_IsReadOnlyUntilTriedAgainAndNotEvenAskedToBeDeleted) {
  Real w(GetParam());
  auto other = w.ocupar(w.s.tablaPartidas, "1");
  w.user.answerAnything(Answer::Yes);
  w.nucleo.EliminarPartida(w.con(), 1, w.config, w.entries());
  w.nucleo.EliminarSolicitud(w.con(), 1, w.config, w.requests());
  EXPECT_EQ(w.user.messages().size(), hasRequests() ? 2u : 1u) << "one refusal each";
  w.user.expectForm(w.dialog(), [&](FormDriver& u) {
    EXPECT_EQ(u.text("lblSoloLectura"),
              "Solo se puede consultar: lo tiene luis, en el equipo SACRISTIA, desde el 22/11/2026 "
              "a las 10:30.");
    EXPECT_FALSE(u.enabled(w.button(0)));
    u.click("cmdReintentar");
    EXPECT_FALSE(u.closed());
    w.run(w.sql("UPDATE {Partidas} SET Anulada=true"));
    other.reset();
    u.click("cmdReintentar");
    EXPECT_TRUE(u.closed());
  });
  w.user.expectForm(w.dialog(), [&](FormDriver& u) {
    EXPECT_TRUE(u.visible("lblPartidaAnulada")) << "as it is now";
    EXPECT_EQ(u.form().find("cmdReintentar"), nullptr);
    u.click(w.button(1));
  });
  w.nucleo.PropiedadesPartida(w.con(), 1, w.config, w.entries());
  EXPECT_EQ(w.count(w.s.tablaPartidas), 1);
  w.nucleo.PropiedadesPartida(w.con(), 99, w.config, w.entries());  // gone: opens nothing
  w.esperarLibre(w.s);
}

TEST_P(RegisterFacade, OperationThatFails_IsReportedUnderItsNameAndHoldsNothing) {
  Real w(GetParam());
  store::FailingEngine::wrap(w.con())->failOn(w.sql("FROM {Libros} WHERE  Nuevo"));
  w.user.answerAnything(Answer::Ok);
  w.nucleo.NuevaPartida(w.con(), w.config, w.entries());
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text, HasSubstr("FidaleonNucleo / cNucleo / NuevaPartida"));
  w.esperarLibre(w.s);
}

TEST_P(RegisterFacade, Annulled_IsAskedByTheTableAndLeftAloneWhenAnotherDeskWasFirst) {
  Real w(GetParam());
  const auto ask = [&](bool seen, bool otherDesk) {
    return [&w, seen, otherDesk](bool annulled) {
      EXPECT_EQ(annulled, seen);
      if (otherDesk) w.run(w.sql("UPDATE {Partidas} SET Anulada=") + (annulled ? "0" : "1"));
      return true;
    };
  };
  w.nucleo.AnularPartidas(w.con(), 1, w.config, w.entries());
  EXPECT_EQ(w.annulled(), 1);
  w.nucleo.AnularPartidas(w.con(), 1, w.config, w.entries(), ask(true, false));
  EXPECT_EQ(w.annulled(), 0);
  for (const char* done : {"anulado", "validado"}) {
    w.user.expectMessage(std::string("Otro puesto ya ha ") + done +
                         " esta partida: no se ha cambiado nada.");
    const bool valid = std::string(done) == "anulado";
    w.nucleo.AnularPartidas(w.con(), 1, w.config, w.entries(), ask(!valid, true));
    EXPECT_EQ(w.annulled(), valid ? 1 : 0);
  }
  w.esperarLibre(w.s);
}

TEST_P(RegisterFacade, OpenNewBook_LosesOnlyTheLastByValueOfNumber) {
  Real w(GetParam());
  w.run(w.sql("UPDATE {Partidas} SET Folio = 1, Numero = \"1\""));
  const std::int32_t ten = w.another(1, "10");
  const std::int32_t two = w.another(1, "2");
  for (const std::int32_t id : {1, two}) {
    w.user.expectMessage(NO_SE_PUEDE);
    w.nucleo.EliminarPartida(w.con(), id, w.config, w.entries());
  }
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Exclamation);
  for (const std::int32_t id : {ten, two}) {
    w.user.expectMessage(BORRAR, Answer::Yes);
    w.nucleo.EliminarPartida(w.con(), id, w.config, w.entries());
  }
  w.run(w.sql("UPDATE {Libros} SET Cerrado = true"));
  w.user.expectMessage(NO_SE_PUEDE);
  w.nucleo.EliminarPartida(w.con(), 1, w.config, w.entries());
  EXPECT_EQ(w.count(w.s.tablaPartidas), 1);
  w.esperarLibre(w.s);
}

TEST_P(RegisterFacade, BookChangedWhileTheQuestionStood_KeepsTheEntry) {
  for (const bool closes : {true, false}) {
    Real w(GetParam());
    w.user.expectMessage(BORRAR, Answer::Yes, [&] {
      if (closes) return w.run(w.sql("UPDATE {Libros} SET Cerrado = true"));
      w.another(90, "90");
    });
    w.user.expectMessage(NO_SE_PUEDE);
    w.nucleo.EliminarPartida(w.con(), 1, w.config, w.entries());
    EXPECT_EQ(w.count(w.sql("{Partidas} WHERE {IDPartida} = 1")), 1);
    w.esperarLibre(w.s);
  }
}

TEST_P(RegisterFacade, OldBook_LosesAnyEntryWithAllItsRowsAndCountsFromOne) {
  Real w(GetParam());
  w.run(
      w.sql("UPDATE {Libros} SET Nuevo = 0, Cerrado = 1, FolioSiguiente = 9, "
            "NumeroSiguiente = \"40\""));
  w.another(90, "1");
  for (const Answer answer : {Answer::No, Answer::Yes}) {
    w.user.expectMessage(BORRAR, answer);
    w.nucleo.EliminarPartida(w.con(), 1, w.config, w.entries());
    for (const store::Table& t : w.con().schema().tables()) {
      // The answers of an examination have rows of their own, and only where there are any.
      if (!t.name().starts_with(w.s.tablaPartidas) || t.name().ends_with("_Cursos")) continue;
      EXPECT_EQ(w.count(t.name()), answer == Answer::No ? 2 : 1) << t.name();
    }
  }
  EXPECT_EQ(w.count(w.sql("{Libros} WHERE FolioSiguiente=1 AND NumeroSiguiente=\"1\"")), 1);
  w.esperarLibre(w.s);
}

TEST_P(RegisterFacade, MovingRequests_HoldsTheInstitutionsAndThenTheBookAndItsEntries) {
  Spied w(GetParam());
  if (!hasRequests()) return w.nucleo.ImportarSolicitudes(w.con(), w.config, w.requests());
  w.user.expectMessage("¡No hay solicitudes para importar!");
  w.nucleo.ImportarSolicitudes(w.con(), w.config, w.requests());
  EXPECT_THAT(w.bloqueos(), ElementsAre("Institucion compartida", "efectuar", "liberar"));
  w.makeRequest();
  store::FailingEngine::wrap(w.con())->failOn(w.sql("UPDATE {Partidas} SET InstitucionSolicitud"));
  w.user.answerAnything(Answer::Ok);
  w.user.expectForm("frmSolicitudes", [&](FormDriver& u) {
    u.choose("cboInstitucion", "San Pedro");
    u.tab("mstSolicitudes", 1);
    u.click("cmdMover(1)");
    for (const bool fails : {true, false}) {
      w.spy.log.clear();
      u.click("cmdBoton(0)");
      EXPECT_THAT(w.bloqueos(),
                  ElementsAre(w.sql("{Libros} [1] existe [SELECT {IDLibro} FROM {Libros} WHERE "
                                    "{IDLibro}=1]"),
                              w.s.tablaPartidas, "efectuar", "liberar"));
      EXPECT_EQ(u.closed(), !fails);
    }
  });
  w.nucleo.ImportarSolicitudes(w.con(), w.config, w.requests());
  EXPECT_EQ(w.count(w.sql("{Partidas} WHERE CodLibro=1 AND Numero=\"1\"")), 1);
  EXPECT_THAT(w.user.messages().back().text, HasSubstr(": folio 1, número 1"));
}

TEST_P(RegisterFacade, RequestMovedIntoABookMeanwhile_IsNoRequestAnyMore) {
  Real w(GetParam());  // its entry is in the book by now
  const std::string gone =
      "Esta solicitud ya no está: otro puesto la ha pasado a un libro o la ha eliminado. Actualice "
      "la lista.";
  for (int i = 0; hasRequests() && i < 2; ++i) w.user.expectMessage(gone);
  w.nucleo.EliminarSolicitud(w.con(), 1, w.config, w.requests());
  w.nucleo.PropiedadesSolicitudes(w.con(), 1, w.config, w.requests());
  EXPECT_EQ(w.count(w.sql("{Partidas} WHERE CodLibro = 1")), 1);
  w.esperarLibre(w.s);
}

INSTANTIATE_TEST_SUITE_P(Registers, RegisterFacade,
                         ::testing::Values(&BAUTISMO, &CONFIRMACION, &MATRIMONIO, &DEFUNCION),
                         [](const auto& p) { return std::string(p.param->palabra); });

}  // namespace fidaleon::tests::RegistersTest
