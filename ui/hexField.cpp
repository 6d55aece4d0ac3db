#include "ui/hexField.h"

#include <algorithm>
#include <string_view>

#include "text/utf8.h"
#include "ui/gesture.h"

namespace zelvs {

namespace {

// Every hex digit; that 6 and 0 come twice changes nothing.
constexpr std::u32string_view kDigits = U"012345676890abcdefABCDEF";

int lastPlace(const TextBox& field) {
  return field.MaxLength - 1;
}

/// A text that the program has made shorter than the field has no digit to select at its end: the next one goes there.
void select(TextBox& field, int place) {
  const int end = static_cast<int>(charactersOf(field.Text.get()).size());
  field.SelStart = std::clamp(place, 0, std::min(lastPlace(field), end));
  field.SelLength = std::min(1, end - field.SelStart);
}

void keyPress(char32_t& character, bool upperCase) {
  if (kDigits.find(character) == std::u32string_view::npos) character = 0;
  if (upperCase && character >= U'a') character -= U'a' - U'A';
}

void keyDown(TextBox& field, int& code, EnterKey enterKey) {
  switch (code) {
    case key::kRight:
      select(field, field.SelStart + 1);
      break;
    case key::kLeft:
    case key::kBackspace:
      select(field, field.SelStart - 1);
      break;
    case key::kHome:
      select(field, 0);
      break;
    case key::kEnd:
      select(field, lastPlace(field));
      break;
    case key::kDelete:
    case key::kUp:
    case key::kDown:
    case key::kPageDown:
    case key::kPageUp:
      break;
    case key::kEscape:
    case key::kEnter:
      if (enterKey == EnterKey::PassedOn) return;
      if (enterKey == EnterKey::ToLastDigit) select(field, lastPlace(field));
      break;
    default:
      return;
  }
  code = 0;
}

}  // namespace

void attachHexField(TextBox& field, const HexFieldRules& rules) {
  field.MaxLength = rules.length;
  field.KeepsEnter = rules.enterKey != EnterKey::PassedOn;
  field.onKeyPress = [upperCase = rules.upperCase](char32_t& character) { keyPress(character, upperCase); };
  field.onKeyDown = [&field, enterKey = rules.enterKey](int& code) { keyDown(field, code, enterKey); };
  field.onChange = [&field] { select(field, field.SelStart); };
  field.onClick = [&field] { select(field, field.SelStart); };
  field.onGotFocus = [&field] { select(field, 0); };
}

}  // namespace zelvs
