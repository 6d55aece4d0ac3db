#pragma once

namespace zelvs {

/// Puts the latched DO word of board 1 to 4 on its sixteen LEDs.
void driveBoardOutputs(int board);
/// Puts board 5's DO word on the pins that its I/O mode makes outputs and, in modes 6 and 7, on the motor board.
void driveIoBoardOutputs();
void drivePwm();
/// Turns the belt one position; the timer of the motor board.
void turnBelt();

}  // namespace zelvs
