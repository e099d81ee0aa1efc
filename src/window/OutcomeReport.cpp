#include "window/OutcomeReport.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "files/Durable.h"
#include "printing/TextReport.h"
#include "qt/Appearance.h"
#include "qt/Room.h"
#include "text/SystemErrors.h"
#include "window/PreviewDialog.h"

namespace fidaleon::app {

OutcomeReport::OutcomeReport(const QString& title, const std::string& text, QString file,
                             QWidget* parent, const QString& saved)
    : QDialog(parent), text_(text), file_(std::move(file)) {
  setWindowTitle(title);
  auto* layout = new QVBoxLayout(this);
  auto* view = new QPlainTextEdit(QString::fromStdString(text), this);
  view->setReadOnly(true);
  view->setAccessibleName(tr("Informe"));
  layout->addWidget(view);
  if (!saved.isEmpty()) {
    auto* where = new QLabel(tr("Se ha guardado en «%1».").arg(saved), this);
    where->setWordWrap(true);
    where->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(where);
  }
  auto* buttons = new QDialogButtonBox(this);
  auto* close = buttons->addButton(tr("&Cerrar"), QDialogButtonBox::RejectRole);
  connect(buttons->addButton(tr("&Imprimir…"), QDialogButtonBox::ActionRole), &QPushButton::clicked,
          this, [this] { print(); });
  connect(buttons->addButton(tr("&Guardar como…"), QDialogButtonBox::ActionRole),
          &QPushButton::clicked, this, [this] { save(); });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);
  close->setDefault(true);
  layout->addWidget(buttons);
  qt::resizeWithin(*this, {qt::charsWidth(*this, 100), 480});
}

void OutcomeReport::print() {
  const auto run = std::make_shared<LongRun>();
  paper::ReportOptions options;
  options.composition = paper::ReportOptions::Composition::AsNeeded;
  options.progress = [run](std::size_t done, std::size_t total) { return run->tell(done, total); };
  try {
    PreviewDialog(makeTextReport(windowTitle().toStdString(), text_, std::move(options)), this, run)
        .exec();
  } catch (const std::exception& e) {
    QMessageBox::warning(this, windowTitle(), QString::fromUtf8(e.what()));
  }
}

void OutcomeReport::save() {
  const QString file =
      QFileDialog::getSaveFileName(this, tr("Guardar el informe"), file_, tr("Textos (*.txt)"));
  if (file.isEmpty()) return;
  try {
    files::replace(file.toStdString(), text_);
  } catch (const std::filesystem::filesystem_error& e) {
    QMessageBox::warning(
        this, windowTitle(),
        tr("No se ha podido guardar: ") + QString::fromStdString(text::systemReason(e.code())));
  }
}

}  // namespace fidaleon::app
