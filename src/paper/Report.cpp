#include "paper/Report.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "paper/PageComposer.h"
#include "paper/SortOrder.h"
#include "paper/TemplateReader.h"
#include "paper/Units.h"

namespace fidaleon::paper {

struct Report::Impl {
  ReportTemplate layout;
  Rows rows;
  std::vector<int> positions;
  QString title;
  ReportOptions options;
  std::vector<Page> pages;

  void paintFurniture(QPainter& painter, const Page& page) const;
  void paintMarks(QPainter& painter, const Page& page) const;
  void writePdf(QBuffer& to, const Report& report) const;
  bool shows(const Furniture& f, const Page& page) const {
    return !f.blocks.empty() && page.number >= f.fromPage && (!f.onlyWhenSeveral || page.total > 1);
  }
  Source source(const Page& page) const {
    const std::size_t row = page.parts.empty() ? 0 : page.parts.front().row;
    return {&rows, row, &positions, page.number, page.total};
  }
  void reportProgress(int done, int total) const {
    if (options.progress &&
        !options.progress(static_cast<std::size_t>(done), static_cast<std::size_t>(total)))
      throw Error(ErrorKind::Cancelled, "Se ha cancelado el documento.");
  }
};

namespace {

constexpr qreal kFooterGap = 5;  // millimetres between text and footer

QPageLayout sheetOf(const ReportTemplate& t) {
  const QSizeF size = t.page;
  const bool wide = size.width() > size.height();
  return QPageLayout(QPageSize(wide ? size.transposed() : size, QPageSize::Millimeter, QString(),
                               QPageSize::FuzzyOrientationMatch),
                     wide ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF());
}

void paintMark(QPainter& painter, const QString& word, const QRectF& area) {
  painter.save();
  QFont f = painter.font();
  f.setBold(true);
  f.setPixelSize(1000);
  const QFontMetricsF metrics(f);
  const qreal angle =
      std::min<qreal>(45, qRadiansToDegrees(std::atan2(area.height() * 0.8, area.width())));
  const qreal room = std::hypot(area.width(), area.height()) * 0.62;
  f.setPixelSize(
      std::max(10, static_cast<int>(1000 * std::min(room / metrics.horizontalAdvance(word),
                                                    area.height() * 0.8 / metrics.height()))));
  painter.translate(area.center());
  painter.rotate(-angle);
  painter.setFont(f);
  painter.setPen(QColor(205, 205, 205));
  const qreal far = area.width() + area.height();
  painter.drawText(QRectF(-far, -far, 2 * far, 2 * far), Qt::AlignCenter, word);
  painter.restore();
}

}  // namespace

Report::Report(store::Connection& reports, const std::filesystem::path& templateDirectory,
               const std::string& templateName, QString title, ReportOptions options) {
  ReportTemplate layout = readTemplate(templateDirectory, templateName);
  Rows rows(reports, layout.table.toStdString());
  impl_ = std::make_unique<Impl>(
      Impl{std::move(layout), std::move(rows), {}, std::move(title), std::move(options), {}});
  impl_->positions = positionsOf(impl_->layout, impl_->rows);
  sortRows(impl_->rows, impl_->layout, impl_->positions, impl_->options.order);
  impl_->pages =
      PageComposer(impl_->layout, impl_->rows, impl_->positions).compose(impl_->options.progress);
}

Report::~Report() = default;
Report::Report(Report&&) noexcept = default;
Report& Report::operator=(Report&&) noexcept = default;

const QString& Report::title() const {
  return impl_->title;
}
std::size_t Report::rowCount() const {
  return impl_->rows.size();
}
int Report::pageCount() const {
  return static_cast<int>(impl_->pages.size());
}
QSizeF Report::pageSizeMillimetres() const {
  return impl_->layout.page;
}

void Report::Impl::paintFurniture(QPainter& painter, const Page& page) const {
  const BlockLayout blocks(layout);
  const qreal left = dotsOfMillimetres(layout.marginLeft);
  const qreal width =
      dotsOfMillimetres(layout.page.width() - layout.marginLeft - layout.marginRight);
  if (shows(layout.header, page))
    if (const FragmentPtr header = blocks.layOut(layout.header.blocks, source(page), width))
      header->paint(painter, {left, dotsOfMillimetres(layout.marginTop)});
  if (shows(layout.footer, page))
    if (const FragmentPtr footer = blocks.layOut(layout.footer.blocks, source(page), width))
      footer->paint(painter, {left, dotsOfMillimetres(layout.page.height() - layout.marginBottom +
                                                      kFooterGap)});
}

void Report::Impl::paintMarks(QPainter& painter, const Page& page) const {
  if (!options.mark) return;
  const qreal left = dotsOfMillimetres(layout.marginLeft);
  const qreal right = dotsOfMillimetres(layout.page.width() - layout.marginRight);
  const qreal bottom = dotsOfMillimetres(layout.page.height() - layout.marginBottom);
  QFont face;
  face.setFamilies(layout.fonts);
  painter.setFont(face);
  for (const Placed& part : page.parts) {
    const QString word = options.mark(Row(rows, part.row));
    if (word.isEmpty()) continue;
    const qreal foot = layout.flow == Flow::Page ? bottom : part.top + part.content->height();
    paintMark(painter, word, QRectF(QPointF(left, part.top), QPointF(right, foot)));
  }
}

void Report::paintPage(QPainter& painter, int number) const {
  const Page& page = impl_->pages.at(static_cast<std::size_t>(number));
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(painter.device()->logicalDpiX() / kDotsPerInch,
                painter.device()->logicalDpiY() / kDotsPerInch);
  impl_->paintMarks(painter, page);
  painter.setPen(Qt::black);
  impl_->paintFurniture(painter, page);
  for (const Placed& part : page.parts)
    part.content->paint(painter, {dotsOfMillimetres(impl_->layout.marginLeft), part.top});
  painter.restore();
}

QImage Report::pageImage(int page, int dotsPerInch) const {
  const QSizeF dots = impl_->layout.page * (dotsPerInch / 25.4);
  QImage image(qRound(dots.width()), qRound(dots.height()), QImage::Format_RGB32);
  image.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
  image.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
  image.fill(Qt::white);
  QPainter painter(&image);
  paintPage(painter, page);
  return image;
}

void Report::savePdf(const std::filesystem::path& path) const {
  QSaveFile file(QString::fromStdString(path.string()));
  const auto refuse = [&] {
    throw Error(ErrorKind::CannotWrite,
                QStringLiteral("No se puede guardar el documento en «%1». Compruebe que la carpeta "
                               "existe, que puede escribir en ella y que queda sitio en el disco.")
                    .arg(file.fileName())
                    .toStdString());
  };
  if (!file.open(QIODevice::WriteOnly)) refuse();
  QBuffer made;
  impl_->writePdf(made, *this);
  // The writer of PDF does not look at what the disk answers, so the file is written here.
  if (file.write(made.data()) != made.size() || !file.flush() || !file.commit()) refuse();
}

void Report::Impl::writePdf(QBuffer& to, const Report& report) const {
  to.open(QIODevice::WriteOnly);
  QPdfWriter writer(&to);
  writer.setTitle(title);
  writer.setCreator(QStringLiteral("Fidaleon"));
  writer.setResolution(static_cast<int>(kDotsPerInch));
  writer.setPageLayout(sheetOf(layout));
  QPainter painter(&writer);
  for (int page = 0; page < report.pageCount(); ++page) {
    if (page > 0) writer.newPage();
    report.paintPage(painter, page);
    reportProgress(page + 1, report.pageCount());
  }
}

void Report::print(QPrinter& printer) const {
  const auto refuse = [&] {
    throw Error(ErrorKind::NoPrinter,
                QStringLiteral("No se puede imprimir en «%1». Compruebe que la impresora está "
                               "encendida y conectada.")
                    .arg(printer.printerName())
                    .toStdString());
  };
  printer.setDocName(impl_->title);
  printer.setFullPage(true);
  printer.setPageLayout(sheetOf(impl_->layout));
  printer.setFullPage(true);
  const int first = printer.fromPage() > 0 ? printer.fromPage() - 1 : 0;
  const int last = printer.toPage() > 0 ? std::min(printer.toPage(), pageCount()) : pageCount();
  const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
  QPainter painter;
  if (!painter.begin(&printer)) refuse();
  for (int copy = 0; copy < copies; ++copy)
    for (int page = first; page < last; ++page) {
      if ((copy > 0 || page > first) && !printer.newPage()) refuse();
      paintPage(painter, page);
      impl_->reportProgress(page + 1, pageCount());
    }
  if (!painter.end()) refuse();
}

}  // namespace fidaleon::paper
