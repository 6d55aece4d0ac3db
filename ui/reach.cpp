#include "ui/reach.h"

#include "ui/form.h"

namespace zelvs {

std::optional<Spot> freePlace(const Form& form, const Control* control) {
  constexpr int kGrid = 8;
  const Area area = control != nullptr ? control->area() : Area{0, 0, form.clientWidth(), form.clientHeight()};
  const auto at = [&](int x, int y) {
    return Spot{area.left + area.width * x / kGrid, area.top + area.height * y / kGrid};
  };
  const auto isFree = [&](const Spot& spot) { return form.controlAt(spot.x, spot.y) == control; };
  // The middle first, then the rest of a grid.
  if (const Spot middle = at(kGrid / 2, kGrid / 2); isFree(middle)) return middle;
  for (int y = 1; y < kGrid; ++y) {
    for (int x = 1; x < kGrid; ++x) {
      if (const Spot spot = at(x, y); isFree(spot)) return spot;
    }
  }
  return std::nullopt;
}

}  // namespace zelvs
