#pragma once

#include <string>

#include "link/simulation.h"
#include "state/randomSource.h"
#include "support/program.h"
#include "support/userFixture.h"

namespace zelvs {

/// Numbers that a test queued and nobody drew would reach the next test.
inline void forgetQueuedNumbers() {
  constexpr double kLast = -1;
  queueRandom(kLast);
  while (drawUniform() != kLast) {
  }
}

/// The whole program with all cables plugged, both slaves in place and cleared memory, before the first step: boards
/// 1 to 5 answer at stations 1 to 5. No scan runs until a test starts one.
class EngineTest : public ProgramTest {
 protected:
  void SetUp() override {
    start(settings());
    chipMemory[kScrLow] = 0;
  }
  void TearDown() override { forgetQueuedNumbers(); }

  virtual std::map<std::string, std::string> settings() const { return {}; }

  static void steps(int count) {
    for (int i = 0; i < count; ++i)
      simulationStep();
  }

  /// One poll of a station in the middle of a long continuous scan.
  static void poll(int station) {
    chipMemory[kScrLow] = 63;
    continuousScanActive = kTrue;
    oneShotScanActive = kFalse;
    finalStation = 63;
    currentStation = static_cast<std::uint8_t>(station);
    simulationStep();
  }

  /// One poll that is the last of its cycle.
  static void pollLast(int station) {
    chipMemory[kScrLow] = static_cast<std::uint8_t>(station);
    continuousScanActive = kTrue;
    oneShotScanActive = kFalse;
    finalStation = static_cast<std::int16_t>(station);
    currentStation = static_cast<std::uint8_t>(station);
    simulationStep();
  }

  static std::uint8_t& order(int station) { return chipMemory[2 * station]; }
  static std::uint8_t& report(int station) { return chipMemory[2 * station + 1]; }
  static int word(int address) { return chipMemory[address] + 256 * chipMemory[address + 1]; }
  static void putWord(int address, int value) {
    chipMemory[address] = static_cast<std::uint8_t>(value);
    chipMemory[address + 1] = static_cast<std::uint8_t>(value >> 8);
  }
  static void putDo(int station, int value) { putWord(0x80 + 2 * station, value); }
  static int diOf(int station) { return word(0x100 + 2 * station); }
  static void putDi(int board, int value) {
    boardDi[2 * (board - 1)] = static_cast<std::uint8_t>(value);
    boardDi[2 * (board - 1) + 1] = static_cast<std::uint8_t>(value >> 8);
  }

  /// True when the last poll of the station was answered.
  static bool answered(int station) { return (report(station) & 0x04) == 0; }
  /// Polls the station with a clean report byte and says whether somebody answered.
  static bool answers(int station) {
    report(station) = 0;
    poll(station);
    return answered(station);
  }

  static void cutLink(int connector) { frmHard->picBOARD2_RXD(connector).Tag = "0"; }
};

}  // namespace zelvs
