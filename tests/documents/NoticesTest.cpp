// Notices of confirmations that stand in no book: the list, the dialog of one, the row.

#include "PartidasWorld.h"
#include "documents/frmInfNotConf.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::NoticesTest {

constexpr const char* TABLA = "Documentos_Confirmacion";
constexpr const char *AGREGAR = "cmdNotificacion(0)", *MODIFICAR = "cmdNotificacion(1)",
                     *QUITAR = "cmdNotificacion(2)", *IMPRIMIR = "cmdNotificacion(3)",
                     *ACEPTAR = "cmdNotifica(0)";
constexpr const char* VACIOS =
    "Tiene campos sin rellenar. Estos campos se rellenaran con guiones. ¿Desea continuar?";

struct Notices : ::testing::Test {
  PartidasWorld w;

  void abrir(const std::function<void(FormDriver&)>& act) {
    w.user.expectForm("frmInfNotConf", act);
    frmInfNotConf dialogo(w.contexto);
    dialogo.conBaseDatos = &w.con();
    dialogo.conInformes = &w.conInformes();
    dialogo.Show();
  }
  static void elegir(FormDriver& u) {
    u.choose("cboInstitucion", "San Ginés");
    u.tab("mstNotificacion", 1);
  }
  static void nombrar(FormDriver& u) {
    u.type("txtNotifica(0)", "Lucía");
    u.type("txtNotifica(1)", "García");
    u.type("txtNotifica(2)", "Pérez");
  }
  /// A notice with everything in it.
  static void rellenar(FormDriver& u) {
    nombrar(u);
    u.type("adtpNotifica(0)", "15/03/2004");
    u.type("txtNotifica(3)", "catorce");
    u.type("txtNotifica(4)", "Juan Soto");
    u.type("txtNotifica(5)", "Eva \"la\" Ruiz");
    u.type("txtNotifica(10)", "San Blas");
    u.choose("cboNotifica(2)", "Sevilla");
    u.choose("cboNotifica(3)", "Écija");
    u.type("txtNotifica(11)", "Calle Sol, 2");
    u.type("txtNotifica(12)", "II");
    u.type("txtNotifica(13)", "12");
    u.type("txtNotifica(14)", "3b");
    u.type("adtpNotifica(1)", "24/05/1990");
    u.click(ACEPTAR);
  }
  void una(FormDriver& u) {
    w.user.expectForm("frmInfNotConfDatos", rellenar);
    u.click(AGREGAR);
  }
};

