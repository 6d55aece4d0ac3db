#include "ui/dirtyPlaces.h"

#include <algorithm>
#include <utility>

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

namespace {

/// Letters may stand out of their place a little.
constexpr double kMargin = 2 * kTwipsPerPixel;

/// What the control takes of the window now; empty when it is hidden.
Area placeOf(const Control& control) {
  if (!control.shown()) return {};
  if (control.kind() != ControlKind::Line) return control.area().shrunk(-kMargin);
  const Area holder = control.container() != nullptr ? control.container()->area() : Area{};
  return static_cast<const Line&>(control).reach(holder).shrunk(-kMargin);
}

}  // namespace

DirtyPlaces::Dirty DirtyPlaces::of(const std::vector<Control*>& changed) {
  constexpr std::size_t kManyPlaces = 100;
  Dirty dirty;
  dirty.whole = changed.size() > kManyPlaces;
  for (const Control* control : changed) {
    if (control->isField()) continue;
    const Area now = placeOf(*control);
    const Area before = std::exchange(drawn_[control], now);
    if (dirty.whole) continue;
    if (!before.empty()) dirty.places.push_back(before);
    if (!now.empty() && now != before) dirty.places.push_back(now);
  }
  return dirty;
}

}  // namespace zelvs
