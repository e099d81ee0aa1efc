// Looking a person up among the baptised, for each register that does.

#include "registers/Rows.h"
#include "registers/lookup/Busqueda.h"
#include "registers/lookup/Importacion.h"
#include "registers/lookup/frmBuscaPadres.h"

namespace fidaleon::tests {

struct LookUp {
  const Sacramento& s;
  cCOrigen origin;
  const char* caption;
  const char* grid;
  std::vector<std::string> cells;
  const char* detailsCaption;
  int line;
  const char* text;
  const char* import;
  std::size_t person = 0;
};

/// A dialog with no more than the fields that a search goes by.
struct Surnames : forms::Form {
  explicit Surnames(forms::UserInterface& ui) : Form(ui, "frm") {}
  forms::TextBox first{*this, "first"}, second{*this, "second"};
  forms::ComboBox institution{*this, "institution"}, book{*this, "book"};
};

class LookedUp : public ::testing::TestWithParam<LookUp> {
 protected:
  std::int32_t baptism(const std::string& name, std::int32_t libro) {
    return insertEntry(w, BAUTISMO,
                       {name,
                        libro,
                        4,
                        "12",
                        0,
                        {{"FechaBautismo", quoted("19990510")},
                         {"Parroquia", quoted("Santa Ana")},
                         {"CodMunicipio", std::to_string(town)}}});
  }
  std::vector<FilaBusqueda> search(bool request = false) {
    return busqueda.buscar(w.con(), d.institution, d.book, request);
  }
  std::vector<std::int32_t> found(bool request = false) {
    std::vector<std::int32_t> ids;
    for (const FilaBusqueda& f : search(request)) ids.push_back(f.IDBautismo);
    return ids;
  }
  void show(frmBuscaPadres& dialog, Act act) {
    w.user.expectForm("frmBuscaPadres", std::move(act));
    dialog.conBaseDatos = &w.con();
    dialog.Origen = GetParam().origin;
    dialog.strApellidos = busqueda.apellidos();
    dialog.filas = search();
    dialog.lngPersona = GetParam().person;
    dialog.Show();
  }
  void SetUp() override {
    d.first.setText(" García ");
    d.second.setText("Pérez");
    d.institution.addItem("San Pedro", parish);
    d.institution.setListIndex(0);
    insertBook(w, GetParam().s, parish, {"El de ahora", true, 3, false, "20000101"});
    d.book.addItem("El de ahora", 1);
    d.book.setListIndex(0);
  }

