#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zelvs {

/// What the CPU puts on the bus: both bytes in a word access, one of them in a byte access.
struct RegisterValue {
  std::optional<std::uint8_t> high;
  std::optional<std::uint8_t> low;
};

/// What a write has to tell the user: one text or none.
struct WriteReport {
  std::string_view message;  ///< for the pop-up
  std::string_view warning;  ///< for the modal box: the register and the jumpers disagree
};

inline constexpr std::string_view kReadOnlyRegister = "このレジスタはリードオンリーです。";
inline constexpr std::string_view kRegisterProtected = "スキャン中はライトプロテクト。";

/// The CPU writes a register. address is even, 0x580 to 0x58E; any other is a run-time error. A refused write changes
/// nothing.
WriteReport writeRegister(int address, const RegisterValue& value);

}  // namespace zelvs
