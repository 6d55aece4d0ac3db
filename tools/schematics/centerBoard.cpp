// QVT60: two ports and the CPU's bus, sixteen or eight data lines wide.

#include "tools/schematics/boards.h"

namespace schematics {

namespace {

constexpr Chip kChip = {"U1 QVT60", {506, 330}, {10, 35, 60, 85}, {25, 50, 75, 100}};
constexpr Pin kChipPins[] = {
    {kAlways, Side::kLeft, 480, 76, "RXD1", 1},
    {kAlways, Side::kLeft, 480, 164, "TXE1", 2},
    {kAlways, Side::kLeft, 480, 208, "TXD1", 3},
    {kAlways, Side::kLeft, 480, 294, "RXD2", 5},
    {kAlways, Side::kLeft, 480, 382, "TXE2", 6},
    {kAlways, Side::kLeft, 480, 426, "TXD2", 7},
    {kAlways, Side::kLeft, 480, 490, "CLK", 12},
    {kAlways, Side::kLeft, 480, 550, "#RESET", 14},
    {kAlways, Side::kLeft, 480, 600, "#SCAN", 16},
    {kAlways, Side::kLeft, 480, 634, "#CHK1", 17},
    {kAlways, Side::kLeft, 480, 668, "#CHK2", 18},
    {kAlways, Side::kRight, 610, 76, "#CS", 98},
    {kAlways, Side::kRight, 610, 92, "#RD", 97},
    {kAlways, Side::kRight, 610, 108, "#WR", 96},
    {kAlways, Side::kRight, 610, 140, "#BHE", 95},
    {kAlways, Side::kRight, 610, 192, "D@", 93, 8, 16, 0, -1},
    {kAlways, Side::kRight, 610, 394, "D@", 84, 8, 16, 8, -1},
    {kAlways, Side::kRight, 610, 548, "A@", 74, 11, 14, 0, -1},
    {kAlways, Side::kRight, 610, 708, "#INT0", 58},
    {kAlways, Side::kRight, 610, 724, "#INT1", 57},
    {kAlways, Side::kLeft, 480, 704, "BUS16", 20},
    {kAlways, Side::kLeft, 480, 734, "BIG", 21},
};

// Clock, reset and lamps.
constexpr Part kLampParts[] = {
    {kAlways, Kind::kBox, 60, 474, 66, 32, "", "48MHz"},
    {kAlways, Kind::kName, 20, 462, 0, 0, "X1 OSC"},
    {kAlways, Kind::kSupply, 93, 474},
    {kAlways, Kind::kGround, 93, 506},
    {kAlways, Kind::kResistor, 160, 490, 46, 0, "R1", "33Ω"},
    {kAlways, Kind::kNote, 230, 480, 0, 0, "12/24/48MHz は BCR で選択"},
    {kAlways, Kind::kButton, 60, 550, 52},
    {kAlways, Kind::kName, 64, 534, 0, 0, "SW1 RESET"},
    {kAlways, Kind::kGround, 40, 562},
    {kAlways, Kind::kStanding, 240, 518, 0, 24, "R2", "10kΩ"},
    {kAlways, Kind::kSupply, 240, 518},
    {kAlways, Kind::kCapacitor, 190, 556, 0, 20, "C1 1μF"},
    {kAlways, Kind::kGround, 190, 576},
    {kAlways, Kind::kSupply, 150, 600},
    {kAlways, Kind::kResistor, 190, 600, 46, 0, "R3", "330Ω"},
    {kAlways, Kind::kResistor, 190, 634, 46, 0, "R4", "330Ω"},
    {kAlways, Kind::kResistor, 190, 668, 46, 0, "R5", "330Ω"},
    {kAlways, Kind::kLed, 300, 600, 40, 0, "LED1 SCAN", "green"},
    {kAlways, Kind::kLed, 300, 634, 40, 0, "LED2 CHK1", "red"},
    {kAlways, Kind::kLed, 300, 668, 40, 0, "LED3 CHK2", "red"},
};
constexpr Pin kLampPins[] = {
    {kAlways, Side::kTop, 93, 474, "", 14},
    {kAlways, Side::kBottom, 93, 506, "", 7},
    {kAlways, Side::kRight, 126, 490, "", 8},
};
constexpr Net kLampNets[] = {
    {kAlways, {{{126, 490}, {160, 490}}}},
    {kAlways, {{{206, 490}, {480, 490}}}},
    {kAlways, {{{60, 550}, {40, 550}, {40, 562}}}},
    {kAlways, {{{112, 550}, {480, 550}}}},
    {kAlways, {{{190, 550}, {190, 556}}}},
    {kAlways, {{{240, 542}, {240, 550}}}},
    {kAlways, {{{150, 600}, {150, 668}, {190, 668}}}},
    {kAlways, {{{150, 600}, {190, 600}}}},
    {kAlways, {{{150, 634}, {190, 634}}}},
    {kAlways, {{{236, 600}, {300, 600}}}, 3, 0, 34},
    {kAlways, {{{340, 600}, {480, 600}}}, 3, 0, 34},
};

// A buffer for a byte of data, from the chip to the bus connector: as it stands for the lower byte.
constexpr Part kBufferParts[] = {
    {kAlways, Kind::kBox, 760, 170, 78, 146},
    {kAlways, Kind::kName, 793, 236, 0, 0, "U%"},
    {kAlways, Kind::kNote, 781, 252, 0, 0, "双方向"},
    {kAlways, Kind::kNote, 790, 268, 0, 0, "BUF"},
    {kAlways, Kind::kSupply, 799, 170},
    {kAlways, Kind::kGround, 799, 316},
};
constexpr Pin kBufferPins[] = {
    {kAlways, Side::kLeft, 760, 192, "B@", 18, 8, 16, 0, -1},
    {kAlways, Side::kRight, 838, 192, "A@", 2, 8, 16, 0},
    {kAlways, Side::kTop, 776, 170, "DIR", 1},
    {kAlways, Side::kTop, 799, 170, "", 20},
    {kAlways, Side::kTop, 822, 170, "#G", 19},
    {kAlways, Side::kBottom, 799, 316, "", 10},
};
constexpr Net kBufferNets[] = {
    {kAlways, {{{610, 192}, {760, 192}}}, 8, 0, 16},
    {kAlways, {{{838, 192}, {1000, 192}}}, 8, 0, 16},
};
constexpr int kUpperByteDown = 202;

// The rest of the bus: the other lines go straight.
constexpr Part kBusParts[] = {
    {kAlways, Kind::kBox, 1000, 60, 62, 674, "CN1 DB"},
    {kWide, Kind::kNote, 640, 32, 0, 0, "16ビットバス: A0=L で下位バイト (D0-7)"},
    {kWide, Kind::kNote, 640, 48, 0, 0, "#BHE=L で上位バイト (D8-15)"},
    {kNarrow, Kind::kNote, 640, 32, 0, 0, "8ビットバス: A0 でバイトを選ぶ"},
    {kNarrow, Kind::kNote, 640, 48, 0, 0, "#BHE は H 固定, D8-15 は使わない"},
    {kNarrow, Kind::kArray, 640, 352, 96, 18, "RN1 10kΩ×8"},
    {kNarrow, Kind::kSupply, 752, 361},
    {kNarrow, Kind::kResistor, 640, 140, 46, 0, "R6", "10kΩ"},
    {kNarrow, Kind::kSupply, 700, 140},
    {kNarrow, Kind::kOpen, 978, 140},
    {kNarrow, Kind::kOpen, 978, 394, 0, 0, "", "", 8, 0, 16},
    {kAlways, Kind::kResistor, 414, 704, 46, 0, "R7", "10kΩ"},
    {kWide, Kind::kSupply, 400, 704},
    {kNarrow, Kind::kGround, 400, 704},
    {kAlways, Kind::kChangeover, 340, 734, 2, 16},
    {kAlways, Kind::kName, 300, 734, 0, 0, "JP1"},
    {kAlways, Kind::kSupply, 320, 718},
    {kAlways, Kind::kGround, 320, 750},
    {kAlways, Kind::kNote, 350, 716, 0, 0, "Big"},
    {kAlways, Kind::kNote, 350, 752, 0, 0, "Little"},
    {kAlways, Kind::kNote, 300, 778, 0, 0, "1か所を短絡"},
    {kAlways, Kind::kSupply, 1076, 92},
    {kAlways, Kind::kGround, 1076, 700},
};
constexpr Pin kBusPins[] = {
    {kAlways, Side::kLeft, 1000, 76, "#CS", 29},
    {kAlways, Side::kLeft, 1000, 92, "#RD", 30},
    {kAlways, Side::kLeft, 1000, 108, "#WR", 31},
    {kAlways, Side::kLeft, 1000, 140, "#BHE", 32},
    {kAlways, Side::kLeft, 1000, 192, "D@", 1, 8, 16, 0},
    {kAlways, Side::kLeft, 1000, 394, "D@", 9, 8, 16, 8},
    {kAlways, Side::kLeft, 1000, 548, "A@", 17, 11, 14, 0},
    {kAlways, Side::kLeft, 1000, 708, "#INT0", 33},
    {kAlways, Side::kLeft, 1000, 724, "#INT1", 34},
    {kAlways, Side::kRight, 1062, 92, "+5V", 39},
    {kAlways, Side::kRight, 1062, 700, "GND", 40},
    {kNarrow, Side::kRight, 736, 361, ""},
    {kNarrow, Side::kBottom, 648, 370, "", 0, 8, 10},
};
constexpr Net kBusNets[] = {
    {kAlways, {{{610, 76}, {1000, 76}}}, 3, 0, 16},
    {kWide, {{{610, 140}, {1000, 140}}}},
    {kNarrow, {{{610, 140}, {640, 140}}}},
    {kNarrow, {{{686, 140}, {700, 140}}}},
    {kNarrow, {{{978, 140}, {1000, 140}}}},
    {kNarrow, {{{610, 394}, {648, 394}}}, 8, 0, 16, {10, 0}},
    {kNarrow, {{{648, 370}, {648, 394}}}, 8, 10, 0, {0, 16}},
    {kNarrow, {{{736, 361}, {752, 361}}}},
    {kNarrow, {{{978, 394}, {1000, 394}}}, 8, 0, 16},
    {kAlways, {{{776, 92}, {776, 170}}}},
    {kAlways, {{{822, 76}, {822, 170}}}},
    {kWide, {{{720, 92}, {720, 354}, {776, 354}, {776, 372}}}},
    {kWide, {{{736, 76}, {736, 342}, {822, 342}, {822, 372}}}},
    {kAlways, {{{610, 548}, {1000, 548}}}, 11, 0, 14},
    {kAlways, {{{610, 708}, {1000, 708}}}, 2, 0, 16},
    {kAlways, {{{460, 704}, {480, 704}}}},
    {kAlways, {{{400, 704}, {414, 704}}}},
    {kAlways, {{{340, 734}, {480, 734}}}},
    {kAlways, {{{320, 718}, {340, 718}}}},
    {kAlways, {{{320, 750}, {340, 750}}}},
    {kAlways, {{{1062, 92}, {1076, 92}}}},
    {kAlways, {{{1062, 700}, {1076, 700}}}},
};

}  // namespace

Circuit centerBoard(Has has) {
  Circuit circuit(has | kCenter);
  addLinePort(circuit, 16, 1);
  addLinePort(circuit, 234, 2);
  addChip(circuit, kChip);
  circuit.add({{}, kChipPins, {}});
  circuit.add({kLampParts, kLampPins, kLampNets});
  const Tables buffer = {kBufferParts, kBufferPins, kBufferNets};
  circuit.add(buffer, 0, 0, 2);
  if (has & kWide) circuit.add(buffer, 0, kUpperByteDown, 3);
  circuit.add({kBusParts, kBusPins, kBusNets});
  addPower(circuit, 20, 704);
  const std::string lines = has & kFull ? "全2重 " : "半2重 ";
  const int number = 1 + (has & kNarrow ? 1 : 0) + (has & kHalf ? 2 : 0);
  circuit.addTitle("QVT60 センターボード", lines + (has & kWide ? "CPUバス16ビット" : "CPUバス8ビット"),
                   "ZV-60-" + std::to_string(number));
  return circuit;
}

}  // namespace schematics
