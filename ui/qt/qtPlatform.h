#pragma once

#include <QElapsedTimer>
#include <QEventLoop>
#include <QHash>
#include <QTimer>

#include "ui/platform.h"
#include "ui/qt/sound.h"
#include "ui/qt/windows.h"

namespace zelvs {

/// The desktop with a person before it: real time, real windows.
class QtPlatform final : public Platform {
 public:
  QtPlatform();

  std::int64_t now() override { return clock_.elapsed(); }
  void timersChanged() override;
  void yield() override;
  void runModal(Form& form) override;
  bool messageBox(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons) override;
  Screen screen() override;
  Point pointer() override;
  void systemBeep() override;
  bool openSound(const std::string& path) override { return sound_.open(path); }
  void playSound() override { sound_.play(); }

  void formLoaded(Form& form) override { windows_.formLoaded(form); }
  void formShown(Form& form) override { windows_.formShown(form); }
  void formHidden(Form& form) override;
  void formUnloaded(Form& form) override { windows_.formUnloaded(form); }
  void formChanged(Form& form) override { windows_.formChanged(form); }
  void orderChanged() override { windows_.orderChanged(); }
  void controlsChanged(Form& form) override { windows_.controlsChanged(form); }
  void repaint(Form& form) override { windows_.repaint(form); }
  void ended() override;

 private:
  void fireTimers();

  Windows windows_;
  WaveSound sound_;
  QElapsedTimer clock_;
  QTimer alarm_;
  QHash<const Form*, QEventLoop*> modalLoops_;
};

/// Size of the first screen in logical pixels.
Screen screenOfQt();
/// One look on every machine, so that a picture is the same on every run. Called once, before the first window.
void setUpLook();

}  // namespace zelvs
