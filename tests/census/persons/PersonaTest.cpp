// The card of a person of the census.

#include "census/Manos.h"
#include "census/persons/frmPadron.h"

namespace fidaleon::tests::PersonaTest {

using P = frmPadron;

std::string t(P::Texto indice) {
  return control("txtPadron", indice);
}
std::string l(int indice) {
  return control("cboPadron", indice);
}
std::string f(P::Fecha indice) {
  return control("adtpPadron", indice);
}
const std::string ACEPTAR = control("cmdPadron", P::ACEPTAR);
const std::string BUSCAR = control("cmdPadron", P::BUSCAR);
constexpr const char *MST = "mstPadron", *ACEPTAR_NOTA = "cmdPadronNota(0)";

/// The least that is accepted.
const Campos MINIMO = campos(l(P::Institucion), "San Ginés", t(P::Nombre), "Elena",
                             t(P::PrimerApellido), "Sanz", t(P::SegundoApellido), "Mora");
const Campos DATOS = campos(
    t(P::NIF), "01234567", t(P::LetraNIF), "L", t(P::Direccion), "Calle, 3",
    l(P::ProvinciaDireccion), "Toledo", l(P::ProvinciaDireccion + 1), "Illescas", t(P::CPostal),
    "45200", t(P::Telefono), "925111222", t(P::Telefono2), "600111222", t(P::CorreoElectronico),
    "elena@sanz.es", l(P::Sexo), "Mujer", t(P::EstadoCivil), "Casada", t(P::ProfesionColegio),
    "Maestra", t(P::PosicionFamiliar), "Madre", f(P::FechaNacimiento), "15/03/1970",
    l(P::ProvinciaNac), "Toledo", l(P::ProvinciaNac + 1), "Ocaña", t(P::NombrePadre), "Luis",
    t(P::NombreMadre), "Carmen", f(P::FechaBautizo), "02/01/2001", l(P::ProvinciaBaut), "Toledo",
    l(P::ProvinciaBaut + 1), "Illescas", t(P::ParroquiaBaut), "La Paz", t(P::DireccionParrBaut),
    "Calle de la Paz", t(P::AñoComunion), "1979", t(P::ParroquiaCom), "San Blas",
    f(P::FechaConfirmacion), "03/01/2001", l(P::ProvinciaConf), "Toledo", l(P::ProvinciaConf + 1),
    "Ocaña", t(P::ParroquiaConf), "La Cruz", t(P::DireccionParrConf), "Calle de la Cruz",
    f(P::FechaMatrimonio), "04/01/2001", l(P::ProvinciaMatr), "Toledo", l(P::ProvinciaMatr + 1),
    "Illescas", t(P::ParroquiaMatr), "La Luz", t(P::DireccionParrMatr), "Calle de la Luz",
    f(P::FechaDefuncion), "03/11/2026", t(P::Nicho), "4B", t(P::ImporteNicho), "1.234,50",
    l(P::Pagado), "No", t(P::Comentarios), "Uno", t(P::Observaciones), "Tres");

struct Personas : En<ManosWorld> {
  Personas() {
    for (const char* nombre : {"Illescas", "Ocaña"}) municipio(nombre, "Toledo");
  }
  std::int32_t rosa(const char* dni = "", std::vector<Tipo> tipos = {EMPADRONADO}) {
    return persona("Rosa", "Gil", "Mas", dni, tipos);
  }
  static void conDNI(FormDriver& u) {
    poner(u, MINIMO);
    poner(u, t(P::NIF), "12345678", t(P::LetraNIF), "Z");
  }
  void lista(const char* boton) { contesta("frmPadronBusqueda", boton); }
};

TEST_F(Personas, AllTyped_FillsEveryTableInOrderAndIsShownAgain) {
  escrito();
  altaPersona([&](FormDriver& u) {
    EXPECT_TRUE(u.visible(BUSCAR));
    poner(u, MINIMO);
    poner(u, DATOS);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(escrito(),
            "BEGIN +Padron COMMIT +Padron_Nacimiento +Padron_Bautismo +Padron_Comunion "
            "+Padron_Confirmacion +Padron_Matrimonio +Padron_Defuncion +Padron_TipoPersona");
  EXPECT_EQ(filas("SELECT * FROM Padron"),
            "1|Elena|Sanz|Mora|01234567-L|Calle, 3|1|45200|925111222|600111222|elena@sanz.es|"
            "Casada|Mujer|Maestra|Madre|Uno|Tres|1|||");
  EXPECT_EQ(satelite("Nacimiento", 1), "1|19700315|2|Luis|Carmen");
  EXPECT_EQ(satelite("Bautismo", 1), "1|20010102|1|La Paz|Calle de la Paz");
  EXPECT_EQ(satelite("Comunion", 1), "1|1979|San Blas");
  EXPECT_EQ(satelite("Confirmacion", 1), "1|20010103|2|La Cruz|Calle de la Cruz");
  EXPECT_EQ(satelite("Matrimonio", 1), "1|20010104|1|La Luz|Calle de la Luz");
  EXPECT_EQ(filas("SELECT FechaDefuncion,Nicho,ImporteEur,Importe,Pagado FROM Padron_Defuncion"),
            "20261103|4B|1.234,50|205.404|0");
  EXPECT_EQ(satelite("TipoPersona", 1), "1|2");
  const std::string antes = censo();
  editaPersona(1, [&](FormDriver& u) {
    EXPECT_FALSE(u.visible(BUSCAR));
    comprobar(u, MINIMO);
    comprobar(u, DATOS);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(escrito(),
            "~Padron ~Padron_Nacimiento ~Padron_Bautismo ~Padron_Comunion ~Padron_Confirmacion "
            "~Padron_Matrimonio ~Padron_Defuncion");
  EXPECT_EQ(censo(), antes);
}

TEST_F(Personas, OnlyTheNecessaryTyped_WritesEmptyRowsAndNoDNI) {
  config.TrabajarConPesetas = true;
  altaPersona([&](FormDriver& u) {
    EXPECT_EQ(u.text(t(P::ImporteNicho)), "0");
    poner(u, MINIMO);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT DNI,CodMunicipio,Sexo FROM Padron"), "|0|");
  EXPECT_EQ(satelite("Nacimiento", 1) + satelite("Matrimonio", 1), "1||0||1||0||");
  EXPECT_EQ(filas("SELECT ImporteEur,Importe,Pagado FROM Padron_Defuncion"), "0,00|0|-1");
}

TEST_F(Personas, Amount_IsTypedInOneCurrencyAndStoredInBoth) {
  rosa();
  const auto caso = [&](bool pesetas, const std::string& antes, const Campos& tecleado,
                        const std::string& ultimo, const std::string& guardado) {
    config.TrabajarConPesetas = pesetas;
    editaPersona(1, [&](FormDriver& u) {
      comprobar(u, "lblMoneda", pesetas ? "Pts" : "€", t(P::ImporteNicho), antes);
      for (const auto& [cifras, queda] : tecleado) {
        poner(u, t(P::ImporteNicho), cifras, t(P::Nicho), "1");
        EXPECT_EQ(u.text(t(P::ImporteNicho)), queda);
      }
      poner(u, t(P::ImporteNicho), ultimo);
      u.click(ACEPTAR);
    });
    EXPECT_EQ(filas("SELECT ImporteEur,Importe FROM Padron_Defuncion"), guardado);
  };
  caso(false, "6,01", campos("1234,567", "1.234,56", "7", "7,00", "", "0,00"), "250",
       "250,00|41.596");
  caso(true, "41.596", campos("1.0a00", "1.000", "123456789", "12.345.678", "", "0"), "1000",
       "6,01|1.000");
}

TEST_F(Personas, NoInstitutionChosen_OtherTabsStayShutUnlessOneOnlyLooks) {
  institucion("San Blas");
  altaPersona([&](FormDriver& u) {
    user.expectMessage("¡Debe seleccionar una Institución!");
    u.tab(MST, P::TAB_DEFUNCION);
    EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), P::TAB_DATOS);
    EXPECT_EQ(user.beeps(), 1);
    u.escape();
  });
  const auto otro = otherHolds("Padron", rosa());
  ejecutar("UPDATE Padron SET CodInstitucionEmpadronado=0");
  user.answerAnything(Answer::Ok);
  editaPersona(1, [](FormDriver& u) {
    u.tab(MST, P::TAB_NOTAS);
    EXPECT_EQ(u.get<forms::TabStrip>(MST).tab(), P::TAB_NOTAS);
    u.escape();
  });
}

TEST_F(Personas, SomethingWrong_IsToldInOrderAndGoesToItsField) {
  altaPersona([&](FormDriver& u) {
    poner(u, MINIMO);
    poner(u, t(P::AñoComunion), "2027", t(P::LetraNIF), "L");
    // A date can be wrong behind the back of its field only.
    u.get<forms::DateField>(f(P::FechaMatrimonio)).setText("31/02/2001");
    rehusa(u, ACEPTAR, "¡El año introducido no debe superar el actual!", t(P::AñoComunion));
    poner(u, t(P::AñoComunion), "2026", t(P::LetraNIF), "L");
    rehusa(u, ACEPTAR, "¡Debe introducir un número de NIF!", t(P::NIF));
    poner(u, t(P::NIF), "12345678", t(P::LetraNIF), "", t(P::Comentarios), "");
    rehusa(u, ACEPTAR, "¡Debe introducir una letra para el NIF!", t(P::LetraNIF));
    poner(u, t(P::LetraNIF), "A");
    rehusa(u, ACEPTAR, "¡La letra del NIF no está bien calculada!", t(P::LetraNIF));
    poner(u, t(P::LetraNIF), "Z");
    rehusa(u, ACEPTAR, "«31/02/2001» no es una fecha. Escríbala como día/mes/año: 03/05/1998.",
           f(P::FechaMatrimonio));
    poner(u, f(P::FechaMatrimonio), "28/02/2001");
    EXPECT_EQ(count("Padron"), 0);
    u.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT DNI,AñoComunion,FechaMatrimonio FROM Padron,Padron_Comunion,"
                  "Padron_Matrimonio"),
            "12345678-Z|2026|20010228");
}

TEST_F(Personas, KeysThatDoNotFitAField_BeepOrAreChanged) {
  altaPersona([&](FormDriver& u) {
    const auto queda = [&](P::Texto campo, const char* tecleado) {
      poner(u, t(campo), tecleado, t(P::Direccion), "");
      return u.text(t(campo));
    };
    for (const P::Texto campo : {P::NIF, P::CPostal, P::Telefono, P::Telefono2}) {
      const int antes = user.beeps();
      EXPECT_TRUE(queda(campo, "1a-2").ends_with("12"));
      EXPECT_EQ(user.beeps(), antes + 2);
    }
    EXPECT_EQ(queda(P::CPostal, "2801345"), "28013");
    EXPECT_EQ(queda(P::NIF, "12"), "00000012");
    EXPECT_EQ(queda(P::LetraNIF, "\""), "'");
    EXPECT_EQ(queda(P::LetraNIF, "7ñ"), "Ñ");
    EXPECT_EQ(queda(P::NIF, ""), "");
    EXPECT_EQ(u.text(t(P::LetraNIF)), "") << "without number, no letter";
    EXPECT_EQ(queda(P::CorreoElectronico, "ANA@X.ES"), "ana@x.es");
    u.paste(t(P::CorreoElectronico), "EVA@X.ES");
    u.focus(t(P::Direccion));
    EXPECT_EQ(u.text(t(P::CorreoElectronico)), "eva@x.es");
    u.click("cmdPadron(1)");
  });
}

TEST_F(Personas, PersonsThere_OfferWhatWasWrittenOfThem) {
  for (const char* posicion : {"Padre", "Hijo", "Padre", ""})
    ejecutar(std::string("UPDATE Padron SET EstadoCivil='Soltero',PosicionFamiliar='") + posicion +
             "' WHERE IDPadron=" + texto(rosa()));
  altaPersona([&](FormDriver& u) {
    EXPECT_EQ(u.offered(t(P::PosicionFamiliar), ""), (Sentencias{"Padre", "Hijo"}));
    EXPECT_EQ(u.offered(t(P::EstadoCivil), "sol"), Sentencias{"Soltero"});
    EXPECT_EQ(u.offered(t(P::Direccion), "mayor"), Sentencias{"Calle Mayor, 3"});
    EXPECT_EQ(u.offered(t(P::ParroquiaConf), "gines"), Sentencias{"San Ginés"});
    u.escape();
  });
}

TEST_F(Personas, NextOfTheFamily_TakesWhatTheyHaveInCommonAndNothingElse) {
  altaPersona([&](FormDriver& u) {
    poner(u, MINIMO);
    poner(u, DATOS);
    u.click(ACEPTAR);
  });
  for (const bool trasOtraSesion : {false, true}) {
    if (trasOtraSesion) contexto.memoria.reset();
    altaPersona([&](FormDriver& u) {
      u.focus(t(P::Nombre));
      u.former(true);
      comprobar(u, l(P::Institucion), "San Ginés", t(P::Direccion), "Calle, 3",
                l(P::ProvinciaDireccion + 1), "Illescas", t(P::CPostal), "45200", t(P::Telefono),
                "925111222");
      u.focus(t(P::PosicionFamiliar));
      u.former();
      poner(u, t(P::NombrePadre), "Juan");
      u.former(true);
      comprobar(u, t(P::PosicionFamiliar), "Madre", t(P::NombrePadre), "Juan", t(P::NombreMadre),
                "Carmen", t(P::ParroquiaBaut), "La Paz", l(P::ProvinciaNac + 1), "Ocaña");
      for (const std::string& suyo : {t(P::Nombre), t(P::PrimerApellido), t(P::NIF), t(P::LetraNIF),
                                      l(P::Sexo), t(P::Telefono2), t(P::CorreoElectronico),
                                      t(P::EstadoCivil), f(P::FechaNacimiento), f(P::FechaBautizo)})
        EXPECT_EQ(u.text(suyo), "") << suyo;
      u.form().Unload();
    });
  }
}

TEST_F(Personas, CatalogueGrowsFromTheCard_ListsShowItAndKeepWhatWasChosen) {
  altaPersona([&](FormDriver& u) {
    poner(u, l(0), "Toledo", l(1), "Ocaña");
    contesta("frmInstitucion", "cmdBoton(0)", "txtInstitucion(0)", "San José");
    u.click("cmdAltaInstitucion");
    EXPECT_EQ(u.text(l(P::Institucion)), "San José");
    contesta("frmProvincia", "cmdBoton(0)", "txtNombre", "Ultramar");
    u.click("cmdAltaProvincia(0)");
    poner(u, l(P::ProvinciaMatr), "Ultramar");
    cierra("frmMunicipio");
    u.click("cmdAltaPoblacion(8)");
    contesta("frmMunicipio", "cmdBoton(0)", "cboProvincia", "Ultramar", "txtNombre", "Isla");
    u.click("cmdAltaPoblacion(8)");
    comprobar(u, l(P::ProvinciaMatr), "Ultramar", l(1), "Ocaña");
    poner(u, l(P::ProvinciaMatr + 1), "Isla");
    u.click("cmdPadron(1)");
  });
}

TEST_F(Personas, SameName_IsOpenedInsteadWhenChosen) {
  persona("Elena", "Sanz", "Mora", "12345678-Z");
  for (const bool buscada : {false, true})
    altaPersona([&](FormDriver& u) {
      if (buscada) contesta("frmPadronImportar", "cmdPadronImportar(0)", "txtDNI", "12345678");
      lista("cmdBotones(1)");
      espera("frmPadron", [&](FormDriver& otra) {
        EXPECT_EQ(otra.caption(), "Propiedades del empadronado Elena Sanz Mora");
        EXPECT_FALSE(isFree("Padron", 1));
        otra.close();
      });
      if (!buscada) poner(u, MINIMO);
      u.click(buscada ? BUSCAR : ACEPTAR);
      EXPECT_TRUE(u.closed());
    });
  EXPECT_EQ(count("Padron"), 1);
}

TEST_F(Personas, DNIOfAnother_IsToldOnLeavingAndRefusedAtTheEnd) {
  rosa("12345678-Z");
  altaPersona([&](FormDriver& u) {
    conDNI(u);
    cierra("frmMensaje");
    u.tab(MST, P::TAB_NOTAS);
    EXPECT_EQ(u.text(t(P::Nombre)), "Elena");
    rehusa(u, ACEPTAR, "¡El DNI introducido coincide con el de un empadronado!", t(P::NIF));
    u.click("cmdPadron(1)");
  });
  editaPersona(rosa("01234567-L"), [&](FormDriver& u) {
    poner(u, t(P::NIF), "01234567", t(P::LetraNIF), "L", t(P::Direccion), "Su DNI");
    poner(u, t(P::NIF), "12345678", t(P::LetraNIF), "Z");
    user.expectMessage("¡Ya existe una persona con este DNI!");
    u.focus(t(P::Direccion));
    poner(u, t(P::NIF), "1", t(P::LetraNIF), "Z", t(P::NIF), "12345678");
    user.expectMessage("¡Ya existe una persona con este DNI!");
    u.focus(t(P::Direccion));
    u.click("cmdPadron(1)");
  });
  EXPECT_EQ(filas("SELECT DNI FROM Padron"), "12345678-Z/01234567-L");
}

TEST_F(Personas, DNIOfAnotherImported_GoesOnWithTheirDataAndStoresNothingYet) {
  nota(rosa("12345678-Z"), "Enferma");
  persona("Otra", "Gil", "Mas");
  const std::string antes = censo();
  altaPersona([&](FormDriver& u) {
    poner(u, MINIMO);
    u.tab(MST, P::TAB_NOTAS);
    contesta("frmPadronNotas", "cmdPadronNota(0)", "txtTitulo", "De Elena");
    u.click("cmdNotas(0)");
    u.tab(MST, P::TAB_DATOS);
    conDNI(u);
    contesta("frmMensaje", "cmdMensaje(1)");
    u.click(ACEPTAR);
    EXPECT_EQ(u.caption(), "Propiedades del empadronado Rosa Gil Mas");
    EXPECT_EQ(u.text(t(P::Nombre)) + columna(u, "msgNotas"), "RosaEnferma");
    EXPECT_EQ(u.focused(), t(P::Nombre));
    EXPECT_FALSE(u.visible(BUSCAR));
    EXPECT_EQ(censo(), antes);
    // Their own number is not another's.
    poner(u, t(P::Nombre), "Rosa María", t(P::LetraNIF), "Z", t(P::Direccion), "Plaza, 1");
    u.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT IDPadron,Nombre,DNI FROM Padron"), "1|Rosa María|12345678-Z/2|Otra|");
  EXPECT_EQ(count("Padron_NotasPersonales"), 1);
}

TEST_F(Personas, ImportFailsAnywhere_NeverMixesTwoPersons) {
  ejecutar("UPDATE Padron SET CodMunicipio=1 WHERE IDPadron=" + texto(rosa("12345678-Z")));
  const std::string antes = censo();
  user.answerAnything(Answer::Ok);
  bool fallado = true;
  for (int n = 1; fallado; ++n)
    altaPersona([&](FormDriver& u) {
      conDNI(u);
      espera("frmMensaje", [&](FormDriver& m) {
        fallos().failOn("", store::ErrorKind::Other, n);
        m.click("cmdMensaje(1)");
      });
      u.focus(t(P::Direccion));
      fallado = fallos().pending() == 0;
      fallos().clear();
      if (u.closed()) return;
      EXPECT_EQ(u.text(t(P::Nombre)), fallado ? "Elena" : "Rosa") << n;
      EXPECT_EQ(u.caption() == "Agregar empadronado", fallado) << n;
      u.click("cmdPadron(1)");
    });
  EXPECT_GT(user.messages().size(), 10u);
  EXPECT_EQ(censo(), antes);
}

TEST_F(Personas, ValuesOfAnotherForm_StayUntilTheyAreChanged) {
  const auto caso = [&](const std::string& dni, const char* cifras, const char* letra) {
    const std::string de = " FROM Padron WHERE IDPadron=" + texto(rosa(dni.c_str()));
    ejecutar("UPDATE Padron SET Sexo='V' WHERE Sexo=''");
    editaPersona(static_cast<std::int32_t>(count("Padron")), [&](FormDriver& u) {
      comprobar(u, t(P::NIF), cifras, t(P::LetraNIF), letra, l(P::Sexo), "");
      for (const P::Texto campo : {P::NIF, P::LetraNIF}) u.focus(t(campo));
      u.click(ACEPTAR);
    });
    EXPECT_EQ(filas("SELECT DNI,Sexo" + de), dni + "|V");
    editaPersona(static_cast<std::int32_t>(count("Padron")),
                 pone(ACEPTAR, t(P::NIF), "1", t(P::LetraNIF), "R", l(P::Sexo), "Mujer"));
    EXPECT_EQ(filas("SELECT DNI,Sexo" + de), "00000001-R|Mujer");
    ejecutar("UPDATE Padron SET DNI=''");
  };
  caso("-A", "", "");
  caso("12345678Z", "1234567", "Z");
  caso("X1234567-L", "X1234567", "L");
}

TEST_F(Personas, CollaboratorOrWithoutRowsAccepted_GainsWhatIsMissingAndKeepsTheRest) {
  rosa("", {COLABORADOR});
  ejecutar("UPDATE Padron SET Cumpleaños='15/03',AñoNacimiento='1970'");
  editaPersona(1, pone(ACEPTAR));
  EXPECT_EQ(filas("SELECT Cumpleaños,AñoNacimiento FROM Padron"), "15/03|1970");
  EXPECT_EQ(satelite("TipoPersona", 1), "1|2/1|3");
  for (const char* tabla : {"Nacimiento", "Bautismo", "Comunion", "Confirmacion", "Matrimonio",
                            "Defuncion", "TipoPersona"})
    quitar(std::string("Padron_") + tabla);
  editaPersona(1, pone(ACEPTAR, t(P::ParroquiaCom), "San Blas"));
  EXPECT_EQ(satelite("Comunion", 1) + satelite("TipoPersona", 1), "1||San Blas1|2");
  EXPECT_EQ(satelite("Nacimiento", 1) + satelite("Matrimonio", 1), "1||0||1||0||");
  EXPECT_EQ(filas("SELECT ImporteEur,Importe FROM Padron_Defuncion"), "0,00|0");
}

TEST_F(Personas, Notes_AreListedInShortAndOnlyAChosenOneIsChangedOrRemoved) {
  nota(rosa(), "Vieja", "Primera línea\r\nSegunda");
  nota(1, "Otra", std::string(150, 'x'));
  editaPersona(1, [&](FormDriver& u) {
    auto& rejilla = u.get<forms::Grid>("msgNotas");
    u.tab(MST, P::TAB_NOTAS);
    EXPECT_EQ(celdas(u, "msgNotas", 0), "Nombre|Descripción");
    EXPECT_EQ(columna(u, "msgNotas", 1),
              "Primera línea Segunda|" + std::string(100, 'x') + " ... ");
    for (const int boton : {1, 2}) u.click(control("cmdNotas", boton));
    EXPECT_EQ(user.beeps(), 2) << "no row is chosen";
    contesta("frmPadronNotas", ACEPTAR_NOTA, "txtTitulo", "Pasajera");
    u.click("cmdNotas(0)");
    espera("frmPadronNotas", [&](FormDriver& n) {
      EXPECT_EQ(n.caption(), "Agregar nota personal");
      poner(n, "txtTitulo", "   ");
      rehusa(n, ACEPTAR_NOTA, "¡Debe introducir un título para la nota personal!", "txtTitulo");
      for (const char* otra : {"VIEJA", "pasajera"}) {
        poner(n, "txtTitulo", otra);
        rehusa(n, ACEPTAR_NOTA, "¡Existe una nota personal con el mismo nombre!", "txtTitulo");
      }
      poner(n, "txtTitulo", "Nueva", "txtDescripcion", "Dos\nlíneas");
      n.click(ACEPTAR_NOTA);
    });
    u.click("cmdNotas(0)");
    u.row("msgNotas", 3);
    u.click("cmdNotas(2)");
    contesta("frmPadronNotas", ACEPTAR_NOTA, "txtTitulo", "Pasajera");  // which is free again
    u.click("cmdNotas(0)");
    espera("frmPadronNotas", [](FormDriver& n) {
      EXPECT_EQ(n.caption(), "Propiedades nota personal Otra");
      poner(n, "txtTitulo", "Cambiada");
      n.ctrlEnter();
    });
    u.doubleClick("msgNotas", 2);
    EXPECT_EQ(columna(u, "msgNotas"), "Vieja|Cambiada|Nueva|Pasajera");
    EXPECT_EQ(rejilla.row(), 2) << "the row stays chosen";
    u.click(ACEPTAR);
  });
  EXPECT_EQ(filas("SELECT IDNota,Nombre FROM Padron_NotasPersonales"),
            "1|Vieja/2|Cambiada/3|Nueva/4|Pasajera");
  EXPECT_EQ(value("SELECT Descripcion FROM Padron_NotasPersonales WHERE IDNota=3"),
            "Dos\r\nlíneas");
}

}  // namespace fidaleon::tests::PersonaTest
