#pragma once

#include <array>
#include <cstdint>

#include "chip/answer.h"

namespace zelvs {

// The chip as its CPU sees it, in the CPU type of that moment: bytes and words of data area, registers and the
// read-only rest behind them. The engine works on the same bytes directly and knows none of these rules. The interrupt
// lines, which the engine drives, are asked of state/state.h.
//
// An address is what the CPU puts on its bus, an index is a place in chipMemory: indexOfAddress() makes one of the
// other. Both run from 0 to 0x7FF; outside is a run-time error. A word is named by either of its addresses and looks
// the same to every CPU; it crosses a 16-bit bus only, and who asks for one has looked at wideBus().

/// Both bytes of a word at one moment, that of the even index first. It belongs to the reader; that it waits to be
/// asked for its second half is one bit of HPR, which all readers share.
using ReadBuffer = std::array<std::uint8_t, 2>;

struct ByteRead {
  std::uint8_t value = 0;
  ReadFrom source = ReadFrom::Memory;
};

/// Under hazard protect, which an 8-bit bus alone has, the first read takes the whole word into the buffer, and the
/// next one, whatever its address, is answered from there.
ByteRead readByte(int address, ReadBuffer& buffer);

std::uint16_t readWord(int address);

/// What a write at an index is refused with, whatever its value: a protection during a scan, or read only. Ok when
/// nothing is in its way.
Answer askWrite(int index);

/// Writes as if askWrite() had found no data area protected: a dialog stays open while a scan starts, and the ASCII
/// cells of the memory windows never ask. Registers and the read-only rest refuse by themselves.
Written writeByte(int address, std::uint8_t value);
Written writeWord(int address, std::uint16_t value);

}  // namespace zelvs
