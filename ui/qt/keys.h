#pragma once

#include <Qt>

#include "ui/hand.h"

class QKeyEvent;

namespace zelvs {

/// The platform's key code for a Qt key; 0 for one that the program does not know.
int keyCodeOf(int qtKey);
/// The other way; Qt::Key_unknown for a code that no key has.
Qt::Key qtKeyOf(int code);
/// What a key event means to the model.
Key modelKeyOf(const QKeyEvent& event);

}  // namespace zelvs
