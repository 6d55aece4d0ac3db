#include "state/randomSource.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <random>

namespace zelvs {

namespace {

std::minstd_rand theGenerator;
std::deque<double> theQueue;

}  // namespace

double drawUniform() {
  if (!theQueue.empty()) {
    const double number = theQueue.front();
    theQueue.pop_front();
    return number;
  }
  constexpr auto kRange = static_cast<double>(std::minstd_rand::max() - std::minstd_rand::min() + 1);
  return static_cast<double>(theGenerator() - std::minstd_rand::min()) / kRange;
}

void reseedRandom() {
  const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
  theGenerator.seed(static_cast<std::minstd_rand::result_type>(static_cast<std::uint64_t>(ticks)));
}

void seedRandom(double seed) {
  theGenerator.seed(static_cast<std::minstd_rand::result_type>(static_cast<std::uint64_t>(seed)));
  // Neighbouring seeds give neighbouring first numbers: the first few are thrown away.
  theGenerator.discard(4);
}

void queueRandom(double number) {
  theQueue.push_back(number);
}

void clearRandom() {
  theGenerator.seed();
  theQueue.clear();
}

}  // namespace zelvs
