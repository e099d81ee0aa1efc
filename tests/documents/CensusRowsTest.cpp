// The rows of the reports of people, groups and tasks, written at once for the whole parish.

#include "CensoInformes.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

struct CollaboratorRows : CensoInformes {
  CollaboratorRows() { coro = grupo(actividad("Coro"), "Voces blancas"); }
  std::vector<Fila> imprimir() {
    informes.InformeColaborador(con(), conInformes(), progreso);
    return filas();
  }
  std::int32_t coro = 0;
};

const Fila COMPLETA{{"InstitucionNombre", "San Ginés"},
                    {"InstitucionTipo", "Parroquia de"},
                    {"NombreActividad", "Coro"},
                    {"NombreGrupo", "Voces blancas"},
                    {"Nombre", "Ana"},
                    {"Apellido1", "Sanz"},
                    {"Apellido2", "Gil"},
                    {"Direccion", "Calle Mayor, 3 C.P.: 28013"},
                    {"PoblacionProvincia", "Getafe (Madrid)"},
                    {"Telefono1", "915550101"},
                    {"Telefono2", "600100200"},
                    {"Email", "ana@correo.es"},
                    {"Comentarios", "Canta d'oído"},
                    {"FechaNacimiento", "15/03/1970"},
                    {"NombresPadres", "Luis y Carmen"},
                    {"FechaBautismo", "10/04/1970"},
                    {"ParroquiaBaut", "San Ginés"},
                    {"DireccionBaut", "Arenal, 13"},
                    {"PoblacionProvinciaBaut", "Toledo (Toledo)"},
                    {"Profesion", "(Maestra)"}};

