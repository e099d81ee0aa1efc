#include "window/AboutDialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>
#include <filesystem>

#include "drafts/DraftFolder.h"
#include "files/Durable.h"
#include "parish/copies/SafetyCopies.h"
#include "qt/Appearance.h"
#include "qt/Room.h"
#include "support/FileSettings.h"
#include "text/SystemErrors.h"
#include "window/help/SupportReport.h"
#include "window/help/Version.h"

namespace fidaleon::app {
namespace {

constexpr const char* REPORT = "informe-fidaleon.txt";

QString toQt(const std::filesystem::path& path) {
  return QString::fromStdString(path.string());
}

/// Can be read aloud, marked and copied by the keyboard alone.
QLabel* legible(const QString& text, const QString& name, QWidget* parent) {
  auto* label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAccessibleName(name);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return label;
}

}  // namespace

AboutDialog::AboutDialog(Desk& desk, QWidget* parent) : QDialog(parent), desk_(desk) {
  setWindowTitle(tr("Acerca de Fidaleon"));
  setPalette(qt::legible(palette()));
  auto* layout = new QVBoxLayout(this);
  auto* pages = new QTabWidget(this);
  pages->setAccessibleName(tr("Apartados"));
  pages->addTab(programPage(), tr("El &programa"));
  pages->addTab(librariesPage(), tr("&Bibliotecas"));
  pages->addTab(placesPage(), tr("&Dónde están los datos"));
  layout->addWidget(pages);
  auto* buttons = new QDialogButtonBox(this);
  auto* report =
      buttons->addButton(tr("&Guardar un informe para pedir ayuda…"), QDialogButtonBox::ActionRole);
  auto* close = buttons->addButton(tr("&Cerrar"), QDialogButtonBox::RejectRole);
  close->setDefault(true);
  connect(report, &QPushButton::clicked, this, [this] { saveReport(); });
  connect(close, &QPushButton::clicked, this, &QDialog::reject);
  layout->addWidget(buttons);
  qt::resizeWithin(*this, {qt::charsWidth(*this, 78), fontMetrics().height() * 20});
  close->setFocus();
}

QWidget* AboutDialog::programPage() {
  auto* page = new QWidget(this);
  auto* column = new QVBoxLayout(page);
  auto* title = new QLabel(tr("Fidaleon %1").arg(version()), page);
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.5);
  large.setBold(true);
  title->setFont(large);
  column->addWidget(title);
  column->addWidget(
      legible(tr("Los registros sacramentales de la parroquia: bautismos, confirmaciones, "
                 "matrimonios y defunciones, con el padrón y sus documentos."),
              tr("Qué es"), page));
  column->addWidget(
      legible(tr("Edición: %1").arg(QString::fromStdString(desk_.edition())), tr("Edición"), page));
  column->addWidget(
      legible(tr("Licencia: %1.\n\nEs software libre: puede usarlo, estudiarlo, cambiarlo y "
                 "repartirlo según la Licencia Pública General de GNU, en su versión 3 o "
                 "cualquiera posterior. Se ofrece SIN GARANTÍA de ninguna clase.")
                  .arg(LICENCE),
              tr("Licencia"), page));
  column->addStretch();
  return page;
}

QWidget* AboutDialog::librariesPage() {
  const int rows = static_cast<int>(std::size(LIBRARIES));
  auto* table = new QTableWidget(rows, 3, this);
  table->setAccessibleName(tr("Bibliotecas"));
  table->setHorizontalHeaderLabels({tr("Biblioteca"), tr("Licencia"), tr("Para qué")});
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setShowGrid(false);
  table->setTabKeyNavigation(false);
  table->setAlternatingRowColors(true);
  table->verticalHeader()->hide();
  table->horizontalHeader()->setHighlightSections(false);
  table->horizontalHeader()->setStretchLastSection(true);
  for (int row = 0; row < rows; ++row) {
    const Library& library = LIBRARIES[row];
    const QString version = row == 0 ? QString(" (%1)").arg(qVersion()) : QString();
    table->setItem(row, 0, new QTableWidgetItem(library.name + version));
    table->setItem(row, 1, new QTableWidgetItem(QString::fromUtf8(library.licence)));
    table->setItem(row, 2, new QTableWidgetItem(QString::fromUtf8(library.what)));
  }
  table->resizeColumnsToContents();
  return table;
}

QWidget* AboutDialog::placesPage() {
  auto* page = new QWidget(this);
  auto* lines = new QFormLayout(page);
  lines->setRowWrapPolicy(QFormLayout::WrapLongRows);
  const auto add = [&](const QString& what, const std::filesystem::path& where) {
    lines->addRow(what, legible(toQt(where), what, page));
  };
  add(tr("La parroquia:"), desk_.files().parish());
  add(tr("Las copias que hace el programa:"), SafetyCopies(desk_.files().directory).directory());
  add(tr("Los ajustes de esta cuenta:"), support::FileSettings::defaultFile());
  add(tr("Lo que se está escribiendo:"), draftDirectory());
  return page;
}

void AboutDialog::saveReport() {
  QString file = QFileDialog::getSaveFileName(this, tr("Guardar un informe para pedir ayuda"),
                                              QDir::home().filePath(REPORT), tr("Textos (*.txt)"));
  if (file.isEmpty()) return;
  if (!file.contains('.')) file += ".txt";
  try {
    files::replace(file.toStdString(), supportReport(desk_));
    QMessageBox::information(
        this, windowTitle(),
        tr("El informe se ha guardado en «%1».\n\nNo lleva nombres ni datos de nadie. Puede "
           "abrirlo y leerlo antes de enviarlo.")
            .arg(file));
  } catch (const std::filesystem::filesystem_error& e) {
    QMessageBox::warning(this, windowTitle(),
                         tr("No se ha podido guardar el informe: %1")
                             .arg(QString::fromStdString(text::systemReason(e.code()))));
  } catch (const store::Error& e) {
    QMessageBox::warning(this, windowTitle(), QString::fromUtf8(e.what()));
  }
}

}  // namespace fidaleon::app
