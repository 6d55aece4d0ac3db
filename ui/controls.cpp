#include "ui/controls.h"

#include <algorithm>

#include "text/utf8.h"
#include "ui/form.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"
#include "ui/textExtent.h"

namespace zelvs {

void Label::propertyChanged(const void* property) {
  Control::propertyChanged(property);
  if (!AutoSize || !(property == &Caption || property == &FontSize || property == &AutoSize)) return;
  Width = textWidth(Caption.get(), FontSize) / outerUnit();
  Height = lineCount(Caption.get()) * lineHeight(FontSize) / outerUnit();
}

Area Line::reach(const Area& holder) const {
  const double unit = outerUnit();
  const auto [left, right] = std::minmax<double>(X1, X2);
  const auto [top, bottom] = std::minmax<double>(Y1, Y2);
  const Area middle{holder.left + left * unit, holder.top + top * unit, (right - left) * unit, (bottom - top) * unit};
  return middle.shrunk(-BorderWidth * kTwipsPerPixel);
}

void PictureBox::cls() {
  CurrentX = 0;
  CurrentY = 0;
  drawing_.clear();
  markChanged();
}

void PictureBox::line(double x1, double y1, double x2, double y2, Colour colour) {
  drawing_.push_back({false, x1, y1, x2, y2, colour, 0, {}});
  CurrentX = x2;
  CurrentY = y2;
  markChanged();
}

void PictureBox::print(std::string_view text) {
  if (text.empty()) return;
  drawing_.push_back({true, CurrentX, CurrentY, 0, 0, ForeColor, FontSize, std::string(text)});
  CurrentX += textWidth(text, FontSize) / unit();
  markChanged();
}

void PictureBox::propertyChanged(const void* property) {
  Control::propertyChanged(property);
  const PictureFile* file = AutoSize && (property == &Picture || property == &AutoSize) ? fileOf(Picture) : nullptr;
  if (file != nullptr) {
    Width = file->width * kTwipsPerPixel / outerUnit();
    Height = file->height * kTwipsPerPixel / outerUnit();
  }
  if (onResize && (property == &Width || property == &Height)) onResize();
}

void TextBox::propertyChanged(const void* property) {
  Control::propertyChanged(property);
  if (property != &Text) return;
  const int length = static_cast<int>(charactersOf(Text.get()).size());
  SelStart = std::min<int>(SelStart, length);
  SelLength = std::min<int>(SelLength, length - SelStart);
  if (onChange) onChange();
}

void CommandButton::propertyChanged(const void* property) {
  Control::propertyChanged(property);
  if (property != &Default || !Default) return;
  for (Control* other : form().controls()) {
    if (other != this && other->kind() == ControlKind::CommandButton) {
      static_cast<CommandButton*>(other)->Default = false;
    }
  }
}

void CheckBox::propertyChanged(const void* property) {
  Control::propertyChanged(property);
  if (property == &Value && onClick) onClick();
}

void OptionButton::propertyChanged(const void* property) {
  Control::propertyChanged(property);
  if (property != &Value || !Value) return;
  for (Control* other : form().controls()) {
    if (other != this && other->kind() == ControlKind::OptionButton && other->container() == container()) {
      static_cast<OptionButton*>(other)->Value = false;
    }
  }
  if (onClick) onClick();
}

void ListControl::clear() {
  rows_.clear();
  ListIndex = -1;
  markChanged();
}

void ListControl::addItem(std::string_view text) {
  rows_.emplace_back(text);
  markChanged();
}

const std::string& ListControl::List(int position) const {
  if (position < 0 || position >= ListCount()) {
    runTimeError(fullName() + " has no row " + std::to_string(position) + ": it has " + std::to_string(ListCount()) +
                 " rows, counted from 0");
  }
  return rows_[static_cast<std::size_t>(position)];
}

std::string ListControl::Text() const {
  return ListIndex < 0 ? std::string() : List(ListIndex);
}

void ListControl::propertyChanged(const void* property) {
  if (property == &ListIndex && ListIndex != -1) List(ListIndex);
  Control::propertyChanged(property);
  if (property == &ListIndex && ListIndex != -1 && onClick) onClick();
}

void ComboBox::propertyChanged(const void* property) {
  if (property == &ListIndex || property == &Visible) Marked = ListIndex.get();
  ListControl::propertyChanged(property);
}

const std::string& TabStrip::TabCaption(int position) const {
  if (position < 0 || position >= Tabs) {
    runTimeError(fullName() + " has no tab " + std::to_string(position) + ": it has " + std::to_string(Tabs.get()) +
                 " tabs, counted from 0");
  }
  return captions_[static_cast<std::size_t>(position)];
}

void TabStrip::setTabCaption(int position, std::string_view caption) {
  TabCaption(position);
  captions_[static_cast<std::size_t>(position)] = caption;
  markChanged();
}

void TabStrip::propertyChanged(const void* property) {
  if (property == &Tabs) {
    if (Tabs < 1) runTimeError(fullName() + " cannot have " + std::to_string(Tabs.get()) + " tabs");
    const auto tabs = static_cast<std::size_t>(Tabs.get());
    while (captions_.size() < tabs)
      captions_.push_back("Tab " + std::to_string(captions_.size()));
    captions_.resize(tabs);
    Tab = std::min<int>(Tab, Tabs - 1);
  }
  if (property == &Tab) TabCaption(Tab);
  Control::propertyChanged(property);
  if (property == &Tab && onClick) onClick();
}

bool Sound::command(std::string_view text) {
  if (text == "Open") return DeviceType == "WaveAudio" && platform().openSound(FileName);
  if (text == "Play") platform().playSound();
  // "Prev" has nothing to do: a sound is always played from its start.
  return text == "Play" || text == "Prev";
}

}  // namespace zelvs
