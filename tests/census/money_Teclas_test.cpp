#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "census/money/cCurrency.h"
#include "forms/Form.h"
#include "forms/ScriptedUser.h"
#include "text/Utf8.h"

namespace fidaleon::tests {
namespace {

using forms::Key;
using forms::KeyPress;

constexpr const char* MARCA = "|Punto Tecl. Núm. pulsado|";

/// An amount as the cards of people have it. Its state is written "12|34" with the caret and
/// "1[23]4" with a selection.
struct FormImporte : forms::Form {
  explicit FormImporte(forms::UserInterface& ui) : Form(ui, "frmImporte"), campo(*this, "campo") {
    campo.onKeyPress = [this](KeyPress& tecla) {
      moneda.VerificarCurrencyKeyDown(campo, tecla, enteros, decimales, signo);
      moneda.VerificarCurrencyKeyPress(campo, tecla, enteros, decimales, signo);
    };
    setLayout(forms::column({forms::item(campo)}));
    Load();
  }

  void poner(const std::string& estado) {
    const std::size_t desde = estado.find_first_of("|[");
    const std::size_t hasta = estado.find(']');
    std::string texto = estado;
    std::erase_if(texto, [](char c) { return c == '|' || c == '[' || c == ']'; });
    campo.setText(texto);
    campo.setSelection(static_cast<int>(desde),
                       hasta == std::string::npos ? 0 : static_cast<int>(hasta - desde) - 1);
  }
  std::string estado() const {
    const std::string resto = text::mid(campo.text(), campo.selStart());
    const std::string elegido = text::left(resto, campo.selLength());
    return text::left(campo.text(), campo.selStart()) +
           (elegido.empty() ? "|" : "[" + elegido + "]") + text::mid(resto, campo.selLength());
  }
  std::string trasTecla(const std::string& antes, KeyPress tecla) {
    poner(antes);
    KeyPress vista = tecla;
    campo.filterKey(vista);
    const bool tragada = vista.replacement == "";
    if (!tragada) campo.press(tecla);
    return estado();
  }

