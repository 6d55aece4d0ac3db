#include "ui/clock.h"

#include <algorithm>
#include <utility>

#include "ui/desk.h"

namespace zelvs {

void Clock::advance(std::int64_t milliseconds) {
  moveTo(now_ + milliseconds);
}

bool Clock::finish() {
  return owed_ <= now_ || moveTo(std::exchange(owed_, 0));
}

bool Clock::moveTo(std::int64_t end) {
  const Form* modal = desk().modal();
  for (auto due = desk().timers.nextDue(); due && *due <= end; due = desk().timers.nextDue()) {
    now_ = std::max(now_, *due);
    desk().timers.fireNext(now_);
    if (modal != nullptr && desk().modal() != modal) {
      owed_ = end;
      standing_ = true;
      return false;
    }
  }
  // A modal window inside a handler may have moved the clock past the end already.
  now_ = std::max(now_, end);
  return true;
}

void Clock::follow(std::int64_t realTime) {
  const std::int64_t before = std::exchange(realTime_, realTime).value_or(realTime);
  const std::int64_t step = std::clamp<std::int64_t>(realTime - before, 0, kLongestStep);
  if (!standing_ && finish()) {
    advance(step);
  } else {
    owed_ = std::max(owed_, now_) + step;
  }
}

std::optional<std::int64_t> Clock::untilDue(std::int64_t realTime) const {
  if (owed_ > now_) return 0;
  const auto due = desk().timers.nextDue();
  if (!due) return std::nullopt;
  return std::max<std::int64_t>(*due - now_ - (realTime - realTime_.value_or(realTime)), 0);
}

void Clock::fireDue() {
  while (desk().timers.fireNext(now_)) {
  }
}

}  // namespace zelvs
