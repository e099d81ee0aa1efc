#include "qt/Picture.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>

#include "qt/Appearance.h"
#include "qt/FormDialog.h"

namespace fidaleon::qt {

namespace {

/// Colours of the application for the length of a block.
class PaletteFor {
 public:
  explicit PaletteFor(const QPalette& palette) : before_(QApplication::palette()) {
    QApplication::setPalette(palette);
  }
  ~PaletteFor() { QApplication::setPalette(before_); }

 private:
  QPalette before_;
};

QRect paintTitle(QPainter& painter, const FormDialog& dialog, int height) {
  const QRect bar(0, 0, dialog.width(), height);
  painter.fillRect(bar, dialog.palette().color(QPalette::Mid));
  QFont bold = dialog.font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(isDark(dialog.palette()) ? Qt::white : Qt::black);
  painter.drawText(bar.adjusted(height / 3, 0, -height / 3, 0), Qt::AlignVCenter | Qt::AlignLeft,
                   dialog.windowTitle());
  return bar;
}

}  // namespace

QImage renderToPicture(forms::Form& form, QSize screen, double scale, bool dark) {
  const PaletteFor colours(dark ? darkPalette() : QApplication::style()->standardPalette());
  FormDialog dialog(form, nullptr, FormDialog::Use::Picture, (QSizeF(screen) / scale).toSize());
  dialog.setAttribute(Qt::WA_DontShowOnScreen);
  dialog.show();
  QApplication::sendPostedEvents();
  const int title = dialog.fontMetrics().height() * 7 / 4;
  const QSize size(dialog.width(), dialog.height() + title);
  QImage picture((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(scale);
  picture.fill(dialog.palette().color(QPalette::Window));
  QPainter painter(&picture);
  paintTitle(painter, dialog, title);
  dialog.render(&painter, QPoint(0, title));
  painter.end();
  dialog.hide();
  return picture;
}

void showUnseen(forms::Form& form, QSize screen, const std::function<void(QWidget&)>& look) {
  FormDialog dialog(form, nullptr, FormDialog::Use::Picture, screen);
  dialog.setAttribute(Qt::WA_DontShowOnScreen);
  dialog.show();
  QApplication::sendPostedEvents();
  look(dialog);
  dialog.hide();
}

}  // namespace fidaleon::qt
