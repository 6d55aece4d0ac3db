#pragma once

#include <QHash>
#include <QWidget>

#include "ui/dirtyPlaces.h"
#include "ui/form.h"

namespace zelvs {

/// The inside of one form. It draws what the model draws and holds a widget only for what a person types or picks in.
/// What mouse and keyboard do here goes to the model's hand.
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
  /// The widget that stands for a control, or null when the canvas paints it.
  QWidget* widgetOf(const Control& control) const { return widgets_.value(&control); }

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  Control* controlAt(QPointF place) const;
  void press(const QMouseEvent& event, bool second);
  void showPointer(const Control* control);
  /// True when the field is not to see the event.
  bool fieldEvent(Control& field, QEvent& event);
  Control* fieldOf(const QObject* widget) const;

  Form* form_;
  const Control* pointedAt_ = nullptr;
  bool swallowing_ = false;  // a press that no field saw: nor its release
  DirtyPlaces dirty_;
  QHash<const Control*, QWidget*> widgets_;
};

}  // namespace zelvs
