#pragma once

#include <cstdint>

namespace zelvs {

class Form;

/// What mdiClientHandle holds once the client area is known: there is one only.
inline constexpr std::int32_t kClientAreaHandle = 1;

/// Lets a child leave the client area for the frame itself, where it lies in front of the other children, or takes it
/// back. It keeps its place on the screen; Left and Top count from the frame while it floats.
void setWindowFloating(Form& form, bool onTop);

}  // namespace zelvs
