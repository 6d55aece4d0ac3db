// What the satellite boards have alike beside the line part: the clock with its selector, and every board's supply.

#include "tools/schematics/boards.h"

namespace schematics {

namespace {

constexpr Part kClockParts[] = {
    {kAlways, Kind::kBox, 1000, 78, 66, 32, "", "48MHz"},
    {kAlways, Kind::kName, 974, 64, 0, 0, "X1 OSC"},
    {kAlways, Kind::kSupply, 1033, 78},
    {kAlways, Kind::kGround, 1033, 110},
    {kAlways, Kind::kBox, 860, 70, 70, 48},
    {kAlways, Kind::kName, 860, 58, 0, 0, "U2"},
    {kAlways, Kind::kNote, 912, 130, 0, 0, "分周"},
    {kAlways, Kind::kSupply, 895, 70},
    {kAlways, Kind::kGround, 895, 118},
    {kAlways, Kind::kJumper, 750, 40, 40, 0, "", "", 1},
    {kAlways, Kind::kJumper, 750, 84, 40, 0, "", "", 1},
    {kAlways, Kind::kJumper, 750, 110, 40, 0, "", "", 1},
    {kAlways, Kind::kNote, 795, 31, 0, 0, "48MHz"},
    {kAlways, Kind::kNote, 795, 75, 0, 0, "24MHz"},
    {kAlways, Kind::kNote, 795, 101, 0, 0, "12MHz"},
    {kAlways, Kind::kName, 640, 24, 0, 0, "JP1 クロック選択"},
    {kAlways, Kind::kNote, 640, 40, 0, 0, "1か所を短絡"},
};
constexpr Pin kClockPins[] = {
    {kAlways, Side::kLeft, 1000, 94, "", 8},    {kAlways, Side::kTop, 1033, 78, "", 14},
    {kAlways, Side::kBottom, 1033, 110, "", 7}, {kAlways, Side::kRight, 930, 94, "CK", 1},
    {kAlways, Side::kLeft, 860, 84, "1/2", 5},  {kAlways, Side::kLeft, 860, 110, "1/4", 9},
    {kAlways, Side::kTop, 895, 70, "VCC", 14},  {kAlways, Side::kBottom, 895, 118, "GND", 7},
};
constexpr Net kClockNets[] = {
    {kAlways, {{{930, 94}, {1000, 94}}}},
    {kAlways, {{{964, 94}, {964, 40}, {790, 40}}}},
    {kAlways, {{{790, 84}, {860, 84}}}},
    {kAlways, {{{790, 110}, {860, 110}}}},
    {kAlways, {{{750, 40}, {730, 40}, {730, 110}, {750, 110}}}},
    {kAlways, {{{750, 84}, {730, 84}}}},
    {kAlways, {{{610, 76}, {730, 76}}}},
};

constexpr Part kPowerParts[] = {
    {kStation, Kind::kBox, 0, 8, 44, 48, "CN1 DC5V"},
    {kAlways, Kind::kSupply, 64, 20},
    {kAlways, Kind::kGround, 70, 44},
    {kAlways, Kind::kCapacitor, 100, 20, 0, 24, "C@", "", 5, 28, 0, 2},
    {kAlways, Kind::kNote, 90, 62, 0, 0, "C2-C5 0.1μF  C6 47μF"},
};
constexpr Pin kPowerPins[] = {
    {kStation, Side::kRight, 44, 20, "+5V", 1},
    {kStation, Side::kRight, 44, 44, "GND", 2},
};
constexpr Net kPowerNets[] = {
    {kAlways, {{{64, 20}, {212, 20}}}},
    {kAlways, {{{70, 44}, {212, 44}}}},
    {kStation, {{{44, 20}, {64, 20}}}},
    {kStation, {{{44, 44}, {70, 44}}}},
};

}  // namespace

void addClock(Circuit& circuit) {
  circuit.add({kClockParts, kClockPins, kClockNets});
}

void addPower(Circuit& circuit, int x, int y) {
  circuit.add({kPowerParts, kPowerPins, kPowerNets}, x, y);
}

}  // namespace schematics
