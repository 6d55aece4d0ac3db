#pragma once

#include "ui/controls.h"
#include "ui/hand.h"

namespace zelvs {

class Form;

/// The button that Enter would push now, wherever the focus in the form is: the focused one, or the default one unless
/// a field keeps the key for itself. Null when none answers.
CommandButton* answersEnter(const Form& form);
/// Leaves a window as Escape does: by its Cancel button, its close box or, where there is nothing else, its only
/// button. False when it has none of them, or is the frame, which asks before it closes and wants more than a slip.
bool leaveByEscape(Form& form);

/// A key for a form that has the keyboard: for its focused control, or for the form itself. False when nobody there has
/// a use for it.
bool keyInForm(Form& form, const Key& key);

}  // namespace zelvs
