// Opening a book and moving requests as the main program does it: locks, refusals, two
// workstations.

#include "core/contract/Sacramento.h"
#include "core/facade/FacadeWorld.h"

namespace fidaleon::tests::BooksPropertiesTest {

constexpr const char* DIALOGO = "frmPropiedadesLibroBautismo";
constexpr const char* NODO = "LibrosBautismo";

void cancelarLibro(FormDriver& u) {
  u.click("cmdBoton(1)");
}

/// A second workstation on the same directory.
struct OtroPuesto {
  explicit OtroPuesto(FacadeWorld& w) : mundo(w) {}
  FacadeWorld& mundo;
  FDAPI::cConfig config{"Fidaleon", "", "luis", "Castellano", false};
  support::HostSupport host{mundo.otherUser, mundo.settings, mundo.clock, config, "SACRISTIA"};
  Entorno entorno{mundo.otherUser, host, mundo.settings, mundo.clock, mundo.entorno.installation};
  cNucleo nucleo{entorno};
};

TEST(FacadeBooks, PropiedadesLibro_SharesWhatTheNameRestsOnAndHoldsTheBook) {
  SpyWorld w;
  w.user.expectForm(DIALOGO, cancelarLibro);
  w.nucleo.PropiedadesLibro(w.con(), 1, w.config, NODO);
  EXPECT_THAT(
      w.bloqueos(),
      ElementsAre("Libros_TipoNombre compartida",
                  "Libros_Formato parcial [SELECT CodFormato FROM Libro_Bautismo WHERE "
                  "IDLibroBautismo=1]",
                  "Institucion parcial [SELECT CodInstitucion FROM Libro_Bautismo WHERE "
                  "IDLibroBautismo=1]",
                  "Libro_Bautismo [1] existe [SELECT IDLibroBautismo FROM Libro_Bautismo WHERE "
                  "IDLibroBautismo=1]",
                  "efectuar", "en " + w.directory.path().string(), "liberar", "liberar"));
}

TEST(FacadeBooks, ActionsOnEntries_DefineTheirOwnLocks) {
  SpyWorld w;
  w.user.expectForm(DIALOGO, [&](FormDriver& u) {
    const auto tras = [&](const char* boton) {
      w.spy.log.clear();
      u.click(boton);
      return w.spy.log;
    };
    const char* existe = "Bautismo [1] existe [SELECT IDBautismo FROM Bautismo WHERE IDBautismo=1]";
    u.tab("mstLibro", 1);
    w.user.expectForm("frmPartidaBautismo", cancelar);
    EXPECT_THAT(tras("cmdPartidas(0)"), ElementsAre("Provincia compartida", "Municipio compartida",
                                                    "Bautismo", "efectuar"));
    w.user.expectForm("frmPartidaBautismo", cancelar);
    EXPECT_THAT(tras("cmdPartidas(1)"),
                ElementsAre("Provincia compartida", "Municipio compartida", existe, "efectuar"));
    EXPECT_THAT(tras("cmdPartidas(3)"),
                ElementsAre("Provincia compartida", "Municipio compartida", existe, "efectuar"));
    w.user.expectMessage(
        "Ha realizado cambios en las partidas del libro. ¿Desea cerrar el formulario y perder así "
        "todos los cambios realizados?",
        Answer::Yes);
    cancelarLibro(u);
  });
  w.nucleo.PropiedadesLibro(w.con(), 1, w.config, NODO);
}

TEST(FacadeBooks, RefusedLocks_LeaveWhatTheirValueLeaves) {
  // Without a shared part the book is asked for alone; the second answer is to that.
  const std::vector<std::vector<long>> respuestas{{1},    {2},    {4},    {5},
                                                  {3, 0}, {6, 0}, {6, 3}, {6, 1}};
  for (const std::vector<long>& r : respuestas) {
    SpyWorld w;
    w.spy.answers = r;
    const std::string cuales = ::testing::PrintToString(r);
    if (r.back() == 0 || r.back() > 2)
      w.user.expectForm(DIALOGO, [&](FormDriver& u) {
        const bool delLibro = r.back() == 0;
        for (const char* campo : {"txtNombreLibro", "cboTipoNombre"})
          EXPECT_FALSE(u.enabled(campo) && !u.locked(campo)) << cuales << ": " << campo;
        EXPECT_EQ(u.enabled("cmdBoton(0)"), delLibro) << cuales;
        for (int i = 0; i < 4; ++i)
          EXPECT_EQ(u.enabled("cmdPartidas(" + std::to_string(i) + ")"), delLibro) << cuales;
        EXPECT_TRUE(u.enabled("cmdBoton(1)"));
        cancelarLibro(u);
      });
    w.nucleo.PropiedadesLibro(w.con(), 1, w.config, NODO);
  }
}

TEST(FacadeBooks, BookOpenInOne_IsReadOnlyInTheOther) {
  FacadeWorld w;
  OtroPuesto otro(w);
  w.otherUser.answerAnything(Answer::Ok);
  w.user.expectForm(DIALOGO, [&](FormDriver& u) {
    w.otherUser.expectForm(DIALOGO, [](FormDriver& v) {
      EXPECT_FALSE(v.enabled("cmdBoton(0)"));
      v.escape();
    });
    otro.nucleo.PropiedadesLibro(w.con(), 1, otro.config, NODO);
    u.tab("mstLibro", 1);
    w.user.expectForm("frmPartidaBautismo", [&](FormDriver& e) {
      w.otherUser.expectForm("frmPartidaBautismo", [](FormDriver& v) {
        EXPECT_FALSE(v.enabled("cmdBautismo(0)"));
        v.escape();
      });
      otro.nucleo.PropiedadesPartida(w.con(), 1, otro.config, "PartidasBautismo");
      e.escape();
    });
    u.click("cmdPartidas(1)");
    otro.nucleo.NuevaPartida(w.con(), otro.config, "PartidasBautismo");
    EXPECT_EQ(w.otherUser.messages().size(), 3u) << "each was told who has the book";
    otro.nucleo.PropiedadesLibro(w.con(), 77, otro.config, NODO);  // gone: opens nothing
    cancelarLibro(u);
  });
  w.nucleo.PropiedadesLibro(w.con(), 1, w.config, NODO);
  w.esperarLibre();
}

TEST(FacadeBooks, InstitutionHeldElsewhere_FixesTheNameButTheBookIsStillHeld) {
  FacadeWorld w;
  OtroPuesto otro(w);
  const auto otra = w.ocupar("Institucion", std::to_string(w.parroquia).c_str());
  w.user.expectMessage(
      "El nombre del libro y su tipo no se pueden cambiar: la institución la tiene luis, en el "
      "equipo SACRISTIA, desde el 22/11/2026 a las 10:30.");
  w.user.expectForm(DIALOGO, [&](FormDriver& u) {
    EXPECT_FALSE(u.enabled("txtNombreLibro"));
    w.otherUser.answerAnything(Answer::Ok);
    w.otherUser.expectForm(DIALOGO, [](FormDriver& v) {
      EXPECT_FALSE(v.enabled("cmdPartidas(0)")) << "two desks would give one position twice";
      v.escape();
    });
    otro.nucleo.PropiedadesLibro(w.con(), 1, otro.config, NODO);
    ASSERT_EQ(w.otherUser.messages().size(), 2u);
    EXPECT_THAT(w.otherUser.messages()[1].text,
                StartsWith("Solo se puede consultar: el libro de bautismo lo tiene ana"));
    u.type("dtpFecha", "2/1/2003");
    u.click("cmdBoton(0)");
    EXPECT_TRUE(u.closed());
  });
  w.nucleo.PropiedadesLibro(w.con(), 1, w.config, NODO);
  EXPECT_EQ(w.value("SELECT FechaCreacion FROM Libro_Bautismo"), "20030102");
  EXPECT_EQ(w.value("SELECT Nombre FROM Libro_Bautismo"), "2003/01");
}

}  // namespace fidaleon::tests::BooksPropertiesTest
