#include "window/ManyDocuments.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <memory>
#include <optional>
#include <set>

#include "files/Durable.h"
#include "parish/Desk.h"
#include "parish/WindowSettings.h"
#include "printing/DocumentBatch.h"
#include "registers/common/FormaPartida.h"
#include "text/Names.h"
#include "text/Utf8.h"
#include "window/DocumentHabits.h"
#include "window/LongRun.h"
#include "window/OutcomeReport.h"

namespace fidaleon::app {
namespace {

using To = ManyDocumentsDialog::To;

constexpr const char* WAY = "elegidas.destino";

/// Takes the documents as they are made.
class Outlet {
 public:
  virtual ~Outlet() = default;
  /// Throws paper::Error.
  virtual void take(const paper::Report& report) = 0;
  /// There are no more. Throws paper::Error.
  virtual void finish() {}
  /// Where they are, once finish() was called.
  virtual QString place() const = 0;
  /// What was taken is there even if the rest is not to come.
  virtual bool keepsParts() const { return true; }
};

class OneFile : public Outlet {
 public:
  OneFile(QString file, QString title) : file_(std::move(file)), title_(std::move(title)) {}
  void take(const paper::Report& report) override {
    if (!volume_) volume_ = report.volume(file_.toStdString(), title_);
    report.bindInto(*volume_);
  }
  void finish() override { volume_->close(); }
  QString place() const override {
    return QObject::tr("Están en «%1».").arg(QDir::toNativeSeparators(file_));
  }
  bool keepsParts() const override { return false; }

 private:
  QString file_;
  QString title_;
  std::unique_ptr<paper::Volume> volume_;
};

class FileEach : public Outlet {
 public:
  explicit FileEach(const QString& folder) : folder_(folder.toStdString()) {}
  void take(const paper::Report& report) override {
    const std::filesystem::path file = fileFor(report);
    report.savePdf(file);
    made_.insert(file);
  }
  QString place() const override {
    return QObject::tr("Están en la carpeta «%1».")
        .arg(QDir::toNativeSeparators(QString::fromStdString(folder_.string())));
  }

 private:
  // What another of these bears, two of one name, is never taken away.
  std::filesystem::path fileFor(const paper::Report& report) {
    const std::string name = text::fileName(report.title().toStdString());
    std::filesystem::path file = folder_ / (name + ".pdf");
    if (files::isThere(file) && !made_.contains(file) && replaces(file)) return file;
    for (int n = 2; files::isThere(file); ++n)
      file = folder_ / (name + " (" + std::to_string(n) + ").pdf");
    return file;
  }
  /// Asks once, for all of them.
  bool replaces(const std::filesystem::path& file) {
    if (replaces_) return *replaces_;
    QMessageBox box(
        QMessageBox::Question, QObject::tr("Ya hay un documento con ese nombre"),
        QObject::tr("En la carpeta ya está «%1».\n\n¿Desea conservar los que ya están y "
                    "guardar los nuevos con un número detrás, o sustituirlos?")
            .arg(QString::fromStdString(file.filename().string())),
        QMessageBox::NoButton, QApplication::activeWindow());
    auto* keep = box.addButton(QObject::tr("&Conservar"), QMessageBox::AcceptRole);
    auto* replace = box.addButton(QObject::tr("&Sustituir"), QMessageBox::DestructiveRole);
    box.setEscapeButton(box.addButton(QObject::tr("C&ancelar"), QMessageBox::RejectRole));
    box.setDefaultButton(keep);
    box.exec();
    if (box.clickedButton() != keep && box.clickedButton() != replace)
      throw paper::Error(paper::ErrorKind::Cancelled, "Se ha cancelado.");
    replaces_ = box.clickedButton() == replace;
    return *replaces_;
  }

  std::filesystem::path folder_;
  std::set<std::filesystem::path> made_;
  std::optional<bool> replaces_;
};

/// Each by itself in the queue of the printer, under its own name.
class Paper : public Outlet {
 public:
  explicit Paper(std::unique_ptr<QPrinter> printer) : printer_(std::move(printer)) {}
  void take(const paper::Report& report) override { report.print(*printer_); }
  QString place() const override {
    return QObject::tr("Se han enviado a la impresora «%1».").arg(printer_->printerName());
  }

 private:
  std::unique_ptr<QPrinter> printer_;
};

std::vector<const Documento*> documentsOf(const NodeView& node, const std::string& edition) {
  const auto kind =
      node.kind == NodeKind::Requests ? ClaseDocumento::Solicitud : ClaseDocumento::Partida;
  std::vector<const Documento*> all;
  for (const Documento& d : documentos())
    if (d.sacramento == node.sacrament && d.clase == kind &&
        documento(*d.sacramento, d.orden, edition) == &d)
      all.push_back(&d);
  return all;
}

/// Null when the user gave up, or when there is no printer.
std::unique_ptr<Outlet> outletFor(Desk& desk, To to, const QString& name, QWidget* over) {
  if (to == To::Paper) {
    auto printer = hasPrinter(over) ? choosePrinter(&desk, over, 0) : nullptr;
    return printer ? std::make_unique<Paper>(std::move(printer)) : nullptr;
  }
  const bool one = to == To::OneFile;
  const QString where =
      one ? choosePdf(&desk, over, QObject::tr("Guardar todos en un PDF"), name)
          : QFileDialog::getExistingDirectory(over, QObject::tr("Carpeta de los documentos"),
                                              folderOfDocuments(&desk));
  if (where.isEmpty()) return nullptr;
  rememberFolderOf(&desk, one ? where : where + "/");
  if (one) return std::make_unique<OneFile>(where, name);
  return std::make_unique<FileEach>(where);
}

class Making {
 public:
  Making(Desk& desk, const Documento& document, Outlet& outlet)
      : desk_(desk), document_(document), outlet_(outlet), batch_(desk, document) {}

