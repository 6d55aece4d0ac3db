#include "ui/timer.h"

#include <algorithm>

#include "ui/desk.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"

namespace zelvs {

Timer::Timer(Form* form, std::string_view name, int index) : Control(form, name, index, ControlKind::Timer) {}

Timer::~Timer() {
  desk().timers.stop(*this);
}

void Timer::propertyChanged(const void* property) {
  if (property != &Interval && property != &Enabled) return;
  if (Enabled && Interval > 0) {
    desk().timers.start(*this, desk().clock.now());
  } else {
    desk().timers.stop(*this);
  }
  platform().timersChanged();
}

void TimerQueue::start(Timer& timer, std::int64_t now) {
  if (std::find(running_.begin(), running_.end(), &timer) == running_.end()) running_.push_back(&timer);
  timer.due_ = now + timer.Interval;
  timer.order_ = nextOrder_++;
}

void TimerQueue::stop(Timer& timer) {
  std::erase(running_, &timer);
}

Timer* TimerQueue::earliest() const {
  Timer* first = nullptr;
  for (Timer* timer : running_) {
    // A handler that yields is not entered a second time.
    if (timer->firing_) continue;
    if (first == nullptr || timer->due_ < first->due_ ||
        (timer->due_ == first->due_ && timer->order_ < first->order_)) {
      first = timer;
    }
  }
  return first;
}

std::optional<std::int64_t> TimerQueue::nextDue() const {
  const Timer* timer = earliest();
  if (timer == nullptr) return std::nullopt;
  return timer->due_;
}

bool TimerQueue::fireNext(std::int64_t now) {
  Timer* timer = earliest();
  if (timer == nullptr || timer->due_ > now) return false;
  // A handler that waited in a modal window is late: its timer catches up once and does not fire in a storm.
  timer->due_ = std::max(timer->due_ + timer->Interval, now);
  const Desk::Event event;
  const Deed deed("running the timer", *timer);
  timer->firing_ = true;
  if (timer->onTimer) timer->onTimer();
  timer->firing_ = false;
  return true;
}

}  // namespace zelvs
