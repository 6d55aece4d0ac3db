#include "ui/control.h"

#include <algorithm>
#include <array>

#include "ui/desk.h"
#include "ui/form.h"
#include "ui/runTimeError.h"

namespace zelvs {

std::string_view kindName(ControlKind kind) {
  static constexpr std::array<std::string_view, 15> kNames = {"label", "picture", "image",  "line",  "shape",
                                                              "frame", "text",    "button", "check", "option",
                                                              "combo", "list",    "tab",    "timer", "sound"};
  return kNames[static_cast<std::size_t>(kind)];
}

Area Area::intersected(const Area& other) const {
  const double l = std::max(left, other.left);
  const double t = std::max(top, other.top);
  return {l, t, std::min(right(), other.right()) - l, std::min(bottom(), other.bottom()) - t};
}

Area Area::united(const Area& other) const {
  const double l = std::min(left, other.left);
  const double t = std::min(top, other.top);
  return {l, t, std::max(right(), other.right()) - l, std::max(bottom(), other.bottom()) - t};
}

Control::Control(Form* form, std::string_view name, int index, ControlKind kind)
    : form_(form), name_(name), index_(index), kind_(kind) {
  form->join(*this);
}

std::string Control::fullName() const {
  std::string text = form_->name() + "." + name_;
  if (index_ >= 0) text += "(" + std::to_string(index_) + ")";
  return text;
}

void Control::placeIn(Control& container) {
  auto& siblings = form_->siblingsOf(*this);
  siblings.erase(std::find(siblings.begin(), siblings.end(), this));
  container_ = &container;
  container.children_.push_back(this);
  markChanged();
}

bool Control::shown() const {
  return Visible && (container_ == nullptr || container_->shown());
}

bool Control::usable() const {
  return Enabled && (container_ == nullptr || container_->usable());
}

bool Control::isField() const {
  switch (kind_) {
    case ControlKind::TextBox:
    case ControlKind::CommandButton:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
    case ControlKind::TabStrip:
      return true;
    default:
      return false;
  }
}

bool Control::takesFocus() const {
  return isField() || kind_ == ControlKind::PictureBox;
}

double Control::outerUnit() const {
  return container_ != nullptr ? container_->unit() : form_->unit();
}

Area Control::area() const {
  const double unit = outerUnit();
  const Area origin = container_ != nullptr ? container_->area() : Area{};
  return {origin.left + Left * unit, origin.top + Top * unit, Width * unit, Height * unit};
}

void Control::move(double left, double top, double width, double height) {
  Left = left;
  Top = top;
  Width = width;
  Height = height;
}

void Control::sendToBack() {
  auto& siblings = form_->siblingsOf(*this);
  const auto at = std::find(siblings.begin(), siblings.end(), this);
  std::rotate(siblings.begin(), at, at + 1);
  markChanged();
}

void Control::bringToFront() {
  auto& siblings = form_->siblingsOf(*this);
  const auto at = std::find(siblings.begin(), siblings.end(), this);
  std::rotate(at, at + 1, siblings.end());
  markChanged();
}

void Control::propertyChanged(const void* property) {
  if (property == &Tag) return;  // a Tag has no look
  markChanged();
  if ((property == &Visible && !Visible) || (property == &Enabled && !Enabled)) desk().focusHidden(*this);
}

void Control::markChanged() {
  if (!changed_) form_->markChanged(*this);
}

void arrayIndexError(const Form& form, const std::string& array, int index) {
  runTimeError(form.name() + "." + array + " has no member " + std::to_string(index));
}

}  // namespace zelvs
