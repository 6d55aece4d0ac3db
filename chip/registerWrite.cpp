#include "chip/registerWrite.h"

#include <array>
#include <string>

#include "link/simulation.h"
#include "state/state.h"
#include "text/hexText.h"

namespace zelvs {

namespace {

// What a write can reach in a register; the rest keeps what it held.
constexpr std::uint8_t kStationBits = 0x3F;
constexpr std::uint8_t kInt0EnableBits = 0xFF;
constexpr std::uint8_t kInt1EnableBits = 0xF8;
constexpr std::uint8_t kBcrLowBits = kBcrFullDuplex | kBcrClockMask;
constexpr std::uint8_t kBcrHighBits = 0x07;
constexpr std::uint8_t kClearCount = 0x01;

bool registerFullDuplex() {
  return (chipMemory[kBcrLow] & kBcrFullDuplex) != 0;
}

bool jumpersDisagree() {
  return (chipMemory[kBcrLow] & kBcrFullDuplex) != boardFullHalf;
}

/// A byte that isn't written asks for nothing, as 0 does: so one rule serves words and bytes.
bool scanRefused(int high, int low) {
  const bool continuous = continuousScanActive != kFalse;
  const bool oneShot = oneShotScanActive != kFalse;
  const bool asksOneShot = high != 0;
  const bool asksContinuous = low != 0;
  // In full duplex a scan cannot end at its first station.
  const bool tooShort = registerFullDuplex() && ((high & kStationBits) == 1 || (low & kStationBits) == 1);
  return (asksOneShot && (asksContinuous || continuous || oneShot)) || (asksContinuous && oneShot) || tooShort;
}

Written writeScr(const RegisterValue& value) {
  if (scanRefused(value.high.value_or(0), value.low.value_or(0))) return {Answer::BadValue};
  if (jumpersDisagree()) {
    return {!value.low ? Answer::ScrHighMismatch : !value.high ? Answer::ScrLowMismatch : Answer::ScrWordMismatch};
  }
  if (value.low) chipMemory[kScrLow] = *value.low & kStationBits;
  if (value.high) chipMemory[kScrHigh] = *value.high & kStationBits;
  return {};
}

Written writeSsr(const RegisterValue& /*value*/) {
  return {registerProtection(kSsrLow)};
}

void setHpr(int address, std::uint8_t value) {
  chipMemory[address] = static_cast<std::uint8_t>((value & kHprProtect) | (chipMemory[address] & kHprHalfDone));
}

Written writeHpr(const RegisterValue& value) {
  const std::uint8_t readSide = chipMemory[kHprLow];
  if (value.high) setHpr(kHprHigh, *value.high);
  if (value.low) setHpr(kHprLow, *value.low);
  return {Answer::Ok, chipMemory[kHprLow] != readSide};
}

/// The high byte enables, a 1 in the low byte clears its status bit.
Written writeInterrupt(int status, std::uint8_t enableBits, const RegisterValue& value) {
  if (value.high) chipMemory[status + 1] = *value.high & enableBits;
  if (value.low) {
    chipMemory[status] &= static_cast<std::uint8_t>(~*value.low);
    refreshIntLine();
  }
  return {};
}

Written writeInt0r(const RegisterValue& value) {
  return writeInterrupt(kInt0Status, kInt0EnableBits, value);
}

Written writeInt1r(const RegisterValue& value) {
  return writeInterrupt(kInt1Status, kInt1EnableBits, value);
}

Written writeCount(int address, const RegisterValue& value) {
  if (value.low && (*value.low & kClearCount) != 0) chipMemory[address] = 0;
  return {};
}

Written writeC1cr(const RegisterValue& value) {
  return writeCount(kC1crLow, value);
}

Written writeC2cr(const RegisterValue& value) {
  return writeCount(kC2crLow, value);
}

Written writeBcr(const RegisterValue& value) {
  if (const Answer protection = registerProtection(kBcrLow); protection != Answer::Ok) return {protection};
  if (value.high) chipMemory[kBcrHigh] = *value.high & kBcrHighBits;
  if (!value.low) return {};
  chipMemory[kBcrLow] = *value.low & kBcrLowBits;
  // This warning comes after the fact: the value stands.
  return {jumpersDisagree() ? Answer::BcrMismatch : Answer::Ok};
}

/// Index: half the distance from the first register.
constexpr std::array kWriters = {writeScr, writeSsr, writeHpr, writeInt0r, writeInt1r, writeC1cr, writeC2cr, writeBcr};
static_assert(kWriters.size() == kRegisterRows);

}  // namespace

Answer registerProtection(int address) {
  if (address == kSsrLow) return Answer::ReadOnlyRegister;
  return address == kBcrLow && scanActive() ? Answer::RegisterProtected : Answer::Ok;
}

Written writeRegister(int address, const RegisterValue& value) {
  if (address < kScrLow || address > kBcrLow || address % 2 != 0) {
    runTimeError("there is no register at the address " + hexText(static_cast<unsigned>(address), 3) + "H");
  }
  return kWriters[static_cast<std::size_t>(address - kScrLow) / 2](value);
}

}  // namespace zelvs
