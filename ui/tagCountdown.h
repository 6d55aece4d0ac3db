#pragma once

#include <string>

#include "ui/property.h"

namespace zelvs {

/// Counts the seconds that a Tag holds down by one; a Tag without any stays as it is. True when it has reached 0 now.
bool countDown(Property<std::string>& tag);

}  // namespace zelvs
