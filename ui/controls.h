#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace zelvs {

enum class Alignment { Left, Right, Center };

/// A piece of text. With AutoSize it takes the size of its text; with Transparent the ground shows through.
class Label : public Control {
 public:
  Label(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::Label) {}

  Property<bool> AutoSize{this, false};
  Property<Alignment> Align{this, Alignment::Left};
  Property<bool> Transparent{this, true};
  Property<bool> Bordered{this, false};

  void propertyChanged(const void* property) override;
};

/// One operation of a picture box's drawing, in the scale of the box.
struct DrawingOperation {
  bool isText = false;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  Colour colour = kBlack;
  double fontSize = 9;
  std::string text;
};

/// A picture that may hold other controls and may be drawn on: lines and text in its own scale, kept until cleared.
class PictureBox : public Control {
 public:
  PictureBox(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::PictureBox) {}

  Property<zelvs::Picture> Picture{this};
  /// The box takes the size of its picture when that comes from a file.
  Property<bool> AutoSize{this, false};
  Property<bool> Transparent{this, false};
  Property<bool> Bordered{this, false};

  double CurrentX = 0;
  double CurrentY = 0;
  /// Fires when an assignment gave the box another width or height.
  std::function<void()> onResize;

  /// Removes the drawing, not the picture; the print position goes to the left top corner.
  void cls();
  void line(double x1, double y1, double x2, double y2, Colour colour);
  /// Prints in ForeColor at the print position, which moves behind the text.
  void print(std::string_view text);
  const std::vector<DrawingOperation>& drawing() const { return drawing_; }

  void propertyChanged(const void* property) override;

 private:
  std::vector<DrawingOperation> drawing_;
};

/// A picture that takes no focus and holds nothing.
class Image : public Control {
 public:
  Image(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::Image) {}

  Property<zelvs::Picture> Picture{this};
};

/// A straight line between two points in the scale of its container.
class Line : public Control {
 public:
  Line(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::Line) {}

  Property<double> X1{this};
  Property<double> Y1{this};
  Property<double> X2{this};
  Property<double> Y2{this};
  Property<double> BorderWidth{this, 1};  ///< in pixels; the line is drawn in ForeColor

  /// What it takes of the form with its thickness, in twips. holder: the place of what holds it.
  Area reach(const Area& holder) const;
};

/// A rectangle filled with BackColor inside a border of ForeColor.
class Shape : public Control {
 public:
  Shape(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::Shape) {}
};

/// A titled group of controls.
class Frame : public Control {
 public:
  Frame(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::Frame) {}
};

/// A field that a person types in. Positions count characters from 0.
class TextBox : public Control {
 public:
  TextBox(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::TextBox) {
    BackColor = kWhite;
  }

  Property<std::string> Text{this};
  Property<int> SelStart{this, 0};
  Property<int> SelLength{this, 0};
  Property<int> MaxLength{this, 0};        ///< 0: no limit
  Property<bool> KeepsEnter{this, false};  ///< Enter is the field's own: no button answers it from there

  /// May change the character; 0 drops it.
  std::function<void(char32_t& character)> onKeyPress;
  std::function<void()> onChange;

  void propertyChanged(const void* property) override;
};

/// A push button. The Default button of a form also answers Enter, the Cancel button Escape; a form has at most one of
/// each.
class CommandButton : public Control {
 public:
  CommandButton(Form* form, std::string_view name, int index = -1)
      : Control(form, name, index, ControlKind::CommandButton) {}

  Property<bool> Default{this, false};
  Property<bool> Cancel{this, false};

  void propertyChanged(const void* property) override;
};

/// Value 1 is checked, 0 is not. A change of Value, by hand or by code, fires Click.
class CheckBox : public Control {
 public:
  CheckBox(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::CheckBox) {}

  Property<int> Value{this, 0};

  void propertyChanged(const void* property) override;
};

/// One of several: selecting it clears its neighbours in the same container and fires Click.
class OptionButton : public Control {
 public:
  OptionButton(Form* form, std::string_view name, int index = -1)
      : Control(form, name, index, ControlKind::OptionButton) {}

  Property<bool> Value{this, false};

  void propertyChanged(const void* property) override;
};

/// Rows by position from 0. ListIndex -1 means that none is selected.
class ListControl : public Control {
 public:
  ListControl(Form* form, std::string_view name, int index, ControlKind kind) : Control(form, name, index, kind) {
    BackColor = kWhite;
  }

  /// Selecting another row, by hand or by code, fires Click. A position outside -1..ListCount-1 is a run-time error.
  Property<int> ListIndex{this, -1};

  void clear();
  void addItem(std::string_view text);
  int ListCount() const { return static_cast<int>(rows_.size()); }
  /// The text of a row; a position outside 0..ListCount-1 is a run-time error.
  const std::string& List(int position) const;
  /// The selected row's text, empty when none is selected.
  std::string Text() const;

  void propertyChanged(const void* property) override;

 private:
  std::vector<std::string> rows_;
};

/// A list behind a field. An Unrolled one has no field: all its rows lie open for as long as it is visible.
class ComboBox : public ListControl {
 public:
  ComboBox(Form* form, std::string_view name, int index = -1) : ListControl(form, name, index, ControlKind::ComboBox) {}

  Property<bool> Unrolled{this, false};
  /// The row that the keyboard stands on in an unrolled list, -1 for none: Enter picks it. It starts at the selection.
  Property<int> Marked{this, -1};

  void propertyChanged(const void* property) override;
};

class ListBox : public ListControl {
 public:
  ListBox(Form* form, std::string_view name, int index = -1) : ListControl(form, name, index, ControlKind::ListBox) {}
};

/// Tabs by position from 0, each called "Tab N" until it gets another caption. Turning to another tab, by hand or by
/// code, fires Click.
class TabStrip : public Control {
 public:
  TabStrip(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::TabStrip) {}

  Property<int> Tab{this, 0};   ///< a position outside 0..Tabs-1 is a run-time error
  Property<int> Tabs{this, 1};  ///< at least 1

  /// A position outside 0..Tabs-1 is a run-time error.
  const std::string& TabCaption(int position) const;
  void setTabCaption(int position, std::string_view caption);

  void propertyChanged(const void* property) override;

 private:
  std::vector<std::string> captions_ = {"Tab 0"};
};

/// A wave sound device: DeviceType "WaveAudio", FileName, and the commands "Open", "Prev" and "Play".
class Sound : public Control {
 public:
  Sound(Form* form, std::string_view name, int index = -1) : Control(form, name, index, ControlKind::Sound) {
    Visible = false;
  }

  Property<std::string> DeviceType{this};
  Property<std::string> FileName{this};

  /// False for an unknown command and for an "Open" that failed. "Prev" goes back to the start.
  bool command(std::string_view text);
};

}  // namespace zelvs
