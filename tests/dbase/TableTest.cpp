#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "dbase/LegacyTable.h"
#include "dbase/Reading.h"

namespace fidaleon::dbase::TableTest {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

Reading readFile(const std::string& name) {
  return read(
      [&](const Table::Told& told) { return Table::open(fs::path(DBASE_DATA) / name, {}, told); });
}

TEST(TableOfAnotherWriter, isReadWithItsMemosAndItsCodePage) {
  const std::string head = "NOMBRE,APELLIDOS,NUMERO,CANTIDAD,FECHA,VALIDO,NOTAS";
  std::string enes;
  for (int i = 0; i < 700; ++i) enes += "ñ";
  const std::string first =
      "Begoña,Muñoz,12,3.25,1941-02-28,T,\"Línea una\r\nLínea dos, con "
      "\"\"comillas\"\"\"";
  const std::string last = "Éla,Niño,-7,-0.50,1900-12-31,F," + enes;
  const std::string blank = "José María,Pérez de Güimar,,,,,";
  const std::string common = head + "\n" + first + "\n" + blank + "\n" + last + "\n";
  for (const char* name : {"DBASE3.DBF", "dbase4.dbf", "foxpro.dbf"}) {
    const Reading r = readFile(name);
    EXPECT_EQ(r.csv, common) << name;
    EXPECT_THAT(r.doubts + r.refusal, IsEmpty()) << name;
    EXPECT_EQ(r.deleted, 1);
  }
  EXPECT_EQ(readFile("visual.dbf").csv, head + ",ENTERO,DOBLE,MONEDA,MOMENTO\n" + first +
                                            ",-1,0,0.0000,1999-12-31 23:59:58\n" + blank +
                                            ",0,0.125,1234.5000,\n" + last +
                                            ",2,0.375,3703.5000,1999-12-31 23:59:58\n");
  EXPECT_EQ(readFile("Utf8.dbf").csv,
            "CODIGO,NOMBRE,FECHA,IMPORTE\n1,Begoña Muñoz,1941-02-28,12.50\n2,,,\n"
            "3,Íñigo,1900-12-31,-3.00\n");
  EXPECT_THAT(readFile("falta.dbf").refusal, HasSubstr("no existe"));
}

TEST(CodePage, isTakenFromTheHeaderThenFromTheFileBesideItThenFromHabit) {
  const struct {
    std::uint8_t language;
    const char *beside, *chosen, *bytes, *text;
  } cases[] = {
      {0x02, "1252", "", "Mu\xA4oz", "Muñoz"},
      {0x00, "1252", "", "Mu\xF1oz", "Muñoz"},
      {0x00, "", "", "\xB5ngel", "Ángel"},
      {0x02, "", "cp1252", "Mu\xF1oz", "Muñoz"},
      {0x00, "LDID/87", "", "Mu\xF1oz", "Muñoz"},
      {0x01, "", "", "a\x01z\xE0", "a zα"},
      {0x00, "ISO 88591", "", "\x80 caf\xE9", "€ café"},
      {0x00, "UTF-8", "", "a\xF1z", "a\uFFFDz"},
      {0x03, "", "", "\x81 largo, largo", "\uFFFD largo, largo"},
  };
  for (const auto& c : cases) {
    LegacyTable table;
    table.language = c.language;
    const std::string dbf = table.column("T", 'C', 20).row({c.bytes}).dbf();
    const Reading r = readBytes(dbf, {}, Memos::Kind::Signed, c.beside, c.chosen);
    const std::string text = c.text;
    const std::string cell = text.find(',') == std::string::npos ? text : '"' + text + '"';
    EXPECT_EQ(r.csv, "T\n" + cell + "\n") << c.text;
    const bool strange = text.find("\uFFFD") != std::string::npos || c.language == 0x01;
    EXPECT_EQ(r.doubts.find("no conoce") != std::string::npos, strange) << c.text;
    EXPECT_EQ(r.doubts.find("se lee con la 850") != std::string::npos,
              c.language == 0 && *c.beside == 0);
  }
  EXPECT_THAT(readBytes(LegacyTable().column("T", 'C', 2).dbf(), {}, {}, "", "ebcdic-37").refusal,
              HasSubstr("No se conoce la página"));
}

TEST(Memos, areTheSameInEveryLayout) {
  for (const auto layout :
       {LegacyTable::Memos::Marked, LegacyTable::Memos::Signed, LegacyTable::Memos::Fpt}) {
    LegacyTable table;
    table.memos = layout;
    table.column("M", 'M', 10).row({"corto"}).row({"\x01        99"});
    const Reading r = readBytes(table.dbf(), table.memoFile(), static_cast<Memos::Kind>(layout));
    EXPECT_EQ(r.csv, "M\ncorto\n\n");
    EXPECT_EQ(r.doubts, "Registro 2, columna M: apunta fuera del archivo de los memos.\n");
  }
  LegacyTable soft;
  soft.column("M", 'M', 10).row({"una \x8D\nsola\x8D\nfrase\r\n"});
  EXPECT_EQ(readBytes(soft.dbf(), soft.memoFile(), Memos::Kind::Signed).csv,
            "M\n\"una sola frase\r\n\"\n");
}

TEST(Values, areReadOrMissingWithADoubt) {
  const struct {
    char letter;
    int width, decimals;
    const char *stored, *shown, *doubt;
  } cases[] = {
      {'N', 5, 0, "*****", "", "se perdió"},
      {'N', 5, 0, "1,5", "", "no es un número («  1,5»)"},
      {'F', 5, 1, " +7.5", "7.5", ""},
      {'N', 3, 0, "-", "", "no es un número"},
      {'N', 19, 0, "9223372036854775807", "9223372036854775807", ""},
      {'D', 8, 0, "00000000", "", ""},
      {'D', 8, 0, "19410231", "", "no es una fecha («19410231»)"},
      {'D', 8, 0, "  /  /", "", ""},
      {'D', 8, 0, "1941XX01", "", "no es una fecha"},
      {'L', 1, 0, "y", "T", ""},
      {'L', 1, 0, "?", "", ""},
      {'L', 1, 0, "9", "", "ni sí ni no"},
      {'C', 9, 0, "  a\tb  ", "  a\tb", ""},
  };
  for (const auto& c : cases) {
    LegacyTable table;
    table.column("A", 'C', 3).column("V", c.letter, c.width, c.decimals).column("Z", 'C', 3);
    const Reading r = readBytes(table.row({"a", c.stored, "z"}).dbf(), {}, Memos::Kind::Signed);
    EXPECT_EQ(r.csv, std::string("A,V,Z\na,") + c.shown + ",z\n") << c.stored;
    EXPECT_THAT(r.doubts, *c.doubt == 0 ? testing::Matcher<std::string>(IsEmpty())
                                        : HasSubstr(std::string("Registro 1, columna V: ")))
        << c.stored;
    EXPECT_THAT(r.doubts, HasSubstr(c.doubt));
  }
}

/// Three rows, the second deleted.
LegacyTable three() {
  LegacyTable table;
  table.column("T", 'C', 4).column("N", 'N', 3);
  return table.row({"uno", "1"}).row({"dos", "2"}, '*').row({"tres", "3"});
}

TEST(DamagedTable, isReadWithADoubtOrRefused) {
  constexpr std::size_t first = 32 + 64 + 1, record = 8;
  using Damage = std::function<void(std::string&)>;
  const auto byte = [](std::size_t at, int value) -> Damage {
    return [=](std::string& s) { s[at] = char(value); };
  };
  const auto cut = [](std::size_t size) -> Damage {
    return [=](std::string& s) { s.resize(size); };
  };
  const std::string all = "T,N\nuno,1\ntres,3\n";
  const struct {
    Damage damage;
    std::string csv, told;  // the doubt, or without rows the refusal
  } cases[] = {
      {byte(4, 2), all, "más registros que los 2"},
      {byte(4, 9), all, "anuncia 9 registros y solo hay 3 enteros"},
      {cut(first + 2 * record + 3), "T,N\nuno,1\n", "solo hay 2 enteros"},
      {[](std::string& s) {
         s[4] = 1;
         s.resize(first + record + 4);
       },
       "T,N\nuno,1\n", "Registro 2: el registro está cortado"},
      {[](std::string& s) { s += "detrás de todo"; }, all, "bytes más, que no se leen"},
      {byte(first, 'x'), all, "Registro 1: no se sabe si está borrado («x»)"},
      {[](std::string& s) { s.replace(first, record, record, '\0'); }, "T,N\ntres,3\n",
       "Registro 1: está vacío"},
      {byte(14, 1), all, "se cerró mal"},
      {cut(0), "", "vacío o cortado"},
      {cut(60), "", "cortado en la cabecera"},
      {byte(0, 'P'), "", "No es una tabla"},
      {byte(15, 1), "", "cifrada"},
      {byte(10, 3), "", "ocupan 8 bytes y dice que son 3"},
      {byte(32 + 11, 'Z'), "", "«T» es de una clase"},
      {byte(64, '\r'), "", "La cabecera de la tabla está dañada"},
      {byte(32, '\r'), "", "no tiene columnas"},
      {byte(32 + 11, 'M'), "", "Falta el archivo de los memos"},
  };
  for (const auto& c : cases) {
    std::string dbf = three().dbf();
    c.damage(dbf);
    const Reading r = readBytes(dbf, {}, Memos::Kind::Signed);
    EXPECT_EQ(r.csv, c.csv) << c.told;
    EXPECT_THAT(c.csv.empty() ? r.refusal : r.doubts, HasSubstr(c.told));
  }
}

TEST(Table, takesAThousandColumnsAndOneWithoutWidth) {
  LegacyTable table;
  std::vector<std::string> values;
  for (int i = 0; i < 1000; ++i) {
    table.column("C" + std::to_string(i), 'C', i == 7 ? 0 : 2);
    values.push_back(i == 7 ? "" : std::to_string(i % 100));
  }
  const Reading r = readBytes(table.row(values).dbf(), {}, Memos::Kind::Signed);
  EXPECT_THAT(r.csv, HasSubstr("\n0,1,2,3,4,5,6,,8,"));
  EXPECT_TRUE(r.csv.ends_with(",98,99\n"));
  EXPECT_EQ(r.doubts, "Columna C7: no tiene anchura, y queda vacía.\n");
}

}  // namespace fidaleon::dbase::TableTest
