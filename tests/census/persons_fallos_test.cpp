#include "census/persons_PadronWorld.h"

namespace fidaleon::tests {
namespace {

using ::testing::HasSubstr;

TEST(NuevoEmpadronado, CensusInUseElsewhere_DoesNotOpen) {
  PadronWorld w;
  const std::int32_t id = w.persona("Rosa", "Gil", "Gil");
  const auto otra = w.otroUsaRegistro("Padron", id);
  w.user.answerAnything(Answer::Ok);
  censo::NuevoEmpadronado(w.contexto, w.con());
  EXPECT_EQ(w.user.messages().size(), 1u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(NuevoEmpadronado, CatalogueCannotBeRead_TellsItAndDoesNotOpen) {
  PadronWorld w;
  w.fallos().failOn("SELECT DISTINCT PosicionFamiliar");
  w.user.answerAnything(Answer::Ok);
  censo::NuevoEmpadronado(w.contexto, w.con());
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text, HasSubstr("FidaleonNucleo / frmPadron / Form_Load"));
  EXPECT_SCRIPT_DONE(w.user);
  EXPECT_TRUE(w.libre("Padron"));
}

TEST(NuevoEmpadronado, ListsCannotBeReadAgain_KeepTheTownThatWasChosen) {
  for (const char* parte : {"FROM Provincia ORDER", "WHERE CodProvincia"}) {
    PadronWorld w;
    const std::int32_t illescas = w.municipio("Illescas", "Toledo");
    w.alta([&](FormDriver& u) {
      rellenarMinimo(u);
      u.choose(cbo(Padron::ProvinciaDireccion), "Toledo");
      u.choose(cbo(Padron::ProvinciaDireccion + 1), "Illescas");
      w.user.expectForm("frmProvincia", [&](FormDriver& f) {
        f.type("txtNombre", "Ultramar");
        f.click("cmdBoton(0)");
        w.fallos().failOn(parte);
        w.user.answerAnything(Answer::Ok);
      });
      u.click("cmdAltaProvincia(0)");
      EXPECT_EQ(w.fallos().pending(), 0u) << parte;
      EXPECT_EQ(w.user.messages().size(), 1u) << parte;
      EXPECT_EQ(u.text(cbo(Padron::ProvinciaDireccion + 1)), "Illescas") << parte;
      u.click(boton(Padron::ACEPTAR));
    });
    EXPECT_EQ(w.value("SELECT CodMunicipio FROM Padron"), std::to_string(illescas)) << parte;
  }
}

TEST(NuevoEmpadronado, FailureInsideTheTransaction_LeavesNothingAndCanBeRepeated) {
  for (const char* parte : {"BEGIN", "INSERT INTO Padron ", "SELECT MAX(IDPADRON)", "COMMIT"}) {
    PadronWorld w;
    w.alta([&](FormDriver& u) {
      rellenarMinimo(u);
      w.fallos().failOn(parte);
      w.user.answerAnything(Answer::Ok);
      u.click(boton(Padron::ACEPTAR));
      ASSERT_EQ(w.user.messages().size(), 1u) << parte;
      EXPECT_THAT(w.user.messages()[0].text, HasSubstr("frmPadron / AgregarEmpadronado"));
      EXPECT_EQ(w.count("Padron"), 0) << parte;
      EXPECT_FALSE(w.con().inTransaction());
      EXPECT_EQ(u.caption(), "Agregar empadronado");
      EXPECT_EQ(u.text(txt(Padron::Nombre)), "Elena");
      u.click(boton(Padron::ACEPTAR));
      EXPECT_TRUE(u.closed());
    });
    EXPECT_EQ(w.count("Padron"), 1) << parte;
    EXPECT_EQ(w.count("Padron_Defuncion"), 1) << parte;
  }
}

TEST(NuevoEmpadronado, FailureBehindTheTransaction_IsCompletedOrTakenBack) {
  for (const Padron::Boton ultimo : {Padron::ACEPTAR, Padron::CANCELAR})
    for (const char* parte : {"INSERT INTO Padron_Nacimiento", "INSERT INTO Padron_Bautismo",
                              "INSERT INTO Padron_Comunion", "INSERT INTO Padron_Confirmacion",
                              "INSERT INTO Padron_Matrimonio", "INSERT INTO Padron_Defuncion",
                              "INSERT INTO Padron_NotasPersonales", "SELECT * FROM Tipo_Persona",
                              "INSERT INTO Padron_TipoPersona"}) {
      PadronWorld w;
      w.alta([&](FormDriver& u) {
        rellenarMinimo(u);
        u.type(txt(Padron::NIF), "12345678");
        u.type(txt(Padron::LetraNIF), "Z");
        u.tab(MST, Padron::TAB_NOTAS);
        for (const char* titulo : {"Primera", "Segunda"}) {
          w.user.expectForm("frmPadronNotas", [&](FormDriver& n) {
            n.type("txtTitulo", titulo);
            n.enter();
          });
          u.click(botonNota(Padron::AGREGAR));
        }
        // Of the notes the second one fails.
        const bool notas = std::string(parte).ends_with("Personales");
        w.fallos().failOn(parte, store::ErrorKind::DiskFull, notas ? 2 : 1);
        w.user.answerAnything(Answer::Ok);
        u.click(boton(Padron::ACEPTAR));
        EXPECT_FALSE(u.closed()) << parte;
        EXPECT_EQ(w.fallos().pending(), 0u) << parte;
        EXPECT_EQ(u.caption(), "Propiedades del empadronado Elena Sanz Mora");
        EXPECT_EQ(w.user.messages().size(), 1u) << parte;
        u.click(boton(ultimo));
        EXPECT_TRUE(u.closed()) << parte;
      });
      for (const char* tabla :
           {"Padron", "Padron_Nacimiento", "Padron_Bautismo", "Padron_Comunion",
            "Padron_Confirmacion", "Padron_Matrimonio", "Padron_Defuncion", "Padron_TipoPersona"})
        EXPECT_EQ(w.count(tabla), ultimo == Padron::ACEPTAR) << parte << ": " << tabla;
      EXPECT_EQ(w.count("Padron_NotasPersonales"), ultimo == Padron::ACEPTAR ? 2 : 0) << parte;
    }
}

}  // namespace
}  // namespace fidaleon::tests
