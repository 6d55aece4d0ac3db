#pragma once

namespace zelvs {

class Form;

/// What shows the model: it is told of what has changed and looks at the model itself. This one shows nothing.
class View {
 public:
  virtual ~View() = default;

  virtual void formLoaded(Form& /*form*/) {}
  virtual void formShown(Form& /*form*/) {}
  virtual void formHidden(Form& /*form*/) {}
  virtual void formUnloaded(Form& /*form*/) {}
  /// The form's own properties have changed.
  virtual void formChanged(Form& /*form*/) {}
  /// The order of the windows, or who is active, has changed.
  virtual void orderChanged() {}
  /// The first control of the form changed since Form::takeChanged was last called.
  virtual void controlsChanged(Form& /*form*/) {}
  /// Shows what has changed in the form at once.
  virtual void repaint(Form& /*form*/) {}
};

View& view();
/// The view must outlive its use; null: nothing is shown.
void setView(View* view);

}  // namespace zelvs
