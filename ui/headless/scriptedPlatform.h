#pragma once

#include <functional>
#include <string>

#include "ui/desk.h"
#include "ui/platform.h"

namespace zelvs {

/// A platform whose user is a program: the clock stands still until it is moved, the pointer is put somewhere, and
/// hooks stand for what waits on the user.
class ScriptedPlatform : public Platform {
 public:
  /// The model's clock.
  static std::int64_t now() { return desk().clock.now(); }
  static void advance(std::int64_t milliseconds) { desk().clock.advance(milliseconds); }
  static bool finishAdvance() { return desk().clock.finish(); }

  bool waitForEvent() override;
  void yield() override { desk().clock.fireDue(); }
  bool messageBox(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons) override;

  Point pointer() override { return pointer_; }
  void setPointer(Point pointer) { pointer_ = pointer; }

  void systemBeep() override { ++beeps_; }
  bool openSound(const std::string& path) override;
  void playSound() override { ++beeps_; }
  /// How often the sound was played or the system beep sounded.
  int beeps() const { return beeps_; }

  /// Does the next thing that the user does; false when there is none.
  std::function<bool()> onWait;
  /// In its place: does all that the user does in a modal window.
  std::function<void(Form& form)> onModal;
  /// Answers a message box. True: OK.
  std::function<bool(const std::string& title, const std::string& text, MessageButtons buttons)> onMessageBox;

 private:
  Point pointer_;
  int beeps_ = 0;
};

/// No display at all: 1920 by 1080 pixels.
class HeadlessPlatform : public ScriptedPlatform {
 public:
  Screen screen() override { return {1920, 1080}; }
};

}  // namespace zelvs
