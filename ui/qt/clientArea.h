#pragma once

#include <QAbstractScrollArea>
#include <QWidget>

#include "ui/form.h"

namespace zelvs {

class Canvas;

/// The frame's area in which children show. How far it is scrolled is the model's: the bars show that and change it.
class ClientArea final : public QAbstractScrollArea {
  Q_OBJECT
 public:
  explicit ClientArea(QWidget* parent);
  /// Brings ranges and positions of the bars up to date with the frame.
  void follow(Form& frame);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  Form* frame_ = nullptr;
  bool following_ = false;
};

/// A child's window: its canvas under a caption bar that it draws itself, so that it looks alike in the client area and
/// floating above it.
class ChildWindow final : public QWidget {
  Q_OBJECT
 public:
  ChildWindow(Form& form, Canvas* canvas, QWidget* parent);
  void forgetForm() { form_ = nullptr; }
  void fitForm();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  Form* form_;
  Canvas* canvas_;
};

}  // namespace zelvs
