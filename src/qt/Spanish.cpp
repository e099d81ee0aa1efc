#include "qt/Spanish.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <utility>

namespace fidaleon::qt {
namespace {

/// What the toolkit's own catalogue leaves in English: the kinds of files in its file dialog.
class FileKinds : public QTranslator {
 public:
  using QTranslator::QTranslator;

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* source, const char*, int) const override {
    constexpr std::pair<const char*, const char*> KINDS[] = {
        {"Folder", "Carpeta"}, {"File", "Archivo"}, {"%1 File", "Archivo %1"}, {"Drive", "Disco"}};
    if (qstrcmp(context, "QAbstractFileIconProvider") != 0) return {};
    for (const auto& [kind, spanish] : KINDS)
      if (qstrcmp(source, kind) == 0) return QString::fromUtf8(spanish);
    return {};
  }
};

}  // namespace

void speakSpanish(QApplication& application) {
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  QApplication::installTranslator(new FileKinds(&application));
  auto* translator = new QTranslator(&application);
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (translator->load(QStringLiteral("qtbase_es"), folder))
    QApplication::installTranslator(translator);
  else
    delete translator;
}

}  // namespace fidaleon::qt
