#pragma once

#include "bench/frmHard.h"

namespace zelvs {

/// A window's place beside a board, in twips from the panel's corner.
struct BesideBoard {
  double top;
  double left;
};

inline void moveBesideBoard(Form& form, const BesideBoard& place) {
  form.move(frmHard->Left + place.left, frmHard->Top + place.top);
  form.keepOnScreen();
}

}  // namespace zelvs
