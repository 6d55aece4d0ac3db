#include "panel/ioCounter.h"

#include "state/state.h"

namespace zelvs {

namespace {

constexpr int kLowByte = 2 * kIoCounter;
constexpr int kHighByte = kLowByte + 1;

}  // namespace

void mirrorIoCounter() {
  boardDi[8] = boardCounters[kLowByte];
  boardDi[9] = static_cast<std::uint8_t>((boardCounters[kHighByte] & 0x0F) | (boardDi[9] & 0xF0));
}

void clearIoCounter() {
  boardCounters[kLowByte] = 0;
  boardCounters[kHighByte] = 0;
  mirrorIoCounter();
}

}  // namespace zelvs
