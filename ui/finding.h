#pragma once

#include <string>

namespace zelvs {

/// One thing that a look over an installation has found: what is right, or what is wrong and what comes of it.
struct Finding {
  bool right;
  std::string text;  ///< one line
};

}  // namespace zelvs
