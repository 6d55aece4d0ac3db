#include "chip/dataWrite.h"

#include "bench/frmHard.h"
#include "state/state.h"

namespace zelvs {

namespace {

bool startsProtectedWord(int index) {
  const int state = chipMemory[kHprHigh] & (kHprProtect | kHprHalfDone);
  // The last byte in front of DRC is under hazard protect for reads only.
  return !wideBus() && state == kHprProtect && index >= kDoArea && index < kDrcArea - 1;
}

void holdHalf(int index, std::uint8_t value) {
  const bool odd = (index & 1) != 0;
  (odd ? writeTempHighByte : writeTempLowByte) = value;
  (odd ? writeTempHighValid : writeTempLowValid) = kTrue;
  chipMemory[kHprHigh] |= kHprHalfDone;
}

/// The half that waits goes to the word that the second half was written to, even onto that very byte.
void releaseHalf(int index) {
  const int even = index & ~1;
  if (writeTempHighValid != kFalse) chipMemory[even + 1] = writeTempHighByte;
  if (writeTempLowValid != kFalse) chipMemory[even] = writeTempLowByte;
}

void forgetHalf() {
  writeTempHighValid = kFalse;
  writeTempLowValid = kFalse;
  chipMemory[kHprHigh] &= static_cast<std::uint8_t>(~kHprHalfDone);
}

}  // namespace

Answer dataProtection(int index) {
  if (!scanLampLit()) return Answer::Ok;
  // A 16-bit bus may name a report byte: writeDataWord() keeps it.
  if (!wideBus() && index < kDoArea && index % 2 == 1) return Answer::ReportProtected;
  return index >= kDiArea && index < kDrcArea ? Answer::FetchedProtected : Answer::Ok;
}

Answer writeDataByte(int index, std::uint8_t value) {
  if (startsProtectedWord(index)) {
    holdHalf(index, value);
    return Answer::Held;
  }
  // On a 16-bit bus this reaches the report byte of a control word even while a scan runs.
  chipMemory[index] = value;
  if (!wideBus()) releaseHalf(index);
  forgetHalf();
  return Answer::Ok;
}

Answer writeDataWord(int even, std::uint16_t value) {
  const auto low = static_cast<std::uint8_t>(value);
  const auto high = static_cast<std::uint8_t>(value >> 8);
  const bool kept = even < kDoArea && scanLampLit() && high != chipMemory[even + 1];
  chipMemory[even] = low;
  if (!kept) chipMemory[even + 1] = high;
  forgetHalf();
  return kept ? Answer::ReportKept : Answer::Ok;
}

}  // namespace zelvs
