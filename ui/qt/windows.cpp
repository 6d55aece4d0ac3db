#include "ui/qt/windows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>

#include "ui/desk.h"
#include "ui/gesture.h"

namespace zelvs {

namespace {

QPoint placeOf(const Form& form) {
  return {qRound(form.Left / kTwipsPerPixel), qRound(form.Top / kTwipsPerPixel)};
}

/// True when the window's size is the user's as well as the program's.
bool sizable(const Form& form) {
  return form.kind() == FormKind::Window && form.border() == Border::Sizable;
}

/// Without a screen nobody draws the frame's caption bar: room is left for it, so that places are those of a desktop.
bool offscreen() {
  return QGuiApplication::platformName() == "offscreen";
}

Qt::WindowFlags flagsOf(const Form& form) {
  Qt::WindowFlags flags = Qt::Dialog | Qt::FramelessWindowHint;
  if (form.inFront()) flags |= Qt::WindowStaysOnTopHint;
  return flags;
}

}  // namespace

Windows::Windows() {
  QApplication::instance()->installEventFilter(this);
  answer_.setSingleShot(true);
  connect(&answer_, &QTimer::timeout, this, &Windows::askDesktop);
  connect(qApp, &QGuiApplication::applicationStateChanged, this, [](Qt::ApplicationState state) {
    // Another program, or a locked screen, has the mouse now.
    if (state != Qt::ApplicationActive) desk().hand.lose();
  });
}

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
  QWidget* window = form.kind() == FormKind::Frame   ? makeFrame(canvas)
                    : form.kind() == FormKind::Child ? new FormWindow(form, canvas, area_->viewport(), Qt::Widget)
                                                     : new FormWindow(form, canvas, frame_, flagsOf(form));
  window->setWindowTitle(QString::fromStdString(form.Caption.get()));
  window->setAttribute(Qt::WA_AlwaysShowToolTips);
  // Which window the user is turned to is the model's to say: the desktop is asked for it.
  window->setAttribute(Qt::WA_ShowWithoutActivating, form.kind() == FormKind::Window);
  shown_.insert(&form, {canvas, window});
  place(form, {canvas, window});
  form.takeChanged();
  changed_.insert(&form);
  schedule();
}

QWidget* Windows::makeFrame(Canvas* canvas) {
  frame_ = new QMainWindow;
  frame_->setWindowFlag(Qt::FramelessWindowHint, offscreen());
  auto* inside = new QWidget;
  auto* layout = new QVBoxLayout(inside);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(canvas);
  area_ = new ClientArea(inside);
  layout->addWidget(area_, 1);
  frame_->setCentralWidget(inside);
  return frame_;
}

void Windows::place(Form& form, const Shown& shown) {
  const QScopedValueRollback<bool> following(following_, true);
  shown.canvas->fitForm();
  if (form.kind() == FormKind::Frame) {
    placeChildren();  // the frame itself is the user's own: the program never moves it
    return;
  }
  auto& window = static_cast<FormWindow&>(*shown.window);
  window.fitForm();
  if (form.kind() == FormKind::Child) {
    placeChild(form, window);
  } else if (window.pos() != placeOf(form)) {
    window.move(placeOf(form));
  }
}

void Windows::placeChild(const Form& form, FormWindow& child) {
  // Beside the client area, in the frame itself: what lies there is in front of all that the area holds.
  QWidget* home = form.floating() ? frame_->centralWidget() : area_->viewport();
  if (child.parentWidget() != home) {
    child.setParent(home);
    child.setVisible(form.visible());
    stacked_.clear();
    orderChanged();
  }
  const Form& frame = *desk().frame();
  const QPoint place(qRound((form.Left - (form.floating() ? kClientEdge : frame.ScrollLeft.get())) / kTwipsPerPixel),
                     qRound((form.Top - (form.floating() ? kClientEdge : frame.ScrollTop.get())) / kTwipsPerPixel));
  if (child.pos() != place) child.move(place);
}

void Windows::placeChildren() {
  Form* frame = desk().frame();
  if (frame == nullptr || area_ == nullptr) return;
  area_->follow(*frame);
  for (auto at = shown_.constBegin(); at != shown_.constEnd(); ++at) {
    if (at.key()->kind() == FormKind::Child) placeChild(*at.key(), static_cast<FormWindow&>(*at->window));
  }
}

