#pragma once

#include <cstdint>
#include <optional>

#include "ui/controls.h"
#include "ui/hands.h"

namespace zelvs {

/// Hands without a screen: where windows, controls and rows lie is counted from the model, as a desktop would show
/// them.
class HeadlessHands final : public Hands {
 public:
  std::optional<Point> placeOf(Form& form, Control* control, std::optional<int> row) override;
  void handMove(Point place) override;
  void handDown() override;
  void handUp() override;
  void handKey(const Key& key) override;

 private:
  struct Press {
    std::int64_t time = 0;
    Point place;
  };
  /// A field that holds the press, and the row that it was made on.
  struct HeldField {
    Control* control = nullptr;
    int row = -1;
  };

  bool isSecondPress();
  bool dropped(const Control& control) const;
  /// The window of the list that lay open may have been unloaded.
  void forgetGoneList();
  /// The rows of a list that can be seen now, on the screen in twips; empty for a closed one.
  Area rowsOf(const Control& list) const;
  int rowAt(const Control& list, double x, double y) const;
  void pressField(Control& field, bool second);
  void releaseField(const HeldField& held);
  void useField(Control& field, int row);
  double x() const;
  double y() const;

  Point place_;
  std::optional<Press> lastPress_;
  HeldField held_;
  ComboBox* dropped_ = nullptr;  // its list lies open below its field
  const Control* scrolled_ = nullptr;
  int topRow_ = 0;  // of scrolled_
};

}  // namespace zelvs
