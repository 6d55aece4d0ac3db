#pragma once

#include <QPixmap>
#include <QSize>

#include "ui/picture.h"

namespace zelvs {

/// A picture's pixels for a size in logical pixels on a screen of that device pixel ratio. Drawn once and kept. An
/// image list that the program does not carry ends it with the list's name.
QPixmap spriteOf(const Picture& picture, QSize size, qreal devicePixelRatio);

}  // namespace zelvs
