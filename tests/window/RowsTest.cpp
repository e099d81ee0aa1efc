#include <QAbstractItemModelTester>

#include "parish/Insert.h"
#include "parish/Parish.h"
#include "store/Open.h"
#include "support/Fields.h"
#include "window/RowsFilter.h"

namespace fidaleon::app::RowsTest {

using tests::insert;

/// A list of entries whose surnames, numbers and dates are awkward on purpose.
class Rows : public ::testing::Test {
 protected:
  void SetUp() override {
    con = store::memoryDatabase(store::parishSchema());
    addInstitution(*con, "San Blas", 0);
    insert(*con, "Libro_Bautismo", "CodInstitucion=1; Nombre=Libro I; FechaCreacion=19000101");
    add("Íñigo", "Nuñez", "12a", "19990101", false);
    add("Oscar", "Núñez", "2", "---", false);
    add("Óscar", "Ñíguez", "10", "20010203", true);
    add("Ana", "Nadal", "1", "19051231", false);
    model.load(*con, *findNode("PartidasBautismo"));
    shown.setSourceModel(&model);
  }

  void add(const std::string& name, const std::string& surname, const std::string& number,
           const std::string& day, bool annulled) {
    insert(*con, "Bautismo",
           "CodLibro=1; Folio=1; Numero=" + number + "; FechaBautismo=" + day +
               (annulled ? "; Anulada=TRUE" : ""));
    insert(*con, "Bautismo_Hijo",
           "CodBautismo=" + std::to_string(++entries) + "; Nombre=" + name +
               "; PrimerApellido=" + surname + "; FechaNac=---");
  }

  int column(const std::string& title) const {
    for (int c = 0; c < model.columnCount(); ++c)
      if (model.headerData(c, Qt::Horizontal, Qt::DisplayRole).toString().toStdString() == title)
        return c;
    return -1;
  }
  QString cell(int row, const std::string& title) const {
    return shown.index(row, column(title)).data().toString();
  }
  std::vector<std::string> sorted(const std::string& by, const std::string& shownColumn,
                                  Qt::SortOrder order = Qt::AscendingOrder) {
    shown.sort(column(by), order);
    std::vector<std::string> values;
    for (int r = 0; r < shown.rowCount(); ++r) values.push_back(cell(r, shownColumn).toStdString());
    return values;
  }

