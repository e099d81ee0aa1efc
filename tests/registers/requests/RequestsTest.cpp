// Requests of baptism through the entry dialog.

#include "registers/BaptismWorld.h"

namespace fidaleon::tests {

class BaptismRequest : public BaptismWorld {
 protected:
  void enter(const std::string& name) {
    open(cCOperacion::ANADIRSOLICITUD, [&](FormDriver& d) {
      EXPECT_EQ(d.caption(), "Agregar solicitud de bautismo");
      EXPECT_FALSE(d.visible("cboBautismo(23)"));
      EXPECT_FALSE(d.visible("fraLibro"));
      EXPECT_FALSE(d.visible("cmdAltaLibro"));
      EXPECT_FALSE(d.visible("cmdBautismo(2)"));
      d.choose("cboBautismo(22)", "San Pedro");
      typeChild(d, name);
      w.user.expectMessage("¿Desea dar de alta nuevas solicitudes?", Answer::No);
      accept(d);
    });
  }
};

TEST_F(BaptismRequest, Edited_KeepsItsInstitutionUntilAnotherIsChosen) {
  enter("Luis");
  const std::int32_t id = std::stoi(w.value("SELECT IDBautismo FROM bautismo"));
  const std::int32_t other = w.institucion("Santa Ana", town);
  const std::int32_t third = w.institucion("San Blas", town);
  const auto institution = [&] { return w.value("SELECT InstitucionSolicitud FROM bautismo"); };
  open(
      cCOperacion::EDITARSOLICITUD,
      [&](FormDriver& d) {
        EXPECT_EQ(d.caption(), "Propiedades de solicitud de bautismo");
        EXPECT_EQ(d.text("cboBautismo(22)"), "San Pedro");
        d.tab("mstBautismo", frmPartidaBautismo::TAB_BAUTIZADO);
        d.type("txtBautismo(7)", "Carlos");
        accept(d);
      },
      id);
  EXPECT_EQ(w.value("SELECT Nombre FROM bautismo_hijo"), "Carlos");
  EXPECT_EQ(institution(), std::to_string(parish));
  open(
      cCOperacion::EDITARSOLICITUD,
      [&](FormDriver& d) {
        EXPECT_TRUE(d.enabled("cmdAltaInstitucion"));
        d.choose("cboBautismo(22)", "San Blas");
        w.con().Execute("DELETE * FROM Institucion WHERE IDInstitucion=" + std::to_string(third));
        w.user.expectMessage(gone("la institución «San Blas»"));
        accept(d);
        d.choose("cboBautismo(22)", "Santa Ana");
        accept(d);
      },
      id);
  EXPECT_EQ(institution(), std::to_string(other));
  EXPECT_EQ(w.count("bautismo WHERE codlibro=0"), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace fidaleon::tests
