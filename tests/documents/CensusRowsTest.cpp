// The rows of the reports of people, groups and tasks, written at once for the whole parish.

#include "CensoInformes.h"
#include "store/FailingEngine.h"

namespace fidaleon::tests::CensusRowsTest {

struct CollaboratorRows : ::testing::Test, CensoInformes {
  CollaboratorRows() { coro = grupo(actividad("Coro"), "Voces blancas"); }
  std::vector<Fila> imprimir() {
    informes.InformeColaborador(con(), conInformes(), progreso);
    return filas();
  }
  std::int32_t coro = 0;
};

const Fila COMPLETA = row(R"(
    InstitucionNombre=San Ginés; InstitucionTipo=Parroquia de; NombreActividad=Coro
    NombreGrupo=Voces blancas; Nombre=Ana; Apellido1=Sanz; Apellido2=Gil
    Direccion=Calle Mayor, 3 C.P.: 28013; PoblacionProvincia=Getafe (Madrid); Telefono1=915550101
    Telefono2=600100200; Email=ana@correo.es; Comentarios=Canta d'oído; FechaNacimiento=15/03/1970
    NombresPadres=Luis y Carmen; FechaBautismo=10/04/1970; ParroquiaBaut=San Ginés
    DireccionBaut=Arenal, 13; PoblacionProvinciaBaut=Toledo (Toledo); Profesion=(Maestra))");

TEST_F(CollaboratorRows, AllKnown_FillsItsColumnsAndNoOther) {
  colaborador("Ana", "Sanz", coro);
  run("UPDATE Padron SET CodMunicipio=" + std::to_string(municipio("Getafe", "Madrid")) +
      ", Telefono2=\"600100200\", CorreoElectronico=\"ana@correo.es\", Comentarios=\"Canta "
      "d'oído\", [Profesion/Colegio]=\"Maestra\"");
  run("UPDATE Padron_Bautismo SET CodMunicipioParrBaut=" +
      std::to_string(municipio("Toledo", "Toledo")));
  EXPECT_THAT(imprimir(), ElementsAre(COMPLETA));
  EXPECT_FALSE(conInformes().inTransaction());
  EXPECT_EQ(user.hourglassDepth(), 0);
  run("UPDATE Padron SET Comentarios='Llamada \"Nana\"'");
  EXPECT_EQ(imprimir().back().at("Comentarios"), "Llamada \"Nana\"");
}

TEST_F(CollaboratorRows, NothingKnown_PrintsDashesButForDatesPlacesAndParents) {
  colaborador("Ana", "Sanz", coro);
  run("UPDATE Padron SET Direccion=\"Calle Mayor, 3\", CPostal=\" \", Telefono=\"\", "
      "Telefono2=NULL, CorreoElectronico=\"  \", Comentarios=NULL, [Profesion/Colegio]=\" \"");
  run("UPDATE Padron_Nacimiento SET FechaNacimiento=\"\", NombrePadre=\"\", NombreMadre=NULL");
  run("UPDATE Padron_Bautismo SET FechaBautizo=NULL, ParroquiaBaut=\"\", "
      "DireccionParrBaut=NULL, CodMunicipioParrBaut=999");
  run("UPDATE Institucion SET InstitucionTipo=\"\"");
  EXPECT_THAT(imprimir(), ElementsAre(row(R"(
      InstitucionNombre=San Ginés; InstitucionTipo=---; NombreActividad=Coro
      NombreGrupo=Voces blancas; Nombre=Ana; Apellido1=Sanz; Apellido2=Gil
      Direccion=Calle Mayor, 3; PoblacionProvincia=; Telefono1=---; Telefono2=---; Email=---
      Comentarios=---; FechaNacimiento=; NombresPadres=; FechaBautismo=; ParroquiaBaut=---
      DireccionBaut=---; PoblacionProvinciaBaut=; Profesion=)")));
}

TEST_F(CollaboratorRows, HalfKnown_JoinsWhatThereIs) {
  colaborador("Ana", "Sanz", coro);
  insert(con(), "Municipio", "Nombre= Lisboa ; CodProvincia=999");
  run("UPDATE Padron SET CodMunicipio=" + value("SELECT MAX(IDMunicipio) FROM Municipio"));
  run("UPDATE Padron_Nacimiento SET NombrePadre=\"\"");
  const Row fila = imprimir().at(0);
  EXPECT_EQ(fila.at("PoblacionProvincia") + "/" + fila.at("NombresPadres"), "Lisboa/Carmen");
  run("UPDATE Padron_Nacimiento SET NombrePadre=\"Luis\", NombreMadre=\"Inés\"");
  EXPECT_EQ(imprimir().back().at("NombresPadres"), "Luis e Inés");
}

TEST_F(CollaboratorRows, EachInstitution_ListsItsMembersThenThoseOfNoActivityThere) {
  EXPECT_THAT(imprimir(), IsEmpty());
  EXPECT_THAT(progreso.sucesos, IsEmpty()) << "of nobody";
  const std::int32_t caritas = grupo(actividad("Cáritas", institucion("Ajena")), "Acogida");
  miembro(colaborador("Ana", "Dos", coro), caritas, 1);
  colaborador("Eva", "Una", caritas);
  colaborador("Luz", "Ninguna");
  persona("Pío", "Censo", "Gil");
  const std::vector<Row> una = imprimir();
  EXPECT_THAT(lineas({"InstitucionNombre", "NombreActividad", "NombreGrupo", "Apellido1"}),
              ElementsAre("Ajena Cáritas Acogida Dos", "Ajena Cáritas Acogida Una",
                          "Ajena Sin actividad asociada Sin grupo Ninguna",
                          "San Ginés Coro Voces blancas Dos",
                          "San Ginés Sin actividad asociada Sin grupo Una",
                          "San Ginés Sin actividad asociada Sin grupo Ninguna"));
  const auto sucesos = std::exchange(progreso.sucesos, {});
  EXPECT_THAT(sucesos, ElementsAre("Cargar 6 Procesando vista preliminar ... 1 0", "0", "1", "2",
                                   "3", "4", "5", "6", "6"));
  conInformes().Execute("DELETE * FROM Informe_Colaboradores");
  informes.InformeColaboradorExt(con(), conInformes(), progreso);
  EXPECT_EQ(filas(), una) << "the extended one writes the same rows";
  EXPECT_EQ(progreso.sucesos, sucesos);
}

TEST(ActivityRows, CountTheMembersOfEachGroup_InOrder) {
  CensoInformes w;
  const std::int32_t coro = w.actividad("Coro");
  const std::int32_t grupos[] = {
      w.grupo(coro, "Voces graves"), w.grupo(coro, "Voces agudas"),
      w.grupo(w.actividad("Catequesis"), "Primero"),
      w.grupo(w.actividad("Zapatería", w.institucion("Ajena")), "Taller")};
  w.grupo(coro, "Sin nadie");
  for (const std::int32_t uno : grupos) w.colaborador("Ana", "Sanz", uno);
  w.colaborador("Eva", "Sanz", grupos[0]);
  w.informes.InformeActividad(w.con(), w.conInformes(), w.progreso);
  EXPECT_THAT(w.lineas({"InstitucionNombre", "NombreActividad", "NombreGrupo", "Colaboradores"}),
              ElementsAre("Ajena Zapatería Taller 1", "San Ginés Catequesis Primero 1",
                          "San Ginés Coro Voces agudas 1", "San Ginés Coro Voces graves 2"));
  EXPECT_EQ(w.filas()[0], row("InstitucionTipo=Parroquia de; InstitucionNombre=Ajena; "
                              "NombreActividad=Zapatería; NombreGrupo=Taller; Colaboradores=1"));
  EXPECT_THAT(w.progreso.sucesos, ElementsAre("Cargar 4 Procesando vista preliminar ... 1 0", "0",
                                              "1", "2", "3", "4", "4"));
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
}

struct Informe {
  const char* nombre;
  void (cNucleo::*imprimir)(FDAPI::Conexion&, FDAPI::Conexion&, FDAPI::cProgreso&);
  const char *tabla, *quienFalla;
  bool quedaAbierta;  // the transaction is left to the connection
};

class CensusReport : public ::testing::TestWithParam<Informe> {
 protected:
  CensusReport() {
    const std::int32_t coro = w.grupo(w.actividad("Coro"), "Voces blancas");
    for (const char* una : {"Ana", "Eva"}) w.colaborador(una, "Sanz", coro);
    w.colaborador("Luz", "Sanz", w.grupo(w.actividad("Cáritas"), "Acogida"));
    for (const char* dia : {"20260101", "20260102"}) w.tarea(dia, "0930", "Misa");
    insert(w.conInformes(), i.tabla, "Nombre=Anterior");
  }
  void imprimir() { (w.informes.*i.imprimir)(w.con(), w.conInformes(), w.progreso); }
  const Informe& i = GetParam();
  CensoInformes w;
};

TEST_P(CensusReport, ARowTheCommitOrTheReadingFails_IsToldAndNothingIsLeft) {
  for (const bool lectura : {false, true})
    for (const char* parte : {"INSERT INTO", "COMMIT"}) {
      if (lectura)
        w.fallos().failOn("SELECT");
      else
        w.fallanInformes(parte, *parte == 'I' ? 2 : 1);
      w.user.answerAnything(Answer::Ok);
      imprimir();
      EXPECT_THAT(w.user.messages().back().text,
                  HasSubstr(std::string("FidaleonNucleo / cInformes / ") +
                            (lectura ? i.nombre : i.quienFalla) + ")"));
      EXPECT_EQ(w.conInformes().inTransaction(), i.quedaAbierta && !lectura);
      if (w.conInformes().inTransaction()) w.conInformes().RollbackTrans();
      EXPECT_THAT(w.lineas({"Nombre"}, i.tabla), ElementsAre("Anterior"));
      EXPECT_EQ(w.user.hourglassDepth(), 0);
    }
}

TEST_P(CensusReport, StoppedByTheUser_LeavesNothing) {
  w.progreso.hasta = 1;
  w.user.expectMessage("Operación cancelada. No queda nada de ella.");
  imprimir();
  EXPECT_THAT(w.lineas({"Nombre"}, i.tabla), ElementsAre("Anterior"));
  EXPECT_FALSE(w.conInformes().inTransaction());
}

INSTANTIATE_TEST_SUITE_P(
    Reports, CensusReport,
    ::testing::Values(Informe{"InformeColaborador", &cNucleo::InformeColaborador,
                              "Informe_Colaboradores", "RellenarInformeColaborador", false},
                      Informe{"InformeColaboradorExt", &cNucleo::InformeColaboradorExt,
                              "Informe_Colaboradores", "RellenarInformeColaborador", false},
                      Informe{"InformeActividad", &cNucleo::InformeActividad,
                              "Informe_Colaboradores", "RellenarInformeActividad", false},
                      Informe{"InformeAgenda", &cNucleo::InformeAgenda, "Tareas_Agenda",
                              "InformeAgenda", true}),
    [](const auto& caso) { return std::string(caso.param.nombre); });

}  // namespace fidaleon::tests::CensusRowsTest
