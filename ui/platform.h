#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zelvs {

class Form;

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

/// All that the control model asks of what it runs on.
class Platform {
 public:
  virtual ~Platform() = default;

  /// Milliseconds from any fixed moment.
  virtual std::int64_t now() = 0;
  /// A timer was started, stopped or fired: the next one may be due at another time.
  virtual void timersChanged() {}
  /// Lets what is pending happen: timers that are due, painting, input.
  virtual void yield() = 0;
  /// Returns when the form is no longer visible, or when the program has ended.
  virtual void runModal(Form& form) = 0;
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

  // What a view has to know.
  virtual void formLoaded(Form& /*form*/) {}
  virtual void formShown(Form& /*form*/) {}
  virtual void formHidden(Form& /*form*/) {}
  virtual void formUnloaded(Form& /*form*/) {}
  /// The form's own properties, or its place in the order of windows, have changed.
  virtual void formChanged(Form& /*form*/) {}
  virtual void orderChanged() {}
  /// The first control of the form changed since Form::takeChanged was last called.
  virtual void controlsChanged(Form& /*form*/) {}
  virtual void repaint(Form& /*form*/) {}
  /// The last form is gone: the program shall end with status 0.
  virtual void ended() {}
};

Platform& platform();
/// The platform must outlive its use; null takes it away.
void setPlatform(Platform* platform);

/// Lets pending events run; a timer's handler may run inside.
inline void yieldToEvents() {
  platform().yield();
}

}  // namespace zelvs
