// What the dialog of confirmations has of its own.

#include "registers/entry/EntryWorld.h"

namespace fidaleon::tests {

using P = frmPartidaConfirmacion;

class Confirmation : public EntryWorld {};
INSTANTIATE_TEST_SUITE_P(Registers, Confirmation, ::testing::Values(&CONFIRMATION_ENTRY), wordOf);

TEST_P(Confirmation, OfAGroup_KeepsDayChurchAndMinisterAndNothingOfThePerson) {
  book("Libro 1");
  openAndCancel(cCOperacion::ANADIR, [&](FormDriver& d) {
    chooseBook(d, "Libro 1");
    tab(d, P::TAB_CONFIRMACION);
    d.type(date(P::FechaConfirmacion), "20/11/2026");
    for (const int common : {P::Parroquia, P::Diocesis, P::Ministro, P::CargoMinistro})
      d.type(text(common), "De todos");
    d.choose(list(P::ProvinciaParr), "Madrid");
    d.choose(list(P::ProvinciaParr + 1), "Alcalá de Henares");
    tab(d, P::TAB_PERSONALES);
    for (const int own : {P::Domicilio, P::FeligresDe, P::Padrino, P::NombrePadre})
      d.type(text(own), "De uno");
    d.type(date(P::FechaNac), "01/02/2010");
    d.choose(list(P::ProvinciaNac), "Madrid");
    d.choose(list(P::ProvinciaNac + 1), "Alcalá de Henares");
    for (const char* who : {"Luis", "Eva"}) {
      typePerson(d, who);
      acceptNew(d, Answer::Yes);
    }
  });
  const std::string both = "Confirmacion, Confirmacion_Datos WHERE CodConfirmacion=IDConfirmacion";
  EXPECT_EQ(w.count(both +
                    " AND FechaConfirmacion=\"20261120\" AND Parroquia=\"De todos\" AND "
                    "DiocesisParr=\"De todos\" AND Ministro=\"De todos\" AND CargoMinistro=\"De "
                    "todos\" AND CodMunicipioParr=" +
                    std::to_string(town)),
            2);
  EXPECT_EQ(
      w.count(both + " AND Nombre=\"Eva\" AND Folio=2 AND Domicilio=\"---\" AND FeligresDe=\"---\" "
                     "AND Padrino=\"---\" AND NombrePadre=\"---\" AND FechaNac=\"---\" AND "
                     "CodMunicipioNac=0"),
      1);
}

}  // namespace fidaleon::tests
