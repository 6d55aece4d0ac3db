#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "ui/control.h"

namespace zelvs {

/// Fires again and again while Enabled and Interval (milliseconds) is above 0. Starting, and a change of Interval,
/// counts from that moment.
class Timer : public Control {
 public:
  Timer(Form* form, std::string_view name, int index = -1);
  ~Timer() override;

  Property<int> Interval{this, 0};

  std::function<void()> onTimer;

  void propertyChanged(const void* property) override;

 private:
  friend class TimerQueue;
  std::int64_t due_ = 0;
  std::uint64_t order_ = 0;
  bool firing_ = false;
};

/// The running timers of the program, fired in the order of their due time, ties in the order of their start.
class TimerQueue {
 public:
  void start(Timer& timer, std::int64_t now);
  void stop(Timer& timer);

  /// Milliseconds on the model's clock; nothing when no timer runs.
  std::optional<std::int64_t> nextDue() const;
  /// Fires the earliest timer when it is due at or before now. False when none is.
  bool fireNext(std::int64_t now);
  std::size_t running() const { return running_.size(); }

 private:
  Timer* earliest() const;

  std::vector<Timer*> running_;
  std::uint64_t nextOrder_ = 0;
};

}  // namespace zelvs
