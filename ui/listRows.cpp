#include "ui/listRows.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "text/utf8.h"
#include "ui/gesture.h"
#include "ui/textExtent.h"

namespace zelvs {

namespace {

const ListControl& listOf(const Control& control) {
  return static_cast<const ListControl&>(control);
}

char32_t lower(char32_t character) {
  return character >= U'A' && character <= U'Z' ? character - U'A' + U'a' : character;
}

/// Blanks before the text do not count: some of the given rows are aligned with them.
char32_t firstLetter(const std::string& text) {
  for (const char32_t character : charactersOf(text)) {
    if (character != U' ') return lower(character);
  }
  return 0;
}

int rowByLetter(const ListControl& list, int row, char32_t character) {
  const int count = list.ListCount();
  for (int step = 1; step <= count; ++step) {
    const int at = (std::max(row, -1) + step) % count;
    if (firstLetter(list.List(at)) == lower(character)) return at;
  }
  return row;
}

}  // namespace

bool holdsRows(const Control& control) {
  return control.kind() == ControlKind::TabStrip || control.kind() == ControlKind::ComboBox ||
         control.kind() == ControlKind::ListBox;
}

int rowCountOf(const Control& control) {
  if (!holdsRows(control)) return 0;
  return control.kind() == ControlKind::TabStrip ? static_cast<const TabStrip&>(control).Tabs.get()
                                                 : listOf(control).ListCount();
}

int selectedRowOf(const Control& control) {
  return control.kind() == ControlKind::TabStrip ? static_cast<const TabStrip&>(control).Tab.get()
                                                 : listOf(control).ListIndex.get();
}

void pickRow(Control& control, int row) {
  if (control.kind() == ControlKind::TabStrip) {
    static_cast<TabStrip&>(control).Tab = row;
    return;
  }
  auto& list = static_cast<ListControl&>(control);
  if (list.ListIndex != row) {
    list.ListIndex = row;
  } else if (list.onClick) {
    list.onClick();
  }
}

bool isOpenList(const Control* control) {
  return control != nullptr && control->kind() == ControlKind::ComboBox &&
         static_cast<const ComboBox*>(control)->Unrolled;
}

double rowHeightOf(const Control& list) {
  constexpr double kRoom = 1.2;
  return std::round(lineHeight(list.FontSize) * kRoom / kTwipsPerPixel) * kTwipsPerPixel;
}

int visibleRowsOf(const Control& list) {
  return std::max(1, static_cast<int>(list.area().height / rowHeightOf(list)));
}

int rowByKey(const Control& list, int row, int code, char32_t character) {
  const int last = rowCountOf(list) - 1;
  if (last < 0) return row;
  const auto within = [&](int to) { return std::clamp(to, 0, last); };
  switch (code) {
    case key::kUp:
    case key::kLeft:
      return within(row - 1);
    case key::kDown:
    case key::kRight:
      return within(row + 1);
    case key::kHome:
      return 0;
    case key::kEnd:
      return last;
    case key::kPageUp:
      return within(row - visibleRowsOf(list));
    case key::kPageDown:
      return within(row + visibleRowsOf(list));
    default:
      break;
  }
  const bool letters = character > U' ' && list.kind() != ControlKind::TabStrip;
  return letters ? rowByLetter(listOf(list), row, character) : row;
}

}  // namespace zelvs
