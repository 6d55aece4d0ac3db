#include "ui/qt/qtPlatform.h"

#include <QApplication>
#include <QCursor>
#include <QIcon>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>

#include "ui/desk.h"
#include "ui/qt/accessibility.h"
#include "ui/qt/drawing.h"

namespace zelvs {

QtPlatform::QtPlatform() {
  clock_.start();
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&alarm_, &QTimer::timeout, &alarm_, [this] { fireTimers(); });
}

void QtPlatform::timersChanged() {
  const auto due = desk().timers.nextDue();
  if (due) {
    alarm_.start(static_cast<int>(std::max<std::int64_t>(*due - now(), 0)));
  } else {
    alarm_.stop();
  }
}

void QtPlatform::fireTimers() {
  // Each timer at most about once, so that painting and input come in between whatever falls due meanwhile.
  const std::int64_t moment = now();
  for (std::size_t left = desk().timers.running(); left > 0 && desk().timers.fireNext(moment); --left) {
  }
  timersChanged();
}

void QtPlatform::yield() {
  // A timer that calls back here has stopped the alarm: the others go on.
  timersChanged();
  QApplication::processEvents();
}

void QtPlatform::runModal(Form& form) {
  timersChanged();
  QEventLoop loop;
  modalLoops_.insert(&form, &loop);
  loop.exec();
  modalLoops_.remove(&form);
}

void QtPlatform::formHidden(Form& form) {
  windows_.formHidden(form);
  if (QEventLoop* loop = modalLoops_.value(&form)) loop->quit();
}

bool QtPlatform::messageBox(const std::string& title, const std::string& text, MessageIcon icon,
                            MessageButtons buttons) {
  timersChanged();
  // It belongs to the modal window that asks, which would be raised over a mere neighbour.
  QWidget* modal = QApplication::activeModalWidget();
  QMessageBox box(icon == MessageIcon::Question ? QMessageBox::Question : QMessageBox::Information,
                  QString::fromStdString(title), QString::fromStdString(text),
                  buttons == MessageButtons::Ok ? QMessageBox::Ok : QMessageBox::Ok | QMessageBox::Cancel,
                  modal != nullptr ? modal : windows_.frame());
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
  const auto loops = modalLoops_;
  for (QEventLoop* loop : loops)
    loop->quit();
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
