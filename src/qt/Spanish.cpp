#include "qt/Spanish.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace fidaleon::qt {

void speakSpanish(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  auto* translator = new QTranslator(&application);
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (translator->load(QStringLiteral("qtbase_es"), folder))
    QApplication::installTranslator(translator);
  else
    delete translator;
}

}  // namespace fidaleon::qt
