#pragma once

#include <Qt>

namespace zelvs {

/// The platform's key code for a Qt key; 0 for one that the program does not know.
int keyCodeOf(int qtKey);
/// The other way; Qt::Key_unknown for a code that no key has.
Qt::Key qtKeyOf(int code);

}  // namespace zelvs
