// The chip in the middle of every sheet, and what the satellite boards' chips have alike: the line's pins, the strobes
// and the switches of their timing.

#include "tools/schematics/boards.h"

namespace schematics {

namespace {

constexpr int kSupplyPitch = 32;
constexpr int kSupplyLeft = 497;
constexpr int kTop = 50;
constexpr int kBottom = 756;

constexpr Part kBodyParts[] = {
    {kAlways, Kind::kBox, 480, kTop, 130, kBottom - kTop},
    {kAlways, Kind::kSupply, 545, 36},
    {kAlways, Kind::kGround, 545, 770},
};
constexpr Net kBodyNets[] = {
    {kAlways, {{{497, 36}, {593, 36}}}},
    {kAlways, {{{497, 36}, {497, kTop}}}, Chip::kSupplyPins, kSupplyPitch},
    {kAlways, {{{497, 770}, {593, 770}}}},
    {kAlways, {{{497, kBottom}, {497, 770}}}, Chip::kSupplyPins, kSupplyPitch},
};

constexpr Part kSatelliteParts[] = {
    {kAlways, Kind::kTest, 464, 260, 0, 0, "TP1"},
};
constexpr Pin kSatellitePins[] = {
    {kAlways, Side::kLeft, 480, 76, "RXD", 1},   {kAlways, Side::kLeft, 480, 164, "TXE", 2},
    {kAlways, Side::kLeft, 480, 208, "TXD", 3},  {kAlways, Side::kLeft, 480, 260, "STB1", 4},
    {kAlways, Side::kLeft, 480, 300, "STB2", 5},
};
constexpr Net kSatelliteNets[] = {
    {kAlways, {{{464, 260}, {480, 260}}}},
    {kAlways, {{{464, 300}, {480, 300}}}},
};

// SSA's pin is at y = 0. The array stands under the switches.
constexpr int kArrayDown = 40;
constexpr Part kTimingParts[] = {
    {kAlways, Kind::kFrame, 686, -7, 30, 30, ""},
    {kAlways, Kind::kClosed, 674, 0, 54, 0, "", "", 2, 0, 16},
    {kAlways, Kind::kGround, 774, 26},
    {kAlways, Kind::kSupply, 728, kArrayDown + 9},
};
constexpr Pin kTimingPins[] = {
    {kAlways, Side::kTop, 636, kArrayDown, "", 0, 2, 14},
    {kAlways, Side::kRight, 710, kArrayDown + 9, ""},
};
constexpr Net kTimingNets[] = {
    {kAlways, {{{610, 0}, {674, 0}}}, 2, 0, 16},
    {kAlways, {{{728, 0}, {774, 0}, {774, 26}}}},
    {kAlways, {{{728, 16}, {774, 16}}}},
    {kAlways, {{{636, kArrayDown}, {636, 0}}}, 2, 14, 0, {0, 16}},
    {kAlways, {{{710, kArrayDown + 9}, {728, kArrayDown + 9}}}},
};

}  // namespace

void addChip(Circuit& circuit, const Chip& chip) {
  circuit.add({kBodyParts, {}, kBodyNets});
  circuit.add(Part{kAlways, Kind::kHead, chip.namePlace.x, chip.namePlace.y, 0, 0, chip.name});
  for (int i = 0; i < Chip::kSupplyPins; ++i) {
    const int x = kSupplyLeft + i * kSupplyPitch;
    circuit.add(Pin{kAlways, Side::kTop, x, kTop, "VCC", chip.supplyPins[i]});
    circuit.add(Pin{kAlways, Side::kBottom, x, kBottom, "GND", chip.groundPins[i]});
  }
}

void addSatelliteChip(Circuit& circuit, const Chip& chip) {
  addChip(circuit, chip);
  circuit.add({kSatelliteParts, kSatellitePins, kSatelliteNets});
}

void addTimingSwitches(Circuit& circuit, int y, const char* switches, const char* array) {
  circuit.add({kTimingParts, kTimingPins, kTimingNets}, 0, y);
  circuit.add(Part{kAlways, Kind::kName, 784, y + 8, 0, 0, switches});
  circuit.add(Part{kAlways, Kind::kArray, 626, y + kArrayDown, 84, 18, array});
}

}  // namespace schematics
