#include "ui/tagCountdown.h"

#include <cstdlib>

namespace zelvs {

bool countDown(Property<std::string>& tag) {
  const int seconds = std::atoi(tag.get().c_str());
  if (seconds <= 0) return false;
  tag = std::to_string(seconds - 1);
  return seconds == 1;
}

}  // namespace zelvs
