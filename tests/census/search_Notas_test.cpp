#include "census/search/frmPadronNotas.h"
#include "support/TestWorld.h"
#include "text/Utf8.h"

namespace fidaleon::tests {
namespace {

using FDAPI::cCOperacion;
using forms::FormDriver;

constexpr const char* REPETIDA = "¡Existe una nota personal con el mismo nombre!";

struct NotasWorld : TestWorld {
  void guardada(const char* nombre, cCOperacion operacion = {}) {
    const auto id = static_cast<std::int32_t>(notas.size()) + 40;
    notas.push_back({operacion, true, "Descripción", nombre, id, 7});
  }
  void agregar(forms::ScriptedUser::Act act) { mostrar(cCOperacion::ANADIR, -1, std::move(act)); }
  void editar(int posicion, forms::ScriptedUser::Act act) {
    mostrar(cCOperacion::EDITAR, posicion, std::move(act));
  }

  std::vector<cPadronNotas> notas;
  int refrescos = 0;

 private:
  void mostrar(cCOperacion operacion, int posicion, forms::ScriptedUser::Act act) {
    frmPadronNotas dialogo(contexto);
    dialogo.Operacion = operacion;
    dialogo.colNotas = &notas;
    dialogo.posicion = posicion;
    dialogo.refrescar = [this] { ++refrescos; };
    user.expectForm("frmPadronNotas", std::move(act));
    dialogo.Show();
  }
};

TEST(FrmPadronNotas, NewNote_IsPutBehindTheOthers) {
  NotasWorld w;
  w.guardada("Alergias");
  w.agregar([&](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Agregar nota personal");
    w.user.expectMessage("¡Debe introducir un título para la nota personal!");
    u.type("txtTitulo", "   ");
    u.click("cmdPadronNota(0)");
    EXPECT_EQ(u.focused(), "txtTitulo");
    u.type("txtTitulo", "Llamada \"Ñ\"");
    u.type("txtDescripcion", "Dos\nlíneas \"aquí\"");
    u.click("cmdPadronNota(0)");
  });
  ASSERT_EQ(w.notas.size(), 2u);
  EXPECT_EQ(w.notas[1].Nombre, "Llamada ''Ñ''");
  EXPECT_EQ(w.notas[1].Descripcion, "Dos\r\nlíneas ''aquí''");
  EXPECT_EQ(w.notas[1].Operacion, cCOperacion::ANADIR);
  EXPECT_FALSE(w.notas[1].Estado);
  EXPECT_EQ(w.refrescos, 1);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronNotas, EditedNote_IsMarkedOnlyWhenItIsStored) {
  NotasWorld w;
  w.guardada("Alergias");
  w.notas.push_back({cCOperacion::ANADIR, false, "", "Nueva", 0, 0});
  w.editar(0, [](FormDriver& u) {
    EXPECT_EQ(u.caption(), "Propiedades nota personal Alergias");
    EXPECT_EQ(u.text("txtDescripcion"), "Descripción");
    u.type("txtTitulo", "ALERGIAS");
    u.type("txtDescripcion", "Ninguna");
    u.click("cmdPadronNota(0)");
  });
  w.editar(1, [](FormDriver& u) {
    u.type("txtTitulo", "Cambiada");
    u.click("cmdPadronNota(0)");
  });
  EXPECT_EQ(w.notas[0].Nombre, "ALERGIAS");
  EXPECT_EQ(w.notas[0].Descripcion, "Ninguna");
  EXPECT_EQ(w.notas[0].Operacion, cCOperacion::EDITAR);
  EXPECT_EQ(w.notas[0].IDNota, 40);
  EXPECT_EQ(w.notas[1].Nombre, "Cambiada");
  EXPECT_EQ(w.notas[1].Operacion, cCOperacion::ANADIR);
  EXPECT_EQ(w.refrescos, 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronNotas, TitleOfAnotherNoteInAnyCase_IsRefused) {
  NotasWorld w;
  w.guardada("Año santo");
  w.notas.push_back({cCOperacion::ANADIR, false, "", "Primera", 0, 0});
  w.notas.push_back({cCOperacion::ANADIR, false, "", "Segunda", 0, 0});
  w.agregar([&](FormDriver& u) {
    w.user.expectMessage(REPETIDA);
    u.type("txtTitulo", "AÑO SANTO");
    u.enter();
    EXPECT_EQ(u.focused(), "txtTitulo");
    u.click("cmdPadronNota(1)");
  });
  w.editar(2, [&](FormDriver& u) {
    w.user.expectMessage(REPETIDA);
    u.type("txtTitulo", "primera");
    u.click("cmdPadronNota(0)");
    u.click("cmdPadronNota(1)");
  });
  EXPECT_EQ(w.notas.size(), 3u);
  EXPECT_EQ(w.notas[2].Nombre, "Segunda");
  EXPECT_EQ(w.refrescos, 0);
  EXPECT_EQ(w.user.beeps(), 2);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronNotas, TitleOfARemovedNote_IsFree) {
  NotasWorld w;
  w.guardada("Alergias", cCOperacion::Borrar);
  w.agregar([](FormDriver& u) {
    u.type("txtTitulo", "Alergias");
    u.enter();
  });
  EXPECT_EQ(w.notas.size(), 2u);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(FrmPadronNotas, NoteThatIsNotThere_IsReportedAndChangesNothing) {
  NotasWorld w;
  w.guardada("Alergias");
  w.user.answerAnything(forms::Answer::Ok);
  frmPadronNotas dialogo(w.contexto);
  dialogo.Operacion = cCOperacion::EDITAR;
  dialogo.colNotas = &w.notas;
  dialogo.Show();
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_EQ(w.notas[0].Nombre, "Alergias");
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(Recortada, LongOrManyLines_FitIntoARow) {
  EXPECT_EQ(recortada("Corta"), "Corta");
  EXPECT_EQ(recortada("Dos\r\nlíneas"), "Dos líneas");
  std::string larga;
  for (int i = 0; i < 100; ++i) larga += "ñ";
  EXPECT_EQ(recortada(larga), larga);
  EXPECT_EQ(recortada(larga + "x"), larga + " ... ");
}

}  // namespace
}  // namespace fidaleon::tests
