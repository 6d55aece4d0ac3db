#include "ui/inspect.h"

#include <cmath>

#include "text/number.h"
#include "ui/controls.h"
#include "ui/timer.h"

namespace zelvs {

std::string numberText(double number) {
  if (number == std::floor(number) && std::abs(number) < 1e15) return std::to_string(static_cast<long long>(number));
  return shortestNumber(number);
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    switch (c) {
      case '"':
        result += "\\\"";
        break;
      case '\\':
        result += "\\\\";
        break;
      case '\r':
        result += "\\r";
        break;
      case '\n':
        result += "\\n";
        break;
      case '\t':
        result += "\\t";
        break;
      default:
        result += c;
    }
  }
  return result + '"';
}

std::string Value::plain() const {
  return kind == Kind::Number ? numberText(number) : text;
}

std::string Value::printed() const {
  return kind == Kind::Text ? quoted(text) : plain();
}

namespace {

Value pictureValue(const Picture& picture) {
  if (picture.file != nullptr) return Value::ofName("file " + picture.file->name);
  if (picture.list != nullptr) return Value::ofName(picture.list->name() + " " + std::to_string(picture.image));
  return Value::ofName("none");
}

std::string drawingText(const PictureBox& box) {
  std::string text;
  for (const DrawingOperation& operation : box.drawing()) {
    if (!text.empty()) text += '\n';
    const std::string from = numberText(operation.x1) + " " + numberText(operation.y1) + " ";
    if (operation.isText) {
      text += "text " + from + numberText(operation.colour) + " " + quoted(operation.text);
    } else {
      text += "line " + from + numberText(operation.x2) + " " + numberText(operation.y2) + " " +
              numberText(operation.colour);
    }
  }
  return text;
}

template <class C>
using Reader = Value (*)(const C&);

template <class C>
struct Row {
  std::string_view name;
  Reader<C> read;
};

constexpr Row<Control> kCommon[] = {
    {"Tag", [](const Control& c) { return Value::ofText(c.Tag); }},
    {"Visible", [](const Control& c) { return Value::ofTruth(c.Visible); }},
    {"Enabled", [](const Control& c) { return Value::ofTruth(c.Enabled); }},
    {"Caption", [](const Control& c) { return Value::ofText(c.Caption); }},
    {"ForeColor", [](const Control& c) { return Value::ofNumber(c.ForeColor); }},
    {"BackColor", [](const Control& c) { return Value::ofNumber(c.BackColor); }},
    {"Left", [](const Control& c) { return Value::ofNumber(c.Left); }},
    {"Top", [](const Control& c) { return Value::ofNumber(c.Top); }},
    {"Width", [](const Control& c) { return Value::ofNumber(c.Width); }},
    {"Height", [](const Control& c) { return Value::ofNumber(c.Height); }},
    {"ToolTipText", [](const Control& c) { return Value::ofText(c.ToolTipText); }},
    {"MousePointer", [](const Control& c) { return Value::ofNumber(c.MousePointer); }},
    {"MouseIcon", [](const Control& c) { return pictureValue(c.MouseIcon); }},
};

constexpr Row<PictureBox> kPictureBox[] = {
    {"Picture", [](const PictureBox& c) { return pictureValue(c.Picture); }},
    {"Drawing", [](const PictureBox& c) { return Value::ofText(drawingText(c)); }},
};
constexpr Row<Image> kImage[] = {{"Picture", [](const Image& c) { return pictureValue(c.Picture); }}};
constexpr Row<Line> kLine[] = {
    {"X1", [](const Line& c) { return Value::ofNumber(c.X1); }},
    {"X2", [](const Line& c) { return Value::ofNumber(c.X2); }},
    {"Y1", [](const Line& c) { return Value::ofNumber(c.Y1); }},
    {"Y2", [](const Line& c) { return Value::ofNumber(c.Y2); }},
};
constexpr Row<TextBox> kTextBox[] = {
    {"Text", [](const TextBox& c) { return Value::ofText(c.Text); }},
    {"SelStart", [](const TextBox& c) { return Value::ofNumber(c.SelStart); }},
    {"SelLength", [](const TextBox& c) { return Value::ofNumber(c.SelLength); }},
};
constexpr Row<CommandButton> kCommandButton[] = {
    {"Default", [](const CommandButton& c) { return Value::ofTruth(c.Default); }}};
constexpr Row<CheckBox> kCheckBox[] = {{"Value", [](const CheckBox& c) { return Value::ofNumber(c.Value); }}};
constexpr Row<OptionButton> kOptionButton[] = {
    {"Value", [](const OptionButton& c) { return Value::ofTruth(c.Value); }}};
constexpr Row<ListControl> kList[] = {
    {"ListIndex", [](const ListControl& c) { return Value::ofNumber(c.ListIndex); }},
    {"ListCount", [](const ListControl& c) { return Value::ofNumber(c.ListCount()); }},
    {"Text", [](const ListControl& c) { return Value::ofText(c.Text()); }},
};
constexpr Row<TabStrip> kTabStrip[] = {
    {"Tab", [](const TabStrip& c) { return Value::ofNumber(c.Tab); }},
    {"Tabs", [](const TabStrip& c) { return Value::ofNumber(c.Tabs); }},
};
constexpr Row<Timer> kTimer[] = {{"Interval", [](const Timer& c) { return Value::ofNumber(c.Interval); }}};
constexpr Row<Form> kForm[] = {
    {"Tag", [](const Form& f) { return Value::ofText(f.Tag); }},
    {"Visible", [](const Form& f) { return Value::ofTruth(f.visible()); }},
    {"Caption", [](const Form& f) { return Value::ofText(f.Caption); }},
    {"BackColor", [](const Form& f) { return Value::ofNumber(f.BackColor); }},
    {"Left", [](const Form& f) { return Value::ofNumber(f.Left); }},
    {"Top", [](const Form& f) { return Value::ofNumber(f.Top); }},
    {"Width", [](const Form& f) { return Value::ofNumber(f.Width); }},
    {"Height", [](const Form& f) { return Value::ofNumber(f.Height); }},
};

template <class C, std::size_t N>
std::optional<Value> look(const Row<C> (&rows)[N], const C& object, std::string_view name) {
  for (const Row<C>& row : rows) {
    if (row.name == name) return row.read(object);
  }
  return std::nullopt;
}

template <class C, std::size_t N>
std::optional<Value> lookAs(const Row<C> (&rows)[N], const Control& control, std::string_view name) {
  return look(rows, static_cast<const C&>(control), name);
}

std::optional<Value> own(const Control& control, std::string_view name) {
  switch (control.kind()) {
    case ControlKind::PictureBox:
      return lookAs(kPictureBox, control, name);
    case ControlKind::Image:
      return lookAs(kImage, control, name);
    case ControlKind::Line:
      return lookAs(kLine, control, name);
    case ControlKind::TextBox:
      return lookAs(kTextBox, control, name);
    case ControlKind::CommandButton:
      return lookAs(kCommandButton, control, name);
    case ControlKind::CheckBox:
      return lookAs(kCheckBox, control, name);
    case ControlKind::OptionButton:
      return lookAs(kOptionButton, control, name);
    case ControlKind::ComboBox:
    case ControlKind::ListBox:
      return lookAs(kList, control, name);
    case ControlKind::TabStrip:
      return lookAs(kTabStrip, control, name);
    case ControlKind::Timer:
      return lookAs(kTimer, control, name);
    default:
      return std::nullopt;
  }
}

/// Properties that take a row or a tab.
std::optional<Value> ownRow(const Control& control, std::string_view name, int row) {
  const bool list = control.kind() == ControlKind::ComboBox || control.kind() == ControlKind::ListBox;
  if (list && name == "List") {
    const auto& rows = static_cast<const ListControl&>(control);
    if (row >= 0 && row < rows.ListCount()) return Value::ofText(rows.List(row));
  }
  if (control.kind() == ControlKind::TabStrip && name == "TabCaption") {
    const auto& tabs = static_cast<const TabStrip&>(control);
    if (row >= 0 && row < tabs.Tabs) return Value::ofText(tabs.TabCaption(row));
  }
  return std::nullopt;
}

}  // namespace

std::optional<Value> inspect(const Control& control, std::string_view property, std::optional<int> argument) {
  if (argument) return ownRow(control, property, *argument);
  std::optional<Value> value = own(control, property);
  return value ? value : look(kCommon, control, property);
}

std::optional<Value> inspect(const Form& form, std::string_view property) {
  if (auto value = look(kForm, form, property)) return value;
  for (const auto& [name, member] : form.members()) {
    if (name != property) continue;
    if (const auto* number = std::get_if<const std::int16_t*>(&member)) return Value::ofNumber(**number);
    return Value::ofText(*std::get<const std::string*>(member));
  }
  return std::nullopt;
}

}  // namespace zelvs
