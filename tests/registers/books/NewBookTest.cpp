#include "registers/Rows.h"
#include "registers/books/frmAltaLibro.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::NewBookTest {

class AltaLibro : public ::testing::TestWithParam<std::size_t> {
 protected:
  const Sacramento& s = SACRAMENTOS.at(GetParam());
  TestWorld mundo;
  std::int32_t sanJuan = mundo.institucion("San Juan");
  std::int32_t santaAna = mundo.institucion("Santa Ana");
  std::vector<std::string> esperados;

  void abrir(Act acto, std::int32_t institucion = 0) {
    const std::string nombre = std::string("frmAltaLibro") + s.palabra;
    mundo.user.expectForm(nombre, std::move(acto));
    for (const std::string& mensaje : esperados) mundo.user.expectMessage(mensaje);
    const auto alta = crearAltaLibro(mundo.contexto, s);
    alta->conBaseDatos = mundo.parish.get();
    alta->lngInstitucion = institucion;
    alta->Show();
  }
  /// While the dialog is open.
  void espera(const std::string& mensaje) { esperados.push_back(mensaje); }

  std::string libro(const char* columnas, const std::string& donde = "1=1") {
    return mundo.value(std::string("SELECT ") + columnas + " FROM " + s.tablaLibros + " WHERE " +
                       donde);
  }
  std::int64_t libros() { return mundo.count(s.tablaLibros); }
  void crear(const std::string& nombre, std::int32_t institucion, bool nuevo) {
    insertBook(mundo, s, institucion, {nombre, nuevo});
  }
  std::string ultima() {
    return mundo.settings.read("Fidaleon", "ana\\Castellano\\ultimos", "ultimos_Institucion");
  }

  static void aceptarNuevo(FormDriver& f) {
    f.chooseData("cboTipoNombre", 4);
    f.type("txtNombreLibro", "Otro");
    f.chooseData("cboFormato", 3);
    f.click("cmdBoton(0)");
  }
  static void rellenarAntiguo(FormDriver& f) {
    f.choose("cboInstituciones", "San Juan");
    f.click("optAntiguo");
    f.chooseData("cboTipoNombre", 4);
    f.type("txtNombreLibro", "Libro 12");
    f.chooseData("cboFormato", 2);
    f.type("adtpAltaLibro", "3/2/1898");
  }
};

INSTANTIATE_TEST_SUITE_P(Sacramentos, AltaLibro, ::testing::Range<std::size_t>(0, 4),
                         [](const auto& p) { return SACRAMENTOS.at(p.param).palabra; });

class AltaLibroBautismo : public AltaLibro {};
INSTANTIATE_TEST_SUITE_P(Una, AltaLibroBautismo, ::testing::Values(0));

TEST_P(AltaLibro, theOnlyInstitution_isChosenAndTheUserBeginsBehindIt) {
  mundo.parish->Execute("DELETE * FROM Institucion WHERE Nombre='Santa Ana'");
  abrir([](FormDriver& f) {
    EXPECT_EQ(f.text("cboInstituciones"), "San Juan");
    EXPECT_TRUE(f.enabled("optNuevo"));
    f.form().begin();
    EXPECT_EQ(f.focused(), "optNuevo");
    f.escape();
  });
}

