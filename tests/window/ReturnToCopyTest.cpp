// The way back to a copy, and all that can stand in it.

#include <fstream>

#include "files/Compressed.h"
#include "parish/SimulatedDisk.h"
#include "store/Engine.h"
#include "store/FailingEngine.h"
#include "store/Restore.h"
#include "store/sqlite/NetworkDisk.h"
#include "window/CopiesDialog.h"
#include "window/CopiesFixture.h"
#include "window/CopyReturn.h"
#include "window/MainWindow.h"

namespace fidaleon::app::ReturnToCopyTest {

class Returning : public Copies {
 protected:
  void SetUp() override {
    Copies::SetUp();
    addOffice("Sacristán");
    copy = make();
    addOffice("Organista");
    user.answerAnything(Answer::Ok);
  }
  bool returnTo(const fs::path& file) {
    const ParishFiles parish = files();
    const auto alone =
        desk ? nullptr
             : std::make_unique<Presence>(directory(), "Secretaría", "20/05/2026 a las 10:30");
    return CopyReturn(user, parish, desk ? &desk->parish() : nullptr, copies,
                      desk ? desk->presence() : *alone, nullptr)
        .to({file, NOON, 1, "Eliminar", 1});
  }
  std::string told() const { return user.messages().empty() ? "" : user.messages().back().text; }
  std::vector<std::string> rest() const {
    std::vector<std::string> names = namesIn(directory());
    std::erase_if(names,
                  [](const std::string& n) { return n.find(".vuelta") == std::string::npos; });
    return names;
  }

  fs::path copy;
};

TEST_F(Returning, BringsBackTheContentAndKeepsWhatWasThere) {
  const auto other = store::openDatabase(files().parish(), store::parishSchema());
  auto seen = other->Execute("SELECT COUNT(*) AS n FROM Cargo");
  answerNext({});
  EXPECT_FALSE(returnTo(copy)) << "Enter says no";
  QString text;
  answerNext("&Volver a la copia", &text);
  EXPECT_TRUE(returnTo(copy));
  EXPECT_TRUE(text.contains("miércoles, 20 de mayo de 2020, a las 12:00:00")) << text.toStdString();
  EXPECT_TRUE(text.contains("Se perderá")) << text.toStdString();
  EXPECT_EQ(offices(), 1);
  EXPECT_EQ(other->Execute("SELECT COUNT(*) AS n FROM Cargo").integer("n"), 1);
  EXPECT_TRUE(store::usesWriteAheadLog(files().parish())) << "as before";
  addOffice("Campanero");
  const auto all = copies.list();
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0].before, "Antes de volver a una copia");
  for (const char* later : {"Una", "Otra"}) make(later, thisMoment());
  copies.compressOlder([] { return true; });
  EXPECT_FALSE(fs::exists(all[0].file)) << "it is compressed since the list was shown";
  answerNext("&Volver a la copia");
  EXPECT_TRUE(returnTo(all[0].file));
  EXPECT_EQ(rowsOf("SELECT * FROM Cargo WHERE Nombre='Organista'"), 1);
  EXPECT_EQ(rowsOf("SELECT * FROM Cargo WHERE Nombre='Campanero'"), 0);
  EXPECT_THAT(rest(), IsEmpty());
}

TEST_F(Returning, WhileSomebodyElseIsThere_IsRefused) {
  {
    const Presence colleague(directory(), "Ana", "20/05/2026 09:15");
    EXPECT_FALSE(returnTo(copy));
    EXPECT_THAT(told(), HasSubstr("Ana, en el equipo "));
    EXPECT_THAT(told(), HasSubstr("desde las 09:15 del 20/05/2026"));
  }
  // Who has a dialog open, as its locks tell.
  EXPECT_THAT(spoken({"Luis", "SACRISTIA", 1, "20/05/2026 a las 09:20"}),
              HasSubstr("SACRISTIA, desde las 09:20 del 20/05/2026"));
  // Somebody who comes while the question stands.
  std::unique_ptr<Presence> colleague;
  QTimer::singleShot(0, [&] {
    colleague = std::make_unique<Presence>(directory(), "Luis", "20/05/2026 09:20");
    answerNext("&Volver a la copia");
  });
  EXPECT_FALSE(returnTo(copy));
  EXPECT_THAT(told(), HasSubstr("Luis"));
  EXPECT_EQ(offices(), 2);
  EXPECT_EQ(copies.list().size(), 1U);
}

TEST_F(Returning, WhileAProgramWrites_IsToldAndChangesNothing) {
  const auto other = store::openDatabase(files().parish(), store::parishSchema());
  other->BeginTrans();
  answerNext("&Volver a la copia");
  EXPECT_FALSE(returnTo(copy));
  EXPECT_THAT(told(), HasSubstr("No se ha podido volver a la copia."));
  other->RollbackTrans();
  EXPECT_EQ(offices(), 2);
}

