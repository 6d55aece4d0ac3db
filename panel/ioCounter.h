#pragma once

namespace zelvs {

/// Counter and button of board 5 in picCounter, and its second button, which clears.
inline constexpr int kIoCounter = 24;
inline constexpr int kIoCounterClear = 25;

/// Twelve bits of board 5's counter show in its DI word, above them four switches.
void mirrorIoCounter();
void clearIoCounter();

}  // namespace zelvs
