#pragma once

#include <QColor>

// Colours worked out from the palette in force, so that windows read as well
// on a dark theme as on a light one.
namespace ThemeColors {

// Relative luminance and contrast ratio as the accessibility guidelines
// define them: 1 for equal colours, 21 for black on white.
double relativeLuminance(const QColor &color);
double contrastRatio(const QColor &a, const QColor &b);

// `from` moved `amount` (0 to 1) of the way towards `to`.
QColor mix(const QColor &from, const QColor &to, double amount);

// The red of a deficit or of a mark that must stand out: a deep red on a
// light ground, a light one on a dark ground; either reads at 4.5:1 or more.
QColor alertRed(const QColor &background);
// The amber of a warning short of an alert, chosen the same way.
QColor warningAmber(const QColor &background);

} // namespace ThemeColors
