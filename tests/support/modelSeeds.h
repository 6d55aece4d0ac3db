#pragma once

#include <gtest/gtest.h>

#include <cstdlib>

namespace zelvs {

/// Seeds 1, 2, ... of a test beside a plain model: a few, or as many as it takes for ZELVS_MODEL_STEPS steps in all.
inline auto modelSeeds(unsigned few, unsigned stepsOfOne) {
  const char* wanted = std::getenv("ZELVS_MODEL_STEPS");
  const unsigned seeds =
      wanted == nullptr ? few : static_cast<unsigned>((std::atoll(wanted) + stepsOfOne - 1) / stepsOfOne);
  return testing::Range(1U, 1 + seeds);
}

}  // namespace zelvs
