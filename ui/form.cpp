#include "ui/form.h"

#include <algorithm>
#include <cmath>

#include "ui/desk.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"
#include "ui/view.h"

namespace zelvs {

Form::Form(std::string_view name, FormKind kind, Border border) : name_(name), kind_(kind), border_(border) {}

void Form::show(ShowMode mode, Form* owner) {
  desk().show(*this, mode, owner);
}

void Form::hide() {
  desk().hide(*this);
}

bool Form::close(bool byUser) {
  const Desk::Event event;
  if (byUser && hidesOnCloseBox_) {
    hide();
    return false;
  }
  if (!queryUnload(byUser)) return false;
  if (desk().ended()) return true;
  unloading();
  desk().drop(*this);
  return true;
}

void Form::bringToFront() {
  desk().raise(*this);
}

void Form::setFocus() {
  desk().activate(*this);
}

void Form::repaint() {
  view().repaint(*this);
}

void Form::setTopmost() {
  const bool already = topmost_;
  topmost_ = true;
  if (already) return;
  desk().raise(*this);
  view().formChanged(*this);
}

void Form::setFloating(bool floating) {
  floating_ = floating;
  desk().raise(*this);
  view().formChanged(*this);
}

void Form::move(double left, double top) {
  Left = left;
  Top = top;
}

void Form::keepOnScreen() {
  const Screen screen = platform().screen();
  const double right = screen.width * kTwipsPerPixel - Width;
  const double bottom = screen.height * kTwipsPerPixel - Height;
  move(std::max(0.0, std::min<double>(Left, right)), std::max(0.0, std::min<double>(Top, bottom)));
}

namespace {

/// What the children in the client area take, its own left top corner included.
Area childrenArea() {
  Area area{0, 0, 0, 0};
  for (const Form* form : desk().forms()) {
    if (form->kind() != FormKind::Child || !form->visible() || form->floating()) continue;
    area = area.united({form->Left, form->Top, form->Width, form->Height});
  }
  return area;
}

}  // namespace

Area Form::clientArea() const {
  Area area{insideLeft(), clientAreaTop(), clientWidth(), std::max(clientHeight() - barHeight(), 0.0)};
  const Area children = childrenArea();
  const auto tooWide = [&](double room) { return children.left < 0 || children.right() > room; };
  const auto tooHigh = [&](double room) { return children.top < 0 || children.bottom() > room; };
  // Each bar may be what the other one is needed for.
  const bool below = tooWide(area.width) || (tooHigh(area.height) && tooWide(area.width - kScrollBar));
  const bool beside = tooHigh(area.height) || (below && tooHigh(area.height - kScrollBar));
  area.height -= below ? kScrollBar : 0;
  area.width -= beside ? kScrollBar : 0;
  return area;
}

Area Form::scrollRange() const {
  const Area seen = clientArea();
  return childrenArea().united({0, 0, seen.width, seen.height});
}

void Form::scrollTo(double left, double top) {
  const Area seen = clientArea();
  const Area range = scrollRange();
  ScrollLeft = std::clamp(left, range.left, std::max(range.left, range.right() - seen.width));
  ScrollTop = std::clamp(top, range.top, std::max(range.top, range.bottom() - seen.height));
}

void Form::reveal() {
  Form* frame = desk().frame();
  if (kind_ != FormKind::Child || floating_ || frame == nullptr) return;
  const Area seen = frame->clientArea();
  const auto along = [](double scroll, double room, double from, double to) {
    return std::min(std::max(scroll, to - room), from);
  };
  frame->scrollTo(along(frame->ScrollLeft, seen.width, Left, Left + Width),
                  along(frame->ScrollTop, seen.height, Top, Top + Height));
}

Area Form::dragRange() const {
  const Form* frame = kind_ == FormKind::Child ? desk().frame() : nullptr;
  if (frame == nullptr) {
    const Screen screen = platform().screen();
    return {0, 0, screen.width * kTwipsPerPixel, screen.height * kTwipsPerPixel};
  }
  if (!floating_) return frame->scrollRange();
  return {kClientEdge, kClientEdge + frame->barHeight(), frame->clientWidth(),
          frame->clientHeight() - frame->barHeight()};
}

void Form::moveInReach(double left, double top) {
  constexpr double kGrip = 60 * kTwipsPerPixel;  // what of the caption bar stays in reach
  const Area range = dragRange();
  const auto within = [](double at, double from, double to) { return std::clamp(at, std::min(from, to), to); };
  move(within(left, range.left + kGrip - Width, range.right() - kGrip),
       within(top, range.top, std::max(range.top, range.bottom() - kCaptionHeight)));
}

void Form::dragTo(double left, double top) {
  // A mouse moves by whole pixels, and the window with it.
  const auto whole = [](double twips) { return std::round(twips / kTwipsPerPixel) * kTwipsPerPixel; };
  moveInReach(whole(left), whole(top));
}

void Form::drawWider(double width) {
  constexpr double kLeastWidth = 200 * kTwipsPerPixel;
  Width = std::clamp(width, kLeastWidth, std::max(kLeastWidth, platform().screen().width * kTwipsPerPixel));
}

void Form::keepInReach() {
  if (floating_) moveInReach(Left, Top);
}

void Form::moveToCorner(double fromRight, double fromBottom) {
  const Screen screen = platform().screen();
  move(screen.width * kTwipsPerPixel - Width - fromRight, screen.height * kTwipsPerPixel - Height - fromBottom);
}

double Form::clientHeight() const {
  return Height - (border_ == Border::None ? 0 : kCaptionHeight);
}

double Form::insideLeft() const {
  const Form* frame = kind_ == FormKind::Child ? desk().frame() : nullptr;
  if (frame == nullptr) return Left;
  return Left + frame->insideLeft() - (floating_ ? kClientEdge : frame->ScrollLeft.get());
}

double Form::insideTop() const {
  const Form* frame = kind_ == FormKind::Child ? desk().frame() : nullptr;
  const double above = frame == nullptr ? 0
                       : floating_      ? frame->insideTop() - kClientEdge
                                        : frame->clientAreaTop() - frame->ScrollTop;
  return above + Top + (Height - clientHeight());
}

void Form::join(Control& control) {
  controls_.push_back(&control);
  topControls_.push_back(&control);
}

std::vector<Control*>& Form::siblingsOf(const Control& control) {
  return control.container_ != nullptr ? control.container_->children_ : topControls_;
}

Control* Form::find(std::string_view name, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return control->index() == index && control->name() == name;
  });
  return found == controls_.end() ? nullptr : *found;
}

