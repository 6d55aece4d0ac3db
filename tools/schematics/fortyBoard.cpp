// QVT40: sixteen inputs, sixteen outputs, six counters and a serial input. A slave can hang on it by a ribbon, and
// then has neither line part nor clock nor address switches of its own.

#include "tools/schematics/boards.h"

namespace schematics {

namespace {

constexpr Chip kChip = {"U1 QVT40", {512, 340}, {6, 35, 63, 90}, {23, 53, 80, 100}};
constexpr Part kChipParts[] = {
    {kAlways, Kind::kTest, 464, 300, 0, 0, "TP2"},
};
constexpr Pin kChipPins[] = {
    {kAlways, Side::kLeft, 480, 384, "DI@", 7, 8, 14, 0},
    {kAlways, Side::kLeft, 480, 508, "DI@", 15, 8, 14, 8},
    {kAlways, Side::kLeft, 480, 634, "CT@", 24, 6, 14, 1},
    {kAlways, Side::kLeft, 480, 718, "#CLR", 31},
    {kAlways, Side::kLeft, 480, 736, "#RESET", 32},
    {kAlways, Side::kRight, 610, 76, "CLK", 96},
    {kAlways, Side::kRight, 610, 156, "NRX", 94},
    {kAlways, Side::kRight, 610, 172, "NTX", 93},
    {kAlways, Side::kRight, 610, 188, "NTE", 92},
    {kAlways, Side::kRight, 610, 204, "NCK", 91},
    {kAlways, Side::kRight, 610, 228, "NST", 88},
    {kAlways, Side::kRight, 610, 252, "SA@", 86, 6, 16, 0, -1},
    {kAlways, Side::kRight, 610, 372, "DO@", 79, 16, 14, 0, -1},
    {kAlways, Side::kRight, 610, 606, "SSA", 61},
    {kAlways, Side::kRight, 610, 622, "SSB", 60},
    {kAlways, Side::kRight, 610, 676, "SI", 58},
    {kAlways, Side::kRight, 610, 690, "SCK", 57},
    {kAlways, Side::kRight, 610, 704, "SLD", 56},
    {kAlways, Side::kRight, 610, 734, "SE", 54},
};

// Inputs and buttons: pulled up, to ground when closed.
constexpr Part kInputParts[] = {
    {kAlways, Kind::kFrame, 68, 376, 40, 110, "SW1 DI0-7"},
    {kAlways, Kind::kFrame, 68, 500, 40, 112, "SW2 DI8-15"},
    {kAlways, Kind::kSwitch, 62, 384, 52, 0, "", "", 8, 0, 14},
    {kAlways, Kind::kSwitch, 62, 508, 52, 0, "", "", 8, 0, 14},
    {kAlways, Kind::kNote, 134, 494, 0, 0, "SW1, SW2: ON (閉) = DI 1"},
    {kAlways, Kind::kArray, 180, 350, 96, 18, "RN1 10kΩ×8"},
    {kAlways, Kind::kArray, 284, 350, 96, 18, "RN2 10kΩ×8"},
    {kAlways, Kind::kSupply, 168, 359},
    {kAlways, Kind::kSupply, 392, 359},
    {kAlways, Kind::kName, 68, 621, 0, 0, "SW3-SW8 カウンタ C1-C6"},
    {kAlways, Kind::kButton, 62, 634, 52, 0, "", "", 6, 0, 14},
    {kAlways, Kind::kButton, 62, 718, 52},
    {kAlways, Kind::kButton, 62, 736, 52},
    {kAlways, Kind::kName, 116, 711, 0, 0, "SW9 CLR"},
    {kAlways, Kind::kName, 116, 727, 0, 0, "SW10 RESET"},
    {kAlways, Kind::kGround, 40, 754},
    {kAlways, Kind::kCapacitor, 220, 750, 0, 20, "C7 1μF"},
    {kAlways, Kind::kGround, 220, 770},
    {kAlways, Kind::kArray, 284, 764, 96, 18, "RN3 10kΩ×8"},
    {kAlways, Kind::kSupply, 396, 773},
};
constexpr Pin kInputPins[] = {
    {kAlways, Side::kLeft, 180, 359, ""},
    {kAlways, Side::kRight, 380, 359, ""},
    {kAlways, Side::kBottom, 186, 368, "", 0, 8, 12},
    {kAlways, Side::kBottom, 290, 368, "", 0, 8, 12},
    {kAlways, Side::kRight, 380, 773, ""},
    {kAlways, Side::kTop, 290, 764, "", 0, 8, 12},
};
constexpr Net kInputNets[] = {
    {kAlways, {{{168, 359}, {180, 359}}}},
    {kAlways, {{{380, 359}, {392, 359}}}},
    {kAlways, {{{114, 384}, {480, 384}}}, 8, 0, 14},
    {kAlways, {{{114, 508}, {480, 508}}}, 8, 0, 14},
    {kAlways, {{{186, 368}, {186, 384}}}, 8, 12, 0, {0, 14}},
    {kAlways, {{{290, 368}, {290, 508}}}, 8, 12, 0, {0, 14}},
    {kAlways, {{{62, 384}, {40, 384}, {40, 754}}}},
    {kAlways, {{{62, 398}, {40, 398}}}, 7, 0, 14},
    {kAlways, {{{62, 508}, {40, 508}}}, 8, 0, 14},
    {kAlways, {{{114, 634}, {480, 634}}}, 6, 0, 14},
    {kAlways, {{{62, 634}, {40, 634}}}, 6, 0, 14},
    {kAlways, {{{114, 718}, {480, 718}}}},
    {kAlways, {{{114, 736}, {480, 736}}}},
    {kAlways, {{{62, 718}, {40, 718}}}},
    {kAlways, {{{62, 736}, {40, 736}}}},
    {kAlways, {{{290, 764}, {290, 634}}}, 6, 12, 0, {0, 14}},
    {kAlways, {{{362, 764}, {362, 718}}}},
    {kAlways, {{{374, 764}, {374, 736}}}},
    {kAlways, {{{380, 773}, {396, 773}}}},
    {kAlways, {{{220, 736}, {220, 750}}}},
};

// Outputs.
constexpr Part kOutputParts[] = {
    {kAlways, Kind::kName, 636, 356, 0, 0, "RN5, RN6 330Ω×8"},
    {kAlways, Kind::kResistor, 632, 372, 46, 0, "", "", 16, 0, 14},
    {kAlways, Kind::kLed, 692, 372, 36, 0, "", "green", 16, 0, 14},
    {kAlways, Kind::kName, 756, 372, 0, 0, "LED@", "", 16, 0, 14, 0},
    {kAlways, Kind::kGround, 748, 586},
    {kAlways, Kind::kLed, 632, 734, 40, 1, "LED16 SE", "green"},
    {kAlways, Kind::kResistor, 684, 734, 46, 0, "R3", "330Ω"},
    {kAlways, Kind::kSupply, 748, 734},
};
constexpr Net kOutputNets[] = {
    {kAlways, {{{610, 372}, {632, 372}}}, 16, 0, 14},
    {kAlways, {{{678, 372}, {692, 372}}}, 16, 0, 14},
    {kAlways, {{{728, 372}, {748, 372}, {748, 586}}}},
    {kAlways, {{{728, 386}, {748, 386}}}, 15, 0, 14},
    {kAlways, {{{610, 734}, {632, 734}}}},
    {kAlways, {{{672, 734}, {684, 734}}}},
    {kAlways, {{{730, 734}, {748, 734}}}},
};

// The serial input: two shift registers behind each other, each loaded from eight switches. First what tells the two
// apart or joins them, then what each of them has.
constexpr int kRegisterDown = 104;  // from one register to the next
constexpr Part kSerialParts[] = {
    {kAlways, Kind::kNote, 948, 452, 0, 0, "シリアル入力 16bit"},
    {kAlways, Kind::kName, 862, 456, 0, 0, "U@", "", 2, 0, kRegisterDown, 3},
    {kAlways, Kind::kArray, 972, 466, 90, 18, "RN@ 10kΩ×8", "", 2, 0, kRegisterDown, 8},
    {kAlways, Kind::kName, 984, 544, 0, 0, "SW@", "", 2, 0, kRegisterDown, 14},
    {kAlways, Kind::kGround, 848, 642},
};
constexpr Pin kSerialPins[] = {
    {kAlways, Side::kRight, 946, 518, "SI8-15"},
    {kAlways, Side::kRight, 946, 622, "SI0-7"},
};
constexpr Net kSerialNets[] = {
    {kAlways, {{{610, 676}, {816, 676}, {816, 480}, {862, 480}}}},
    {kAlways, {{{610, 690}, {826, 690}, {826, 494}, {862, 494}}}},
    {kAlways, {{{610, 704}, {836, 704}, {836, 508}, {862, 508}}}},
    {kAlways, {{{826, 598}, {862, 598}}}},
    {kAlways, {{{836, 612}, {862, 612}}}},
    {kAlways, {{{862, 584}, {846, 584}, {846, 522}, {862, 522}}}},
    {kAlways, {{{862, 626}, {848, 626}, {848, 642}}}},
};
constexpr Part kRegisterParts[] = {
    {kAlways, Kind::kBox, 862, 466, 84, 74}, {kAlways, Kind::kNote, 889, 482, 0, 0, "SHIFT REG"},
    {kAlways, Kind::kSupply, 904, 466},      {kAlways, Kind::kGround, 930, 540},
    {kAlways, Kind::kSupply, 1074, 475},     {kAlways, Kind::kBox, 984, 502, 66, 32, "", "DIP×8"},
    {kAlways, Kind::kGround, 1070, 526},     {kAlways, Kind::kBus, 955, 518, 0, 0, "8"},
};
constexpr Pin kRegisterPins[] = {
    {kAlways, Side::kLeft, 862, 480, "Q", 9},   {kAlways, Side::kLeft, 862, 494, "CK", 2},
    {kAlways, Side::kLeft, 862, 508, "S/L", 1}, {kAlways, Side::kLeft, 862, 522, "DS", 10},
    {kAlways, Side::kTop, 904, 466, "", 16},    {kAlways, Side::kBottom, 930, 540, "", 8},
    {kAlways, Side::kLeft, 972, 475, ""},       {kAlways, Side::kRight, 1062, 475, ""},
    {kAlways, Side::kLeft, 984, 518, ""},       {kAlways, Side::kRight, 1050, 518, ""},
};
constexpr Net kRegisterNets[] = {
    {kAlways, {{{946, 518}, {984, 518}}}},
    {kAlways, {{{972, 475}, {966, 475}, {966, 518}}}},
    {kAlways, {{{1062, 475}, {1074, 475}}}},
    {kAlways, {{{1050, 518}, {1070, 518}, {1070, 526}}}},
};

// The address switches, and the connector that hands line, clock and address to a slave.
constexpr Part kMasterParts[] = {
    {kAlways, Kind::kArray, 730, 222, 96, 18, "RN4 10kΩ×6"},
    {kAlways, Kind::kSupply, 840, 231},
    {kAlways, Kind::kBox, 844, 352, 64, 68},
    {kAlways, Kind::kBox, 924, 352, 44, 68},
    {kAlways, Kind::kDial, 863, 371, 26, 26},
    {kAlways, Kind::kDial, 933, 371, 26, 26},
    {kAlways, Kind::kNote, 864, 409, 0, 0, "下位"},
    {kAlways, Kind::kNote, 934, 409, 0, 0, "上位"},
    {kAlways, Kind::kName, 828, 432, 0, 0, "SW11 SA"},
    {kAlways, Kind::kName, 960, 432, 0, 0, "SW12 SA"},
    {kAlways, Kind::kGround, 884, 420},
    {kAlways, Kind::kGround, 946, 420},
    {kAlways, Kind::kStanding, 648, 208, 0, 24, "R1", "10kΩ"},
    {kAlways, Kind::kStanding, 690, 208, 0, 24, "R2", "10kΩ"},
    {kAlways, Kind::kGround, 648, 232},
    {kAlways, Kind::kGround, 690, 232},
    {kAlways, Kind::kGround, 628, 228},
    {kAlways, Kind::kBox, 990, 128, 48, 230, "CN3"},
    {kAlways, Kind::kSupply, 972, 140},
    {kAlways, Kind::kGround, 980, 346},
    {kRibbon, Kind::kRibbonCable, 1039, 138, 44, 210},
    {kRibbon, Kind::kNote, 990, 372, 0, 0, "リボンケーブル"},
    {kRibbon, Kind::kNote, 990, 388, 0, 0, "スレーブ CN4 へ"},
    {kAlone, Kind::kNote, 990, 372, 0, 0, "スレーブ接続用"},
    {kAlone, Kind::kNote, 990, 388, 0, 0, "(未接続)"},
};
constexpr Pin kMasterPins[] = {
    {kAlways, Side::kRight, 826, 231, ""},       {kAlways, Side::kBottom, 740, 240, "", 0, 6, 14},
    {kAlways, Side::kTop, 852, 352, "1"},        {kAlways, Side::kTop, 868, 352, "2"},
    {kAlways, Side::kTop, 884, 352, "4"},        {kAlways, Side::kTop, 900, 352, "8"},
    {kAlways, Side::kTop, 938, 352, "1"},        {kAlways, Side::kTop, 954, 352, "2"},
    {kAlways, Side::kBottom, 884, 420, ""},      {kAlways, Side::kBottom, 946, 420, ""},
    {kAlways, Side::kLeft, 990, 140, "+5V", 1},  {kAlways, Side::kLeft, 990, 156, "NRX", 2},
    {kAlways, Side::kLeft, 990, 172, "NTX", 3},  {kAlways, Side::kLeft, 990, 188, "NTE", 4},
    {kAlways, Side::kLeft, 990, 204, "NCK", 5},  {kAlways, Side::kLeft, 990, 252, "SA@", 6, 6, 16, 0},
    {kAlways, Side::kLeft, 990, 346, "GND", 12},
};
constexpr Net kMasterNets[] = {
    {kAlways, {{{610, 252}, {990, 252}}}, 6, 0, 16},
    {kAlways, {{{740, 240}, {740, 252}}}, 6, 14, 0, {0, 16}},
    {kAlways, {{{826, 231}, {840, 231}}}},
    {kAlways, {{{852, 352}, {852, 252}}}, 4, 16, 0, {0, 16}},
    {kAlways, {{{938, 352}, {938, 316}}}, 2, 16, 0, {0, 16}},
    {kAlways, {{{610, 156}, {990, 156}}}, 4, 0, 16},
    {kAlways, {{{648, 172}, {648, 208}}}},
    {kAlways, {{{690, 188}, {690, 208}}}},
    {kAlways, {{{610, 228}, {628, 228}}}},
    {kAlways, {{{990, 140}, {972, 140}}}},
    {kAlways, {{{990, 346}, {980, 346}}}},
};

// What a slave has in place of line part, clock and address switches.
constexpr Part kSlaveParts[] = {
    {kAlways, Kind::kHead, 24, 22, 0, 0, "QVT40 スレーブ (回線部なし)"},
    {kAlways, Kind::kBox, 70, 48, 48, 232, "CN4"},
    {kAlways, Kind::kRibbonCable, 18, 58, 51, 212},
    {kAlways, Kind::kNote, 24, 296, 0, 0, "マスター CN3 より"},
    {kAlways, Kind::kSupply, 140, 60},
    {kAlways, Kind::kGround, 140, 268},
    {kAlways, Kind::kFlag, 140, 136, 0, 0, "CLK"},
    {kAlways, Kind::kFlag, 140, 162, 0, 0, "SA@", "", 6, 0, 16, 0},
    {kAlways, Kind::kNote, 220, 250, 0, 0, "回線・クロック・局アドレスはマスターの"},
    {kAlways, Kind::kNote, 220, 266, 0, 0, "ものをリボンケーブルで受ける"},
    {kAlways, Kind::kNote, 220, 290, 0, 0, "局アドレス = マスター + 1 (NST=H)"},
    {kAlways, Kind::kFlag, 630, 76, 0, 0, "CLK"},
    {kAlways, Kind::kFlag, 630, 252, 0, 0, "SA@", "", 6, 0, 16, 0},
    {kAlways, Kind::kOpen, 634, 156, 0, 0, "", "", 4, 0, 16},
    {kAlways, Kind::kResistor, 640, 228, 46, 0, "R1", "10kΩ"},
    {kAlways, Kind::kSupply, 700, 228},
};
constexpr Pin kSlavePins[] = {
    {kAlways, Side::kRight, 118, 60, "+5V", 1},   {kAlways, Side::kRight, 118, 76, "NRX", 2},
    {kAlways, Side::kRight, 118, 136, "NCK", 5},  {kAlways, Side::kRight, 118, 116, "NTE", 4},
    {kAlways, Side::kRight, 118, 96, "NTX", 3},   {kAlways, Side::kRight, 118, 162, "SA@", 6, 6, 16, 0},
    {kAlways, Side::kRight, 118, 268, "GND", 12},
};
constexpr Net kSlaveNets[] = {
    {kAlways, {{{118, 60}, {140, 60}}}},
    {kAlways, {{{118, 76}, {480, 76}}}},
    {kAlways, {{{118, 136}, {140, 136}}}},
    {kAlways, {{{118, 116}, {360, 116}, {360, 164}, {480, 164}}}},
    {kAlways, {{{118, 96}, {320, 96}, {320, 208}, {480, 208}}}},
    {kAlways, {{{118, 162}, {140, 162}}}, 6, 0, 16},
    {kAlways, {{{118, 268}, {140, 268}}}},
    {kAlways, {{{610, 76}, {630, 76}}}},
    {kAlways, {{{610, 252}, {630, 252}}}, 6, 0, 16},
    {kAlways, {{{610, 156}, {634, 156}}}, 4, 0, 16},
    {kAlways, {{{610, 228}, {640, 228}}}},
    {kAlways, {{{686, 228}, {700, 228}}}},
};

}  // namespace

Circuit fortyBoard(Has has) {
  Circuit circuit(has | kForty | (has & kSlave ? kAlways : kStation));
  addSatelliteChip(circuit, kChip);
  circuit.add({kChipParts, kChipPins, {}});
  circuit.add({kInputParts, kInputPins, kInputNets});
  circuit.add({kOutputParts, {}, kOutputNets});
  addTimingSwitches(circuit, 606, "SW13", "RN7 10kΩ×2");
  circuit.add({kSerialParts, kSerialPins, kSerialNets});
  for (const int down : {0, kRegisterDown})
    circuit.add({kRegisterParts, kRegisterPins, kRegisterNets}, 0, down);
  addPower(circuit, 850, 668);
  if (has & kSlave) {
    circuit.add({kSlaveParts, kSlavePins, kSlaveNets});
    circuit.addTitle("QVT40 入出力基板", "スレーブ", "ZV-40-3");
  } else {
    addLinePort(circuit, 16, 1);
    addClock(circuit);
    circuit.add({kMasterParts, kMasterPins, kMasterNets});
    circuit.addTitle("QVT40 入出力基板", has & kRibbon ? "マスター (スレーブあり)" : "マスター (スレーブなし)",
                     has & kRibbon ? "ZV-40-2" : "ZV-40-1");
  }
  return circuit;
}

}  // namespace schematics
