#pragma once

#include <QPixmap>
#include <QSize>

#include "ui/picture.h"

namespace zelvs {

/// A picture's pixels for a size in logical pixels on a screen of that device pixel ratio; those of a file keep their
/// own size, and are none when it has gone since it was loaded. Drawn once and kept. An image list that the program
/// does not carry ends it with the list's name.
QPixmap spriteOf(const Picture& picture, QSize size, qreal devicePixelRatio);

}  // namespace zelvs
