#include "ui/textEditing.h"

#include <algorithm>
#include <string>

#include "text/utf8.h"
#include "ui/gesture.h"

namespace zelvs {

namespace {

void edit(TextBox& text, const std::u32string& characters, int caret) {
  text.SelStart = caret;
  text.SelLength = 0;
  const std::string next = textOf(characters);
  // Typing a character over its like is a change too: the field's own rules hang on it.
  if (text.Text == next) {
    if (text.onChange) text.onChange();
  } else {
    text.Text = next;
  }
}

void erase(TextBox& text, int from, int count) {
  std::u32string characters = charactersOf(text.Text.get());
  const int length = static_cast<int>(characters.size());
  if (from < 0 || from >= length || count < 1) return;
  characters.erase(static_cast<std::size_t>(from), static_cast<std::size_t>(count));
  edit(text, characters, from);
}

void insert(TextBox& text, char32_t character) {
  std::u32string characters = charactersOf(text.Text.get());
  const auto start = static_cast<std::size_t>(text.SelStart.get());
  const auto length = static_cast<std::size_t>(text.SelLength.get());
  if (text.MaxLength > 0 && characters.size() - length >= static_cast<std::size_t>(text.MaxLength.get())) return;
  characters.replace(start, length, 1, character);
  edit(text, characters, text.SelStart + 1);
}

void moveCaret(TextBox& text, int to) {
  const int length = static_cast<int>(charactersOf(text.Text.get()).size());
  text.SelLength = 0;
  text.SelStart = std::clamp(to, 0, length);
}

}  // namespace

void typeInto(TextBox& text, char32_t character) {
  if (text.onKeyPress) text.onKeyPress(character);
  if (character == key::kBackspace) {
    if (text.SelLength > 0) {
      erase(text, text.SelStart, text.SelLength);
    } else {
      erase(text, text.SelStart - 1, 1);
    }
  } else if (character >= U' ') {
    insert(text, character);
  }
}

void editByKey(TextBox& text, int code) {
  switch (code) {
    case key::kLeft:
      moveCaret(text, text.SelLength > 0 ? text.SelStart.get() : text.SelStart - 1);
      break;
    case key::kRight:
      moveCaret(text, text.SelLength > 0 ? text.SelStart + text.SelLength : text.SelStart + 1);
      break;
    case key::kHome:
      moveCaret(text, 0);
      break;
    case key::kEnd:
      moveCaret(text, static_cast<int>(text.Text.get().size()));
      break;
    case key::kDelete:
      erase(text, text.SelStart, std::max<int>(1, text.SelLength));
      break;
    default:
      break;
  }
}

}  // namespace zelvs
