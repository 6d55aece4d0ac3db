#include "panel/resets.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <string_view>

#include "monitor/windowRefresh.h"
#include "state/randomSource.h"
#include "state/state.h"

namespace zelvs {

namespace {

/// The present moment's digits "yyyymmddhhmmss", read as a number.
double presentMoment() {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  std::array<char, 15> digits{};
  std::strftime(digits.data(), digits.size(), "%Y%m%d%H%M%S", local);
  return std::strtod(digits.data(), nullptr);
}

template <class... Variables>
void zero(Variables&... variables) {
  (
      [](auto& variable) {
        if constexpr (requires { variable.begin(); }) {
          std::fill(variable.begin(), variable.end(), 0);
        } else {
          variable = 0;
        }
      }(variables),
      ...);
}

}  // namespace

void clearChipMemory() {
  zero(chipMemory, chipMemoryShown);
  repaintMemoryWindows();
}

void randomizeChipMemory() {
  seedRandom(presentMoment());
  for (int address = 0; address < kDataEnd; ++address) {
    chipMemory[address] = static_cast<std::uint8_t>(drawUniform() * 256);
  }
}

void prepareChipMemory() {
  if (memoryClear != 0) {
    clearChipMemory();
  } else {
    randomizeChipMemory();
  }
}

void resetSimulationState() {
  zero(intLinePictureShown, intLinePicture, chk1LedTimer, chk2LedTimer, monLedTimer);
  zero(diChangedThisCycle, serialRoseThisCycle, errorThisCycle, c1CountedThisCycle, c2CountedThisCycle);
  zero(writeTempHighValid, writeTempLowValid, writeTempHighByte, writeTempLowByte);
  zero(boardDo, ioBoardDo, ioBoardDoLow);
  zero(boardClrHeld, ioBoardClrHeld, boardResetHeld, ioBoardResetHeld);
  zero(serialPending, serialData, serialEditBoard);
  zero(boardDi, boardCounters);
  zero(noiseHeld, noiseHoldOff);
  zero(ioBoardMode, ioBoardCounterMode, beltFrame, triangleFrame, motorReverse);
}

void resetCenterRegisters() {
  constexpr std::string_view kName = "QVT60 ";
  std::fill(&chipMemory[kScrLow], &chipMemory[kRegistersCleared] + 1, std::uint8_t{0});
  std::copy(kName.begin(), kName.end(), &chipMemory[kChipName]);
  chipMemory[kBcrHigh] = 0;
  const bool half = transferSetting[0] != 0;
  boardFullHalf = half ? 0 : kBcrFullDuplex;
  chipMemory[kBcrLow] = half ? kBcrResetHalf : kBcrResetFull;
  // A reset does not flag this byte as changed.
  registerLowShown[kBcrRow] = chipMemory[kBcrLow];
  refreshRegisterWindow();
}

}  // namespace zelvs
