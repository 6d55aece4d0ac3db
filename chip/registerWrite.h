#pragma once

#include <cstdint>
#include <optional>

#include "chip/answer.h"

namespace zelvs {

/// What the CPU puts on the bus: both bytes in a word access, one of them in a byte access.
struct RegisterValue {
  std::optional<std::uint8_t> high;
  std::optional<std::uint8_t> low;
};

/// What keeps a register from being written, whatever the value: ReadOnlyRegister, RegisterProtected, or Ok. address
/// is even, 0x580 to 0x58E.
Answer registerProtection(int address);

/// The CPU writes a register. address is even, 0x580 to 0x58E; any other is a run-time error. A refused write changes
/// nothing.
Written writeRegister(int address, const RegisterValue& value);

}  // namespace zelvs
