#include "window/Icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <array>
#include <sstream>

namespace fidaleon::app {
namespace {

constexpr double SHEET = 24;

/// Strokes on a sheet of 24 by 24: M x y lifts the pen to a point, L x y draws to one, Z closes
/// the line, O x y r draws a circle.
struct Drawing {
  const char* name;
  const char* strokes;
};

constexpr std::array<Drawing, 31> DRAWINGS{{
    {"new",
     "M 13 3 L 6 3 L 6 21 L 18 21 L 18 8 Z M 13 3 L 13 8 L 18 8 M 12 11 L 12 17 M 9 14 L "
     "15 14"},
    {"old", "M 5 4 L 19 4 L 19 20 L 5 20 Z M 5 17 L 19 17 M 9 8 L 15 8 M 9 12 L 15 12"},
    {"edit", "M 4 20 L 5 16 L 16 5 L 19 8 L 8 19 Z M 14 7 L 17 10"},
    {"annul", "O 12 12 8 M 6.400 6.400 L 17.600 17.600"},
    {"valid", "O 12 12 8 M 8 12 L 11 15 L 16 9"},
    {"print",
     "M 7 9 L 7 3 L 17 3 L 17 9 M 7 17 L 4 17 L 4 9 L 20 9 L 20 17 L 17 17 M 7 14 L 17 "
     "14 L 17 21 L 7 21 Z"},
    {"lock",
     "M 6 11 L 18 11 L 18 20 L 6 20 Z M 8.500 11 L 8.500 6 L 10 4 L 14 4 L 15.500 6 L "
     "15.500 11 M 12 14.500 L 12 17"},
    {"list", "M 4 6 L 6 6 M 9 6 L 20 6 M 4 12 L 6 12 M 9 12 L 20 12 M 4 18 L 6 18 M 9 18 L 20 18"},
    {"save",
     "M 4 4 L 16 4 L 20 8 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4 M 8 20 L 8 14 L 16 14 L 16 "
     "20"},
    {"first", "M 7 6 L 7 18 M 17 6 L 10 12 L 17 18"},
    {"back", "M 15 6 L 8 12 L 15 18"},
    {"forward", "M 9 6 L 16 12 L 9 18"},
    {"last", "M 17 6 L 17 18 M 7 6 L 14 12 L 7 18"},
    {"close", "M 6 6 L 18 18 M 18 6 L 6 18"},
    {"search", "O 10 10 6 M 14.500 14.500 L 20 20"},
    {"baptism", "M 12 3 L 17 11 L 17 15 L 15 18 L 12 19 L 9 18 L 7 15 L 7 11 Z M 9.500 14 L 11 16"},
    {"confirmation",
     "M 12 3 L 15 9 L 17 12 L 16.500 17 L 14 20 L 10 20 L 7.500 17 L 7 13 L 9.500 11 L 10 7 Z"},
    {"marriage", "O 9 13 5.500 O 15 13 5.500"},
    {"death", "M 12 3 L 12 21 M 6.500 8.500 L 17.500 8.500"},
    {"folder", "M 3 6 L 10 6 L 12 8 L 21 8 L 21 19 L 3 19 Z"},
    {"book", "M 5 4 L 18 4 L 18 20 L 5 20 Z M 5 17 L 18 17 M 9 8 L 14 8"},
    {"entry", "M 6 3 L 18 3 L 18 21 L 6 21 Z M 9 8 L 15 8 M 9 12 L 15 12 M 9 16 L 13 16"},
    {"request", "M 4 6 L 20 6 L 20 18 L 4 18 Z M 4 7 L 12 13 L 20 7"},
    {"church",
     "M 12 2 L 12 7 M 10 4 L 14 4 M 12 7 L 17 11 L 17 21 L 7 21 L 7 11 Z M 7 14 L 3 14 L "
     "3 21 L 7 21 M 17 14 L 21 14 L 21 21 L 17 21 M 10.500 21 L 10.500 17 L 13.500 17 L "
     "13.500 21"},
    {"map",
     "M 9 4 L 3 6 L 3 20 L 9 18 L 15 20 L 21 18 L 21 4 L 15 6 Z M 9 4 L 9 18 M 15 6 L 15 "
     "20"},
    {"town",
     "M 4 21 L 4 10 L 9 6 L 14 10 L 14 21 M 14 21 L 14 13 L 20 13 L 20 21 M 2 21 L 22 21 "
     "M 8 13 L 10 13 M 8 17 L 10 17"},
    {"person", "O 12 7 4 M 5 21 L 5 18 L 8 14.500 L 16 14.500 L 19 18 L 19 21 Z"},
    {"people",
     "O 8.500 8 3.500 M 2.500 20 L 2.500 17 L 5 14.500 L 12 14.500 L 14.500 17 L 14.500 20 Z M 14 "
     "5 L 16 4.500 L 18.500 6 L 18.500 9.500 L 16 11.500 M 17 14.500 L 19.500 14.500 L 21.500 17 L "
     "21.500 20 L 18 20"},
    {"activity",
     "O 12 12 3 M 12 9 L 12 4 M 14.600 13.500 L 19 16 M 9.400 13.500 L 5 16 O 12 3 1.500 O 20 "
     "16.800 "
     "1.500 O 4 16.800 1.500"},
    {"office",
     "O 12 9 6 M 8.500 14 L 7 21 L 12 18.500 L 17 21 L 15.500 14 M 9.500 9 L 11.500 11 L 15 7"},
    {"calendar",
     "M 4 6 L 20 6 L 20 20 L 4 20 Z M 4 10 L 20 10 M 8 3.500 L 8 7.500 M 16 3.500 L 16 7.500 M 8 "
     "14 "
     "L 10 14 M 14 14 L 16 14 M 8 17 L 10 17"},
}};

QPainterPath pathOf(const char* strokes) {
  QPainterPath path;
  std::istringstream in(strokes);
  char pen = 0;
  while (in >> pen) {
    if (pen == 'Z') {
      path.closeSubpath();
      continue;
    }
    double x = 0;
    double y = 0;
    double radius = 0;
    in >> x >> y;
    if (pen == 'M') path.moveTo(x, y);
    if (pen == 'L') path.lineTo(x, y);
    if (pen == 'O' && in >> radius) path.addEllipse(QPointF(x, y), radius, radius);
  }
  return path;
}

/// Draws what is asked for in the size that is asked for, and nothing before.
class Strokes : public QIconEngine {
 public:
  Strokes(const char* strokes, const QPalette& palette) : strokes_(strokes), palette_(palette) {}

  void paint(QPainter* painter, const QRect& at, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(at.topLeft());
    painter->scale(at.width() / SHEET, at.height() / SHEET);
    painter->setPen(QPen(colour(mode), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(pathOf(strokes_));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap sheet(size);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    paint(&painter, QRect({0, 0}, size), mode, state);
    return sheet;
  }

  QIconEngine* clone() const override { return new Strokes(*this); }

 private:
  QColor colour(QIcon::Mode mode) const {
    if (mode == QIcon::Disabled) return palette_.color(QPalette::Disabled, QPalette::WindowText);
    return palette_.color(QPalette::Active, mode == QIcon::Selected ? QPalette::HighlightedText
                                                                    : QPalette::WindowText);
  }

  const char* strokes_;
  QPalette palette_;
};

}  // namespace

QIcon icon(const std::string& name, const QPalette& palette) {
  for (const Drawing& d : DRAWINGS)
    if (name == d.name) return QIcon(new Strokes(d.strokes, palette));
  return {};
}

}  // namespace fidaleon::app
