#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include "ui/platform.h"
#include "ui/qt/sound.h"

namespace zelvs {

class Windows;

/// The desktop with a person before it: real time, real events. Each wake-up, an input among them, first moves the
/// model's clock to the present.
class QtPlatform final : public QObject, public Platform {
  Q_OBJECT
 public:
  /// Boxes belong to the windows, which must outlive this.
  explicit QtPlatform(const Windows& windows);

  bool waitForEvent() override;
  void yield() override;
  void timersChanged() override;
  bool messageBox(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons) override;
  Screen screen() override;
  Point pointer() override;
  void systemBeep() override;
  bool openSound(const std::string& path) override { return sound_.open(path); }
  void playSound() override { sound_.play(); }
  void ended() override;

  /// From here on no timer of the model fires.
  void stopClock() { yielding_ = true; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void wakeUp();

  const Windows& windows_;
  WaveSound sound_;
  QElapsedTimer realTime_;
  QTimer alarm_;
  bool yielding_ = false;  // time stands
};

/// Size of the first screen in logical pixels.
Screen screenOfQt();
/// One look on every machine, so that a picture is the same on every run. Called once, before the first window.
void setUpLook();

}  // namespace zelvs
