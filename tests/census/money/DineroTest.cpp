// Amounts: the keys of their field, as text, and from one currency to the other.

#include <gmock/gmock.h>

#include <iterator>
#include <sstream>
#include <stdexcept>

#include "census/money/cCurrency.h"
#include "forms/Form.h"
#include "forms/ScriptedUser.h"
#include "text/Utf8.h"

namespace fidaleon::tests::DineroTest {

using forms::Key;
using forms::KeyPress;

/// An amount as the cards of people have it. Its state is written "12|34" with the caret and
/// "1[23]4" with a selection.
struct FormImporte : forms::Form {
  explicit FormImporte(forms::UserInterface& ui) : Form(ui, "frmImporte") {
    campo.onKeyPress = [this](KeyPress& tecla) {
      moneda.VerificarCurrencyKeyDown(campo, tecla, enteros, decimales, signo);
      moneda.VerificarCurrencyKeyPress(campo, tecla, enteros, decimales, signo);
    };
    setLayout(forms::column({forms::item(campo)}));
    Load();
  }
  void poner(const std::string& estado) {
    const std::size_t desde = estado.find_first_of("|["), hasta = estado.find(']');
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
  forms::TextBox campo{*this, "campo"};
  cCurrency moneda;
  int enteros = 7, decimales = 2;
  bool signo = false;
};

/// A letter as it is typed; "<" and ">" erase behind and before the caret; ":" and ";" are the
/// point and the comma of the keypad.
KeyPress tecla(char32_t c) {
  KeyPress t;
  t.keypad = c == U':' || c == U';';
  t.key = c == U'<'   ? Key::Backspace
          : c == U'>' ? Key::Delete
          : c == U' ' ? Key::Space
                      : Key::Character;
  t.character = c == U'<' || c == U'>' ? 0 : c == U':' ? U'.' : c == U';' ? U',' : c;
  return t;
}

class TeclasImporte : public ::testing::Test {
 protected:
  /// Each as "before key after".
  void comprobar(std::initializer_list<const char*> casos) {
    for (const std::string caso : casos) {
      const std::size_t a = caso.find(' '), b = caso.rfind(' ');
      form.poner(caso.substr(0, a));
      pulsar(static_cast<char32_t>(caso[a + 1]));
      EXPECT_EQ(form.estado(), caso.substr(b + 1)) << caso;
    }
  }
  void pulsar(char32_t c) {
    KeyPress vista = tecla(c);
    form.campo.filterKey(vista);
    if (vista.replacement != "") form.campo.press(tecla(c));
  }
  forms::ScriptedUser user;
  FormImporte form{user};
};

TEST_F(TeclasImporte, Digits_StopAtTheLimitsOnEachSideOfTheComma) {
  comprobar({"| 5 5|", "123456| 7 1234567|", "1234567| 8 1234567|", "1.234.567| 8 1.234.567|",
             "12|34567,00 8 12|34567,00", "1.234.56|,00 7 1.234.567|,00", "1234567,| 8 1234567,8|",
             "1,2| 3 1,23|", "1,23| 4 1,23|", "1,|23 4 1,|23", "-1234567| 8 -1234567|"});
  form.enteros = 8;
  form.decimales = 0;
  comprobar({"1234567| 8 12345678|", "12,| 3 12,|"});
}

TEST_F(TeclasImporte, Selection_GivesWayFirstUnlessTheKeyIsRefused) {
  comprobar({"[1234567] 8 8|", "12[345]67 8 128|67", "1,[23] 4 1,4|", "12[34]56 , 12,56|",
             "[12,34] , ,|", "1234[567] < 1234|", "12[34]56 > 12|56", "12[34]56 x 12[34]56",
             "12[34]56 . 12[34]56", "123456[,]78 9 123456[,]78"});
}

TEST_F(TeclasImporte, OtherCharacters_AreRefused) {
  for (const char32_t c : std::u32string_view(U"aZñ €-+*/'\"%²٣")) {
    form.poner("12|3");
    pulsar(c);
    EXPECT_EQ(form.estado(), "12|3") << static_cast<unsigned>(c);
  }
}

TEST_F(TeclasImporte, Comma_SplitsTheDigitsAndIsThePointOfTheKeypadToo) {
  comprobar({"123| , 123,|", "| , ,|", "12|34567 , 12,34|", "1|.234 , 1,23|", "1.2|34 , 1.2,34|",
             "12|. , 12,|", "123|4 , 123,4|", "12|,3 , 12|,3", "12,3| , 12,3|", "12| . 12|",
             "12| : 12,|", "12| ; 12,|", "12|345 : 12,34|", "12[34] : 12,|", "1,2| : 1,2|"});
  EXPECT_EQ(form.campo.Tag, "");
  form.campo.Tag = "Precio";
  form.poner("12|");
  KeyPress t = tecla(U':');
  form.moneda.VerificarCurrencyKeyDown(form.campo, t, 7, 2, false);
  EXPECT_EQ(form.campo.Tag, "Precio|Punto Tecl. Núm. pulsado|");
  EXPECT_FALSE(t.changed());
  form.moneda.VerificarCurrencyKeyPress(form.campo, t, 7, 2, false);
  EXPECT_EQ(form.campo.Tag + t.replacement.value_or(""), "Precio,");
}

TEST_F(TeclasImporte, CommaTakenOut_MustNotLeaveTooManyDigits) {
  comprobar({"12345,|67 < 12345|67", "123456,|78 < 123456,|78", "123.456,|78 < 123.456,|78",
             "12345|,67 > 12345|67", "123456|,78 > 123456|,78", "123456[,]78 < 123456[,]78",
             "123456[,]78 > 123456[,]78", "12345[6,]78 < 12345|78", "123456,7|8 < 123456,|8",
             "12345|6,78 > 12345|,78", "|123456,78 < |123456,78", "123456,78| > 123456,78|"});
}

TEST_F(TeclasImporte, Sign_GoesInFrontAndTheCaretStaysAmongItsDigits) {
  form.signo = true;
  comprobar({"12|34 - -12|34", "-12|34 + +12|34", "+|12 - -|12", "|-12 + +|12", "| - -|",
             "1[2]3 - -1|3", "|-12 3 |-12", "|-12 , |-12"});
  form.poner("  12| ");
  pulsar(U'-');
  EXPECT_EQ(form.estado(), "-12|");
  form.campo.setMaxLength(4);
  comprobar({"12|34 - 12|34"});
}

/// The words of a case.
std::vector<std::string> palabras(const std::string& caso) {
  std::istringstream todas(caso);
  return {std::istream_iterator<std::string>(todas), {}};
}

TEST(FormatearCurrency, Text_GetsSpanishSignsAndTwoDecimalsOrNone) {
  const auto formatear = [](const std::string& valor, bool decimales = true) {
    return cCurrency().FormatearCurrency(valor, decimales);
  };
  for (const char* caso :
       {"0 0,00 0", "7 7,00 7", "1000 1.000,00 1.000", "1234567,891 1.234.567,89 1.234.568",
        "1.234,5 1.234,50 1.235", ",5 0,50 1", "5, 5,00 5", "007 7,00 7", "+12 12,00 12",
        "0,005 0,01 0", "-0,005 -0,01 0", "-0,004 0,00 0", "-1234,5 -1.234,50 -1.235",
        "99,995 100,00 100", "999,5 999,50 1.000",
        // Points out of place, of an amount edited by half.
        "1.00 100,00 100", "12.3456,7 123.456,70 123.457",
        // More than fourteen characters lose the low digits.
        "12345678901,25 12.345.678.901,25 12.345.678.901",
        "123456789012,25 123.456.789.012,00 123.456.789.012",
        "123456789012345 12.345.678.901.234,00 12.345.678.901.234",
        "-123456789012345 -1.234.567.890.123,00 -1.234.567.890.123"}) {
    const auto p = palabras(caso);
    EXPECT_EQ(formatear(p[0]) + " " + formatear(p[0], false), p[1] + " " + p[2]) << p[0];
  }
  for (const char* nada : {"", "  ", "abc", "12a", "-", "+", ",", ".", "1,2,3", "1,2.3", "--1",
                           "1-", "1e3", "0x10", "inf", "nan", "1 000"})
    EXPECT_EQ(formatear(nada), "0,00") << nada;
  EXPECT_EQ(formatear(" 12 ") + formatear(std::string(400, '9')), "12,0099.999.999.999.999,00");
}

TEST(Conversion, Pesetas_AreCutAtTheThirdDecimalAndRoundedAtTheSecond) {
  for (const char* caso : {"0 0,00", "1.000 6,01", "94 0,57", "-94 -0,57", "25 0,15", "-25 -0,15",
                           "166,386 1,00", "99.999.999 601.012,10", "nada 0,00"}) {
    const auto p = palabras(caso);
    Importe cantidad = Importe::deTexto(p[0]);
    EXPECT_EQ(cCurrency().PesetasAEuros(cantidad), p[1]);
    EXPECT_EQ(cCurrency().FormatearCurrency(cantidad.texto(), true), p[1]) << "and left rounded";
  }
}

TEST(Conversion, Euros_AreRoundedToEvenOnAnExactHalf) {
  for (const char* caso : {"0,00 0", "6,01 1.000", "0,01 2", "250 41.596", "750 124.790",
                           "-250 -41.596", "9.999.999,99 1.663.859.998"})
    EXPECT_EQ(cCurrency().EurosAPesetas(Importe::deTexto(palabras(caso)[0])), palabras(caso)[1]);
}

TEST(Importe, Text_IsReadExactlyAndWrittenShortOrRefusedBeyondTheRange) {
  for (const char* caso : {"1.000 1000", "6,01 6,01", "-0,00005 -0,0001", "0,00004 0", "- 0",
                           "922.337.203.685.477,5807 922337203685477,5807",
                           "-922337203685477,5808 -922337203685477,5808"})
    EXPECT_EQ(Importe::deTexto(palabras(caso)[0]).texto(), palabras(caso)[1]);
  EXPECT_EQ(Importe::deTexto("6,01").diezmilesimas(), 60100);
  for (const std::string texto : {"922.337.203.685.477,5808", "-1000000000000000000000"}) try {
      Importe::deTexto(texto);
      ADD_FAILURE() << texto;
    } catch (const std::out_of_range& error) {
      EXPECT_EQ(error.what(), "El importe «" + texto + "» es demasiado grande.");
    }
}

}  // namespace fidaleon::tests::DineroTest
