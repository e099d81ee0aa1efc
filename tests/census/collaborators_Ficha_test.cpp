#include "census/collaborators/frmColaborador.h"
#include "collaborators_World.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using forms::FormDriver;
using store::FailingEngine;
using C = frmColaborador;

std::string aviso(const std::string& cumpleaños) {
  return "«" + cumpleaños + "» no es un día del año. Escriba el cumpleaños como día/mes: 03/05.";
}

TEST(FrmColaborador, NewPerson_IsStoredWithEveryFieldAndARowInEachTable) {
  ColaboradorWorld w;
  const std::int32_t madrid = w.municipio("Madrid", "Madrid");
  const std::int32_t avila = w.municipio("Arévalo", "Ávila");
  w.nuevo([&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Agregar colaborador");
    EXPECT_EQ(u.focused(), texto(C::Nombre));
    ponerNombre(u, "Ana \"Anita\"");
    u.type(texto(C::Direccion), "Arenal, 13");
    u.choose("cboColaborador(0)", "Madrid");
    u.choose("cboColaborador(1)", "Madrid");
    u.type(texto(C::CPostal), "28x0131");
    u.type(texto(C::Telefono), "91 555-01.01");
    u.type(texto(C::Telefono2), "600100200");
    u.type(texto(C::CorreoElectronico), "Ana.GIL@Correo.ES");
    u.type(texto(C::ProfesionColegio), "Maestra");
    u.type(texto(C::Comentarios), "Canta\nbien");
    u.tab("mstColaborador", C::TAB_NACIMIENTO);
    u.type(texto(C::Cumpleaños), "2902");
    u.type(texto(C::AñoNacimiento), "1996");
    u.type(texto(C::NombrePadre), "Luis");
    u.type(texto(C::NombreMadre), "Rosa");
    u.tab("mstColaborador", C::TAB_BAUTISMO);
    u.type("adtpFechaBautizo", "10/04/1996");
    u.type(texto(C::ParroquiaBaut), "San Juan");
    u.type(texto(C::DireccionParrBaut), "Plaza, 1");
    u.choose("cboColaborador(2)", "Ávila");
    u.choose("cboColaborador(3)", "Arévalo");
    u.tab("mstColaborador", C::TAB_OBSERVACIONES);
    u.type(texto(C::Observaciones), "Ninguna");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  const std::pair<const char*, std::string> PADRON[] = {{"Nombre", "Ana ''Anita''"},
                                                        {"PrimerApellido", "Gil"},
                                                        {"SegundoApellido", "Sanz"},
                                                        {"Direccion", "Arenal, 13"},
                                                        {"CodMunicipio", std::to_string(madrid)},
                                                        {"CPostal", "28013"},
                                                        {"Telefono", "915550101"},
                                                        {"Telefono2", "600100200"},
                                                        {"CorreoElectronico", "ana.gil@correo.es"},
                                                        {"[Profesion/Colegio]", "Maestra"},
                                                        {"Comentarios", "Canta\r\nbien"},
                                                        {"Observaciones", "Ninguna"},
                                                        {"Cumpleaños", "29/02"},
                                                        {"AñoNacimiento", "1996"},
                                                        {"DNI", ""},
                                                        {"CodInstitucionEmpadronado", "0"}};
  for (const auto& [columna, valor] : PADRON)
    EXPECT_EQ(w.columna("Padron", columna, 1), valor) << columna;
  EXPECT_EQ(w.columna("Padron_Nacimiento", "FechaNacimiento", 1), "19960229");
  EXPECT_EQ(w.columna("Padron_Nacimiento", "NombrePadre", 1), "Luis");
  EXPECT_EQ(w.columna("Padron_Nacimiento", "NombreMadre", 1), "Rosa");
  EXPECT_EQ(w.columna("Padron_Bautismo", "FechaBautizo", 1), "19960410");
  EXPECT_EQ(w.columna("Padron_Bautismo", "CodMunicipioParrBaut", 1), std::to_string(avila));
  EXPECT_EQ(w.columna("Padron_Bautismo", "ParroquiaBaut", 1), "San Juan");
  EXPECT_EQ(w.columna("Padron_Bautismo", "DireccionParrBaut", 1), "Plaza, 1");
  for (const char* tabla : {"Padron_Nacimiento", "Padron_Bautismo", "Padron_Comunion",
                            "Padron_Confirmacion", "Padron_Matrimonio", "Padron_Defuncion"})
    EXPECT_EQ(w.count(w.de(tabla, 1)), 1) << tabla;
  EXPECT_EQ(w.columna("Padron_Defuncion", "Importe", 1), "0");
  EXPECT_EQ(w.count("Padron_Defuncion WHERE ImporteEur IS NULL"), 1);
  EXPECT_EQ(w.columna("Padron_TipoPersona", "CodTipoPersona", 1), "3");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, NameMissing_IsRefusedPartByPartOnTheFirstTab) {
  ColaboradorWorld w;
  const std::pair<C::Texto, const char*> PARTES[] = {
      {C::Nombre, "¡Debe insertar nombre del colaborador!"},
      {C::PrimerApellido, "¡Debe insertar el primer apellido del colaborador!"},
      {C::SegundoApellido, "¡Debe insertar el segundo apellido del colaborador!"}};
  w.nuevo([&](FormDriver& u) {
    for (const auto& [campo, mensaje] : PARTES) {
      u.tab("mstColaborador", C::TAB_ACTIVIDADES);
      w.user.expectMessage(mensaje);
      u.click(ACEPTAR);
      EXPECT_EQ(u.focused(), texto(campo));
      EXPECT_EQ(u.get<forms::TabStrip>("mstColaborador").tab(), C::TAB_DATOS);
      u.type(texto(campo), "   ");
      w.user.expectMessage(mensaje);
      u.click(ACEPTAR);
      u.type(texto(campo), "Ana");
    }
    u.close();
  });
  EXPECT_EQ(w.user.beeps(), 6);
  EXPECT_EQ(w.count("Padron"), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, BirthdayAndYearThatMakeNoDate_AreRefusedAtAcceptance) {
  ColaboradorWorld w;
  w.nuevo([&](FormDriver& u) {
    ponerNombre(u);
    u.tab("mstColaborador", C::TAB_NACIMIENTO);
    u.type(texto(C::Cumpleaños), "3");
    w.user.expectMessage(aviso("3"));
    u.click(ACEPTAR);
    EXPECT_EQ(u.focused(), texto(C::Cumpleaños));
    u.type(texto(C::Cumpleaños), "2902");
    u.type(texto(C::AñoNacimiento), "2003");
    u.tab("mstColaborador", C::TAB_DATOS);
    w.user.expectMessage("¡El 29/02/2003 no existe! Revise el cumpleaños o el año de nacimiento.");
    u.click(ACEPTAR);
    EXPECT_EQ(u.focused(), texto(C::AñoNacimiento));
    u.type(texto(C::AñoNacimiento), "75");
    w.user.expectMessage("¡El año de nacimiento debe tener cuatro cifras!");
    u.click(ACEPTAR);
    u.type(texto(C::AñoNacimiento), "");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(w.columna("Padron", "Cumpleaños", 1), "29/02");
  EXPECT_EQ(w.columna("Padron_Nacimiento", "FechaNacimiento", 1), "");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, FailureHalfWay_KeepsTheDialogAndAcceptingAgainStoresOnce) {
  for (const char* sentencia :
       {"INSERT INTO Padron (", "SELECT MAX(", "INSERT INTO Padron_Nacimiento",
        "INSERT INTO Padron_Bautismo", "INSERT INTO Padron_Comunion",
        "INSERT INTO Padron_Defuncion", "FROM Tipo_Persona", "INSERT INTO Padron_TipoPersona",
        "INSERT INTO Padron_Actividad", "COMMIT"}) {
    ColaboradorWorld w;
    FailingEngine* fallos = FailingEngine::wrap(w.con());
    w.nuevo([&](FormDriver& u) {
      ponerNombre(u);
      u.tab("mstColaborador", C::TAB_ACTIVIDADES);
      w.user.expectForm("frmColaboradorActividad", [&](FormDriver& a) {
        a.chooseData("cboColaboraAct(0)", w.catequesis);
        a.chooseData("cboColaboraAct(1)", w.lunes);
        a.chooseData("cboColaboraAct(2)", w.catequista);
        a.click("cmdColaboraAct(0)");
      });
      u.click(AGREGAR);
      fallos->failOn(sentencia, store::ErrorKind::DiskFull);
      w.user.answerAnything(forms::Answer::Ok);
      u.click(ACEPTAR);
      EXPECT_EQ(w.user.messages().size(), 1u) << sentencia;
      ASSERT_FALSE(u.closed()) << sentencia;
      EXPECT_EQ(fallos->pending(), 0u) << sentencia;
      EXPECT_EQ(w.count("Padron"), 0) << sentencia;
      u.tab("mstColaborador", C::TAB_DATOS);
      EXPECT_EQ(u.text(texto(C::SegundoApellido)), "Sanz");
      u.click(ACEPTAR);
      EXPECT_TRUE(u.closed()) << sentencia;
    });
    EXPECT_EQ(w.count("Padron"), 1) << sentencia;
    EXPECT_EQ(w.count("Padron_TipoPersona"), 1) << sentencia;
    EXPECT_EQ(w.count("Padron_Actividad"), 1) << sentencia;
    EXPECT_EQ(w.user.hourglassDepth(), 0);
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FrmColaborador, CensusPersonAccepted_GainsTheRoleAndKeepsTheirData) {
  ColaboradorWorld w;
  const std::int32_t id = w.persona("Eva", "Ríos", "Mora", "12345678-Z");
  w.con().Execute("UPDATE Padron SET [Profesion/Colegio]=\"Médica\", Sexo=\"Mujer\"");
  w.edita(id, [&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Propiedades del colaborador Eva Ríos Mora");
    EXPECT_EQ(u.text(texto(C::ProfesionColegio)), "Médica");
    EXPECT_EQ(u.text(texto(C::CPostal)), "28013");
    u.tab("mstColaborador", C::TAB_NACIMIENTO);
    EXPECT_EQ(u.text(texto(C::NombrePadre)), "Luis");
    u.type(texto(C::Cumpleaños), "0305");
    u.tab("mstColaborador", C::TAB_BAUTISMO);
    EXPECT_EQ(u.text("adtpFechaBautizo"), "10/04/1970");
    u.type(texto(C::ParroquiaBaut), "San Juan");
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", id) + " AND CodTipoPersona=3"), 1);
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", id)), 2);
  EXPECT_EQ(w.columna("Padron", "DNI", id), "12345678-Z");
  EXPECT_EQ(w.columna("Padron", "Sexo", id), "Mujer");
  EXPECT_EQ(w.columna("Padron", "Cumpleaños", id), "03/05");
  EXPECT_EQ(w.columna("Padron_Nacimiento", "FechaNacimiento", id), "19700315");
  EXPECT_EQ(w.columna("Padron_Bautismo", "ParroquiaBaut", id), "San Juan");
  EXPECT_EQ(w.columna("Padron_Comunion", "AñoComunion", id), "1979");
  w.edita(id, [](FormDriver& u) { u.click(ACEPTAR); });
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", id)), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, BirthDate_FollowsBirthdayAndYear) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  const auto cambiar = [&](const char* cumpleaños, const char* año) {
    w.edita(id, [&](FormDriver& u) {
      u.tab("mstColaborador", C::TAB_NACIMIENTO);
      u.type(texto(C::Cumpleaños), cumpleaños);
      u.type(texto(C::AñoNacimiento), año);
      u.click(ACEPTAR);
    });
    return w.columna("Padron_Nacimiento", "FechaNacimiento", id);
  };
  EXPECT_EQ(cambiar("0305", "1971"), "19710503");
  EXPECT_EQ(cambiar("0405", "1971"), "19710504");
  // Put right in the census meanwhile: nobody has touched it here.
  w.con().Execute("UPDATE Padron_Nacimiento SET FechaNacimiento='19710604'");
  EXPECT_EQ(cambiar("0405", "1971"), "19710604");
  EXPECT_EQ(cambiar("0405", ""), "19710604");
  EXPECT_EQ(cambiar("0405", "1971"), "19710504");
  EXPECT_EQ(cambiar("0405", ""), "");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, OddOldValues_SurviveAnAcceptanceThatDoesNotTouchThem) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  w.con().Execute("UPDATE Padron SET Cumpleaños='mayo', AñoNacimiento='70'");
  w.con().Execute("UPDATE Padron_Bautismo SET FechaBautizo='1970'");
  w.edita(id, [](FormDriver& u) {
    u.type(texto(C::Direccion), "Otra, 1");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(w.columna("Padron", "Direccion", id), "Otra, 1");
  EXPECT_EQ(w.columna("Padron", "Cumpleaños", id), "mayo");
  EXPECT_EQ(w.columna("Padron", "AñoNacimiento", id), "70");
  EXPECT_EQ(w.columna("Padron_Nacimiento", "FechaNacimiento", id), "19700315");
  EXPECT_EQ(w.columna("Padron_Bautismo", "FechaBautizo", id), "1970");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, SatelliteRowsMissing_AreAddedWithWhatWasTyped) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  w.con().Execute("DELETE * FROM Padron_Nacimiento");
  w.con().Execute("DELETE * FROM Padron_Bautismo");
  w.edita(id, [](FormDriver& u) {
    u.tab("mstColaborador", C::TAB_NACIMIENTO);
    u.type(texto(C::NombreMadre), "Rosa");
    u.tab("mstColaborador", C::TAB_BAUTISMO);
    u.type(texto(C::ParroquiaBaut), "San Juan");
    u.click(ACEPTAR);
  });
  EXPECT_EQ(w.columna("Padron_Nacimiento", "NombreMadre", id), "Rosa");
  EXPECT_EQ(w.columna("Padron_Bautismo", "ParroquiaBaut", id), "San Juan");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, LoadingFails_NothingOpensAndNothingIsOverwritten) {
  for (const char* sentencia :
       {"SELECT * FROM Padron WHERE", "SELECT * FROM Padron_Bautismo", "SELECT DISTINCT"}) {
    ColaboradorWorld w;
    const std::int32_t id = w.colaborador();
    FailingEngine* fallos = FailingEngine::wrap(w.con());
    fallos->failOn(sentencia);
    w.user.answerAnything(forms::Answer::Ok);
    censo::EditaColaborador(w.contexto, w.con(), id);
    EXPECT_EQ(w.user.messages().size(), 1u) << sentencia;
    EXPECT_TRUE(w.libre("Padron"));
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(FrmColaborador, TownsCannotBeRead_NothingOpensAndTheTownStays) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  const std::string pueblo = std::to_string(w.municipio("Arévalo", "Ávila"));
  w.con().Execute("UPDATE Padron SET CodMunicipio=" + pueblo);
  FailingEngine::wrap(w.con())->failOn("FROM Municipio WHERE CodProvincia");
  w.user.answerAnything(forms::Answer::Ok);
  w.user.expectForm("frmColaborador", [](FormDriver& u) { u.click(ACEPTAR); });
  censo::EditaColaborador(w.contexto, w.con(), id);
  EXPECT_EQ(w.columna("Padron", "CodMunicipio", id), pueblo);
}

TEST(FrmColaborador, AcceptedTwiceUnderAnotherTypeNumber_HasTheRoleOnce) {
  ColaboradorWorld w;
  const std::int32_t id = w.persona("Eva", "Ríos", "Mora");
  w.con().Execute("UPDATE Tipo_Persona SET IDTipoPersona=7 WHERE Nombre='Colaborador'");
  for (int vez = 0; vez < 2; ++vez) w.edita(id, [](FormDriver& u) { u.click(ACEPTAR); });
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", id) + " AND CodTipoPersona=3"), 1);
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", id)), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, EditFails_LeavesTheStoredPersonAndTheTypedTexts) {
  ColaboradorWorld w;
  const std::int32_t id = w.colaborador();
  FailingEngine* fallos = FailingEngine::wrap(w.con());
  fallos->failOn("UPDATE Padron_Bautismo");
  w.edita(id, [&](FormDriver& u) {
    w.user.answerAnything(forms::Answer::Ok);
    u.type(texto(C::Direccion), "Otra, 1");
    u.click(ACEPTAR);
    ASSERT_EQ(w.user.messages().size(), 1u);
    EXPECT_THAT(w.user.messages()[0].text, ::testing::HasSubstr("EditarColaborador"));
    EXPECT_EQ(w.columna("Padron", "Direccion", id), "Calle Mayor, 3");
    EXPECT_EQ(u.text(texto(C::Direccion)), "Otra, 1");
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_EQ(w.columna("Padron", "Direccion", id), "Otra, 1");
  EXPECT_SCRIPT_DONE(w.user);
}

/// Notes whether the store is still held while a message waits for its answer.
struct Vigilante : forms::ScriptedUser {
  forms::Answer showMessage(const forms::Message& mensaje) override {
    retenido = conexion->inTransaction();
    return ScriptedUser::showMessage(mensaje);
  }
  store::Connection* conexion = nullptr;
  bool retenido = true;
};

TEST(FrmColaborador, FailureIsTold_WhenOthersCanWriteAgain) {
  ColaboradorWorld w;
  Vigilante usuario;
  usuario.conexion = &w.con();
  support::HostSupport apoyo{usuario, w.settings, w.clock, w.config, "DESPACHO"};
  Entorno entorno{usuario, apoyo, w.settings, w.clock, w.entorno.installation};
  Contexto contexto(entorno);
  contexto.gobjConfig = &w.config;
  FailingEngine::wrap(w.con())->failOn("INSERT INTO Padron_Bautismo");
  usuario.expectForm("frmColaborador", [&](FormDriver& u) {
    ponerNombre(u);
    usuario.answerAnything(forms::Answer::Ok);
    u.click(ACEPTAR);
    EXPECT_EQ(usuario.messages().size(), 1u);
    EXPECT_FALSE(usuario.retenido);
    u.close();
  });
  censo::NuevoColaborador(contexto, w.con());
  EXPECT_SCRIPT_DONE(usuario);
}

TEST(FrmColaborador, SameNameInTheCensus_ChosenIsOpenedInsteadOfANewOne) {
  ColaboradorWorld w;
  const std::int32_t id = w.persona("Ana", "Gil", "Sanz");
  w.con().Execute("UPDATE Padron SET Direccion=\"La suya, 2\"");
  w.user.expectForm("frmColaborador", [&](FormDriver& u) {
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& b) { b.click("cmdBotones(1)"); });
    w.user.expectForm("frmColaborador", [](FormDriver& e) {
      EXPECT_EQ(e.caption(), "Propiedades del colaborador Ana Gil Sanz");
      EXPECT_EQ(e.text(texto(C::Direccion)), "La suya, 2");
      e.click(ACEPTAR);
    });
    ponerNombre(u);
    u.click(ACEPTAR);
    EXPECT_TRUE(u.closed());
  });
  censo::NuevoColaborador(w.contexto, w.con());
  EXPECT_EQ(w.count("Padron"), 1);
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", id)), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, NameLeftForCancel_IsNotLookedFor) {
  ColaboradorWorld w;
  w.persona("Ana", "Gil", "Sanz");
  w.nuevo([](FormDriver& u) {
    ponerNombre(u);
    u.click(CANCELAR);
    EXPECT_TRUE(u.closed());
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, NameChangedWhileEditing_ShowsTheOthersButCannotTakeThem) {
  ColaboradorWorld w;
  w.persona("Ana", "Gil", "Sanz");
  const std::int32_t id = w.colaborador("Eva");
  w.edita(id, [&](FormDriver& u) {
    u.focus(texto(C::Nombre));
    u.focus(texto(C::Direccion));
    w.user.expectForm("frmPadronBusqueda", [](FormDriver& b) {
      EXPECT_EQ(b.get<forms::Grid>("msgBusquedaPadron").rowCount(), 1);
      EXPECT_FALSE(b.enabled("cmdBotones(1)"));
      b.close();
    });
    u.type(texto(C::Nombre), "Ana");
    u.focus(texto(C::Direccion));
    u.type(texto(C::Nombre), "Eva");
    u.focus(texto(C::Direccion));
    EXPECT_FALSE(u.closed());
    u.close();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, ImportedWhileAdding_IsOpenedAndWhileEditingOnlyShown) {
  ColaboradorWorld w;
  const std::int32_t id = w.persona("Eva", "Ríos", "Mora");
  const auto buscar = [&](bool seleccionar) {
    w.user.expectForm("frmPadronImportar", [&w, seleccionar](FormDriver& i) {
      EXPECT_FALSE(i.enabled("txtDNI"));
      w.user.expectForm("frmPadronBusqueda", [seleccionar](FormDriver& b) {
        EXPECT_EQ(b.enabled("cmdBotones(1)"), seleccionar);
        seleccionar ? b.click("cmdBotones(1)") : b.close();
      });
      i.type("txtNombre", "Eva");
      i.click("cmdPadronImportar(0)");
    });
  };
  w.user.expectForm("frmColaborador", [&](FormDriver& u) {
    buscar(true);
    u.click(IMPORTAR);
    EXPECT_TRUE(u.closed());
    w.user.expectForm("frmColaborador", [&](FormDriver& e) {
      EXPECT_EQ(e.caption(), "Propiedades del colaborador Eva Ríos Mora");
      buscar(false);
      e.click(IMPORTAR);
      EXPECT_FALSE(e.closed());
      e.close();
    });
  });
  censo::NuevoColaborador(w.contexto, w.con());
  EXPECT_EQ(w.count(w.de("Padron_TipoPersona", id)), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmColaborador, ProvinceAdded_CanBeChosenAndTheChoiceStays) {
  ColaboradorWorld w;
  w.municipio("Madrid", "Madrid");
  w.nuevo([&](FormDriver& u) {
    u.choose("cboColaborador(0)", "Madrid");
    u.choose("cboColaborador(1)", "Madrid");
    w.user.expectForm("frmProvincia", [](FormDriver& p) {
      p.type(p.focused(), "Andorra");
      p.enter();
    });
    u.click("cmdAgregarProvincia(0)");
    EXPECT_EQ(u.text("cboColaborador(1)"), "Madrid");
    u.tab("mstColaborador", C::TAB_BAUTISMO);
    u.choose("cboColaborador(2)", "Andorra");
    u.close();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
