#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "ui/control.h"

namespace zelvs {

/// Frame: the one window that holds the children. Child: inside the frame's client area. Window: stands by itself.
enum class FormKind { Frame, Child, Window };
enum class Border { None, Fixed, Sizable };
/// Height of a caption bar in twips. A desktop draws its own windows' bars as it likes: there the inside is what
/// counts.
inline constexpr double kCaptionHeight = 300;
/// Breadth of a bar to scroll by, in twips.
inline constexpr double kScrollBar = 210;
/// What stands between the frame and its client area, in twips: a child counts from behind it, a floating one from
/// before.
inline constexpr double kClientEdge = 30;
enum class ShowMode { Modeless, Modal };

/// A window. It is made and loaded at the first touch through its FormRef, shown and hidden any number of times, and
/// dropped when it is unloaded: the next touch makes a new one.
class Form : public PropertyOwner {
 public:
  Form(std::string_view name, FormKind kind, Border border);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  Property<std::string> Tag{this};
  Property<std::string> Caption{this};
  /// Outer place in twips: a child's on the frame's client area, any other's on the screen. The caption bar counts in
  /// Height (kCaptionHeight), side borders count as nothing.
  Property<double> Left{this};
  Property<double> Top{this};
  Property<double> Width{this, 6000};
  Property<double> Height{this, 4000};
  Property<Colour> BackColor{this, kButtonFace};

  /// Of a frame: how far its client area is scrolled, in twips. Set by scrollTo() alone.
  Property<double> ScrollLeft{this};
  Property<double> ScrollTop{this};

  const std::string& name() const { return name_; }
  FormKind kind() const { return kind_; }
  Border border() const { return border_; }
  bool visible() const { return visible_; }
  bool modal() const { return modal_; }
  bool topmost() const { return topmost_; }
  /// In front of all plain windows: topmost, or modal, since a modal one holds the user and must be seen.
  bool inFront() const { return topmost_ || modal_; }
  /// A child that has left the client area for the frame itself, so that it stays in front of the other children.
  bool floating() const { return floating_; }
  Form* owner() const { return owner_; }
  Control* activeControl() const { return activeControl_; }

  /// Shows the form, brings it to the front and activates it. A modal one returns when it is hidden again; it is an
  /// error to show a form modally that is visible.
  void show(ShowMode mode = ShowMode::Modeless, Form* owner = nullptr);
  void hide();
  /// Goes through unless QueryUnload refuses. The form must not be touched afterwards.
  void unload() { close(false); }
  /// Unloads, byUser when the close box asks. False when QueryUnload refused.
  bool close(bool byUser);
  void bringToFront();
  /// Gives the form the focus.
  void setFocus();
  /// Paints what has changed at once rather than at the next return to the event loop.
  void repaint();
  void setTopmost();
  void setFloating(bool floating);
  void move(double left, double top);
  /// Shifts a window that stands by itself until all of it lies on the screen; what is larger than the screen keeps
  /// its left top corner there.
  void keepOnScreen();
  /// A hand drags the window: it goes there as far as its caption bar can still be reached.
  void dragTo(double left, double top);
  /// A hand draws the window wider or narrower, in twips: from a least width to that of the screen.
  void drawWider(double width);
  /// Moves a floating child back to where its caption bar can be reached; one in the client area can be scrolled to.
  void keepInReach();
  /// Scrolls the frame's client area until as much of this child is seen as fits, its left top corner at the least.
  void reveal();

  /// Of a frame: the part of its inside in which children show, in twips of the screen. Where they do not fit in, bars
  /// to scroll by take a strip of it (kScrollBar) at the right or at the bottom.
  Area clientArea() const;
  /// Of a frame: what its children take, in twips of the client area; at least the client area itself.
  Area scrollRange() const;
  /// Of a frame: scrolls as far as there are children.
  void scrollTo(double left, double top);

  /// Puts a window that stands by itself into the right bottom corner of the screen, at these distances in twips.
  void moveToCorner(double fromRight, double fromBottom);

  double clientWidth() const { return Width; }
  /// Twips per unit of the scale that the form's controls are placed in: 1, or 15 for pixels.
  double unit() const { return unit_; }
  double clientHeight() const;
  /// Where the left top corner of the form's inside lies on the screen, in twips.
  double insideLeft() const;
  double insideTop() const;
  /// What a frame keeps for its tool bar above the children's area, in twips.
  virtual double barHeight() const { return 0; }
  /// Top of a frame's client area on the screen, in twips.
  double clientAreaTop() const { return insideTop() + barHeight(); }
  virtual bool hasCloseBox() const { return border_ != Border::None; }

