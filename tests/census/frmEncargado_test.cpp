#include "census/setup/frmEncargado.h"

#include "support/TestWorld.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;

constexpr const char* PREGUNTA =
    "Especifique el nombre de la persona encargada del archivo parroquial.\n"
    "Advertencia: Longitud máxima 120 caracteres.";

struct EncargadoWorld : TestWorld {
  EncargadoWorld() {
    parroquia = institucion("San Ginés");
    con().Execute(
        "INSERT INTO Libro_Bautismo (CodInstitucion, CodFormato, CodTipoNombre, Nombre) VALUES (" +
        std::to_string(parroquia) + ", 3, 1, \"2003/01\")");
    con().Execute("INSERT INTO Bautismo (CodLibro, Numero) VALUES (1, \"1\")");
    encargado("Pedro Ruiz");
    encargado("Rosa Gil");
    con().Execute("UPDATE Ultimos SET Encargado=\"Rosa Gil\"");
  }
  void encargado(const std::string& nombre) {
    con().Execute("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (" +
                  std::to_string(parroquia) + ", \"" + nombre + "\")");
  }
  /// Opens the dialog for the entry and lets the user act.
  frmEncargado& abrir(forms::ScriptedUser::Act act) {
    user.expectForm("frmEncargado", std::move(act));
    return mostrar();
  }
  frmEncargado& mostrar(const char* sacramento = "Bautismo", std::int32_t id = 1) {
    dialogo = std::make_unique<frmEncargado>(contexto);
    dialogo->conBaseDatos = &con();
    dialogo->Sacramento = sacramento;
    dialogo->IDPartida = id;
    dialogo->Show();
    return *dialogo;
  }
  bool otroPuedeBloquear(const char* tabla) {
    const auto sesion = otherSession();
    FDAPI::DefinicionBloqueo entera;
    entera.strTabla = tabla;
    sesion->DefinirBloqueo(entera);
    otherUser.answerAnything(forms::Answer::Ok);
    return sesion->lngEfectuarBloqueos(true) == 0;
  }
  std::int32_t parroquia = 0;
  std::unique_ptr<frmEncargado> dialogo;
};

