// The reports of people, groups and tasks as the main program calls them.

#include "core/facade/FacadeWorld.h"
#include "documents/CensoInformes.h"

namespace fidaleon::tests::CensusReportsTest {

struct ReportWorld : CensoInformes {
  ReportWorld() {
    colaborador("Ana", "Sanz", grupo(actividad("Coro"), "Voces blancas"));
    tarea("20260101", "0930", "Misa");
  }
  SpySupport spy{host};
  Entorno observed{user, spy, settings, clock, entorno.installation};
  cNucleo nucleo{observed};
};

using Dialogo = void (cNucleo::*)(FDAPI::Conexion&, FDAPI::Conexion&);
using Informe = void (cNucleo::*)(FDAPI::Conexion&, FDAPI::Conexion&, FDAPI::cProgreso&);

TEST(FacadeCensusReports, Asking_OpensTheDialogOfEach) {
  const struct {
    Dialogo operacion;
    const char* formulario;
    const char* titulo;
  } casos[] = {
      {&cNucleo::SelInfActividad, "frmInfActividad", "Informe de actividades"},
      {&cNucleo::SelInfColaborador, "frmInfActividad", "Informe de colaboradores"},
      {&cNucleo::SelInfColaboradorExt, "frmInfActividad", "Informe de colaboradores (extendido)"},
      {&cNucleo::SelInfTareasAgenda, "frmInfAgenda", "Informe de tareas"}};
  ReportWorld w;
  for (const auto& caso : casos) {
    w.user.expectForm(caso.formulario, [&](FormDriver& u) {
      EXPECT_EQ(u.caption(), caso.titulo);
      u.escape();
    });
    (w.nucleo.*caso.operacion)(w.con(), w.conInformes());
  }
  EXPECT_THAT(w.spy.log, IsEmpty()) << "nothing is locked";
}

TEST(FacadeCensusReports, All_WritesTheRowsOfEach) {
  const struct {
    Informe operacion;
    const char* nombre;
    const char* tabla;
    const char* columna;
    const char* valor;
  } casos[] = {{&cNucleo::InformeActividad, "InformeActividad", "Informe_Colaboradores",
                "Colaboradores", "1"},
               {&cNucleo::InformeColaborador, "InformeColaborador", "Informe_Colaboradores",
                "Apellido1", "Sanz"},
               {&cNucleo::InformeColaboradorExt, "InformeColaboradorExt", "Informe_Colaboradores",
                "Apellido1", "Sanz"},
               {&cNucleo::InformeAgenda, "InformeAgenda", "Tareas_Agenda", "Nombre", "Misa"}};
  for (const auto& caso : casos) {
    ReportWorld w;
    (w.nucleo.*caso.operacion)(w.con(), w.conInformes(), w.progreso);
    const std::vector<Fila> filas = w.filas(caso.tabla);
    ASSERT_EQ(filas.size(), 1u) << caso.nombre;
    EXPECT_EQ(filas[0].at(caso.columna), caso.valor) << caso.nombre;
    EXPECT_EQ(w.progreso.sucesos.size(), 4u) << caso.nombre;
    EXPECT_THAT(w.spy.log, IsEmpty()) << caso.nombre;
  }
}

}  // namespace fidaleon::tests::CensusReportsTest
