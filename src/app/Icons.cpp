#include "app/Icons.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>
#include <string_view>

namespace fidaleon::app {
namespace {

struct Drawing {
  std::string_view name;
  std::string_view path;  // strokes on a sheet of 24 by 24
};

constexpr std::array<Drawing, 15> DRAWINGS{{
    {"new", "M13 3H6v18h12V8zM13 3v5h5M12 11v6M9 14h6"},
    {"old", "M5 4h11a3 3 0 0 1 3 3v13H8a3 3 0 0 1-3-3zM5 17a3 3 0 0 1 3-3h11M9 8h6"},
    {"edit", "M4 20l1-4L16 5l3 3L8 19zM14 7l3 3"},
    {"annul", "M12 4a8 8 0 1 0 .01 0M6.5 6.5l11 11"},
    {"valid", "M12 4a8 8 0 1 0 .01 0M8 12l3 3 5-6"},
    {"print", "M7 9V3h10v6M7 17H4V9h16v8h-3M7 14h10v7H7z"},
    {"lock", "M6 11h12v9H6zM8.500 11V8a3.500 3.500 0 0 1 7 0v3M12 14.500v2.500"},
    {"list", "M4 6h2M9 6h11M4 12h2M9 12h11M4 18h2M9 18h11"},
    {"folder", "M3 6h7l2 2h9v11H3z"},
    {"book", "M5 4h12v16H7a2 2 0 0 1-2-2zM5 18a2 2 0 0 1 2-2h10M9 8h4"},
    {"entry", "M6 3h12v18H6zM9 8h6M9 12h6M9 16h4"},
    {"request", "M4 6h16v12H4zM4 7l8 6 8-6"},
    {"church", "M12 2v5M10 4h4M12 7l5 4v10H7V11zM7 14H3v7h4M17 14h4v7h-4M10.500 21v-4h3v4"},
    {"map", "M9 4L3 6v14l6-2 6 2 6-2V4l-6 2zM9 4v14M15 6v14"},
    {"town", "M4 21V10l5-4 5 4v11M14 21v-8h6v8M2 21h20M8 13h2M8 17h2"},
}};

QByteArray svg(std::string_view path, const QColor& colour) {
  return QByteArray("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'><path d='") +
         QByteArray(path.data(), static_cast<qsizetype>(path.size())) +
         "' fill='none' stroke-width='1.600' stroke-linecap='round' stroke-linejoin='round' "
         "stroke='" +
         colour.name().toLatin1() + "'/></svg>";
}

void draw(QIcon& icon, QIcon::Mode mode, std::string_view path, const QColor& colour) {
  QSvgRenderer renderer(svg(path, colour));
  for (const int size : {16, 24, 32, 48}) {
    QPixmap sheet(size, size);
    sheet.fill(Qt::transparent);
    QPainter painter(&sheet);
    renderer.render(&painter);
    icon.addPixmap(sheet, mode);
  }
}

}  // namespace

QIcon icon(const std::string& name, const QPalette& palette) {
  QIcon made;
  for (const Drawing& d : DRAWINGS) {
    if (d.name != name) continue;
    draw(made, QIcon::Normal, d.path, palette.color(QPalette::Active, QPalette::WindowText));
    draw(made, QIcon::Disabled, d.path, palette.color(QPalette::Disabled, QPalette::WindowText));
    draw(made, QIcon::Selected, d.path, palette.color(QPalette::Active, QPalette::HighlightedText));
  }
  return made;
}

}  // namespace fidaleon::app
