// The windows through which a desk comes to a parish on a server, and a parish goes there.

#include <fstream>
#include <future>

#include "parish/server/ServerLook.h"
#include "parish/server/ServerParish.h"
#include "support/PostgresCluster.h"
#include "window/Beside.h"
#include "window/CopiesFixture.h"
#include "window/MoveDialog.h"
#include "window/ParishMove.h"
#include "window/ServerDialog.h"

namespace fidaleon::app::ServerWindowsTest {

class ServerWindows : public ParishTest {
 protected:
  void SetUp() override {
    store::keepPasswordsIn(std::make_unique<store::PassFile>(directory() / "claves"));
    tests::PostgresCluster::running().link().run(
        "DO $$ BEGIN CREATE ROLE con_clave LOGIN PASSWORD 'abierto'; EXCEPTION WHEN "
        "duplicate_object OR unique_violation THEN END $$");
  }
  NewParish onServer() const {
    NewParish parish = described(Content::Empty);
    parish.directory = directory() / "dueño";
    parish.server = database.address();
    return parish;
  }
  store::ServerAddress guest() const {
    store::ServerAddress address = database.address();
    address.user = "con_clave";
    return address;
  }
  void run(const std::string& sql) const { store::Link(database.address()).run(sql); }
  /// What the label below the fields says.
  static bool says(const QDialog& dialog, const char* words) {
    const auto labels = dialog.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel* label) { return label->text().contains(words); });
  }
  static void type(const QDialog& dialog, const store::ServerAddress& address) {
    const auto fields = dialog.findChildren<QLineEdit*>();
    const auto write = [&](const QString& name, const std::string& text) {
      for (auto* label : dialog.findChildren<QLabel*>())
        if (QString(label->text()).remove('&') == name)
          return qobject_cast<QLineEdit*>(label->buddy())->setText(QString::fromStdString(text));
      FAIL() << name.toStdString();
    };
    write("Servidor:", address.host);
    write("Base de datos:", address.database);
    write("Usuario:", address.user);
    write("Contraseña:", address.user == "con_clave" ? "abierto" : "");
  }

  tests::PostgresDatabase database;
};

TEST_F(ServerWindows, WhatIsThere_IsToldBeforeAnythingIsDone) {
  const auto said = [&](const store::ServerAddress& address) {
    return spoken(lookAt(address, "abierto"), address);
  };
  EXPECT_TRUE(lookAt(database.address()).canBeFilled());
  EXPECT_THAT(said(guest()), HasSubstr("no puede crearla"));
  createParish(onServer(), clock.today());
  EXPECT_TRUE(lookAt(database.address()).canBeJoined());
  EXPECT_THAT(said(database.address()), HasSubstr("«San Blas», y «prueba» puede trabajar"));
  run("GRANT USAGE ON SCHEMA fidaleon TO con_clave; "
      "GRANT SELECT ON ALL TABLES IN SCHEMA fidaleon TO con_clave");
  EXPECT_THAT(said(guest()), HasSubstr("solo puede leer"));
  run("GRANT INSERT ON ALL TABLES IN SCHEMA fidaleon TO con_clave; "
      "UPDATE fidaleon.\"Esquema\" SET \"Version\" = 1");
  EXPECT_THAT(said(guest()), HasSubstr("abrirla una vez el dueño"));
  EXPECT_TRUE(lookAt(database.address()).canBeJoined()) << "who brings it up to date";
}

TEST_F(ServerWindows, Connecting_SaysWhatIsWrongAndJoinsWhatIsThere) {
  createParish(onServer(), clock.today());
  ServerDialog dialog(directory() / "puesto");
  dialog.accept();
  EXPECT_TRUE(says(dialog, "Escriba el nombre del servidor."));
  run("GRANT USAGE ON SCHEMA fidaleon TO con_clave; "
      "GRANT SELECT ON ALL TABLES IN SCHEMA fidaleon TO con_clave");
  store::ServerAddress nowhere = database.address();
  nowhere.database = "ninguna";
  for (const auto& [address, words] :
       {std::pair{nowhere, "no tiene esa base"}, std::pair{guest(), "solo puede leer"}}) {
    type(dialog, address);
    dialog.accept();
    EXPECT_TRUE(says(dialog, words)) << words;
  }
  EXPECT_FALSE(exists(directory() / "puesto"));
  type(dialog, database.address());
  dialog.accept();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_FALSE(dialog.makesNew());
  Desk there(ParishFiles(dialog.folder()), "Ana", user, settings, clock);
  EXPECT_EQ(there.parishName(), "San Blas");
}

