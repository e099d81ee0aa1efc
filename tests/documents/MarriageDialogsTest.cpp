// What the loader of marriages asks before it writes: answers, refusals, and what is given up.

#include "PartidasWorld.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* GUARDAR = "¿Desea Guardar los datos en la Solicitud de Matrimonio?";
constexpr const char* JUZGADO =
    "Especifique el nombre del juzgado del Registro Civil: \n"
    "Advertencia: Longitud maxima 50 caracteres.";
constexpr const char* TABLAS[] = {"Documentos_Matrimonio", "Documentos_Matrimonio_Novios",
                                  "Documentos_Matrimonio_Novias", "Documentos_Matrimonio_Otros",
                                  "Documentos_Matrimonio_Cursos"};

struct MarriageDialogs : PartidasWorld, ::testing::Test {
  void solicitud() {
    run("UPDATE Matrimonio SET CodLibro=0, Folio=0, Numero=\"---\", InstitucionSolicitud=1");
  }
  void edicion(const char* codigo) { entorno.installation.Aplicacion = codigo; }
  void fecha(const char* boton, const char* titulo = "Fecha de impresión") {
    user.expectForm("frmInfFecha", [=](FormDriver& u) {
      EXPECT_EQ(u.caption(), titulo);
      EXPECT_EQ(u.text("adtpFecha"), "22/11/2026") << "also after another date";
      u.type("adtpFecha", "05/11/2026");
      u.click(boton);
    });
  }
  void exhorto(forms::ScriptedUser::Act act) {
    solicitud();
    user.expectForm("frmInfExhorto", std::move(act));
  }
  /// What is printed of a marriage, all tables.
  std::int64_t escritas() {
    std::int64_t n = 0;
    for (const char* tabla : TABLAS) n += filas(tabla);
    EXPECT_FALSE(conInformes().inTransaction());
    return n;
  }
  std::string impreso(const char* columna) { return todas(TABLAS[0]).at(0)[columna]; }
};

TEST_F(MarriageDialogs, Exhorto_WantsAllOrNothing_AndKeepsWhatIsTypedWithTheSpouses) {
  exhorto([&](FormDriver& u) {
    EXPECT_EQ(u.text("txtDato(3)"), "San Blas");
    u.type("txtDato(5)", " ");
    user.expectMessage("¡Debe dejar en blanco o rellenar todos los campos, para poder continuar!");
    u.click("cmdBoton(0)");
    u.type("txtDato(5)", "d'Ors \"Luz\"");
    EXPECT_EQ(u.text("txtDato(5)"), "d''Ors ''Luz''");
    user.expectMessage(GUARDAR, forms::Answer::Yes);
    fecha("cmdBoton(0)");
    u.click("cmdBoton(0)");
  });
  informes.InformeExhortoMatrimonio(con(), conInformes(), 1);
  EXPECT_EQ(value("SELECT DiocesisExhorto FROM Matrimonio_Novias"), "d'Ors 'Luz'");
  EXPECT_EQ(value("SELECT ParroquiaExhorto FROM Matrimonio_Novios"), "San José");
  EXPECT_EQ(impreso("ParroquiaResidenciaNovia"), "d''Ors ''Luz''");
  EXPECT_EQ(impreso("FechaSistemaCorta"), "05/11/2026");
  EXPECT_SCRIPT_DONE(user);
}

TEST_F(MarriageDialogs, ExhortoThatCannotBeStored_IsPrintedAllTheSame_WithNothingHalfStored) {
  exhorto([&](FormDriver& u) {
    u.type("txtDato(0)", "Otra");
    store::FailingEngine::wrap(con())->failOn("UPDATE Matrimonio_Novias");
    user.expectMessage(GUARDAR, forms::Answer::Yes);
    user.expectMessage("Se ha producido un error y no se guardaran los datos");
    fecha("cmdBoton(0)");
    u.click("cmdBoton(0)");
  });
  informes.InformeExhortoMatrimonio(con(), conInformes(), 1);
  EXPECT_EQ(value("SELECT ParroquiaExhorto FROM Matrimonio_Novios"), "San José");
  EXPECT_EQ(impreso("DiocesisResidenciaNovio"), "Otra");
  EXPECT_SCRIPT_DONE(user);
}

