#include "window/ParishMove.h"

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <mutex>

#include "parish/server/MoveNote.h"
#include "window/Beside.h"

namespace fidaleon::app {
namespace {

namespace fs = std::filesystem;

QString toQt(const fs::path& path) {
  return QString::fromStdString(path.string());
}

/// What the thread that moves says, for the one that shows it.
class Words {
 public:
  void at(store::TransferStage stage, const std::string& table, std::int64_t rows) {
    const std::lock_guard guard(alone_);
    now_ = (stage == store::TransferStage::Copying ? QObject::tr("Copiando «%1» (filas: %L2)…")
                                                   : QObject::tr("Comparando «%1» (filas: %L2)…"))
               .arg(QString::fromStdString(table))
               .arg(rows);
  }
  void tell(const std::string& sentence) {
    const std::lock_guard guard(alone_);
    told_ += QString::fromStdString(sentence) + "\n";
  }
  QString now() {
    const std::lock_guard guard(alone_);
    return now_;
  }
  QString told() {
    const std::lock_guard guard(alone_);
    return told_;
  }

 private:
  std::mutex alone_;
  QString now_;
  QString told_;
};

QString eachTable(const Moved& moved) {
  QString all;
  for (const auto& [table, rows] : moved.tables)
    if (rows != 0) all += QString("%1: %L2\n").arg(QString::fromStdString(table)).arg(rows);
  return all;
}

/// Whether to work on the new one.
bool sayMoved(const MoveOrder& order, const Moved& moved, const QString& told) {
  QMessageBox box(QMessageBox::Information, QObject::tr("Trasladar la parroquia"),
                  QObject::tr("<b>La parroquia está trasladada.</b>"));
  box.setInformativeText(
      QObject::tr("Se han comparado %1, una por una, y son iguales en los dos sitios.\n\n%2La de "
                  "«%3» sigue como estaba. Que nadie siga anotando en ella: lo que se anotara allí "
                  "no estaría en la trasladada.")
          .arg(QString::fromStdString(moved.spoken()), told.isEmpty() ? told : told + "\n",
               toQt(order.from)));
  box.setDetailedText(eachTable(moved));
  QPushButton* open = box.addButton(QObject::tr("&Abrir la trasladada"), QMessageBox::AcceptRole);
  box.setEscapeButton(
      box.addButton(QObject::tr("&Seguir en la de antes"), QMessageBox::RejectRole));
  box.setDefaultButton(open);
  box.exec();
  return box.clickedButton() == open;
}

/// Whether to try again.
bool sayNotMoved(const MoveOrder& order, const QString& why) {
  QMessageBox box(QMessageBox::Warning, QObject::tr("Trasladar la parroquia"),
                  QObject::tr("<b>La parroquia no está trasladada.</b>"));
  box.setInformativeText(
      why + QObject::tr("\n\nLa de «%1» no ha cambiado, y puede seguir trabajando en ella. Lo que "
                        "ya se ha copiado no hay que copiarlo otra vez.")
                .arg(toQt(order.from)));
  const QPushButton* again = box.addButton(QObject::tr("Seguir a&hora"), QMessageBox::AcceptRole);
  QPushButton* later = box.addButton(QObject::tr("&Dejarlo"), QMessageBox::RejectRole);
  box.setDefaultButton(later);
  box.setEscapeButton(later);
  box.exec();
  return box.clickedButton() == again;
}

}  // namespace

fs::path moveInSight(const MoveOrder& order, const std::string& user, const std::string& since) {
  while (true) {
    try {
      Words words;
      Moved moved;
      runBeside(
          nullptr, QObject::tr("Trasladando la parroquia…"), MayCancel::Yes,
          [&](const store::Progress& progress) {
            moved = moveParish(
                order, user, since,
                {progress, [&](const std::string& sentence) { words.tell(sentence); },
                 [&](auto stage, const auto& table, auto rows) { words.at(stage, table, rows); }});
          },
          [&] { return words.now(); });
      return sayMoved(order, moved, words.told()) ? order.to : order.from;
    } catch (const store::Error& e) {
      const bool given = e.kind() == store::ErrorKind::Cancelled;
      const QString why =
          given ? QObject::tr("Se ha dejado a medias.") : QString::fromUtf8(e.what());
      if (!sayNotMoved(order, why)) return order.from;
    } catch (const std::exception& e) {
      if (!sayNotMoved(order, QString::fromUtf8(e.what()))) return order.from;
    }
  }
}

std::optional<fs::path> chooseOfMoved(const fs::path& directory) {
  const ParishFiles files(directory);
  const auto note = readMoveNote(files);
  if (!note || !note->done) return directory;
  QMessageBox box(QMessageBox::Warning, QObject::tr("Una parroquia trasladada"),
                  QObject::tr("<b>Esta parroquia se trasladó a otro sitio.</b>"));
  box.setInformativeText(
      QObject::tr("El %1 se llevó a la carpeta «%2». Lo que se anote en la de «%3» no estará "
                  "allí, ni lo de allí aquí.")
          .arg(QString::fromStdString(note->since), toQt(note->to), toQt(directory)));
  QPushButton* other = nullptr;
  if (ParishFiles(note->to).exists())
    other = box.addButton(QObject::tr("&Abrir la trasladada"), QMessageBox::AcceptRole);
  const QPushButton* same =
      box.addButton(QObject::tr("Abrir &esta, la de antes"), QMessageBox::DestructiveRole);
  QPushButton* none = box.addButton(QObject::tr("&Salir"), QMessageBox::RejectRole);
  auto* never = new QCheckBox(QObject::tr("&No volver a preguntarlo si abro esta"), &box);
  box.setCheckBox(never);
  box.setDefaultButton(other ? other : none);
  box.setEscapeButton(none);
  box.exec();
  if (other && box.clickedButton() == other) return note->to;
  if (box.clickedButton() != same) return std::nullopt;
  if (never->isChecked()) removeMoveNote(files);
  return directory;
}

}  // namespace fidaleon::app
