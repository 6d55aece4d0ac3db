#pragma once

#include <string>

#include "ui/controls.h"

namespace zelvs {

/// Key codes of the platform that the program knows by name.
namespace key {
inline constexpr int kBackspace = 8;
inline constexpr int kTab = 9;
inline constexpr int kEnter = 13;
inline constexpr int kEscape = 27;
inline constexpr int kSpace = 32;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kHome = 36;
inline constexpr int kLeft = 37;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
inline constexpr int kDelete = 46;
inline constexpr int kF1 = 112;  ///< the others up to F12 behind it
}  // namespace key

/// What the user can do. Every backend calls these and nothing else: no handler is ever reached another way. Each
/// turns the user to the form first. The result is empty when the gesture was taken, else the reason why it was
/// refused; then nothing has changed. A null control stands for the form itself.
namespace gesture {

std::string refusal(const Form& form, const Control* control);

std::string press(Form& form, Control* control);
/// inside false: the button went up away from the control, which still learns it but is not clicked.
std::string release(Form& form, Control* control, bool inside = true);
/// The second press of a double click. A control without a double-click action takes it as a first one.
std::string pressAgain(Form& form, Control* control);
std::string move(Form& form, Control* control);

/// Press and release.
std::string click(Form& form, Control* control);
/// A whole double click; with last mouse up false the button is still down at the end.
std::string doubleClick(Form& form, Control* control, bool lastRelease = true);

/// The user picks row (from 0) of a list, or a tab.
std::string pick(Control& control, int row);
/// The user clicks into a field and so puts the caret (from 0) there; length characters behind it are selected.
std::string placeCaret(TextBox& text, int start, int length);
std::string focus(Control& control);
std::string type(Control& control, char32_t character);
std::string keyDown(Control& control, int code);
/// The close box. A refusal by the form's own question counts as taken.
std::string close(Form& form);
std::string activate(Form& form);

// What a press is made of, for a hand that may be interrupted between them (ui/hand.h). They refuse nothing.

/// The user turns to the form and, where it takes the focus, to the control. May be refused like a gesture.
std::string turnTo(Form& form, Control* control);
void pressed(Form& form, Control* control);
void pressedAgain(Form& form, Control* control);
/// Mouse up without a click, also where a modal window shuts the user out.
void letGo(const Control* control);
/// What the control does by itself when it is clicked, and its handler.
void clicked(Form& form, Control* control);
bool actsOnDoubleClick(const Control* control);

/// Where a click puts the caret: x counts from the field's left edge, in twips.
int caretAt(const TextBox& text, double x);

}  // namespace gesture
}  // namespace zelvs
