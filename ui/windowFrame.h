#pragma once

#include "ui/painter.h"
#include "ui/reach.h"

namespace zelvs {

class Form;

// The frame round a window's inside: a caption bar with a title, a close box where the form has one, and edges that a
// sizable one is drawn wider by. Side borders count as nothing. Places are twips from the left top of the inside, so
// that the caption bar lies above 0.

enum class FramePart { Inside, Caption, CloseBox, LeftEdge, RightEdge };

/// What lies at a place of a form's window.
FramePart framePartAt(const Form& form, const Spot& spot);
/// The close box in the caption bar; empty for a form that has none.
Area closeBoxOf(const Form& form);
/// Draws the fine line round the inside that sets a window off from what lies behind it.
void drawFrameEdge(Painter& painter, const Form& form);
/// Draws the caption bar; its left top corner is where the painter counts from.
void drawCaption(Painter& painter, const Form& form, bool active);

/// The window in front at a place of the screen, in twips, and that place counted from its inside. Null form: nothing
/// of this program lies there.
struct Seen {
  Form* form = nullptr;
  Spot spot;
};
Seen windowAt(double x, double y);
/// A place of the screen, in twips, counted from a form's inside.
Spot insideOf(const Form& form, double x, double y);

}  // namespace zelvs