  void run(const std::vector<std::int32_t>& keys, QWidget* over) {
    LongRun run;
    all_ = keys.size();
    try {
      const bool whole = run.run(over, QObject::tr("Haciendo los documentos…"), [&] {
        for (std::size_t n = 0; n < all_ && !batch_.givenUp(); ++n) {
          if (!run.tell(n, all_))
            throw paper::Error(paper::ErrorKind::Cancelled, "Se ha cancelado.");
          makeOne(keys[n]);
        }
        if (made_ > 0) outlet_.finish();
      });
      if (!whole) stopped_ = "Se ha cancelado antes de terminar.";
    } catch (const std::exception& e) {
      stopped_ = e.what();
    }
    if (!stopped_.empty() && !outlet_.keepsParts()) made_ = 0;
  }

  /// The user left the first question, and nothing else has happened.
  bool neverBegan() const { return made_ == 0 && batch_.givenUp() && failed_.size() == 1; }
  bool wentWell() const { return stopped_.empty() && failed_.empty() && remarks_.empty(); }

  std::string told() const {
    std::string text = QObject::tr("%1: hechos %L2 de %L3.")
                           .arg(document_.titulo)
                           .arg(made_)
                           .arg(all_)
                           .toStdString();
    if (made_ > 0) text += " " + outlet_.place().toStdString();
    if (made_ == 0 && !outlet_.keepsParts()) text += " No se ha guardado ningún archivo.";
    if (!stopped_.empty()) text += "\n\n" + stopped_;
    addLines(text, "No se han podido hacer:", failed_);
    addLines(text, "Hechos, pero conviene mirarlos:", remarks_);
    return text;
  }

 private:
  using Lines = std::vector<std::string>;

  void makeOne(std::int32_t key) {
    const std::optional<paper::Report> report = batch_.make(key);
    if (!batch_.told().empty()) (report ? remarks_ : failed_).push_back(lineOf(key));
    if (!report) return;
    outlet_.take(*report);
    ++made_;
  }
  std::string lineOf(std::int32_t key) {
    std::string name = nombrePartida(desk_.parish(), *document_.sacramento, key);
    if (name.empty()) name = "La que ocupaba la fila " + std::to_string(made_ + failed_.size() + 1);
    return text::replaceAll(name, "\n", ", ") + ": " + text::replaceAll(batch_.told(), "\n", " ");
  }
  static void addLines(std::string& text, const char* title, const Lines& lines) {
    if (!lines.empty()) text += std::string("\n\n") + title;
    for (const std::string& line : lines) text += "\n  • " + line;
  }

  Desk& desk_;
  const Documento& document_;
  Outlet& outlet_;
  DocumentBatch batch_;
  std::size_t all_ = 0;
  std::size_t made_ = 0;
  std::string stopped_;  // why, before all were made
  Lines failed_;
  Lines remarks_;
};

}  // namespace

ManyDocumentsDialog::ManyDocumentsDialog(std::vector<const Documento*> documents,
                                         const QString& title, To proposed, QWidget* parent)
    : QDialog(parent), documents_(std::move(documents)), which_(new QComboBox(this)) {
  setObjectName("ManyDocumentsDialog");
  setWindowTitle(title);
  auto* form = new QFormLayout(this);
  for (const Documento* document : documents_) which_->addItem(QString::fromUtf8(document->titulo));
  form->addRow(tr("&Documento:"), which_);
  for (const QString& way : {tr("&Todos en un solo PDF"), tr("Un PDF de &cada uno, en una carpeta"),
                             tr("En &papel, por la impresora")}) {
    ways_.push_back(new QRadioButton(way, this));
    form->addRow(ways_.size() == 1 ? tr("Se hacen:") : QString(), ways_.back());
  }
  ways_[static_cast<std::size_t>(proposed)]->setChecked(true);
  auto* buttons = new QDialogButtonBox(this);
  buttons->addButton(tr("&Hacerlos…"), QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons->addButton(tr("C&ancelar"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
}

const Documento& ManyDocumentsDialog::document() const {
  return *documents_[static_cast<std::size_t>(which_->currentIndex())];
}

To ManyDocumentsDialog::to() const {
  for (std::size_t way = 0; way < ways_.size(); ++way)
    if (ways_[way]->isChecked()) return static_cast<To>(way);
  return To::OneFile;
}

QString makeDocuments(Desk& desk, const NodeView& node, const std::vector<std::int32_t>& keys,
                      QWidget* over) {
  const QString things =
      QObject::tr("%L1 %2").arg(keys.size()).arg(QString::fromStdString(node.things));
  const std::vector<const Documento*> documents =
      documentsOf(node, desk.entorno().installation.Aplicacion);
  const int last = QString::fromStdString(readWindowSetting(desk, WAY)).toInt();
  ManyDocumentsDialog dialog(documents, QObject::tr("Documentos de %1").arg(things),
                             static_cast<To>(std::clamp(last, 0, 2)), over);
  if (documents.empty() || dialog.exec() != QDialog::Accepted) return {};
  writeWindowSetting(desk, WAY, std::to_string(static_cast<int>(dialog.to())));
  const QString name = dialog.document().titulo + (" - " + things);
  const std::unique_ptr<Outlet> outlet = outletFor(desk, dialog.to(), name, over);
  if (!outlet) return {};
  Making making(desk, dialog.document(), *outlet);
  making.run(keys, over);
  if (making.neverBegan()) return {};
  if (making.wentWell()) return QString::fromStdString(making.told());
  OutcomeReport(QObject::tr("Documentos de las elegidas"), making.told(), "documentos.txt", over)
      .exec();
  return {};
}

}  // namespace fidaleon::app
