#include "chip/accessRules.h"

#include "bench/frmHard.h"
#include "state/state.h"

namespace zelvs {

namespace {

constexpr std::string_view kControlProtected = "スキャン中、コントロールワードの上位バイトはライトプロテクト。";
constexpr std::string_view kWrittenToBuffer = "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。";
constexpr std::string_view kReadFromBuffer = "リードテンポラリバッファからデータを取得しました。";
constexpr std::string_view kReadFromMemory = "メモリよりデータを取得しました。";
constexpr std::string_view kReadIntoBuffer = "リードテンポラリバッファにデータを格納しました。";

constexpr int kControlEnd = 0x80;  // first index behind the control words

// Either half of HPR.
constexpr std::uint8_t kHazardProtect = 0x10;
constexpr std::uint8_t kHalfDone = 0x01;

struct Range {
  int first, last;
  constexpr bool contains(int at) const { return at >= first && at <= last; }
};
// The last byte of the protected area is protected for reads only.
constexpr Range kProtectedWrites = {0x80, 0x4FE};
constexpr Range kProtectedReads = {0x80, 0x4FF};

bool startsProtectedWrite(int index) {
  const int state = chipMemory[kHprHigh] & (kHazardProtect | kHalfDone);
  return !wideBus() && state == kHazardProtect && kProtectedWrites.contains(index);
}

void forgetHalfWritten() {
  writeTempHighValid = kFalse;
  writeTempLowValid = kFalse;
  chipMemory[kHprHigh] &= static_cast<std::uint8_t>(~kHalfDone);
}

void holdHalf(int index, std::uint8_t value) {
  const bool odd = (index & 1) != 0;
  (odd ? writeTempHighByte : writeTempLowByte) = value;
  (odd ? writeTempHighValid : writeTempLowValid) = kTrue;
  chipMemory[kHprHigh] |= kHalfDone;
}

/// The half that waits goes to the word that the second half was written to, even onto that very byte.
void releaseHalf(int index) {
  const int even = index & ~1;
  if (writeTempHighValid != kFalse) chipMemory[even + 1] = writeTempHighByte;
  if (writeTempLowValid != kFalse) chipMemory[even] = writeTempLowByte;
}

}  // namespace

int indexOfAddress(int address) {
  return bigEndian() ? address ^ 1 : address;
}

std::string_view writeWord(int address, std::uint8_t high, std::uint8_t low) {
  const int even = address & ~1;
  const bool refused = even < kControlEnd && scanLampLit() && high != chipMemory[even + 1];
  chipMemory[even] = low;
  if (!refused) chipMemory[even + 1] = high;
  forgetHalfWritten();
  return refused ? kControlProtected : std::string_view();
}

std::string_view writeByte(int address, std::uint8_t value) {
  const int index = indexOfAddress(address);
  if (startsProtectedWrite(index)) {
    holdHalf(index, value);
    return kWrittenToBuffer;
  }
  // On a 16-bit bus this reaches the report byte of a control word even while a scan runs.
  chipMemory[index] = value;
  if (!wideBus()) releaseHalf(index);
  forgetHalfWritten();
  return {};
}

ByteRead readByte(int address, ReadBuffer& buffer) {
  const int index = indexOfAddress(address);
  const std::size_t half = static_cast<std::size_t>(index & 1);
  std::uint8_t& state = chipMemory[kHprLow];
  if ((state & kHalfDone) != 0) {
    state ^= kHalfDone;
    return {buffer[half], kReadFromBuffer};
  }
  // The range counts the address as the CPU gives it, before the bytes change places.
  if ((state & kHazardProtect) == 0 || !kProtectedReads.contains(address)) {
    return {chipMemory[index], kReadFromMemory};
  }
  buffer = {chipMemory[index & ~1], chipMemory[index | 1]};
  state |= kHalfDone;
  return {buffer[half], kReadIntoBuffer};
}

}  // namespace zelvs
