#include <fstream>
#include <sstream>

#include "support/FileSettings.h"
#include "support/TestWorld.h"

namespace fidaleon::support::SettingsTest {

namespace fs = std::filesystem;

class SettingsFile : public ::testing::Test {
 protected:
  std::string content() const {
    std::ostringstream out;
    out << std::ifstream(file).rdbuf();
    return out.str();
  }
  tests::TempDirectory directory;
  const fs::path file = directory.path() / "fidaleon" / "ajustes.ini";
  const std::string section = "ana\\Castellano\\Grids\\Propiedades Libros\\[=#%]";
};

TEST_F(SettingsFile, ValuesOfAnyText_AreReadBackByAnother) {
  FileSettings here(file);
  EXPECT_EQ(here.read("Fidaleon", section, "0", "-1"), "-1");
  EXPECT_FALSE(fs::exists(file));
  std::vector<std::string> odd{" ñ=\r\n[x]\t% \"#", "Mu\xF1oz", "\xC2\x85\x7F", "\xED\xA0\x80",
                               "á\xFF"};
  odd.emplace_back("\0\x01", 2);
  for (const std::string& text : odd) here.write("Fidaleon/2", section + text, "=" + text, text);
  here.write("Fidaleon", section, "0", "1200");
  FileSettings there(file, [](const std::string& damage) { ADD_FAILURE() << damage; });
  for (const std::string& text : odd)
    EXPECT_EQ(there.read("Fidaleon/2", section + text, "=" + text), text);
  EXPECT_EQ(there.read("Fidaleon", section, "0"), "1200");
  EXPECT_EQ(there.read("Fidaleon", section, "1", "x"), "x");
}

TEST_F(SettingsFile, TwoProcessesAtOnce_LoseNothing) {
  const auto work = [&](const std::string& name) {
    FileSettings settings(file);
    for (int i = 0; i < 50; ++i) settings.write("F", name, std::to_string(i), "v");
  };
  tests::OtherProcess other([&](auto&) { work("otro"); });
  work("este");
  other.end();
  FileSettings settings(file);
  for (int i = 0; i < 50; ++i) {
    EXPECT_EQ(settings.read("F", "este", std::to_string(i)), "v") << i;
    EXPECT_EQ(settings.read("F", "otro", std::to_string(i)), "v") << i;
  }
}

TEST_F(SettingsFile, Damaged_IsKeptAsideReportedOnceAndWhatIsReadableKept) {
  FileSettings(file).write("F", "s", "clave", "valor");
  const std::string good = content();
  for (const std::string& damage :
       {std::string("\xff\xfe\0\1", 4), std::string("sin igual"), std::string("[sin cierre\n"),
        std::string("clave2=%Z1\n"), std::string("clave2=cortad")}) {
    std::ofstream(file) << good << damage;
    fs::permissions(file, fs::perms(0644));  // as an earlier version left it
    int reports = 0;
    std::string said;
    FileSettings settings(file, [&](const std::string& message) {
      ++reports;
      said = message;
    });
    EXPECT_EQ(settings.read("F", "s", "clave"), "valor");
    EXPECT_EQ(settings.read("F", "s", "clave2", "nada"), "nada");
    EXPECT_EQ(reports, 1) << damage;
    EXPECT_THAT(said, ::testing::HasSubstr("ajustes.ini.danado"));
    EXPECT_EQ(fs::status(file.string() + ".danado").permissions(), fs::perms(0600));
    EXPECT_EQ(content(), good);
    fs::remove(file.string() + ".danado");
  }
}

TEST_F(SettingsFile, CannotBeWritten_SaysSoAndChangesNothing) {
  std::ofstream(directory.path() / "fidaleon") << "a file where the folder should be";
  FileSettings settings(file);
  EXPECT_EQ(settings.read("F", "s", "k", "x"), "x");
  try {
    settings.write("F", "s", "k", "v");
    ADD_FAILURE();
  } catch (const std::runtime_error& e) {
    EXPECT_EQ(e.what(), "No se ha podido guardar el ajuste en «" + file.string() +
                            "»: la carpeta no existe.");
  }
  EXPECT_EQ(settings.read("F", "s", "k", "x"), "x");
}

TEST_F(SettingsFile, FullDisk_IsNamedAndTheValueIsNotKept) {
  FileSettings settings(file);
  settings.write("F", "s", "k", "v");
  std::string said;
  try {
    const tests::FullDisk full(fs::file_size(file) + 10);
    settings.write("F", "s", "k", std::string(100, 'x'));
  } catch (const std::runtime_error& e) {
    said = e.what();
  }
  EXPECT_THAT(said, ::testing::HasSubstr("el disco está lleno"));
  EXPECT_EQ(settings.read("F", "s", "k"), "v");
  EXPECT_EQ(content(), "# Ajustes de Fidaleon\n\n[F/s]\nk=v\n");
}

TEST_F(SettingsFile, CannotBeRead_IsNotOverwritten) {
  fs::create_directories(file);  // a folder in the place of the file
  FileSettings settings(file);
  EXPECT_EQ(settings.read("F", "s", "k", "x"), "x");
  EXPECT_THROW(settings.write("F", "s", "k", "v"), std::runtime_error);
  EXPECT_TRUE(fs::is_directory(file));
  fs::remove(file);
  fs::create_symlink(file, file);  // leads nowhere: not even what it is can be told
  EXPECT_EQ(settings.read("F", "s", "k", "x"), "x");
  EXPECT_THROW(settings.write("F", "s", "k", "v"), std::runtime_error);
  EXPECT_TRUE(fs::is_symlink(file));
}

TEST_F(SettingsFile, DefaultPlace_FollowsTheConfigurationFolder) {
  ::setenv("XDG_CONFIG_HOME", "/tmp/ajustes-de-prueba", 1);
  EXPECT_EQ(FileSettings::defaultFile(), "/tmp/ajustes-de-prueba/fidaleon/ajustes.ini");
  ::unsetenv("XDG_CONFIG_HOME");
  ::setenv("HOME", "/tmp/casa", 1);
  EXPECT_EQ(FileSettings::defaultFile(), "/tmp/casa/.config/fidaleon/ajustes.ini");
}

}  // namespace fidaleon::support::SettingsTest
