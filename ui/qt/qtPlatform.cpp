#include "ui/qt/qtPlatform.h"

#include <QApplication>
#include <QCursor>
#include <QIcon>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyleFactory>

#include "ui/desk.h"
#include "ui/qt/accessibility.h"
#include "ui/qt/qtPainter.h"
#include "ui/qt/windows.h"

namespace zelvs {

namespace {

bool isInput(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::KeyPress:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

QtPlatform::QtPlatform(const Windows& windows) : windows_(windows) {
  realTime_.start();
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
  connect(&alarm_, &QTimer::timeout, this, &QtPlatform::wakeUp);
  QApplication::instance()->installEventFilter(this);
}

void QtPlatform::timersChanged() {
  const auto until = desk().clock.untilDue(realTime_.elapsed());
  if (until) {
    alarm_.start(static_cast<int>(*until));
  } else {
    alarm_.stop();
  }
}

void QtPlatform::wakeUp() {
  if (yielding_) return;
  desk().clock.follow(realTime_.elapsed());
  timersChanged();
}

bool QtPlatform::eventFilter(QObject* watched, QEvent* event) {
  // What the user does falls at the time at which it is done: the timers that were due before have fired.
  if (event->spontaneous() && watched->isWindowType() && isInput(*event)) wakeUp();
  return false;
}

bool QtPlatform::waitForEvent() {
  timersChanged();
  QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return true;
}

void QtPlatform::yield() {
  {
    const QScopedValueRollback<bool> yielding(yielding_, true);
    desk().clock.fireDue();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  timersChanged();  // the alarm may have rung in there, and nobody listened
}

bool QtPlatform::messageBox(const std::string& title, const std::string& text, MessageIcon icon,
                            MessageButtons buttons) {
  timersChanged();
  QMessageBox box(icon == MessageIcon::Question ? QMessageBox::Question : QMessageBox::Information,
                  QString::fromStdString(title), QString::fromStdString(text),
                  buttons == MessageButtons::Ok ? QMessageBox::Ok : QMessageBox::Ok | QMessageBox::Cancel,
                  windows_.frontWindow());
  box.setWindowFlag(Qt::WindowStaysOnTopHint);  // the splash and the lesson do so too
  return box.exec() == QMessageBox::Ok;
}

Screen screenOfQt() {
  const QSize size = QGuiApplication::primaryScreen()->size();
  return {size.width(), size.height()};
}

Screen QtPlatform::screen() {
  return screenOfQt();
}

Point QtPlatform::pointer() {
  const QPoint place = QCursor::pos();
  return {place.x(), place.y()};
}

void QtPlatform::systemBeep() {
  QApplication::beep();
}

void QtPlatform::ended() {
  QApplication::exit(0);
}

void setUpLook() {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setFont(fontOf(9, false));
  // A light desk under light windows, whatever the system's colours are.
  QPalette palette(QColor(240, 240, 240), QColor(240, 240, 240));
  palette.setColor(QPalette::Highlight, QColor(38, 96, 168));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  QApplication::setPalette(palette);
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(QIcon(":/pictures/ilsLogo.svg"));
  setUpAccessibility();
}

}  // namespace zelvs
