// QVT50: sixteen pins whose direction the IOS switch chooses, and in modes 6 and 7 a motor.

#include <string_view>

#include "tools/schematics/boards.h"

namespace schematics {

namespace {

constexpr Chip kChip = {"U1 QVT50", {512, 600}, {6, 26, 46, 77}, {14, 34, 57, 80}};
constexpr Part kChipParts[] = {
    {kPlain, Kind::kTest, 464, 300, 0, 0, "TP2"},
    {kPwm, Kind::kOpen, 464, 300},
};
constexpr Pin kChipPins[] = {
    {kAlways, Side::kLeft, 480, 392, "IOS@", 8, 3, 16, 0}, {kAlways, Side::kLeft, 480, 456, "CM@", 11, 2, 16, 0},
    {kAlways, Side::kLeft, 480, 504, "BPSS", 13},          {kAlways, Side::kLeft, 480, 560, "SA@", 15, 4, 16, 0},
    {kAlways, Side::kLeft, 480, 632, "SA@", 19, 2, 16, 4}, {kAlways, Side::kLeft, 480, 680, "#CLR", 22},
    {kAlways, Side::kLeft, 480, 704, "#RESET", 23},        {kAlways, Side::kLeft, 480, 736, "#MON", 24},
    {kAlways, Side::kRight, 610, 76, "CLK", 79},           {kAlways, Side::kRight, 610, 540, "SSA", 50},
    {kAlways, Side::kRight, 610, 556, "SSB", 49},
};

// The settings: mode, address and timing; the buttons; the MON lamp.
constexpr Part kSettingParts[] = {
    {kAlways, Kind::kArray, 180, 350, 96, 18, "RN1 10kΩ×6"},
    {kAlways, Kind::kSupply, 168, 359},
    {kAlways, Kind::kFrame, 68, 384, 40, 46, "SW1 IOS (閉=0)"},
    {kAlways, Kind::kFrame, 68, 448, 40, 30, "SW2 CM"},
    {kAlways, Kind::kFrame, 68, 496, 40, 16, "SW3 BPSS"},
    {kAlways, Kind::kClosed, 62, 456, 52, 0, "", "", 2, 0, 16},
    {kAlways, Kind::kClosed, 62, 504, 52},
    {kAlways, Kind::kArray, 284, 524, 96, 18, "RN2 10kΩ×8"},
    {kAlways, Kind::kSupply, 394, 533},
    {kAlways, Kind::kBox, 60, 550, 52, 68},
    {kAlways, Kind::kBox, 60, 624, 52, 34},
    {kAlways, Kind::kDial, 66, 571, 26, 26},
    {kAlways, Kind::kDial, 66, 629, 24, 24},
    {kAlways, Kind::kName, 120, 549, 0, 0, "SW4 SA 下位"},
    {kAlways, Kind::kName, 120, 621, 0, 0, "SW5 SA 上位"},
    {kAlways, Kind::kButton, 62, 680, 52},
    {kAlways, Kind::kButton, 62, 704, 52},
    {kAlways, Kind::kName, 116, 669, 0, 0, "SW6 CLR"},
    {kAlways, Kind::kName, 116, 694, 0, 0, "SW7 RESET"},
    {kAlways, Kind::kGround, 40, 716},
    {kAlways, Kind::kCapacitor, 220, 712, 0, 20, "C7 1μF"},
    {kAlways, Kind::kGround, 220, 732},
    {kAlways, Kind::kSupply, 300, 736},
    {kAlways, Kind::kResistor, 312, 736, 46, 0, "R1", "330Ω"},
    {kAlways, Kind::kLed, 376, 736, 40, 0, "LED16 MON", "green"},
    {kPwm, Kind::kOpen, 634, 540, 0, 0, "", "", 2, 0, 16},
    {kPwm, Kind::kNote, 646, 548, 0, 0, "PWM では SSA, SSB, STB2 は使わない"},
};
constexpr Pin kSettingPins[] = {
    {kAlways, Side::kLeft, 180, 359, ""},   {kAlways, Side::kBottom, 186, 368, "", 0, 6, 12},
    {kAlways, Side::kRight, 380, 533, ""},  {kAlways, Side::kBottom, 290, 542, "", 0, 8, 12},
    {kAlways, Side::kRight, 112, 560, "1"}, {kAlways, Side::kRight, 112, 576, "2"},
    {kAlways, Side::kRight, 112, 592, "4"}, {kAlways, Side::kRight, 112, 608, "8"},
    {kAlways, Side::kRight, 112, 632, "1"}, {kAlways, Side::kRight, 112, 648, "2"},
    {kAlways, Side::kLeft, 60, 584, ""},    {kAlways, Side::kLeft, 60, 641, ""},
};
constexpr Net kSettingNets[] = {
    {kAlways, {{{168, 359}, {180, 359}}}},
    {kAlways, {{{114, 392}, {480, 392}}}, 3, 0, 16},
    {kAlways, {{{114, 456}, {480, 456}}}, 2, 0, 16},
    {kAlways, {{{114, 504}, {480, 504}}}},
    {kAlways, {{{186, 368}, {186, 392}}}, 3, 12, 0, {0, 16}},
    {kAlways, {{{222, 368}, {222, 456}}}, 2, 12, 0, {0, 16}},
    {kAlways, {{{246, 368}, {246, 504}}}},
    {kAlways, {{{62, 392}, {40, 392}, {40, 716}}}},
    {kAlways, {{{62, 408}, {40, 408}}}, 2, 0, 16},
    {kAlways, {{{62, 456}, {40, 456}}}, 2, 0, 16},
    {kAlways, {{{62, 504}, {40, 504}}}},
    {kAlways, {{{380, 533}, {394, 533}}}},
    {kAlways, {{{112, 560}, {480, 560}}}, 4, 0, 16},
    {kAlways, {{{112, 632}, {480, 632}}}, 2, 0, 16},
    {kAlways, {{{290, 542}, {290, 560}}}, 4, 12, 0, {0, 16}},
    {kAlways, {{{338, 542}, {338, 632}}}, 2, 12, 0, {0, 16}},
    {kAlways, {{{362, 542}, {362, 680}}}},
    {kAlways, {{{374, 542}, {374, 704}}}},
    {kAlways, {{{60, 584}, {40, 584}}}},
    {kAlways, {{{60, 641}, {40, 641}}}},
    {kAlways, {{{114, 680}, {480, 680}}}},
    {kAlways, {{{114, 704}, {480, 704}}}},
    {kAlways, {{{62, 680}, {40, 680}}}},
    {kAlways, {{{62, 704}, {40, 704}}}},
    {kAlways, {{{220, 704}, {220, 712}}}},
    {kAlways, {{{300, 736}, {312, 736}}}},
    {kAlways, {{{358, 736}, {376, 736}}}},
    {kAlways, {{{416, 736}, {480, 736}}}},
    {kPwm, {{{610, 540}, {634, 540}}}, 2, 0, 16},
};

// The motor's board, on the four pulse pins; its encoder reaches the counter in mode 7 alone.
constexpr Part kMotorParts[] = {
    {kPwm, Kind::kBox, 652, 150, 36, 92, "", "CN3"},
    {kPwm, Kind::kGround, 636, 160},
    {kPwm, Kind::kGround, 722, 160},
    {kPwm, Kind::kFrame, 712, 140, 374, 116, "モータドライブ基板"},
    {kPwm, Kind::kBox, 740, 168, 90, 70},
    {kPwm, Kind::kName, 740, 158, 0, 0, "U3"},
    {kPwm, Kind::kNote, 834, 158, 0, 0, "Hブリッジ"},
    {kPwm, Kind::kSupply, 785, 168, 0, 0, "+24V"},
    {kPwm, Kind::kGround, 785, 238},
    {kPwm, Kind::kMotor, 880, 187, 30, 36, "M1"},
    {kPwm, Kind::kShaft, 911, 205, 48},
    {kPwm, Kind::kBox, 960, 178, 80, 54, "PG1", "エンコーダ"},
    {kPwm, Kind::kSupply, 1024, 178},
    {kPwm, Kind::kGround, 1058, 213},
    {kPwm, Kind::kBox, 968, 262, 64, 18, "", "CN4"},
    {kUncounted, Kind::kOpen, 984, 292, 0, 0, "", "", 2, 32},
    {kUncounted, Kind::kNote, 968, 308, 0, 0, "未接続"},
};
constexpr Pin kMotorPins[] = {
    {kPwm, Side::kLeft, 652, 160, "", 0, 5, 18},
    {kPwm, Side::kRight, 688, 160, "", 1, 5, 18},
    {kPwm, Side::kLeft, 740, 178, "CWON", 2},
    {kPwm, Side::kLeft, 740, 196, "CCWON", 3},
    {kPwm, Side::kLeft, 740, 214, "CWP", 4},
    {kPwm, Side::kLeft, 740, 232, "CCWP", 5},
    {kPwm, Side::kTop, 785, 168, "", 9},
    {kPwm, Side::kBottom, 785, 238, ""},
    {kPwm, Side::kRight, 830, 187, "OUT1", 7},
    {kPwm, Side::kRight, 830, 223, "OUT2", 8},
    {kPwm, Side::kTop, 1024, 178, ""},
    {kPwm, Side::kRight, 1040, 205, ""},
    {kPwm, Side::kBottom, 984, 232, "A"},
    {kPwm, Side::kBottom, 1016, 232, "B"},
    {kPwm, Side::kTop, 984, 262, ""},
    {kPwm, Side::kTop, 1016, 262, ""},
    {kPwm, Side::kBottom, 984, 280, "", 1},
    {kPwm, Side::kBottom, 1016, 280, "", 2},
};
constexpr Net kMotorNets[] = {
    {kPwm, {{{636, 160}, {652, 160}}}},
    {kPwm, {{{688, 160}, {722, 160}}}},
    {kPwm, {{{610, 178}, {652, 178}}}, 4, 0, 18},
    {kPwm, {{{688, 178}, {740, 178}}}, 4, 0, 18},
    {kPwm, {{{830, 187}, {880, 187}}}, 2, 0, 36},
    {kPwm, {{{1040, 205}, {1058, 205}, {1058, 213}}}},
    {kPwm, {{{984, 232}, {984, 262}}}, 2, 32},
    {kUncounted, {{{984, 280}, {984, 292}}}, 2, 32},
    {kCounter, {{{984, 280}, {984, 325}, {838, 325}, {838, 334}}}},
    {kCounter, {{{1016, 280}, {1016, 388}, {690, 388}}}},
};

/// The sixteen pins by mode, bit 15 first: input, output, pulse output, counter input.
constexpr std::string_view kPatterns[] = {
    "IIIIIIIIIIIIIIII", "OOOOIIIIIIIIIIII", "OOOOOOOOIIIIIIII", "OOOOOOOOOOOOIIII",
    "OOOOOOOOOOOOOOII", "OOOOOOOOOOOOOOOO", "PPPPOOOOIIIIIIII", "PPPPOOOOCCCCIIII",
};
constexpr const char* kModes[] = {
    "IOS=0  DI=16bit",         "IOS=1  DI=12bit DO=4bit", "IOS=2  DI=8bit DO=8bit", "IOS=3  DI=4bit DO=12bit",
    "IOS=4  DI=2bit DO=14bit", "IOS=5  DO=16bit",         "IOS=6  DI=8 DO=4 PWM",   "IOS=7  DI=4 DO=4 PWM+CNT",
};
constexpr const char* kPulsePins[] = {"CCW-Pulse", "CW-Pulse", "CCWON", "CWON"};  // bits 12 to 15
constexpr const char* kCounterPins[] = {"DIR", "GATE", "CLEAR", "COUNT"};         // bits 4 to 7

constexpr int kRowTop = 190, kRowStep = 18;
constexpr int kPulseLift = 12;       // pulse outputs stand a little apart
constexpr int kRail = 916;           // ground
constexpr int kArrayTop = 482;       // the pull-ups' arrays, under the rows
constexpr int kFirstPinNumber = 60;  // of IO0

/// A pull-up's leg: the first eight bits hang on one array, the others on the next.
constexpr int legOf(int bit) {
  return bit < 8 ? 650 + 10 * bit : 746 + 10 * (bit - 8);
}

void addPins(Circuit& circuit, std::string_view pattern) {
  int top = -1, bottom = -1;  // the rows that reach the ground rail
  bool pulled[2] = {false, false};
  for (int bit = 15; bit >= 0; --bit) {
    const char kind = pattern[static_cast<std::size_t>(15 - bit)];
    const int y = kRowTop + kRowStep * (15 - bit) - (kind == 'P' ? kPulseLift : 0);
    const std::string io = "IO" + std::to_string(bit) + "/";
    const auto pin = [&](const std::string& name) {
      circuit.add(Pin{kAlways, Side::kRight, 610, y, (io + name).c_str(), kFirstPinNumber + bit});
    };
    if (kind == 'P') {
      pin(kPulsePins[bit - 12]);
      continue;
    }
    if (kind == 'O') {
      pin("DO" + std::to_string(bit));
      circuit.add(Net{kAlways, {{{610, y}, {650, y}}}});
      circuit.add(Part{kAlways, Kind::kResistor, 650, y, 50});
      circuit.add(Net{kAlways, {{{700, y}, {740, y}}}});
      circuit.add(Part{kAlways, Kind::kLed, 740, y, 40, 0, "", "green"});
      circuit.add(Net{kAlways, {{{780, y}, {kRail, y}}}});
      circuit.add(Part{kAlways, Kind::kName, kRail + 8, y, 0, 0, "LED@", "", 1, 0, 0, bit});
    } else {
      pulled[bit / 8] = true;
      circuit.add(Net{kAlways, {{{legOf(bit), y}, {legOf(bit), kArrayTop}}}});
      const char* counter = kind == 'C' ? kCounterPins[bit - 4] : nullptr;
      pin(counter ? counter : "DI" + std::to_string(bit));
      if (counter && bit < 6) {
        // The encoder's second line and the gate have no button.
        circuit.add(Net{kAlways, {{{610, y}, {legOf(bit), y}}}});
        continue;
      }
      circuit.add(Net{kAlways, {{{610, y}, {850, y}}}});
      circuit.add(Part{kAlways, counter ? Kind::kButton : Kind::kSwitch, 850, y, 50});
      circuit.add(Net{kAlways, {{{900, y}, {kRail, y}}}});
      circuit.add(Part{kAlways, Kind::kName, kRail + 8, y, 0, 0,
                       counter ? (bit == 7 ? "SW10 COUNT" : "SW11 CLEAR") : "SW9-@", "", 1, 0, 0, bit});
    }
    if (top < 0) {
      top = y;
      if (kind == 'O') circuit.add(Part{kAlways, Kind::kName, 636, y - 12, 0, 0, "RN6 330Ω"});
    }
    bottom = y;
  }
  circuit.add(Net{kAlways, {{{kRail, top}, {kRail, bottom + 24}}}});
  circuit.add(Part{kAlways, Kind::kGround, kRail, bottom + 24});
  if (pulled[0]) circuit.add(Part{kAlways, Kind::kNote, kRail + 20, bottom + 24, 0, 0, "SW9: ON (閉) = DI 1"});
  for (const int array : {0, 1}) {
    if (!pulled[array]) continue;
    const int left = legOf(8 * array) - 6;
    circuit.add(Part{kAlways, Kind::kArray, left, kArrayTop, 86, 18, "RN@ 10kΩ×8", "", 1, 0, 0, 3 + array});
    for (int bit = 8 * array; bit < 8 * array + 8; ++bit) {
      const char kind = pattern[static_cast<std::size_t>(15 - bit)];
      if (kind == 'I' || kind == 'C') circuit.add(Pin{kAlways, Side::kTop, legOf(bit), kArrayTop, ""});
    }
  }
  if (pulled[0] && !pulled[1]) {
    circuit.add(Pin{kAlways, Side::kRight, 730, kArrayTop + 9, ""});
    circuit.add(Net{kAlways, {{{730, kArrayTop + 9}, {748, kArrayTop + 9}}}});
    circuit.add(Part{kAlways, Kind::kSupply, 748, kArrayTop + 9});
  } else if (pulled[1]) {
    circuit.add(Pin{kAlways, Side::kRight, 730, kArrayTop + 9, ""});
    circuit.add(Pin{kAlways, Side::kLeft, 740, kArrayTop + 9, ""});
    circuit.add(Pin{kAlways, Side::kRight, 826, kArrayTop + 9, ""});
    circuit.add(Net{kAlways, {{{730, kArrayTop + 9}, {740, kArrayTop + 9}}}});
    circuit.add(Net{kAlways, {{{826, kArrayTop + 9}, {844, kArrayTop + 9}}}});
    circuit.add(Part{kAlways, Kind::kSupply, 844, kArrayTop + 9});
  }
}

}  // namespace

Circuit fiftyBoard(Has has, int mode) {
  const bool pwm = mode >= 6;
  Circuit circuit(has | kStation | kFifty | (pwm ? kPwm : kPlain) |
                  (mode == 7   ? kCounter
                   : mode == 6 ? kUncounted
                               : kAlways));
  addLinePort(circuit, 16, 1);
  addClock(circuit);
  addSatelliteChip(circuit, kChip);
  circuit.add({kChipParts, kChipPins, {}});
  circuit.add({kSettingParts, kSettingPins, kSettingNets});
  if (!pwm) addTimingSwitches(circuit, 540, "SW8", "RN5 10kΩ×2");
  for (int bit = 0; bit < 3; ++bit) {
    // A closed switch is low.
    circuit.add(Part{kAlways, mode >> bit & 1 ? Kind::kSwitch : Kind::kClosed, 62, 392 + 16 * bit, 52});
  }
  circuit.add({kMotorParts, kMotorPins, kMotorNets});
  addPins(circuit, kPatterns[mode]);
  addPower(circuit, 850, 668);
  circuit.addTitle("QVT50 入出力基板", kModes[mode], "ZV-50-" + std::to_string(mode));
  return circuit;
}

}  // namespace schematics
