#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zelvs {

// How the CPU reaches the chip's memory. The engine works on the same bytes and knows none of these rules.
//
// An address is what the CPU puts on its bus, an index is a place in chipMemory: on a big-endian CPU the two bytes of
// a word change places. Both run from 0 to 0x7FF.

/// Where the byte of an address lies in chipMemory, by cpuType.
int indexOfAddress(int address);

/// The CPU writes a word; an odd address means the word that holds it. Returns the text for the user, empty when all
/// was written: while a scan runs, the high byte of a control word keeps its value.
std::string_view writeWord(int address, std::uint8_t high, std::uint8_t low);

/// The CPU writes a byte. Returns the text for the user, empty when the byte went to memory: under hazard protect the
/// first half of a word waits in the write buffer for the second.
std::string_view writeByte(int address, std::uint8_t value);

/// The read buffer: both bytes of a word at one moment, that of the even index first.
using ReadBuffer = std::array<std::uint8_t, 2>;

struct ByteRead {
  std::uint8_t value = 0;
  std::string_view guide;  ///< where the byte came from, for the user
};

/// The CPU of an 8-bit bus reads a byte. Under hazard protect the first read takes the whole word into the buffer, and
/// the next one, whatever its address, is answered from there.
ByteRead readByte(int address, ReadBuffer& buffer);

}  // namespace zelvs
