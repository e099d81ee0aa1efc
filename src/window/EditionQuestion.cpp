#include "window/EditionQuestion.h"

#include <QInputDialog>
#include <QMessageBox>

namespace fidaleon::app {
namespace {

QString question(const Desk& desk) {
  const QString note = QString::fromStdString(desk.files().note().string());
  if (desk.editionDoubt() == EditionDoubt::Unknown)
    return QObject::tr(
               "No se sabe de qué edición es esta parroquia: falta el archivo «%1».\n\nDe la "
               "edición dependen las partidas y los documentos. ¿De cuál es?")
        .arg(note);
  return QObject::tr(
             "La parroquia es de la edición de %1, pero el archivo «%2» dice otra: %3.\n\nDe la "
             "edición dependen las partidas y los documentos. ¿De cuál es?")
      .arg(QString::fromStdString(desk.edition()), note,
           QString::fromStdString(editionName(readEdition(desk.files()))));
}

}  // namespace

bool settleEdition(Desk& desk) {
  if (desk.editionDoubt() == EditionDoubt::None) return true;
  const QString title = QObject::tr("Edición de la parroquia");
  const QString known = QString::fromStdString(desk.edition());
  if (desk.editionDoubt() == EditionDoubt::NoteRestored) {
    QMessageBox::information(
        nullptr, title,
        QObject::tr("Faltaba el archivo que dice la edición de la parroquia, o no se entendía. La "
                    "parroquia es de la edición de %1, y el archivo se ha escrito de nuevo.")
            .arg(known));
    return true;
  }
  QStringList names;
  for (const auto& [name, code] : editions()) names << QString::fromStdString(name);
  bool said = false;
  const QString chosen = QInputDialog::getItem(nullptr, title, question(desk), names,
                                               names.indexOf(known), false, &said);
  if (said) desk.setEdition(editions()[static_cast<std::size_t>(names.indexOf(chosen))].second);
  return said;
}

}  // namespace fidaleon::app
