#pragma once

#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "ui/picture.h"
#include "ui/property.h"

namespace zelvs {

class Form;

/// Colours hold red in the low byte: 255 is red, 0xFF0000 blue.
using Colour = int;

inline constexpr Colour kBlack = 0;
inline constexpr Colour kRed = 255;
inline constexpr Colour kYellow = 0x00FFFF;
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kButtonFace = 0xF0F0F0;

inline constexpr double kTwipsPerPixel = 15;
inline constexpr double kTwipsPerPoint = 20;

/// Value of MousePointer that shows MouseIcon.
inline constexpr int kCustomPointer = 99;

enum class ControlKind {
  Label,
  PictureBox,
  Image,
  Line,
  Shape,
  Frame,
  TextBox,
  CommandButton,
  CheckBox,
  OptionButton,
  ComboBox,
  ListBox,
  TabStrip,
  Timer,
  Sound
};

/// The kind as the script prints it: "label", "picture", ...
std::string_view kindName(ControlKind kind);

/// A place in twips, counted from the left top corner of a form's inside.
struct Area {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  double right() const { return left + width; }
  double bottom() const { return top + height; }
  bool contains(double x, double y) const { return x >= left && x < right() && y >= top && y < bottom(); }
  Area intersected(const Area& other) const;
  /// The smallest area that holds both.
  Area united(const Area& other) const;
  /// Smaller by that much at each side; a negative number makes it larger.
  Area shrunk(double by) const { return {left + by, top + by, width - 2 * by, height - 2 * by}; }
  /// True when they share more than an edge.
  bool touches(const Area& other) const {
    return left < other.right() && other.left < right() && top < other.bottom() && other.top < bottom();
  }
  bool empty() const { return width <= 0 || height <= 0; }
  friend bool operator==(const Area&, const Area&) = default;
};

/// What every control of a window has. A control lives as long as its form; it is reached by its name and, in an
/// array, by its index.
class Control : public PropertyOwner {
 public:
  /// index -1: not in an array. The control joins its form, in front of those that joined before.
  Control(Form* form, std::string_view name, int index, ControlKind kind);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  Property<std::string> Tag{this};
  Property<bool> Visible{this, true};
  Property<bool> Enabled{this, true};
  /// Place inside the container, in the container's scale.
  Property<double> Left{this};
  Property<double> Top{this};
  Property<double> Width{this};
  Property<double> Height{this};
  Property<std::string> Caption{this};
  Property<Colour> ForeColor{this, kBlack};
  Property<Colour> BackColor{this, kButtonFace};
  Property<double> FontSize{this, 9};  ///< in points
  Property<bool> FontBold{this, false};
  Property<std::string> ToolTipText{this};
  Property<int> MousePointer{this, 0};
  Property<Picture> MouseIcon{this};

  std::function<void()> onClick;
  std::function<void()> onDblClick;
  std::function<void()> onMouseDown;
  std::function<void()> onMouseUp;
  std::function<void()> onMouseMove;
  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;
  /// May change the key code; 0 swallows the key.
  std::function<void(int& code)> onKeyDown;

  Form& form() const { return *form_; }
  const std::string& name() const { return name_; }
  int index() const { return index_; }
  ControlKind kind() const { return kind_; }
  /// "frmHard.picPI(3)"
  std::string fullName() const;

  Control* container() const { return container_; }
  const std::vector<Control*>& children() const { return children_; }
  /// Moves the control into another control of the same form, in front of what is there.
  void placeIn(Control& container);
  /// Twips per unit of the scale that this control's children are placed in: 1, or 15 for pixels.
  double unit() const { return unit_; }
  void setUnit(double twips) { unit_ = twips; }
  /// Twips per unit of the scale that this control is placed in.
  double outerUnit() const;

  /// Visible with everything that holds it. Says nothing of the form.
  bool shown() const;
  /// Enabled with everything that holds it.
  bool usable() const;
  /// A person types, picks or pushes there, and a backend brings it as a field of its own. All others are drawn.
  bool isField() const;
  bool takesFocus() const;
  /// Place on the form, in twips, not cut by what holds it.
  Area area() const;
  void move(double left, double top, double width, double height);
  void sendToBack();
  void bringToFront();

  void propertyChanged(const void* property) override;
  void markChanged();

 private:
  friend class Form;
  Form* form_;
  std::string name_;
  int index_;
  ControlKind kind_;
  Control* container_ = nullptr;
  std::vector<Control*> children_;
  double unit_ = 1;
  // The form's list of controls that a view has still to look at runs through the controls themselves, so that
  // marking one never allocates.
  Control* nextChanged_ = nullptr;
  bool changed_ = false;
};

[[noreturn]] void arrayIndexError(const Form& form, const std::string& array, int index);

/// Controls of one name, told apart by index. An index that is not there is a run-time error.
template <class T>
class ControlArray {
 public:
  /// Indexes first..last.
  ControlArray(Form* form, std::string name, int first, int last) : form_(form), name_(std::move(name)) {
    for (int index = first; index <= last; ++index)
      create(index);
  }
  ControlArray(Form* form, std::string name, std::initializer_list<int> indexes) : form_(form), name_(std::move(name)) {
    for (const int index : indexes)
      create(index);
  }
  ControlArray(const ControlArray&) = delete;
  ControlArray& operator=(const ControlArray&) = delete;

  T& operator()(int index) const {
    const auto position = static_cast<std::size_t>(index);
    if (index < 0 || position >= byIndex_.size() || byIndex_[position] == nullptr) {
      arrayIndexError(*form_, name_, index);
    }
    return *byIndex_[position];
  }
  bool has(int index) const {
    const auto position = static_cast<std::size_t>(index);
    return index >= 0 && position < byIndex_.size() && byIndex_[position] != nullptr;
  }
  const std::string& name() const { return name_; }

  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }

  /// Gives every member the same handler; it learns the index.
  void on(std::function<void()> Control::*event, void (*handler)(int index)) {
    for (T& item : items_) {
      item.*event = [handler, index = item.index()] { handler(index); };
    }
  }

 private:
  void create(int index) {
    items_.emplace_back(form_, name_, index);
    const auto position = static_cast<std::size_t>(index);
    if (byIndex_.size() <= position) byIndex_.resize(position + 1);
    byIndex_[position] = &items_.back();
  }

  Form* form_;
  std::string name_;
  std::deque<T> items_;
  std::vector<T*> byIndex_;
};

}  // namespace zelvs
