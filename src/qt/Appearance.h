#pragma once
// Colours and measures, all taken from the palette and the font of the system.

#include <QFontMetrics>
#include <QIcon>
#include <QPalette>
#include <QWidget>

namespace fidaleon::qt {

/// The same palette with disabled texts dark enough to be read (a parish book that is shown but
/// not to be changed is still read).
QPalette legible(QPalette palette);
QPalette darkPalette();
bool isDark(const QPalette& palette);
QColor warningColour(const QPalette& palette);
/// Background of a field that can be read and copied but not changed.
QColor lockedColour(const QPalette& palette);
/// Background of what is chosen in a list that has not the focus.
QColor restingColour(const QPalette& palette);

/// Width of `n` letters of mean size in the widget's font, without any frame.
int charsWidth(const QWidget& widget, double n);
/// Column widths of grids are kept in twips of a small screen letter; they grow with the font.
double pixelsPerTwip(const QWidget& widget);
QIcon calendarIcon(const QWidget& widget);

}  // namespace fidaleon::qt