TEST_P(AltaLibro, newBook_isStoredOpenWithItsCountersAtOne) {
  abrir([&](FormDriver& f) {
    for (const char* campo :
         {"optNuevo", "optAntiguo", "cboTipoNombre", "txtNombreLibro", "cboFormato"})
      EXPECT_FALSE(f.enabled(campo)) << campo;
    f.choose("cboInstituciones", "San Juan");
    f.click("optNuevo");
    EXPECT_EQ(f.text("adtpAltaLibro"), "22/11/2026");
    EXPECT_TRUE(f.locked("adtpAltaLibro"));
    f.chooseData("cboTipoNombre", 1);
    EXPECT_EQ(f.text("txtNombreLibro"), "2026/01");
    EXPECT_TRUE(f.locked("txtNombreLibro"));
    EXPECT_EQ(f.get<forms::ComboBox>("cboFormato").listCount(), 1);
    EXPECT_EQ(f.get<forms::ComboBox>("cboFormato").data(), 3) << "there is no other";
    f.click("cmdBoton(0)");
    EXPECT_TRUE(f.closed());
  });
  EXPECT_EQ(libros(), 1);
  EXPECT_EQ(libro("Nombre", "CodInstitucion=" + std::to_string(sanJuan) +
                                " AND CodFormato=3 AND CodTipoNombre=1 AND "
                                "FechaCreacion='20261122' AND NumeroSiguiente='1' AND "
                                "FolioSiguiente=1 AND Nuevo=true AND Cerrado=false"),
            "2026/01");
  EXPECT_EQ(ultima(), "San Juan");
  EXPECT_EQ(mundo.user.hourglassDepth(), 0);
}

TEST_P(AltaLibro, oldBook_takesAnyFormatAndItsOwnDate) {
  abrir([&](FormDriver& f) {
    rellenarAntiguo(f);
    EXPECT_EQ(f.get<forms::ComboBox>("cboFormato").listCount(), 4);
    f.click("cmdBoton(0)");
    EXPECT_TRUE(f.closed());
  });
  EXPECT_EQ(libro("Nombre", "nuevo=false and FechaCreacion=\"18980203\""), "Libro 12");
}

TEST_P(AltaLibro, secondOpenNewBookOfAnInstitution_isRefusedAtAcceptance) {
  crear("Abierto ya", sanJuan, true);
  espera("¡Para la Institución San Juan ya existe un libro nuevo abierto!");
  abrir([&](FormDriver& f) {
    f.choose("cboInstituciones", "San Juan");
    f.click("optNuevo");
    aceptarNuevo(f);
    EXPECT_FALSE(f.closed());
    EXPECT_EQ(f.focused(), "cboInstituciones");
    f.choose("cboInstituciones", "Santa Ana");
    f.click("optNuevo");
    aceptarNuevo(f);
    EXPECT_TRUE(f.closed()) << "another institution has a book of its own";
  });
  EXPECT_EQ(libros(), 2);
}

TEST_P(AltaLibro, nameThatExists_isRefusedWithinTheInstitution) {
  crear("libro  12 ", sanJuan, false);
  espera("¡El nombre del libro introducido ya existe!");
  abrir([&](FormDriver& f) {
    rellenarAntiguo(f);
    f.click("cmdBoton(0)");
    EXPECT_FALSE(f.closed());
    f.type("txtNombreLibro", "Libro 13");
    f.click("cmdBoton(0)");
    EXPECT_TRUE(f.closed());
  });
  EXPECT_EQ(libros(), 2);
}

TEST_P(AltaLibro, storeThatFails_isToldUnderTheNamesOfTheDialogWhichKeepsWhatWasTyped) {
  const std::array<std::string, 4> carga{"Form_Load()", "From_Load()", "From_Load()",
                                         "Form_Load()"};
  const std::array<std::string, 4> boton{"cmdBoton_Click()", "cmdBoton_Click()",
                                         "cmdBoton_Click(Index As Integer)", "cmdBoton_Click()"};
  auto* fallos = store::FailingEngine::wrap(mundo.con());
  fallos->failOn("insert into", store::ErrorKind::DiskFull);
  fallos->failOn("where cerrado=");
  mundo.user.answerAnything(Answer::Ok);
  abrir([&](FormDriver& f) {
    rellenarAntiguo(f);
    for (int i = 0; i < 2; ++i) f.click("cmdBoton(0)");
    EXPECT_EQ(f.text("txtNombreLibro"), "Libro 12");
    f.click("cmdBoton(0)");
    EXPECT_TRUE(f.closed());
  });
  EXPECT_EQ(libros(), 1);
  fallos->failOn("from institucion");
  abrir([](FormDriver& f) { f.escape(); });
  ASSERT_EQ(mundo.user.messages().size(), 3u);
  const auto enDialogo = [&](const std::string& procedimiento) {
    return HasSubstr("FidaleonNucleo / frmAltaLibro" + std::string(s.palabra) + " / " +
                     procedimiento + ")");
  };
  EXPECT_THAT(mundo.user.messages()[0].text, enDialogo(boton[GetParam()]));
  EXPECT_THAT(mundo.user.messages()[1].text, enDialogo("GuardarDatos()"));
  EXPECT_THAT(mundo.user.messages()[2].text, enDialogo(carga[GetParam()]));
}

