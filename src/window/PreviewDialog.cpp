#include "window/PreviewDialog.h"

#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <array>
#include <cmath>

#include "qt/Appearance.h"
#include "text/Names.h"
#include "window/DocumentHabits.h"
#include "window/Icons.h"

namespace fidaleon::app {
namespace {

constexpr double MILLIMETRES_PER_INCH = 25.4;
constexpr int MARGIN = 16;                       // around the sheet, in pixels
constexpr std::chrono::milliseconds BREATH{25};  // between two looks at the keyboard
constexpr int FIT_WIDTH = 0;
constexpr int FIT_PAGE = -1;
constexpr std::array<int, 7> ZOOMS{50, 75, 100, 125, 150, 200, 300};

}  // namespace

/// The sheet on the desk: paper stays white in a dark theme.
class PreviewDialog::Sheet : public QWidget {
 public:
  Sheet(const paper::Report& report, QWidget* parent) : QWidget(parent), report_(report) {
    setAccessibleName(tr("Página del documento"));
  }
  void show(int page) {
    page_ = page;
    update();
  }
  void setScale(double percent) {
    const QSizeF inches = report_.pageSizeMillimetres() / MILLIMETRES_PER_INCH;
    scale_ = percent / 100;
    const QSizeF paper(inches.width() * logicalDpiX() * scale_,
                       inches.height() * logicalDpiY() * scale_);
    setFixedSize(paper.toSize() + QSize(2 * MARGIN, 2 * MARGIN));
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect paper = rect().adjusted(MARGIN, MARGIN, -MARGIN, -MARGIN);
    painter.fillRect(paper.translated(3, 3), QColor(0, 0, 0, 60));
    painter.fillRect(paper, Qt::white);
    if (page_ >= report_.composedPages()) return;
    painter.setClipRect(paper);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.translate(paper.topLeft());
    painter.scale(scale_, scale_);
    report_.paintPage(painter, page_);
  }

