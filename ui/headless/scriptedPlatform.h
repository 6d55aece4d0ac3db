#pragma once

#include <functional>
#include <string>

#include "ui/platform.h"

namespace zelvs {

/// A platform whose user is a program: a virtual clock that stands still until it is moved, a pointer that is put
/// somewhere, and hooks for what waits on the user.
class ScriptedPlatform : public Platform {
 public:
  std::int64_t now() override { return clock_; }
  /// Moves the clock, firing each timer at its due time. When that closes the modal window, time stands until whoever
  /// opened it has gone on: what is left is for finishAdvance().
  void advance(std::int64_t milliseconds);
  /// Moves the clock by what an advance() has left; does nothing otherwise. False when time stands once more, since
  /// another modal window has been closed.
  bool finishAdvance();

  void yield() override;
  void runModal(Form& form) override;
  bool messageBox(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons) override;

  Point pointer() override { return pointer_; }
  void setPointer(Point pointer) { pointer_ = pointer; }

  void systemBeep() override { ++beeps_; }
  bool openSound(const std::string& path) override;
  void playSound() override { ++beeps_; }
  /// How often the sound was played or the system beep sounded.
  int beeps() const { return beeps_; }

  /// Does what the user does until the form is hidden.
  std::function<void(Form& form)> onModal;
  /// Answers a message box. True: OK.
  std::function<bool(const std::string& title, const std::string& text, MessageButtons buttons)> onMessageBox;

 private:
  void advanceTo(std::int64_t end);

  std::int64_t clock_ = 0;
  std::int64_t owed_ = 0;  // where the clock has still to get to; a time that is past owes nothing
  Point pointer_;
  int beeps_ = 0;
};

/// No display at all: 1920 by 1080 pixels.
class HeadlessPlatform : public ScriptedPlatform {
 public:
  Screen screen() override { return {1920, 1080}; }
};

/// True when the file starts as a RIFF wave file does.
bool isWaveFile(const std::string& path);

}  // namespace zelvs
