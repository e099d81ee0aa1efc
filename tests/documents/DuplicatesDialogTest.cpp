// The dialog "Ver informes duplicadas", with the rows it writes for baptism.

#include "LibroWorld.h"
#include "PartidaImpresa.h"
#include "documents/frmInfDuplicadas.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr const char* POR_FECHA = "Fecha de Bautismo";
constexpr const char* POR_CREACION = "Fecha de Creación del Libro";
constexpr const char* POR_APELLIDOS = "Apellidos del bautizado";
constexpr const char* NINGUNO = "¡No se ha encontrado ningún registro!";
constexpr const char* DIALOGO = "frmInfDuplicadas";

struct DuplicadasWorld : LibroWorld {
  /// What the dialog gives as strOrden.
  std::string mostrar(forms::ScriptedUser::Act act, const char* nodo = "Duplicadas de bautismo") {
    frmInfDuplicadas dialogo(contexto);
    dialogo.conBaseDatos = &con();
    dialogo.conInformes = &conInformes();
    dialogo.strNodo = nodo;
    user.expectForm(DIALOGO, std::move(act));
    dialogo.Show();
    return dialogo.strOrden;
  }
  std::string imprimir(const std::string& orden, const std::string& ano = "2003") {
    return mostrar([=](FormDriver& u) { pedir(u, orden, ano); });
  }
  static void pedir(FormDriver& u, const std::string& orden, const std::string& ano) {
    u.choose("cboInstitucion", "San Ginés");
    u.type("adtpAno", ano);
    u.choose("cboOrden", orden);
    u.click("cmdBoton(0)");
  }
};

