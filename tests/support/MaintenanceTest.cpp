#include "support/Mantenimiento.h"
#include "support/TestWorld.h"

namespace fidaleon::support::MaintenanceTest {

class Maintenance : public ::testing::Test {
 protected:
  tests::TestWorld w;
  Mantenimiento commands{w.contexto, w.con()};
};

TEST_F(Maintenance, WhileOthersUseTheTable_OneMayAddAndCorrectButNotDelete) {
  const auto id = w.institucion("San Pedro");
  auto other = w.otherHolds("Institucion", 0, true);
  w.user.expectForm("frmInstitucion", [](forms::FormDriver& u) {
    u.type("txtInstitucion(0)", "San Pablo");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(commands.agregar(Catalogo::Institucion));
  w.user.expectForm("frmInstitucion", [](forms::FormDriver& u) { u.escape(); });
  EXPECT_FALSE(commands.propiedades(Catalogo::Institucion, id));
  w.user.expectMessage(
      "En este momento no se puede trabajar con las instituciones.\n"
      "Lo está usando: luis, en el equipo SACRISTIA, desde el 22/11/2026 a las 10:30.\n"
      "Inténtelo de nuevo cuando termine.");
  EXPECT_FALSE(commands.eliminar(Catalogo::Institucion, id));
  other->LiberarBloqueos();
  w.user.expectMessage("¿Seguro que quiere eliminar la institución?", forms::Answer::Yes);
  EXPECT_TRUE(commands.eliminar(Catalogo::Institucion, id));
}

}  // namespace fidaleon::support::MaintenanceTest
