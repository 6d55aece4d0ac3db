#pragma once

#include <gtest/gtest.h>

#include <string>

#include "dialogs/frmMessage.h"
#include "text/utf8.h"
#include "ui/controls.h"
#include "ui/gesture.h"

namespace zelvs {

// What the user does with the mouse and the keyboard; each gesture has to be taken.

inline void click(Control& control) {
  EXPECT_EQ(gesture::click(control.form(), &control), "");
}
inline void doubleClick(Control& control) {
  EXPECT_EQ(gesture::doubleClick(control.form(), &control), "");
}
/// A double click whose button is still down.
inline void hold(Control& control) {
  EXPECT_EQ(gesture::doubleClick(control.form(), &control, false), "");
}
inline void press(Control& control) {
  EXPECT_EQ(gesture::press(control.form(), &control), "");
}
inline void release(Control& control) {
  EXPECT_EQ(gesture::release(control.form(), &control), "");
}
inline void type(TextBox& field, const std::string& text) {
  for (const char32_t character : charactersOf(text))
    EXPECT_EQ(gesture::type(field, character), "");
}

// What the user sees.

/// The text of the pop-up, which goes away; empty when there is none.
inline std::string takeMessage() {
  if (!frmMessage.visible()) return {};
  std::string text = frmMessage->lblMessage.Caption;
  frmMessage->hide();
  return text;
}
/// How a picture prints: list and number.
inline std::string shown(const Picture& picture) {
  return picture.list == nullptr ? "none" : picture.list->name() + " " + std::to_string(picture.image);
}

}  // namespace zelvs
