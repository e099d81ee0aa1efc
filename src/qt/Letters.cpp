#include "qt/Letters.h"

#include <QApplication>
#include <QFontDatabase>

namespace fidaleon::qt {

void useLetters(int points) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
  if (points > 0) font.setPointSize(points);
  if (font != QApplication::font()) QApplication::setFont(font);
}

}  // namespace fidaleon::qt