  int entries = 0;
  std::unique_ptr<store::Connection> con;
  RowsModel model;
  RowsFilter shown;
};

TEST_F(Rows, KeepsTheContractOfModels) {
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  model.load(*con, *findNode("Provincias"));
  EXPECT_EQ(model.rowCount(), 52);
  model.load(*con, *findNode("Libros"));
  EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(Rows, Sort_TextInSpanishOrderNumbersByValueDatesByTheDay) {
  EXPECT_THAT(sorted("Primer apellido", "Primer apellido"),
              ElementsAre("Nadal", "Nuñez", "Núñez", "Ñíguez"));
  EXPECT_THAT(sorted("Número", "Número"), ElementsAre("1", "2", "10", "12a"));
  EXPECT_THAT(sorted("Bautismo", "Bautismo", Qt::DescendingOrder),
              ElementsAre("03/02/2001", "01/01/1999", "31/12/1905", ""));
}

TEST_F(Rows, FilterFindsWhateverTheAccentsAndTheOrder) {
  for (const auto& [text, rows] :
       {std::pair("nunez", 2), std::pair("NÚÑEZ", 2), std::pair("oscar nig", 1),
        std::pair("iñigo", 1), std::pair("03/02/2001", 1), std::pair("anulada", 1),
        std::pair("nadie", 0), std::pair("  ", 4)}) {
    shown.setText(QString::fromUtf8(text));
    EXPECT_EQ(shown.rowCount(), rows) << text;
  }
}

TEST_F(Rows, AnAnnulledRowIsMarked) {
  for (int r = 0; r < shown.rowCount(); ++r) {
    const bool annulled = shown.index(r, 0).data(RowsModel::AnnulledRole).toBool();
    EXPECT_EQ(cell(r, "Anulada"), annulled ? "Anulada" : "");
    EXPECT_EQ(shown.index(r, 3).data(Qt::FontRole).value<QFont>().strikeOut(), annulled);
    EXPECT_EQ(shown.index(r, 3).data(Qt::ToolTipRole).toString().isEmpty(), !annulled);
  }
}

TEST_F(Rows, AFailingLoadKeepsWhatWasShown) {
  NodeView broken = *findNode("PartidasBautismo");
  broken.node.SQLSelect = "SELECT Nada FROM Bautismo";
  EXPECT_THROW(model.load(*con, broken), store::Error);
  EXPECT_EQ(model.rowCount(), 4);
}

TEST_F(Rows, AnotherLoad_SortsAndFiltersWhatIsThereNow) {
  shown.setText("nadal");
  shown.sort(column("Nombre"));
  EXPECT_EQ(shown.rowCount(), 1);
  add("Begoña", "Nadal", "3", "20200101", false);
  add("Abel", "Nadal", "4", "20200101", false);
  model.load(*con, *findNode("PartidasBautismo"));
  ASSERT_EQ(shown.rowCount(), 3);
  EXPECT_EQ(cell(0, "Nombre"), "Abel");
  EXPECT_EQ(model.rowOf(model.key(2)), 2);
  EXPECT_EQ(model.rowOf(999), -1);
}

TEST_F(Rows, ReadInSlicesAndWhereTouched_TheyAreThoseOfALoad) {
  const NodeView& view = *findNode("PartidasBautismo");
  const auto texts = [](const QAbstractItemModel& of) {
    std::string all;
    for (int r = 0; r < of.rowCount(); ++r)
      for (int c = 0; c < of.columnCount(); ++c)
        all += of.index(r, c).data().toString().toStdString() + (c == 0 ? '\n' : '|');
    return all;
  };
  for (int n = 0; n < 700; ++n)
    add("Ana", "Gil " + std::to_string(n % 90), std::to_string(n), "19990101", false);
  QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
  shown.setText("ana");
  EXPECT_EQ(model.begin(*con, view, RowsModel::Time{0}), RowsModel::Reading::More);
  shown.sort(column("Primer apellido"));
  EXPECT_EQ(model.rowCount(), 500);
  while (model.readOn(RowsModel::Time{0}) == RowsModel::Reading::More) continue;
  EXPECT_TRUE(shown.sortIfRead());
  con->Execute("UPDATE Bautismo SET Numero=\"699\" WHERE IDBautismo=30");
  con->Execute("UPDATE Bautismo_Hijo SET PrimerApellido=\"Abad\" WHERE CodBautismo=31");
  con->Execute("DELETE FROM Bautismo WHERE IDBautismo=32");
  add("Ana", "Zamora", "3", "20200101", false);
  const RowsModel::Update update = model.update(*con, {30, 31, 32, entries});
  EXPECT_TRUE(update.placed);
  EXPECT_EQ(update.added, entries);
  RowsModel whole;
  whole.load(*con, view);
  EXPECT_TRUE(texts(model) == texts(whole));
  EXPECT_EQ(cell(0, "Primer apellido"), "Abad");
  EXPECT_EQ(cell(shown.rowCount() - 1, "Primer apellido"), "Zamora");
  EXPECT_EQ(shown.rowCount(), 701) << "a row of another name is filtered";
  EXPECT_EQ(model.renew(*con, RowsModel::WHATEVER_IT_TAKES), RowsModel::Reading::Renewed);
  model.takeOver();
  EXPECT_TRUE(texts(model) == texts(whole));
}

TEST_F(Rows, TimesAreShownWithAColon_AndALongTextInOneLine) {
  for (const char* times : {"HoraInicio=0905", "HoraFin=2330"})
    insert(*con, "Tareas", std::string("Fecha=20260524; Nombre=Coro; ") + times);
  con->Execute("UPDATE Tareas SET Descripcion=\"uno\r\ndos\"");
  model.load(*con, *findNode("Tareas"));
  EXPECT_THAT(sorted("Desde", "Desde"), ElementsAre("", "09:05"));
  EXPECT_EQ(cell(0, "Hasta"), "23:30");
  EXPECT_EQ(cell(0, "Fecha"), "24/05/2026");
  EXPECT_EQ(cell(0, "Descripción"), "uno  dos");
  shown.setText("09:05");
  EXPECT_EQ(shown.rowCount(), 1);
}

/// Somebody with these roles, without town or institution.
void addPerson(store::Connection& con, const char* name, const std::vector<int>& roles) {
  insert(
      con, "Padron",
      std::string("PrimerApellido=O'Farrill \"\"el Indiano\"\"; CodMunicipio=0; Nombre=") + name);
  const auto id = con.Execute("SELECT MAX(IDPadron) AS ID FROM Padron").integer("ID");
  for (const int role : roles)
    insert(con, "Padron_TipoPersona",
           "CodPadron=" + std::to_string(id) + "; CodTipoPersona=" + std::to_string(role));
}

TEST_F(Rows, PeopleAreListedOnceInEachOfTheirRoles) {
  addPerson(*con, "Empadronada", {2});
  addPerson(*con, "Colaborador", {3});
  addPerson(*con, "Ambas cosas", {2, 3});
  addPerson(*con, "Nada", {});
  insert(*con, "Padron_Nacimiento", "CodPadron=3; FechaNacimiento=19801231");
  model.load(*con, *findNode("Padrón"));
  EXPECT_THAT(sorted("Nombre", "Nombre"), ElementsAre("Ambas cosas", "Empadronada"));
  EXPECT_EQ(cell(0, "Nacimiento"), "31/12/1980");
  EXPECT_EQ(cell(1, "Primer apellido"), "O'Farrill \"el Indiano\"");
  for (int n = 0; n < 600; ++n) addPerson(*con, "Ana", {2});
  con->Execute("UPDATE Padron SET PrimerApellido=\"Ñu\" WHERE IDPadron=100");
  const NodeView& people = *findNode("Padrón");
  EXPECT_EQ(model.begin(*con, people, RowsModel::Time{0}), RowsModel::Reading::More);
  while (model.readOn(RowsModel::Time{0}) == RowsModel::Reading::More) continue;
  model.takeOver();
  RowsModel whole;
  whole.load(*con, people);
  EXPECT_TRUE(model.keys() == whole.keys()) << "read as they lie, and put in order";
  model.load(*con, *findNode("Colaboradores"));
  EXPECT_THAT(sorted("Nombre", "Nombre"), ElementsAre("Ambas cosas", "Colaborador"));
}

TEST_F(Rows, ActivitiesCountTheirOwnGroupsAndMembers) {
  for (const char* name : {"Coro", "Limpieza", "Cáritas"})
    Insert("Actividad").text("Nombre", name).number("CodInstitucion", 1).into(*con);
  for (const int activity : {1, 1, 3}) Insert("Grupo").number("CodActividad", activity).into(*con);
  for (const int group : {1, 2, 2, 3})
    Insert("Padron_Actividad").number("CodPadron", 5).number("CodGrupo", group).into(*con);
  model.load(*con, *findNode("Actividades"));
  EXPECT_THAT(sorted("Actividad", "Grupos"), ElementsAre("1", "2", "0"));
  EXPECT_THAT(sorted("Actividad", "Miembros"), ElementsAre("1", "3", "0"));
  EXPECT_EQ(cell(1, "Institución"), "San Blas");
}

TEST(Nodes, EveryListRunsAndHasItsColumns) {
  const auto con = store::memoryDatabase(store::parishSchema());
  for (const NodeView& v : nodeViews()) {
    if (v.node.SQLSelect.empty()) continue;
    const auto rows = con->Execute(v.node.SQLSelect);
    std::vector<std::string> names;
    for (int f = 0; f < rows.FieldCount(); ++f) names.push_back(rows.FieldName(f));
    for (const ColumnView& c : v.columns) EXPECT_THAT(names, Contains(c.field)) << v.node.Nombre;
    EXPECT_THAT(names, Contains(v.key)) << v.node.Nombre;
  }
}

}  // namespace fidaleon::app::RowsTest