TEST(FrmEncargado, Opened_ShowsInstitutionKeepersLastKeeperAndToday) {
  EncargadoWorld w;
  const frmEncargado& d = w.abrir([&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Selección de encargado");
    EXPECT_EQ(u.get<forms::Label>("lblInstitucion").caption(), "San Ginés");
    EXPECT_EQ(u.get<forms::ComboBox>("cboEncargado").listCount(), 2);
    EXPECT_EQ(u.text("cboEncargado"), "Rosa Gil");
    EXPECT_EQ(u.text("adtpFecha"), "22/11/2026");
    EXPECT_EQ(u.focused(), "cboEncargado");
    EXPECT_FALSE(w.otroPuedeBloquear("Institucion"));
    u.choose("cboEncargado", "Pedro Ruiz");
    u.type("adtpFecha", "03/11/2026");
    u.click("cmdBoton(0)");
  });
  EXPECT_EQ(d.strEncargado, "Pedro Ruiz");
  EXPECT_EQ(d.strFecha, "20261103");
  EXPECT_EQ(d.lngInstitucion, w.parroquia);
  EXPECT_TRUE(w.otroPuedeBloquear("Institucion"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, CancelledOrClosed_GivesTodayAndNoKeeper) {
  for (const bool cerrar : {false, true}) {
    EncargadoWorld w;
    const frmEncargado& d = w.abrir([&](FormDriver& u) {
      u.type("adtpFecha", "03/11/2026");
      cerrar ? u.close() : u.click("cmdBoton(1)");
    });
    EXPECT_EQ(d.strEncargado, "");
    EXPECT_EQ(d.strFecha, "20261122");
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FrmEncargado, EntryOfDeath_IsFoundByItsOwnKey) {
  EncargadoWorld w;
  w.con().Execute(
      "INSERT INTO Libro_Defuncion (CodInstitucion, CodFormato, CodTipoNombre, Nombre) VALUES (" +
      std::to_string(w.parroquia) + ", 3, 1, \"1\")");
  w.con().Execute("INSERT INTO Defuncion (CodLibro, Numero) VALUES (1, \"1\")");
  w.user.expectForm("frmEncargado", [](FormDriver& u) { u.click("cmdBoton(0)"); });
  EXPECT_EQ(w.mostrar("Defuncion").strEncargado, "Rosa Gil");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, EntryWithoutBook_TellsTheErrorAndDoesNotOpen) {
  EncargadoWorld w;
  w.con().Execute("UPDATE Bautismo SET CodLibro=0");
  w.user.answerAnything(forms::Answer::Ok);
  const frmEncargado& d = w.mostrar();
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text, ::testing::MatchesRegex("Ha ocurrido el error nº .*\n"
                                                                 " Descripción: .+"));
  EXPECT_EQ(w.user.beeps(), 1);
  EXPECT_EQ(d.strEncargado, "");
  EXPECT_EQ(d.strFecha, "20261122");
  EXPECT_EQ(d.lngInstitucion, 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, AcceptWithoutDate_StaysAndAsksForIt) {
  EncargadoWorld w;
  w.user.answerAnything(forms::Answer::Ok);
  w.abrir([&](FormDriver& u) {
    u.type("adtpFecha", "");
    u.click("cmdBoton(0)");
    EXPECT_FALSE(u.closed());
    EXPECT_EQ(u.focused(), "adtpFecha");
    EXPECT_EQ(w.user.messages().size(), 1u);
    u.click("cmdBoton(1)");
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, KeeperAdded_IsStoredChosenAndTheTableGivenBack) {
  EncargadoWorld w;
  w.user.expectForm("frmEncargado", [&](FormDriver& u) {
    w.user.expectInput(PREGUNTA, "María del Mar Sanz");
    u.click("cmdAgregarEncargado");
    EXPECT_EQ(u.text("cboEncargado"), "María del Mar Sanz");
    EXPECT_EQ(u.get<forms::ComboBox>("cboEncargado").listCount(), 3);
    const auto otra = w.otherSession();
    FDAPI::DefinicionBloqueo compartida;
    compartida.strTabla = "Institucion_Encargado";
    compartida.blnBloqueoParcialTabla = true;
    otra->DefinirBloqueo(compartida);
    EXPECT_EQ(otra->lngEfectuarBloqueos(true), 0);
    u.click("cmdBoton(0)");
  });
  EXPECT_EQ(w.mostrar().strEncargado, "María del Mar Sanz");
  EXPECT_EQ(w.count("Institucion_Encargado"), 3);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, KeeperThatExists_IsRefused) {
  EncargadoWorld w;
  w.abrir([&](FormDriver& u) {
    w.user.expectInput(PREGUNTA, "rosa gil");
    w.user.expectMessage("¡El encargado ya existe en la base de datos!");
    u.click("cmdAgregarEncargado");
    EXPECT_EQ(u.text("cboEncargado"), "Rosa Gil");
    u.click("cmdBoton(1)");
  });
  EXPECT_EQ(w.count("Institucion_Encargado"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, LongName_IsCutAt120Letters) {
  EncargadoWorld w;
  std::string largo;
  for (int i = 0; i < 130; ++i) largo += "ñ";
  const std::string cortado = largo.substr(0, 240);
  w.abrir([&](FormDriver& u) {
    w.user.expectInput(PREGUNTA, largo);
    u.click("cmdAgregarEncargado");
    EXPECT_EQ(u.text("cboEncargado"), cortado);
    w.user.expectInput(PREGUNTA, largo + "x");
    w.user.expectMessage("¡El encargado ya existe en la base de datos!");
    u.click("cmdAgregarEncargado");
    u.click("cmdBoton(0)");
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, PromptCancelledOrBlank_AddsNothing) {
  EncargadoWorld w;
  w.abrir([&](FormDriver& u) {
    w.user.expectInput(PREGUNTA, std::nullopt);
    u.click("cmdAgregarEncargado");
    w.user.expectInput(PREGUNTA, "   ");
    u.click("cmdAgregarEncargado");
    u.click("cmdBoton(1)");
  });
  EXPECT_EQ(w.count("Institucion_Encargado"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, ApostropheInName_IsReportedAndTheDialogGoesOn) {
  EncargadoWorld w;
  const frmEncargado& d = w.abrir([&](FormDriver& u) {
    w.user.expectInput(PREGUNTA, "Ana O'Hara");
    w.user.answerAnything(forms::Answer::Ok);
    u.click("cmdAgregarEncargado");
    ASSERT_EQ(w.user.messages().size(), 1u);
    EXPECT_THAT(w.user.messages()[0].text, ::testing::HasSubstr("FidaleonNucleo / frmEncargado"));
    EXPECT_EQ(u.text("cboEncargado"), "Rosa Gil");
    EXPECT_TRUE(u.enabled("cmdAgregarEncargado"));
    w.user.expectInput(PREGUNTA, "Ana Ohara");
    u.click("cmdAgregarEncargado");
    u.click("cmdBoton(0)");
  });
  EXPECT_EQ(d.strEncargado, "Ana Ohara");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, InstitutionLockedElsewhere_CanChooseButNotAdd) {
  EncargadoWorld w;
  const auto otra = w.otherSession();
  FDAPI::DefinicionBloqueo entera;
  entera.strTabla = "Institucion";
  otra->DefinirBloqueo(entera);
  ASSERT_EQ(otra->lngEfectuarBloqueos(), 0);
  w.user.answerAnything(forms::Answer::Ok);
  const frmEncargado& d = w.abrir([](FormDriver& u) {
    EXPECT_FALSE(u.enabled("cmdAgregarEncargado"));
    u.choose("cboEncargado", "Pedro Ruiz");
    u.click("cmdBoton(0)");
  });
  EXPECT_EQ(d.strEncargado, "Pedro Ruiz");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmEncargado, TableOfKeepersInUse_PromptDoesNotCome) {
  EncargadoWorld w;
  const auto otra = w.otherSession();
  FDAPI::DefinicionBloqueo compartida;
  compartida.strTabla = "Institucion_Encargado";
  compartida.blnBloqueoParcialTabla = true;
  otra->DefinirBloqueo(compartida);
  ASSERT_EQ(otra->lngEfectuarBloqueos(), 0);
  w.user.answerAnything(forms::Answer::Ok);
  w.abrir([&](FormDriver& u) {
    u.click("cmdAgregarEncargado");
    EXPECT_EQ(w.user.messages().size(), 1u);
    EXPECT_TRUE(u.enabled("cmdAgregarEncargado"));
    u.click("cmdBoton(1)");
  });
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
