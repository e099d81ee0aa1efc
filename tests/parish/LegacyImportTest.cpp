#include <fstream>

#include "dbase/LegacyTable.h"
#include "parish/Parish.h"
#include "parish/copies/SafetyCopies.h"
#include "parish/legacy/ImportRun.h"

namespace fidaleon::app::LegacyImportTest {

struct Silent : FDAPI::cProgreso {
  void Cargar(std::int64_t, const std::string&, int, int) override {}
  void setValue(std::int64_t) override {}
};

class LegacyImport : public ParishTest {
 protected:
  void SetUp() override {
    create(Content::Empty);
    dbase::LegacyTable table;
    table.column("LIBRO_D", 'C', 3).column("NOMBRE", 'C', 20).row({"1", "Ana"});
    table.write(directory(), "DEFU");
  }
  ImportOrder order(const std::string& more = "") {
    std::ofstream(directory() / "traer.txt")
        << "# nota\r\nparroquia = .\r\ndefuncion.carpeta=.\ndefuncion.formato = 3\n"
        << more;
    return readOrder(directory() / "traer.txt");
  }
  std::string refusal(const std::string& more) {
    try {
      runImport(*desk, order(more), progress);
    } catch (const WrongOrder& wrong) {
      return wrong.what();
    }
    return {};
  }
  Silent progress;
};

TEST_F(LegacyImport, Order_IsCarriedOutBehindACopy) {
  const SafetyCopies copies(directory());
  EXPECT_TRUE(runImport(*desk, order("ensayo = sí\n"), progress).completa());
  EXPECT_EQ(rowsOf("SELECT IDDifunto FROM Defuncion"), 0);
  EXPECT_TRUE(copies.list().empty());
  const std::string place =
      "defuncion.usar = sí\ndefuncion.municipio = Buitrago del Lozoya / Madrid\n";
  EXPECT_TRUE(runImport(*desk, order(place), progress).completa());
  EXPECT_EQ(rowsOf("SELECT IDDifunto FROM Defuncion WHERE CodMunicipioParr > 0"), 1);
  ASSERT_EQ(copies.list().size(), 1u);
  EXPECT_EQ(copies.list()[0].before, "Traer los datos del programa anterior");
}

TEST_F(LegacyImport, OrderThatCannotBe_IsRefusedAndNothingIsWritten) {
  EXPECT_THAT(refusal("sobra = 1\n"), HasSubstr("línea 5: no se conoce «sobra = 1»"));
  EXPECT_THAT(refusal("ano00 = 1900\n"), HasSubstr("línea 5: «1900» no son dos cifras"));
  EXPECT_THAT(refusal("bautismo.carpeta = .\n"), HasSubstr("Falta «bautismo.formato»"));
  EXPECT_THAT(refusal("defuncion.formato = 9\n"), HasSubstr("ningún formato de libro"));
  EXPECT_THAT(refusal("institucion = San Roque\n"), HasSubstr("ninguna institución «San Roque»"));
  EXPECT_THAT(refusal("defuncion.usar=1\ndefuncion.municipio = Yeles / Toledo\n"),
              HasSubstr("no tiene la población «Yeles»"));
  const Desk other(files(), "luis", user, settings, clock);
  EXPECT_THAT(refusal(""), HasSubstr("Otro puesto tiene abierta la parroquia: luis"));
  EXPECT_EQ(rowsOf("SELECT IDDifunto FROM Defuncion"), 0);
}

}  // namespace fidaleon::app::LegacyImportTest
