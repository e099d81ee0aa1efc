#include "census/persons_PadronWorld.h"

namespace fidaleon::tests {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

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

TEST(NuevoEmpadronado, SameNameChosenInTheList_EditsThatPersonInstead) {
  PadronWorld w;
  const std::int32_t id = w.persona("Elena", "Sanz", "Mora");
  w.user.expectForm("frmPadron", [&](FormDriver& u) {
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& lista) {
      lista.row("msgBusquedaPadron", 1);
      lista.click("cmdBotones(1)");
    });
    w.user.expectForm("frmPadron", [&](FormDriver& otra) {
      EXPECT_EQ(otra.caption(), "Propiedades del empadronado Elena Sanz Mora");
      EXPECT_FALSE(w.libre("Padron"));
      otra.type(txt(Padron::Direccion), "Plaza, 1");
      otra.click(boton(Padron::ACEPTAR));
    });
    rellenarMinimo(u);
    u.click(boton(Padron::ACEPTAR));
    EXPECT_TRUE(u.closed());
  });
  censo::NuevoEmpadronado(w.contexto, w.con());
  EXPECT_SCRIPT_DONE(w.user);
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.value("SELECT Direccion FROM Padron WHERE IDPadron=" + std::to_string(id)),
            "Plaza, 1");
  EXPECT_TRUE(w.libre("Padron"));
}

TEST(NuevoEmpadronado, SameNameLeftAside_IsSearchedAgainOnlyWhenItChanges) {
  PadronWorld w;
  w.persona("Elena", "Sanz", "Mora");
  w.alta([&](FormDriver& u) {
    rellenarMinimo(u);
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& lista) { lista.escape(); });
    u.focus(txt(Padron::Direccion));
    EXPECT_EQ(u.text(txt(Padron::Nombre)), "Elena");
    u.focus(txt(Padron::Nombre));
    u.focus(txt(Padron::Direccion));
    u.type(txt(Padron::Nombre), "Elen");
    u.focus(txt(Padron::Direccion));
    u.type(txt(Padron::Nombre), "Elena");
    // Somebody who gives up is not asked any more.
    u.click(boton(Padron::CANCELAR));
  });
  EXPECT_EQ(w.count("Padron"), 1);
}

TEST(NuevoEmpadronado, SearchButton_HandsOverThePersonFound) {
  PadronWorld w;
  w.persona("Elena", "Sanz", "Mora", "12345678-Z");
  w.user.expectForm("frmPadron", [&](FormDriver& u) {
    w.user.expectForm("frmPadronImportar", [&](FormDriver& busca) {
      w.user.expectForm("frmPadronBusqueda", [](FormDriver& lista) {
        lista.row("msgBusquedaPadron", 1);
        lista.click("cmdBotones(1)");
      });
      w.user.expectForm("frmPadron", [](FormDriver& otra) { otra.escape(); });
      busca.type("txtDNI", "12345678");
      busca.click("cmdPadronImportar(0)");
    });
    u.click(boton(Padron::BUSCAR));
    EXPECT_TRUE(u.closed());
  });
  censo::NuevoEmpadronado(w.contexto, w.con());
  EXPECT_SCRIPT_DONE(w.user);
  EXPECT_EQ(w.count("Padron"), 1);
}

TEST(NuevoEmpadronado, DNIOfAnother_IsToldOnLeavingAndRefusedAtTheEnd) {
  PadronWorld w;
  w.persona("Rosa", "Gil", "Gil", "12345678-Z");
  w.alta([&](FormDriver& u) {
    rellenarMinimo(u);
    u.type(txt(Padron::NIF), "12345678");
    u.type(txt(Padron::LetraNIF), "Z");
    w.user.expectForm("frmMensaje", [](FormDriver& m) { m.escape(); });
    u.tab(MST, Padron::TAB_NOTAS);
    EXPECT_EQ(u.text(txt(Padron::Nombre)), "Elena");
    w.user.expectMessage("¡El DNI introducido coincide con el de un empadronado!");
    u.click(boton(Padron::ACEPTAR));
    EXPECT_EQ(u.focused(), txt(Padron::NIF));
    EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), Padron::TAB_DATOS);
    u.escape();
  });
  EXPECT_EQ(w.count("Padron"), 1);
}

