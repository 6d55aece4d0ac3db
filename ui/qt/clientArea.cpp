#include "ui/qt/clientArea.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include "ui/qt/qtPainter.h"

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
  horizontalScrollBar()->setFixedHeight(pixels(kScrollBar));
  verticalScrollBar()->setFixedWidth(pixels(kScrollBar));
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

}  // namespace zelvs
