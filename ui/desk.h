#pragma once

#include <memory>
#include <vector>

#include "ui/clock.h"
#include "ui/form.h"
#include "ui/hand.h"
#include "ui/timer.h"

namespace zelvs {

/// The loaded forms of the program, front to back, who is active, who has the focus, who is modal, the clock and
/// the timers.
/// Both backends look here, so that they agree.
class Desk {
 public:
  /// Front to back: topmost and modal windows, windows, floating children, children, the frame.
  const std::vector<Form*>& forms() const { return forms_; }
  Form* active() const { return active_; }
  Control* focused() const { return focused_; }
  /// The modal form that holds the user, or null.
  Form* modal() const { return modals_.empty() ? nullptr : modals_.back(); }
  Form* frame() const;

  /// Activates the form and brings it to the front; one that is hidden stays as it is.
  void activate(Form& form);
  /// Gives the control the focus and turns the user to its form, or takes the focus from whoever has it. While a
  /// control's handler of the lost focus runs, the control does not get it back: it is left once, whatever its handler
  /// shows meanwhile.
  void focus(Control* control);
  /// The control, or what holds it, has been hidden or disabled: a focus inside is lost.
  void focusHidden(const Control& control);
  /// A window's place, size or visibility has changed: the frame is scrolled no further than its children reach.
  void fitScroll(const Form& changed);

  /// True once the user has confirmed the exit.
  bool ended() const { return ended_; }
  /// Hides and drops every form, front to back, without asking, and ends the program.
  void end();

  /// Forgets everything, as before the first form: for tests that start the program several times.
  void clear();

  TimerQueue timers;
  Clock clock;
  Hand hand;
  Hand::Target pressed;  ///< the press that a click is still waiting for its release of

  /// While one lives, forms that are unloaded stay in memory: a handler may unload the form it runs on.
  class Event {
   public:
    Event();
    ~Event();
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
  };

 private:
  friend class Form;
  friend class FormPlace;
  void loaded(Form& form);
  void show(Form& form, ShowMode mode, Form* owner);
  void hide(Form& form);
  void drop(Form& form);
  void raise(Form& form);
  void raiseWithOwned(Form& form);
  void activateLatest();
  bool leaving(const Control& control) const;

  std::vector<Form*> forms_;
  std::vector<Form*> modals_;
  std::vector<const Control*> leaving_;  // their handlers of the lost focus run
  Form* active_ = nullptr;
  Control* focused_ = nullptr;
  bool ended_ = false;
  unsigned long activations_ = 0;
  int events_ = 0;
  std::vector<std::unique_ptr<Form>> dropped_;
};

Desk& desk();

}  // namespace zelvs
