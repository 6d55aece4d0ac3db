#pragma once

#include <QHash>
#include <QRect>
#include <QWidget>
#include <vector>

#include "ui/form.h"

namespace zelvs {

/// The inside of one form. It paints labels, pictures, lines and shapes itself and holds a widget only for what a
/// person types or picks in. What the mouse does here becomes gestures.
class Canvas final : public QWidget {
  Q_OBJECT
 public:
  explicit Canvas(Form& form);

  /// Null once the form has been unloaded.
  Form* form() const { return form_; }
  void forgetForm();

  /// Brings widgets up to date and has the places of changed controls painted at the next occasion.
  void showChanges(const std::vector<Control*>& changed);
  /// The size of the form's inside.
  void fitForm();
  /// The Tab key follows the look: called when the form is shown, since its controls may have moved.
  void setTabOrderAsSeen();
  /// The widget that stands for a control, or null when the canvas paints it.
  QWidget* widgetOf(const Control& control) const { return widgets_.value(&control); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;

 private:
  Control* controlAt(QPointF place) const;
  /// What the control takes of the canvas, null when it is hidden.
  QRect placeOf(const Control& control) const;
  void markDirty(const Control& control);
  void showPointer(const Control* control);

  Form* form_;
  Control* pressed_ = nullptr;
  const Control* pointedAt_ = nullptr;
  QHash<const Control*, QRect> painted_;
  QHash<const Control*, QWidget*> widgets_;
};

}  // namespace zelvs
