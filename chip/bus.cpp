#include "chip/bus.h"

#include "chip/dataWrite.h"
#include "chip/registerWrite.h"
#include "state/state.h"

namespace zelvs {

namespace {

enum class Area { Data, Registers, ReadOnly };

Area areaOf(int index) {
  if (index < 0 || index >= kChipMemorySize) sharedIndexError(index, 0, kChipMemorySize - 1);
  return index < kDataEnd ? Area::Data : index < kRegistersEnd ? Area::Registers : Area::ReadOnly;
}

/// The range counts the address as the CPU gives it, before the bytes change places.
bool startsProtectedWord(int address) {
  return (chipMemory[kHprLow] & kHprProtect) != 0 && address >= kDoArea && address < kDrcArea;
}

}  // namespace

ByteRead readByte(int address, ReadBuffer& buffer) {
  const int index = indexOfAddress(address);
  const std::uint8_t inMemory = chipMemory[index];
  const std::size_t half = static_cast<std::size_t>(index & 1);
  std::uint8_t& state = chipMemory[kHprLow];
  if (wideBus()) return {inMemory, ReadFrom::Memory};
  if ((state & kHprHalfDone) != 0) {
    state ^= kHprHalfDone;
    return {buffer[half], ReadFrom::Buffer};
  }
  if (!startsProtectedWord(address)) return {inMemory, ReadFrom::Memory};
  buffer = {chipMemory[index & ~1], chipMemory[index | 1]};
  state |= kHprHalfDone;
  return {inMemory, ReadFrom::MemoryAndKept};
}

std::uint16_t readWord(int address) {
  return static_cast<std::uint16_t>(chipMemory[address | 1] << 8 | chipMemory[address & ~1]);
}

Answer askWrite(int index) {
  switch (areaOf(index)) {
    case Area::Data:
      return dataProtection(index);
    case Area::Registers:
      return registerProtection(index & ~1);
    case Area::ReadOnly:
      break;
  }
  return Answer::ReadOnlyArea;
}

Written writeByte(int address, std::uint8_t value) {
  const int index = indexOfAddress(address);
  const bool odd = (index & 1) != 0;
  switch (areaOf(index)) {
    case Area::Data:
      return {writeDataByte(index, value)};
    case Area::Registers:
      return writeRegister(index & ~1, odd ? RegisterValue{value, {}} : RegisterValue{{}, value});
    case Area::ReadOnly:
      break;
  }
  return {Answer::ReadOnlyArea};
}

Written writeWord(int address, std::uint16_t value) {
  const int even = address & ~1;
  switch (areaOf(even)) {
    case Area::Data:
      return {writeDataWord(even, value)};
    case Area::Registers:
      return writeRegister(even, {static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)});
    case Area::ReadOnly:
      break;
  }
  return {Answer::ReadOnlyArea};
}

}  // namespace zelvs
