#pragma once

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>
#include <algorithm>
#include <fstream>

#include "parish/Insert.h"
#include "parish/Parish.h"
#include "parish/copies/SafetyCopies.h"
#include "store/Engine.h"
#include "store/Open.h"

namespace fidaleon::app {

namespace fs = std::filesystem;

/// Long ago: what a test makes by the clock of the machine is newer.
inline constexpr Moment NOON{{2020, 5, 20}, 12, 0, 0};

inline std::vector<std::string> namesIn(const fs::path& directory) {
  std::vector<std::string> names;
  std::error_code none;
  for (const auto& entry : fs::directory_iterator(directory, none))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

/// Presses a button of the next message box, when it is there; none: the Enter key.
inline void answerNext(const QString& button, QString* text = nullptr) {
  QTimer::singleShot(0, [button, text] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!box) return answerNext(button, text);
    if (text) *text = box->text() + "\n" + box->informativeText();
    if (button.isEmpty()) return QTest::keyClick(box, Qt::Key_Return);
    for (QAbstractButton* b : box->buttons())
      if (b->text() == button) return b->click();
    ADD_FAILURE() << "no button " << button.toStdString();
    box->reject();
  });
}

/// A parish without people, and its copies.
class Copies : public ParishTest {
 protected:
  void SetUp() override { create(Content::Empty); }
  SafetyCopies copies{directory()};
  fs::path folder() const { return directory() / "copias"; }

  fs::path make(const std::string& before = "Eliminar", const Moment& when = NOON) {
    return copies.make(desk->parish(), before, when);
  }
  void addOffice(const std::string& name) {
    Insert("Cargo").text("Nombre", name).into(desk->parish());
  }
  std::int64_t offices() { return count("SELECT COUNT(*) FROM Cargo"); }
  /// Of a parish that is closed: some pages in the middle of what it holds.
  void damage() {
    const auto size = fs::file_size(files().parish());
    std::fstream file(files().parish(), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(size - 4096 * 3)) << std::string(4096 * 2, 'Z');
  }
  void fillOffices() {
    desk->parish().BeginTrans();
    for (int i = 0; i < 300; ++i) addOffice(std::string(200, 'x'));
    desk->parish().CommitTrans();
    desk->parish().engine().run("PRAGMA wal_checkpoint(TRUNCATE)");
  }
  std::int64_t officesIn(const fs::path& file) {
    return store::openDatabase(file, store::parishSchema())
        ->Execute("SELECT COUNT(*) FROM Cargo")
        .Fields(0)
        .Value()
        .integer();
  }
  void place(const std::string& name, const std::string& content = "x") {
    std::ofstream(folder() / name) << content;
  }
};

}  // namespace fidaleon::app