/// From the file onto the server; who opens the old one later is asked.
TEST_F(ServerWindows, Moved_IsCountedAndTheOldOneAsks) {
  create(Content::Sample);
  MoveDialog dialog(*desk, directory() / "allí");
  type(dialog, database.address());
  dialog.accept();
  ASSERT_EQ(dialog.result(), QDialog::Accepted);
  const MoveOrder order = dialog.order();
  const auto people = count("SELECT COUNT(*) FROM Padron");
  desk.reset();
  QString told;
  answerNext("&Abrir la trasladada", &told);
  EXPECT_EQ(moveInSight(order, "Ana", "20/05/2026 a las 10:30"), order.to);
  EXPECT_TRUE(told.contains("filas, una por una, y son iguales")) << told.toStdString();
  Desk there(ParishFiles(order.to), "Ana", user, settings, clock);
  EXPECT_EQ(there.parish().Execute("SELECT COUNT(*) FROM Padron").Fields(0).Value().integer(),
            people);
  answerNext("&Abrir la trasladada", &told);
  EXPECT_EQ(chooseOfMoved(directory()), order.to);
  EXPECT_TRUE(told.contains("20/05/2026 a las 10:30"));
  answerNext("");  // whoever only presses Enter does not write in the old one
  EXPECT_EQ(chooseOfMoved(directory()), order.to);
  answerNext("Abrir &esta, la de antes");
  EXPECT_EQ(chooseOfMoved(directory()), directory());
}

TEST_F(ServerWindows, GivenPassword_IsUsedBeforeTheKeptOneAndForgottenWhenNotWanted) {
  store::PassFile file(directory() / "claves");
  file.keep(guest(), "vieja");
  EXPECT_EQ(store::passwordFor(guest()), "vieja");
  store::usePassword(guest(), "abierto", store::Remember::No);
  EXPECT_EQ(store::passwordFor(guest()), "abierto");
  EXPECT_EQ(file.find(guest()), std::nullopt);
}

/// What the script of an administrator leaves behind on the server of all tests.
struct Roles {
  explicit Roles(const std::filesystem::path& folder) {
    const store::ServerAddress all = tests::PostgresCluster::running().address();
    std::ofstream(folder / "guion.sql") << rolesScript(base);
    const std::string order = "psql -X -q -h " + all.host + " -U " + all.user + " -d postgres -f " +
                              (folder / "guion.sql").string();
    EXPECT_EQ(std::system((order + " && " + order).c_str()), 0) << "it may be repeated";
    tests::PostgresCluster::running().link().run("CREATE ROLE " + base + "_ana LOGIN IN ROLE " +
                                                 base + "_usuario");
    tests::PostgresCluster::running().link().run("CREATE ROLE " + base + "_leo LOGIN IN ROLE " +
                                                 base + "_lector");
  }
  ~Roles() {
    store::Link& link = tests::PostgresCluster::running().link();
    link.run("DROP DATABASE " + base + " WITH (FORCE)");
    for (const char* role : {"_ana", "_leo", "_dueno", "_usuario", "_lector"})
      link.run("DROP ROLE " + base + role);
  }
  Roles(const Roles&) = delete;
  Roles& operator=(const Roles&) = delete;
  store::ServerAddress of(const std::string& who) const {
    store::ServerAddress address = tests::PostgresCluster::running().address(base);
    address.user = base + who;
    return address;
  }

  std::string base = "papeles_" + std::to_string(getpid());
};

TEST_F(ServerWindows, RolesOfTheScript_SufficeForWorkAndForNoMore) {
  const Roles roles(directory());
  NewParish parish = onServer();
  parish.server = roles.of("_dueno");
  createParish(parish, clock.today());
  EXPECT_FALSE(lookAt(roles.of("_leo")).canBeJoined());
  connectParish(directory() / "puesto", roles.of("_ana"));
  Desk ana(ParishFiles(directory() / "puesto"), "Ana", user, settings, clock);
  ana.parish().Execute("INSERT INTO Cargo (Nombre) VALUES ('Sacristana')");
  for (const char* who : {"_ana", "_leo"})
    for (const char* sql : {"DROP TABLE fidaleon.\"Cargo\"", "TRUNCATE fidaleon.\"Cargo\""})
      EXPECT_THROW(store::Link(roles.of(who)).run(sql), store::Error) << who << sql;
  EXPECT_THROW(store::Link(roles.of("_leo")).run("DELETE FROM fidaleon.\"Cargo\""), store::Error);
  for (const char* name : {"o'neill", "a=b", "a\"b"})
    EXPECT_THROW(rolesScript(name), std::invalid_argument) << name;
}

/// A server that does not answer.
TEST(Forgettable, GivenUp_IsLeftBehind) {
  const auto answer = std::make_shared<std::promise<void>>();
  std::function<void()> press = [&] {
    auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (!dialog) return QTimer::singleShot(0, press);
    dialog->findChild<QPushButton*>()->click();
  };
  QTimer::singleShot(0, press);
  try {
    runForgettable(nullptr, "Entrando…", [answer] { answer->get_future().wait(); });
    ADD_FAILURE() << "waited";
  } catch (const store::Error& e) {
    EXPECT_EQ(e.kind(), store::ErrorKind::Cancelled);
  }
  answer->set_value();
  awaitForgotten();
}

}  // namespace fidaleon::app::ServerWindowsTest