  forms::TextBox campo;
  cCurrency moneda;
  int enteros = 7;
  int decimales = 2;
  bool signo = false;
};

KeyPress letra(char32_t c) {
  KeyPress tecla;
  tecla.key = c == U' ' ? Key::Space : Key::Character;
  tecla.character = c;
  return tecla;
}

KeyPress tecla(Key key) {
  KeyPress t;
  t.key = key;
  return t;
}

KeyPress punto(bool teclado, char32_t c = U'.') {
  KeyPress t = letra(c);
  t.keypad = teclado;
  return t;
}

struct Caso {
  std::string antes;
  KeyPress tecla;
  std::string despues;
};

class TeclasImporte : public ::testing::Test {
 protected:
  void comprobar(const std::vector<Caso>& casos) {
    for (const Caso& caso : casos)
      EXPECT_EQ(form.trasTecla(caso.antes, caso.tecla), caso.despues)
          << caso.antes << " with key " << static_cast<int>(caso.tecla.key) << " '"
          << static_cast<char>(caso.tecla.character) << "'";
  }
  forms::ScriptedUser user;
  FormImporte form{user};
};

TEST_F(TeclasImporte, Digits_StopAtTheLimitsOnEachSideOfTheComma) {
  comprobar({
      {"|", letra('5'), "5|"},
      {"123456|", letra('7'), "1234567|"},
      {"1234567|", letra('8'), "1234567|"},
      {"1.234.567|", letra('8'), "1.234.567|"},
      {"12|34567,00", letra('8'), "12|34567,00"},
      {"1.234.56|,00", letra('7'), "1.234.567|,00"},
      {"1234567,|", letra('8'), "1234567,8|"},
      {"1,2|", letra('3'), "1,23|"},
      {"1,23|", letra('4'), "1,23|"},
      {"1,|23", letra('4'), "1,|23"},
      {"-1234567|", letra('8'), "-1234567|"},
  });
  form.enteros = 8;
  form.decimales = 0;
  comprobar({{"1234567|", letra('8'), "12345678|"}, {"12,|", letra('3'), "12,|"}});
}

TEST_F(TeclasImporte, Selection_GivesWayFirst) {
  comprobar({
      {"[1234567]", letra('8'), "8|"},
      {"12[345]67", letra('8'), "128|67"},
      {"1,[23]", letra('4'), "1,4|"},
      {"12[34]56", letra(','), "12,56|"},
      {"[12,34]", letra(','), ",|"},
      {"1234[567]", tecla(Key::Backspace), "1234|"},
      {"12[34]56", tecla(Key::Delete), "12|56"},
  });
}

TEST_F(TeclasImporte, RefusedKey_LeavesTheSelectionToo) {
  comprobar({
      {"12[34]56", letra('x'), "12[34]56"},
      {"12[34]56", letra('.'), "12[34]56"},
      {"123456[,]78", letra('9'), "123456[,]78"},
  });
}

TEST_F(TeclasImporte, OtherCharacters_AreRefused) {
  for (const char32_t c : std::u32string_view(U"aZñ €-+*/;:'\"%²٣")) {
    EXPECT_EQ(form.trasTecla("12|3", letra(c)), "12|3") << static_cast<unsigned>(c);
  }
}

TEST_F(TeclasImporte, Comma_SplitsTheDigitsAndKeepsTwoBehind) {
  comprobar({
      {"123|", letra(','), "123,|"},
      {"|", letra(','), ",|"},
      {"12|34567", letra(','), "12,34|"},
      {"1|.234", letra(','), "1,23|"},
      {"1.2|34", letra(','), "1.2,34|"},
      {"12|.", letra(','), "12,|"},
      {"123|4", letra(','), "123,4|"},
      {"12|,3", letra(','), "12|,3"},
      {"12,3|", letra(','), "12,3|"},
  });
}

TEST_F(TeclasImporte, Point_IsACommaFromTheKeypadAndNothingFromTheKeyboard) {
  comprobar({
      {"12|", punto(false), "12|"},
      {"12|", punto(true), "12,|"},
      {"12|", punto(true, U','), "12,|"},
      {"12|345", punto(true), "12,34|"},
      {"12[34]", punto(true), "12,|"},
      {"1,2|", punto(true), "1,2|"},
  });
  EXPECT_EQ(form.campo.Tag, "");
}

TEST_F(TeclasImporte, KeypadMarker_LeavesTheRestOfTheTagAlone) {
  form.campo.Tag = "Precio";
  form.poner("12|");
  KeyPress t = punto(true);
  form.moneda.VerificarCurrencyKeyDown(form.campo, t, 7, 2, false);
  EXPECT_EQ(form.campo.Tag, std::string("Precio") + MARCA);
  EXPECT_FALSE(t.changed());
  form.moneda.VerificarCurrencyKeyPress(form.campo, t, 7, 2, false);
  EXPECT_EQ(form.campo.Tag, "Precio");
  EXPECT_EQ(t.replacement, ",");
}

TEST_F(TeclasImporte, CommaTakenOut_MustNotLeaveTooManyDigits) {
  comprobar({
      {"12345,|67", tecla(Key::Backspace), "12345|67"},
      {"123456,|78", tecla(Key::Backspace), "123456,|78"},
      {"123.456,|78", tecla(Key::Backspace), "123.456,|78"},
      {"12345|,67", tecla(Key::Delete), "12345|67"},
      {"123456|,78", tecla(Key::Delete), "123456|,78"},
      {"123456[,]78", tecla(Key::Backspace), "123456[,]78"},
      {"123456[,]78", tecla(Key::Delete), "123456[,]78"},
      {"12345[6,]78", tecla(Key::Backspace), "12345|78"},
      {"123456,7|8", tecla(Key::Backspace), "123456,|8"},
      {"12345|6,78", tecla(Key::Delete), "12345|,78"},
      {"|123456,78", tecla(Key::Backspace), "|123456,78"},
      {"123456,78|", tecla(Key::Delete), "123456,78|"},
  });
}

TEST_F(TeclasImporte, Sign_GoesInFrontAndTheCaretStaysAmongItsDigits) {
  form.signo = true;
  comprobar({
      {"12|34", letra('-'), "-12|34"},
      {"-12|34", letra('+'), "+12|34"},
      {"+|12", letra('-'), "-|12"},
      {"|-12", letra('+'), "+|12"},
      {"|", letra('-'), "-|"},
      {"1[2]3", letra('-'), "-1|3"},
      {"  12| ", letra('-'), "-12|"},
      {"|-12", letra('3'), "|-12"},
      {"|-12", letra(','), "|-12"},
  });
  form.campo.setMaxLength(4);
  comprobar({{"12|34", letra('-'), "12|34"}});
}

TEST_F(TeclasImporte, KeysThatTypeNothing_AreLeftToTheField) {
  for (const Key key : {Key::Enter, Key::Tab, Key::Left, Key::Home, Key::Other}) {
    KeyPress t = tecla(key);
    form.campo.filterKey(t);
    EXPECT_FALSE(t.changed()) << static_cast<int>(key);
  }
  KeyPress copiar = letra('c');
  copiar.ctrl = true;
  form.campo.filterKey(copiar);
  EXPECT_FALSE(copiar.changed());
}

TEST_F(TeclasImporte, LockedField_StaysAsItIs) {
  form.campo.setLocked(true);
  comprobar({{"12|345", letra(','), "12|345"}, {"12|345", punto(true), "12|345"}});
  EXPECT_EQ(form.campo.Tag, "");
}

}  // namespace
}  // namespace fidaleon::tests
