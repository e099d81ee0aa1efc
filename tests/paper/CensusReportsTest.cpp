// The reports of people, groups and tasks over rows as their writers leave them.

#include <QRegularExpression>

#include "paper/PdfText.h"
#include "paper/Report.h"
#include "paper/Rows.h"

namespace fidaleon::paper::test::CensusReportsTest {

const Values PERSON{{"InstitucionNombre", "San Ginés"},
                    {"InstitucionTipo", "Parroquia de"},
                    {"NombreActividad", "Coro"},
                    {"NombreGrupo", "Voces blancas"},
                    {"Nombre", "Ana"},
                    {"Apellido1", "Núñez"},
                    {"Apellido2", "Gil"},
                    {"Direccion", "Calle Mayor, 3 C.P.: 28013"},
                    {"PoblacionProvincia", "Getafe (Madrid)"},
                    {"Telefono1", "915550101"},
                    {"Telefono2", "600100200"},
                    {"Email", "ana@correo.es"},
                    {"Comentarios", "Tiene llave del archivo."},
                    {"FechaNacimiento", "15/03/1970"},
                    {"NombresPadres", "Luis Carmen"},
                    {"FechaBautismo", "10/04/1970"},
                    {"ParroquiaBaut", "Santa Cruz"},
                    {"DireccionBaut", "Arenal, 13"},
                    {"PoblacionProvinciaBaut", "Toledo (Toledo)"},
                    {"Profesion", "(Maestra)"}};

class CensusReport : public ::testing::Test {
 protected:
  void add(const Values& changes, const Values& row = PERSON) {
    insert(*reports_, with(row, changes), "Informe_Colaboradores");
  }
  void addGroup(const std::string& institution, const std::string& activity,
                const std::string& group, const std::string& count) {
    add({}, {{"InstitucionTipo", "Parroquia de"},
             {"InstitucionNombre", institution},
             {"NombreActividad", activity},
             {"NombreGrupo", group},
             {"Colaboradores", count}});
  }
  void addTask(const std::string& date, const std::string& from, const std::string& to,
               const std::string& name, const std::string& text = "") {
    insert(
        *reports_,
        {{"Fecha", date}, {"HInicio", from}, {"HFin", to}, {"Nombre", name}, {"Descripcion", text}},
        "Tareas_Agenda");
  }
  Report open(const std::string& templateName, ReportOptions options = {}) {
    return Report(*reports_, FIDALEON_TEMPLATES, templateName, "Informe", std::move(options));
  }
  std::string text(const std::string& name) { return pdfText(open(name)); }

