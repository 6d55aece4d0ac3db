#pragma once

#include <string>

#include "ui/gesture.h"

namespace zelvs {

/// The user's hands in a script. These reach the model directly; a backend with windows sends real events instead.
/// A result that is not empty tells why the gesture could not be made.
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
};

}  // namespace zelvs