TEST(DuplicatesDialog, Opened_OffersTodaysYearAndThreeOrders) {
  for (const char* nodo : {"Duplicadas de bautismo", "PartidasBautismo"}) {
    DuplicadasWorld w;
    const std::string orden = w.mostrar(
        [](FormDriver& u) {
          EXPECT_EQ(u.caption(), "Ver informes duplicadas");
          EXPECT_EQ(u.text("adtpAno"), "2026");
          EXPECT_EQ(u.text("cboInstitucion"), "San Ginés");
          const auto& ordenes = u.get<forms::ComboBox>("cboOrden");
          ASSERT_EQ(ordenes.listCount(), 3);
          EXPECT_EQ(ordenes.listIndex(), -1);
          EXPECT_EQ(ordenes.list(0), POR_FECHA);
          EXPECT_EQ(ordenes.list(1), POR_CREACION);
          EXPECT_EQ(ordenes.list(2), POR_APELLIDOS);
          u.escape();
        },
        nodo);
    EXPECT_EQ(orden, "");
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(DuplicatesDialog, Row_FillsItsColumnsAndNoOther) {
  DuplicadasWorld w;
  w.imprimir(POR_FECHA);
  EXPECT_EQ(w.fila(), sin(PARTIDA, {"ProvinciaAbueloPaterno", "ProvinciaAbuelaPaterna",
                                    "ProvinciaAbueloMaterno", "ProvinciaAbuelaMaterna"}) +
                          (Row{{"InstitucionParroco", "Pedro Ruiz Sanz"},
                               {"InstitucionNombre", "San Ginés Mártir"},
                               {"InstitucionTipo", "Parroquia de"},
                               {"InstitucionPoblacion", "Getafe"},
                               {"InstitucionProvincia", "Madrid"},
                               {"Año", "2003"},
                               {"FechaSistemaLarga", "veintidós de noviembre de 2026"},
                               {"FechaCreacionLibro", "01/01/2003"}}));
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(DuplicatesDialog, BlankInstitution_IsWrittenAsStoredButItsPlaces) {
  DuplicadasWorld w;
  w.run("UPDATE Institucion SET Parroco=NULL, InstitucionTipo=\"\", CodMunicipio=0");
  w.run("UPDATE Libro_Bautismo SET FechaCreacion=\"---\"");
  w.imprimir(POR_FECHA);
  Row fila = w.fila();
  EXPECT_EQ(fila["InstitucionParroco"], "");
  EXPECT_EQ(fila["InstitucionTipo"], "");
  EXPECT_EQ(fila["InstitucionPoblacion"], "---");
  EXPECT_EQ(fila["InstitucionProvincia"], "---");
  EXPECT_EQ(fila["FechaCreacionLibro"], "---");
}

TEST(DuplicatesDialog, Orders_ArrangeTheRowsAndNameTheFormulas) {
  struct {
    const char* texto;
    std::vector<std::string> nombres;
    const char* strOrden;
  } const casos[] = {
      {POR_FECHA, {"Eva", "Ana", "Lucía", "Bea"}, "+{@FechaBautismo},+{@Folio},+{@Numero}"},
      {POR_CREACION, {"Bea", "Eva", "Ana", "Lucía"}, "+{@FechaCreacion},+{@Folio},+{@Numero}"},
      {POR_APELLIDOS, {"Bea", "Ana", "Lucía", "Eva"}, "+{@Nombre}"},
  };
  for (const auto& caso : casos) {
    DuplicadasWorld w;
    const int viejo = w.libro("Viejo", "19500101");
    w.agregar(
        {.apellido = "Zapata", .nombre = "Eva", .folio = "2", .numero = "9", .fecha = "20030101"});
    w.agregar(
        {.apellido = "Cano", .nombre = "Ana", .folio = "2", .numero = "10", .fecha = "20030524"});
    w.agregar(
        {.apellido = "Abad", .nombre = "Bea", .folio = "40", .libro = viejo, .fecha = "20031231"});
    EXPECT_EQ(w.imprimir(caso.texto), caso.strOrden);
    EXPECT_EQ(w.columnas("NombreHijo"), caso.nombres) << caso.texto;
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(DuplicatesDialog, YearAndInstitution_AreTheBoundary) {
  DuplicadasWorld w;
  const int ajena = w.institucion("Otra");
  w.run("UPDATE Bautismo SET Anulada = True");
  w.agregar({.nombre = "Antes", .fecha = "20021231"});
  w.agregar({.nombre = "Después", .fecha = "20040101"});
  w.agregar({.nombre = "Sin fecha", .fecha = "---"});
  w.agregar({.nombre = "Solicitud", .numero = "---", .libro = 0});
  w.agregar({.nombre = "Ajena", .libro = w.libro("Ajeno", "20030101", ajena)});
  w.agregar({.nombre = "Otro libro", .libro = w.libro("Segundo", "20030101")});
  w.imprimir(POR_FECHA);
  EXPECT_THAT(w.columnas("NombreHijo"), ElementsAre("Lucía", "Otro libro"));
}

TEST(DuplicatesDialog, NothingChosen_IsRefusedInTurn) {
  DuplicadasWorld w;
  w.run("DELETE * FROM Institucion");
  w.user.expectForm(DIALOGO, [&](FormDriver& u) {
    w.user.expectMessage("¡Debe especificar una Institución!");
    u.click("cmdBoton(0)");
    u.escape();
  });
  frmInfDuplicadas sinInstitucion(w.contexto);
  sinInstitucion.conBaseDatos = &w.con();
  sinInstitucion.conInformes = &w.conInformes();
  sinInstitucion.strNodo = "Duplicadas de bautismo";
  sinInstitucion.Show();
  EXPECT_EQ(w.user.beeps(), 1);

  w.institucion("San Ginés");
  const store::FailingEngine* motor = store::FailingEngine::wrap(w.conInformes());
  const std::string orden = w.mostrar([&](FormDriver& u) {
    w.user.expectMessage("¡Debe especificar la forma de ordenación!");
    u.click("cmdBoton(0)");
    u.choose("cboOrden", POR_FECHA);
    for (const char* ano : {"", "98", "0998"}) {
      u.type("adtpAno", ano);
      w.user.expectMessage("¡Debe especificar un año de cuatro cifras!");
      u.click("cmdBoton(0)");
      EXPECT_EQ(u.focused(), "adtpAno");
    }
    u.click("cmdBoton(1)");
  });
  EXPECT_EQ(orden, "");
  EXPECT_THAT(motor->executed(), IsEmpty());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(DuplicatesDialog, YearWithoutEntries_SaysSoAndKeepsTheOrder) {
  DuplicadasWorld w;
  w.user.expectForm(DIALOGO, [&](FormDriver& u) {
    w.user.expectMessage(NINGUNO);
    DuplicadasWorld::pedir(u, POR_APELLIDOS, "1999");
    EXPECT_TRUE(u.closed());
  });
  frmInfDuplicadas dialogo(w.contexto);
  dialogo.conBaseDatos = &w.con();
  dialogo.conInformes = &w.conInformes();
  dialogo.strNodo = "Duplicadas de bautismo";
  dialogo.Show();
  EXPECT_EQ(dialogo.strOrden, "+{@Nombre}");
  EXPECT_EQ(w.filas(), 0);
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Information);
  EXPECT_EQ(w.user.beeps(), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

/// Notes what the bar shows.
class BarWatch : public forms::FormObserver {
 public:
  void controlChanged(forms::Control& control, forms::Change what) override {
    if (what != forms::Change::Progress) return;
    const auto& bar = dynamic_cast<forms::Progress&>(control);
    seen.push_back(std::to_string(bar.value()) + "/" + std::to_string(bar.count()) + " " +
                   bar.message());
  }
  void focusChanged(forms::Control*) override {}
  void captionChanged() override {}
  void unloaded() override {}
  std::vector<std::string> seen;
};

TEST(DuplicatesDialog, Bar_CountsTheRowsAndIsReset) {
  DuplicadasWorld w;
  w.agregar({});
  BarWatch watch;
  w.mostrar([&](FormDriver& u) {
    u.form().setObserver(&watch);
    DuplicadasWorld::pedir(u, POR_FECHA, "2003");
    u.form().setObserver(nullptr);
  });
  const std::string texto = "/2 Procesando vista preliminar ...";
  EXPECT_THAT(watch.seen, ElementsAre("0" + texto, "0" + texto, "1" + texto, "2" + texto,
                                      "2" + texto, "0" + texto));
  EXPECT_THAT(w.user.progressLog,
              ElementsAre("open 2 Procesando vista preliminar ...", "1", "2", "close"));
}

TEST(DuplicatesDialog, RowFails_LeavesTheTransactionOpenAndTheDialogToTryAgain) {
  DuplicadasWorld w;
  w.agregar({});
  auto* motor = store::FailingEngine::wrap(w.conInformes());
  motor->failOn("INSERT INTO Documentos_Bautismo", store::ErrorKind::Other, 2);
  w.user.answerAnything(forms::Answer::Ok);
  const std::string orden = w.mostrar([&](FormDriver& u) {
    DuplicadasWorld::pedir(u, POR_FECHA, "2003");
    EXPECT_FALSE(u.closed());
    EXPECT_TRUE(w.conInformes().inTransaction());
    EXPECT_EQ(w.filas(), 1);
    EXPECT_THAT(w.user.messages().at(0).text,
                HasSubstr("FidaleonNucleo / frmInfDuplicadas / DuplicadasBautismo)"));
    DuplicadasWorld::pedir(u, POR_FECHA, "2003");
  });
  EXPECT_EQ(w.filas(), 2) << "no row of the first attempt";
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_EQ(orden, "+{@FechaBautismo},+{@Folio},+{@Numero}");
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(DuplicatesDialog, CancelledAfterAFailure_LeavesTheTransactionToTheConnection) {
  DuplicadasWorld w;
  store::FailingEngine::wrap(w.conInformes())->failOn("INSERT INTO Documentos_Bautismo");
  w.user.answerAnything(forms::Answer::Ok);
  const std::string orden = w.mostrar([&](FormDriver& u) {
    DuplicadasWorld::pedir(u, POR_FECHA, "2003");
    u.click("cmdBoton(1)");
  });
  EXPECT_EQ(orden, "");
  EXPECT_TRUE(w.conInformes().inTransaction());
  w.conInformes().RollbackTrans();
  EXPECT_EQ(w.filas(), 0);
}

TEST(DuplicatesDialog, LoadingFails_IsToldAndTheDialogCanBeLeft) {
  DuplicadasWorld w;
  store::FailingEngine::wrap(w.con())->failOn("FROM Institucion");
  w.user.answerAnything(forms::Answer::Ok);
  w.mostrar([&](FormDriver& u) { u.escape(); });
  EXPECT_THAT(w.user.messages().at(0).text, HasSubstr("frmInfDuplicadas / Form_Load()"));
}

}  // namespace
}  // namespace fidaleon::tests
