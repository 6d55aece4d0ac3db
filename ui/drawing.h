#pragma once

#include <span>

#include "ui/painter.h"

namespace zelvs {

class Form;

/// Whether a backend brings the control as a field of its own: a person types, picks or pushes there. All others are
/// drawn here.
bool isField(const Control& control);

/// Draws the inside of a form as far as it touches the dirty places: its ground, then what stands on it, back to front.
void drawForm(Painter& painter, const Form& form, std::span<const Area> dirty);

}  // namespace zelvs