TEST_P(AltaLibroBautismo, whatIsMissing_isToldInOrderAndGetsTheFocus) {
  const struct {
    const char *campo, *control;
    std::function<void(FormDriver&)> rellenar;
  } pasos[] = {
      {"Institución", "cboInstituciones",
       [](auto& f) { f.choose("cboInstituciones", "San Juan"); }},
      {"Libro nuevo o antiguo", "optNuevo", [](auto& f) { f.click("optAntiguo"); }},
      {"Tipo de nombre", "cboTipoNombre", [](auto& f) { f.chooseData("cboTipoNombre", 4); }},
      {"Nombre del libro", "txtNombreLibro", [](auto& f) { f.type("txtNombreLibro", "Libro 12"); }},
      {"Formato", "cboFormato", [](auto& f) { f.chooseData("cboFormato", 1); }},
      {"Fecha de creación", "adtpAltaLibro", [](auto& f) { f.type("adtpAltaLibro", "01021900"); }}};
  for (const auto& paso : pasos)
    espera(std::string("Falta rellenar el campo «") + paso.campo + "».");
  abrir([&](FormDriver& f) {
    for (const auto& paso : pasos) {
      f.click("cmdBoton(0)");
      EXPECT_EQ(f.focused(), paso.control);
      paso.rellenar(f);
    }
    f.click("cmdBoton(0)");
    EXPECT_TRUE(f.closed());
  });
}

TEST_P(AltaLibroBautismo, addingAnInstitution_choosesItAloneAndCancellingLeavesTheList) {
  mundo.user.expectForm("frmAltaLibroBautismo", [&](FormDriver& f) {
    rellenarAntiguo(f);
    mundo.user.expectForm("frmInstitucion", [](FormDriver& i) { i.escape(); });
    f.click("cmdAgregarInstitucion");
    EXPECT_EQ(f.get<forms::ComboBox>("cboInstituciones").listCount(), 2);
    EXPECT_EQ(f.text("cboInstituciones"), "San Juan");
    EXPECT_EQ(f.text("txtNombreLibro"), "Libro 12");
    mundo.user.expectForm("frmInstitucion", [](FormDriver& i) {
      i.type("txtInstitucion(0)", "San Blas");
      i.click("cmdBoton(0)");
    });
    f.click("cmdAgregarInstitucion");
    EXPECT_EQ(f.get<forms::ComboBox>("cboInstituciones").listCount(), 1);
    EXPECT_EQ(f.text("cboInstituciones"), "San Blas");
    f.click("cmdBoton(1)");
  });
  frmAltaLibroBautismo alta(mundo.contexto);
  alta.conBaseDatos = mundo.parish.get();
  alta.Show();
}

TEST_P(AltaLibroBautismo, institutionDeletedMeanwhile_isNamedAndAnotherCanBeChosen) {
  espera(
      "Ya no existe, porque se ha eliminado desde otro puesto:\n\nla institución «San Juan»\n\nLo "
      "que ha escrito sigue aquí. Elija otro y acepte de nuevo.");
  abrir([&](FormDriver& f) {
    rellenarAntiguo(f);
    mundo.con().Execute("DELETE * FROM Institucion WHERE IDInstitucion=" + std::to_string(sanJuan));
    f.click("cmdBoton(0)");
    EXPECT_FALSE(f.closed());
    EXPECT_EQ(f.focused(), "cboInstituciones");
    EXPECT_EQ(f.get<forms::ComboBox>("cboInstituciones").listCount(), 1);
    EXPECT_EQ(f.text("txtNombreLibro"), "Libro 12");
    f.click("cmdBoton(1)");
  });
  EXPECT_EQ(libros(), 0);
}