TEST(CollaboratorRow, AllKnown_FillsItsColumnsAndNoOther) {
  CollaboratorRows w;
  w.colaborador("Ana", "Sanz", w.coro);
  w.run("UPDATE Padron SET CodMunicipio=" + std::to_string(w.municipio("Getafe", "Madrid")) +
        ", Telefono2=\"600100200\", CorreoElectronico=\"ana@correo.es\", Comentarios=\"Canta "
        "d'oído\", [Profesion/Colegio]=\"Maestra\"");
  w.run("UPDATE Padron_Bautismo SET CodMunicipioParrBaut=" +
        std::to_string(w.municipio("Toledo", "Toledo")));
  EXPECT_THAT(w.imprimir(), ElementsAre(COMPLETA));
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_EQ(w.user.hourglassDepth(), 0);
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(CollaboratorRow, NothingKnown_PrintsDashesButForDatesPlacesAndParents) {
  CollaboratorRows w;
  w.colaborador("Ana", "Sanz", w.coro);
  w.run(
      "UPDATE Padron SET Direccion=\"Calle Mayor, 3\", CPostal=\" \", Telefono=\"\", "
      "Telefono2=NULL, CorreoElectronico=\"  \", Comentarios=NULL, [Profesion/Colegio]=\" \"");
  w.run("UPDATE Padron_Nacimiento SET FechaNacimiento=\"\", NombrePadre=\"\", NombreMadre=NULL");
  w.run(
      "UPDATE Padron_Bautismo SET FechaBautizo=NULL, ParroquiaBaut=\"\", "
      "DireccionParrBaut=NULL, CodMunicipioParrBaut=999");
  w.run("UPDATE Institucion SET InstitucionTipo=\"\"");
  Fila esperada = COMPLETA;
  esperada["Direccion"] = "Calle Mayor, 3";
  for (const char* columna : {"Telefono1", "Telefono2", "Email", "Comentarios", "ParroquiaBaut",
                              "DireccionBaut", "InstitucionTipo"})
    esperada[columna] = "---";
  for (const char* columna : {"PoblacionProvincia", "FechaNacimiento", "NombresPadres",
                              "FechaBautismo", "PoblacionProvinciaBaut", "Profesion"})
    esperada[columna] = "";
  EXPECT_THAT(w.imprimir(), ElementsAre(esperada));
}

TEST(CollaboratorRow, HalfKnown_JoinsWhatThereIs) {
  CollaboratorRows w;
  w.colaborador("Ana", "Sanz", w.coro);
  w.run("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (\" Lisboa \", 999)");
  w.run("UPDATE Padron SET CodMunicipio=" + w.value("SELECT MAX(IDMunicipio) FROM Municipio"));
  w.run("UPDATE Padron_Nacimiento SET NombrePadre=\"\"");
  const Fila fila = w.imprimir().at(0);
  EXPECT_EQ(fila.at("PoblacionProvincia"), "Lisboa");
  EXPECT_EQ(fila.at("NombresPadres"), "Carmen");
  w.run("UPDATE Padron_Nacimiento SET NombrePadre=\"Luis\", NombreMadre=\"Inés\"");
  EXPECT_EQ(w.imprimir().back().at("NombresPadres"), "Luis e Inés");
}

TEST(CollaboratorRows, EachInstitution_ListsItsMembersThenThoseOfNoActivityThere) {
  CollaboratorRows w;
  const std::int32_t ajena = w.institucion("Ajena");
  const std::int32_t caritas = w.grupo(w.actividad("Cáritas", ajena), "Acogida");
  const std::int32_t dos = w.colaborador("Ana", "Dos", w.coro);
  w.miembro(dos, caritas, 1);
  w.colaborador("Eva", "Una", caritas);
  w.colaborador("Luz", "Ninguna");
  w.persona("Pío", "Censo", "Gil");
  w.imprimir();
  EXPECT_THAT(w.lineas({"InstitucionNombre", "NombreActividad", "NombreGrupo", "Apellido1"}),
              ElementsAre("Ajena Cáritas Acogida Dos", "Ajena Cáritas Acogida Una",
                          "Ajena Sin actividad asociada Sin grupo Ninguna",
                          "San Ginés Coro Voces blancas Dos",
                          "San Ginés Sin actividad asociada Sin grupo Una",
                          "San Ginés Sin actividad asociada Sin grupo Ninguna"));
  EXPECT_THAT(w.progreso.sucesos, ElementsAre("Cargar 6 Procesando vista preliminar ... 1 0", "0",
                                              "1", "2", "3", "4", "5", "6", "6"));
}

TEST(CollaboratorRows, Extended_WritesTheSameRows) {
  CollaboratorRows w, ext;
  w.colaborador("Ana", "Sanz", w.coro);
  ext.colaborador("Ana", "Sanz", ext.coro);
  ext.informes.InformeColaboradorExt(ext.con(), ext.conInformes(), ext.progreso);
  EXPECT_EQ(ext.filas(), w.imprimir());
  EXPECT_EQ(ext.progreso.sucesos, w.progreso.sucesos);
}

TEST(CollaboratorRows, OfNobody_LeaveTheProgressAlone) {
  CollaboratorRows w;
  EXPECT_THAT(w.imprimir(), IsEmpty());
  EXPECT_THAT(w.progreso.sucesos, IsEmpty());
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(CollaboratorRows, ARowFails_TakesBackAllAndTellsTheWriter) {
  CollaboratorRows w;
  w.colaborador("Ana", "Sanz", w.coro);
  w.colaborador("Eva", "Sanz", w.coro);
  w.conInformes().Execute("INSERT INTO Informe_Colaboradores (Nombre) VALUES (\"Anterior\")");
  store::FailingEngine::wrap(w.conInformes())
      ->failOn("INSERT INTO Informe_Colaboradores", store::ErrorKind::DiskFull, 2);
  w.user.answerAnything(forms::Answer::Ok);
  w.imprimir();
  EXPECT_THAT(w.lineas({"Nombre"}), ElementsAre("Anterior"));
  EXPECT_FALSE(w.conInformes().inTransaction());
  ASSERT_EQ(w.user.messages().size(), 1u);
  EXPECT_THAT(w.user.messages()[0].text,
              HasSubstr("FidaleonNucleo / cInformes / RellenarInformeColaborador)"));
  EXPECT_EQ(w.user.hourglassDepth(), 0);
}

TEST(CollaboratorRows, ADoubleQuoteInAValue_IsPrintedAsItStands) {
  CollaboratorRows w;
  w.colaborador("Ana", "Sanz", w.coro);
  w.run("UPDATE Padron SET Comentarios='Llamada \"Nana\"'");
  EXPECT_THAT(w.imprimir(), ElementsAre(Contains(Pair("Comentarios", "Llamada \"Nana\""))));
}

TEST(CollaboratorRows, ReadingFails_IsToldUnderTheOperation) {
  CollaboratorRows w;
  store::FailingEngine::wrap(w.con())->failOn("FROM Institucion");
  w.user.answerAnything(forms::Answer::Ok);
  w.informes.InformeColaboradorExt(w.con(), w.conInformes(), w.progreso);
  EXPECT_THAT(w.user.messages().at(0).text, HasSubstr("cInformes / InformeColaboradorExt)"));
}

TEST(CollaboratorRows, StoppedByTheUser_LeaveNothing) {
  CollaboratorRows w;
  w.colaborador("Ana", "Sanz", w.coro);
  w.colaborador("Eva", "Sanz", w.coro);
  w.progreso.hasta = 1;
  w.user.expectMessage("Operación cancelada. No queda nada de ella.");
  EXPECT_THAT(w.imprimir(), IsEmpty());
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityRows, CountTheMembersOfEachGroup_InOrder) {
  CensoInformes w;
  const std::int32_t ajena = w.institucion("Ajena");
  const std::int32_t coro = w.actividad("Coro");
  const std::int32_t grupos[] = {w.grupo(coro, "Voces graves"), w.grupo(coro, "Voces agudas"),
                                 w.grupo(w.actividad("Catequesis"), "Primero"),
                                 w.grupo(w.actividad("Zapatería", ajena), "Taller")};
  w.grupo(coro, "Sin nadie");
  for (const std::int32_t uno : grupos) w.colaborador("Ana", "Sanz", uno);
  w.colaborador("Eva", "Sanz", grupos[0]);
  w.informes.InformeActividad(w.con(), w.conInformes(), w.progreso);
  EXPECT_THAT(w.lineas({"InstitucionNombre", "NombreActividad", "NombreGrupo", "Colaboradores"}),
              ElementsAre("Ajena Zapatería Taller 1", "San Ginés Catequesis Primero 1",
                          "San Ginés Coro Voces agudas 1", "San Ginés Coro Voces graves 2"));
  EXPECT_EQ(w.filas()[0], (Fila{{"InstitucionTipo", "Parroquia de"},
                                {"InstitucionNombre", "Ajena"},
                                {"NombreActividad", "Zapatería"},
                                {"NombreGrupo", "Taller"},
                                {"Colaboradores", "1"}}));
  EXPECT_THAT(w.progreso.sucesos, ElementsAre("Cargar 4 Procesando vista preliminar ... 1 0", "0",
                                              "1", "2", "3", "4", "4"));
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(ActivityRows, ARowOrTheCommitFails_TakesBackAll) {
  for (const char* parte : {"INSERT INTO Informe_Colaboradores", "COMMIT"}) {
    CensoInformes w;
    w.colaborador("Ana", "Sanz", w.grupo(w.actividad("Coro"), "Uno"));
    store::FailingEngine::wrap(w.conInformes())->failOn(parte);
    w.user.answerAnything(forms::Answer::Ok);
    w.informes.InformeActividad(w.con(), w.conInformes(), w.progreso);
    EXPECT_THAT(w.filas(), IsEmpty()) << parte;
    EXPECT_FALSE(w.conInformes().inTransaction()) << parte;
    EXPECT_THAT(w.user.messages().at(0).text, HasSubstr("cInformes / RellenarInformeActividad)"));
  }
}

TEST(AgendaRows, OfTheYear_AreCutByPosition) {
  CensoInformes w;
  w.tarea("20251231", "0900", "Antes");
  w.tarea("20270101", "0900", "Después");
  w.tarea("20261231", "1800", "Vísperas");
  w.tarea("20260101", "0930", "Misa", "Cantada");
  w.tarea("20260101", "0930", "Coro");
  w.tarea("20260101", "9:5", "Mal escrita", "", "");
  w.informes.InformeAgenda(w.con(), w.conInformes(), w.progreso);
  EXPECT_THAT(w.lineas({"Fecha", "HInicio", "HFin", "Nombre", "Descripcion"}, "Tareas_Agenda"),
              ElementsAre("01/01/2026 09:30 20:30 Coro Descripción",
                          "01/01/2026 09:30 20:30 Misa Cantada", "01/01/2026 9:::5 : Mal escrita ",
                          "31/12/2026 18:00 20:30 Vísperas Descripción"));
  EXPECT_THAT(w.progreso.sucesos, ElementsAre("Cargar 4 Procesando vista preliminar ... 1 0", "0",
                                              "1", "2", "3", "4", "4"));
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_SCRIPT_DONE(w.user);
}

TEST(AgendaRows, ARowFails_LeavesTheTransactionToTheConnection) {
  CensoInformes w;
  w.tarea("20260101", "0930", "Misa");
  w.tarea("20260102", "0930", "Coro");
  store::FailingEngine::wrap(w.conInformes())
      ->failOn("INSERT INTO Tareas_Agenda", store::ErrorKind::Other, 2);
  w.user.answerAnything(forms::Answer::Ok);
  w.informes.InformeAgenda(w.con(), w.conInformes(), w.progreso);
  EXPECT_THAT(w.user.messages().at(0).text, HasSubstr("cInformes / InformeAgenda)"));
  ASSERT_TRUE(w.conInformes().inTransaction());
  w.conInformes().RollbackTrans();
  EXPECT_THAT(w.filas("Tareas_Agenda"), IsEmpty());
}

TEST(AgendaRows, StoppedByTheUser_LeaveNothing) {
  CensoInformes w;
  w.tarea("20260101", "0930", "Misa");
  w.progreso.hasta = 1;
  w.user.expectMessage("Operación cancelada. No queda nada de ella.");
  w.informes.InformeAgenda(w.con(), w.conInformes(), w.progreso);
  EXPECT_THAT(w.filas("Tareas_Agenda"), IsEmpty());
  EXPECT_FALSE(w.conInformes().inTransaction());
  EXPECT_SCRIPT_DONE(w.user);
}

}  // namespace
}  // namespace fidaleon::tests
