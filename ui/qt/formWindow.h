#pragma once

#include <QWidget>

#include "ui/form.h"
#include "ui/windowFrame.h"

namespace zelvs {

class Canvas;

/// A form's window, inside the frame or by itself: its canvas under a caption bar that is drawn here, so that windows
/// look alike on every desktop, have no button that does nothing, and their insides lie where the model has them.
class FormWindow final : public QWidget {
  Q_OBJECT
 public:
  FormWindow(Form& form, Canvas* canvas, QWidget* parent, Qt::WindowFlags flags);
  void forgetForm() { form_ = nullptr; }
  /// Takes the form's size.
  void fitForm();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void press(const QMouseEvent& event, bool second);

  Form* form_;
  Canvas* canvas_;
};

/// Where the mouse is, counted from the form's inside as the model places it: the window itself follows a drag a moment
/// later.
Spot spotOn(const Form& form, const QMouseEvent& event);
/// The pointer over the edge of a window that can be drawn wider; no change elsewhere.
void showEdgePointer(QWidget& widget, const Form& form, const Spot& spot);

}  // namespace zelvs