TEST_P(AltaLibroBautismo, doubleQuotesInTheName_neverReachTheStore) {
  abrir([&](FormDriver& f) {
    rellenarAntiguo(f);
    f.type("txtNombreLibro", "El \"Viejo\"");
    EXPECT_EQ(f.text("txtNombreLibro"), "El ''Viejo''");
    f.paste("txtNombreLibro", "El \"Nuevo\"");
    f.focus("cboFormato");
    EXPECT_EQ(f.text("txtNombreLibro"), "El Nuevo");
    f.paste("txtNombreLibro", "\"Ñu\" 🕊'; DROP TABLE Bautismo; --");
    f.click("cmdBoton(0)");
  });
  EXPECT_EQ(libro("Nombre"), "Ñu 🕊'; DROP TABLE Bautismo; --");
}

TEST_P(AltaLibroBautismo, yearWith99Books_fallsBackToAFreeName) {
  for (int n = 1; n <= 99; ++n)
    crear("2026/" + std::string(n < 10 ? "0" : "") + std::to_string(n), sanJuan, false);
  espera("¡No se pueden crear más libros para el formato elegido!");
  abrir([&](FormDriver& f) {
    f.choose("cboInstituciones", "San Juan");
    f.click("optNuevo");
    f.chooseData("cboTipoNombre", 1);
    EXPECT_EQ(f.text("cboTipoNombre"), "Abierto");
    EXPECT_EQ(f.text("txtNombreLibro"), "");
    f.type("txtNombreLibro", "Cien");
    f.click("cmdBoton(1)");
  });
  EXPECT_EQ(libros(), 99) << "cancelling stores nothing";
}

TEST_P(AltaLibroBautismo, fixedInstitution_cannotBeChangedAndMenorcaOffersTwoEntriesPerFolio) {
  mundo.entorno.installation.Aplicacion = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
  abrir(
      [&](FormDriver& f) {
        EXPECT_EQ(f.text("cboInstituciones"), "Santa Ana");
        EXPECT_TRUE(f.locked("cboInstituciones"));
        EXPECT_FALSE(f.enabled("cmdAgregarInstitucion"));
        f.click("optNuevo");
        for (const int formato : {2, 3}) f.chooseData("cboFormato", formato);
        f.click("cmdBoton(1)");
      },
      santaAna);
}

TEST_P(AltaLibroBautismo, lastInstitution_isOfferedAgain) {
  for (const std::string ultima : {"Ya no está", "Santa Ana"}) {
    mundo.settings.write("Fidaleon", "ana\\Castellano\\ultimos", "ultimos_Institucion", ultima);
    abrir([&](FormDriver& f) {
      EXPECT_EQ(f.text("cboInstituciones"), ultima == "Santa Ana" ? ultima : "");
      f.escape();
    });
  }
}

TEST_P(AltaLibroBautismo, anotherInstitution_startsTheChoicesAnew) {
  abrir([&](FormDriver& f) {
    rellenarAntiguo(f);
    f.choose("cboInstituciones", "Santa Ana");
    EXPECT_FALSE(f.get<forms::OptionButton>("optAntiguo").value());
    EXPECT_EQ(f.text("txtNombreLibro"), "");
    f.click("optAntiguo");
    EXPECT_EQ(f.text("adtpAltaLibro"), "");
    EXPECT_FALSE(f.locked("adtpAltaLibro"));
    f.click("cmdBoton(1)");
  });
}

}  // namespace fidaleon::tests::NewBookTest