void Windows::showFrame() {
  asked_.append(frame_);  // window managers turn to a program's first window by themselves
  const QRect screen = frame_->screen()->availableGeometry();
  if (offscreen()) {
    frame_->setGeometry(screen.adjusted(0, qRound(kCaptionHeight / kTwipsPerPixel), 0, 0));
    frame_->show();
    return;
  }
  // What it takes when the user has it smaller than the screen.
  constexpr double kRestored = 0.8;
  const QSize restored = (QSizeF(screen.size()) * kRestored).toSize();
  frame_->setGeometry(QRect(screen.center() - QPoint(restored.width(), restored.height()) / 2, restored));
  frame_->showMaximized();
  // Where no window manager maximizes it, it fills the screen all the same.
  constexpr int kManagersTime = 500;
  QTimer::singleShot(kManagersTime, frame_, [this, screen] {
    if (frame_->isMaximized() && frame_->width() < screen.width() * kRestored + 1) frame_->setGeometry(screen);
  });
}

void Windows::formShown(Form& form) {
  const QScopedValueRollback<bool> following(following_, true);
  const Shown shown = shown_.value(&form);
  if (form.kind() == FormKind::Frame) {
    showFrame();
    return;
  }
  if (form.kind() == FormKind::Window) {
    shown.window->setWindowModality(form.modal() ? Qt::ApplicationModal : Qt::NonModal);
    if (shown.window->windowFlags().testFlag(Qt::WindowStaysOnTopHint) != form.inFront())
      shown.window->setWindowFlag(Qt::WindowStaysOnTopHint, form.inFront());
  }
  place(form, shown);
  shown.canvas->show();
  if (form.kind() == FormKind::Window) {
    shown.window->winId();  // makes its handle
    const QWidget* owner = form.inFront() ? frontWindow() : frame_;
    shown.window->windowHandle()->setTransientParent(owner != nullptr ? owner->windowHandle() : nullptr);
  }
  shown.window->show();
  stacked_.clear();
  orderChanged();
  // What changed while it was hidden has been left marked, and what is marked is not told of again.
  markChanged(changed_, form);
}

QWidget* Windows::frontWindow() const {
  for (const Form* form : desk().forms()) {
    QWidget* window = form->inFront() ? windowOf(*form) : nullptr;
    if (window != nullptr && window->isVisible()) return window;
  }
  return frame_;
}

void Windows::formHidden(Form& form) {
  const QScopedValueRollback<bool> following(following_, true);
  if (QWidget* window = windowOf(form)) window->hide();
  turnedTo_ = nullptr;  // the desktop turns to a window of its own choice
  asked_.removeAll(windowOf(form));
}

void Windows::formUnloaded(Form& form) {
  const QScopedValueRollback<bool> following(following_, true);
  const Shown shown = shown_.take(&form);
  changed_.remove(&form);
  placed_.remove(&form);
  stacked_.clear();
  if (turnedTo_ == &form) turnedTo_ = nullptr;
  if (shown.window == nullptr) return;
  shown.canvas->forgetForm();
  if (auto* window = qobject_cast<FormWindow*>(shown.window)) window->forgetForm();
  shown.window->hide();
  asked_.removeAll(shown.window);
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
  if (area_ != nullptr && desk().frame() != nullptr) area_->follow(*desk().frame());
  if (std::exchange(orderChanged_, false)) stack();
  turnKeyboard();
}

void Windows::stack() {
  std::vector<Form*> order;
  for (Form* form : desk().forms()) {
    if (form->visible() && form->kind() != FormKind::Frame && windowOf(*form) != nullptr) order.push_back(form);
  }
  // From the back on, those that lie as they should stay; the first one that does not is raised, and all before it.
  const auto [moved, unused] = std::mismatch(order.rbegin(), order.rend(), stacked_.rbegin(), stacked_.rend());
  for (auto at = moved; at != order.rend(); ++at)
    windowOf(**at)->raise();
  stacked_ = order;
  for (const Form* form : order)
    windowOf(*form)->update();  // its caption bar tells who is active
}

void Windows::turnKeyboard() {
  const Form* active = desk().active();
  if (active == nullptr || canvasOf(*active) == nullptr) return;
  // The desktop turns to the frame for what lies inside it.
  QWidget* window = windowOf(*active)->window();
  const QWidget* there = asked_.empty() ? QApplication::activeWindow() : asked_.back();
  if (active != turnedTo_ && there != window) {
    asked_.append(window);
    tries_ = 0;
    askDesktop();
  }
  turnedTo_ = active;
  // One widget has the keyboard: the focused field's, or the canvas of the active window.
  const Control* focused = desk().focused();
  QWidget* field = focused != nullptr && &focused->form() == active ? canvasOf(*active)->widgetOf(*focused) : nullptr;
  QWidget* target = field != nullptr ? field : canvasOf(*active);
  if (QApplication::activePopupWidget() == nullptr && !target->hasFocus()) target->setFocus(Qt::OtherFocusReason);
}

