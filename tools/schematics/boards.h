#pragma once

#include <string>
#include <vector>

#include "tools/schematics/circuit.h"

namespace schematics {

// What a board can have beside what all boards have.
enum : Has {
  kFull = 1 << 0,     // two pairs a port
  kHalf = 1 << 1,     // one pair a port, its direction by the driver's enable
  kCenter = 1 << 2,   // two ports and a CPU bus
  kWide = 1 << 3,     // sixteen data lines
  kNarrow = 1 << 4,   // eight data lines
  kStation = 1 << 5,  // a station with a line part, an address and a clock of its own
  kForty = 1 << 6,    // sixteen inputs and sixteen outputs
  kFifty = 1 << 7,    // sixteen pins whose direction a switch chooses
  kRibbon = 1 << 8,   // a slave hangs on it
  kAlone = 1 << 9,    // none does
  kSlave = 1 << 10,   // it hangs on a master
  kPlain = 1 << 11,   // no PWM
  kPwm = 1 << 12,
  kCounter = 1 << 13,    // pins of the counter beside the PWM
  kUncounted = 1 << 14,  // PWM without them
};

/// The line part of the satellite boards: what an overlay replaces.
constexpr Rect kLinePlace = {0, 0, 450, 332};

/// What the chip in the middle of a sheet has of its own beside its signals.
struct Chip {
  static constexpr int kSupplyPins = 4;
  const char* name;
  Point namePlace;
  // The numbers of the pins along the upper edge and along the lower one, from the left.
  int supplyPins[kSupplyPins];
  int groundPins[kSupplyPins];
};

// Each adds what its file holds; coordinates are the sheet's unless they are given.
/// The chip's body with its supply and ground.
void addChip(Circuit& circuit, const Chip& chip);
/// The same with the pins of the line and of the strobes, which are alike on QVT40 and QVT50. The caller adds what
/// hangs on STB2, at 464, 300.
void addSatelliteChip(Circuit& circuit, const Chip& chip);
/// The switches on SSA and SSB, whose pins are at y and y + 16, with their pull-ups. The names of both parts are given.
void addTimingSwitches(Circuit& circuit, int y, const char* switches, const char* array);
/// One port, its first line at y + 60.
void addLinePort(Circuit& circuit, int y, int block);
/// Oscillator, divider and selector, to the chip's CLK pin.
void addClock(Circuit& circuit);
/// The supply's rails with their capacitors, 240 wide.
void addPower(Circuit& circuit, int x, int y);

/// QVT60. `has`: kFull or kHalf, and kWide or kNarrow.
Circuit centerBoard(Has has);
/// QVT40. `has`: kFull or kHalf with kAlone or kRibbon, or kSlave alone.
Circuit fortyBoard(Has has);
/// QVT50. `has`: kFull or kHalf; I/O mode 0 to 7.
Circuit fiftyBoard(Has has, int mode);

/// A file of the program folder and what of the circuit it shows.
struct Picture {
  std::string file;
  Circuit circuit;
  Rect place;
};

/// All pictures of all boards. An overlay is the half duplex board cut to its line part, so that it fits its board's
/// other pictures without a seam.
std::vector<Picture> allPictures();

}  // namespace schematics
