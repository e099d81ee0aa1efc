// Lists saved for a spreadsheet.

#include <QXmlStreamReader>
#include <fstream>
#include <map>

#include "export/CsvText.h"
#include "export/OdsDocument.h"
#include "files/Machine.h"
#include "parish/Insert.h"
#include "window/ChosenRows.h"
#include "window/ListExport.h"
#include "window/OpenWindow.h"
#include "window/RowsFilter.h"

namespace fidaleon::app::ExportTest {

using Kind = ListCell::Kind;

ListTable listOf(std::string name, std::vector<ListColumn> columns, std::vector<ListLine> rows) {
  return {std::move(name), std::move(columns), rows.size(), [rows](auto row) { return rows[row]; }};
}

std::string csvText(const ListTable& table) {
  std::string all;
  writeCsv(table, [&](std::string_view part) { all += part; });
  return all;
}

std::string contentOf(const ListTable& table) {
  const auto next = odsContent(table);
  std::string all;
  for (std::size_t before = 1; before != all.size(); next(all)) before = all.size();
  return all;
}

ListTable sample() {
  return listOf(
      "Partidas, Bautismo", {{"Nombre", 4.5}, {"Folio", 2}, {"Fecha", 2.25}, {"Hora", 2}},
      {{{Kind::Text, "Íñigo; «el \"Rubio\"»"},
        {Kind::Number, "12"},
        {Kind::Date, "1999-01-05"},
        {Kind::Time, "09:30"}},
       {{Kind::Text, ""}, {Kind::Number, "-3"}, {Kind::Date, ""}, {Kind::Text, "tarde"}}});
}

std::string csvOf(const std::string& text) {
  const std::string all = csvText(listOf("Lista", {{"T", 3}}, {{{Kind::Text, text}}}));
  return all.substr(6, all.size() - 8);  // without mark, title and line ends
}

TEST(Csv, IsWhatSpanishSpreadsheetsTake) {
  EXPECT_EQ(csvText(sample()),
            "\xEF\xBB\xBFNombre;Folio;Fecha;Hora\r\n"
            "\"Íñigo; «el \"\"Rubio\"\"»\";12;05/01/1999;09:30\r\n"
            ";-3;;tarde\r\n");
  EXPECT_EQ(csvText(listOf("Vacía", {{"Nombre", 3}}, {})), "\xEF\xBB\xBFNombre\r\n");
}

TEST(Csv, AwkwardTexts) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {"=1+1", "'=1+1"},
      {"+34 600 100 200", "'+34 600 100 200"},
      {"-2+3", "'-2+3"},
      {"@SUMA(A1)", "'@SUMA(A1)"},
      {"=HYPERLINK(\"http://x\";\"y\")", "\"'=HYPERLINK(\"\"http://x\"\";\"\"y\"\")\""},
      {"  =1", "'  =1"},
      {"\t=1", "\"'\t=1\""},
      {"\r\n=1", "\"'\n=1\""},
      {"\x01=1", "'=1"},
      {"a=1", "a=1"},
      {"García-Abril", "García-Abril"},
      {"c/ Mayor, 3", "\"c/ Mayor, 3\""},
      {"una\r\ndos\rtres", "\"una\ndos\ntres\""},
      {" blanco ", "\" blanco \""},
      {std::string("nulo\0fin", 8), "nulofin"},
  };
  for (const auto& [text, written] : cases) EXPECT_EQ(csvOf(text), written) << text;
  EXPECT_THAT(csvText(listOf("L", {{"=T", 3}}, {})), HasSubstr("'=T")) << "titles too";
}

TEST(Ods, ContentIsTyped) {
  const std::string content = contentOf(sample());
  for (const char* part :
       {"<table:table table:name=\"Partidas, Bautismo\"><table:table-column "
        "table:style-name=\"columna1\"/>",
        "<table:table-header-rows><table:table-row><table:table-cell table:style-name=\"titulo\" "
        "office:value-type=\"string\"><text:p>Nombre</text:p></table:table-cell>",
        "office:value-type=\"float\" office:value=\"12\"><text:p>12</text:p>",
        "table:style-name=\"fecha\" office:value-type=\"date\" office:date-value=\"1999-01-05\">"
        "<text:p>05/01/1999</text:p>",
        "table:style-name=\"hora\" office:value-type=\"time\" office:time-value=\"PT09H30M00S\">"
        "<text:p>09:30</text:p></table:table-cell></table:table-row>",
        "<table:table-row><table:table-cell/><table:table-cell office:value-type=\"float\" "
        "office:value=\"-3\">",
        "style:column-width=\"4.50cm\"", "fo:font-weight=\"bold\"",
        "style:name=\"fecha\" style:family=\"table-cell\" style:data-style-name=\"N-fecha\""})
    EXPECT_THAT(content, HasSubstr(part));
}

