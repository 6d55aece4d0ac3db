#include "ui/qt/clientArea.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "ui/desk.h"
#include "ui/qt/canvas.h"
#include "ui/qt/qtPainter.h"
#include "ui/windowFrame.h"

namespace zelvs {

namespace {

int pixels(double twips) {
  return qRound(twips / kTwipsPerPixel);
}

void showBar(QScrollBar& bar, double from, double to, double room, double at) {
  constexpr double kLine = 20 * kTwipsPerPixel;
  bar.setPageStep(pixels(room));
  bar.setSingleStep(pixels(kLine));
  bar.setRange(pixels(from), pixels(to - room));
  bar.setValue(pixels(at));
}

}  // namespace

ClientArea::ClientArea(QWidget* parent) : QAbstractScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
}

void ClientArea::paintEvent(QPaintEvent* event) {
  if (frame_ != nullptr) QPainter(viewport()).fillRect(event->rect(), colourOf(frame_->BackColor));
}

void ClientArea::follow(Form& frame) {
  const QScopedValueRollback<bool> following(following_, true);
  frame_ = &frame;
  const Area seen = frame.clientArea();
  const Area range = frame.scrollRange();
  showBar(*horizontalScrollBar(), range.left, range.right(), seen.width, frame.ScrollLeft);
  showBar(*verticalScrollBar(), range.top, range.bottom(), seen.height, frame.ScrollTop);
}

void ClientArea::scrollContentsBy(int /*dx*/, int /*dy*/) {
  if (following_ || frame_ == nullptr) return;
  frame_->scrollTo(horizontalScrollBar()->value() * kTwipsPerPixel, verticalScrollBar()->value() * kTwipsPerPixel);
}

ChildWindow::ChildWindow(Form& form, Canvas* canvas, QWidget* parent)
    : QWidget(parent), form_(&form), canvas_(canvas) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  canvas->setParent(this);
  fitForm();
  hide();
}

void ChildWindow::fitForm() {
  const int bar = pixels(form_->Height - form_->clientHeight());
  canvas_->move(0, bar);
  setFixedSize(canvas_->width(), canvas_->height() + bar);
  update();
}

void ChildWindow::paintEvent(QPaintEvent* /*event*/) {
  if (form_ == nullptr) return;
  QPainter painter(this);
  QtPainter through(painter);
  drawCaption(through, *form_, desk().active() == form_);
}

namespace {

/// Counted from the form's inside as the model places it: the window itself follows a drag a moment later.
Spot spotOf(const Form& form, const QMouseEvent& event) {
  return insideOf(form, event.globalPosition().x() * kTwipsPerPixel, event.globalPosition().y() * kTwipsPerPixel);
}

}  // namespace

void ChildWindow::mousePressEvent(QMouseEvent* event) {
  if (form_ != nullptr && event->button() == Qt::LeftButton) desk().hand.down(*form_, spotOf(*form_, *event), false);
}

void ChildWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  if (form_ != nullptr && event->button() == Qt::LeftButton) desk().hand.down(*form_, spotOf(*form_, *event), true);
}

void ChildWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (form_ != nullptr && event->button() == Qt::LeftButton && desk().hand.heldForm() == form_)
    desk().hand.up(spotOf(*form_, *event));
}

void ChildWindow::mouseMoveEvent(QMouseEvent* event) {
  if (form_ != nullptr) desk().hand.move(form_, spotOf(*form_, *event));
}

}  // namespace zelvs
