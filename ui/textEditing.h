#pragma once

#include "ui/controls.h"

namespace zelvs {

/// A character key in a field: its handler may change or drop the character, then it is typed over the selection, or
/// Backspace takes what stands before the caret.
void typeInto(TextBox& text, char32_t character);
/// What a field does by itself with a key that no handler has swallowed: arrows, Home, End, Delete.
void editByKey(TextBox& text, int code);

}  // namespace zelvs