  TestWorld w;
  std::int32_t town = w.municipio("Alcalá de Henares", "Madrid");
  std::int32_t parish = w.institucion("San Pedro", town);
  std::int32_t old = insertBook(w, BAUTISMO, parish, {"Viejo", false, 1, false, "19500101"});
  Surnames d{w.user};
  BusquedaPorApellidos busqueda{GetParam().s, d.first, d.second};
};

TEST_P(LookedUp, Search_FindsTheSameSurnamesInBooksNoYoungerAndNeverARequest) {
  const std::int32_t ana = baptism("Ana", old);
  baptism("De solicitud", 0);
  baptism("De otro libro",
          insertBook(w, BAUTISMO, parish, {"Posterior", true, 3, false, "20200101"}));
  EXPECT_THAT(found(), ElementsAre(ana));
  EXPECT_EQ(found(true).size(), 2u) << "a request stands in no book, so all books are searched";
  d.second.setText("Péres");
  EXPECT_THAT(found(), IsEmpty());
}

TEST_P(LookedUp, Search_WithoutAnyBookSoOld_GoesThroughAllBooks) {
  const std::int32_t ana = baptism("Ana", old);
  baptism("De solicitud", 0);
  w.con().Execute("UPDATE Libro_Bautismo SET FechaCreacion=\"20200101\"");
  if (&GetParam().s == &BAUTISMO) w.con().Execute("DELETE * FROM Libro_Bautismo");
  EXPECT_THAT(found(), ElementsAre(ana));
}

TEST_P(LookedUp, EachPair_IsLookedForOnceAndOnlyWithAFirstSurname) {
  EXPECT_TRUE(busqueda.toca());
  EXPECT_FALSE(busqueda.toca());
  d.first.setText("");
  EXPECT_FALSE(busqueda.toca());
  d.first.setText("Otro");
  busqueda.empezarConElPar();
  EXPECT_FALSE(busqueda.toca()) << "the entry came with it";
  busqueda.empezar();
  EXPECT_TRUE(busqueda.toca());
  EXPECT_FALSE(busqueda.sale(&d.second));
  EXPECT_TRUE(busqueda.sale(&d.book));
}

TEST_P(LookedUp, Hits_AreShownWithTheirDetailsAndTheChosenOneIsTaken) {
  const std::int32_t ana = baptism("Ana", old);
  frmBuscaPadres dialog(w.contexto);
  show(dialog, [&](FormDriver& hits) {
    EXPECT_EQ(hits.caption(), GetParam().caption);
    auto& grid = hits.get<forms::Grid>(GetParam().grid);
    ASSERT_EQ(grid.rowCount(), 1);
    for (std::size_t i = 0; i < GetParam().cells.size(); ++i)
      EXPECT_EQ(grid.cell(1, int(i)), GetParam().cells[i]);
    w.user.expectForm("frmDetallePadres", [](FormDriver& details) {
      EXPECT_EQ(details.caption(), GetParam().detailsCaption);
      EXPECT_EQ(details.text("txtDetalle(" + std::to_string(GetParam().line) + ")"),
                GetParam().text);
      details.escape();
    });
    hits.click("cmdBoton(2)");
    hits.click("cmdBoton(0)");
  });
  ASSERT_TRUE(dialog.blnAceptado);
  if (&GetParam().s == &BAUTISMO) {
    EXPECT_EQ(dialog.importado.NombrePadres, "Juan");
    EXPECT_EQ(dialog.importado.AbuelaMadres, "---") << "empty values come as dashes";
    EXPECT_EQ(dialog.importado.NombreHijo, "") << "the brother stays who he is";
  } else {
    EXPECT_EQ(dialog.bautizado.IDBautismo, ana);
  }
}

TEST_P(LookedUp, CancelledOrGoneMeanwhile_BringsNothing) {
  baptism("Ana", old);
  frmBuscaPadres dialog(w.contexto);
  show(dialog, [](FormDriver& hits) { hits.click("cmdBoton(1)"); });
  EXPECT_FALSE(dialog.blnAceptado);
  w.user.answerAnything(Answer::Ok);
  frmBuscaPadres again(w.contexto);
  show(again, [&](FormDriver& hits) {
    w.con().Execute("DELETE * FROM Bautismo");
    hits.click("cmdBoton(0)");
  });
  EXPECT_FALSE(again.blnAceptado);
  EXPECT_THAT(w.user.messages().back().text, HasSubstr(GetParam().import));
}

INSTANTIATE_TEST_SUITE_P(
    Registers, LookedUp,
    ::testing::Values(LookUp{BAUTISMO,
                             cCOrigen::LISTAPARTIDASBAUTISMO,
                             "Búsqueda de padres por García Pérez",
                             "msgBusquedaPadres",
                             {"Juan", "García", "", "Ana", "García", ""},
                             "Detalles de bautismo de un hermano del bautizado.",
                             5,
                             "Calle del Pez, 3",
                             "ImportarDatosBautismo"},
                      LookUp{CONFIRMACION,
                             cCOrigen::LISTAPARTIDASCONFIRMACION,
                             "Búsqueda por García Pérez",
                             "msgBusquedaBautizado",
                             {"Ana", "García", "Pérez", "10/05/1999"},
                             "Detalles de bautismo del confirmado.",
                             3,
                             "Libro Viejo, folio 4, número 12",
                             "ImportarDatosConfirmacion"},
                      LookUp{MATRIMONIO,
                             cCOrigen::LISTAPARTIDASMatrimonio,
                             "Búsqueda por García Pérez",
                             "msgBusquedaBautizado",
                             {"Ana", "García", "Pérez", "10/05/1999"},
                             "Detalles de bautismo del novio/a.",
                             1,
                             "Nació el día 01/05/1999",
                             "ImportarDatosMatrimonioNovia",
                             1},
                      LookUp{
                          DEFUNCION,
                          cCOrigen::LISTAPARTIDASDEFUNCION,
                          "Búsqueda por García Pérez",
                          "msgBusquedaBautizado",
                          {"Ana", "García", "Pérez", "10/05/1999"},
                          "Detalles de bautismo del difunto.",
                          4,
                          "Se bautizó el día 10/05/1999 en Santa Ana, Alcalá de Henares (Madrid)",
                          "ImportarDatosDefuncion"}),
    [](const auto& p) { return std::string(p.param.s.palabra); });

TEST(Import, Baptism_GoesWhereEachRegisterKeepsIt) {
  Bautizado b;
  b.NombreHijo = "Ana";
  b.FolioBautismo = "4";
  b.NombreLibro = "Viejo";
  b.PadreEntero = "Juan García";
  b.CodPoblacionNacHijo = 7;
  b.DireccionPadresMatrimonio = "Calle del Pez, 3";
  cConfirmacion c;
  c.Padrino = "Luis";
  importar(importadoDeConfirmacion(), b, c);
  EXPECT_EQ(c.Nombre + c.LibroBaut + c.NombrePadre + c.Domicilio + c.Padrino,
            "AnaViejoJuan GarcíaCalle del Pez, 3Luis");
  EXPECT_EQ(c.FolioBaut, 4);
  EXPECT_EQ(c.CodMunicipioNac, 7);
  cMatrimonio m;
  for (const std::size_t spouse : {0, 1}) importar(importadoDeMatrimonio(), b, m, spouse);
  EXPECT_EQ(m.NovioNombre + m.NovioLibroBaut + m.NoviaNombrePadre + m.NoviaDomicilioActual,
            "AnaViejoJuan GarcíaCalle del Pez, 3");
  EXPECT_EQ(m.NovioFolioBaut * 10 + m.NoviaIDMunicipioNac, 47);
  cDefuncion d;
  importar(importadoDeDefuncion(), b, d);
  EXPECT_EQ(d.Nombre + d.NombrePadre + d.DomicilioActual, "AnaJuan García");
  EXPECT_EQ(d.CodMunicipioNaturalDe, 7);
}

}  // namespace fidaleon::tests