TEST(NuevoEmpadronado, DNIOfAnotherImported_GoesOnWithTheirDataAndStoresNothingYet) {
  PadronWorld w;
  const std::int32_t id = w.persona("Rosa", "Gil", "Gil", "12345678-Z");
  w.nota(id, "Enferma");
  w.alta([&](FormDriver& u) {
    rellenarMinimo(u);
    u.tab(MST, Padron::TAB_NOTAS);
    w.user.expectForm("frmPadronNotas", [](FormDriver& n) {
      n.type("txtTitulo", "De Elena");
      n.enter();
    });
    u.click(botonNota(Padron::AGREGAR));
    u.tab(MST, Padron::TAB_DATOS);
    u.type(txt(Padron::NIF), "12345678");
    u.type(txt(Padron::LetraNIF), "Z");
    w.user.expectForm("frmMensaje", [](FormDriver& m) { m.click("cmdMensaje(1)"); });
    u.click(boton(Padron::ACEPTAR));
    EXPECT_FALSE(u.closed());
    EXPECT_EQ(u.caption(), "Propiedades del empadronado Rosa Gil Gil");
    EXPECT_EQ(u.text(txt(Padron::Nombre)), "Rosa");
    EXPECT_EQ(u.focused(), txt(Padron::Nombre));
    EXPECT_FALSE(u.visible(boton(Padron::BUSCAR)));
    u.tab(MST, Padron::TAB_NOTAS);
    EXPECT_EQ(u.get<forms::Grid>("msgNotas").rowCount(), 1);
    EXPECT_EQ(u.get<forms::Grid>("msgNotas").cell(1, 0), "Enferma");
    u.tab(MST, Padron::TAB_DATOS);
    u.type(txt(Padron::Nombre), "Rosa María");
    u.click(boton(Padron::ACEPTAR));
  });
  EXPECT_EQ(w.fila("SELECT IDPadron,Nombre,DNI FROM Padron"), "1|Rosa María|12345678-Z");
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.count("Padron_NotasPersonales"), 1);
}

TEST(NuevoEmpadronado, ImportFails_NeverMixesTwoPersons) {
  for (const char* parte : {"SELECT * FROM Padron_Comunion", "FROM Municipio WHERE IDMunicipio"}) {
    PadronWorld w;
    w.persona("Rosa", "Gil", "Gil", "12345678-Z");
    w.con().Execute("UPDATE Padron SET CodMunicipio=" +
                    std::to_string(w.municipio("Illescas", "Toledo")));
    const std::string antes = w.fila("SELECT * FROM Padron");
    w.alta([&](FormDriver& u) {
      rellenarMinimo(u);
      u.type(txt(Padron::NIF), "12345678");
      u.type(txt(Padron::LetraNIF), "Z");
      w.fallos().failOn(parte);
      w.user.expectForm("frmMensaje", [](FormDriver& m) { m.click("cmdMensaje(1)"); });
      w.user.answerAnything(Answer::Ok);
      u.click(boton(Padron::ACEPTAR));
      EXPECT_EQ(w.fallos().pending(), 0u) << parte;
      if (u.closed()) return;
      EXPECT_EQ(u.caption(), "Agregar empadronado");
      EXPECT_EQ(u.text(txt(Padron::Nombre)), "Elena");
      u.click(boton(Padron::CANCELAR));
    });
    EXPECT_EQ(w.fila("SELECT * FROM Padron"), antes);
    EXPECT_EQ(w.count("Padron"), 1);
  }
}

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

TEST(NuevoEmpadronado, FailureBehindTheTransaction_IsCompletedWithoutASecondPerson) {
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
      u.click(boton(Padron::ACEPTAR));
      EXPECT_TRUE(u.closed()) << parte;
    });
    for (const char* tabla :
         {"Padron", "Padron_Nacimiento", "Padron_Bautismo", "Padron_Comunion",
          "Padron_Confirmacion", "Padron_Matrimonio", "Padron_Defuncion", "Padron_TipoPersona"})
      EXPECT_EQ(w.count(tabla), 1) << parte << ": " << tabla;
    EXPECT_EQ(w.count("Padron_NotasPersonales"), 2) << parte;
  }
}

}  // namespace
}  // namespace fidaleon::tests
