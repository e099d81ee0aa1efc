#include "paper/Volume.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <optional>
#include <utility>

#include "paper/CheckedFile.h"
#include "paper/Error.h"
#include "paper/SheetTurner.h"
#include "paper/Units.h"

namespace fidaleon::paper {

struct Volume::Impl {
  Impl(QString path, PdfFacts f) : name(std::move(path)), facts(std::move(f)), file(name) {
    if (!file.start()) refuse();
    content.open(QIODevice::WriteOnly);
  }
  void begin(const QString& title, const QPageLayout& sheet) {
    writer.setPdfVersion(QPdfWriter::PdfVersion_A1b);
    writer.setTitle(title);
    writer.setCreator(QStringLiteral("Fidaleon"));
    writer.setResolution(static_cast<int>(kDotsPerInch));
    writer.setPageLayout(sheet);
    painter.begin(&writer);
    turner.emplace(writer);
  }
  [[noreturn]] void refuse() const {
    throw Error(ErrorKind::CannotWrite,
                QStringLiteral("No se puede guardar el documento en «%1». Compruebe que la carpeta "
                               "existe, que puede escribir en ella y que queda sitio en el disco.")
                    .arg(name)
                    .toStdString());
  }

  QString name;
  PdfFacts facts;
  CheckedFile file;
  QBuffer content;
  QPdfWriter writer{&content};
  QPainter painter;
  std::optional<SheetTurner> turner;
  bool painted = false;
};

Volume::Volume(const std::filesystem::path& file, const QString& title, PdfFacts facts,
               const QPageLayout& sheet)
    : impl_(std::make_unique<Impl>(QString::fromStdString(file.string()), std::move(facts))) {
  impl_->begin(title, sheet);
}

Volume::~Volume() = default;

QPainter& Volume::sheet() {
  if (impl_->painted) turn();
  impl_->turner->wait();
  impl_->painted = true;
  return impl_->painter;
}

void Volume::turn() {
  impl_->turner->turn();
  impl_->painted = false;
}

void Volume::close() {
  impl_->turner.reset();
  impl_->painter.end();
  writeArchived(impl_->content.data(), impl_->facts, impl_->file);
  if (!impl_->file.commit()) impl_->refuse();
}

}  // namespace fidaleon::paper
