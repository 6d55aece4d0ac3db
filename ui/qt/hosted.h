#pragma once

#include <QWidget>

#include "ui/control.h"

class QComboBox;
class QKeyEvent;

namespace zelvs {

/// The widget of a control that a person types or picks in, or null for one that the canvas paints. What is done to
/// it becomes a gesture; what it shows comes from the model alone.
QWidget* hostedWidget(Control& control, QWidget* canvas);
/// Brings a widget up to date with its control.
void showHosted(Control& control, QWidget& widget);

/// The row of a list's widget at a place on it, from 0; -1 where there is none, and on any other widget.
int rowAt(const QWidget& widget, QPoint place);
/// A key for a field: the model's, but for copying, and pasted characters are typed. False when nobody has a use for
/// it.
bool fieldKey(Control& field, QWidget& widget, QKeyEvent& key);
/// Whether the event opens the list of a combo box or goes to the open list.
bool dropsDown(const QComboBox& combo, const QEvent& event);

}  // namespace zelvs