TEST_F(MarriageDialogs, Cancelled_ShowsNoFurtherOneAndWritesNothing) {
  user.expectForm("frmEncargado", [](FormDriver& u) { u.escape(); });
  informes.ImprimirCertificadoPartidaMatrimonio(con(), conInformes(), 1);
  edicion("0008");
  fecha("cmdBoton(1)");
  informes.ImprimirNotificacionMatrimonio(con(), conInformes(), 1, config);
  exhorto([](FormDriver& u) { u.click("cmdBoton(1)"); });
  informes.InformeExhortoMatrimonio(con(), conInformes(), 1);
  user.expectForm("frmInfFormato3", [&](FormDriver& u) {
    user.expectMessage("Debe seleccionar al menos una opción");
    u.click("cmdBoton(0)");
    u.click("cmdBoton(1)");
  });
  std::array<bool, 3> via{true, true, true};
  informes.ImprimirExpedienteFormato3(con(), conInformes(), 1, via[0], via[1], via[2]);
  EXPECT_THAT(via, ElementsAre(false, false, false));
  EXPECT_EQ(escritas(), 0);
  EXPECT_SCRIPT_DONE(user);
}

TEST_F(MarriageDialogs, Court_IsAskedForInTwoEditions_CutAndNeverWithoutABlank) {
  const std::string largo(60, 'j');
  const struct {
    const char* codigo;
    std::string tecleado, impreso;
  } casos[] = {
      {"0012", "", " "}, {"0008", largo, largo.substr(10)}, {"0008", "\"7\" d'O", "''7'' d'O"}};
  for (const auto& caso : casos) {
    edicion(caso.codigo);
    fecha("cmdBoton(0)");
    user.expectInput(JUZGADO, caso.tecleado);
    for (const char* tabla : TABLAS) conInformes().Execute(std::string("DELETE * FROM ") + tabla);
    informes.ImprimirNotificacionMatrimonio(con(), conInformes(), 1, config);
    EXPECT_EQ(impreso("NombreJuzgado"), caso.impreso);
  }
  EXPECT_SCRIPT_DONE(user);
}

TEST_F(MarriageDialogs, Incoado_IsAskedForInZaragoza_AndKeepsTodayWhenCancelled) {
  edicion(FDAPI::cCAplicacion::APP_FIDALEON_ZARAGOZA);
  solicitud();
  user.expectForm("frmInfFormato3", [](FormDriver& u) {
    u.click("chkOpcion(0)");
    u.click("cmdBoton(0)");
  });
  fecha("cmdBoton(1)", "Fecha de INCOADO");
  std::array<bool, 3> via{};
  informes.ImprimirExpedienteFormato3(con(), conInformes(), 1, via[0], via[1], via[2]);
  EXPECT_THAT(via, ElementsAre(true, false, false));
  EXPECT_EQ(impreso("FechaSistemaCorta"), "22/11/2026");
  EXPECT_EQ(filas(TABLAS[4]), 0) << "examinations are Madrid's";
  EXPECT_SCRIPT_DONE(user);
}

TEST_F(MarriageDialogs, KeyTooLongForTheExhorto_IsToldAndRollsBack) {
  solicitud();
  run("UPDATE Matrimonio SET IDMatrimonio=40000");
  for (const char* tabla : {"Matrimonio_Compromiso", "Matrimonio_Expediente"})
    run(std::string("UPDATE ") + tabla + " SET CodMatrimonio=40000");
  user.answerAnything(forms::Answer::Ok);
  informes.InformeExhortoMatrimonio(con(), conInformes(), 40000);
  EXPECT_THAT(user.messages().at(0).text, HasSubstr("  - El exhorto no admite la clave 40000"));
  EXPECT_EQ(escritas(), 0);
}

TEST_F(MarriageDialogs, AnyStatementThatFails_LeavesNoRowOfTheMarriage) {
  user.answerAnything(forms::Answer::Ok);
  // Those of the parish first: a run that goes through leaves its rows.
  auto* parroquial = store::FailingEngine::wrap(con());
  auto* informe = store::FailingEngine::wrap(conInformes());
  for (auto* motor : {parroquial, informe}) {
    for (const char* tabla : TABLAS) conInformes().Execute(std::string("DELETE * FROM ") + tabla);
    for (int paso = 1;; ++paso) {
      motor->failOn("", store::ErrorKind::Other, paso);
      informes.ImprimirPartidaMatrimonio(con(), conInformes(), 1);
      if (motor->pending() != 0) break;
      ASSERT_EQ(escritas(), 0) << paso;
    }
  }
}

}  // namespace
}  // namespace fidaleon::tests