  /// All controls, in the order of their making.
  const std::vector<Control*>& controls() const { return controls_; }
  /// Those that no other control holds, back to front.
  const std::vector<Control*>& topControls() const { return topControls_; }
  Control* find(std::string_view name, int index) const;
  bool hasArray(std::string_view name) const;
  /// The control in front at a place in twips on the form's inside, or null. Hidden ones are looked through.
  Control* controlAt(double x, double y) const;

  /// A public number of the form that the script may look at by its name.
  using Member = std::variant<const std::int16_t*, const std::string*>;
  const std::vector<std::pair<std::string, Member>>& members() const { return members_; }

  /// Takes the controls that have changed since the last call, in no given order.
  std::vector<Control*> takeChanged();

  void propertyChanged(const void* property) override;

  /// What the form itself does with a click beside its controls.
  virtual void click() {}

 protected:
  virtual void load() {}
  virtual void activated() {}
  virtual void deactivated() {}
  virtual void resized() {}
  /// Return false to refuse. byUser: the close box, not the program, asks.
  virtual bool queryUnload(bool /*byUser*/) { return true; }
  virtual void unloading() {}
  void setUnit(double twips) { unit_ = twips; }
  /// The close box only hides the form, so that it keeps what its controls show; the program still unloads it.
  void hideOnCloseBox() { hidesOnCloseBox_ = true; }
  void addMember(std::string name, Member member) { members_.emplace_back(std::move(name), member); }

 private:
  friend class Control;
  friend class Desk;
  friend class FormPlace;
  void join(Control& control);
  std::vector<Control*>& siblingsOf(const Control& control);
  void markChanged(Control& control);
  Area dragRange() const;
  void moveInReach(double left, double top);

  std::string name_;
  FormKind kind_;
  Border border_;
  double unit_ = 1;
  bool visible_ = false;
  bool modal_ = false;
  bool topmost_ = false;
  bool floating_ = false;
  bool hidesOnCloseBox_ = false;
  Form* owner_ = nullptr;
  Control* activeControl_ = nullptr;
  unsigned long lastActive_ = 0;  // rises with each activation of any form
  std::vector<Control*> controls_;
  std::vector<Control*> topControls_;
  std::vector<std::pair<std::string, Member>> members_;
  Control* firstChanged_ = nullptr;
};

/// The place where a form is reached by its name, loaded or not.
class FormPlace {
 public:
  FormPlace(std::string_view name, FormKind kind);
  FormPlace(const FormPlace&) = delete;
  FormPlace& operator=(const FormPlace&) = delete;

  const std::string& name() const { return name_; }
  FormKind kind() const { return kind_; }
  bool loaded() const { return form_ != nullptr; }
  bool visible() const { return form_ != nullptr && form_->visible(); }
  Form* form() const { return form_.get(); }
  /// Does nothing when the form is loaded.
  void load();

  /// Every form of the program, in no given order.
  static const std::vector<FormPlace*>& all();
  static FormPlace* named(std::string_view name);

 protected:
  virtual std::unique_ptr<Form> make() const = 0;
  ~FormPlace() = default;

 private:
  friend class Desk;
  std::string name_;
  FormKind kind_;
  std::unique_ptr<Form> form_;
};

/// frmHard-> loads frmHard at the first touch. T names its kind in T::kKind.
template <class T>
class FormRef final : public FormPlace {
 public:
  explicit FormRef(std::string_view name) : FormPlace(name, T::kKind) {}

  /// Called with each new form before it loads: what works a form from above its folder attaches itself here.
  void whenMade(void (*made)(T& form)) { whenMade_ = made; }

  T* operator->() { return get(); }
  T& operator*() { return *get(); }
  T* get() {
    if (!loaded()) [[unlikely]]
      load();
    return static_cast<T*>(form());
  }

 private:
  std::unique_ptr<Form> make() const override {
    auto form = std::make_unique<T>();
    if (whenMade_ != nullptr) whenMade_(*form);
    return form;
  }

  void (*whenMade_)(T& form) = nullptr;
};

}  // namespace zelvs