TEST_F(Returning, ToWhatIsNoSoundCopy_IsRefusedAndChangesNothing) {
  const auto refused = [&](const fs::path& file, const char* message) {
    EXPECT_FALSE(returnTo(file)) << file;
    EXPECT_THAT(told(), HasSubstr(message)) << file;
    EXPECT_THAT(told(), HasSubstr("La parroquia no ha cambiado.")) << file;
  };
  const auto damaged = [&](const char* name, const std::function<void(const fs::path&)>& damage,
                           const char* message) {
    const fs::path file = directory() / name;
    fs::copy_file(copy, file);
    damage(file);
    refused(file, message);
  };
  damaged(
      "rota.copia",
      [](const fs::path& f) {
        std::fstream(f, std::ios::in | std::ios::out | std::ios::binary).seekp(4096 * 20)
            << std::string(4096 * 3, 'Z');
      },
      "está estropeada");
  damaged(
      "cortada.zst",
      [this](const fs::path& f) {
        files::compress(copy, f);
        fs::resize_file(f, fs::file_size(f) / 2);
      },
      "está estropeada");
  damaged(
      "vacia.copia", [](const fs::path& f) { fs::resize_file(f, 0); }, "está estropeada");
  damaged(
      "nueva.copia",
      [](const fs::path& f) {
        store::openDatabase(f, store::parishSchema())
            ->engine()
            .run("UPDATE Esquema SET Version = Version + 1");
      },
      "una versión más nueva");
  damaged(
      "abierta.copia", [](const fs::path& f) { std::ofstream(f.string() + "-wal") << "x"; },
      "no es una copia");
  store::createDatabase(directory() / "otra.copia", store::reportsSchema());
  refused(directory() / "otra.copia", "estropeada, o no es de una parroquia");
  refused(files().parish(), "no es una copia");
  refused(directory() / "no hay.copia", "No se encuentra");
  EXPECT_EQ(offices(), 2);
  EXPECT_EQ(copies.list().size(), 1U);
  EXPECT_THAT(rest(), IsEmpty());
}

TEST_F(Returning, WhenTheParishCannotBeOpened_PutsItAsideWithWhatLiesBesideIt) {
  desk.reset();
  for (const bool gone : {false, true}) {
    std::ofstream(files().parish().string() + "-wal") << "restos";
    std::ofstream(files().parish()) << "estropeada";
    if (gone) fs::remove(files().parish());
    QString text;
    answerNext("&Volver a la copia", &text);
    EXPECT_TRUE(returnTo(copy));
    EXPECT_TRUE(text.contains("se conservará con otro nombre")) << text.toStdString();
    EXPECT_FALSE(fs::exists(files().parish().string() + "-wal"));
    const std::string aside = "parroquia.fidaleon.estropeada-" + std::string(gone ? "2" : "1");
    EXPECT_THAT(told(), HasSubstr(aside));
    EXPECT_EQ(fs::exists(directory() / aside), !gone);
    EXPECT_TRUE(fs::exists(directory() / (aside + "-wal")));
    open();
    EXPECT_EQ(offices(), 1);
    desk.reset();
  }
}

TEST_F(Returning, WithoutRoomForTheOtherCopy_AsksAndReturns) {
  const fs::path aside = directory() / "aparte.copia";
  fs::rename(copy, aside);
  fs::remove_all(folder());
  std::ofstream(folder()) << "x";
  QTimer::singleShot(0, [&] {
    QTimer::singleShot(0, [] { answerNext("C&ontinuar sin copia"); });
    answerNext("&Volver a la copia");
  });
  EXPECT_TRUE(returnTo(aside));
  EXPECT_EQ(offices(), 1);
}

TEST_F(Returning, ByTheWindow_ShowsTheOldRowsAgain) {
  MainWindow window(*desk);
  window.showNode("Cargos");
  EXPECT_EQ(window.table().model()->rowCount(), 2);
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<CopiesDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    ASSERT_EQ(dialog->table().rowCount(), 1);
    answerNext("&Volver a la copia");
    QTest::keyClick(&dialog->table(), Qt::Key_Return);
  });
  window.action("volver-a-una-copia")->trigger();
  EXPECT_EQ(window.table().model()->rowCount(), 1);
}

/// With each way of keeping what is not finished: on a disk of the machine, and on the network.
class ReturnOnAFullDisk : public Copies, public ::testing::WithParamInterface<const char*> {};

TEST_P(ReturnOnAFullDisk, ChangesNothing) {
  const auto fill = [&](const char* table) {
    desk->parish().BeginTrans();
    for (int i = 0; i < 700; ++i)
      Insert(table).text("Nombre", std::string(150, 'x')).into(desk->parish());
    desk->parish().CommitTrans();
  };
  fill("Cargo");
  const fs::path few = make("Pocos");
  fill("Cargo");
  fill("Grupo");
  desk->parish().engine().run(std::string("PRAGMA journal_mode = ") + GetParam());
  desk.reset();
  // No room beside the parish; then room there and none in the parish itself.
  for (const auto room : {fs::file_size(few) / 2, fs::file_size(few)}) {
    const FullDisk full(room);
    const auto back = [&] { store::Restore(few, files().parish(), store::parishSchema()).run(); };
    EXPECT_EQ(store::kindOf(back), store::ErrorKind::DiskFull);
  }
  open();
  EXPECT_EQ(offices(), 1400);
  EXPECT_NO_THROW(make("Comprobación")) << "which reads all of it";
}

INSTANTIATE_TEST_SUITE_P(Journals, ReturnOnAFullDisk, ::testing::Values("WAL", "DELETE"));

}  // namespace fidaleon::app::ReturnToCopyTest
