#include "census/persons_PadronWorld.h"

namespace fidaleon::tests {
namespace {

using ::testing::ElementsAre;

void rellenarParroquia(FormDriver& u, Padron::Texto parroquia, Padron::Lista provincia,
                       Padron::Fecha dia, const std::string& texto) {
  u.type(txt(parroquia), texto);
  u.type(txt(Padron::Texto(parroquia + 1)), "Calle de " + texto);
  u.choose(cbo(provincia), "Toledo");
  u.choose(cbo(provincia + 1), "Illescas");
  u.type(fecha(dia), "02/01/2001");
}

void rellenarDatos(FormDriver& u) {
  rellenarMinimo(u);
  u.type(txt(Padron::NIF), "1234567");
  u.type(txt(Padron::LetraNIF), "l");
  u.type(txt(Padron::Direccion), "Calle \"Mayor\", 3");
  u.choose(cbo(Padron::ProvinciaDireccion), "Toledo");
  u.choose(cbo(Padron::ProvinciaDireccion + 1), "Illescas");
  u.type(txt(Padron::CPostal), "45200");
  u.type(txt(Padron::Telefono), "925111222");
  u.type(txt(Padron::Telefono2), "600111222");
  u.type(txt(Padron::CorreoElectronico), "Elena@Sanz.ES");
  u.choose(cbo(Padron::Sexo), "Mujer");
  u.type(txt(Padron::EstadoCivil), "Casada");
  u.type(txt(Padron::ProfesionColegio), "Maestra");
  u.type(txt(Padron::PosicionFamiliar), "Madre");
}

void rellenarResto(FormDriver& u) {
  u.tab(MST, Padron::TAB_NACIMIENTO);
  u.type(fecha(Padron::FechaNacimiento), "15031970");
  u.choose(cbo(Padron::ProvinciaNac), "Toledo");
  u.choose(cbo(Padron::ProvinciaNac + 1), "Illescas");
  u.type(txt(Padron::NombrePadre), "Luis");
  u.type(txt(Padron::NombreMadre), "Carmen");
  rellenarParroquia(u, Padron::ParroquiaBaut, Padron::ProvinciaBaut, Padron::FechaBautizo,
                    "la Paz");
  u.tab(MST, Padron::TAB_SACRAMENTOS);
  u.type(txt(Padron::AñoComunion), "1979");
  u.type(txt(Padron::ParroquiaCom), "San Blas");
  rellenarParroquia(u, Padron::ParroquiaConf, Padron::ProvinciaConf, Padron::FechaConfirmacion,
                    "la Cruz");
  rellenarParroquia(u, Padron::ParroquiaMatr, Padron::ProvinciaMatr, Padron::FechaMatrimonio,
                    "la Luz");
  u.tab(MST, Padron::TAB_DEFUNCION);
  u.type(fecha(Padron::FechaDefuncion), "03/11/2026");
  u.type(txt(Padron::Nicho), "4B");
  u.type(txt(Padron::ImporteNicho), "1234,5");
  u.choose(cbo(Padron::Pagado), "No");
  u.tab(MST, Padron::TAB_COMENTARIOS);
  u.type(txt(Padron::Comentarios), "Uno\nDos");
  u.type(txt(Padron::Observaciones), "Tres");
}

TEST(NuevoEmpadronado, AllFieldsTyped_FillsEveryTableInOrder) {
  PadronWorld w;
  const std::string illescas = std::to_string(w.municipio("Illescas", "Toledo"));
  w.fallos();
  w.alta([&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Agregar empadronado");
    EXPECT_TRUE(u.visible(boton(Padron::BUSCAR)));
    rellenarDatos(u);
    rellenarResto(u);
    w.escrito();
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_THAT(w.escrito(),
              ElementsAre("BEGIN", "INSERT INTO Padron", "COMMIT", "INSERT INTO Padron_Nacimiento",
                          "INSERT INTO Padron_Bautismo", "INSERT INTO Padron_Comunion",
                          "INSERT INTO Padron_Confirmacion", "INSERT INTO Padron_Matrimonio",
                          "INSERT INTO Padron_Defuncion", "INSERT INTO Padron_TipoPersona"));
  EXPECT_EQ(w.fila("SELECT * FROM Padron"),
            "1|Elena|Sanz|Mora|01234567-L|Calle ''Mayor'', 3|" + illescas +
                "|45200|925111222|600111222|elena@sanz.es|Casada|Mujer|Maestra|Madre|Uno\r\nDos|"
                "Tres|" +
                std::to_string(w.parroquia) + "|||");
  EXPECT_EQ(w.satelite("Nacimiento", 1), "1|19700315|" + illescas + "|Luis|Carmen");
  EXPECT_EQ(w.satelite("Bautismo", 1), "1|20010102|" + illescas + "|la Paz|Calle de la Paz");
  EXPECT_EQ(w.satelite("Comunion", 1), "1|1979|San Blas");
  EXPECT_EQ(w.satelite("Confirmacion", 1), "1|20010102|" + illescas + "|la Cruz|Calle de la Cruz");
  EXPECT_EQ(w.satelite("Matrimonio", 1), "1|20010102|" + illescas + "|la Luz|Calle de la Luz");
  EXPECT_EQ(w.fila("SELECT FechaDefuncion,Nicho,ImporteEur,Importe FROM Padron_Defuncion WHERE "
                   "Pagado=FALSE"),
            "20261103|4B|1.234,50|205.404");
  EXPECT_EQ(w.satelite("TipoPersona", 1), "1|2");
}

TEST(NuevoEmpadronado, OnlyTheNecessaryTyped_WritesEmptyRowsAndNoDNI) {
  for (const bool pesetas : {false, true}) {
    PadronWorld w;
    w.config.TrabajarConPesetas = pesetas;
    w.alta([&](FormDriver& u) {
      EXPECT_EQ(u.text(txt(Padron::ImporteNicho)), pesetas ? "0" : "0,00");
      EXPECT_EQ(u.text("lblMoneda"), pesetas ? "Pts" : "€");
      rellenarMinimo(u);
      u.enter();
    });
    EXPECT_EQ(w.fila("SELECT DNI,CodMunicipio,Sexo FROM Padron"), "|0|");
    EXPECT_EQ(w.satelite("Nacimiento", 1), "1||0||");
    EXPECT_EQ(w.satelite("Matrimonio", 1), "1||0||");
    EXPECT_EQ(w.fila("SELECT ImporteEur,Importe FROM Padron_Defuncion WHERE Pagado=TRUE"),
              "0,00|0");
    EXPECT_EQ(w.count("Padron_NotasPersonales"), 0);
  }
}

TEST(NuevoEmpadronado, AmountInPesetas_IsStoredInBothCurrencies) {
  PadronWorld w;
  w.config.TrabajarConPesetas = true;
  w.alta([&](FormDriver& u) {
    rellenarMinimo(u);
    u.tab(MST, Padron::TAB_DEFUNCION);
    u.type(txt(Padron::ImporteNicho), "1.0a00");
    u.type(txt(Padron::Nicho), "1");
    EXPECT_EQ(u.text(txt(Padron::ImporteNicho)), "1.000");
    u.type(txt(Padron::ImporteNicho), "123456789");
    u.type(txt(Padron::Nicho), "1");
    EXPECT_EQ(u.text(txt(Padron::ImporteNicho)), "12.345.678");
    u.type(txt(Padron::ImporteNicho), "");
    u.type(txt(Padron::Nicho), "1");
    EXPECT_EQ(u.text(txt(Padron::ImporteNicho)), "0");
    u.type(txt(Padron::ImporteNicho), "1000");
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.fila("SELECT Importe,ImporteEur FROM Padron_Defuncion"), "1.000|6,01");
}

TEST(NuevoEmpadronado, NoInstitutionChosen_OtherTabsStayShut) {
  PadronWorld w;
  w.alta([&](FormDriver& u) {
    w.user.expectMessage("¡Debe seleccionar una Institución!");
    u.tab(MST, Padron::TAB_DEFUNCION);
    EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), Padron::TAB_DATOS);
    EXPECT_EQ(w.user.beeps(), 1);
    u.choose(cbo(Padron::Institucion), "San Ginés");
    u.tab(MST, Padron::TAB_DEFUNCION);
    EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), Padron::TAB_DEFUNCION);
    u.escape();
  });
  EXPECT_EQ(w.count("Padron"), 0);
}

TEST(NuevoEmpadronado, SomethingMissingOrWrong_GoesToTheFieldAndStoresNothing) {
  PadronWorld w;
  w.alta([&](FormDriver& u) {
    const auto rehusa = [&](const char* mensaje, const std::string& campo, int pestana) {
      w.user.expectMessage(mensaje);
      u.click(boton(Padron::ACEPTAR));
      EXPECT_EQ(u.focused(), campo) << mensaje;
      EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), pestana) << mensaje;
    };
    rehusa("¡Debe seleccionar una Institución para el empadronado!", cbo(Padron::Institucion), 0);
    u.choose(cbo(Padron::Institucion), "San Ginés");
    u.tab(MST, Padron::TAB_NOTAS);
    rehusa("¡Debe insertar el nombre del empadronado!", txt(Padron::Nombre), 0);
    u.type(txt(Padron::Nombre), "Elena");
    rehusa("¡Debe insertar el primer apellido del empadronado!", txt(Padron::PrimerApellido), 0);
    u.type(txt(Padron::PrimerApellido), "Sanz");
    u.type(txt(Padron::SegundoApellido), "  ");
    rehusa("¡Debe insertar el segundo apellido del empadronado!", txt(Padron::SegundoApellido), 0);
    u.type(txt(Padron::SegundoApellido), "Mora");
    u.tab(MST, Padron::TAB_SACRAMENTOS);
    u.type(txt(Padron::AñoComunion), "2027");
    u.tab(MST, Padron::TAB_DATOS);
    u.type(txt(Padron::LetraNIF), "L");
    rehusa("¡El año introducido no debe superar el actual!", txt(Padron::AñoComunion), 2);
    u.type(txt(Padron::AñoComunion), "2026");
    rehusa("¡Debe introducir un número de NIF!", txt(Padron::NIF), 0);
    u.type(txt(Padron::NIF), "12345678");
    u.type(txt(Padron::LetraNIF), "");
    u.tab(MST, Padron::TAB_NOTAS);
    rehusa("¡Debe introducir una letra para el NIF!", txt(Padron::LetraNIF), 0);
    u.type(txt(Padron::LetraNIF), "A");
    rehusa("¡La letra del NIF no está bien calculada!", txt(Padron::LetraNIF), 0);
    u.type(txt(Padron::LetraNIF), "Z");
    // A date can be wrong behind the back of its field only.
    u.get<forms::DateField>(fecha(Padron::FechaMatrimonio)).setText("31/02/2001");
    rehusa("«31/02/2001» no es una fecha. Escríbala como día/mes/año: 03/05/1998.",
           fecha(Padron::FechaMatrimonio), 2);
    u.type(fecha(Padron::FechaMatrimonio), "28/02/2001");
    EXPECT_EQ(w.count("Padron"), 0);
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.value("SELECT DNI FROM Padron"), "12345678-Z");
  EXPECT_EQ(w.value("SELECT AñoComunion FROM Padron_Comunion"), "2026");
}

