#include "core/contract/Sacramento.h"
#include "core/lists/cIListas.h"
#include "forms/Form.h"
#include "registers/Rows.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::ListasTest {

struct Ventana : forms::Form {
  explicit Ventana(forms::UserInterface& ui)
      : Form(ui, "ventana"),
        lista(*this, "cboLista"),
        provincia(*this, "cboProvincia"),
        otra(*this, "cboPoblacion"),
        rejilla(*this, "msgRejilla") {}
  forms::ComboBox lista;
  forms::ComboBox provincia;
  forms::ComboBox otra;
  forms::Grid rejilla;
};

class Listas : public ::testing::Test {
 protected:
  static std::vector<std::int64_t> datos(const forms::ListControl& lista) {
    std::vector<std::int64_t> all;
    for (int i = 0; i < lista.listCount(); ++i) all.push_back(lista.itemData(i));
    return all;
  }
  std::vector<std::int64_t> formatos(cCOrigen origen, int nuevo) {
    listas.fillFormatoLibro(ventana.lista, origen, mundo.con(), nuevo);
    return datos(ventana.lista);
  }
  void libro(const std::string& nombre) { insertBook(mundo, BAUTISMO, 1, {nombre}); }
  std::string nombre(std::int64_t tipo, const Sacramento& s = BAUTISMO) {
    return listas.ObtenerNombreLibro(mundo.con(), tipo, 1, s.byte, error);
  }
  std::string ancho(const std::string& camino, int columna) {
    return mundo.settings.read("Fidaleon", "ana\\Castellano\\Grids\\" + camino,
                               std::to_string(columna), "nada");
  }

  TestWorld mundo;
  cIListas listas{mundo.contexto};
  Ventana ventana{mundo.user};
  bool error = false;
};

TEST_F(Listas, BookFormats_FollowOriginAndEdition) {
  EXPECT_THAT(formatos(cCOrigen::NuevoLibro, 1), ElementsAre(3));
  EXPECT_THAT(formatos(cCOrigen::NuevoLibro, 0), ElementsAre(1));
  EXPECT_THAT(formatos(cCOrigen::ANTIGUOLIBRO, 0), ElementsAre(1, 2, 3, 4));
  mundo.entorno.installation.Aplicacion = FDAPI::cCAplicacion::APP_FIDALEON_MENORCA;
  EXPECT_THAT(formatos(cCOrigen::NuevoLibro, 1), ElementsAre(2, 3));
}

TEST_F(Listas, NameTypes_ForNewAndOldBooks) {
  listas.fillTipoNombre(ventana.lista, mundo.con(), "Nuevo");
  EXPECT_THAT(datos(ventana.lista), ElementsAre(1, 4));
  listas.fillTipoNombre(ventana.lista, mundo.con(), "Antiguo");
  EXPECT_THAT(datos(ventana.lista), ElementsAre(2, 3, 4));
}

TEST_F(Listas, BookName_IsTheFirstFreeOneOfItsType) {
  EXPECT_EQ(nombre(1), "2026/01");
  EXPECT_EQ(nombre(2), "1");
  EXPECT_EQ(nombre(3), "I");
  EXPECT_EQ(nombre(4), "");
  for (const char* n : {"2026/01", "2026/03", "1", "2", "4", "I", "II", "III"}) libro(n);
  EXPECT_EQ(nombre(1), "2026/02");
  EXPECT_EQ(nombre(2), "3");
  EXPECT_EQ(nombre(3), "IV");
  EXPECT_EQ(nombre(2, DEFUNCION), "1") << "each register counts apart";
  EXPECT_FALSE(error);
}

TEST_F(Listas, BookNameOfAYearWith99Books_IsRefused) {
  for (int n = 1; n <= 99; ++n) libro("2026/" + std::string(n < 10 ? "0" : "") + std::to_string(n));
  mundo.user.expectMessage("¡No se pueden crear más libros para el formato elegido!");
  EXPECT_EQ(nombre(1), "");
  EXPECT_TRUE(error);
  EXPECT_EQ(mundo.user.beeps(), 1);
  EXPECT_EQ(mundo.user.messages().at(0).icon, forms::MsgIcon::Exclamation);
}

TEST_F(Listas, BookNameThatCannotBeLookedUp_IsReportedAndFails) {
  mundo.user.answerAnything(Answer::Ok);
  EXPECT_EQ(listas.ObtenerNombreLibro(mundo.conInformes(), 2, 1, BAUTISMO.byte, error), "");
  EXPECT_TRUE(error);
  ASSERT_FALSE(mundo.user.messages().empty());
  EXPECT_THAT(mundo.user.messages()[0].text, HasSubstr("ObtenerNombreLibro()"));
}

TEST_F(Listas, Grid_KeepsStoredWidthsAndWritesMissingOnes) {
  const std::string camino = "Propiedades Libros\\PropiedadesLibro";
  mundo.settings.write("Fidaleon", "ana\\Castellano\\Grids\\" + camino, "2", "777");
  mundo.settings.write("Fidaleon", "ana\\Castellano\\Grids\\" + camino, "3", "-1");
  listas.ConfigGridPropiedadesLibro(ventana.rejilla);
  ASSERT_EQ(ventana.rejilla.columns(), 7);
  EXPECT_EQ(ventana.rejilla.header(0), "Folio");
  EXPECT_EQ(ventana.rejilla.header(4), "2º Apellido");
  EXPECT_EQ(ventana.rejilla.header(6), "Anulada");
  EXPECT_EQ(ancho(camino, 0), "nada");
  EXPECT_EQ(ancho(camino, 2), "777");
  EXPECT_EQ(ancho(camino, 3), "1200");
  EXPECT_EQ(ventana.rejilla.columnWidth(2), 777);
  EXPECT_EQ(ventana.rejilla.columnWidth(5), 1200);
}

TEST_F(Listas, Provinces_AreFilledAnewWithTheirChoiceKept) {
  const std::int32_t madrid = mundo.provincia("Madrid");
  ventana.provincia.addItem("Madrid", madrid);
  ventana.provincia.setListIndex(0);
  ventana.otra.addItem("Getafe", 1);
  listas.TodoProvincias(mundo.con(), ventana);
  EXPECT_GE(ventana.provincia.listCount(), 52);
  EXPECT_EQ(ventana.provincia.data(), madrid);
  EXPECT_THAT(datos(ventana.otra), ElementsAre(1));
}

}  // namespace fidaleon::tests::ListasTest