void Windows::askDesktop() {
  constexpr int kMostTries = 4;
  constexpr int kPatience = 300;  // milliseconds that the desktop gets for an answer
  if (asked_.empty()) return;
  const bool elsewhere = tries_ > 0 && QApplication::activeWindow() == nullptr;  // the user is in another program
  if (elsewhere || tries_++ == kMostTries) {
    asked_.clear();
    followDesktop();
    return;
  }
  asked_.back()->activateWindow();
  answer_.start(kPatience);
}

void Windows::followDesktop() {
  if (!asked_.empty()) return;
  Form* form = formOf(QApplication::activeWindow());
  if (form == nullptr || form->kind() != FormKind::Window || !form->visible()) return;
  if (form != desk().active()) gesture::activate(*form);
}

Form* Windows::formOf(const QObject* window) const {
  for (auto at = shown_.constBegin(); at != shown_.constEnd(); ++at) {
    if (at->window == window) return const_cast<Form*>(at.key());
  }
  return nullptr;
}

void Windows::takePlace(Form& form, const QWidget& window) {
  if (form.kind() == FormKind::Frame) {
    // Its caption bar is the desktop's, of whatever height: the inside is what counts.
    form.Left = window.geometry().x() * kTwipsPerPixel;
    form.Top = window.geometry().y() * kTwipsPerPixel - kCaptionHeight;
  } else if (window.pos() != placeOf(form)) {
    form.Left = window.x() * kTwipsPerPixel;
    form.Top = window.y() * kTwipsPerPixel;
  }
}

void Windows::takeSize(Form& form, const QWidget& window) {
  form.Width = window.width() * kTwipsPerPixel;
  form.Height = window.height() * kTwipsPerPixel + (form.kind() == FormKind::Frame ? kCaptionHeight : 0);
}

bool Windows::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  watchHand(watched, event);
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
      asked_.clear();  // whatever the desktop does from here on is an answer to the user
      return false;
    case QEvent::Close:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowActivate:
    case QEvent::WindowStateChange: {
      Form* form = formOf(watched);
      return form != nullptr && windowEvent(*form, *static_cast<QWidget*>(watched), *event);
    }
    default:
      return false;
  }
}

bool Windows::windowEvent(Form& form, QWidget& window, QEvent& event) {
  const bool child = form.kind() == FormKind::Child;
  switch (event.type()) {
    case QEvent::Close:
      event.ignore();
      if (!following_) gesture::close(form);
      return true;
    case QEvent::Move:
      if (!child && (form.kind() == FormKind::Frame || (!following_ && form.visible()))) takePlace(form, window);
      return false;
    case QEvent::Resize:
      if (form.kind() == FormKind::Frame || (sizable(form) && !following_)) takeSize(form, window);
      return false;
    case QEvent::WindowActivate:
      if (asked_.contains(&window)) {
        // An answer; what was asked before it is over too.
        asked_.remove(0, asked_.indexOf(&window) + 1);
      } else if (!following_ && form.kind() == FormKind::Window) {
        QTimer::singleShot(0, this, &Windows::followDesktop);
      }
      return false;
    case QEvent::WindowStateChange:
      // A strip or a dialog has nothing to fill a screen with; a desktop's keys may ask for it all the same.
      if (form.kind() == FormKind::Window && window.isMaximized()) window.showNormal();
      return false;
    default:
      return false;
  }
}

void Windows::watchHand(QObject* watched, QEvent* event) {
  Hand& hand = desk().hand;
  if (!hand.holds()) return;
  const bool move = event->type() == QEvent::MouseMove;
  const bool release = event->type() == QEvent::MouseButtonRelease;
  if (!move && !release) return;
  const auto* mouse = static_cast<QMouseEvent*>(event);
  const QWidget* held = windowOf(*hand.heldForm());
  const bool elsewhere = held == nullptr || !(watched == held || held->isAncestorOf(static_cast<QWidget*>(watched)));
  // The button is up, and nobody has told of it; or it went up over something that has not held it.
  if ((move && !mouse->buttons().testFlag(Qt::LeftButton)) ||
      (release && elsewhere && mouse->button() == Qt::LeftButton)) {
    hand.lose();
  }
}

}  // namespace zelvs