TEST_F(Notices, Printed_LeaveARowWithTheDataOfTheInstitutionAndLongDates) {
  abrir([this](FormDriver& u) {
    elegir(u);
    una(u);
    EXPECT_EQ(u.get<forms::Grid>("msgNotificacion").cell(1, 1), "15/03/2004");
    u.click(IMPRIMIR);
  });
  EXPECT_EQ(w.fila(TABLA), (row(R"(
    Nombre=Lucía; PrimerApellido=García; SegundoApellido=Pérez; InstitucionNombre=San Ginés Mártir
    InstitucionTipo=Parroquia de; InstitucionPoblacion=Getafe; InstitucionProvincia=Madrid
    InstitucionDiocesis=Getafe; InstitucionDomicilio=Calle Mayor, 1; LibroBaut=II; FolioBaut=12
    NumeroBaut=3b; Padrino=Eva ''la'' Ruiz; Ministro=Juan Soto
    FechaConfirmacionLarga=lunes, 15 de marzo de 2004; FechaBautLarga=jueves, 24 de mayo de 1990
    ParroquiaBaut=San Blas; ProvinciaBaut=Sevilla; PoblacionBaut=Écija
    FechaSistemaLarga=domingo, 22 de noviembre de 2026; DireccionBaut=Calle Sol, 2; Edad=catorce)")));
}

TEST_F(Notices, BlankFields_AreDashedAfterAQuestion_UnknownPlacesAndDatesToo) {
  abrir([this](FormDriver& u) {
    elegir(u);
    w.user.expectForm("frmInfNotConfDatos", [this](FormDriver& d) {
      nombrar(d);
      for (const Answer respuesta : {Answer::No, Answer::Yes}) {
        w.user.expectMessage(VACIOS, respuesta);
        d.click(ACEPTAR);
        EXPECT_EQ(d.closed(), respuesta == Answer::Yes);
      }
    });
    u.click(AGREGAR);
    w.user.expectForm("frmInfNotConfDatos", [](FormDriver& d) {
      EXPECT_EQ(d.caption(), "Propiedades de notificación de Lucía");
      EXPECT_EQ(d.text("txtNotifica(13)"), "---");
      d.escape();
    });
    u.doubleClick("msgNotificacion", 1);
    u.click(IMPRIMIR);
  });
  const Row fila = w.fila(TABLA);
  for (const char* columna : {"Padrino", "Ministro", "FechaConfirmacionLarga", "FechaBautLarga",
                              "ProvinciaBaut", "PoblacionBaut", "Edad", "NumeroBaut"})
    EXPECT_EQ(fila.at(columna), "---") << columna;
  EXPECT_EQ(fila.at("FolioBaut"), "0");
}

TEST_F(Notices, NamesMissing_AreToldOneByOne_AndTheSameNoticeTwiceIsRefused) {
  abrir([this](FormDriver& u) {
    elegir(u);
    una(u);
    w.user.expectForm("frmInfNotConfDatos", [this](FormDriver& d) {
      // Day and minister of the last one are there already.
      EXPECT_EQ(d.text("adtpNotifica(0)"), "15/03/2004");
      EXPECT_EQ(d.text("txtNotifica(4)"), "Juan Soto");
      for (const auto& [campo, falta, tecleado] :
           {std::tuple{"txtNotifica(0)", "nombre", "Lucía"},
            {"txtNotifica(1)", "primer apellido", "García"},
            {"txtNotifica(2)", "segundo apellido", "Pérez"}}) {
        w.user.expectMessage(std::string("¡Debe introducir datos en el campo ") + falta +
                             " del confirmado!");
        d.click(ACEPTAR);
        EXPECT_EQ(d.focused(), campo);
        d.type(campo, tecleado);
      }
      w.user.expectMessage(
          "¡Ya existe una partida de confirmación con el mismo nombre de confirmado y la misma "
          "fecha de confirmación!");
      d.click(ACEPTAR);
      d.click("cmdNotifica(1)");
    });
    u.click(AGREGAR);
    EXPECT_EQ(u.get<forms::Grid>("msgNotificacion").rowCount(), 1);
    u.click(QUITAR);
    EXPECT_EQ(u.get<forms::Grid>("msgNotificacion").rowCount(), 0);
    u.click(MODIFICAR);
    u.click("cmdNotificacion(4)");
  });
  EXPECT_EQ(w.filas(TABLA), 0);
}

TEST_F(Notices, WithoutInstitutionOrNotices_TheUserIsTold) {
  w.institucion("Santa Ana");  // of two, none is chosen at first
  abrir([this](FormDriver& u) {
    w.user.expectMessage("¡Debe seleccionar una Institución!");
    u.tab("mstNotificacion", 1);
    EXPECT_EQ(u.get<forms::TabStrip>("mstNotificacion").tab(), 0);
    w.user.expectMessage("¡No se ha encontrado ningún registro!");
    u.click(IMPRIMIR);
    u.escape();
  });
}

TEST_F(Notices, AnotherInstitution_AsksOnlyWhereNoticesWouldBeLost) {
  w.institucion("Santa Ana");
  abrir([this](FormDriver& u) {
    u.choose("cboInstitucion", "Santa Ana");
    elegir(u);
    una(u);
    u.tab("mstNotificacion", 0);
    for (const Answer respuesta : {Answer::No, Answer::Yes}) {
      w.user.expectMessage(
          "Si cambia de Institución perderá los datos actualmente guardados, ¿desea continuar de "
          "todos modos?",
          respuesta);
      u.choose("cboInstitucion", "Santa Ana");
      const bool no = respuesta == Answer::No;
      EXPECT_EQ(u.text("cboInstitucion"), no ? "San Ginés" : "Santa Ana");
      EXPECT_EQ(u.get<forms::Grid>("msgNotificacion").rowCount(), no ? 1 : 0);
    }
    u.escape();
  });
}

TEST_F(Notices, ARowFails_NoneIsLeft_AndTheListStays) {
  store::FailingEngine::wrap(w.conInformes())
      ->failOn("INSERT INTO Documentos_Confirmacion", store::ErrorKind::DiskFull);
  w.user.answerAnything(Answer::Yes);
  abrir([this](FormDriver& u) {
    elegir(u);
    una(u);
    u.click(IMPRIMIR);
    ASSERT_EQ(w.user.messages().size(), 1u);
    EXPECT_THAT(w.user.messages()[0].text, HasSubstr("frmInfNotConf / cmdNotificacion_Click()"));
    EXPECT_EQ(u.get<forms::Grid>("msgNotificacion").rowCount(), 1);
    u.escape();  // asks before the notices are thrown away
    EXPECT_EQ(w.user.messages().size(), 2u);
  });
  EXPECT_EQ(w.filas(TABLA), 0);
  EXPECT_FALSE(w.conInformes().inTransaction());
}

}  // namespace fidaleon::tests::NoticesTest
