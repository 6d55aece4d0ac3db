#pragma once

#include <QWidget>

#include "ui/control.h"

namespace zelvs {

/// The widget of a control that a person types or picks in, or null for one that the canvas paints. What is done to
/// it becomes a gesture; what it shows comes from the model alone.
QWidget* hostedWidget(Control& control, QWidget* canvas);
/// Brings a widget up to date with its control.
void showHosted(Control& control, QWidget& widget);

}  // namespace zelvs
