#pragma once

#include <string>
#include <utility>
#include <vector>

#include "support/program.h"
#include "ui/controls.h"

namespace zelvs {

using Lines = std::vector<std::string>;

/// What the handlers of a test's forms and controls have noted, in their order.
inline Lines theNotes;

inline void note(const std::string& what) {
  theNotes.push_back(what);
}
/// The notes since the last call.
inline Lines takeNotes() {
  return std::exchange(theNotes, {});
}

/// Notes what the control learns of the mouse: "picFace down". twice: it acts on a double click.
inline void noteMouse(Control& control, bool twice = false) {
  const auto noting = [&control](const char* what) {
    return [name = control.name(), what] { note(name + " " + what); };
  };
  control.onMouseDown = noting("down");
  control.onMouseUp = noting("up");
  control.onMouseMove = noting("move");
  control.onClick = noting("click");
  if (twice) control.onDblClick = noting("double");
}

/// Notes when the control gets and loses the focus: "txtField got".
inline void noteFocus(Control& control) {
  control.onGotFocus = [name = control.name()] { note(name + " got"); };
  control.onLostFocus = [name = control.name()] { note(name + " lost"); };
}

/// The program before its start, with nothing noted yet.
class NotingTest : public ProgramTest {
 protected:
  NotingTest() { theNotes.clear(); }
};

}  // namespace zelvs
