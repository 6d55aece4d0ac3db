#include "ui/qt/keys.h"

#include <QKeyEvent>
#include <utility>

#include "text/utf8.h"
#include "ui/gesture.h"

namespace zelvs {

namespace {

constexpr std::pair<int, Qt::Key> kKeys[] = {
    {key::kBackspace, Qt::Key_Backspace}, {key::kEnter, Qt::Key_Return},  {key::kEnter, Qt::Key_Enter},
    {key::kEscape, Qt::Key_Escape},       {key::kSpace, Qt::Key_Space},   {key::kPageUp, Qt::Key_PageUp},
    {key::kPageDown, Qt::Key_PageDown},   {key::kEnd, Qt::Key_End},       {key::kHome, Qt::Key_Home},
    {key::kLeft, Qt::Key_Left},           {key::kUp, Qt::Key_Up},         {key::kRight, Qt::Key_Right},
    {key::kDown, Qt::Key_Down},           {key::kDelete, Qt::Key_Delete}, {key::kTab, Qt::Key_Tab},
    {key::kTab, Qt::Key_Backtab},         {key::kF1, Qt::Key_F1},
};

/// Digits and letters have one code on both sides.
bool sameOnBothSides(int code) {
  return (code >= Qt::Key_0 && code <= Qt::Key_9) || (code >= Qt::Key_A && code <= Qt::Key_Z);
}

}  // namespace

int keyCodeOf(int qtKey) {
  if (sameOnBothSides(qtKey)) return qtKey;
  for (const auto& [code, key] : kKeys) {
    if (key == qtKey) return code;
  }
  return 0;
}

Qt::Key qtKeyOf(int code) {
  if (sameOnBothSides(code)) return static_cast<Qt::Key>(code);
  for (const auto& [known, key] : kKeys) {
    if (known == code) return key;
  }
  return Qt::Key_unknown;
}

Key modelKeyOf(const QKeyEvent& event) {
  Key key;
  key.code = keyCodeOf(event.key());
  key.control = event.modifiers().testFlag(Qt::ControlModifier);
  key.alt = event.modifiers().testFlag(Qt::AltModifier);
  key.shift = event.modifiers().testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab;
  const QString text = event.text();
  if (!text.isEmpty() && text[0].isPrint()) key.character = charactersOf(text.toStdString()).front();
  return key;
}

}  // namespace zelvs
