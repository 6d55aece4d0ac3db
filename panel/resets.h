#pragma once

namespace zelvs {

/// Zeroes all of chipMemory and chipMemoryShown and repaints the memory windows, so that nothing turns red.
void clearChipMemory();
/// Fills 0x000 to 0x57F with random bytes, seeded from the present date and time. The registers and what lies above
/// them stay, and chipMemoryShown is not touched: every changed byte shows as changed.
void randomizeChipMemory();
/// One of the two, as the setting memoryClear wants it.
void prepareChipMemory();
/// The boards' inputs and outputs, held buttons, cycle flags and indicators, and board 5's two modes, which are
/// settings but fall under this reset all the same. chipMemory, the scan and the other settings stay.
void resetSimulationState();
/// Registers to their reset values, with BCR and the jumper by transferSetting.
void resetCenterRegisters();

}  // namespace zelvs
