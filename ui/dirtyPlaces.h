#pragma once

#include <unordered_map>
#include <vector>

#include "ui/control.h"

namespace zelvs {

class Form;

/// Which places of a window have to be drawn anew, in twips: where a changed control stood when it was last drawn, and
/// where it stands now.
class DirtyPlaces {
 public:
  /// The places of the changed controls that the window draws itself; nothing when there are so many that the whole
  /// window is drawn faster.
  struct Dirty {
    bool whole = false;
    std::vector<Area> places;
  };
  Dirty of(const std::vector<Control*>& changed);

  /// The form is gone.
  void forget() { drawn_.clear(); }

 private:
  std::unordered_map<const Control*, Area> drawn_;
};

}  // namespace zelvs