bool Form::hasArray(std::string_view name) const {
  return std::any_of(controls_.begin(), controls_.end(),
                     [&](const Control* control) { return control->index() >= 0 && control->name() == name; });
}

namespace {

bool canBeHit(const Control& control) {
  return control.Visible && control.kind() != ControlKind::Line && control.kind() != ControlKind::Timer &&
         control.kind() != ControlKind::Sound;
}

/// x and y count from the left top of what holds the siblings, unit is its scale: a memory window has thousands of
/// them, so that none asks its holders where they lie.
Control* frontAt(const std::vector<Control*>& siblings, double unit, double x, double y) {
  for (auto at = siblings.rbegin(); at != siblings.rend(); ++at) {
    Control& control = **at;
    const Area area{control.Left * unit, control.Top * unit, control.Width * unit, control.Height * unit};
    if (!area.contains(x, y) || !canBeHit(control)) continue;
    Control* inside = frontAt(control.children(), control.unit(), x - area.left, y - area.top);
    return inside != nullptr ? inside : &control;
  }
  return nullptr;
}

}  // namespace

Control* Form::controlAt(double x, double y) const {
  return frontAt(topControls_, unit_, x, y);
}

void Form::markChanged(Control& control) {
  control.changed_ = true;
  control.nextChanged_ = firstChanged_;
  const bool first = firstChanged_ == nullptr;
  firstChanged_ = &control;
  if (first) view().controlsChanged(*this);
}

std::vector<Control*> Form::takeChanged() {
  std::vector<Control*> changed;
  for (Control* control = firstChanged_; control != nullptr; control = control->nextChanged_) {
    control->changed_ = false;
    changed.push_back(control);
  }
  firstChanged_ = nullptr;
  return changed;
}

void Form::propertyChanged(const void* property) {
  if (property == &Tag) return;
  view().formChanged(*this);
  if (property == &Width || property == &Height) resized();
  if (property == &Left || property == &Top || property == &Width || property == &Height) desk().fitScroll(*this);
}

namespace {

std::vector<FormPlace*>& places() {
  static std::vector<FormPlace*>& all = *new std::vector<FormPlace*>;
  return all;
}

}  // namespace

FormPlace::FormPlace(std::string_view name, FormKind kind) : name_(name), kind_(kind) {
  places().push_back(this);
}

const std::vector<FormPlace*>& FormPlace::all() {
  return places();
}

FormPlace* FormPlace::named(std::string_view name) {
  const auto found =
      std::find_if(all().begin(), all().end(), [&](const FormPlace* place) { return place->name() == name; });
  return found == all().end() ? nullptr : *found;
}

void FormPlace::load() {
  if (loaded()) return;
  const Desk::Event event;
  const Deed deed("loading the window", name_);
  if (kind_ == FormKind::Child) {
    // A child brings its frame with it.
    for (FormPlace* place : all()) {
      if (place->kind() == FormKind::Frame) place->load();
    }
  }
  form_ = make();
  Form& form = *form_;
  desk().loaded(form);
  view().formLoaded(form);
  form.load();
}

}  // namespace zelvs
