#include "census/collaborators/CampoCumpleanos.h"
#include "support/TestWorld.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;
using forms::Key;
using forms::KeyPress;

struct Formulario : forms::Form {
  explicit Formulario(forms::UserInterface& interfaz)
      : Form(interfaz, "Formulario"),
        campo(*this, "campo"),
        otro(*this, "otro"),
        cancelar(*this, "cancelar", "CANCELAR"),
        cumpleaños(campo) {
    cancelar.setCancel(true);
    cancelar.onClick = [this] { Unload(); };
    setLayout(forms::column({forms::item(campo), forms::item(otro), forms::item(cancelar)}));
  }
  forms::TextBox campo, otro;
  forms::Button cancelar;
  CampoCumpleaños cumpleaños;
};

struct CampoWorld {
  void teclear(const std::string& cifras) { u.type("campo", cifras); }
  /// The key with so much of the text selected, in front of the caret.
  void pulsar(Key tecla, char32_t caracter, int desde, int cuantos = 0) {
    u.focus("campo");
    formulario.campo.setSelection(desde, cuantos);
    KeyPress pulsada;
    pulsada.key = tecla;
    pulsada.character = caracter;
    u.press("campo", pulsada);
  }
  std::string texto() const { return formulario.campo.text(); }

  forms::ScriptedUser user;
  Formulario formulario{user};
  std::vector<std::string> problemas;
  FormDriver u{formulario, problemas};
};

TEST(CampoCumpleanos, TypedKeyByKey_GetsItsSlashAndRefusesWhatIsNoDayOrMonth) {
  struct {
    const char* teclas;
    const char* texto;
    int pitidos;
  } const CASOS[] = {
      {"0", "0", 0},         {"03", "03/", 0},     {"0305", "03/05", 0}, {"03/05", "03/05", 0},
      {"4", "", 1},          {"32", "3", 1},       {"31", "31/", 0},     {"00", "0", 1},
      {"122", "12/", 1},     {"1213", "12/1", 1},  {"1212", "12/12", 0}, {"1200", "12/0", 1},
      {"03057", "03/05", 1}, {"a", "", 1},         {"0ñ3", "03/", 1},    {"3 1", "31/", 1},
      {"/", "", 1},          {"2902", "29/02", 0},
  };
  for (const auto& caso : CASOS) {
    CampoWorld w;
    w.teclear(caso.teclas);
    EXPECT_EQ(w.texto(), caso.texto) << caso.teclas;
    EXPECT_EQ(w.user.beeps(), caso.pitidos) << caso.teclas;
  }
}

TEST(CampoCumpleanos, BackspaceBehindTheSlash_TakesTheDigitBeforeItToo) {
  CampoWorld w;
  w.teclear("12");
  w.pulsar(Key::Backspace, 0, 3);
  EXPECT_EQ(w.texto(), "1");
  w.teclear("1205");
  w.pulsar(Key::Backspace, 0, 5);
  EXPECT_EQ(w.texto(), "12/0");
  w.pulsar(Key::Backspace, 0, 3);
  EXPECT_EQ(w.texto(), "10");
  w.pulsar(Key::Character, U'3', 1);
  EXPECT_EQ(w.texto(), "13/0");
  EXPECT_EQ(w.formulario.campo.selStart(), 3);
}

TEST(CampoCumpleanos, TypedOverASelection_ReplacesThatPartOnly) {
  CampoWorld w;
  w.teclear("1205");
  w.pulsar(Key::Character, U'3', 0, 2);
  EXPECT_EQ(w.texto(), "3/05");
  w.pulsar(Key::Character, U'1', 1);
  EXPECT_EQ(w.texto(), "31/05");
  EXPECT_EQ(w.formulario.campo.selStart(), 3);
  w.pulsar(Key::Character, U'0', 2);
  EXPECT_EQ(w.texto(), "31/05");
  EXPECT_EQ(w.user.beeps(), 1);
  w.pulsar(Key::Character, U'/', 2);
  EXPECT_EQ(w.formulario.campo.selStart(), 3);
  w.pulsar(Key::Character, U'1', 3, 2);
  EXPECT_EQ(w.texto(), "31/1");
  w.pulsar(Key::Backspace, 0, 0, 4);
  EXPECT_EQ(w.texto(), "");
}

TEST(CampoCumpleanos, PastedInAnotherForm_IsPutRightOnLeaving) {
  const std::pair<const char*, const char*> CASOS[] = {{"3/5", "03/05"},        {"03-05", "03/05"},
                                                       {"0305", "03/05"},       {"3.5", "03/05"},
                                                       {"03/05/1998", "03/05"}, {"  ", ""}};
  for (const auto& [pegado, queda] : CASOS) {
    CampoWorld w;
    w.u.paste("campo", pegado);
    w.u.focus("otro");
    EXPECT_EQ(w.texto(), queda) << pegado;
    EXPECT_EQ(w.u.focused(), "otro") << pegado;
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(CampoCumpleanos, NoDayOfTheYear_IsToldAndKeepsTheFocus) {
  for (const std::string tecleado : {"1", "12/", "31/02", "31/04", "30/02", "ayer"}) {
    CampoWorld w;
    w.u.paste("campo", tecleado);
    EXPECT_FALSE(w.formulario.cumpleaños.valido());
    w.user.expectMessage("«" + tecleado +
                         "» no es un día del año. Escriba el cumpleaños como día/mes: 03/05.");
    w.u.focus("otro");
    EXPECT_EQ(w.u.focused(), "campo");
    EXPECT_EQ(w.texto(), tecleado);
    w.u.click("cancelar");
    EXPECT_TRUE(w.u.closed());
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(CampoCumpleanos, OddTextFromTheStore_PassesUntilItIsChanged) {
  CampoWorld w;
  w.formulario.cumpleaños.poner("mayo");
  EXPECT_TRUE(w.formulario.cumpleaños.valido());
  w.u.focus("campo");
  w.u.focus("otro");
  EXPECT_EQ(w.texto(), "mayo");
  w.pulsar(Key::Character, U'3', 4);
  EXPECT_EQ(w.texto(), "mayo");
  w.u.paste("campo", "maya");
  EXPECT_FALSE(w.formulario.cumpleaños.valido());
}

TEST(CampoCumpleanos, Locked_IgnoresKeysSilently) {
  CampoWorld w;
  w.formulario.cumpleaños.poner("03/05");
  w.formulario.campo.setLocked(true);
  w.pulsar(Key::Character, U'1', 0, 5);
  w.pulsar(Key::Backspace, 0, 3);
  w.pulsar(Key::Character, U'x', 5);
  EXPECT_EQ(w.texto(), "03/05");
  EXPECT_EQ(w.user.beeps(), 0);
}

}  // namespace
}  // namespace fidaleon::tests
