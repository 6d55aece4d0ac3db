#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/runTimeError.h"

/// The one store of the program. One thread, no locks: the engine, the panel and the windows read and write these
/// variables directly, and user actions always fall between two simulation steps.
namespace zelvs {

/// A 16-bit flag. It is tested against kTrue, so 1 is no true.
using Flag = std::int16_t;
inline constexpr Flag kTrue = -1;
inline constexpr Flag kFalse = 0;

inline constexpr int kChipMemorySize = 2048;

/// Apart from the arrays, so that their access stays small enough to be built into a step.
[[noreturn]] void sharedIndexError(int index, int first, int last);

/// An array with its own first index. An index outside is a run-time error.
template <class T, int First, int Last>
struct SharedArray {
  static constexpr int kFirst = First;
  static constexpr int kCount = Last - First + 1;
  T values[kCount];

  T& operator[](int index) { return values[checked(index)]; }
  const T& operator[](int index) const { return values[checked(index)]; }
  T* begin() { return values; }
  T* end() { return values + kCount; }

 private:
  static constexpr int checked(int index) {
    if (index < First || index > Last) [[unlikely]]
      sharedIndexError(index, First, Last);
    return index - First;
  }
};

#define SHARED(type, name) inline type name{};
#define SHARED_ARRAY(type, name, first, last) inline SharedArray<type, first, last> name{};
#include "state/sharedVariables.h"
#undef SHARED
#undef SHARED_ARRAY

/// One lesson of the navigation index.
struct NaviRecord {
  std::string fileName;
  std::string title;
  std::string note;
  Flag exists = kFalse;
};

inline std::string programFolder;  ///< without a separator at its end
inline std::string iniFilePath;    ///< built by readIniFile
inline std::string naviDataPath;
inline std::vector<NaviRecord> naviIndex;  ///< the list's order, from 0

enum RunMode : std::int16_t { kRun = 0, kStop = 1, kSlow = 2, kOneTime = 3, kRestarting = 4 };

/// The CPU's side of the chip, by cpuType.
inline bool wideBus() {
  return (cpuType & 1) == 0;
}
inline bool bigEndian() {
  return (cpuType & 2) != 0;
}

/// Where a byte of the CPU's address lies in chipMemory: big endian, the two bytes of a word change places.
inline int indexOfAddress(int address) {
  return bigEndian() ? address ^ 1 : address;
}

/// True while one of the two scans runs, as the engine and the registers see it.
inline bool scanActive() {
  return continuousScanActive != kFalse || oneShotScanActive != kFalse;
}

/// Steps that noise holds off after a press; the first of them is spoilt.
inline constexpr std::int16_t kNoiseHoldOffSteps = 500;

// Areas of chipMemory, one word a station in each; the control words come first.
inline constexpr int kAreaSize = 0x80;
inline constexpr int kDoArea = 0x80;
inline constexpr int kDiArea = 0x100;
inline constexpr int kCounterArea = 0x180;  ///< counter j lies (j - 1) times kAreaSize above
inline constexpr int kSerialArea = 0x480;
inline constexpr int kDrcArea = 0x500;
inline constexpr int kDataEnd = 0x580;  ///< first address behind the data area

// Register addresses in chipMemory. Low byte at the even address, high byte behind it.
inline constexpr int kScrLow = 0x580;
inline constexpr int kScrHigh = 0x581;
inline constexpr int kSsrLow = 0x582;
inline constexpr int kSsrHigh = 0x583;
inline constexpr int kHprLow = 0x584;   ///< read side
inline constexpr int kHprHigh = 0x585;  ///< write side
inline constexpr int kInt0Status = 0x586;
inline constexpr int kInt0Enable = 0x587;
inline constexpr int kInt1Status = 0x588;
inline constexpr int kInt1Enable = 0x589;
inline constexpr int kC1crLow = 0x58A;
inline constexpr int kC2crLow = 0x58C;
inline constexpr int kRegistersCleared = 0x58D;  ///< last address of SCR to C2CR
inline constexpr int kBcrLow = 0x58E;
inline constexpr int kBcrHigh = 0x58F;
inline constexpr int kChipName = 0x590;
inline constexpr int kRegistersEnd = 0x590;  ///< the CPU can read, but not write, from here on

inline constexpr int kRegisterRows = 8;
inline constexpr int kBcrRow = 8;

inline constexpr std::uint8_t kHprProtect = 0x10;   ///< in either half: hazard protect is on
inline constexpr std::uint8_t kHprHalfDone = 0x01;  ///< in either half: a buffer waits for the second half of a word
inline constexpr std::uint8_t kBcrFullDuplex = 0x10;
inline constexpr std::uint8_t kBcrResetFull = 0x13;
inline constexpr std::uint8_t kBcrResetHalf = 0x03;
inline constexpr std::uint8_t kBcrClockMask = 0x03;

/// The interrupt lines to the CPU: 0 none, 1 INT0, 2 INT1, 3 both. Any status bit drives its line; the enables act
/// only when a status is set.
inline int interruptLines() {
  return (chipMemory[kInt0Status] != 0 ? 1 : 0) + (chipMemory[kInt1Status] != 0 ? 2 : 0);
}

/// A shared number by its name, for the script. count 0: not an array.
struct VariableName {
  std::string_view name;
  void* first;
  int width;  ///< bytes of one element
  bool isSigned;
  int firstIndex;
  int count;

  std::int64_t read(int index) const;
  void write(int index, std::int64_t value) const;
  /// True when the value fits the variable's width; flags may be written as 65535 too.
  bool holds(std::int64_t value) const;
};

const std::vector<VariableName>& variableNames();

/// Puts every variable, and chance, back to what it is before the program starts.
void clearState();

}  // namespace zelvs
