#include "ui/headless/headlessHands.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "ui/desk.h"
#include "ui/listRows.h"
#include "ui/textExtent.h"
#include "ui/windowFrame.h"

namespace zelvs {

namespace {

constexpr std::int64_t kDoubleClickTime = 400;  // milliseconds of the model's clock
constexpr int kDoubleClickPlace = 4;            // pixels
constexpr int kDroppedRows = 10;

Area onScreen(const Control& control) {
  const Area area = control.area();
  return {control.form().insideLeft() + area.left, control.form().insideTop() + area.top, area.width, area.height};
}

Point pixelsOf(double x, double y) {
  return {static_cast<int>(std::lround(x / kTwipsPerPixel)), static_cast<int>(std::lround(y / kTwipsPerPixel))};
}

Point middleOf(const Area& area) {
  return pixelsOf(area.left + area.width / 2, area.top + area.height / 2);
}

/// Tabs stand beside each other, each as wide as its text and some room.
Area tabArea(const TabStrip& tabs, int tab) {
  constexpr double kRoom = 24 * kTwipsPerPixel;
  Area area = onScreen(tabs);
  for (int at = 0; at < tab; ++at)
    area.left += textWidth(tabs.TabCaption(at), tabs.FontSize) + kRoom;
  area.width = textWidth(tabs.TabCaption(tab), tabs.FontSize) + kRoom;
  return area;
}

}  // namespace

double HeadlessHands::x() const {
  return place_.x * kTwipsPerPixel;
}

double HeadlessHands::y() const {
  return place_.y * kTwipsPerPixel;
}

bool HeadlessHands::dropped(const Control& control) const {
  return dropped_ == &control && control.shown() && control.usable() && control.form().visible();
}

void HeadlessHands::forgetGoneList() {
  const auto holds = [this](const Form* form) {
    const auto& controls = form->controls();
    return std::find(controls.begin(), controls.end(), dropped_) != controls.end();
  };
  if (dropped_ != nullptr && std::none_of(desk().forms().begin(), desk().forms().end(), holds)) dropped_ = nullptr;
}

Area HeadlessHands::rowsOf(const Control& list) const {
  const Area area = onScreen(list);
  if (list.kind() == ControlKind::ListBox || isOpenList(&list)) return area;
  if (!dropped(list)) return {};
  return {area.left, area.bottom(), area.width, std::min(rowCountOf(list), kDroppedRows) * rowHeightOf(list)};
}

int HeadlessHands::rowAt(const Control& control, double x, double y) const {
  if (control.kind() == ControlKind::TabStrip) {
    const auto& tabs = static_cast<const TabStrip&>(control);
    for (int tab = 0; tab < tabs.Tabs; ++tab) {
      if (tabArea(tabs, tab).contains(x, y)) return tab;
    }
    return -1;
  }
  if (rowCountOf(control) == 0) return -1;
  const Area rows = rowsOf(control);
  if (!rows.contains(x, y)) return -1;
  const int top = scrolled_ == &control ? topRow_ : 0;
  const int row = top + static_cast<int>((y - rows.top) / rowHeightOf(control));
  return row < rowCountOf(control) ? row : -1;
}

std::optional<Point> HeadlessHands::placeOf(Form& form, Control* control, std::optional<int> row) {
  if (control == nullptr) {
    return middleOf({form.insideLeft(), form.insideTop(), form.clientWidth(), form.clientHeight()});
  }
  if (!row) return middleOf(onScreen(*control));
  if (*row < 0 || *row >= rowCountOf(*control)) return std::nullopt;
  if (control->kind() == ControlKind::TabStrip) return middleOf(tabArea(static_cast<TabStrip&>(*control), *row));
  forgetGoneList();
  const Area rows = rowsOf(*control);
  const double height = rowHeightOf(*control);
  const int visible = std::max(1, static_cast<int>(rows.height / height));
  int top = std::exchange(scrolled_, control) == control ? topRow_ : 0;
  top = std::clamp(top, *row - visible + 1, *row);
  topRow_ = top;
  return middleOf({rows.left, rows.top + (*row - top) * height, rows.width, height});
}

void HeadlessHands::handMove(Point place) {
  place_ = place;
  const Seen seen = windowAt(x(), y());
  Hand& hand = desk().hand;
  // What holds the press goes on seeing the pointer, wherever it is.
  if (hand.heldForm() != nullptr) {
    Form& held = const_cast<Form&>(*hand.heldForm());
    hand.move(&held, insideOf(held, x(), y()));
  } else {
    hand.move(seen.form, seen.spot);
  }
}

bool HeadlessHands::isSecondPress() {
  const std::int64_t now = desk().clock.now();
  const bool second = lastPress_ && now - lastPress_->time <= kDoubleClickTime &&
                      std::abs(place_.x - lastPress_->place.x) <= kDoubleClickPlace &&
                      std::abs(place_.y - lastPress_->place.y) <= kDoubleClickPlace;
  // A third press is a first one.
  lastPress_ = second ? std::nullopt : std::optional<Press>({now, place_});
  return second;
}

void HeadlessHands::handDown() {
  const bool second = isSecondPress();
  held_ = {};  // a release that nobody has told of
  forgetGoneList();
  // A list that has dropped down closes at a press beside it, and the press goes on to what lies there.
  if (dropped_ != nullptr && rowAt(*dropped_, x(), y()) < 0 && !onScreen(*dropped_).contains(x(), y())) {
    dropped_ = nullptr;
  }
  if (dropped_ != nullptr && dropped(*dropped_) && rowAt(*dropped_, x(), y()) >= 0) {
    pressField(*dropped_, second);
    return;
  }
  const Seen seen = windowAt(x(), y());
  if (seen.form == nullptr) return;
  Control* control = framePartAt(*seen.form, seen.spot) == FramePart::Inside
                         ? seen.form->controlAt(seen.spot.x, seen.spot.y)
                         : nullptr;
  if (control == nullptr || !control->isField()) {
    desk().hand.down(*seen.form, seen.spot, second);
  } else {
    pressField(*control, second);
  }
}

void HeadlessHands::pressField(Control& field, bool second) {
  const int row = rowAt(field, x(), y());
  if (desk().hand.downOnField(field, row, second)) held_ = {&field, row};
}

void HeadlessHands::handUp() {
  if (const HeldField held = std::exchange(held_, {}); held.control != nullptr) {
    // Asked before the field is touched: its window may have gone with it.
    const bool ours = desk().hand.holds() && desk().hand.heldControl() == held.control;
    desk().hand.upFromField();
    if (ours) releaseField(held);
    return;
  }
  const Form* form = desk().hand.heldForm();
  desk().hand.up(form != nullptr ? insideOf(*form, x(), y()) : Spot{});
}

void HeadlessHands::releaseField(const HeldField& held) {
  Control& field = *held.control;
  if (!gesture::refusal(field.form(), &field).empty()) return;
  const int row = rowAt(field, x(), y());
  if (row >= 0 ? row == held.row : held.row < 0 && onScreen(field).contains(x(), y())) useField(field, row);
}

void HeadlessHands::useField(Control& field, int row) {
  switch (field.kind()) {
    case ControlKind::TextBox: {
      auto& text = static_cast<TextBox&>(field);
      gesture::placeCaret(text, gesture::caretAt(text, x() - onScreen(field).left), 0);
      break;
    }
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
    case ControlKind::TabStrip:
      if (row >= 0) {
        dropped_ = nullptr;
        gesture::pick(field, row);
      } else if (field.kind() == ControlKind::ComboBox && !isOpenList(&field)) {
        dropped_ = dropped_ == &field ? nullptr : static_cast<ComboBox*>(&field);
      }
      break;
    default:
      gesture::click(field.form(), &field);
  }
}

void HeadlessHands::handKey(const Key& key) {
  desk().hand.key(key);
}

}  // namespace zelvs
