// Moving lines between the two lists of a dialog.

#include <stdexcept>

#include "core/lists/ListaDoble.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::ListaDobleTest {

struct Ventana : forms::Form {
  Ventana(Contexto& contexto, const ListaDoble::Textos& textos)
      : Form(contexto.ui(), "ventana"),
        lst(*this, "lst"),
        cmdMover(*this, "cmdMover"),
        listas(contexto, *this, lst.add(0, "DISPONIBLES:"), lst.add(1, "SELECCIONADAS:"), cmdMover,
               textos) {
    setLayout(listas.disposicion());
  }
  forms::ControlArray<forms::ListBox> lst;
  forms::ControlArray<forms::Button> cmdMover;
  ListaDoble listas;
};

class DosListas : public ::testing::Test {
 protected:
  static ListaDoble::Textos textos() {
    ListaDoble::Textos t;
    t.todas = "todos";
    t.nadaQueElegir = "¡Nada que agregar!";
    t.nadaQueQuitar = "¡Nada que quitar!";
    return t;
  }
  void SetUp() override {
    ventana.listas.llenar({{40, "Ana"}, {30, "Blas"}, {20, "Carmen"}, {10, "Diego"}});
    ventana.Load();
  }
  std::vector<std::string> lineas(int lista) const {
    std::vector<std::string> todas;
    for (int i = 0; i < ventana.lst[lista].listCount(); ++i)
      todas.push_back(ventana.lst[lista].list(i));
    return todas;
  }
  void marcar(int lista, std::initializer_list<int> filas) {
    for (int i = 0; i < ventana.lst[lista].listCount(); ++i)
      ventana.lst[lista].setSelected(i, false);
    for (const int fila : filas) ventana.lst[lista].setSelected(fila, true);
  }
  void pulsar(ListaDoble::Movimiento movimiento) {
    usuario.click("cmdMover(" + std::to_string(movimiento) + ")");
  }

  TestWorld mundo;
  Ventana ventana{mundo.contexto, textos()};
  std::vector<std::string> problemas;
  FormDriver usuario{ventana, problemas};
};

TEST_F(DosListas, MarkedLines_GoInTheirOrderAndComeBackToTheirOldPlaces) {
  EXPECT_EQ(ventana.cmdMover[ListaDoble::ELEGIR_TODAS].caption(), "Agregar &todos >>");
  ListaDoble::Claves vueltos;
  ventana.listas.quitados = [&](const ListaDoble::Claves& claves) { vueltos = claves; };
  marcar(0, {1, 3});
  pulsar(ListaDoble::ELEGIR);
  EXPECT_THAT(lineas(1), ElementsAre("Blas", "Diego"));
  EXPECT_THAT(lineas(0), ElementsAre("Ana", "Carmen"));
  EXPECT_EQ(ventana.lst[0].listIndex(), 1) << "to go on from there";
  EXPECT_EQ(ventana.lst[0].selCount(), 0) << "but nobody has marked it";
  pulsar(ListaDoble::ELEGIR_TODAS);
  EXPECT_THAT(ventana.listas.seleccionadas(), ElementsAre(30, 10, 40, 20));
  ventana.lst[1].addItem("Eva", 99);  // not known from the start
  marcar(1, {4, 1, 0});
  pulsar(ListaDoble::QUITAR);
  EXPECT_THAT(vueltos, ElementsAre(30, 10, 99));
  pulsar(ListaDoble::QUITAR_TODAS);
  EXPECT_THAT(lineas(0), ElementsAre("Ana", "Blas", "Carmen", "Diego", "Eva"));
  EXPECT_THAT(problemas, IsEmpty());
}

TEST_F(DosListas, DoubleClick_MovesThatLineAloneUnlessTheButtonIsOff) {
  marcar(0, {0});
  ventana.lst[0].userSelect(2);
  ventana.lst[0].onDblClick();
  EXPECT_THAT(lineas(1), ElementsAre("Carmen"));
  EXPECT_TRUE(ventana.lst[0].selected(0)) << "what was marked still is";
  EXPECT_EQ(ventana.lst[0].selCount(), 1);
  ventana.lst[1].userSelect(0);
  ventana.cmdMover[ListaDoble::QUITAR].setEnabled(false);
  ventana.lst[1].onDblClick();
  EXPECT_THAT(lineas(1), ElementsAre("Carmen"));
  ventana.cmdMover[ListaDoble::QUITAR].setEnabled(true);
  ventana.lst[1].onDblClick();
  ventana.lst[1].onDblClick();  // none is left
  EXPECT_EQ(lineas(0).size(), 4u);
}

TEST_F(DosListas, OwnerWhoRefusesOrFails_KeepsTheLinesWhereTheyAre) {
  ListaDoble::Claves preguntadas;
  ventana.listas.antesDeElegir = [&](const ListaDoble::Claves& claves) {
    preguntadas = claves;
    return false;
  };
  pulsar(ListaDoble::ELEGIR_TODAS);
  EXPECT_THAT(preguntadas, ElementsAre(40, 30, 20, 10));
  ventana.listas.antesDeElegir = [](const ListaDoble::Claves&) -> bool {
    throw std::runtime_error("no hay cargos");
  };
  mundo.user.answerAnything(Answer::Ok);
  pulsar(ListaDoble::ELEGIR_TODAS);
  EXPECT_THAT(mundo.user.messages().back().text, HasSubstr("ListarTodosSeleccionados"));
  EXPECT_THAT(lineas(0), ElementsAre("Ana", "Blas", "Carmen", "Diego"));
  EXPECT_THAT(lineas(1), IsEmpty());
}

}  // namespace fidaleon::tests::ListaDobleTest
