#pragma once

#include <string>

namespace zelvs {

/// A screen in pixels.
struct Screen {
  int width = 0;
  int height = 0;
};

struct Point {
  int x = 0;
  int y = 0;
};

enum class MessageIcon { Question, Information };
enum class MessageButtons { Ok, OkCancel };

/// What runs the model. What shows it is another thing (ui/view.h).
class Platform {
 public:
  virtual ~Platform() = default;

  /// Waits until something happens and lets it happen: a gesture, a wake-up of the clock. False when nothing will ever
  /// happen any more: who waits for something gives up.
  virtual bool waitForEvent() = 0;
  /// Lets what is due happen, so that a long handler does not look dead: timers that are due, painting. Time stands,
  /// and what the user does waits.
  virtual void yield() = 0;
  /// A timer was started, stopped or fired: the clock may want to be woken at another time.
  virtual void timersChanged() {}

  /// The platform's own modal message box. True: OK.
  virtual bool messageBox(const std::string& title, const std::string& text, MessageIcon icon,
                          MessageButtons buttons) = 0;

  virtual Screen screen() = 0;
  /// The pointer's place on the screen.
  virtual Point pointer() = 0;

  /// The plain beep of the system.
  virtual void systemBeep() = 0;
  /// Makes a wave file ready to play. False when it is missing or cannot be played.
  virtual bool openSound(const std::string& path) = 0;
  /// Plays the open sound from its start.
  virtual void playSound() = 0;

  /// The last form is gone: the program shall end with status 0.
  virtual void ended() {}
};

Platform& platform();
/// The platform must outlive its use; null takes it away.
void setPlatform(Platform* platform);

/// The platform's message box. It takes the mouse, so that a press that is held is over.
bool messageBox(const std::string& title, const std::string& text, MessageIcon icon, MessageButtons buttons);

/// Lets pending events run; a timer's handler may run inside.
inline void yieldToEvents() {
  platform().yield();
}

}  // namespace zelvs
