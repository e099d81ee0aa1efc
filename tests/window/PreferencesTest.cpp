#include "core/contract/Teclado.h"
#include "window/OpenWindow.h"
#include "window/PreferencesDialog.h"

namespace fidaleon::app::PreferencesTest {

/// What a screen reader calls by that name.
template <class Field>
Field& named(QWidget& window, const char* name) {
  for (Field* field : window.findChildren<Field*>())
    if (field->accessibleName() == name) return *field;
  throw std::logic_error(name);
}

TEST_F(ParishTest, Preferences_RefuseAWrongUserAndGoAlongWithANewOne) {
  create();
  ParishDoor door(settings, clock);
  PreferencesDialog dialog(*desk, door);
  auto& name = named<QLineEdit>(dialog, "Usuario");
  named<QSpinBox>(dialog, "Folios de un libro, como mucho").setValue(120);
  named<QSpinBox>(dialog, "Copias que hace el programa").setValue(7);
  named<QComboBox>(dialog, "Encargado que firma").setCurrentIndex(0);
  emit named<QComboBox>(dialog, "Encargado que firma").activated(0);
  named<QComboBox>(dialog, "La tecla Intro").setCurrentIndex(1);
  for (const char* wrong : {" ", "Ana\\Archivo"}) {
    name.setText(wrong);
    QTimer::singleShot(0, [] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_TRUE(box);
      box->accept();
    });
    dialog.accept();
    EXPECT_EQ(dialog.result(), 0);
  }
  EXPECT_EQ(readPreference(settings, desk->config(), Preference::PageLimit), "");
  name.setText("Archivo");
  dialog.accept();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.reopens(), desk->files().directory);
  EXPECT_EQ(keepersOf(desk->parish()).front().usual, "");
  EXPECT_FALSE(introPasaDeCampo(settings));
  FDAPI::cConfig other = desk->config();
  other.Usuario = readPreferences(settings).user;
  EXPECT_EQ(other.Usuario, "Archivo");
  EXPECT_EQ(readPreference(settings, other, Preference::PageLimit), "120");
  EXPECT_EQ(copiesKept(settings, other), 7U);
}

}  // namespace fidaleon::app::PreferencesTest
