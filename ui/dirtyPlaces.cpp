#include "ui/dirtyPlaces.h"

#include <algorithm>
#include <utility>

#include "ui/controls.h"
#include "ui/form.h"

namespace zelvs {

namespace {

/// Letters may stand out of their place a little.
constexpr double kMargin = 2 * kTwipsPerPixel;

Area placeOfLine(const Line& line) {
  const double unit = line.outerUnit();
  const Area holder = line.container() != nullptr ? line.container()->area() : Area{};
  const auto [left, right] = std::minmax<double>(line.X1, line.X2);
  const auto [top, bottom] = std::minmax<double>(line.Y1, line.Y2);
  const double thick = line.BorderWidth * kTwipsPerPixel;
  return Area{holder.left + left * unit, holder.top + top * unit, (right - left) * unit, (bottom - top) * unit}.shrunk(
      -thick);
}

/// What the control takes of the window now; empty when it is hidden.
Area placeOf(const Control& control) {
  if (!control.shown()) return {};
  const Area place =
      control.kind() == ControlKind::Line ? placeOfLine(static_cast<const Line&>(control)) : control.area();
  return place.shrunk(-kMargin);
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
