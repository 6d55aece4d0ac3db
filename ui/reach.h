#pragma once

#include <optional>

namespace zelvs {

class Control;
class Form;

/// A place on a form's inside, in twips.
struct Spot {
  double x = 0;
  double y = 0;
};

/// A place where a hand reaches the control, or for null the form itself, with nothing in front of it: its middle if
/// that is free, else one of a grid of eighths. Nothing when all of them are covered; strips between them do not count.
std::optional<Spot> freePlace(const Form& form, const Control* control);

}  // namespace zelvs