  std::unique_ptr<store::Connection> reports_ = store::memoryDatabase(store::reportsSchema());
};

TEST_F(CensusReport, activities_standUnderTheirInstitutionOnce) {
  addGroup("San Ginés", "Catequesis", "Primero", "4");
  addGroup("San Ginés", "Coro", "Primero", "12");
  addGroup("San Ginés", "Coro", "Segundo", "1");
  addGroup("Santa Cruz", "Coro", "Segundo", "7");
  const std::string printed = text("informe_actividades");
  EXPECT_THAT(printed, HasSubstr("Grupos: 4"));
  EXPECT_THAT(found(printed,
                    "(PARROQUIA DE SAN GINÉS|PARROQUIA DE SANTA CRUZ|Catequesis|Coro|"
                    "Primero \\d+|Segundo \\d+)"),
              ElementsAre("PARROQUIA DE SAN GINÉS", "Catequesis", "Primero 4", "Coro", "Primero 12",
                          "Segundo 1", "PARROQUIA DE SANTA CRUZ", "Coro", "Segundo 7"));
}

TEST_F(CensusReport, collaborators_areArrangedHoweverTheyWereWritten) {
  add({{"NombreActividad", "Sin actividad asociada"},
       {"NombreGrupo", "Sin grupo"},
       {"Nombre", "Seis"}});
  add({{"NombreActividad", "Zapatería"}, {"NombreGrupo", "A"}, {"Nombre", "Cinco"}});
  add({{"NombreGrupo", "Voces graves"}, {"Nombre", "Cuatro"}});
  add({{"InstitucionNombre", "Ajena"}, {"Nombre", "Uno"}});
  add({{"Apellido1", "Olmo"}, {"Nombre", "Tres"}});
  add({{"Apellido1", "Nuño"}, {"Nombre", "Dos"}});
  for (const char* operation : {"informe_colaboradores", "informe_colaboradores_ext"})
    EXPECT_THAT(found(text(operation), ", (Uno|Dos|Tres|Cuatro|Cinco|Seis)"),
                ElementsAre("Uno", "Dos", "Tres", "Cuatro", "Cinco", "Seis"));
  EXPECT_THAT(found(text("informe_colaboradores"),
                    "(Coro|Voces \\w+|Zapatería|Sin actividad asociada|Sin grupo)"),
              ElementsAre("Coro", "Voces blancas", "Coro", "Voces blancas", "Voces graves",
                          "Zapatería", "Sin actividad asociada"));
}

TEST_F(CensusReport, collaboratorList_givesWhereToFindThem_theExtendedOneAllThatIsKnown) {
  add({});
  const std::vector<std::string> both{
      "Núñez Gil, Ana",        "(Maestra)",    "Calle Mayor, 3 C.P.: 28013", "Getafe (Madrid)",
      "915550101 · 600100200", "ana@correo.es"};
  const std::vector<std::string> more{"Nacimiento: 15/03/1970", "Padres: Luis Carmen",
                                      "Bautismo: 10/04/1970, Santa Cruz",
                                      "Parroquia del bautismo: Arenal, 13, Toledo (Toledo)",
                                      "Comentarios: Tiene llave del archivo."};
  const std::string list = text("informe_colaboradores");
  const std::string extended = text("informe_colaboradores_ext");
  for (const std::string& piece : both) {
    EXPECT_THAT(list, HasSubstr(piece));
    EXPECT_THAT(extended, HasSubstr(piece));
  }
  for (const std::string& piece : more) {
    EXPECT_THAT(list, Not(HasSubstr(piece)));
    EXPECT_THAT(extended, HasSubstr(piece));
  }
}

TEST_F(CensusReport, whatIsNotKnown_leavesNoTrace) {
  Values blank = PERSON;
  for (auto& [column, value] : blank)
    if (column.rfind("Institucion", 0) != 0 && column != "Nombre" && column != "Apellido1")
      value = column == "Direccion" || column == "Profesion" ? "" : "---";
  add({{"NombreActividad", "Coro"}, {"NombreGrupo", "Uno"}}, blank);
  for (const char* operation : {"informe_colaboradores", "informe_colaboradores_ext"}) {
    const std::string printed = text(operation);
    EXPECT_THAT(printed, HasSubstr("Núñez, Ana"));
    EXPECT_THAT(printed, Not(HasSubstr("---"))) << operation;
    EXPECT_THAT(found(printed, "(\\w+:|·)"), IsEmpty()) << "a label without what it names";
  }
}

TEST_F(CensusReport, twoHundredCollaborators_pagesTellWhatTheyGoOnWith_andNoHeadStandsAlone) {
  reports_->BeginTrans();
  for (int i = 0; i < 200; ++i)
    add({{"NombreGrupo", "Grupo" + std::to_string(10 + i / 9)}, {"Nombre", std::to_string(i)}});
  reports_->CommitTrans();
  const Report report = open("informe_colaboradores");
  ASSERT_GE(report.pageCount(), 3);
  for (int page = 0; page < report.pageCount(); ++page) {
    const std::string printed = pageText(report, page);
    if (page > 0) {
      EXPECT_THAT(printed, ::testing::ContainsRegex("^ *Parroquia de San Ginés +Coro · Grupo"));
    }
    EXPECT_THAT(printed, ::testing::ContainsRegex("\n *" + std::to_string(page + 1) + "\n"));
    const auto heads = found(printed, "(?m)^ *(Grupo\\d+)$");
    for (const std::string& head : heads)
      EXPECT_TRUE(QRegularExpression(QString::fromStdString(head + "\\n(\\s*\\n)* *Núñez Gil, "))
                      .match(QString::fromStdString(printed))
                      .hasMatch())
          << head << " on page " << page << "\n"
          << printed;
  }
}

TEST_F(CensusReport, agenda_isCutByDays) {
  addTask("01/12/2026", "09:30", "10:15", "Misa", "Con los niños\r\nde primera comunión");
  addTask("01/12/2026", "18:00", ":", "Vísperas");
  addTask("02/12/2026", ":", ":", "Limpieza");
  ReportOptions options;
  options.values = {{"Institucion", "Parroquia de San Ginés"}};
  const std::string printed = pdfText(open("informe_agenda", options));
  EXPECT_THAT(printed, HasSubstr("PARROQUIA DE SAN GINÉS"));
  EXPECT_THAT(printed, HasSubstr("01/12/2026 – 02/12/2026 · Tareas: 3"));
  EXPECT_THAT(printed, HasSubstr("Martes, 01/12/2026 09:30 – 10:15 Misa Con los niños de primera "
                                 "comunión 18:00 Vísperas Miércoles, 02/12/2026 Limpieza"));
}

TEST_F(CensusReport, oneDay_isNamedOnce) {
  addTask("01/12/2026", "09:30", "10:15", "Misa");
  EXPECT_THAT(text("informe_agenda"), HasSubstr("01/12/2026 · Tareas: 1 Martes, 01/12/2026"));
}

TEST_F(CensusReport, nestedHeads_beginAnewWithTheOneAroundThem) {
  TemporaryFolder folder;
  folder.write("prueba.xml",
               "<template table='Tareas_Agenda' flow='continuous'>"
               "<group-head column='Fecha, HInicio'><p>[{{Fecha}} {{HInicio}}]</p></group-head>"
               "<group-head column='Nombre'><p>({{Nombre}})</p></group-head>"
               "<body><p>{{Descripcion}}</p></body></template>");
  addTask("1", "a", "", "x", "uno");
  addTask("1", "a", "", "x", "dos");
  addTask("1", "b", "", "x", "tres");
  addTask("2", "b", "", "x", "cuatro");
  addTask("2", "b", "", "y", "cinco");
  EXPECT_EQ(pdfText(Report(*reports_, folder.path(), "prueba", "x")),
            "[1 a] (x) uno dos [1 b] (x) tres [2 b] (x) cuatro (y) cinco");
}

TEST_F(CensusReport, orderOfTheTemplate_givesWayToTheOneAskedFor) {
  TemporaryFolder folder;
  folder.write("prueba.xml",
               "<template table='Tareas_Agenda' flow='continuous' order='-{@N}'>"
               "<formula name='N'>{{Nombre}}</formula>"
               "<body><p>{{Nombre}}</p></body></template>");
  addTask("1", "", "", "a");
  addTask("1", "", "", "b");
  EXPECT_EQ(pdfText(Report(*reports_, folder.path(), "prueba", "x")), "b a");
  ReportOptions options;
  options.order = "+{@N}";
  EXPECT_EQ(pdfText(Report(*reports_, folder.path(), "prueba", "x", options)), "a b");
}

}  // namespace fidaleon::paper::test::CensusReportsTest
