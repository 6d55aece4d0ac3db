#pragma once

#include <cstdint>

#include "chip/answer.h"

namespace zelvs {

// Writes of the CPU to the data area, by index of chipMemory. What an index from kDataEnd on means is the bus's to ask.

/// What a scan keeps from being written, whatever the value: ReportProtected, FetchedProtected, or Ok.
Answer dataProtection(int index);

/// Under hazard protect, which an 8-bit bus alone has, the first byte goes into the write buffer (Held) and the next
/// one takes it along into its own word. Does not ask dataProtection().
Answer writeDataByte(int index, std::uint8_t value);

/// ReportKept when a scan keeps the high byte of a control word from changing, Ok otherwise. even: index of the low
/// byte. The write buffer is emptied. Does not ask dataProtection().
Answer writeDataWord(int even, std::uint16_t value);

}  // namespace zelvs
