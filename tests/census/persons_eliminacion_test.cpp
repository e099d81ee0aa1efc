#include "census/persons_PadronWorld.h"

namespace fidaleon::tests {
namespace {

using ::testing::ElementsAre;

constexpr const char* PREGUNTA =
    "ADVERTENCIA:\nSe propone eliminar un Empadronado. Si lo hace, perderá todos los  \ndatos que "
    "este tenga relacionados.\n\n¿Está seguro de querer eliminar el Empadronado junto con todos "
    "sus \ndatos relacionados?";

struct EliminacionWorld : PadronWorld {
  EliminacionWorld() {
    rosa = persona("Rosa", "Gil", "Mas");
    nota(rosa, "Una");
    otra = persona("Ana", "Gil", "Mas", "", {EMPADRONADO, COLABORADOR});
    nota(otra, "Dos");
  }
  void eliminar(std::int32_t id, Answer respuesta = Answer::Yes) {
    user.expectMessage(PREGUNTA, respuesta);
    fallos();
    escrito();
    censo::EliminaEmpadronado(contexto, con(), id);
    EXPECT_SCRIPT_DONE(user);
  }
  std::int64_t filas(std::int32_t id) {
    const std::string de = " WHERE CodPadron=" + std::to_string(id);
    std::int64_t n = count("Padron WHERE IDPadron=" + std::to_string(id));
    for (const char* tabla : {"Nacimiento", "Bautismo", "Comunion", "Confirmacion", "Matrimonio",
                              "Defuncion", "NotasPersonales", "TipoPersona"})
      n += count(std::string("Padron_") + tabla + de);
    return n;
  }
  std::int32_t rosa = 0;
  std::int32_t otra = 0;
};

TEST(EliminaEmpadronado, OnlyInTheCensus_GoesWithAllTheirRows) {
  EliminacionWorld w;
  w.eliminar(w.rosa);
  EXPECT_EQ(w.user.messages()[0].buttons, forms::MsgButtons::YesNo);
  EXPECT_EQ(w.user.beeps(), 1);
  EXPECT_THAT(
      w.escrito(),
      ElementsAre("BEGIN", "DELETE * FROM Padron_TipoPersona", "DELETE * FROM Padron_Nacimiento",
                  "DELETE * FROM Padron_Bautismo", "DELETE * FROM Padron_Comunion",
                  "DELETE * FROM Padron_Confirmacion", "DELETE * FROM Padron_Matrimonio",
                  "DELETE * FROM Padron_Defuncion", "DELETE * FROM Padron",
                  "DELETE * FROM Padron_NotasPersonales", "COMMIT"));
  EXPECT_EQ(w.filas(w.rosa), 0);
  EXPECT_EQ(w.filas(w.otra), 10);
  EXPECT_EQ(w.satelite("Comunion", w.otra), "2|1979|San Ginés");
  EXPECT_THAT(w.user.progressLog, ElementsAre("open 9 Eliminando empadronado ...", "1", "2", "3",
                                              "4", "5", "6", "7", "8", "9", "close"));
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_TRUE(w.libre("Padron"));
}

TEST(EliminaEmpadronado, CollaboratorToo_StaysAndTheSacramentsOfAllAreBlanked) {
  EliminacionWorld w;
  w.eliminar(w.otra);
  EXPECT_THAT(w.escrito(), ElementsAre("BEGIN", "DELETE * FROM Padron_TipoPersona",
                                       "UPDATE Padron_Comunion", "UPDATE Padron_Confirmacion",
                                       "UPDATE Padron_Matrimonio", "UPDATE Padron_Defuncion",
                                       "DELETE * FROM Padron_NotasPersonales", "COMMIT"));
  EXPECT_EQ(w.satelite("TipoPersona", w.otra), "2|3");
  EXPECT_EQ(w.filas(w.otra), 8);
  for (const std::int32_t id : {w.rosa, w.otra}) {
    const std::string clave = std::to_string(id);
    EXPECT_EQ(w.satelite("Comunion", id), clave + "||");
    EXPECT_EQ(w.satelite("Bautismo", id), clave + "|19700410|0|San Ginés|Arenal, 13");
    EXPECT_EQ(w.satelite("Nacimiento", id), clave + "|19700315|0|Luis|Carmen");
    EXPECT_EQ(w.fila("SELECT ImporteEur,Importe FROM Padron_Defuncion WHERE CodPadron=" + clave),
              "6,01|0");
  }
  EXPECT_EQ(w.filas(w.rosa), 9);
  EXPECT_THAT(w.user.progressLog, ElementsAre("open 7 Eliminando empadronado ...", "1", "2", "3",
                                              "4", "5", "6", "7", "close"));
}

TEST(EliminaEmpadronado, OtherRoleThanCollaborator_LosesTheBaptismsToo) {
  EliminacionWorld w;
  w.con().Execute("UPDATE Padron_TipoPersona SET CodTipoPersona=4 WHERE CodTipoPersona=3");
  w.eliminar(w.otra);
  EXPECT_EQ(w.satelite("Bautismo", w.rosa), "1||0||");
  EXPECT_EQ(w.user.progressLog.size(), 9u);
}

TEST(EliminaEmpadronado, NotConfirmed_LeavesAll) {
  EliminacionWorld w;
  w.eliminar(w.rosa, Answer::No);
  EXPECT_EQ(w.filas(w.rosa), 9);
  EXPECT_THAT(w.escrito(), ElementsAre());
}

TEST(EliminaEmpadronado, InUseOrGone_StopsWithTheLockServicesWord) {
  EliminacionWorld w;
  const auto sesion = w.otroUsaRegistro("Padron", w.rosa);
  w.user.answerAnything(Answer::Ok);
  w.eliminar(w.rosa);
  w.eliminar(99);
  EXPECT_EQ(w.user.messages().size(), 4u);
  EXPECT_EQ(w.filas(w.rosa), 9);
}

TEST(EliminaEmpadronado, StoreFailsOnTheWay_LeavesAllAndFreesTheRecord) {
  EliminacionWorld w;
  w.user.expectMessage(PREGUNTA, Answer::Yes);
  w.fallos().failOn("DELETE * FROM Padron WHERE");
  EXPECT_THROW(censo::EliminaEmpadronado(w.contexto, w.con(), w.rosa), store::Error);
  EXPECT_EQ(w.filas(w.rosa), 9);
  EXPECT_EQ(w.user.progressLog.back(), "close");
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_TRUE(w.libre("Padron"));
}

}  // namespace
}  // namespace fidaleon::tests
