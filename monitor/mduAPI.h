#pragma once

#include <cstdint>

namespace zelvs {

class Form;

/// What mdiClientHandle holds once the client area is known: there is one only.
inline constexpr std::int32_t kClientAreaHandle = 1;

/// Lets a child leave the client area for the frame itself, where it lies in front of the other children, or takes it
/// back. It keeps its place on the screen, as far as its caption bar can be reached there; Left and Top count from the
/// frame while it floats.
void setWindowFloating(Form& form, bool onTop);
/// Moves a child to a place of the client area, in twips, also while it floats above it.
void moveInClientArea(Form& form, double left, double top);

}  // namespace zelvs
