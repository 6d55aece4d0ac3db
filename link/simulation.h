#pragma once

namespace zelvs {

/// One step of the link: the center polls one station, which answers or fails. Allocates no memory.
void simulationStep();

/// First half: starts scans, runs the LED timers, puts a station on the line and settles who answers.
void stepCenterChip();
/// Second half: takes the answer or books the failure, moves to the next station, ends the cycle.
void stepSatellites();

/// Spoils the step while the noise button is held. Called once a step, before the answer is decided.
void applyNoise();

/// Counts a station that has begun to fail in C1CR, one that has failed three times running in C2CR. Both stop at 255.
void countCheck1();
void countCheck2();
/// Applies the sweep mode to the polled control word.
void advanceControlWord();
/// Turns what the cycle saw into interrupt status.
void evaluateCycleEnd();
/// Shows on picInt which of the two interrupt lines are driven. Also called after the CPU clears status bits.
void refreshIntLine();

}  // namespace zelvs
