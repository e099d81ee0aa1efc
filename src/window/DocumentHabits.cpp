#include "window/DocumentHabits.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "parish/WindowSettings.h"

namespace fidaleon::app {
namespace {

constexpr const char* FOLDER = "CarpetaDocumentos";
constexpr const char* PRINTER = "Impresora";

QString habit(Desk* desk, const char* key) {
  return desk ? QString::fromStdString(readWindowSetting(*desk, key)) : QString();
}

void setHabit(Desk* desk, const char* key, const QString& value) {
  if (desk) writeWindowSetting(*desk, key, value.toStdString());
}

}  // namespace

QString folderOfDocuments(Desk* desk) {
  const QString last = habit(desk, FOLDER);
  return !last.isEmpty() && QFileInfo(last).isWritable()
             ? last
             : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void rememberFolderOf(Desk* desk, const QString& file) {
  setHabit(desk, FOLDER, QFileInfo(file).absolutePath());
}

QString choosePdf(Desk* desk, QWidget* over, const QString& title, const QString& name) {
  const QString file = QFileDialog::getSaveFileName(
      over, title, QDir(folderOfDocuments(desk)).filePath(name + ".pdf"),
      QObject::tr("Documentos PDF (*.pdf)"));
  return file.isEmpty() || file.endsWith(".pdf", Qt::CaseInsensitive) ? file : file + ".pdf";
}

bool hasPrinter(QWidget* over) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) return true;
  QMessageBox::information(
      over, over->windowTitle(),
      QObject::tr("No hay ninguna impresora instalada en este equipo.\n"
                  "Puede guardar el documento como PDF e imprimirlo en otro."));
  return false;
}

std::unique_ptr<QPrinter> choosePrinter(Desk* desk, QWidget* over, int pages) {
  auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
  const QPrinterInfo last = QPrinterInfo::printerInfo(habit(desk, PRINTER));
  if (!last.isNull()) printer->setPrinterName(last.printerName());
  QPrintDialog dialog(printer.get(), over);
  if (pages > 0)
    dialog.setMinMax(1, pages);
  else
    for (const auto option :
         {QAbstractPrintDialog::PrintPageRange, QAbstractPrintDialog::PrintToFile})
      dialog.setOption(option, false);
  if (dialog.exec() != QDialog::Accepted) return nullptr;
  if (printer->outputFormat() == QPrinter::NativeFormat)
    setHabit(desk, PRINTER, printer->printerName());
  return printer;
}

}  // namespace fidaleon::app
