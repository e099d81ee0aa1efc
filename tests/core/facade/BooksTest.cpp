// Closing and deleting a book, in every register.

#include "core/facade/FacadeWorld.h"
#include "registers/Rows.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::BooksTest {

constexpr const char* PREGUNTA_CERRAR =
    "Si cierra este libro no podrá introducir más partidas. ¿Desea cerrarlo?";
constexpr const char* PREGUNTA_ELIMINAR = "¿Seguro que quiere eliminar el libro?";

class Books : public ::testing::TestWithParam<std::size_t> {
 protected:
  const Sacramento& s = SACRAMENTOS.at(GetParam());
  WithFacade<TestWorld> mundo;

  std::int32_t libro(bool nuevo, bool cerrado = false) {
    return insertBook(mundo, s, 1, {"Libro", nuevo, 3, cerrado});
  }
  bool cerrado() {
    return mundo.con().Execute(std::string("SELECT * FROM ") + s.tablaLibros).flag("Cerrado");
  }
  std::int64_t libros() { return mundo.count(s.tablaLibros); }
  void partidaEn(std::int32_t libro) {
    insertRow(mundo, s.tablaPartidas,
              {{"codlibro", std::to_string(libro)}, {"folio", "1"}, {"numero", "1"}});
  }
  void cerrar(std::int32_t id) {
    using Cerrar = void (cNucleo::*)(FDAPI::Conexion&, std::int32_t, const FDAPI::cConfig&);
    const Cerrar cerrar[] = {&cNucleo::cerrarLiBautismo, &cNucleo::cerrarLiconfirmacion,
                             &cNucleo::cerrarLiMatrimonio, &cNucleo::cerrarLiDefuncion};
    (mundo.nucleo.*cerrar[s.byte])(mundo.con(), id, mundo.config);
  }
  void eliminar(std::int32_t id) {
    mundo.nucleo.EliminarLibro(mundo.con(), id, mundo.config, std::string("Libros") + s.palabra);
  }
  void TearDown() override { mundo.esperarLibre(s); }
};

INSTANTIATE_TEST_SUITE_P(Sacramentos, Books, ::testing::Range<std::size_t>(0, 4),
                         [](const auto& p) { return SACRAMENTOS.at(p.param).palabra; });

TEST_P(Books, openNewBook_isClosedAfterAsking) {
  const std::int32_t id = libro(true);
  mundo.user.expectMessage(PREGUNTA_CERRAR, Answer::No);
  cerrar(id);
  EXPECT_FALSE(cerrado());
  mundo.user.expectMessage(PREGUNTA_CERRAR, Answer::Yes);
  cerrar(id);
  EXPECT_TRUE(cerrado());
  const auto poner = [&](const char* valor) {
    mundo.con().Execute(std::string("UPDATE ") + s.tablaLibros + " SET cerrado=" + valor);
  };
  poner("false");
  mundo.user.expectMessage(PREGUNTA_CERRAR, Answer::Yes, [&] { poner("true"); });
  mundo.user.expectMessage("¡No se puede cerrar un libro que ya está cerrado!");
  cerrar(id);
  mundo.user.expectMessage("¡No se puede cerrar un libro que ya está cerrado!");
  cerrar(id);
  mundo.user.expectMessage("¡No se puede cerrar un libro antiguo!");
  cerrar(libro(false));
}

TEST_P(Books, bookWithEntries_isNotDeletedEvenIfTheyCameWhileTheQuestionStood) {
  const std::int32_t id = libro(false);
  mundo.user.expectMessage(PREGUNTA_ELIMINAR, Answer::Yes, [&] { partidaEn(id); });
  for (int i = 0; i < 2; ++i) {
    mundo.user.expectMessage("¡Este libro no se puede eliminar, tiene partidas asociadas!");
    eliminar(id);
  }
  EXPECT_EQ(libros(), 1);
}

TEST_P(Books, emptyBook_isDeletedAfterAsking) {
  const std::int32_t id = libro(false);
  libro(true);
  mundo.user.expectMessage(PREGUNTA_ELIMINAR, Answer::No);
  eliminar(id);
  EXPECT_EQ(libros(), 2);
  mundo.user.expectMessage(PREGUNTA_ELIMINAR, Answer::Yes);
  eliminar(id);
  EXPECT_EQ(libros(), 1);
  EXPECT_EQ(mundo.value(std::string("SELECT ") + s.claveLibro + " FROM " + s.tablaLibros),
            std::to_string(id + 1));
}

TEST_P(Books, bookHeldByAnotherOrGone_isLeftAlone) {
  const std::int32_t id = libro(true);
  mundo.user.answerAnything(Answer::Yes);
  const auto otra = mundo.otherHolds(s.tablaLibros, id);
  for (const std::int32_t cual : {id, 999}) {
    cerrar(cual);
    eliminar(cual);
    EXPECT_EQ(mundo.user.messages().size() % 4, 0u) << "each time the question and why not";
  }
  otra->LiberarBloqueos();
  EXPECT_FALSE(cerrado());
  EXPECT_EQ(libros(), 1);
}

TEST_P(Books, storeThatFails_isReportedUnderTheNameOfTheOperation) {
  const std::array<const char*, 4> nombres{"cerrarLiBautismo", "cerrarLiconfirmacion",
                                           "cerrarLimatrimonio", "cerrarLidefuncion"};
  const std::int32_t id = libro(true);
  auto* fallos = store::FailingEngine::wrap(mundo.con());
  fallos->failOn("update libro", store::ErrorKind::ReadOnly);
  fallos->failOn("delete * from libro", store::ErrorKind::ReadOnly);
  mundo.user.answerAnything(Answer::Yes);
  cerrar(id);
  eliminar(id);
  ASSERT_EQ(mundo.user.messages().size(), 4u);
  EXPECT_THAT(mundo.user.messages()[1].text, HasSubstr(nombres[GetParam()]));
  EXPECT_THAT(mundo.user.messages()[3].text, HasSubstr("EliminarLibro"));
  EXPECT_FALSE(cerrado());
  EXPECT_EQ(libros(), 1);
}

}  // namespace fidaleon::tests::BooksTest
