// The dialog of an activity: what it accepts and what is stored.

#include "ActividadesWorld.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// The statements that change something or read a key back, from the last BEGIN on.
std::vector<std::string> escrituras(const store::FailingEngine& engine) {
  std::vector<std::string> todas;
  for (const std::string& s : engine.executed()) {
    if (s == "BEGIN") todas.clear();
    const bool lee = s.starts_with("SELECT") && s.find("MAX(") == std::string::npos;
    if (!lee) todas.push_back(s);
  }
  return todas;
}

TEST(Actividad, New_StoresGroupsAndMembersInOneTransaction) {
  ActividadesWorld w;
  auto* engine = store::FailingEngine::wrap(w.con());
  w.nueva([&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Agregar actividad");
    w.user.expectMessage("¡Debe seleccionar una Institución!");
    d.tab("mstActividad", 1);
    EXPECT_EQ(d.get<forms::TabStrip>("mstActividad").tab(), 0);
    d.type(w.NOMBRE, "  Coro ");
    d.type("txtActividad(1)", "Los \"domingos\"");
    d.choose("cboInstitucion", "San Ginés");
    w.abrirGrupo(d, 0, [&](FormDriver& g) {
      EXPECT_EQ(g.caption(), "Agregar grupo");
      for (const auto& [campo, texto] :
           std::vector<std::pair<std::string, std::string>>{{"txtGrupo(0)", "Adultos"},
                                                            {"txtGrupo(1)", "2026"},
                                                            {"txtGrupo(2)", "Jueves"},
                                                            {"txtGrupo(3)", "20:00"},
                                                            {"txtGrupo(4)", "Salón"},
                                                            {"txtGrupo(5)", "Voces"}})
        g.type(campo, texto);
      w.elegir(g, {0, 2}, "Monitor");
      g.click(w.ACEPTAR_GRUPO);
    });
    w.grupoNuevo(d, "Sobrante");
    w.grupoNuevo(d, "Niños");
    d.row("msgGrupos", 2);
    d.click(w.QUITAR);
    EXPECT_THAT(w.nombres(d), ElementsAre("Adultos", "Niños"));
    EXPECT_EQ(d.get<forms::Grid>("msgGrupos").cell(1, 4), "Salón");
    EXPECT_EQ(w.count("Grupo"), 2) << "nothing is stored before";
    d.click(w.ACEPTAR);
  });
  const std::string grupo =
      "INSERT INTO Grupo (CodActividad,Nombre,Año,Dia,Hora,Sala,Comentarios ) VALUES "
      "(?,?,?,?,?,?,?)";
  const std::string miembro =
      "INSERT INTO Padron_Actividad (CodPadron,CodGrupo,CodCargo ) VALUES (?,?,?)";
  const std::string claveGrupo = "SELECT MAX(IDGrupo) as IDGrupo FROM Grupo";
  EXPECT_THAT(escrituras(*engine),
              ElementsAre("BEGIN",
                          "INSERT INTO Actividad (Nombre,Descripcion,CodInstitucion ) VALUES "
                          "(?,?,?)",
                          "SELECT MAX(IDActividad) as IDActividad FROM Actividad", grupo,
                          claveGrupo, miembro, miembro, grupo, claveGrupo, "COMMIT"));
  EXPECT_EQ(w.count("Actividad WHERE Nombre=\"Coro\" AND Descripcion=\"Los ''domingos''\" AND "
                    "CodInstitucion=" +
                    std::to_string(w.parroquia)),
            1);
  EXPECT_EQ(w.count("Grupo, Actividad WHERE CodActividad=IDActividad AND Actividad.Nombre='Coro' "
                    "AND Grupo.Nombre='Adultos' AND Año='2026' AND Dia='Jueves' AND Hora='20:00' "
                    "AND Sala='Salón' AND Comentarios='Voces'"),
            1);
  EXPECT_THAT(w.membresias(), ElementsAre("Primero: Ana Catequista", "Primero: Blas Catequista",
                                          "Adultos: Ana Monitor", "Adultos: Carmen Monitor"));
  EXPECT_EQ(w.count("Grupo"), 4);
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Actividad, Acceptance_RefusesWithoutNameInstitutionOrWithANameThatIsTaken) {
  ActividadesWorld w;
  w.actividad("Coro", w.institucion("Santa Ana"));
  w.nueva([&](FormDriver& d) {
    w.user.expectMessage("¡Debe introducir el nombre de la actividad!");
    d.type(w.NOMBRE, "   ");
    d.click(w.ACEPTAR);
    EXPECT_EQ(d.focused(), w.NOMBRE);
    d.type(w.NOMBRE, "catequesis");
    w.user.expectMessage("¡Debe seleccionar una Institución!");
    d.click(w.ACEPTAR);
    EXPECT_EQ(d.focused(), "cboInstitucion");
    d.choose("cboInstitucion", "San Ginés");
    d.tab("mstActividad", 1);
    w.user.expectMessage("¡Ya existe una actividad en la Institución con este nombre!");
    d.click(w.ACEPTAR);
    EXPECT_EQ(d.focused(), w.NOMBRE) << "the tab of the name comes to the front";
    d.type(w.NOMBRE, "Coro");
    d.click(w.ACEPTAR);
    EXPECT_TRUE(d.closed());
  });
  EXPECT_EQ(w.user.beeps(), 3);
  w.editar([&](FormDriver& d) {
    w.user.expectMessage("¡Ya existe una actividad en la Institución con este nombre!");
    d.type(w.NOMBRE, "Coro");
    d.click(w.ACEPTAR);
    d.type(w.NOMBRE, "CATEQUESIS");
    d.click(w.ACEPTAR);
    EXPECT_TRUE(d.closed()) << "its own name is not another's";
  });
  EXPECT_EQ(w.count("Actividad"), 3);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Actividad, Edited_WritesWhatTheGroupsAreMarkedForAndNoMore) {
  ActividadesWorld w;
  const std::int32_t tercero = w.grupo(w.catequesis, "Tercero");
  w.miembro(w.carmen, tercero, w.monitor);
  auto* engine = store::FailingEngine::wrap(w.con());
  w.editar([&](FormDriver& d) {
    EXPECT_EQ(d.caption(), "Propiedades de la actividad Catequesis");
    EXPECT_EQ(d.text("cboInstitucion"), "San Ginés");
    w.abrirGrupo(d, 1, [&](FormDriver& g) {
      EXPECT_EQ(g.caption(), "Propiedades del grupo Primero");
      g.type("txtGrupo(4)", "Cripta");
      w.quitar(g, {0});             // Ana
      w.elegir(g, {1}, "Monitor");  // Carmen
      g.click(w.ACEPTAR_GRUPO);
    });
    d.row("msgGrupos", 3);
    d.click(w.QUITAR);
    w.grupoNuevo(d, "Cuarto");
    w.abrirGrupo(d, 3, [&](FormDriver& g) {
      g.type("txtGrupo(2)", "Lunes");
      g.click(w.ACEPTAR_GRUPO);
    });
    EXPECT_THAT(w.nombres(d), ElementsAre("Primero", "Segundo", "Cuarto"));
    d.tab("mstActividad", 0);
    d.type("txtActividad(1)", "Los niños");
    d.click(w.ACEPTAR);
  });
  EXPECT_THAT(
      escrituras(*engine),
      ElementsAre("BEGIN",
                  "UPDATE Actividad SET Nombre=?,Descripcion=?,CodInstitucion=? WHERE "
                  "IDActividad=?",
                  "UPDATE Grupo SET Nombre=?, Año=?,Dia=?,Hora=?,Sala=?,Comentarios=? WHERE "
                  "IDGrupo=?",
                  "DELETE * FROM Padron_Actividad WHERE CodPadron=? AND CodGrupo=?",
                  "INSERT INTO Padron_Actividad (CodPadron,CodGrupo,CodCargo ) VALUES (?,?,?)",
                  "DELETE * FROM Padron_Actividad WHERE CodGrupo=?",
                  "DELETE * FROM Grupo WHERE IDGrupo=?",
                  "INSERT INTO Grupo (CodActividad,Nombre,Año,Dia,Hora,Sala,Comentarios ) VALUES "
                  "(?,?,?,?,?,?,?)",
                  "SELECT MAX(IDGrupo) as IDGrupo FROM Grupo", "COMMIT"));
  EXPECT_THAT(w.membresias(), ElementsAre("Primero: Blas Catequista", "Primero: Carmen Monitor"));
  EXPECT_EQ(w.value("SELECT Sala FROM Grupo WHERE IDGrupo=" + std::to_string(w.primero)), "Cripta");
  EXPECT_EQ(w.count("Grupo WHERE Nombre='Cuarto' AND Dia='Lunes'"), 1);
  EXPECT_EQ(w.value("SELECT Descripcion FROM Actividad"), "Los niños");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Actividad, FailureHalfWay_LeavesTheStoreAndTheDialogAsTheyWereAndCanBeTriedAgain) {
  for (const bool esNueva : {true, false}) {
    ActividadesWorld w;
    auto* faults = store::FailingEngine::wrap(w.con());
    const auto act = [&](FormDriver& d) {
      d.type(w.NOMBRE, "Teatro");
      d.choose("cboInstitucion", "San Ginés");
      w.abrirGrupo(d, 0, [&](FormDriver& g) {
        g.type(w.NOMBRE_GRUPO, "Jóvenes");
        w.elegir(g, {1, 2}, "Monitor");
        g.click(w.ACEPTAR_GRUPO);
      });
      w.user.answerAnything(Answer::Ok);
      faults->failOn("INSERT INTO Padron_Actividad", store::ErrorKind::DiskFull, 2);
      d.click(w.ACEPTAR);
      EXPECT_THAT(w.user.messages().back().text,
                  HasSubstr(esNueva ? "AgregarActividad" : "EditarActividad"));
      EXPECT_FALSE(d.closed());
      EXPECT_EQ(d.text(w.NOMBRE), "Teatro");
      EXPECT_EQ(w.count("Actividad WHERE Nombre='Teatro'"), 0);
      EXPECT_EQ(w.count("Grupo"), 2);
      EXPECT_EQ(w.count("Padron_Actividad"), 2);
      d.click(w.ACEPTAR);
      EXPECT_TRUE(d.closed());
    };
    esNueva ? w.nueva(act) : w.editar(act);
    EXPECT_EQ(w.count("Actividad WHERE Nombre='Teatro'"), 1);
    EXPECT_EQ(w.count("Grupo WHERE Nombre='Jóvenes'"), 1);
    EXPECT_EQ(w.count("Padron_Actividad"), 4);
    EXPECT_EQ(w.user.hourglassDepth(), 0);
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(Actividad, MembersChangedElsewhereMeanwhile_StayAsTheyWereLeft) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    w.abrirGrupo(d, 1, [&](FormDriver& g) {
      w.elegir(g, {0}, "Monitor");  // Carmen
      g.click(w.ACEPTAR_GRUPO);
    });
    const std::int32_t eva = w.colaborador("Eva", "Moya");
    w.miembro(eva, w.primero, w.monitor);
    w.miembro(w.carmen, w.primero, w.catequista);
    w.con().Execute("DELETE * FROM Padron_Actividad WHERE CodPadron=" + std::to_string(w.blas));
    d.click(w.ACEPTAR);
  });
  EXPECT_THAT(w.membresias(), ElementsAre("Primero: Ana Catequista", "Primero: Eva Monitor",
                                          "Primero: Carmen Catequista"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Actividad, EditedGroupOrActivityGoneMeanwhile_IsToldAndNothingIsHungOnIt) {
  for (const char* tabla : {"Grupo", "Actividad"}) {
    ActividadesWorld w;
    w.user.answerAnything(Answer::Ok);
    w.editar([&](FormDriver& d) {
      d.type("txtActividad(1)", "Los niños");
      w.abrirGrupo(d, 2, [&](FormDriver& g) {
        w.elegir(g, {0}, "Monitor");
        g.click(w.ACEPTAR_GRUPO);
      });
      w.con().Execute("DELETE * FROM " + std::string(tabla));
      d.click(w.ACEPTAR);
      EXPECT_THAT(w.user.messages().back().text, HasSubstr("ya no existe"));
      EXPECT_FALSE(d.closed());
      d.escape();
    });
    EXPECT_EQ(w.count("Padron_Actividad"), 2) << tabla;
    EXPECT_EQ(w.count("Actividad WHERE Descripcion='Los niños'"), 0);
    EXPECT_SCRIPT_DONE(w.user);
  }
}

TEST(Actividad, NewMemberOrOfficeGoneMeanwhile_HangsNowhere) {
  ActividadesWorld w;
  w.user.answerAnything(Answer::Ok);
  w.editar([&](FormDriver& d) {
    w.abrirGrupo(d, 2, [&](FormDriver& g) {
      w.elegir(g, {0, 1}, "Monitor");  // Ana and Blas
      g.click(w.ACEPTAR_GRUPO);
    });
    w.con().Execute("DELETE * FROM Padron WHERE IDPadron=" + std::to_string(w.blas));
    w.con().Execute("DELETE * FROM Cargo WHERE IDCargo=" + std::to_string(w.monitor));
    d.click(w.ACEPTAR);
    EXPECT_THAT(w.user.messages().back().text, HasSubstr("«Segundo» ya no existe. Elija otro."));
    w.abrirGrupo(d, 2, [&](FormDriver& g) {
      EXPECT_THAT(w.lineas(g, w.SELECCIONADAS), ElementsAre("Ana García Ruiz"));
      w.quitar(g, {0});
      w.elegir(g, {0}, "Catequista");
      g.click(w.ACEPTAR_GRUPO);
    });
    d.click(w.ACEPTAR);
  });
  EXPECT_THAT(w.membresias(), ElementsAre("Primero: Ana Catequista", "Segundo: Ana Catequista"));
  EXPECT_EQ(w.count("Padron_Actividad WHERE CodGrupo=" + std::to_string(w.segundo)), 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Actividad, Cancelled_StoresNothingAndKeepsTheWidths) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    auto& grid = d.get<forms::Grid>("msgGrupos");
    EXPECT_EQ(grid.columnWidth(0), 2250);
    EXPECT_EQ(grid.header(1) + grid.header(2) + grid.header(3) + grid.header(4), "AñoDíaHoraSala");
    grid.setColumnWidth(0, 3000);
    w.grupoNuevo(d, "Tercero");
    d.row("msgGrupos", 1);
    d.click(w.QUITAR);
    d.escape();
  });
  EXPECT_EQ(w.count("Grupo"), 2);
  EXPECT_EQ(w.settings.read("Fidaleon", "ana\\Castellano\\Grids\\Actividad\\Actividad", "0", ""),
            "3000");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Actividad, NotAllRead_IsReportedAndDoesNotOpen) {
  for (const char* parte : {"FROM Padron_Actividad", "FROM Grupo WHERE", "SELECT * FROM Actividad",
                            "FROM Institucion ORDER"}) {
    ActividadesWorld w;
    store::FailingEngine::wrap(w.con())->failOn(parte);
    w.user.answerAnything(Answer::Ok);
    censo::EditaActividad(w.contexto, w.con(), w.catequesis);
    ASSERT_EQ(w.user.messages().size(), 1u) << parte;
    EXPECT_THAT(w.user.messages()[0].text, HasSubstr("frmActividad"));
    EXPECT_TRUE(w.libre("Actividad"));
  }
}

TEST(Actividad, ButtonsHidden_GroupsCanOnlyBeLookedAt) {
  ActividadesWorld w;
  w.editar(
      [&](FormDriver& d) {
        d.tab("mstActividad", 1);
        for (const char* boton : {w.AGREGAR, w.MODIFICAR, w.QUITAR}) EXPECT_FALSE(d.visible(boton));
        EXPECT_THAT(w.nombres(d), ElementsAre("Primero", "Segundo"));
        d.doubleClick("msgGrupos", 1);
        d.click(w.ACEPTAR);
      },
      true);
  EXPECT_EQ(w.count("Grupo"), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