TEST(NuevoEmpadronado, KeysThatDoNotFitAField_BeepOrAreChanged) {
  PadronWorld w;
  w.alta([&](FormDriver& u) {
    for (const Padron::Texto campo :
         {Padron::NIF, Padron::CPostal, Padron::Telefono, Padron::Telefono2}) {
      const int antes = w.user.beeps();
      u.type(txt(campo), "1a-2");
      EXPECT_EQ(u.focused(), txt(campo));
      EXPECT_EQ(w.user.beeps(), antes + 2);
    }
    u.type(txt(Padron::CPostal), "2801345");
    EXPECT_EQ(u.text(txt(Padron::CPostal)), "28013");
    EXPECT_EQ(u.text(txt(Padron::NIF)), "00000012");
    u.type(txt(Padron::LetraNIF), "\"");
    EXPECT_EQ(u.text(txt(Padron::LetraNIF)), "'");
    u.type(txt(Padron::LetraNIF), "7ñ");
    EXPECT_EQ(u.text(txt(Padron::LetraNIF)), "Ñ");
    u.type(txt(Padron::NIF), "");
    u.focus(txt(Padron::Direccion));
    EXPECT_EQ(u.text(txt(Padron::LetraNIF)), "");
    u.paste(txt(Padron::CorreoElectronico), "ANA@X.ES");
    u.focus(txt(Padron::Direccion));
    EXPECT_EQ(u.text(txt(Padron::CorreoElectronico)), "ana@x.es");
    u.escape();
  });
}

