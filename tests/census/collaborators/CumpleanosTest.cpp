// The field of a birthday.

#include "census/collaborators/CampoCumpleanos.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::CumpleanosTest {

struct Formulario : forms::Form {
  explicit Formulario(forms::UserInterface& interfaz) : Form(interfaz, "Formulario") {
    cancelar.setCancel(true);
    cancelar.onClick = [this] { Unload(); };
    setLayout(forms::column({forms::item(campo), forms::item(otro), forms::item(cancelar)}));
  }
  forms::TextBox campo{*this, "campo"}, otro{*this, "otro"};
  forms::Button cancelar{*this, "cancelar", "CANCELAR"};
  CampoCumpleaños cumpleaños{campo};
};

struct Cumpleaños : ::testing::Test {
  void TearDown() override { EXPECT_THAT(problemas, IsEmpty()); }
  /// The text after this key, with so much selected in front of the caret: a letter, or "<" for the
  /// one that erases what is behind.
  std::string tras(char tecla, int desde, int cuantos = 0) {
    u.focus("campo");
    formulario.campo.setSelection(desde, cuantos);
    KeyPress pulsada;
    pulsada.key = tecla == '<' ? Key::Backspace : Key::Character;
    pulsada.character = tecla == '<' ? 0 : static_cast<char32_t>(tecla);
    u.press("campo", pulsada);
    return formulario.campo.text();
  }
  forms::ScriptedUser user;
  Formulario formulario{user};
  std::vector<std::string> problemas;
  FormDriver u{formulario, problemas};
};

TEST_F(Cumpleaños, TypedKeyByKey_GetsItsSlashAndRefusesWhatIsNoDayOrMonth) {
  const auto queda = [&](const char* teclas) {
    const int antes = user.beeps();
    formulario.campo.setText("");
    u.type("campo", teclas);
    return formulario.campo.text() +
           std::string(static_cast<std::size_t>(user.beeps() - antes), '!');
  };
  const std::pair<const char*, const char*> CASOS[] = {
      {"0", "0"},          {"03", "03/"},     {"0305", "03/05"}, {"03/05", "03/05"},
      {"4", "!"},          {"32", "3!"},      {"31", "31/"},     {"00", "0!"},
      {"122", "12/!"},     {"1213", "12/1!"}, {"1212", "12/12"}, {"1200", "12/0!"},
      {"03057", "03/05!"}, {"a", "!"},        {"0ñ3", "03/!"},   {"3 1", "31/!"},
      {"/", "!"},          {"2902", "29/02"}, {"3/", "3!"},
  };
  for (const auto& [teclas, texto] : CASOS) EXPECT_EQ(queda(teclas), texto) << teclas;
}

TEST_F(Cumpleaños, EditedInTheMiddle_KeepsItsSlashWhereItBelongs) {
  u.type("campo", "12");
  EXPECT_EQ(tras('<', 3), "1") << "the digit before the slash goes too";
  u.type("campo", "1205");
  EXPECT_EQ(tras('<', 5), "12/0");
  EXPECT_EQ(tras('<', 3), "10");
  EXPECT_EQ(tras('3', 1), "13/0");
  EXPECT_EQ(formulario.campo.selStart(), 3);
  u.type("campo", "1205");
  EXPECT_EQ(tras('3', 0, 2), "3/05");
  EXPECT_EQ(tras('1', 1), "31/05");
  EXPECT_EQ(formulario.campo.selStart(), 3);
  EXPECT_EQ(tras('0', 2), "31/05");
  EXPECT_EQ(user.beeps(), 1);
  EXPECT_EQ(tras('/', 2), "31/05");
  EXPECT_EQ(formulario.campo.selStart(), 3);
  EXPECT_EQ(tras('1', 3, 2), "31/1");
  EXPECT_EQ(tras('<', 0, 4), "");
}

TEST_F(Cumpleaños, PastedInAnotherForm_IsPutRightOnLeaving) {
  const std::pair<const char*, const char*> CASOS[] = {{"3/5", "03/05"},        {"03-05", "03/05"},
                                                       {"0305", "03/05"},       {"3.5", "03/05"},
                                                       {"03/05/1998", "03/05"}, {"  ", ""}};
  for (const auto& [pegado, queda] : CASOS) {
    u.type("campo", "");
    u.paste("campo", pegado);
    u.focus("otro");
    EXPECT_EQ(formulario.campo.text(), queda) << pegado;
    EXPECT_EQ(u.focused(), "otro") << pegado;
  }
}

TEST_F(Cumpleaños, NoDayOfTheYear_IsToldAndKeepsTheFocusButNotFromCancel) {
  for (const std::string tecleado : {"1", "12/", "31/02", "31/04", "30/02", "ayer"}) {
    formulario.campo.setText("");
    u.paste("campo", tecleado);
    EXPECT_FALSE(formulario.cumpleaños.valido());
    user.expectMessage("«" + tecleado +
                       "» no es un día del año. Escriba el cumpleaños como día/mes: 03/05.");
    u.focus("otro");
    EXPECT_EQ(u.focused(), "campo");
    EXPECT_EQ(formulario.campo.text(), tecleado);
  }
  u.click("cancelar");
  EXPECT_TRUE(u.closed());
}

TEST_F(Cumpleaños, OddTextFromTheStore_PassesUntilItIsChanged) {
  formulario.cumpleaños.poner("mayo");
  EXPECT_TRUE(formulario.cumpleaños.valido());
  u.focus("campo");
  u.focus("otro");
  EXPECT_EQ(tras('3', 4), "mayo");
  u.paste("campo", "maya");
  EXPECT_FALSE(formulario.cumpleaños.valido());
}

}  // namespace fidaleon::tests::CumpleanosTest