std::string paragraphOf(const std::string& text) {
  const std::string content = contentOf(listOf("L", {{"T", 3}}, {{{Kind::Text, text}}}));
  QXmlStreamReader xml(QByteArray::fromStdString(content));
  while (!xml.atEnd()) xml.readNext();
  EXPECT_FALSE(xml.hasError()) << text;
  const std::size_t end = content.find("</table:table-row></table:table>");
  const std::string row = content.substr(0, end);
  const std::size_t cell = row.rfind("\"string\">") + 9;
  return row.substr(cell, row.rfind("</table:table-cell>") - cell);
}

TEST(Ods, AwkwardTexts_StayTextsAndXmlStaysSound) {
  const std::vector<std::pair<std::string, std::string>> cases{
      {"=1+1", "<text:p>=1+1</text:p>"},
      {"<a> & \"b\"", "<text:p>&lt;a&gt; &amp; &quot;b&quot;</text:p>"},
      {"una\r\ndos\n\ntres",
       "<text:p>una</text:p><text:p>dos</text:p><text:p></text:p><text:p>tres</text:p>"},
      {" a  b\tc ", "<text:p><text:s/>a <text:s/>b c<text:s/></text:p>"},
      {std::string("\x01\x00 a\x0B\x1F", 6), "<text:p><text:s/>a</text:p>"},
      {"\xEF\xBF\xBE\xEF\xBF\xBFx", "<text:p>x</text:p>"},
      {"\xC3(", "<text:p>\xEF\xBF\xBD(</text:p>"},
      {"]]> 𝓝", "<text:p>]]&gt; 𝓝</text:p>"},
  };
  for (const auto& [text, written] : cases) EXPECT_EQ(paragraphOf(text), written) << text;
  EXPECT_THAT(contentOf(listOf("a/b:[c]\\'?*", {}, {})), HasSubstr("table:name=\"a b c\""));
  EXPECT_THAT(contentOf(listOf("", {}, {})), HasSubstr("table:name=\"Lista\""));
}

class ListFile : public ParishTest {
 protected:
  std::string content() const {
    std::ifstream in(file.toStdString());
    return std::string(std::istreambuf_iterator<char>(in), {});
  }
  const QString file = QString::fromStdString((directory() / "lista.ods").string());
};

TEST_F(ListFile, OdsSaysWhatItIsInItsFirstBytes) {
  EXPECT_EQ(writeList(sample(), ListFormat::Ods, file), "");
  const std::string ods = content();
  EXPECT_THAT(ods, StartsWith("PK\3\4"));
  EXPECT_EQ(ods.substr(8, 2), std::string(2, '\0')) << "as it stands, not packed";
  EXPECT_EQ(ods.substr(28, 2), std::string(2, '\0')) << "nothing between name and content";
  EXPECT_EQ(ods.substr(30, 54), "mimetypeapplication/vnd.oasis.opendocument.spreadsheet");
  for (const char* name : {"content.xml", "META-INF/manifest.xml"})
    EXPECT_THAT(ods, HasSubstr(name));
  EXPECT_EQ(ods.find("<table:table"), std::string::npos) << "the sheet is packed";
}

TEST_F(ListFile, IsTheNewOneOrTheOldOne) {
  EXPECT_EQ(writeList(sample(), ListFormat::Csv, file), "");
  const std::string old = content();
  ListTable much = sample();
  much.row = [row = much.row, &much](std::size_t n) {
    if (much.count == 1000 && n == 999) throw std::runtime_error("hasta aquí");
    return row(n % 2);
  };
  for (const ListFormat format : {ListFormat::Csv, ListFormat::Ods}) {
    much.count = 1000;
    EXPECT_EQ(writeList(much, format, file), "hasta aquí");
    much.count = 100000;
    const FullDisk full(1000);
    EXPECT_THAT(writeList(much, format, file), HasSubstr("el disco"));
    EXPECT_THAT(writeList(much, format, file + "/no/hay.csv"), HasSubstr("la carpeta no existe"));
  }
  EXPECT_EQ(content(), old);
  EXPECT_EQ(QDir(QString::fromStdString(directory().string())).entryList(QDir::Files),
            QStringList{"lista.ods"});
}

class SavedList : public OpenWindow<> {
 protected:
  void SetUp() override {
    create();
    desk->parish().Execute("DELETE FROM Cargo");
    addOffice("Sacristán", "Abre y cierra.\r\nToca.");
    addOffice("Ñandú", "---");
    addOffice("Organista", "=2+2");
    open("Cargos");
  }
  void addOffice(const std::string& name, const std::string& description) {
    Insert("Cargo").text("Nombre", name).text("Descripcion", description).into(desk->parish());
  }
  static std::vector<std::string> texts(const ListTable& table) {
    std::vector<std::string> all;
    for (std::size_t row = 0; row < table.count; ++row) {
      std::string line;
      for (const ListCell& cell : table.row(row)) line += "[" + cell.value + "]";
      all.push_back(line);
    }
    return all;
  }
  /// Writes the name into the dialog that comes, and presses Enter.
  void saveAs(const QString& name) {
    QTimer::singleShot(0, [name] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_TRUE(dialog);
      auto* field = dialog->findChild<QLineEdit*>("fileNameEdit");
      ASSERT_TRUE(field);
      field->setText(name);
      QTest::keyClick(field, Qt::Key_Return);
      if (dialog->isVisible()) dialog->reject();
    });
    give("guardar-lista");
  }
};

