#pragma once
// Pages are laid out once, in dots of a tenth of a point, whatever they are painted on: screen,
// printer and PDF break their lines at the same words.

#include <QtGlobal>

namespace fidaleon::paper {

inline constexpr qreal kDotsPerPoint = 10;
inline constexpr qreal kDotsPerInch = 72 * kDotsPerPoint;

constexpr qreal dotsOfPoints(qreal points) {
  return points * kDotsPerPoint;
}
constexpr qreal dotsOfMillimetres(qreal millimetres) {
  return millimetres * kDotsPerInch / 25.4;
}

}  // namespace fidaleon::paper
