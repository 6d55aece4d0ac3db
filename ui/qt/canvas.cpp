#include "ui/qt/canvas.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <utility>
#include <vector>

#include "ui/desk.h"
#include "ui/qt/formWindow.h"
#include "ui/qt/hosted.h"
#include "ui/qt/keys.h"
#include "ui/qt/qtPainter.h"
#include "ui/qt/sprites.h"
#include "ui/windowFrame.h"

namespace zelvs {

Canvas::Canvas(Form& form) : form_(&form) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);  // the model says who has the keyboard
  setAttribute(Qt::WA_OpaquePaintEvent);
  setObjectName(QString::fromStdString(form.name()));
  for (Control* control : form.controls()) {
    QWidget* widget = hostedWidget(*control, this);
    if (widget == nullptr) continue;
    widget->setFocusPolicy(Qt::TabFocus);
    widgets_.insert(control, widget);
    widget->installEventFilter(this);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(widget)) area->viewport()->installEventFilter(this);
  }
  fitForm();
  showChanges(form.controls());
}

void Canvas::forgetForm() {
  form_ = nullptr;
  pointedAt_ = nullptr;
  // What still lies in the queue for these widgets must not reach controls that are gone.
  qDeleteAll(widgets_);
  widgets_.clear();
  dirty_.forget();
}

void Canvas::fitForm() {
  const QSizeF size(form_->clientWidth() / kTwipsPerPixel, form_->clientHeight() / kTwipsPerPixel);
  if (form_->kind() == FormKind::Frame) {
    setFixedHeight(static_cast<int>(form_->barHeight() / kTwipsPerPixel));
  } else if (form_->border() == Border::Sizable) {
    resize(size.toSize());
  } else {
    setFixedSize(size.toSize());
  }
}

void Canvas::showChanges(const std::vector<Control*>& changed) {
  const DirtyPlaces::Dirty dirty = dirty_.of(changed);
  if (dirty.whole) update();
  for (const Area& place : dirty.places)
    update(pixelsOf(place).toAlignedRect());
  for (Control* control : changed) {
    if (QWidget* widget = widgetOf(*control)) showHosted(*control, *widget);
    // What a container holds appears, disappears and moves with it.
    if (!control->children().empty()) {
      for (auto at = widgets_.constBegin(); at != widgets_.constEnd(); ++at)
        showHosted(const_cast<Control&>(*at.key()), *at.value());
    }
    if (control == pointedAt_) showPointer(control);
  }
}

void Canvas::paintEvent(QPaintEvent* event) {
  if (form_ == nullptr) return;
  QPainter painter(this);
  drawForm(painter, *form_, event->region());
  const bool atEdge = !rect().adjusted(1, 0, -1, -1).contains(event->rect());
  if (form_->kind() == FormKind::Frame || !atEdge) return;
  QtPainter through(painter);
  drawFrameEdge(through, *form_);
}

Control* Canvas::controlAt(QPointF place) const {
  return form_->controlAt(place.x() * kTwipsPerPixel, place.y() * kTwipsPerPixel);
}

namespace {

Spot spotOf(const QMouseEvent& event) {
  return {event.position().x() * kTwipsPerPixel, event.position().y() * kTwipsPerPixel};
}

/// A gesture that a script makes by its name.
bool isNamed(const QMouseEvent& event) {
  return event.source() == Qt::MouseEventSynthesizedByApplication;
}

}  // namespace

void Canvas::press(const QMouseEvent& event, bool second) {
  if (form_ != nullptr && event.button() == Qt::LeftButton)
    desk().hand.down(*form_, spotOf(event), second, isNamed(event));
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  press(*event, false);
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  press(*event, true);
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
  if (form_ != nullptr && event->button() == Qt::LeftButton && desk().hand.heldForm() == form_)
    desk().hand.up(spotOf(*event));
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  const Control* control = controlAt(event->position());
  if (control != pointedAt_) {
    pointedAt_ = control;
    showPointer(control);
  }
  showEdgePointer(*this, *form_, spotOf(*event));
  desk().hand.move(form_, spotOf(*event));
}

void Canvas::showPointer(const Control* control) {
  if (control == nullptr || control->MousePointer != kCustomPointer || control->MouseIcon.get().none()) {
    unsetCursor();
    return;
  }
  constexpr QSize kPointerSize(32, 32);
  constexpr int kHotSpot = 3;
  setCursor(QCursor(spriteOf(control->MouseIcon, kPointerSize, devicePixelRatioF()), kHotSpot, kHotSpot));
}

bool Canvas::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Leave:
      pointedAt_ = nullptr;
      break;
    case QEvent::KeyPress:  // before the toolkit takes Tab for itself
      if (desk().hand.key(modelKeyOf(static_cast<QKeyEvent&>(*event)))) return true;
      break;
    case QEvent::ToolTip: {
      if (form_ == nullptr) return true;
      const auto* help = static_cast<QHelpEvent*>(event);
      const Control* control = controlAt(help->pos());
      if (control == nullptr || control->ToolTipText.get().empty()) {
        QToolTip::hideText();
      } else {
        QToolTip::showText(help->globalPos(), QString::fromStdString(control->ToolTipText.get()), this,
                           pixelsOf(control->area()).toAlignedRect());
      }
      return true;
    }
    default:
      break;
  }
  return QWidget::event(event);
}

Control* Canvas::fieldOf(const QObject* widget) const {
  for (auto at = widgets_.constBegin(); at != widgets_.constEnd(); ++at) {
    if (at.value() == widget || at.value() == widget->parent()) return const_cast<Control*>(at.key());
  }
  return nullptr;
}

bool Canvas::eventFilter(QObject* watched, QEvent* event) {
  Control* field = form_ != nullptr ? fieldOf(watched) : nullptr;
  return field != nullptr && fieldEvent(*field, *event);
}

bool Canvas::fieldEvent(Control& field, QEvent& event) {
  Hand& hand = desk().hand;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
      const auto& mouse = static_cast<QMouseEvent&>(event);
      if (mouse.button() != Qt::LeftButton) return false;
      swallowing_ = !hand.downOnField(field, rowAt(*widgetOf(field), mouse.position().toPoint()),
                                      event.type() == QEvent::MouseButtonDblClick, isNamed(mouse));
      return swallowing_;
    }
    case QEvent::MouseButtonRelease:
      if (std::exchange(swallowing_, false)) return true;
      hand.upFromField();
      return false;
    case QEvent::KeyPress:
      // A list that has dropped down keeps its keys until it is closed.
      if (auto* combo = qobject_cast<QComboBox*>(widgetOf(field)); combo != nullptr && dropsDown(*combo, event))
        return false;
      return fieldKey(field, *widgetOf(field), static_cast<QKeyEvent&>(event));
    default:
      return false;
  }
}

}  // namespace zelvs
