#pragma once

#include <optional>
#include <string>

#include "ui/gesture.h"
#include "ui/hand.h"
#include "ui/platform.h"

namespace zelvs {

/// The user's hands in a script. Gestures are made by name and are refused when their target cannot be reached; a
/// result that is not empty tells why. These reach the model directly; a backend with windows sends real events
/// instead.
class Hands {
 public:
  virtual ~Hands() = default;

  virtual std::string press(Form& form, Control* control) { return gesture::press(form, control); }
  virtual std::string release(Form& form, Control* control) { return gesture::release(form, control); }
  virtual std::string click(Form& form, Control* control) { return gesture::click(form, control); }
  virtual std::string doubleClick(Form& form, Control* control, bool lastRelease) {
    return gesture::doubleClick(form, control, lastRelease);
  }
  virtual std::string move(Form& form, Control* control) { return gesture::move(form, control); }
  virtual std::string pick(Control& control, int row) { return gesture::pick(control, row); }
  virtual std::string focus(Control& control) { return gesture::focus(control); }
  virtual std::string type(Control& control, char32_t character) { return gesture::type(control, character); }
  virtual std::string keyDown(Control& control, int code) { return gesture::keyDown(control, code); }
  virtual std::string close(Form& form) { return gesture::close(form); }
  virtual std::string activate(Form& form) { return gesture::activate(form); }
  /// A PNG of one form, or of the frame and all above it when form is null.
  virtual std::string screenshot(Form* /*form*/, const std::string& /*file*/) { return "a picture needs --desktop"; }

  // The mouse and the keyboard themselves: they go to whatever lies there and are refused nothing.

  /// The middle of a form's inside, of a control or of a row (from 0) of a list, in pixels of the screen; a row that is
  /// out of sight is scrolled to. Nothing when there is no such row.
  virtual std::optional<Point> placeOf(Form& form, Control* control, std::optional<int> row) = 0;
  /// Pixels of the screen.
  virtual void handMove(Point place) = 0;
  /// The left button. Two presses at one place within 400 ms are those of a double click.
  virtual void handDown() = 0;
  virtual void handUp() = 0;
  virtual void handKey(const Key& key) = 0;
};

}  // namespace zelvs
