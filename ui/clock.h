#pragma once

#include <cstdint>
#include <optional>

namespace zelvs {

/// The model's time, in whole milliseconds from the start of the program. It moves through this class alone, in every
/// backend: each timer fires with the clock at its due time, and while a handler runs time stands. So a session is the
/// list of its gestures with the time of each.
class Clock {
 public:
  /// The most that one wake-up moves it, in milliseconds. What a machine that slept, a stopped program or a window
  /// that was being dragged took longer is left out and not caught up.
  static constexpr std::int64_t kLongestStep = 100;

  std::int64_t now() const { return now_; }

  /// Moves on by milliseconds, 0 or more, firing the timers that fall due. When one of them closes the modal window,
  /// time stands until whoever opened it has gone on: what is left is for finish().
  void advance(std::int64_t milliseconds);
  /// Moves on by what an advance() has left; does nothing otherwise. False when time stands once more, since another
  /// modal window has been closed.
  bool finish();

  /// Moves on to a real clock's milliseconds. The first call only tells where that clock stands. While the opener of a
  /// modal window that has closed has not gone on, which it tells by goOn(), time stands here too.
  void follow(std::int64_t realTime);
  void goOn() { standing_ = false; }
  /// Milliseconds from realTime on until follow() has something to fire, 0 for at once; nothing when no timer runs.
  std::optional<std::int64_t> untilDue(std::int64_t realTime) const;

  /// Fires what is due without moving.
  void fireDue();

 private:
  bool moveTo(std::int64_t end);

  std::int64_t now_ = 0;
  std::int64_t owed_ = 0;  // where the clock has still to get to; a time that is past owes nothing
  std::optional<std::int64_t> realTime_;
  bool standing_ = false;  // a modal window has closed, and its opener has still to go on
};

}  // namespace zelvs
