#include "core/lists/RegistryKey.h"
#include "support/FileSettings.h"
#include "support/MemorySettings.h"
#include "support/TestWorld.h"

namespace fidaleon::tests::RegistryTest {

using Almacen = support::MemorySettings;

TEST(RegistryKey, ValuesAndKeysUnderIt_AreListedOnceAndDeleted) {
  Almacen almacen;
  for (const char* seccion : {"ana", "ana\\G", "ana\\G x", "ana\\G\\uno", "ana\\G\\dos", "anabel"})
    almacen.write("Fidaleon", seccion, "a", "1");
  RegistryKey clave(almacen);
  EXPECT_FALSE(clave.OpenKey("Fidaleon", "an"));
  EXPECT_EQ(clave.Handle(), 0);
  EXPECT_THROW(clave.Value("x"), std::logic_error);
  ASSERT_TRUE(clave.OpenKey("Fidaleon", "ana"));
  EXPECT_THAT(clave.SubKeyNames(), ElementsAre("G", "G x"));
  clave.Value("b", "2");
  EXPECT_THAT(clave.ValueNames(), ElementsAre("a", "b"));
  clave.DeleteValue("a");
  EXPECT_THAT(clave.ValueNames(), ElementsAre("b"));
  EXPECT_EQ(clave.Value("b"), "2");
  clave.DeleteKey("G");
  EXPECT_THAT(clave.SubKeyNames(), ElementsAre("G x"));
  EXPECT_EQ(almacen.read("Fidaleon", "anabel", "a", ""), "1");
  clave.CloseKey();
  EXPECT_THROW(clave.ValueNames(), std::logic_error);
}

TEST(RegistryKey, OnTheSettingsFile_KeepsWhatIsWrittenAndForgetsWhatIsDeleted) {
  const TempDirectory carpeta;
  const auto fichero = carpeta.path() / "ajustes.ini";
  {
    support::FileSettings ajustes(fichero);
    RegistryKey clave(ajustes);
    clave.CreateKey("Fidaleon", "Instalación\\Ruta");
    EXPECT_THAT(clave.ValueNames(), IsEmpty());
    clave.Value("Disco", "C:\\Fidaleon = \"uno\"");
    clave.Value("Sobra", "1");
    clave.DeleteValue("Sobra");
  }
  support::FileSettings ajustes(fichero);
  RegistryKey clave(ajustes);
  ASSERT_TRUE(clave.OpenKey("Fidaleon", "Instalación"));
  EXPECT_THAT(clave.SubKeyNames(), ElementsAre("Ruta"));
  ASSERT_TRUE(clave.OpenKey("Fidaleon", "Instalación\\Ruta"));
  EXPECT_THAT(clave.ValueNames(), ElementsAre("Disco"));
  EXPECT_EQ(clave.Value("Disco"), "C:\\Fidaleon = \"uno\"");
}

}  // namespace fidaleon::tests::RegistryTest
