#include "paper/Report.h"

#include <QPageLayout>
#include <QPainter>
#include <QPainterPath>
#include <QPrinter>
#include <QtMath>
#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>
#include <utility>

#include "paper/Pages.h"
#include "paper/SortOrder.h"
#include "paper/TemplateReader.h"
#include "paper/Units.h"

namespace fidaleon::paper {

struct Report::Impl {
  ReportTemplate layout;
  Rows rows;
  QString title;
  ReportOptions options;
  Binding binding;
  std::vector<std::optional<QString>> marks;
  Pages pages;

  Impl(ReportTemplate t, Rows r, QString name, ReportOptions o);
  const QString& markOf(std::size_t row);
  void composeAll();
  int totalOf(int page) { return layout.readsTotal ? pages.totalOf(page) : 0; }

  void paint(QPainter& painter, int number);
  void paintFurniture(QPainter& painter, const Page& page, int total) const;
  void paintMarks(QPainter& painter, const Page& page);
  QRectF areaOf(const Placed& part) const;
  void reportProgress(std::size_t done, std::size_t total) const {
    if (options.progress && !options.progress(done, total))
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

constexpr int kLossesTold = 6;

/// As an outline, not as text: what lies under it is found, marked and copied undisturbed.
void paintMark(QPainter& painter, const QString& word, const QRectF& area, QFont face) {
  face.setBold(true);
  face.setPixelSize(1000);
  QPainterPath outline;
  outline.addText(0, 0, face, word);
  const QRectF shape = outline.boundingRect();
  const qreal angle =
      std::min<qreal>(45, qRadiansToDegrees(std::atan2(area.height() * 0.8, area.width())));
  const qreal scale = std::min(std::hypot(area.width(), area.height()) * 0.62 / shape.width(),
                               area.height() * 0.5 / shape.height());
  painter.save();
  painter.translate(area.center());
  painter.rotate(-angle);
  painter.scale(scale, scale);
  painter.translate(-shape.center());
  painter.fillPath(outline, QColor(222, 222, 222));
  painter.restore();
}

/// Black and boxed, in the upper margin: a copy loses what is grey.
void paintStampInMargin(QPainter& painter, const QString& word, const ReportTemplate& t,
                        QFont face) {
  face.setBold(true);
  face.setPixelSize(qRound(dotsOfPoints(8)));
  const QSizeF size = QFontMetricsF(face).size(Qt::TextSingleLine, word) +
                      QSizeF(dotsOfMillimetres(4), dotsOfMillimetres(1));
  const QRectF box(
      QPointF((dotsOfMillimetres(t.page.width()) - size.width()) / 2, dotsOfMillimetres(4)), size);
  painter.save();
  painter.setPen(QPen(Qt::black, dotsOfMillimetres(0.3)));
  painter.drawRect(box);
  painter.setFont(face);
  painter.drawText(box, Qt::AlignCenter, word);
  painter.restore();
}

QString placeOf(const Rows& rows, std::size_t row) {
  const Row at(rows, row);
  const QString folio = at.value(QStringLiteral("Folio"));
  if (rows.size() < 2 || isBlankValue(folio)) return {};
  return QStringLiteral(" (folio %1, número %2)").arg(folio, at.value(QStringLiteral("Numero")));
}

/// Empty when every sign can be printed. To be called before the rows change their order.
QString lossesOf(const Rows& rows, const QStringList& given) {
  QStringList fields = given;
  for (const Rows::Loss& loss : rows.losses())
    fields << fieldName(rows.columns()[loss.column]) + placeOf(rows, loss.row);
  if (fields.isEmpty()) return {};
  QString told = fields.mid(0, kLossesTold).join(QStringLiteral("; "));
  if (fields.size() > kLossesTold)
    told += QStringLiteral("; y %1 más").arg(fields.size() - kLossesTold);
  return QStringLiteral("Algún signo no se puede imprimir y sale como «?». Está en: %1.").arg(told);
}

/// The given values made fit for paper; the names of those that lost something.
QStringList makePrintable(GivenValues& values, Printable& printable) {
  QStringList lost;
  for (auto& [name, value] : values) {
    Printable::Text made = printable.of(value);
    if (made.lost) lost << fieldName(name);
    value = std::move(made.text);
  }
  return lost;
}

int markedRows(const Rows& rows, const ReportOptions& options) {
  int marked = 0;
  for (std::size_t row = 0; options.mark && row < rows.size(); ++row)
    marked += options.mark(Row(rows, row)).isEmpty() ? 0 : 1;
  return marked;
}

}  // namespace

Report::Impl::Impl(ReportTemplate t, Rows r, QString name, ReportOptions o)
    : layout(std::move(t)),
      rows(std::move(r)),
      title(std::move(name)),
      options(std::move(o)),
      binding(layout, rows, options.values),
      marks(rows.size()),
      pages(layout, rows, binding, [this](std::size_t row) { return markOf(row); }) {
  sortRows(rows, layout, binding,
           options.order.empty() ? layout.order.toStdString() : options.order);
  binding.forget();
}

const QString& Report::Impl::markOf(std::size_t row) {
  std::optional<QString>& mark = marks[row];
  if (!mark) mark = options.mark ? options.mark(Row(rows, row)) : QString();
  return *mark;
}

void Report::Impl::composeAll() {
  while (!pages.complete()) {
    pages.composeNext();
    reportProgress(pages.rows(), rows.size());
  }
}

Report::Report(store::Connection& reports, const std::filesystem::path& templateDirectory,
               const std::string& templateName, QString title, ReportOptions options) {
  ReportTemplate layout = readTemplate(templateDirectory, templateName);
  QStringList wanted = layout.columns;
  wanted << QStringLiteral("Libro") << QStringLiteral("Folio") << QStringLiteral("Numero");
  Printable printable(layout.fonts);
  wanted << options.columns;
  for (const SideTable& side : layout.sides) wanted << side.of;
  Rows rows(reports, layout.table.toStdString(), wanted, printable);
  for (const SideTable& side : layout.sides) rows.add(reports, side, wanted, printable);
  for (const QString& choice : options.choices) options.values[choice] = QStringLiteral("sí");
  const QString losses = lossesOf(rows, makePrintable(options.values, printable));
  if (!losses.isEmpty()) options.notices << losses;
  options.values[QStringLiteral("Filas")] = QString::number(rows.size());
  if (layout.columns.contains(QStringLiteral("@Marcadas")))
    options.values[QStringLiteral("Marcadas")] = QString::number(markedRows(rows, options));
  const bool whole = options.composition == ReportOptions::Composition::Whole;
  impl_ = std::make_unique<Impl>(std::move(layout), std::move(rows), std::move(title),
                                 std::move(options));
  if (whole) impl_->composeAll();
}

Report::~Report() = default;
Report::Report(Report&&) noexcept = default;
Report& Report::operator=(Report&&) noexcept = default;

const QString& Report::title() const {
  return impl_->title;
}
const QStringList& Report::notices() const {
  return impl_->options.notices;
}
std::size_t Report::rowCount() const {
  return impl_->rows.size();
}
int Report::pageCount() const {
  impl_->composeAll();
  return impl_->pages.count();
}
QSizeF Report::pageSizeMillimetres() const {
  return impl_->layout.page;
}

bool Report::composeMore(std::chrono::milliseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (!isComplete()) {
    impl_->pages.composeNext();
    if (std::chrono::steady_clock::now() >= end) break;
  }
  return isComplete();
}
bool Report::isComplete() const {
  return impl_->pages.complete();
}
int Report::composedPages() const {
  return impl_->pages.count();
}
std::size_t Report::composedRows() const {
  return impl_->pages.rows();
}
int Report::heldPages() const {
  return impl_->pages.held();
}

void Report::Impl::paintFurniture(QPainter& painter, const Page& page, int total) const {
  const qreal left = dotsOfMillimetres(layout.leftMargin(page.number));
  if (const FragmentPtr header = pages.furniture(layout.header, page, total))
    header->paint(painter, {left, dotsOfMillimetres(layout.marginTop)});
  if (const FragmentPtr footer = pages.furniture(layout.footer, page, total))
    footer->paint(painter, {left, dotsOfMillimetres(layout.page.height() - layout.marginBottom +
                                                    kFooterGap)});
}

QRectF Report::Impl::areaOf(const Placed& part) const {
  const qreal gaps = layout.pageColumnGap * (layout.pageColumns - 1);
  const qreal width = dotsOfMillimetres(
      (layout.page.width() - layout.marginLeft - layout.marginRight - gaps) / layout.pageColumns);
  return {part.left, part.top, width, part.content->markedHeight()};
}

void Report::Impl::paintMarks(QPainter& painter, const Page& page) {
  QFont face;
  face.setFamilies(layout.fonts);
  QString stamp = options.stamp;
  for (const Placed& part : page.parts) {
    if (!part.isRow || !layout.marksAcross || markOf(part.row).isEmpty()) continue;
    QString word = markOf(part.row);
    if (layout.flow == Flow::Page && !stamp.isEmpty())
      word += QStringLiteral(" · ") + std::exchange(stamp, QString());
    const QRectF area = areaOf(part);
    if (area.height() > 0) paintMark(painter, word, area, face);
  }
  if (!stamp.isEmpty())
    paintMark(painter, stamp, QRectF(QPointF(), layout.page * dotsOfMillimetres(1)), face);
  if (!options.stamp.isEmpty()) paintStampInMargin(painter, options.stamp, layout, face);
}

void Report::Impl::paint(QPainter& painter, int number) {
  const int total = totalOf(number);
  const std::shared_ptr<const Page> page = pages.page(number);
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.scale(painter.device()->logicalDpiX() / kDotsPerInch,
                painter.device()->logicalDpiY() / kDotsPerInch);
  paintMarks(painter, *page);
  painter.setPen(Qt::black);
  paintFurniture(painter, *page, total);
  for (const Placed& part : page->parts) part.content->paint(painter, {part.left, part.top});
  painter.restore();
}

void Report::paintPage(QPainter& painter, int page) const {
  if (!impl_->pages.has(page)) throw std::out_of_range("page");
  impl_->paint(painter, page);
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

void Report::savePdf(const std::filesystem::path& file) const {
  const std::unique_ptr<Volume> alone = volume(file, title());
  bindInto(*alone);
  alone->close();
}

std::unique_ptr<Volume> Report::volume(const std::filesystem::path& file,
                                       const QString& title) const {
  return std::make_unique<Volume>(
      file, title, PdfFacts{impl_->options.author, impl_->layout.language}, sheetOf(impl_->layout));
}

void Report::bindInto(Volume& volume) const {
  Pages& pages = impl_->pages;
  const bool counted = pages.complete();
  for (int page = 0; pages.has(page); ++page) {
    pages.page(page);
    impl_->paint(volume.sheet(), page);
    if (pages.goesOnAfter(page)) volume.turn();
    if (counted)
      impl_->reportProgress(static_cast<std::size_t>(page) + 1,
                            static_cast<std::size_t>(pages.count()));
    else
      impl_->reportProgress(pages.rows(), impl_->rows.size());
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
      impl_->reportProgress(static_cast<std::size_t>(page) + 1,
                            static_cast<std::size_t>(pageCount()));
    }
  if (!painter.end()) refuse();
}

}  // namespace fidaleon::paper
