#include "ui/qt/windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/desk.h"
#include "ui/gesture.h"
#include "ui/qt/drawing.h"

namespace zelvs {

namespace {

/// A floating child counts from an edge that no window of ours has: it must not jump when it leaves the others.
double edgeOf(const Form& form) {
  return form.floating() ? kClientEdge : 0;
}

QPoint pixelPlace(const Form& form) {
  return {qRound((form.Left - edgeOf(form)) / kTwipsPerPixel), qRound((form.Top - edgeOf(form)) / kTwipsPerPixel)};
}

/// The title bar is the child's own work, so that it looks alike with and without an area around it.
Qt::WindowFlags childFlags(const Form& form) {
  Qt::WindowFlags flags = Qt::SubWindow;
  if (form.border() == Border::None) return flags | Qt::FramelessWindowHint;
  flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
  if (form.hasCloseBox()) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  return flags;
}

/// True when the window's size is the user's as well as the program's.
bool sizable(const Form& form) {
  return form.kind() == FormKind::Window && form.border() == Border::Sizable;
}

/// A window made of nothing but its canvas.
class TopWindow final : public QWidget {
 public:
  TopWindow(Canvas* canvas, QWidget* owner, Qt::WindowFlags flags, bool fixed) : QWidget(owner, flags) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(fixed ? QLayout::SetFixedSize : QLayout::SetNoConstraint);
    layout->addWidget(canvas);
  }
};

}  // namespace

Windows::Windows() = default;

Windows::~Windows() {
  // Top-level windows that the frame owns go with it.
  for (const Shown& shown : std::as_const(shown_)) {
    if (shown.window != frame_ && shown.window->parent() == nullptr) delete shown.window;
  }
  delete frame_;
}

Canvas* Windows::canvasOf(const Form& form) const {
  return shown_.value(&form).canvas;
}

QWidget* Windows::windowOf(const Form& form) const {
  return shown_.value(&form).window;
}

void Windows::formLoaded(Form& form) {
  const QScopedValueRollback<bool> following(following_, true);
  auto* canvas = new Canvas(form);
  QWidget* window = form.kind() == FormKind::Frame   ? makeFrame(form, canvas)
                    : form.kind() == FormKind::Child ? makeChild(form, canvas)
                                                     : makeWindow(form, canvas);
  window->setWindowTitle(QString::fromStdString(form.Caption.get()));
  window->installEventFilter(this);
  shown_.insert(&form, {canvas, window});
  place(form, {canvas, window});
  form.takeChanged();
  changed_.insert(&form);
  schedule();
}

QWidget* Windows::makeFrame(Form& /*form*/, Canvas* canvas) {
  frame_ = new QMainWindow;
  auto* inside = new QWidget;
  auto* layout = new QVBoxLayout(inside);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(canvas);
  area_ = new QMdiArea;
  area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  // The model decides who is active; closing the active window must not hand that to any other by itself.
  area_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
  connect(area_, &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* window) {
    Form* form = formOf(window);
    if (form != nullptr && !following_) gesture::activate(*form);
  });
  layout->addWidget(area_, 1);
  frame_->setCentralWidget(inside);
  return frame_;
}

QWidget* Windows::makeChild(Form& form, Canvas* canvas) {
  const Qt::WindowFlags flags = childFlags(form);
  auto* window = new QMdiSubWindow(nullptr, flags);
  window->setWidget(canvas);
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  area_->addSubWindow(window, flags);
  window->hide();
  return window;
}

QWidget* Windows::makeWindow(Form& form, Canvas* canvas) {
  Qt::WindowFlags flags = Qt::Dialog;
  if (form.border() == Border::None) {
    flags |= Qt::FramelessWindowHint;
  } else {
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    if (form.hasCloseBox()) flags |= Qt::WindowCloseButtonHint;
  }
  if (form.topmost()) flags |= Qt::WindowStaysOnTopHint;
  return new TopWindow(canvas, frame_, flags, !sizable(form));
}

void Windows::takeHome(const Form& form, QMdiSubWindow* child) {
  const bool inArea = child->mdiArea() != nullptr;
  if (inArea != form.floating()) return;
  if (inArea) {
    // Beside the area, in the frame itself: what lies there is in front of all that the area holds.
    area_->removeSubWindow(child);
    child->setParent(frame_->centralWidget(), childFlags(form));
  } else {
    area_->addSubWindow(child, childFlags(form));
  }
  child->setVisible(form.visible());
}

void Windows::place(const Form& form, const Shown& shown) {
  const QScopedValueRollback<bool> following(following_, true);
  shown.canvas->fitForm();
  auto* child = qobject_cast<QMdiSubWindow*>(shown.window);
  if (child != nullptr) takeHome(form, child);
  if (form.kind() == FormKind::Frame) return;  // the user's own: the program never moves it
  // Where the user may draw at the window's edge the canvas follows the window, and not the other way round.
  if (sizable(form)) shown.window->resize(shown.canvas->size());
  if (shown.window->pos() != pixelPlace(form)) shown.window->move(pixelPlace(form));
  if (child != nullptr) child->adjustSize();
}

