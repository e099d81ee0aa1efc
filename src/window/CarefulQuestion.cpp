#include "window/CarefulQuestion.h"

#include <QMessageBox>
#include <QPushButton>

namespace fidaleon::app {

bool askCarefully(QWidget* over, const QString& title, const QString& question,
                  const QString& consequences, const QString& doIt) {
  QMessageBox box(QMessageBox::Warning, title, "<b>" + question.toHtmlEscaped() + "</b>",
                  QMessageBox::NoButton, over);
  box.setInformativeText(consequences);
  const QPushButton* yes = box.addButton(doIt, QMessageBox::AcceptRole);
  QPushButton* no = box.addButton(QObject::tr("&Cancelar"), QMessageBox::RejectRole);
  box.setDefaultButton(no);
  box.setEscapeButton(no);
  box.exec();
  return box.clickedButton() == yes;
}

bool askToGoOnWithoutCopy(QWidget* over, const std::string& why) {
  return askCarefully(
      over, QObject::tr("Copia de la parroquia"),
      QObject::tr("No se ha podido guardar una copia antes de continuar."),
      QString::fromStdString(why) +
          QObject::tr("\n\nSi continúa sin ella, lo que va a hacer no podrá deshacerse. "
                      "Puede cancelar ahora: no ha cambiado nada."),
      QObject::tr("C&ontinuar sin copia"));
}

}  // namespace fidaleon::app
