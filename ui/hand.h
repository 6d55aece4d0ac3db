#pragma once

#include <cstdint>

#include "ui/reach.h"

namespace zelvs {

class Control;
class Form;

/// A key that goes to whatever has the keyboard.
struct Key {
  int code = 0;            ///< of ui/gesture.h's key codes, digits and capital letters as themselves; 0: none of them
  char32_t character = 0;  ///< that it types; 0: none
  bool control = false;
  bool alt = false;
  bool shift = false;
};

/// The mouse and the keyboard as the model knows them. Every backend that has real ones tells what they do; what is
/// hit, what a double click belongs to and when a press is over is settled here. A place is on a form's inside, in
/// twips; its caption bar lies above 0.
class Hand {
 public:
  /// Where a press went.
  struct Target {
    const Form* form = nullptr;
    const Control* control = nullptr;
    friend bool operator==(const Target&, const Target&) = default;
  };

  /// The pointer has moved over a form, or beside all of them. A held caption bar drags its window along, a held edge
  /// makes it wider.
  void move(Form* form, const Spot& spot);
  /// The left button goes down. second: as the second press of a double click, which belongs to the control that had
  /// the first press or to nobody. named: for a gesture that is made by its name, which nothing interrupts.
  void down(Form& form, const Spot& spot, bool second, bool named = false);
  /// It goes up, wherever that is: over the form that took the press, at this place.
  void up(const Spot& spot);
  /// Whether the press has been taken and not ended.
  bool holds() const { return held_.form != nullptr; }
  const Form* heldForm() const { return held_.form; }
  const Control* heldControl() const { return held_.control; }

  /// The same for a control that is a field of a backend's: false when the press is for nobody, and the field must not
  /// see it. row: of a list or a strip of tabs, the one under the pointer, from 0; -1 for none. A double click beside
  /// its rows is none for a list.
  bool downOnField(Control& field, int row, bool second, bool named = false);
  void upFromField() { held_ = {}; }

  /// The release went elsewhere, or will never come: what is held is let go, without a click.
  void lose();
  /// A window has closed or has been hidden.
  void windowGone(const Form& form);

  /// False when nobody has a use for the key.
  bool key(const Key& key);

 private:
  enum class Part { Nothing, Turning, Inside, Caption, CloseBox, LeftEdge, RightEdge };
  bool begin(const Target& target, bool second, bool named);
  void drag(Form& form, const Spot& spot);

  Target held_;
  Target last_;  // the press that a second one may follow
  Part part_ = Part::Nothing;
  bool named_ = false;
  Spot grip_;  // where the caption bar is held; of an edge, the place on the screen
  double gripWidth_ = 0;
};

}  // namespace zelvs
