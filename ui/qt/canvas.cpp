#include "ui/qt/canvas.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>
#include <vector>

#include "ui/desk.h"
#include "ui/gesture.h"
#include "ui/qt/drawing.h"
#include "ui/qt/hosted.h"
#include "ui/qt/keys.h"
#include "ui/qt/sprites.h"

namespace zelvs {

namespace {

/// The Tab key goes line by line, and through all of a group before it goes on beside it.
void appendInReadingOrder(std::vector<Control*> siblings, std::vector<Control*>& order) {
  std::stable_sort(siblings.begin(), siblings.end(), [](const Control* a, const Control* b) {
    return std::pair<double, double>(a->Top, a->Left) < std::pair<double, double>(b->Top, b->Left);
  });
  for (Control* control : siblings) {
    order.push_back(control);
    appendInReadingOrder(control->children(), order);
  }
}

}  // namespace

Canvas::Canvas(Form& form) : form_(&form) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setObjectName(QString::fromStdString(form.name()));
  for (Control* control : form.controls()) {
    QWidget* widget = hostedWidget(*control, this);
    if (widget != nullptr) widgets_.insert(control, widget);
  }
  fitForm();
  showChanges(form.controls());
}

void Canvas::setTabOrderAsSeen() {
  std::vector<Control*> order;
  appendInReadingOrder(form_->topControls(), order);
  QWidget* before = nullptr;
  for (const Control* control : order) {
    QWidget* widget = widgetOf(*control);
    if (widget == nullptr) continue;
    if (before != nullptr) setTabOrder(before, widget);
    before = widget;
  }
}

void Canvas::forgetForm() {
  form_ = nullptr;
  pressed_ = nullptr;
  // What still lies in the queue for these widgets must not reach controls that are gone.
  qDeleteAll(widgets_);
  widgets_.clear();
  painted_.clear();
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

QRect Canvas::placeOf(const Control& control) const {
  // A line may be thicker than nothing, and letters may stand out of their place a little.
  constexpr int kMargin = 2;
  if (control.kind() == ControlKind::Line) return rect();
  if (!control.shown()) return {};
  return pixelsOf(control.area()).toAlignedRect().adjusted(-kMargin, -kMargin, kMargin, kMargin);
}

void Canvas::markDirty(const Control& control) {
  const QRect place = placeOf(control);
  QRect& before = painted_[&control];
  if (!before.isNull()) update(before);
  if (!place.isNull() && place != before) update(place);
  before = place;
}

void Canvas::showChanges(const std::vector<Control*>& changed) {
  constexpr std::size_t kManyPlaces = 100;
  const bool all = changed.size() > kManyPlaces;
  if (all) update();
  for (Control* control : changed) {
    if (QWidget* widget = widgetOf(*control)) {
      showHosted(*control, *widget);
    } else if (!all) {
      markDirty(*control);
    } else {
      painted_[control] = placeOf(*control);
    }
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
  painter.fillRect(event->rect(), colourOf(form_->BackColor));
  painter.setClipRegion(event->region());
  drawControls(painter, *form_, event->region());
}

Control* Canvas::controlAt(QPointF place) const {
  return form_->controlAt(place.x() * kTwipsPerPixel, place.y() * kTwipsPerPixel);
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  if (form_ == nullptr || event->button() != Qt::LeftButton) return;
  pressed_ = controlAt(event->position());
  gesture::press(*form_, pressed_);
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (form_ == nullptr || event->button() != Qt::LeftButton) return;
  pressed_ = controlAt(event->position());
  gesture::pressAgain(*form_, pressed_);
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
  if (form_ == nullptr || event->button() != Qt::LeftButton) return;
  Control* control = pressed_;
  pressed_ = nullptr;
  gesture::release(*form_, control, controlAt(event->position()) == control);
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  Control* control = controlAt(event->position());
  if (control != pointedAt_) {
    pointedAt_ = control;
    showPointer(control);
  }
  gesture::move(*form_, control);
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

void Canvas::keyPressEvent(QKeyEvent* event) {
  Control* control = desk().focused();
  const int code = keyCodeOf(event->key());
  // A shortcut that a field has no use for ends up here, and is no letter.
  const bool shortcut = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (form_ == nullptr || control == nullptr || &control->form() != form_ || code == 0 || shortcut) {
    QWidget::keyPressEvent(event);
    return;
  }
  gesture::keyDown(*control, code);
}

bool Canvas::event(QEvent* event) {
  if (event->type() == QEvent::Leave) pointedAt_ = nullptr;
  if (event->type() != QEvent::ToolTip || form_ == nullptr) return QWidget::event(event);
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

}  // namespace zelvs
