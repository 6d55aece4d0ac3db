#pragma once

#include "ui/control.h"

namespace zelvs {

/// The pointers that tell how a control is worked: image 1 by a click or press, image 2 by a double click. A picture
/// whose list is open shows image 1.
inline const ImageList ilsMouse{"ilsMouse", 2};
inline constexpr int kClickPointer = 1;
inline constexpr int kDoubleClickPointer = 2;

/// Changes the pointer image alone. A control without a custom pointer stores it and goes on showing the plain arrow.
inline void setPointerImage(Control& control, int image) {
  control.MouseIcon = ilsMouse.image(image);
}

/// Gives a control a custom pointer.
inline void setPointer(Control& control, int image) {
  control.MousePointer = kCustomPointer;
  setPointerImage(control, image);
}

}  // namespace zelvs
