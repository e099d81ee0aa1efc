// The dialog "Ver informes duplicadas", with the rows it writes for each register.

#include "LibroWorld.h"
#include "documents/frmInfDuplicadas.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::DuplicatesDialogTest {

constexpr const char* POR_CREACION = "Fecha de Creación del Libro";
constexpr const char* NINGUNO = "¡No se ha encontrado ningún registro!";
constexpr const char* DIALOGO = "frmInfDuplicadas";

class DuplicatesDialog : public ::testing::TestWithParam<Registro> {
 protected:
  const Registro& r = GetParam();
  LibroWorld w{r};

  static std::string mostrar(LibroWorld& w, Act act) {
    frmInfDuplicadas dialogo(w.contexto);
    dialogo.conBaseDatos = &w.con();
    dialogo.conInformes = &w.conInformes();
    dialogo.strNodo = w.registro.nodo;
    w.user.expectForm(DIALOGO, std::move(act));
    dialogo.Show();
    return dialogo.strOrden;
  }
  /// What the dialog gives as strOrden.
  std::string mostrar(Act act) { return mostrar(w, std::move(act)); }
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

TEST_P(DuplicatesDialog, Opened_OffersTodaysYearAndThreeOrders) {
  const std::string orden = mostrar([&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Ver informes duplicadas");
    EXPECT_EQ(u.text("adtpAno"), "2026");
    EXPECT_EQ(u.text("cboInstitucion"), "San Ginés");
    const auto& ordenes = u.get<forms::ComboBox>("cboOrden");
    ASSERT_EQ(ordenes.listCount(), 3);
    EXPECT_EQ(ordenes.listIndex(), -1);
    EXPECT_EQ(ordenes.list(0), r.porFecha);
    EXPECT_EQ(ordenes.list(1), POR_CREACION);
    EXPECT_EQ(ordenes.list(2), r.porApellidos);
    u.escape();
  });
  EXPECT_EQ(orden, "");
}

TEST_P(DuplicatesDialog, Row_FillsItsColumnsAndNoOther) {
  PartidasWorld una;
  frmInfDuplicadas dialogo(una.contexto);
  dialogo.conBaseDatos = &una.con();
  dialogo.conInformes = &una.conInformes();
  dialogo.strNodo = std::string("Partidas") + r.sacramento.palabra;
  una.user.expectForm(DIALOGO, [&](FormDriver& u) { pedir(u, r.porFecha, r.ano); });
  dialogo.Show();
  EXPECT_THAT(una.todas(r.filas().tabla), ElementsAre(r.duplicada()));
  EXPECT_FALSE(una.conInformes().inTransaction());
  EXPECT_EQ(una.user.hourglassDepth(), 0);
}

TEST_P(DuplicatesDialog, BlankInstitution_IsWrittenAsStoredButItsPlaces) {
  if (r.porCargador()) return;  // whose columns are in a table of their own
  w.run("UPDATE Institucion SET Parroco=NULL, InstitucionTipo=\"\", CodMunicipio=0");
  w.en("UPDATE {Libros} SET FechaCreacion=\"---\"");
  imprimir(r.porFecha);
  Row fila = w.fila(r.filas().tabla);
  EXPECT_EQ(fila["InstitucionParroco"], "");
  EXPECT_EQ(fila["InstitucionTipo"], "");
  EXPECT_EQ(fila["InstitucionPoblacion"], "---");
  EXPECT_EQ(fila["InstitucionProvincia"], "---");
  EXPECT_EQ(fila["FechaCreacionLibro"], "---");
}

TEST_P(DuplicatesDialog, Orders_ArrangeTheRowsAndNameTheFormulas) {
  const std::string porPosicion = ",+{@Folio},+{@Numero}";
  struct {
    const char* texto;
    std::vector<std::string> nombres;
    std::string strOrden;
  } const casos[] = {
      {r.porFecha, {"Eva", "Ana", "Lucía", "Bea"}, r.formula + porPosicion},
      {POR_CREACION, {"Bea", "Eva", "Ana", "Lucía"}, "+{@FechaCreacion}" + porPosicion},
      {r.porApellidos, {"Bea", "Ana", "Lucía", "Eva"}, "+{@Nombre}"},
  };
  const int viejo = w.libro("Viejo", "19500101");
  w.agregar(
      {.apellido = "Zapata", .nombre = "Eva", .folio = "2", .numero = "9", .fecha = "20030101"});
  w.agregar(
      {.apellido = "Cano", .nombre = "Ana", .folio = "2", .numero = "10", .fecha = "20030524"});
  w.agregar(
      {.apellido = "Abad", .nombre = "Bea", .folio = "40", .libro = viejo, .fecha = "20031231"});
  for (const auto& caso : casos) {
    w.vaciarInformes();
    EXPECT_EQ(imprimir(caso.texto), caso.strOrden);
    EXPECT_EQ(w.nombres(), caso.nombres) << caso.texto;
  }
}

TEST_P(DuplicatesDialog, YearAndInstitution_AreTheBoundary) {
  const int ajena = w.institucion("Otra");
  w.en("UPDATE {Partidas} SET Anulada = True");
  w.agregar({.nombre = "Antes", .fecha = "20021231"});
  w.agregar({.nombre = "Después", .fecha = "20040101"});
  w.agregar({.nombre = "Sin fecha", .fecha = "---"});
  w.agregar({.nombre = "Solicitud", .numero = "---", .libro = 0});
  w.agregar({.nombre = "Ajena", .libro = w.libro("Ajeno", "20030101", ajena)});
  w.agregar({.nombre = "Otro libro", .libro = w.libro("Segundo", "20030101")});
  imprimir(r.porFecha);
  EXPECT_THAT(w.nombres(), ElementsAre("Lucía", "Otro libro"));
}

TEST_P(DuplicatesDialog, NothingChosen_IsRefusedInTurn) {
  w.run("DELETE * FROM Institucion");
  mostrar([&](FormDriver& u) {
    w.user.expectMessage("¡Debe especificar una Institución!");
    u.click("cmdBoton(0)");
    u.escape();
  });
  EXPECT_EQ(w.user.beeps(), 1);

  w.institucion("San Ginés");
  const store::FailingEngine* motor = store::FailingEngine::wrap(w.conInformes());
  const std::string orden = mostrar([&](FormDriver& u) {
    w.user.expectMessage("¡Debe especificar la forma de ordenación!");
    u.click("cmdBoton(0)");
    u.choose("cboOrden", r.porFecha);
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
}

TEST_P(DuplicatesDialog, YearWithoutEntries_SaysSoAndKeepsTheOrder) {
  const std::string orden = mostrar([&](FormDriver& u) {
    w.user.expectMessage(NINGUNO);
    pedir(u, r.porApellidos, "1999");
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(orden, "+{@Nombre}");
  EXPECT_EQ(w.filas(), 0);
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Information);
  EXPECT_EQ(w.user.beeps(), 1);
}

TEST_P(DuplicatesDialog, RowFails_LeavesTheTransactionToItsOwnerAndTheDialogToTryAgainOrCancel) {
  for (const bool again : {true, false}) {
    LibroWorld otro(r);
    otro.agregar({});
    auto* motor = store::FailingEngine::wrap(otro.conInformes());
    motor->failOn(r.insercion(), store::ErrorKind::Other, 2);
    otro.user.answerAnything(Answer::Ok);
    const std::string orden = mostrar(otro, [&](FormDriver& u) {
      pedir(u, r.porFecha, "2003");
      EXPECT_FALSE(u.closed());
      EXPECT_EQ(otro.conInformes().inTransaction(), !r.porCargador());
      EXPECT_EQ(otro.filas(), r.porCargador() ? 0 : 1);
      const std::string quien =
          r.porCargador() ? "  - "
                          : std::string("FidaleonNucleo / frmInfDuplicadas / Duplicadas") +
                                r.sacramento.palabra + ")";
      EXPECT_THAT(otro.user.messages().at(0).text, HasSubstr(quien));
      const auto& bar = u.get<forms::Progress>("abpProgreso");
      EXPECT_EQ(std::to_string(bar.value()) + "/" + std::to_string(bar.count()) + bar.message(),
                std::string("1/2") + r.progreso);
      again ? pedir(u, r.porFecha, "2003") : u.click("cmdBoton(1)");
    });
    EXPECT_EQ(orden, again ? std::string(r.formula) + ",+{@Folio},+{@Numero}" : "");
    EXPECT_EQ(otro.conInformes().inTransaction(), !again && !r.porCargador());
    if (otro.conInformes().inTransaction()) otro.conInformes().RollbackTrans();
    EXPECT_EQ(otro.filas(), again ? 2 : 0) << "no row of the first attempt";
    EXPECT_EQ(otro.user.hourglassDepth(), 0);
    EXPECT_EQ(otro.user.progressLog.front(), "open 2 Procesando vista preliminar ...");
    EXPECT_EQ(otro.user.progressLog.back(), "close");
  }
}

TEST_P(DuplicatesDialog, LoadingFails_IsToldAndTheDialogCanBeLeft) {
  store::FailingEngine::wrap(w.con())->failOn("FROM Institucion");
  w.user.answerAnything(Answer::Ok);
  mostrar([&](FormDriver& u) { u.escape(); });
  EXPECT_THAT(w.user.messages().at(0).text, HasSubstr("frmInfDuplicadas / Form_Load()"));
}

INSTANTIATE_TEST_SUITE_P(Registers, DuplicatesDialog, ::testing::ValuesIn(REGISTROS),
                         nombreDelRegistro);

}  // namespace fidaleon::tests::DuplicatesDialogTest