void Windows::formShown(Form& form) {
  const QScopedValueRollback<bool> following(following_, true);
  const Shown shown = shown_.value(&form);
  if (form.kind() == FormKind::Frame) {
    // Sized first: where no window manager maximizes it, it fills the screen all the same.
    frame_->setGeometry(frame_->screen()->availableGeometry());
    frame_->showMaximized();
    return;
  }
  if (form.kind() == FormKind::Window) {
    shown.window->setWindowModality(form.modal() ? Qt::ApplicationModal : Qt::NonModal);
    if (shown.window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) != form.inFront())
      shown.window->setWindowFlag(Qt::WindowStaysOnTopHint, form.inFront());
  }
  place(form, shown);
  shown.canvas->setTabOrderAsSeen();
  shown.canvas->show();
  shown.window->show();
  // What changed while it was hidden has been left marked, and what is marked is not told of again.
  markChanged(changed_, form);
}

void Windows::formHidden(Form& form) {
  const QScopedValueRollback<bool> following(following_, true);
  if (QWidget* window = windowOf(form)) window->hide();
}

void Windows::formUnloaded(Form& form) {
  const QScopedValueRollback<bool> following(following_, true);
  const Shown shown = shown_.take(&form);
  changed_.remove(&form);
  placed_.remove(&form);
  if (shown.window == nullptr) return;
  shown.canvas->forgetForm();
  shown.window->hide();
  auto* child = qobject_cast<QMdiSubWindow*>(shown.window);
  if (child != nullptr && child->mdiArea() != nullptr) area_->removeSubWindow(child);
  if (shown.window == frame_) {
    frame_ = nullptr;
    area_ = nullptr;
  }
  shown.window->deleteLater();
}

void Windows::markChanged(QSet<Form*>& forms, Form& form) {
  if (!shown_.contains(&form)) return;  // still being made
  forms.insert(&form);
  schedule();
}

void Windows::formChanged(Form& form) {
  markChanged(placed_, form);
  markChanged(changed_, form);  // its ground is painted with its controls
}

void Windows::orderChanged() {
  orderChanged_ = true;
  schedule();
}

void Windows::controlsChanged(Form& form) {
  markChanged(changed_, form);
}

void Windows::repaint(Form& form) {
  flush();
  if (Canvas* canvas = canvasOf(form)) canvas->repaint();
}

void Windows::schedule() {
  if (scheduled_) return;
  scheduled_ = true;
  QTimer::singleShot(0, this, &Windows::flush);
}

void Windows::flush() {
  scheduled_ = false;
  const QScopedValueRollback<bool> following(following_, true);
  for (Form* form : std::exchange(placed_, {})) {
    const Shown shown = shown_.value(form);
    shown.window->setWindowTitle(QString::fromStdString(form->Caption.get()));
    place(*form, shown);
    shown.canvas->update();
  }
  for (Form* form : std::exchange(changed_, {})) {
    const Shown shown = shown_.value(form);
    // A hidden window is looked at as a whole when it is shown; its controls stay marked until then.
    if (form->visible()) shown.canvas->showChanges(form->takeChanged());
  }
  if (std::exchange(orderChanged_, false)) stack();
}

void Windows::stack() {
  // Back to front, so that the last one raised is the front one.
  const std::vector<Form*>& order = desk().forms();
  for (auto at = order.rbegin(); at != order.rend(); ++at) {
    QWidget* window = windowOf(**at);
    if (window != nullptr && window != frame_ && (*at)->visible()) window->raise();
  }
  const Form* active = desk().active();
  if (active == nullptr || windowOf(*active) == nullptr) return;
  if (auto* child = qobject_cast<QMdiSubWindow*>(windowOf(*active))) {
    if (child->mdiArea() != nullptr) area_->setActiveSubWindow(child);
  } else if (active->kind() == FormKind::Window) {
    windowOf(*active)->activateWindow();
  }
}

Form* Windows::formOf(const QObject* window) const {
  for (auto at = shown_.constBegin(); at != shown_.constEnd(); ++at) {
    if (at->window == window) return const_cast<Form*>(at.key());
  }
  return nullptr;
}

void Windows::takePlace(Form& form, const QWidget& window) {
  const QPoint place = window.pos();
  if (place == pixelPlace(form)) return;
  form.Left = place.x() * kTwipsPerPixel + edgeOf(form);
  form.Top = place.y() * kTwipsPerPixel + edgeOf(form);
}

void Windows::takeSize(Form& form, const QWidget& window) {
  form.Width = window.width() * kTwipsPerPixel;
  form.Height = window.height() * kTwipsPerPixel + (form.Height - form.clientHeight());
}

bool Windows::eventFilter(QObject* watched, QEvent* event) {
  Form* form = formOf(watched);
  if (form == nullptr) return false;
  auto* window = static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::Close:
      event->ignore();
      if (!following_) gesture::close(*form);
      return true;
    case QEvent::Move:
      if (!following_ && form->visible() && !window->isMaximized()) takePlace(*form, *window);
      return false;
    case QEvent::Resize:
      if (window == frame_ || (sizable(*form) && !following_)) takeSize(*form, *window);
      return false;
    case QEvent::MouseButtonPress:
      // Outside its area nobody tells of a child that is taken by its title bar.
      if (!following_ && form->floating()) gesture::activate(*form);
      return false;
    case QEvent::WindowActivate:
      if (!following_ && form->kind() == FormKind::Window && form->visible()) gesture::activate(*form);
      return false;
    default:
      return false;
  }
}

}  // namespace zelvs
