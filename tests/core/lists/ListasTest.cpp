#include "core/contract/Sacramento.h"
#include "core/lists/cIListas.h"
#include "forms/Form.h"
#include "registers/Rows.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::ListasTest {

struct Ventana : forms::Form {
  explicit Ventana(forms::UserInterface& ui) : Form(ui, "ventana") {}
  forms::ComboBox lista{*this, "cboLista"};
};

class Listas : public ::testing::Test {
 protected:
  std::vector<std::int64_t> formatos(cCOrigen origen, int nuevo) {
    listas.fillFormatoLibro(ventana.lista, origen, mundo.con(), nuevo);
    std::vector<std::int64_t> todos;
    for (int i = 0; i < ventana.lista.listCount(); ++i) todos.push_back(ventana.lista.itemData(i));
    return todos;
  }
  void libro(const std::string& nombre) { insertBook(mundo, BAUTISMO, 1, {nombre}); }
  std::string nombre(std::int64_t tipo, const Sacramento& s = BAUTISMO) {
    return listas.ObtenerNombreLibro(mundo.con(), tipo, 1, s.byte, error);
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

}  // namespace fidaleon::tests::ListasTest