TEST_F(SavedList, IsWhatIsShown) {
  QTableView& view = window->table();
  EXPECT_THAT(texts(readList(view)), ElementsAre("[Ñandú][]", "[Organista][=2+2]",
                                                 "[Sacristán][Abre y cierra.\r\nToca.]"));
  view.sortByColumn(0, Qt::DescendingOrder);
  view.horizontalHeader()->moveSection(1, 0);
  window->filter().setText("an");
  const ListTable moved = readList(view);
  EXPECT_EQ(moved.name, "Cargos");
  EXPECT_EQ(moved.columns[0].title, "Descripción");
  EXPECT_THAT(texts(moved), ElementsAre("[Abre y cierra.\r\nToca.][Sacristán]", "[=2+2][Organista]",
                                        "[][Ñandú]"));
  view.hideColumn(1);
  window->filter().setText("sac");
  EXPECT_THAT(texts(readList(view)), ElementsAre("[Sacristán]"));
  window->showNode("Partidas");
  EXPECT_FALSE(window->action("guardar-lista")->isEnabled()) << "a folder has no list";
}

TEST_F(SavedList, OfSeveralChosen_IsTheirsAndWhatIsOfOneRowIsNotGiven) {
  QTableView& view = window->table();
  view.horizontalHeader()->moveSection(1, 0);
  view.sortByColumn(0, Qt::DescendingOrder);
  view.setFocus();
  chooseOnly(view, 0);
  QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(texts(readList(view, Extent::Chosen)),
              ElementsAre("[Abre y cierra.\r\nToca.][Sacristán]", "[=2+2][Organista]"));
  EXPECT_TRUE(window->statusBar()->findChild<QLabel*>()->text().contains("2 filas elegidas"));
  for (const char* ofOne : {"propiedades-cargo", "eliminar-cargo"})
    EXPECT_FALSE(window->action(ofOne)->isEnabled()) << ofOne;
  EXPECT_TRUE(window->action("guardar-elegidas")->isEnabled());
  give("actualizar");
  EXPECT_EQ(readList(view, Extent::Chosen).count, 2u) << "they stay chosen";
  QTest::keyClick(&view, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(readList(view, Extent::Chosen).count, 3u);
  chooseOnly(view, 1);
  EXPECT_TRUE(window->action("eliminar-cargo")->isEnabled());
  EXPECT_FALSE(window->action("guardar-elegidas")->isEnabled());
}

TEST_F(SavedList, NumbersAndDates_AreWhatTheyAre) {
  desk->parish().Execute("UPDATE Bautismo SET Numero=\"007\"");
  window->showNode("PartidasBautismo");
  const ListTable table = readList(window->table());
  std::map<std::string, Kind> kinds;
  for (std::size_t c = 0; c < table.columns.size(); ++c)
    kinds[table.columns[c].title] = table.row(0)[c].kind;
  EXPECT_EQ(table.name, "Partidas\\Bautismo");
  EXPECT_EQ(kinds["Folio"], Kind::Number);
  EXPECT_EQ(kinds["Número"], Kind::Text) << "a zero in front means something";
  EXPECT_EQ(kinds["Bautismo"], Kind::Date);
  EXPECT_EQ(kinds["Nombre"], Kind::Text);
  for (const ListColumn& column : table.columns) EXPECT_GT(column.centimetres, 0.5);
}

TEST_F(SavedList, ByTheWindow_IsWrittenAndTheFolderRemembered) {
  const std::filesystem::path folder = directory() / "listas";
  std::filesystem::create_directory(folder);
  saveAs(QString::fromStdString((folder / "cargos.csv").string()));
  std::ifstream in(folder / "cargos.csv");
  EXPECT_THAT(std::string(std::istreambuf_iterator<char>(in), {}),
              HasSubstr("Organista;'=2+2\r\n"));
  for (const auto& [typed, name] :
       {std::pair("otra", "otra.csv"), std::pair("hoja.ods", "hoja.ods"),
        std::pair("lista 3.5", "lista 3.5.ods")}) {
    saveAs(typed);
    EXPECT_TRUE(std::filesystem::exists(folder / name)) << name;
  }
}

}  // namespace fidaleon::app::ExportTest
