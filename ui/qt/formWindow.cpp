#include "ui/qt/formWindow.h"

#include <QMouseEvent>
#include <QPainter>

#include "ui/desk.h"
#include "ui/qt/canvas.h"
#include "ui/qt/qtPainter.h"

namespace zelvs {

namespace {

int captionOf(const Form& form) {
  return qRound((form.Height - form.clientHeight()) / kTwipsPerPixel);
}

}  // namespace

FormWindow::FormWindow(Form& form, Canvas* canvas, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), form_(&form), canvas_(canvas) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  canvas->setParent(this);
  fitForm();
}

void FormWindow::fitForm() {
  const QSize size(canvas_->width(), canvas_->height() + captionOf(*form_));
  canvas_->move(0, captionOf(*form_));
  if (form_->border() == Border::Sizable) {
    resize(size);
  } else {
    setFixedSize(size);
  }
  update();
}

void FormWindow::resizeEvent(QResizeEvent* /*event*/) {
  if (form_ != nullptr && form_->border() == Border::Sizable) canvas_->resize(width(), height() - captionOf(*form_));
}

void FormWindow::paintEvent(QPaintEvent* /*event*/) {
  if (form_ == nullptr) return;
  QPainter painter(this);
  QtPainter through(painter);
  drawCaption(through, *form_, desk().active() == form_);
}

Spot spotOn(const Form& form, const QMouseEvent& event) {
  return insideOf(form, event.globalPosition().x() * kTwipsPerPixel, event.globalPosition().y() * kTwipsPerPixel);
}

void showEdgePointer(QWidget& widget, const Form& form, const Spot& spot) {
  const FramePart part = framePartAt(form, spot);
  if (part == FramePart::LeftEdge || part == FramePart::RightEdge) {
    widget.setCursor(Qt::SizeHorCursor);
  } else if (widget.cursor().shape() == Qt::SizeHorCursor) {
    widget.unsetCursor();
  }
}

void FormWindow::press(const QMouseEvent& event, bool second) {
  if (form_ != nullptr && event.button() == Qt::LeftButton) desk().hand.down(*form_, spotOn(*form_, event), second);
}

void FormWindow::mousePressEvent(QMouseEvent* event) {
  press(*event, false);
}

void FormWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  press(*event, true);
}

void FormWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (form_ != nullptr && event->button() == Qt::LeftButton && desk().hand.heldForm() == form_)
    desk().hand.up(spotOn(*form_, *event));
}

void FormWindow::mouseMoveEvent(QMouseEvent* event) {
  if (form_ == nullptr) return;
  showEdgePointer(*this, *form_, spotOn(*form_, *event));
  desk().hand.move(form_, spotOn(*form_, *event));
}

}  // namespace zelvs
