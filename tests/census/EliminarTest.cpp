// Removing people, collaborators, activities and offices.

#include "census/Manos.h"
#include "text/Utf8.h"

namespace fidaleon::tests::EliminarTest {

struct Borrado {
  std::string nombre;
  void (*eliminar)(Contexto&, FDAPI::Conexion&, std::int32_t);
  std::int32_t GruposWorld::*cual;
  int pasos;
  /// The rows that go, in this order: "table.column", which holds the key of what is removed.
  std::string fuera;
};

const Borrado BORRADOS[] = {
    Borrado("un Empadronado", censo::EliminaEmpadronado, &GruposWorld::zoilo, 9,
            "Padron_TipoPersona.CodPadron Padron_Nacimiento.CodPadron Padron_Bautismo.CodPadron "
            "Padron_Comunion.CodPadron Padron_Confirmacion.CodPadron Padron_Matrimonio.CodPadron "
            "Padron_Defuncion.CodPadron Padron.IDPadron Padron_NotasPersonales.CodPadron"),
    Borrado("un Colaborador", censo::EliminaColaborador, &GruposWorld::ana, 8,
            "Padron_TipoPersona.CodPadron Padron_Nacimiento.CodPadron Padron_Bautismo.CodPadron "
            "Padron.IDPadron Padron_Comunion.CodPadron Padron_Matrimonio.CodPadron "
            "Padron_Confirmacion.CodPadron Padron_Defuncion.CodPadron Padron_Actividad.CodPadron"),
    // The key of its only group with members is its own.
    Borrado("una Actividad", censo::EliminaActividad, &GruposWorld::catequesis, 5,
            "Actividad.IDActividad Padron_Actividad.CodGrupo Grupo.CodActividad"),
    Borrado("una Actividad", censo::EliminaActividad, &GruposWorld::coro, 3,
            "Actividad.IDActividad Grupo.CodActividad"),
    Borrado("un Cargo", censo::EliminaCargo, &GruposWorld::catequista, 2,
            "Cargo.IDCargo Padron_Actividad.CodCargo"),
};

struct BorradoWorld : GruposWorld {
  explicit BorradoWorld(const Borrado& suyo) : b(suyo) {
    for (const std::int32_t id : {ana, blas, zoilo}) nota(id, "Suya");
    miembro(carmen, grupo(actividad("Teatro"), "Adultos"), monitor);
    std::istringstream palabras(b.fuera);
    for (std::string una; palabras >> una;)
      fuera.emplace_back(una.substr(0, una.find('.')), una.substr(una.find('.') + 1));
  }
  void eliminar(Answer respuesta = Answer::Yes) {
    const bool una = b.nombre.starts_with("una");
    user.expectMessage(
        "ADVERTENCIA:\nSe propone eliminar " + b.nombre +
            ". Si lo hace, perderá todos los  \ndatos que " + (una ? "esta" : "este") +
            " tenga relacionados.\n\n¿Está seguro de querer eliminar " + (una ? "la" : "el") +
            b.nombre.substr(b.nombre.find(' ')) + " junto con todos sus \ndatos relacionados?",
        respuesta);
    b.eliminar(contexto, con(), this->*b.cual);
  }
  const Borrado& b;
  std::vector<std::pair<std::string, std::string>> fuera;
};

class Eliminar : public ::testing::TestWithParam<Borrado> {};

TEST_P(Eliminar, Confirmed_GoesWithItsRowsInOrderAndNoOther) {
  BorradoWorld w(GetParam());
  Sentencias quedan;
  std::string orden;
  for (const auto& [tabla, columna] : w.fuera) {
    quedan.push_back(
        w.filas("SELECT * FROM " + tabla + " WHERE " + columna + "<>" + texto(w.*w.b.cual)));
    orden += "-" + tabla + " .*";
  }
  w.escrito();
  w.eliminar();
  EXPECT_THAT(w.escrito(), ::testing::MatchesRegex("BEGIN .*" + orden + "COMMIT"));
  for (std::size_t i = 0; i < quedan.size(); ++i)
    EXPECT_EQ(w.filas("SELECT * FROM " + w.fuera[i].first), quedan[i]) << w.fuera[i].first;
  std::string hecho, avance = "open " + texto(w.b.pasos) + " Eliminando " +
                              text::lower(w.b.nombre.substr(w.b.nombre.find(' ') + 1)) + " ... ";
  for (const std::string& paso : w.user.progressLog) hecho += paso + " ";
  for (int n = 1; n <= w.b.pasos; ++n) avance += texto(n) + " ";
  EXPECT_EQ(hecho, avance + "close ");
  EXPECT_EQ(w.user.messages()[0].buttons, forms::MsgButtons::YesNo);
  EXPECT_EQ(w.user.beeps(), 1);
  w.comprobarFinal();
}

TEST_P(Eliminar, NotConfirmedUsedElsewhereOrFailingAtAnyStatement_LeavesAll) {
  bool lanzado = true;
  for (int n = 0; lanzado; ++n) {
    BorradoWorld w(GetParam());
    const std::string antes = w.censo();
    if (n > 0) {
      w.fallos().failOn("", store::ErrorKind::Busy, n);
      w.user.answerAnything(Answer::Yes);
      try {
        w.b.eliminar(w.contexto, w.con(), w.*w.b.cual);
        lanzado = false;
      } catch (const store::Error&) {
        EXPECT_TRUE(w.user.progressLog.empty() || w.user.progressLog.back() == "close") << n;
      }
      w.fallos().clear();
    } else {
      for (const Answer no : {Answer::No, Answer::Cancel}) w.eliminar(no);
      const auto suya = [](const auto& fila) { return fila.second.starts_with("ID"); };
      const auto principal = std::find_if(w.fuera.begin(), w.fuera.end(), suya);
      const auto otro = w.otherHolds(principal->first.c_str(), w.*w.b.cual);
      w.user.answerAnything(Answer::Ok);
      w.eliminar();
      EXPECT_EQ(w.user.messages().size(), 4u);
      EXPECT_TRUE(w.user.progressLog.empty());
    }
    EXPECT_EQ(w.censo() == antes, lanzado) << n;
    w.comprobarFinal();
  }
}

INSTANTIATE_TEST_SUITE_P(Censo, Eliminar, ::testing::ValuesIn(BORRADOS));

struct DosPapeles : En<GruposWorld> {
  /// In the census and a collaborator.
  std::int32_t eva = persona("Eva", "Gil", "Mas", "", {EMPADRONADO, COLABORADOR});
  std::int32_t suNota = nota(eva, "Suya"), suGrupo = miembro(eva, primero, monitor);
  void elimina(void (*operacion)(Contexto&, FDAPI::Conexion&, std::int32_t)) {
    user.answerAnything(Answer::Yes);
    escrito();
    operacion(contexto, con(), eva);
  }
};

TEST_F(DosPapeles, CollaboratorRemoved_StaysInTheCensusWithoutGroups) {
  const std::string padron = filas("SELECT * FROM Padron"), comunion = satelite("Comunion", eva);
  elimina(censo::EliminaColaborador);
  EXPECT_EQ(escrito(), "BEGIN -Padron_TipoPersona -Padron_Actividad COMMIT");
  EXPECT_EQ(satelite("TipoPersona", eva) + satelite("Actividad", eva), "5|2");
  EXPECT_EQ(filas("SELECT * FROM Padron") + satelite("Comunion", eva), padron + comunion);
  EXPECT_EQ(count("Padron_NotasPersonales") + count("Padron_Actividad"), 3);
}

TEST_F(DosPapeles, PersonRemoved_StaysACollaboratorAndTheSacramentsOfAllAreBlanked) {
  elimina(censo::EliminaEmpadronado);
  EXPECT_EQ(escrito(),
            "BEGIN -Padron_TipoPersona ~Padron_Comunion ~Padron_Confirmacion ~Padron_Matrimonio "
            "~Padron_Defuncion -Padron_NotasPersonales COMMIT");
  EXPECT_EQ(satelite("TipoPersona", eva) + satelite("NotasPersonales", eva), "5|3");
  for (const std::int32_t id : {ana, eva}) {
    const std::string de = texto(id);
    EXPECT_EQ(satelite("Comunion", id), de + "||");
    EXPECT_EQ(satelite("Bautismo", id), de + "|19700410|0|San Ginés|Arenal, 13");
    EXPECT_EQ(satelite("Nacimiento", id), de + "|19700315|0|Luis|Carmen");
    EXPECT_EQ(filas("SELECT ImporteEur,Importe FROM Padron_Defuncion WHERE CodPadron=" + de),
              "6,01|0");
  }
  EXPECT_EQ(user.progressLog.size(), 9u);
  EXPECT_EQ(user.progressLog[0], "open 7 Eliminando empadronado ...");
}

}  // namespace fidaleon::tests::EliminarTest