 private:
  const paper::Report& report_;
  int page_ = 0;
  double scale_ = 1;
};

PreviewDialog::PreviewDialog(paper::Report report, QWidget* parent, std::shared_ptr<LongRun> run)
    : QDialog(parent), report_(std::move(report)), run_(std::move(run)) {
  setWindowTitle(report_.title());
  setPalette(qt::legible(palette()));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  sheet_ = new Sheet(report_, this);
  scroll_ = new QScrollArea(this);
  scroll_->setBackgroundRole(QPalette::Dark);
  scroll_->setAlignment(Qt::AlignCenter);
  scroll_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  scroll_->setWidget(sheet_);
  buildBar();
  if (!report_.notices().isEmpty()) layout->addWidget(noticeBar());
  layout->addWidget(scroll_);
  const QSize room = screen()->availableSize();
  resize(std::min(900, room.width() * 9 / 10), std::min(960, room.height() * 9 / 10));
  composing_ = new QTimer(this);
  connect(composing_, &QTimer::timeout, this, [this] { composeSome(); });
  if (!report_.isComplete()) composeSome();
  if (!report_.isComplete()) composing_->start(0);
  showPage(0);
}

PreviewDialog::~PreviewDialog() = default;

void PreviewDialog::buildBar() {
  auto* bar = new QToolBar(this);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  layout()->addWidget(bar);
  const auto add = [&](const char* drawing, const QString& text, const QKeySequence& key,
                       auto&& what) {
    QAction* action = bar->addAction(icon(drawing, palette()), text);
    action->setShortcut(key);
    action->setToolTip(
        key.isEmpty() ? text : tr("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, what);
    return action;
  };
  add("print", tr("Imprimir…"), QKeySequence::Print, [this] { print(); });
  add("save", tr("Guardar como PDF…"), QKeySequence::Save, [this] { savePdf(); });
  bar->addSeparator();
  first_ = add("first", tr("Primera"), {}, [this] { showPage(0); });
  back_ = add("back", tr("Anterior"), Qt::Key_PageUp, [this] { showPage(page_ - 1); });
  place_ = new QLabel(bar);
  place_->setContentsMargins(6, 0, 6, 0);
  bar->addWidget(place_);
  forward_ = add("forward", tr("Siguiente"), Qt::Key_PageDown, [this] { showPage(page_ + 1); });
  last_ = add("last", tr("Última"), {}, [this] { goToEnd(); });
  for (QAction* a : {first_, back_, forward_, last_})
    qobject_cast<QToolButton*>(bar->widgetForAction(a))->setToolButtonStyle(Qt::ToolButtonIconOnly);
  bar->addSeparator();
  zooms_ = new QComboBox(bar);
  zooms_->setAccessibleName(tr("Ampliación"));
  zooms_->addItem(tr("Ajustar al ancho"), FIT_WIDTH);
  zooms_->addItem(tr("Página entera"), FIT_PAGE);
  for (const int percent : ZOOMS) zooms_->addItem(tr("%1 %").arg(percent), percent);
  connect(zooms_, &QComboBox::activated, this,
          [this](int index) { setZoom(zooms_->itemData(index).toDouble()); });
  bar->addWidget(zooms_);
  auto* stretch = new QWidget(bar);
  stretch->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(stretch);
  add("close", tr("Cerrar"), {}, [this] { reject(); });
}

// Said above the page, to be read before it is printed.
QWidget* PreviewDialog::noticeBar() {
  auto* notice = new QLabel(report_.notices().join(QLatin1Char('\n')), this);
  notice->setObjectName(QStringLiteral("notices"));
  notice->setTextFormat(Qt::PlainText);
  notice->setWordWrap(true);
  notice->setTextInteractionFlags(Qt::TextSelectableByMouse);
  notice->setMargin(8);
  notice->setStyleSheet(QStringLiteral("background: #fff3cd; color: #4d3b00;"));
  return notice;
}

void PreviewDialog::composeSome() {
  if (run_->isRunning()) return;
  try {
    report_.composeMore(BREATH);
  } catch (const std::exception& e) {
    composing_->stop();
    QMessageBox::warning(this, windowTitle(), QString::fromUtf8(e.what()));
  }
  if (report_.isComplete()) composing_->stop();
  showPlace();
}

void PreviewDialog::showPage(int page) {
  page_ = std::clamp(page, 0, std::max(0, report_.composedPages() - 1));
  showPlace();
  sheet_->show(page_);
  scroll_->verticalScrollBar()->setValue(0);
}

void PreviewDialog::showPlace() {
  const int pages = report_.composedPages();
  place_->setText((report_.isComplete() ? tr("Página %L1 de %L2") : tr("Página %L1 de %L2…"))
                      .arg(page_ + 1)
                      .arg(pages));
  first_->setEnabled(page_ > 0);
  back_->setEnabled(page_ > 0);
  forward_->setEnabled(page_ + 1 < pages);
  last_->setEnabled(page_ + 1 < pages || !report_.isComplete());
}

void PreviewDialog::goToEnd() {
  if (work(tr("Preparando las páginas…"), [this] { report_.pageCount(); }))
    showPage(report_.composedPages() - 1);
}

// False when it was stopped or failed; the user knows then.
bool PreviewDialog::work(const QString& what, const std::function<void()>& body) {
  if (run_->isRunning()) return false;
  bool done = false;
  try {
    done = run_->run(this, what, body);
  } catch (const std::exception& e) {
    QMessageBox::warning(this, windowTitle(), QString::fromUtf8(e.what()));
  }
  showPlace();
  return done;
}

void PreviewDialog::setZoom(double percent) {
  zoom_ = percent;
  const int index = zooms_->findData(static_cast<int>(percent));
  if (index >= 0) zooms_->setCurrentIndex(index);
  applyZoom();
}

// The size of the sheet on this screen at 100 per cent.
QSizeF PreviewDialog::naturalSize() const {
  const QSizeF inches = report_.pageSizeMillimetres() / MILLIMETRES_PER_INCH;
  return {inches.width() * sheet_->logicalDpiX(), inches.height() * sheet_->logicalDpiY()};
}

void PreviewDialog::applyZoom() {
  if (zoom_ > 0) return sheet_->setScale(zoom_);
  const QSize room = scroll_->viewport()->size() - QSize(2 * MARGIN, 2 * MARGIN);
  double percent = 100 * room.width() / naturalSize().width();
  if (zoom_ == FIT_PAGE) percent = std::min(percent, 100 * room.height() / naturalSize().height());
  sheet_->setScale(std::clamp(percent, 25.0, 300.0));
}

void PreviewDialog::zoomStep(int direction) {
  const double percent = 100 * (sheet_->width() - 2 * MARGIN) / naturalSize().width();
  if (direction > 0) {
    for (const int zoom : ZOOMS)
      if (zoom > percent + 1) return setZoom(zoom);
  } else {
    for (auto zoom = ZOOMS.rbegin(); zoom != ZOOMS.rend(); ++zoom)
      if (*zoom < percent - 1) return setZoom(*zoom);
  }
}

void PreviewDialog::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Home:
      return showPage(0);
    case Qt::Key_End:
      return goToEnd();
    case Qt::Key_Plus:
      return zoomStep(+1);
    case Qt::Key_Minus:
      return zoomStep(-1);
    default:
      QDialog::keyPressEvent(event);
  }
}

void PreviewDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  applyZoom();
}

void PreviewDialog::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  applyZoom();
}

void PreviewDialog::print() {
  if (!hasPrinter(this)) return;
  if (!work(tr("Preparando las páginas…"), [this] { report_.pageCount(); })) return;
  if (const auto printer = choosePrinter(desk_, this, report_.pageCount()))
    work(tr("Imprimiendo…"), [&] { report_.print(*printer); });
}

void PreviewDialog::savePdf() {
  const QString name = QString::fromStdString(text::fileName(report_.title().toStdString()));
  const QString file = choosePdf(desk_, this, tr("Guardar como PDF"), name);
  if (!file.isEmpty() &&
      work(tr("Guardando el documento…"), [&] { report_.savePdf(file.toStdString()); }))
    rememberFolderOf(desk_, file);
}

}  // namespace fidaleon::app
