#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QRegion>

#include "ui/control.h"

namespace zelvs {

class Form;

QColor colourOf(Colour colour);
/// The program's one family: ASCII half as wide as ideographs, at the size that the model counts with.
QFont fontOf(double points, bool bold);
QRectF pixelsOf(const Area& twips);

/// Paints the controls of a form that the canvas draws itself, back to front, as far as they touch the dirty area.
void drawControls(QPainter& painter, const Form& form, const QRegion& dirty);

}  // namespace zelvs
