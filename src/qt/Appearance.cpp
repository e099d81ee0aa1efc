#include "qt/Appearance.h"

#include <QPainter>
#include <QStyle>
#include <cmath>

namespace fidaleon::qt {

namespace {

QColor mix(const QColor& a, const QColor& b, double share) {
  const auto part = [&](int x, int y) { return static_cast<int>(x * share + y * (1 - share)); };
  return QColor(part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue()));
}

}  // namespace

QPalette legible(QPalette palette) {
  const auto soften = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
    palette.setColor(
        QPalette::Disabled, text,
        mix(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground), 0.68));
  };
  soften(QPalette::WindowText, QPalette::Window);
  soften(QPalette::Text, QPalette::Base);
  soften(QPalette::ButtonText, QPalette::Button);
  palette.setColor(QPalette::Disabled, QPalette::Base,
                   palette.color(QPalette::Active, QPalette::Window));
  palette.setColor(QPalette::PlaceholderText,
                   mix(palette.color(QPalette::Active, QPalette::Text),
                       palette.color(QPalette::Active, QPalette::Base), 0.6));
  return palette;
}

QPalette darkPalette() {
  QPalette dark;
  const QColor ground(45, 46, 50), field(30, 31, 34), text(232, 232, 230), button(62, 64, 69);
  dark.setColor(QPalette::Window, ground);
  dark.setColor(QPalette::WindowText, text);
  dark.setColor(QPalette::Base, field);
  dark.setColor(QPalette::AlternateBase, QColor(38, 39, 43));
  dark.setColor(QPalette::Text, text);
  dark.setColor(QPalette::Button, button);
  dark.setColor(QPalette::ButtonText, text);
  dark.setColor(QPalette::BrightText, Qt::white);
  dark.setColor(QPalette::ToolTipBase, button);
  dark.setColor(QPalette::ToolTipText, text);
  dark.setColor(QPalette::Highlight, QColor(66, 116, 178));
  dark.setColor(QPalette::HighlightedText, Qt::white);
  dark.setColor(QPalette::Link, QColor(120, 170, 240));
  dark.setColor(QPalette::Light, QColor(88, 90, 96));
  dark.setColor(QPalette::Midlight, QColor(74, 76, 82));
  dark.setColor(QPalette::Mid, QColor(36, 37, 40));
  dark.setColor(QPalette::Dark, QColor(26, 27, 30));
  dark.setColor(QPalette::Shadow, QColor(12, 12, 14));
  return dark;
}

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128;
}

QColor warningColour(const QPalette& palette) {
  return isDark(palette) ? QColor(255, 138, 128) : QColor(176, 0, 32);
}

QColor restingColour(const QPalette& palette) {
  return mix(palette.color(QPalette::Active, QPalette::Highlight),
             palette.color(QPalette::Active, QPalette::Base), 0.25);
}

QColor lockedColour(const QPalette& palette) {
  return mix(palette.color(QPalette::Active, QPalette::Window),
             palette.color(QPalette::Active, QPalette::Base), 0.75);
}

int charsWidth(const QWidget& widget, double n) {
  return static_cast<int>(std::ceil(QFontMetricsF(widget.font()).horizontalAdvance(u'n') * n));
}

QIcon calendarIcon(const QWidget& widget) {
  const int side = widget.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget);
  QIcon icon;
  for (const double ratio : {1.0, 2.0, 3.0}) {
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = widget.palette().color(QPalette::Active, QPalette::ButtonText);
    const double unit = side / 16.0;
    painter.setPen(QPen(ink, unit));
    painter.drawRect(QRectF(1.5 * unit, 3 * unit, 13 * unit, 11.5 * unit));
    painter.fillRect(QRectF(1.5 * unit, 3 * unit, 13 * unit, 3 * unit), ink);
    painter.drawLine(QPointF(5 * unit, 1 * unit), QPointF(5 * unit, 4 * unit));
    painter.drawLine(QPointF(11 * unit, 1 * unit), QPointF(11 * unit, 4 * unit));
    for (int line = 0; line < 2; ++line)
      for (int day = 0; day < 3; ++day)
        painter.fillRect(
            QRectF((4 + 3.2 * day) * unit, (8 + 3 * line) * unit, 2 * unit, 1.6 * unit), ink);
    icon.addPixmap(picture);
  }
  return icon;
}

double pixelsPerTwip(const QWidget& widget) {
  constexpr double TWIPS_PER_LETTER = 75, SAMPLE = 100;
  return charsWidth(widget, SAMPLE) / SAMPLE / TWIPS_PER_LETTER;
}

}  // namespace fidaleon::qt
