#pragma once

#include <span>

#include "ui/painter.h"

namespace zelvs {

class Form;

/// Draws the inside of a form as far as it touches the dirty places: its ground, then what stands on it but for the
/// fields (Control::isField), back to front.
void drawForm(Painter& painter, const Form& form, std::span<const Area> dirty);

}  // namespace zelvs
