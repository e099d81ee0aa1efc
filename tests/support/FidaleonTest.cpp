#include "core/dialogs/Guard.h"
#include "support/Fidaleon.h"
#include "support/Listas.h"
#include "support/TestWorld.h"

namespace fidaleon::support::FidaleonTest {

using tests::TestWorld;

struct Dialog : forms::Form {
  explicit Dialog(forms::UserInterface& ui) : Form(ui, "frmPrueba") {
    grid.setColumns(3);
    list.setMultiSelect(true);
  }
  forms::TextBox text{*this, "txtTexto", "&NOMBRE DEL NIÑO:"};
  forms::ComboBox combo{*this, "cboLista", "LISTA:"};
  forms::ListBox list{*this, "lstLista"};
  forms::Grid grid{*this, "msgRejilla"};
};

class Services : public ::testing::Test {
 protected:
  TestWorld w;
  Fidaleon f{w.user, w.settings, w.clock};
  Listas listas{w.settings, "Fidaleon"};
  Dialog d{w.user};
};

TEST_F(Services, Errors_AreShownWithTheirPlace) {
  w.user.expectMessage(
      "Se ha producido un error y no se ha podido terminar la operación.\n\nDisco lleno.\n\n"
      "(FidaleonNucleo / frmPrueba / Form_Load())");
  EXPECT_FALSE(guarded(w.contexto, "frmPrueba", "Form_Load()",
                       [] { throw std::runtime_error("Disco lleno."); }));
  EXPECT_EQ(w.user.messages()[0].icon, forms::MsgIcon::Critical);
  w.user.expectMessage("¡ Error al selecionar el formato de los libros !\n\nDisco lleno.");
  try {
    throw std::runtime_error("Disco lleno.");
  } catch (const std::exception&) {
    f.vererror("¡ Error al selecionar el formato de los libros !");
  }
  w.user.expectMessage("solo");
  f.vererror("solo");
  w.user.expectMessage("Falta rellenar el campo «NOMBRE DEL NIÑO».");
  f.verfalta(*d.text.label());
  EXPECT_EQ(w.user.beeps(), 1);
}

TEST_F(Services, Dates) {
  EXPECT_EQ(f.stringdate("20030512"), "12/05/2003");
  EXPECT_EQ(f.stringdate(""), "//");
  EXPECT_EQ(f.stringdate("---"), "---");
  EXPECT_EQ(f.Anos("20030512", "20260511"), 22);
  EXPECT_EQ(f.Anos("20030512", "20260512"), 23);
  EXPECT_EQ(f.Anos("---", "20260512"), 0);
  EXPECT_EQ(f.Edad("19701122"), 56);
  EXPECT_EQ(f.Edad("19701123"), 55);
}

TEST_F(Services, PlacesByKey) {
  const auto town = w.municipio("Getafe", "Madrid");
  w.con().Execute("INSERT INTO Municipio (Nombre, CodProvincia) VALUES (\"Suelto\", 999)");
  EXPECT_EQ(f.Poblacion(w.con(), town), "Getafe");
  EXPECT_EQ(f.PROVINCIA(w.con(), town), "Madrid");
  EXPECT_EQ(f.Poblacion(w.con(), town + 1), "Suelto");
  EXPECT_EQ(f.PROVINCIA(w.con(), town + 1), "");
  EXPECT_EQ(f.Poblacion(w.con(), 0) + f.PROVINCIA(w.con(), 12345), "");
}

TEST_F(Services, FieldsAndLists) {
  d.text.setText("dijo \"sí\"");
  d.text.setSelection(6, 0);
  f.ComprobarComilla(d.text);
  EXPECT_EQ(d.text.text(), "dijo ''sí''");
  EXPECT_EQ(d.text.selStart(), 7);

  d.combo.addItem("uno", 1);
  d.combo.setListIndex(0);
  forms::KeyPress other{.key = forms::Key::Down};
  f.Comprobar_borrarcombo(other, d.combo);
  EXPECT_EQ(d.combo.listIndex(), 0);
  forms::KeyPress del{.key = forms::Key::Delete};
  d.combo.setLocked(true);
  f.Comprobar_borrarcombo(del, d.combo);
  EXPECT_EQ(d.combo.listIndex(), 0);
  d.combo.setLocked(false);
  f.Comprobar_borrarcombo(del, d.combo);
  EXPECT_EQ(d.combo.listIndex(), -1);

  for (const int key : {4, 7, 9}) d.list.addItem("x", key);
  EXPECT_FALSE(f.ComprobarSeleccion(d.list));
  EXPECT_EQ(f.sqlListbox(d.list, "CodInstitucion"), "");
  d.list.setSelected(0, true);
  d.list.setSelected(2, true);
  std::vector<int> rows;
  f.ListarSeleccionados(d.list, rows);
  EXPECT_THAT(rows, ::testing::ElementsAre(0, 2));
  EXPECT_EQ(f.sqlListbox(d.list, "CodInstitucion"), "(CodInstitucion=4 OR CodInstitucion=9)");
  for (int i = 0; i < 5000; ++i) d.list.setSelected(d.list.addItem("x", 100 + i), true);
  EXPECT_TRUE(w.con()
                  .Execute("SELECT Nombre FROM Institucion WHERE " +
                           f.sqlListbox(d.list, "IDInstitucion") + " AND IDInstitucion=0")
                  .EOF_());
}

TEST_F(Services, Lists_AreFilledInOrderAndChooseWhatWasAskedFor) {
  const auto pedro = w.institucion("San Pedro");
  const auto ana = w.institucion("Santa Ana");
  w.institucion("Ñora");
  listas.fillInstituciones(d.combo, 0, w.con());
  ASSERT_EQ(d.combo.listCount(), 3);
  EXPECT_EQ(d.combo.list(0), "Ñora");
  EXPECT_EQ(d.combo.list(1), "San Pedro");
  EXPECT_EQ(d.combo.listIndex(), -1);
  listas.fillInstituciones(d.combo, ana, w.con());
  EXPECT_EQ(d.combo.listCount(), 1);
  EXPECT_EQ(d.combo.text(), "Santa Ana");
  EXPECT_NE(pedro, ana);

  const auto town = w.municipio("Mahón", "Illes Balears");
  const auto province = w.provincia("Illes Balears");
  w.municipio("Getafe", "Madrid");
  listas.fillProvincias(d.combo, province, w.con(), true);
  EXPECT_EQ(d.combo.list(0), "");
  EXPECT_EQ(d.combo.data(), province);
  listas.fillMunicipios(d.combo, province, town, false, w.con());
  EXPECT_EQ(d.combo.listCount(), 1);
  EXPECT_EQ(d.combo.text(), "Mahón");
}

TEST_F(Services, GridWidths_AreKeptAndBadOnesPassedOver) {
  const std::string path = "ana\\Castellano\\Grids\\Prueba";
  d.grid.setColumnWidth(0, 1200);
  d.grid.setColumnWidth(1, 900);
  listas.SaveGrid(d.grid, path);
  EXPECT_EQ(w.settings.read("Fidaleon", path, "1"), "900");
  w.settings.write("Fidaleon", path, "0", "-1");
  w.settings.write("Fidaleon", path, "1", "1500");
  w.settings.write("Fidaleon", path, "2", "ancho");
  d.grid.setColumnWidth(2, 333);
  listas.ConfigGrid(d.grid, path);
  EXPECT_EQ(d.grid.columnWidth(0), 1200);
  EXPECT_EQ(d.grid.columnWidth(1), 1500);
  EXPECT_EQ(d.grid.columnWidth(2), 333);
}

}  // namespace fidaleon::support::FidaleonTest
