#pragma once

#include "toolkit/report/document.h"

#include <QFont>

#include <vector>

namespace kaldo::report {

/// Texts are measured and painted with a font of this many units to the millimetre (ten to the
/// point) and no hinting, so that a line is as long on screen as in a PDF file and on paper.
constexpr double textUnitsPerMm = 720.0 / 25.4;

QFont textFont(const Style &style);

/// The lines of a text in a box of this width, their positions relative to the box's upper left
/// corner, all in millimetres. Empty text has no lines.
std::vector<TextLine> shapeText(const QString &text, double widthMm, const Style &style);

/// As many of the lines as go into the height, at least one; what is left out shows as "…".
void keepLinesThatFit(std::vector<TextLine> &lines, const QSizeF &box, const Style &style);

}  // namespace kaldo::report
