#include "qt/Spanish.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace fidaleon::qt {
namespace {

void install(QApplication& application, const QString& catalogue, const QString& folder) {
  auto* translator = new QTranslator(&application);
  if (translator->load(catalogue, folder))
    QApplication::installTranslator(translator);
  else
    delete translator;
}

}  // namespace

void speakSpanish(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  install(application, QStringLiteral("qtbase_es"),
          QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  // Asked first: it names the keys as they are named on the keyboard.
  install(application, QStringLiteral("fidaleon_es"), QStringLiteral(":/translations"));
}

}  // namespace fidaleon::qt
