#include "store/FailingEngine.h"
#include "store/schema/Schema.h"
#include "support/Catalogos.h"
#include "support/TestWorld.h"
#include "support/frmInstitucion.h"
#include "support/frmMunicipio.h"
#include "support/frmProvincia.h"
#include "text/Utf8.h"

namespace fidaleon::support::CatalogueDialogsTest {

using forms::FormDriver;
using tests::TestWorld;

class Catalogues : public ::testing::Test {
 protected:
  template <class Dialog>
  bool edit(std::int32_t id) {
    Dialog dialog(w.user, w.settings, w.clock, w.con(), w.config, id);
    dialog.Show();
    return dialog.aceptado();
  }
  bool addProvince() {
    bool added = false;
    w.contexto.fidaleon()->NuevaProvincia(added, w.con(), w.config);
    return added;
  }
  bool addTown() {
    bool added = false;
    w.contexto.fidaleon()->NuevoMunicipio(added, w.con(), w.config);
    return added;
  }
  void refused(FormDriver& u, const std::string& message) {
    w.user.expectMessage(message);
    u.click("cmdBoton(0)");
    EXPECT_FALSE(u.closed()) << message;
  }
  TestWorld w;
};

TEST_F(Catalogues, NewProvince_IsRefusedUntilItIsOneOfItsOwn) {
  w.user.expectForm("frmProvincia", [this](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Agregar provincia");
    refused(u, "Falta rellenar el campo «NOMBRE».");
    EXPECT_EQ(u.focused(), "txtNombre");
    u.type("txtNombre", "MADRID");
    refused(u, "¡Ya existe una provincia con ese nombre!");
    EXPECT_EQ(u.text("txtNombre"), "MADRID");
    u.type("txtNombre", "  La \"Isla\"  ");
    u.type("txtCodigoOficial", "28");
    refused(u, "¡Ya existe una provincia con ese código oficial!");
    EXPECT_EQ(w.count("Provincia"), 52);
    u.type("txtCodigoOficial", "");
    u.ctrlEnter();
  });
  EXPECT_TRUE(addProvince());
  EXPECT_EQ(w.value("SELECT Nombre FROM Provincia WHERE IDProvincia=53"), "La ''Isla''");
}

TEST_F(Catalogues, ProvinceEdited_KeepsItsKeyAndMayKeepItsName) {
  const auto id = w.provincia("Gerona de prueba");
  for (const char* name : {"Gerona de prueba", "Girona de prueba"}) {
    w.user.expectForm("frmProvincia", [name](FormDriver& u) {
      EXPECT_EQ(u.text("txtNombre"), "Gerona de prueba");
      u.type("txtNombre", name);
      u.click("cmdBoton(0)");
    });
    EXPECT_TRUE(edit<frmProvincia>(id));
    EXPECT_EQ(w.provincia(name), id);
  }
}

TEST_F(Catalogues, RowGoneBeforeEditing_IsToldAndNothingOpens) {
  w.user.expectMessage(
      textoError("La provincia ya no existe.", "FidaleonSoporte", "frmProvincia", "Form_Load()"));
  EXPECT_FALSE(edit<frmProvincia>(999));
}

TEST_F(Catalogues, NewTown_NeedsItsProvinceWhichCanBeAddedAndMayBearANameOfAnother) {
  w.municipio("Villanueva", "Madrid");
  w.user.expectForm("frmMunicipio", [this](FormDriver& u) {
    u.choose("cboProvincia", "Madrid");
    u.type("txtNombre", "villa nueva");
    refused(u, "¡Ya existe un municipio con ese nombre en la provincia!");
    w.user.expectForm("frmProvincia", [](FormDriver& p) {
      p.type("txtNombre", "Tierra de Campos");
      p.click("cmdBoton(0)");
    });
    u.click("cmdAltaProvincia");
    EXPECT_EQ(u.text("cboProvincia"), "Tierra de Campos");
    u.type("txtNombre", " ");
    refused(u, "Falta rellenar el campo «NOMBRE».");
    u.type("txtNombre", "villa nueva");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(addTown());
  EXPECT_EQ(w.value("SELECT CodProvincia FROM Municipio WHERE Nombre=\"villa nueva\""),
            std::to_string(w.provincia("Tierra de Campos")));
  w.user.expectForm("frmMunicipio", [this](FormDriver& u) {
    u.paste("txtNombre", "北京 🙂 \"a\" \x01 O'Hara; DROP TABLE Municipio");
    refused(u, "Falta rellenar el campo «PROVINCIA».");
    u.choose("cboProvincia", "Madrid");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(addTown());
  EXPECT_THAT(w.value("SELECT Nombre FROM Municipio WHERE IDMunicipio=3"),
              ::testing::AllOf(::testing::HasSubstr("北京 🙂 ''a''"),
                               ::testing::HasSubstr("O'Hara; DROP TABLE Municipio")));
}

TEST_F(Catalogues, NewInstitution_ComesWithItsLastValues) {
  const auto town = w.municipio("Getafe", "Madrid");
  w.user.expectForm("frmInstitucion", [](FormDriver& u) {
    EXPECT_EQ(u.text("txtInstitucion(1)"), "Parroquia de");
    u.type("txtInstitucion(0)", "San \"José\"");
    u.type("txtInstitucion(7)", "R0800010A");
    EXPECT_EQ(u.text("txtInstitucion(2)"), "San ''José''");
    u.choose("cboProvincia", "Madrid");
    u.choose("cboPoblacion", "Getafe");
    u.type("txtInstitucion(4)", "28901");
    u.type("txtInstitucion(8)", "Getafe");
    u.type("txtInstitucion(11)", "Pedro Ruiz");
    u.click("cmdBoton(0)");
  });
  w.contexto.fidaleon()->NuevaInstitucion(w.con(), w.config);
  const store::Recordset rs = w.con().Execute("SELECT * FROM Institucion");
  ASSERT_EQ(rs.RecordCount(), 1);
  EXPECT_EQ(rs.text("Nombre"), "San ''José''");
  EXPECT_EQ(rs.text("InstitucionTipo"), "Parroquia de");
  EXPECT_EQ(rs.integer("CodMunicipio"), town);
  EXPECT_EQ(rs.text("CIF"), "R0800010A");
  EXPECT_EQ(rs.text("Parroco"), "Pedro Ruiz");
  EXPECT_EQ(rs.text("Vicaria"), "");
  EXPECT_EQ(w.value("SELECT IDInstitucion FROM Ultimos"), rs.text("IDInstitucion"));
}

TEST_F(Catalogues, InstitutionWithBadData_IsRefusedFieldByField) {
  w.institucion("San Pedro");
  w.user.expectForm("frmInstitucion", [this](FormDriver& u) {
    refused(u, "Falta rellenar el campo «NOMBRE».");
    u.type("txtInstitucion(0)", "san  pedro");
    refused(u, "¡Ya existe una institución con ese nombre!");
    u.type("txtInstitucion(0)", "San Pablo");
    u.type("txtInstitucion(7)", "R0800010X");
    refused(u, "¡El C.I.F. no es válido!");
    EXPECT_EQ(u.focused(), "txtInstitucion(7)");
    u.type("txtInstitucion(7)", "");
    u.type("txtInstitucion(4)", "280");
    refused(u, "¡El código postal debe tener cinco cifras!");
    u.click("cmdBoton(1)");
  });
  w.contexto.fidaleon()->NuevaInstitucion(w.con(), w.config);
  EXPECT_EQ(w.count("Institucion"), 1);
  EXPECT_EQ(w.count("Ultimos"), 1);
}

TEST_F(Catalogues, InstitutionEdited_KeepsWhatWasNotTouched) {
  const auto town = w.municipio("Getafe", "Madrid");
  const auto id = w.institucion("San Pedro", town);
  w.con().Execute("DELETE * FROM Ultimos");  // as in a parish of another origin
  w.user.expectForm("frmInstitucion", [](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Propiedades de la institución");
    EXPECT_EQ(u.text("cboPoblacion"), "Getafe");
    u.type("txtInstitucion(11)", "Juan \"el bueno\"");
    u.click("cmdBoton(0)");
  });
  EXPECT_TRUE(edit<frmInstitucion>(id));
  const store::Recordset rs = w.con().Execute("SELECT * FROM Institucion");
  EXPECT_EQ(rs.text("Parroco"), "Juan ''el bueno''");
  EXPECT_EQ(rs.integer("CodMunicipio"), town);
  EXPECT_EQ(rs.text("Diocesis"), "Madrid");
  EXPECT_EQ(w.count("Ultimos"), 1);
}

TEST_F(Catalogues, InstitutionStoredByHalf_IsTakenBackToldAndStoredWholeTheNextTime) {
  store::FailingEngine::wrap(w.con())->failOn("INSERT INTO Ultimos", store::ErrorKind::DiskFull);
  w.user.answerAnything(forms::Answer::Ok);
  w.user.expectForm("frmInstitucion", [this](FormDriver& u) {
    u.type("txtInstitucion(0)", "San Pedro");
    u.click("cmdBoton(0)");
    EXPECT_EQ(w.count("Institucion"), 0);
    EXPECT_EQ(u.text("txtInstitucion(0)"), "San Pedro");
    u.click("cmdBoton(0)");
  });
  w.contexto.fidaleon()->NuevaInstitucion(w.con(), w.config);
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Critical);
  EXPECT_EQ(w.value("SELECT Nombre FROM Institucion"), "San Pedro");
  EXPECT_EQ(w.count("Ultimos"), 1);
}

struct CatalogueRow {
  const char* table;
  const char* named;  // what a column that refers to it has in its name, whoever adds one
  const char* used;
  const char* question;
  bool (*eliminar)(FDAPI::cFidaleon&, forms::UserInterface&, FDAPI::Conexion&, std::int32_t);
};

class CatalogueInUse : public ::testing::TestWithParam<CatalogueRow> {
 protected:
  bool eliminar() { return GetParam().eliminar(*w.contexto.fidaleon(), w.user, w.con(), id); }
  tests::TestWorld w;
  const std::int32_t town = w.municipio("Getafe", "Provincia de prueba");
  const std::int32_t id =
      std::string(GetParam().table) == "Institucion" ? w.institucion("San Pedro")
      : std::string(GetParam().table) == "Municipio" ? town
                                                     : w.provincia("Provincia de prueba");
};

TEST_P(CatalogueInUse, EveryColumnThatCanHoldItsKey_KeepsTheRowAndItsPartsGoWithIt) {
  const CatalogueRow& catalogue = GetParam();
  w.con().Execute("DELETE * FROM Municipio WHERE IDMunicipio<>" + std::to_string(id));
  int uses = 0;
  for (const store::Table& table : w.con().schema().tables())
    for (const store::Column& column : table.columns()) {
      if (table.name() == catalogue.table ||
          text::lower(column.name).find(catalogue.named) == std::string::npos)
        continue;
      SCOPED_TRACE(table.name() + "." + column.name);
      if (column.belongs) continue;
      ++uses;
      w.con().Execute("INSERT INTO " + table.name() + " ([" + column.name + "]) VALUES (" +
                      (store::isText(column.type) ? "\"" + std::to_string(id) + "\")"
                                                  : std::to_string(id) + ")"));
      w.user.expectMessage(catalogue.used);
      EXPECT_FALSE(eliminar());
      w.con().Execute(
          "DELETE * FROM " + table.name() + " WHERE [" + column.name + "]=" +
          (store::isText(column.type) ? "\"" + std::to_string(id) + "\"" : std::to_string(id)));
    }
  EXPECT_GT(uses, 0);
  const auto before = w.count(catalogue.table);
  w.user.expectMessage(catalogue.question, forms::Answer::No);
  EXPECT_FALSE(eliminar());
  w.user.expectMessage(catalogue.question, forms::Answer::Yes);
  EXPECT_TRUE(eliminar());
  EXPECT_EQ(w.count(catalogue.table), before - 1);
  EXPECT_EQ(w.count("Ultimos"), 0);
}

INSTANTIATE_TEST_SUITE_P(
    All, CatalogueInUse,
    ::testing::Values(
        CatalogueRow{"Institucion", "institucion",
                     "¡Esta institución no se puede eliminar, tiene libros u otros datos "
                     "asociados!",
                     "¿Seguro que quiere eliminar la institución?", eliminarInstitucion},
        CatalogueRow{"Provincia", "codprovincia",
                     "¡Esta provincia no se puede eliminar, tiene municipios asociados!",
                     "¿Seguro que quiere eliminar la provincia?", eliminarProvincia},
        CatalogueRow{"Municipio", "municipio",
                     "¡Este municipio no se puede eliminar, se usa en partidas o en otros datos!",
                     "¿Seguro que quiere eliminar el municipio?", eliminarMunicipio}),
    [](const auto& row) { return std::string(row.param.table); });

}  // namespace fidaleon::support::CatalogueDialogsTest
