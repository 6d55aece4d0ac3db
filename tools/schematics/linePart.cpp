// The line part: connectors, terminators, pulse transformers and the driver with its jumper.
//
// Full duplex leads a pair to the receiver and one from the driver. Half duplex has the first pair alone: the plugs
// of JP lead the driver to it, and TXE turns the receiver off while the board sends.

#include "tools/schematics/boards.h"

namespace schematics {

namespace {

constexpr Part kPortParts[] = {
    {kFull | kCenter, Kind::kHead, 24, 4, 0, 0, "回線部% 全2重 (2対)"},
    {kHalf | kCenter, Kind::kHead, 24, 4, 0, 0, "回線部% 半2重 (1対)"},
    {kFull | kForty, Kind::kHead, 24, 4, 0, 0, "QVT40 回線部 全2重 (2対)"},
    {kHalf | kForty, Kind::kHead, 24, 4, 0, 0, "QVT40 回線部 半2重 (1対)"},
    {kFull | kFifty, Kind::kHead, 24, 4, 0, 0, "QVT50 回線部 全2重 (2対)"},
    {kHalf | kFifty, Kind::kHead, 24, 4, 0, 0, "QVT50 回線部 半2重 (1対)"},
    {kCenter, Kind::kBox, 24, 44, 44, 164, "J% %RXD"},
    {kStation, Kind::kBox, 24, 44, 44, 164, "J1 IN"},
    // Terminators, each with the jumper that puts it on the line.
    {kAlways, Kind::kStanding, 124, 60, 0, 22, "R%1", "100Ω"},
    {kFull, Kind::kStanding, 124, 148, 0, 22, "R%2", "100Ω"},
    {kCenter, Kind::kJumperPlugged, 124, 82, 0, 22},
    {kFull | kCenter, Kind::kJumperPlugged, 124, 170, 0, 22},
    {kForty, Kind::kJumper, 124, 82, 0, 22},
    {kFull | kForty, Kind::kJumper, 124, 170, 0, 22},
    {kFifty, Kind::kJumperPlugged, 124, 82, 0, 22},
    {kFull | kFifty, Kind::kJumperPlugged, 124, 170, 0, 22},
    {kAlways, Kind::kName, 133, 95, 0, 0, "JP%2"},
    {kFull, Kind::kName, 133, 183, 0, 0, "JP%3"},
    {kAlways, Kind::kTransformer, 186, 60, 50, 44, "T%1", "QPT900-X"},
    {kFull, Kind::kTransformer, 186, 148, 50, 44, "T%2", "QPT900-X"},
    {kHalf, Kind::kNote, 174, 170, 0, 0, "T%2 未実装"},
    // The jumper.
    {kFull, Kind::kJumper, 252, 66, 0, 26},
    {kFull, Kind::kJumper, 278, 112, 0, 26},
    {kFull, Kind::kChangeover, 412, 104, 0, 16},
    {kHalf, Kind::kJumperPlugged, 252, 66, 0, 26},
    {kHalf, Kind::kJumperPlugged, 278, 112, 0, 26},
    {kHalf, Kind::kChangeover, 412, 104, 1, 16},
    {kAlways, Kind::kName, 260, 82, 0, 0, "JP%1A"},
    {kAlways, Kind::kName, 286, 128, 0, 0, "JP%1B"},
    {kAlways, Kind::kName, 419, 114, 0, 0, "JP%1"},
    {kAlways, Kind::kNote, 399, 88, 0, 0, "F"},
    {kAlways, Kind::kNote, 399, 120, 0, 0, "H"},
    {kAlways, Kind::kGround, 430, 88},
    // The driver.
    {kAlways, Kind::kBox, 324, 44, 62, 164},
    {kAlways, Kind::kName, 345, 78, 0, 0, "U%1"},
    {kAlways, Kind::kNote, 345, 92, 0, 0, "TRX"},
    {kAlways, Kind::kSupply, 355, 44},
    {kAlways, Kind::kGround, 355, 208},
    // The connector to the next board and what stands beside it.
    {kStation, Kind::kBox, 24, 228, 44, 72, "J2 OUT"},
    {kStation, Kind::kCapacitor, 355, 254, 0, 24, "C1 0.1μF"},
    {kStation, Kind::kSupply, 355, 254},
    {kStation, Kind::kGround, 355, 278},
    {kStation, Kind::kNote, 130, 240, 0, 0, "JP11: F=全2重  H=半2重"},
    {kStation | kFull, Kind::kNote, 130, 258, 0, 0, "JP12, JP13: 終端で短絡"},
    {kStation | kHalf, Kind::kNote, 130, 258, 0, 0, "JP12: 終端で短絡"},
    {kStation | kHalf, Kind::kNote, 130, 276, 0, 0, "送信中 (TXE=H) は受信停止"},
    {kHalf, Kind::kOpen, 82, 148},
    {kHalf, Kind::kOpen, 82, 192},
    {kHalf | kStation, Kind::kOpen, 82, 276},
    {kHalf | kStation, Kind::kOpen, 82, 292},
};

constexpr Pin kPortPins[] = {
    {kFull, Side::kRight, 68, 60, "RX+", 3},
    {kFull, Side::kRight, 68, 104, "RX-", 6},
    {kFull, Side::kRight, 68, 148, "TX+", 1},
    {kFull, Side::kRight, 68, 192, "TX-", 2},
    {kHalf, Side::kRight, 68, 60, "TR+", 3},
    {kHalf, Side::kRight, 68, 104, "TR-", 6},
    {kHalf, Side::kRight, 68, 148, "NC", 1},
    {kHalf, Side::kRight, 68, 192, "NC", 2},
    {kFull | kStation, Side::kRight, 68, 244, "RX+", 3},
    {kFull | kStation, Side::kRight, 68, 260, "RX-", 6},
    {kFull | kStation, Side::kRight, 68, 276, "TX+", 1},
    {kFull | kStation, Side::kRight, 68, 292, "TX-", 2},
    {kHalf | kStation, Side::kRight, 68, 244, "TR+", 3},
    {kHalf | kStation, Side::kRight, 68, 260, "TR-", 6},
    {kHalf | kStation, Side::kRight, 68, 276, "NC", 1},
    {kHalf | kStation, Side::kRight, 68, 292, "NC", 2},
    {kAlways, Side::kLeft, 324, 60, "A", 12},
    {kAlways, Side::kLeft, 324, 104, "B", 11},
    {kAlways, Side::kLeft, 324, 148, "Y", 9},
    {kAlways, Side::kLeft, 324, 192, "Z", 10},
    {kAlways, Side::kRight, 386, 60, "RO", 2},
    {kAlways, Side::kRight, 386, 104, "#RE", 3},
    {kAlways, Side::kRight, 386, 148, "DE", 4},
    {kAlways, Side::kRight, 386, 192, "DI", 5},
    {kAlways, Side::kTop, 355, 44, "VCC", 14},
    {kAlways, Side::kBottom, 355, 208, "GND", 7},
};

constexpr Net kPortNets[] = {
    {kAlways, {{{68, 60}, {186, 60}}}},
    {kAlways, {{{68, 104}, {186, 104}}}},
    {kFull, {{{68, 148}, {186, 148}}}},
    {kFull, {{{68, 192}, {186, 192}}}},
    {kHalf, {{{68, 148}, {82, 148}}}},
    {kHalf, {{{68, 192}, {82, 192}}}},
    {kAlways, {{{236, 60}, {324, 60}}}},
    {kAlways, {{{236, 104}, {324, 104}}}},
    {kFull, {{{236, 148}, {324, 148}}}},
    {kFull, {{{236, 192}, {324, 192}}}},
    {kHalf, {{{252, 148}, {324, 148}}}},
    {kHalf, {{{278, 192}, {324, 192}}}},
    {kAlways, {{{252, 60}, {252, 66}}}},
    {kAlways, {{{252, 92}, {252, 148}}}},
    {kAlways, {{{278, 104}, {278, 112}}}},
    {kAlways, {{{278, 138}, {278, 192}}}},
    {kAlways, {{{386, 104}, {412, 104}}}},
    {kAlways, {{{412, 88}, {430, 88}}}},
    {kAlways, {{{412, 120}, {412, 148}}}},
    {kAlways, {{{386, 60}, {480, 60}}}},
    {kAlways, {{{386, 148}, {480, 148}}}},
    {kAlways, {{{386, 192}, {480, 192}}}},
    {kStation, {{{68, 244}, {90, 244}, {90, 60}}}},
    {kStation, {{{68, 260}, {98, 260}, {98, 104}}}},
    {kStation | kFull, {{{68, 276}, {106, 276}, {106, 148}}}},
    {kStation | kFull, {{{68, 292}, {114, 292}, {114, 192}}}},
    {kStation | kHalf, {{{68, 276}, {82, 276}}}},
    {kStation | kHalf, {{{68, 292}, {82, 292}}}},
};

}  // namespace

void addLinePort(Circuit& circuit, int y, int block) {
  circuit.add({kPortParts, kPortPins, kPortNets}, 0, y, block);
}

}  // namespace schematics
