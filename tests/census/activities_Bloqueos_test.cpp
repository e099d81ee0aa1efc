// Who may work on activities, groups and offices at the same time.

#include "ActividadesWorld.h"

namespace fidaleon::tests {
namespace {

using forms::Answer;
using ::testing::ElementsAre;

TEST(BloqueosActividad, GroupsAdded_HoldTheTableUntilTheLastIsGone) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    EXPECT_TRUE(w.libre("Grupo"));
    EXPECT_FALSE(w.libre("Institucion"));
    w.grupoNuevo(d, "Tercero");
    w.abrirGrupo(d, 0, [&](FormDriver& g) {
      EXPECT_FALSE(w.libre("Grupo"));
      g.click(w.CANCELAR_GRUPO);
    });
    EXPECT_FALSE(w.libre("Grupo")) << "one still waits";
    w.grupoNuevo(d, "Cuarto");
    d.row("msgGrupos", 4);
    d.click(w.QUITAR);
    EXPECT_FALSE(w.libre("Grupo"));
    d.row("msgGrupos", 3);
    d.click(w.QUITAR);
    EXPECT_TRUE(w.libre("Grupo"));
    w.abrirGrupo(d, 0, [](FormDriver& g) { g.close(); });
    EXPECT_TRUE(w.libre("Grupo"));
    w.grupoNuevo(d, "Quinto");
    d.click(w.ACEPTAR);
  });
  EXPECT_EQ(w.count("Grupo"), 3);
  EXPECT_TRUE(w.libre("Grupo"));
  EXPECT_TRUE(w.libre("Actividad"));
  EXPECT_TRUE(w.libre("Institucion"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BloqueosActividad, StoredGroupThatIsToGo_StaysLockedWhateverElseIsGivenBack) {
  ActividadesWorld w;
  w.editar([&](FormDriver& d) {
    d.tab("mstActividad", 1);
    d.row("msgGrupos", 2);
    d.click(w.QUITAR);
    EXPECT_FALSE(w.libre("Grupo"));
    w.abrirGrupo(d, 0, [&](FormDriver& g) { g.click(w.CANCELAR_GRUPO); });
    EXPECT_FALSE(w.libre("Grupo"));
    w.grupoNuevo(d, "Tercero");
    // The key of this group is the number under which the table was taken.
    w.abrirGrupo(d, 1, [&](FormDriver& g) { g.click(w.CANCELAR_GRUPO); });
    const auto otra = w.otherSession();
    FDAPI::DefinicionBloqueo ajeno;
    ajeno.strTabla = "Grupo";
    ajeno.strRegistro = "9";
    ajeno.conBd = &w.con();
    otra->DefinirBloqueo(ajeno);
    EXPECT_NE(otra->lngEfectuarBloqueos(true), 0) << "the table is still taken whole";
    d.click(w.ACEPTAR);
  });
  EXPECT_EQ(w.count("Grupo WHERE Nombre='Segundo'"), 0);
  EXPECT_TRUE(w.libre("Grupo"));
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BloqueosActividad, GroupsUsedElsewhere_AreNeitherAddedToNorTakenAway) {
  ActividadesWorld w;
  w.user.answerAnything(Answer::Ok);
  w.editar([&](FormDriver& d) {
    d.tab("mstActividad", 1);
    {
      const auto otro = w.otroUsaRegistro("Grupo", w.primero);
      d.row("msgGrupos", 1);
      d.click(w.QUITAR);
      d.click(w.AGREGAR);
      EXPECT_EQ(w.user.messages().size(), 2u);
    }
    w.con().Execute("DELETE * FROM Grupo WHERE IDGrupo=" + std::to_string(w.segundo));
    d.row("msgGrupos", 2);
    d.click(w.QUITAR);
    EXPECT_EQ(w.user.messages().size(), 3u) << "gone meanwhile";
    EXPECT_THAT(w.nombres(d), ElementsAre("Primero"));
    w.grupoNuevo(d, "Tercero");
    d.row("msgGrupos", 2);
    d.click(w.QUITAR);
    EXPECT_TRUE(w.libre("Grupo")) << "the refused one was not counted";
    d.escape();
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BloqueosActividad, ActivityInUseElsewhere_OpensToReadOnly) {
  ActividadesWorld w;
  const auto otro = w.otroUsaRegistro("Actividad", w.catequesis);
  w.user.answerAnything(Answer::Ok);
  w.editar([&](FormDriver& d) {
    EXPECT_EQ(w.user.messages().size(), 1u);
    EXPECT_TRUE(d.locked(w.NOMBRE));
    EXPECT_TRUE(d.locked("cboInstitucion"));
    d.tab("mstActividad", 1);
    for (const char* boton : {w.ACEPTAR, w.AGREGAR, w.MODIFICAR, w.QUITAR})
      EXPECT_FALSE(d.enabled(boton));
    d.doubleClick("msgGrupos", 1);
    d.click(w.CANCELAR);
  });
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BloqueosActividad, WhereNothingCanBeLocked_OpensToReadOnly) {
  ActividadesWorld w;
  std::filesystem::remove_all(w.directory.path());
  w.user.answerAnything(Answer::Ok);
  w.editar([&](FormDriver& d) {
    EXPECT_EQ(d.text(w.NOMBRE), "Catequesis");
    EXPECT_FALSE(d.enabled(w.ACEPTAR));
    d.escape();
  });
  EXPECT_EQ(w.user.messages().size(), 1u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(BloqueosActividad, TablesUsedOrRecordGone_NothingOpens) {
  ActividadesWorld w;
  w.user.answerAnything(Answer::Ok);
  {
    const auto otro = w.otroUsaTabla("Actividad");
    censo::NuevaActividad(w.contexto, w.con());
    EXPECT_EQ(w.user.messages().size(), 1u);
  }
  {
    const auto otro = w.otroUsaTabla("Institucion");
    censo::EditaActividad(w.contexto, w.con(), w.catequesis);
    EXPECT_EQ(w.user.messages().size(), 2u);
  }
  {
    const auto otro = w.otroUsaRegistro("Cargo", w.monitor);
    censo::NuevoCargo(w.contexto, w.con());
    EXPECT_EQ(w.user.messages().size(), 3u);
  }
  censo::EditaActividad(w.contexto, w.con(), 99);
  censo::EditaCargo(w.contexto, w.con(), 99);
  EXPECT_EQ(w.user.messages().size(), 5u);
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