TEST(NuevoEmpadronado, PersonsThere_SuggestTheirPositionsAndCivilStatus) {
  PadronWorld w;
  for (const char* posicion : {"Padre", "Hijo", "Padre"})
    w.con().Execute(std::string("UPDATE Padron SET PosicionFamiliar='") + posicion +
                    "',EstadoCivil='Soltero' WHERE IDPadron=" +
                    std::to_string(w.persona("Luis", "Gil", posicion)));
  w.persona("Ana", "Gil", "Gil");
  w.alta([&](FormDriver& u) {
    const auto& posicion = u.get<forms::TextBox>(txt(Padron::PosicionFamiliar)).suggestions();
    EXPECT_THAT(posicion, ElementsAre("Hijo", "Padre"));
    EXPECT_THAT(u.get<forms::TextBox>(txt(Padron::EstadoCivil)).suggestions(),
                ElementsAre("Soltero"));
    u.escape();
  });
}

TEST(NuevoEmpadronado, CatalogueGrowsFromTheDialog_ListsShowItAndKeepWhatWasChosen) {
  PadronWorld w;
  w.municipio("Illescas", "Toledo");
  w.alta([&](FormDriver& u) {
    u.choose(cbo(Padron::ProvinciaDireccion), "Toledo");
    u.choose(cbo(Padron::ProvinciaDireccion + 1), "Illescas");
    w.user.expectForm("frmInstitucion", [](FormDriver& f) {
      f.type("txtInstitucion(0)", "San José");
      f.click("cmdBoton(0)");
    });
    u.click("cmdAltaInstitucion");
    EXPECT_EQ(u.text(cbo(Padron::Institucion)), "San José");
    w.user.expectForm("frmProvincia", [](FormDriver& f) {
      f.type("txtNombre", "Ultramar");
      f.click("cmdBoton(0)");
    });
    u.click("cmdAltaProvincia(0)");
    u.tab(MST, Padron::TAB_SACRAMENTOS);
    u.choose(cbo(Padron::ProvinciaMatr), "Ultramar");
    w.user.expectForm("frmMunicipio", [](FormDriver& f) { f.escape(); });
    u.click("cmdAltaPoblacion(8)");
    EXPECT_EQ(u.text(cbo(Padron::ProvinciaMatr)), "Ultramar");
    EXPECT_EQ(u.text(cbo(Padron::ProvinciaDireccion + 1)), "Illescas");
    u.escape();
  });
}

}  // namespace
}  // namespace fidaleon::tests
