// The link's whole behaviour, one step at a time, in the order in which it happens. One step is one station.

#include "link/simulation.h"

#include <array>
#include <cmath>

#include "bench/frmHard.h"
#include "link/outputStage.h"
#include "state/randomSource.h"
#include "state/state.h"

namespace zelvs {

namespace {

// Control word, low byte: the CPU's order.
constexpr std::uint8_t kCommandMask = 0x0F;
constexpr std::uint8_t kKeptBits = 0xC0;
constexpr std::uint8_t kSweepBits = 0x30;
constexpr std::uint8_t kSweepOnce = 0x10;
constexpr std::uint8_t kSweepEndless = 0x20;

// Control word, high byte: the engine's report.
constexpr std::uint8_t kReportSerial = 0x01;
constexpr std::uint8_t kReportDiChanged = 0x02;
constexpr std::uint8_t kReportFailed = 0x04;
constexpr std::uint8_t kReportFailedThrice = 0x08;
constexpr std::uint8_t kReportCountUnit = 0x10;
constexpr std::uint8_t kReportKeptByFailure = 0x71;
constexpr int kMostFailures = 7;

// Interrupt factors, the same bit in status and enable.
constexpr std::uint8_t kIntDiAtOnce = 0x01;
constexpr std::uint8_t kIntDiChanged = 0x02;
constexpr std::uint8_t kIntDiHalt = 0x04;  // its status holds the scan
constexpr std::uint8_t kIntCycleEnd = 0x08;
constexpr std::uint8_t kIntSerial = 0x10;
constexpr std::uint8_t kIntCheck1 = 0x20;
constexpr std::uint8_t kIntCheck2 = 0x40;
constexpr std::uint8_t kIntScanEnd = 0x80;

constexpr std::uint8_t kSsrScanning = 0x80;
constexpr std::uint8_t kSsrDiChanged = 0x01;
constexpr std::uint8_t kSsrSerial = 0x02;
constexpr std::uint8_t kSsrError = 0x04;

constexpr std::int16_t kCheckLedSteps = 5000;
constexpr std::int16_t kMonLedSteps = 2000;

constexpr int kNobody = 0;
constexpr int kLineUnusable = 6;

/// What one stretch of the cable carries: a station number and the DO word for it. An open link carries station 0,
/// which no board has.
struct LineFrame {
  int station = 0;
  int doWord = 0;
};

/// The CPU holds the scan by leaving this status bit set.
bool halted() {
  return (chipMemory[kInt0Status] & kIntDiHalt) != 0;
}

void showScanLed(bool lit) {
  frmHard->picScanLed.Picture = frmHard->ilsLED_G.image(lit ? kLit : kDark);
  frmHard->picScanLed.Tag = lit ? "1" : "0";
}

void startScan(Flag& active, int scrByte) {
  active = kTrue;
  currentStation = 1;
  finalStation = chipMemory[scrByte];
  showScanLed(true);
  // The register holds the clock's list position inverted.
  clockSetting[0] = static_cast<std::int16_t>(~chipMemory[kBcrLow] & kBcrClockMask);
  // The two counting flags are left to the end of the cycle.
  diChangedThisCycle = kFalse;
  serialRoseThisCycle = kFalse;
  errorThisCycle = kFalse;
}

/// True when the timer runs out.
bool runOut(std::int16_t& steps) {
  return steps != 0 && --steps == 0;
}

void runLedTimers() {
  // Lamps are looked up only where a timer ends: this is part of every step. The dark lamp is the same picture in the
  // red and in the green list.
  const auto darken = [](PictureBox& led) { led.Picture = frmHard->ilsLED_R.image(kDark); };
  if (runOut(chk1LedTimer)) darken(frmHard->picChkLED(0));
  if (runOut(chk2LedTimer)) darken(frmHard->picChkLED(1));
  if (runOut(monLedTimer)) darken(frmHard->picB1_LED(kIoBoard));
}

LineFrame setUpPoll() {
  controlWordAddress = static_cast<std::int16_t>(currentStation * 2);
  polledStation = currentStation;
  polledCommand = chipMemory[controlWordAddress] & kCommandMask;
  polledRetryFlag = chipMemory[controlWordAddress + 1] & kReportFailed;
  return {polledStation, chipMemory[controlWordAddress + kDoArea + 1] * 256 + chipMemory[controlWordAddress + kDoArea]};
}

/// What passes into a link: everything when its cable is plugged, nothing when it is not. Inline, as the offer below:
/// together seven calls a step, each with an index that is then known when this is compiled.
inline LineFrame passThrough(int connector, const LineFrame& frame) {
  return isOn(frmHard->picBOARD2_RXD(connector)) ? frame : LineFrame{};
}

/// The upward half of the poll: two boards that answer at once spoil each other.
void answer(int board, int station) {
  if (answeringBoard == kNobody) {
    answeringBoard = static_cast<std::int16_t>(board);
    answeringStation = static_cast<std::int16_t>(station);
    if (board != kIoBoard && serialPending[board - 1] == kTrue) answerSerialFlag = kTrue;
  } else if (board != 1) {
    // Board 1 comes first: what stands in its way can only be noise, which stays as it is.
    answeringBoard = kLineUnusable;
  }
}

inline void offerToQvt40(int board, const LineFrame& frame) {
  const int pair = (board - 1) / 2;
  const bool slave = board % 2 == 0;
  const int station = saSetting[pair] + (slave ? 1 : 0);
  if (station != frame.station || clockSetting[pair + 1] != clockSetting[0] || boardResetHeld[board] != kFalse) return;
  if (slave && !frmHard->picBridge(pair).Visible) return;
  // The downward half is judged apart: DO is latched even when the answer is lost. CLR stops only the latching.
  if (boardClrHeld[board] != kTrue && frame.doWord != boardDo[board]) {
    boardDo[board] = frame.doWord;
    driveBoardOutputs(board);
  }
  answer(board, station);
}

void offerToIoBoard(const LineFrame& frame) {
  if (saSetting[2] != frame.station || ioBoardResetHeld != kFalse || clockSetting[3] != clockSetting[0]) return;
  if (ioBoardClrHeld != kTrue && frame.doWord != ioBoardDo) {
    ioBoardDo = frame.doWord;
    ioBoardDoLow = static_cast<std::uint8_t>(frame.doWord);
    driveIoBoardOutputs();
  }
  answer(kIoBoard, saSetting[2]);
}

}  // namespace

void stepCenterChip() {
  if (chipMemory[kScrLow] != 0 && continuousScanActive == kFalse) startScan(continuousScanActive, kScrLow);
  if (chipMemory[kScrHigh] != 0 && oneShotScanActive == kFalse) startScan(oneShotScanActive, kScrHigh);
  runLedTimers();
  if (!scanActive() || halted()) return;

  const LineFrame sent = setUpPoll();
  const LineFrame atPair1 = passThrough(0, sent);
  const LineFrame atPair2 = passThrough(1, atPair1);
  const LineFrame atIoBoard = passThrough(3, atPair2);
  answerSerialFlag = kFalse;
  applyNoise();
  offerToQvt40(1, atPair1);
  offerToQvt40(2, atPair1);
  offerToQvt40(3, atPair2);
  offerToQvt40(4, atPair2);
  offerToIoBoard(atIoBoard);
  // Collision and noise look like a station that did not answer.
  if (answeringBoard == kLineUnusable) answeringBoard = kNobody;
}

void applyNoise() {
  constexpr int kScatteredHits = 10;
  constexpr int kLastHit = 14;
  constexpr int kLongScan = 15;

  // Noise enters only through the link into pair 2; an open one is a silent line and holds the hold-off too.
  if (noiseHeld == kFalse || !isOn(frmHard->picBOARD2_RXD(1))) return;
  if (noiseHoldOff != 0) {
    // A press spoils its first step and then gives 499 quiet ones.
    if (noiseHoldOff == kNoiseHoldOffSteps) {
      reseedRandom();
      answeringBoard = kLineUnusable;
      noiseHits = 0;
    }
    --noiseHoldOff;
    return;
  }
  if (noiseHits <= kScatteredHits) {
    const double range = finalStation >= kLongScan ? 13.0 : (20 - finalStation) * 13;
    if (std::nearbyint(std::abs(drawUniform() * range)) == 1) {
      ++noiseHits;
      answeringBoard = kLineUnusable;
      noiseStation = polledStation;
    }
  }
  if (noiseHits > kScatteredHits && polledStation == noiseStation) {
    // After the scattered hits the noise sits on one station, until its error count has fired both check counters.
    // The poll of the last scattered hit is the first of these.
    ++noiseHits;
    answeringBoard = kLineUnusable;
    if (noiseHits > kLastHit) noiseHits = 0;
  }
}

namespace {

enum class Source { Di, Counter, ClearedCounter, Serial };
enum class After { Advance, AdvanceUnlessHeld, EndSweep, Home };

/// What an answer carries, where it goes and what becomes of the order.
struct Command {
  Source source;
  int counter;  // 1 to 6 for the counter sources
  int base;
  After after;
};

constexpr int counterBase(int counter) {
  return kCounterArea + (counter - 1) * kAreaSize;
}

// Index: the command, low nibble of the control word.
constexpr std::array<Command, 16> kCommands = {{
    {Source::Di, 0, kDiArea, After::AdvanceUnlessHeld},
    {Source::Counter, 1, counterBase(1), After::Advance},
    {Source::Counter, 2, counterBase(2), After::Advance},
    {Source::Counter, 3, counterBase(3), After::Advance},
    {Source::Counter, 4, counterBase(4), After::Advance},
    {Source::Counter, 5, counterBase(5), After::Advance},
    {Source::Counter, 6, counterBase(6), After::EndSweep},
    {Source::Serial, 0, kSerialArea, After::Home},
    {Source::Di, 0, kDiArea, After::Home},
    {Source::ClearedCounter, 1, counterBase(1), After::Home},
    {Source::ClearedCounter, 2, counterBase(2), After::Home},
    {Source::ClearedCounter, 3, counterBase(3), After::Home},
    {Source::ClearedCounter, 4, counterBase(4), After::Home},
    {Source::ClearedCounter, 5, counterBase(5), After::Home},
    {Source::ClearedCounter, 6, counterBase(6), After::Home},
    {Source::Serial, 0, kSerialArea, After::Home},
}};

struct Word {
  std::uint8_t low = 0;
  std::uint8_t high = 0;
};

std::uint8_t& order() {
  return chipMemory[controlWordAddress];
}

std::uint8_t& report() {
  return chipMemory[controlWordAddress + 1];
}

/// Takes the word out of the answering board; reading the serial word and clearing a counter change the board.
Word readBoard(const Command& command, int board) {
  const int first = 2 * (board - 1);
  if (command.source == Source::Di) return {boardDi[first], boardDi[first + 1]};
  // The I/O board has neither counters nor a serial port: it answers 0 and nothing of it changes.
  if (board == kIoBoard) return {};
  if (command.source == Source::Serial) {
    // The serial word itself stays for the next read.
    frmHard->picSE(board - 1).Picture = frmHard->ilsLED_G.image(kDark);
    serialPending[board - 1] = kFalse;
    return {serialData[first], serialData[first + 1]};
  }
  const int counter = 12 * (board - 1) + 2 * (command.counter - 1);
  if (command.source == Source::ClearedCounter) {
    boardCounters[counter] = 0;
    boardCounters[counter + 1] = 0;
  }
  return {boardCounters[counter], boardCounters[counter + 1]};
}

void homeOrder() {
  order() = order() & kKeptBits;
}

void endSweep() {
  const std::uint8_t sweep = order() & kSweepBits;
  if (sweep == kSweepEndless) {
    order() = order() & (kKeptBits | kSweepBits);
  } else if (sweep != 0) {
    homeOrder();
  }
}

void finishOrder(After after, bool heldBack) {
  switch (after) {
    case After::Advance:
      advanceControlWord();
      break;
    case After::AdvanceUnlessHeld:
      if (!heldBack) advanceControlWord();
      break;
    case After::EndSweep:
      endSweep();
      break;
    case After::Home:
      homeOrder();
      break;
  }
}

/// Stores a byte where it differs; the result is what differed.
std::uint8_t storeByte(int address, std::uint8_t value) {
  std::uint8_t& place = chipMemory[address];
  const auto difference = static_cast<std::uint8_t>(place ^ value);
  if (difference != 0) place = value;
  return difference;
}

void reportAnswer(const Command& command) {
  if (command.source == Source::Serial || answerSerialFlag != kTrue) {
    report() = 0;
    return;
  }
  if ((report() & kReportSerial) == 0) serialRoseThisCycle = kTrue;
  report() = kReportSerial;
}

void reportDiChange(const Word& difference) {
  const int mask = kDrcArea + 2 * answeringStation;
  if ((difference.low & chipMemory[mask]) == 0 && (difference.high & chipMemory[mask + 1]) == 0) return;
  report() |= kReportDiChanged;
  diChangedThisCycle = kTrue;
  if ((chipMemory[kInt0Enable] & kIntDiAtOnce) != 0) {
    chipMemory[kInt0Status] |= kIntDiAtOnce;
    refreshIntLine();
  }
}

void takeAnswer() {
  const int board = answeringBoard;
  const Command& command = kCommands[polledCommand];
  const bool di = command.source == Source::Di;
  // Without the handshake switch the first DI after a failure is not trusted and moves nothing.
  const bool heldBack = di && polledRetryFlag != 0 && !isOn(frmHard->picSSB(board - 1));
  const Word value = readBoard(command, board);
  finishOrder(command.after, heldBack);

  Word difference;
  if (!heldBack) {
    const int target = command.base + 2 * answeringStation;
    difference = {storeByte(target, value.low), storeByte(target + 1, value.high)};
  }
  reportAnswer(command);
  if (di) reportDiChange(difference);
}

void bookFailure() {
  std::uint8_t& p = report();
  int count = p / kReportCountUnit & kMostFailures;
  if (count < kMostFailures) {
    p = static_cast<std::uint8_t>((p & kReportKeptByFailure) + kReportCountUnit);
    ++count;
    // The seventh failure leaves the flag alone: SSR shows the gap.
    if (count != kMostFailures) errorThisCycle = kTrue;
    if (count == 1) countCheck1();
    if (count == 3) countCheck2();
  }
  p |= kReportFailed;
  if (count > 2) p |= kReportFailedThrice;
}

void setScanEndStatus() {
  if ((chipMemory[kInt0Enable] & kIntScanEnd) != 0) chipMemory[kInt0Status] |= kIntScanEnd;
  if ((chipMemory[kInt1Enable] & kIntScanEnd) != 0) chipMemory[kInt1Status] |= kIntScanEnd;
}

void endCycle() {
  evaluateCycleEnd();
  std::uint8_t seen = 0;
  if (diChangedThisCycle == kTrue) seen |= kSsrDiChanged;
  if (serialRoseThisCycle == kTrue) seen |= kSsrSerial;
  if (errorThisCycle == kTrue) seen |= kSsrError;
  chipMemory[kSsrHigh] = seen;
  diChangedThisCycle = kFalse;
  serialRoseThisCycle = kFalse;
  errorThisCycle = kFalse;
  c1CountedThisCycle = kFalse;
  c2CountedThisCycle = kFalse;
}

void endScan(Flag& active, int scrByte) {
  active = kFalse;
  chipMemory[scrByte] = 0;
  chipMemory[kSsrLow] = 0;
  showScanLed(false);
  setScanEndStatus();
  endCycle();
}

void pollNextStation() {
  ++currentStation;
  chipMemory[kSsrLow] = currentStation | kSsrScanning;
}

void advanceOneShotScan() {
  if (finalStation == currentStation) {
    // The station stays where the scan ended.
    endScan(oneShotScanActive, kScrHigh);
  } else {
    pollNextStation();
  }
}

void advanceContinuousScan() {
  if (finalStation != currentStation) {
    pollNextStation();
  } else if (chipMemory[kScrLow] != 0) {
    currentStation = 1;
    chipMemory[kSsrLow] = 1 | kSsrScanning;
    finalStation = chipMemory[kScrLow];
    endCycle();
  } else {
    currentStation = 0;
    endScan(continuousScanActive, kScrLow);
  }
}

/// A check counter with its lamp.
void countCheck(int counterAddress, PictureBox& led, std::int16_t& ledTimer, Flag& counted) {
  if (chipMemory[counterAddress] != 255) ++chipMemory[counterAddress];
  led.Picture = frmHard->ilsLED_R.image(kLit);
  ledTimer = kCheckLedSteps;
  counted = kTrue;
}

}  // namespace

void stepSatellites() {
  if (answeringBoard == kIoBoard) {
    frmHard->picB1_LED(kIoBoard).Picture = frmHard->ilsLED_G.image(kLit);
    monLedTimer = kMonLedSteps;
  }
  if (!scanActive() || halted()) return;
  if (answeringBoard == kNobody) {
    bookFailure();
  } else {
    takeAnswer();
  }
  answeringBoard = kNobody;
  if (oneShotScanActive == kTrue) advanceOneShotScan();
  if (continuousScanActive == kTrue) advanceContinuousScan();
}

void countCheck1() {
  countCheck(kC1crLow, frmHard->picChkLED(0), chk1LedTimer, c1CountedThisCycle);
}

void countCheck2() {
  countCheck(kC2crLow, frmHard->picChkLED(1), chk2LedTimer, c2CountedThisCycle);
}

void advanceControlWord() {
  const std::uint8_t sweep = order() & kSweepBits;
  if (sweep == kSweepOnce) {
    homeOrder();
  } else if (sweep != 0) {
    ++order();
  }
}

void evaluateCycleEnd() {
  std::uint8_t factors = kIntCycleEnd;
  // SSR still holds the cycle before: a DI change reported there blocks the serial factor.
  if (serialRoseThisCycle == kTrue && (chipMemory[kSsrHigh] & kSsrDiChanged) == 0) factors |= kIntSerial;
  if (c1CountedThisCycle == kTrue) factors |= kIntCheck1;
  if (c2CountedThisCycle == kTrue) factors |= kIntCheck2;
  const std::uint8_t diFactors = diChangedThisCycle == kTrue ? kIntDiChanged | kIntDiHalt : 0;
  chipMemory[kInt0Status] |= static_cast<std::uint8_t>(chipMemory[kInt0Enable] & (factors | diFactors));
  chipMemory[kInt1Status] |= static_cast<std::uint8_t>(chipMemory[kInt1Enable] & factors);
  refreshIntLine();
}

void refreshIntLine() {
  constexpr std::int16_t kNoLine = 1;
  intLinePicture = static_cast<std::int16_t>(kNoLine + interruptLines());
  if (intLinePicture == intLinePictureShown) return;
  frmHard->picInt.Picture = frmHard->ilsInt.image(intLinePicture);
  frmHard->picInt.Visible = intLinePicture != kNoLine;
  intLinePictureShown = intLinePicture;
}

void simulationStep() {
  stepCenterChip();
  stepSatellites();
}

}  // namespace zelvs
