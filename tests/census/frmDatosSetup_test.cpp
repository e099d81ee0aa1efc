#include "census/setup/frmDatosSetup.h"

#include "store/FailingEngine.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;

constexpr const char* SALIR =
    "¡No ha rellenado todos los datos!\n"
    "Es necesario que complete todos los datos para poder continuar ejecutando la aplicación.\n"
    "¿Está seguro de querer salir?";
constexpr const char* PARROCO = "txtDatos(0)";
constexpr const char* ENCARGADO = "txtDatos(1)";
constexpr const char* DIOCESIS = "txtDatos(2)";
constexpr const char* VICARIA = "txtDatos(3)";
constexpr const char* ACEPTAR = "cmdBoton(0)";
constexpr const char* CANCELAR = "cmdBoton(1)";

struct SetupWorld : TestWorld {
  std::int32_t vacia(const std::string& nombre) {
    const std::int32_t id = institucion(nombre);
    con().Execute(
        "UPDATE Institucion SET Parroco='',Diocesis='',Vicaria=NULL WHERE IDInstitucion=" +
        std::to_string(id));
    return id;
  }
  bool abrir(forms::ScriptedUser::Act act) {
    user.expectForm("frmDatosSetup", std::move(act));
    return mostrar();
  }
  bool mostrar() {
    frmDatosSetup dialogo(contexto);
    dialogo.conBaseDatos = &con();
    dialogo.Show();
    return dialogo.blnResultado;
  }
  std::string dato(const char* columna, std::int32_t id) {
    return value(std::string("SELECT ") + columna +
                 " FROM Institucion WHERE IDInstitucion=" + std::to_string(id));
  }
  std::string encargado(std::int32_t id) {
    return value("SELECT Nombre FROM Institucion_Encargado WHERE CodInstitucion=" +
                 std::to_string(id));
  }
};

void rellenar(FormDriver& u, const std::string& parroco) {
  u.type(PARROCO, parroco);
  u.type(ENCARGADO, "Rosa Gil");
  u.type(DIOCESIS, "Getafe");
  u.type(VICARIA, "Centro");
}

TEST(FrmDatosSetup, NothingMissing_IsNotShownAndTrue) {
  SetupWorld w;
  const std::int32_t id = w.institucion("San Ginés");
  // One of the three is enough.
  w.con().Execute("UPDATE Institucion SET Parroco='',Diocesis='' WHERE IDInstitucion=" +
                  std::to_string(id));
  EXPECT_TRUE(w.mostrar());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmDatosSetup, TwoInstitutions_AreFilledInOneGo) {
  SetupWorld w;
  const std::int32_t una = w.vacia("San Ginés");
  const std::int32_t otra = w.vacia("Santa Ana");
  w.institucion("Completa");
  w.con().Execute("INSERT INTO Institucion_Encargado (CodInstitucion, Nombre) VALUES (" +
                  std::to_string(otra) + ", \"Juan Mas\")");
  EXPECT_TRUE(w.abrir([](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Datos necesarios para el Módulo de Gestión Parroquial");
    EXPECT_EQ(u.get<forms::ComboBox>("cboInstitucion").listCount(), 2);
    EXPECT_EQ(u.text("cboInstitucion"), "San Ginés");
    rellenar(u, "Pedro O'Donnell");
    u.choose("cboInstitucion", "Santa Ana");
    EXPECT_EQ(u.text(PARROCO), "");
    EXPECT_EQ(u.text(ENCARGADO), "Juan Mas");
    u.type(PARROCO, "Luis \"el Cura\"");
    u.type(DIOCESIS, "Toledo");
    u.type(VICARIA, "Norte");
    u.choose("cboInstitucion", "San Ginés");
    EXPECT_EQ(u.text(ENCARGADO), "Rosa Gil");
    u.click(ACEPTAR);
  }));
  EXPECT_EQ(w.dato("Parroco", una), "Pedro O'Donnell");
  EXPECT_EQ(w.dato("Vicaria", una), "Centro");
  EXPECT_EQ(w.encargado(una), "Rosa Gil");
  EXPECT_EQ(w.dato("Parroco", otra), "Luis ''el Cura''");
  EXPECT_EQ(w.dato("Diocesis", otra), "Toledo");
  EXPECT_EQ(w.count("Institucion_Encargado"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmDatosSetup, ValueMissing_TellsWhichAndGoesThere) {
  SetupWorld w;
  w.vacia("San Ginés");
  w.vacia("Santa Ana");
  const std::pair<const char*, const char*> faltas[] = {
      {PARROCO, "¡Tiene que introducir un nombre para el Párroco!"},
      {ENCARGADO, "¡Tiene que introducir el nombre para el Encargado del archivo!"},
      {DIOCESIS, "¡Tiene que introducir el nombre de la Diócesis!"},
      {VICARIA, "¡Tiene que introducir el nombre de la Vicaría!"}};
  const bool completo = w.abrir([&](FormDriver& u) {
    rellenar(u, "Pedro Ruiz");
    for (const auto& [campo, mensaje] : faltas) {
      u.choose("cboInstitucion", "San Ginés");
      w.user.expectMessage(mensaje);
      u.click(ACEPTAR);
      EXPECT_EQ(u.text("cboInstitucion"), "Santa Ana");
      EXPECT_EQ(u.focused(), campo);
      u.type(campo, "Algo");
    }
    EXPECT_EQ(w.value("SELECT Parroco FROM Institucion"), "") << "nothing before all is complete";
    u.click(ACEPTAR);
  });
  EXPECT_TRUE(completo);
  EXPECT_EQ(w.user.beeps(), 4);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmDatosSetup, BlanksOnly_CountAsMissing) {
  SetupWorld w;
  w.vacia("San Ginés");
  w.abrir([&](FormDriver& u) {
    rellenar(u, "   ");
    w.user.expectMessage("¡Tiene que introducir un nombre para el Párroco!");
    u.click(ACEPTAR);
    w.user.expectMessage(SALIR, forms::Answer::Yes);
    u.click(CANCELAR);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmDatosSetup, Cancelled_AsksAndNoStays) {
  SetupWorld w;
  const std::int32_t id = w.vacia("San Ginés");
  const bool resultado = w.abrir([&](FormDriver& u) {
    rellenar(u, "Pedro Ruiz");
    w.user.expectMessage(SALIR, forms::Answer::No);
    u.click(CANCELAR);
    EXPECT_FALSE(u.closed());
    EXPECT_EQ(u.text(PARROCO), "Pedro Ruiz");
    w.user.expectMessage(SALIR, forms::Answer::Yes);
    u.close();
  });
  EXPECT_FALSE(resultado);
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Question);
  EXPECT_EQ(w.dato("Parroco", id), "");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmDatosSetup, StoreFails_IsReportedAndTheFieldsStay) {
  SetupWorld w;
  const std::int32_t id = w.vacia("San Ginés");
  store::FailingEngine* fallos = store::FailingEngine::wrap(w.con());
  fallos->failOn("INSERT INTO Institucion_Encargado", store::ErrorKind::DiskFull);
  w.user.answerAnything(forms::Answer::Ok);
  const bool resultado = w.abrir([&](FormDriver& u) {
    rellenar(u, "Pedro Ruiz");
    u.click(ACEPTAR);
    EXPECT_FALSE(u.closed());
    EXPECT_EQ(u.text(PARROCO), "Pedro Ruiz");
    u.click(ACEPTAR);
  });
  EXPECT_TRUE(resultado);
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text, ::testing::HasSubstr("FidaleonNucleo / frmDatosSetup"));
  EXPECT_EQ(w.encargado(id), "Rosa Gil");
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
