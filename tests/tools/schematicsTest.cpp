// The schematics: a circuit with a fault is found, the boards have none, and an overlay fits its board.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "tools/schematics/boards.h"

namespace schematics {
namespace {

using Faults = std::vector<std::string>;

const Part kLeft = {kAlways, Kind::kGround, 100, 100};
const Part kRight = {kAlways, Kind::kGround, 200, 100};

Circuit circuitOf(std::initializer_list<Part> parts, std::initializer_list<Net> nets,
                  std::initializer_list<Pin> pins = {}) {
  Circuit circuit(kAlways);
  for (const Part& part : parts)
    circuit.add(part);
  for (const Net& net : nets)
    circuit.add(net);
  for (const Pin& pin : pins)
    circuit.add(pin);
  return circuit;
}

TEST(Schematics, AWireFromLeadToLeadIsNoFault) {
  EXPECT_EQ(circuitOf({kLeft, kRight}, {{kAlways, {{{100, 100}, {200, 100}}}}}).faults(), Faults{});
}

TEST(Schematics, AWireThatEndsInTheAirIsFound) {
  EXPECT_EQ(circuitOf({kLeft}, {{kAlways, {{{100, 100}, {199, 100}}}}}).faults(),
            Faults{"a net ends in the air at 199, 100"});
  // A wire may end on another wire's middle, but not beside it.
  const Net across = {kAlways, {{{100, 100}, {200, 100}}}};
  EXPECT_EQ(
      circuitOf({kLeft, kRight, {kAlways, Kind::kGround, 150, 160}}, {across, {kAlways, {{{150, 100}, {150, 160}}}}})
          .faults(),
      Faults{});
  EXPECT_EQ(
      circuitOf({kLeft, kRight, {kAlways, Kind::kGround, 150, 160}}, {across, {kAlways, {{{150, 101}, {150, 160}}}}})
          .faults(),
      Faults{"a net ends in the air at 150, 101"});
}

TEST(Schematics, ALeadWithoutAWireIsFound) {
  EXPECT_EQ(circuitOf({kLeft}, {}).faults(), Faults{"lead GND is wired to nothing at 100, 100"});
  EXPECT_EQ(circuitOf({{kAlways, Kind::kResistor, 100, 100, 46, 0, "R1"}, kLeft}, {}).faults(),
            Faults{"lead R1 is wired to nothing at 146, 100"});
}

TEST(Schematics, AnOpenPinTakesOneWire) {
  const Part open = {kAlways, Kind::kOpen, 150, 100};
  EXPECT_EQ(circuitOf({kLeft, open}, {{kAlways, {{{100, 100}, {150, 100}}}}}).faults(), Faults{});
  EXPECT_EQ(circuitOf({kLeft, kRight, open}, {{kAlways, {{{100, 100}, {200, 100}}}}}).faults(),
            Faults{"an open pin is wired at 150, 100"});
}

TEST(Schematics, SlantedAndDoubledWiresAreFound) {
  const Faults slanted =
      circuitOf({kLeft, {kAlways, Kind::kOpen, 200, 60}}, {{kAlways, {{{100, 100}, {200, 60}}}}}).faults();
  EXPECT_NE(std::find(slanted.begin(), slanted.end(), "a net is slanted at 100, 100"), slanted.end());
  EXPECT_EQ(circuitOf({kLeft, kRight}, {{kAlways, {{{100, 100}, {200, 100}}}}, {kAlways, {{{120, 100}, {180, 100}}}}})
                .faults(),
            Faults{"two nets lie on each other at 100, 100 and at 120, 100"});
}

TEST(Schematics, AWireThroughAPartIsFound) {
  const Faults faults =
      circuitOf({kLeft, kRight, {kAlways, Kind::kBox, 140, 80, 20, 40, "U1"}}, {{kAlways, {{{100, 100}, {200, 100}}}}})
          .faults();
  EXPECT_EQ(std::count(faults.begin(), faults.end(), "a net runs through U1 at 100, 100"), 1);
}

TEST(Schematics, PartsInEachOtherAreFound) {
  const Faults faults =
      circuitOf({{kAlways, Kind::kArray, 100, 100, 60, 18, "RN1"}, {kAlways, Kind::kArray, 150, 110, 60, 18, "RN2"}},
                {})
          .faults();
  EXPECT_NE(std::find(faults.begin(), faults.end(), "parts RN1 and RN2 overlap at 100, 100"), faults.end());
}

TEST(Schematics, SupplyOnGroundIsFound) {
  const Part supply = {kAlways, Kind::kSupply, 200, 100};
  EXPECT_EQ(circuitOf({kLeft, supply}, {{kAlways, {{{100, 100}, {200, 100}}}}}).faults(),
            Faults{"supply at 200, 100 lies on ground at 100, 100"});
  // Through flags as well; a resistor between the two is none.
  EXPECT_EQ(
      circuitOf(
          {kLeft, supply, {kAlways, Kind::kFlag, 120, 100, 0, 0, "A"}, {kAlways, Kind::kFlag, 180, 100, -1, 0, "A"}},
          {{kAlways, {{{100, 100}, {120, 100}}}}, {kAlways, {{{180, 100}, {200, 100}}}}})
          .faults(),
      Faults{"supply at 200, 100 lies on ground at 100, 100"});
  EXPECT_EQ(circuitOf({kLeft, supply, {kAlways, Kind::kResistor, 120, 100, 60, 0, "R1"}},
                      {{kAlways, {{{100, 100}, {120, 100}}}}, {kAlways, {{{180, 100}, {200, 100}}}}})
                .faults(),
            Faults{});
}

TEST(Schematics, AFlagNeedsASecond) {
  EXPECT_EQ(circuitOf({kLeft, {kAlways, Kind::kFlag, 120, 100, 0, 0, "CLK"}}, {{kAlways, {{{100, 100}, {120, 100}}}}})
                .faults(),
            Faults{"flag CLK stands alone"});
}

TEST(Schematics, PinsStandOnTheirPartUnderOwnNumbers) {
  const Part chip = {kAlways, Kind::kBox, 20, 80, 80, 80, "U1"};
  const Part ground = {kAlways, Kind::kGround, 130, 140};
  const Net wires = {kAlways, {{{100, 100}, {130, 100}, {130, 140}}}};
  const Net second = {kAlways, {{{100, 120}, {130, 120}}}};
  const Pin a = {kAlways, Side::kRight, 100, 100, "A", 1};
  EXPECT_EQ(circuitOf({chip, ground}, {wires, second}, {a, {kAlways, Side::kRight, 100, 120, "B", 2}}).faults(),
            Faults{});
  EXPECT_EQ(circuitOf({chip, ground}, {wires, second}, {a, {kAlways, Side::kRight, 100, 120, "B", 1}}).faults(),
            Faults{"pins A and B of U1 have one number, 1"});
  const Faults faults = circuitOf({chip, ground}, {wires, {kAlways, {{{110, 120}, {130, 120}}}}},
                                  {a, {kAlways, Side::kRight, 110, 120, "B", 2}})
                            .faults();
  EXPECT_NE(std::find(faults.begin(), faults.end(), "pin B stands on no part at 110, 120"), faults.end());
}

TEST(Schematics, TextsKeepClear) {
  EXPECT_EQ(circuitOf({{kAlways, Kind::kNote, 100, 100, 0, 0, "AB"}, {kAlways, Kind::kNote, 111, 100, 0, 0, "C"}}, {})
                .faults(),
            Faults{"texts AB and C overlap at 100, 100"});
  EXPECT_EQ(circuitOf({{kAlways, Kind::kNote, 100, 100, 0, 0, "AB"}, {kAlways, Kind::kNote, 112, 100, 0, 0, "C"}}, {})
                .faults(),
            Faults{});
  EXPECT_EQ(
      circuitOf({kLeft, kRight, {kAlways, Kind::kNote, 140, 100, 0, 0, "AB"}}, {{kAlways, {{{100, 100}, {200, 100}}}}})
          .faults(),
      Faults{"a line at 100, 100 crosses text AB at 140, 100"});
  EXPECT_EQ(circuitOf({{kAlways, Kind::kNote, 1080, 100, 0, 0, "回線"}}, {}).faults(),
            Faults{"text 回線 leaves the sheet at 1080, 100"});
}

TEST(Schematics, WiresThatMeetGetADotAndWiresThatCrossGetNone) {
  const Net level = {kAlways, {{{100, 100}, {200, 100}}}};
  EXPECT_EQ(circuitOf({}, {level, {kAlways, {{{150, 50}, {150, 150}}}}}).dots(), std::vector<Point>{});
  EXPECT_EQ(circuitOf({}, {level, {kAlways, {{{150, 50}, {150, 100}}}}}).dots(), (std::vector<Point>{{150, 100}}));
  EXPECT_EQ(circuitOf({{kAlways, Kind::kGround, 150, 100}}, {level}).dots(), (std::vector<Point>{{150, 100}}));
  EXPECT_EQ(circuitOf({kLeft}, {level}).dots(), std::vector<Point>{});
}

TEST(Schematics, AllPicturesAreThereAndHaveNoFault) {
  std::set<std::string> names = {"QVT60_FULL_16BIT.BMP", "QVT60_FULL_8BIT.BMP", "QVT60_HALF_16BIT.BMP",
                                 "QVT60_HALF_8BIT.BMP",  "QVT40_FULL_NEST.BMP", "QVT40_FULL.BMP",
                                 "QVT40_NEST.BMP",       "Qvt40_add_half.bmp",  "Qvt50_add_half.bmp"};
  for (int mode = 0; mode < 8; ++mode)
    names.insert("QVT50_IOS_" + std::to_string(mode) + ".BMP");
  for (const Picture& picture : allPictures()) {
    EXPECT_EQ(names.erase(picture.file), 1u) << picture.file;
    EXPECT_EQ(picture.circuit.faults(), Faults{}) << picture.file;
  }
  EXPECT_EQ(names, std::set<std::string>{});
}

/// How often a text is on the sheet.
int countOf(const Circuit& circuit, const std::string& words) {
  return static_cast<int>(std::count_if(circuit.texts().begin(), circuit.texts().end(),
                                        [&](const Text& text) { return text.words == words; }));
}

TEST(Schematics, TheModeSaysWhatEachOfTheSixteenPinsIs) {
  struct Row {
    int firstOutput, lastOutput, firstInput, lastInput;  // none: -1
    bool pulses, counter;
  };
  constexpr Row kRows[] = {{-1, -1, 0, 15, false, false}, {12, 15, 0, 11, false, false}, {8, 15, 0, 7, false, false},
                           {4, 15, 0, 3, false, false},   {2, 15, 0, 1, false, false},   {0, 15, -1, -1, false, false},
                           {8, 11, 0, 7, true, false},    {8, 11, 0, 3, true, true}};
  for (int mode = 0; mode < 8; ++mode) {
    const Row& row = kRows[mode];
    const Circuit board = fiftyBoard(kFull, mode);
    for (int bit = 0; bit < 16; ++bit) {
      const std::string io = "IO" + std::to_string(bit) + "/";
      const std::string number = std::to_string(bit);
      EXPECT_EQ(countOf(board, io + "DO" + number), bit >= row.firstOutput && bit <= row.lastOutput) << mode << io;
      EXPECT_EQ(countOf(board, "LED" + number), bit >= row.firstOutput && bit <= row.lastOutput) << mode << io;
      EXPECT_EQ(countOf(board, io + "DI" + number), bit >= row.firstInput && bit <= row.lastInput) << mode << io;
    }
    for (const char* pulse : {"IO15/CWON", "IO14/CCWON", "IO13/CW-Pulse", "IO12/CCW-Pulse", "モータドライブ基板"})
      EXPECT_EQ(countOf(board, pulse), row.pulses) << mode << pulse;
    for (const char* counter : {"IO7/COUNT", "IO6/CLEAR", "IO5/GATE", "IO4/DIR"})
      EXPECT_EQ(countOf(board, counter), row.counter) << mode << counter;
  }
}

TEST(Schematics, EightDataLinesLeaveTheUpperOnesAndBheUnused) {
  const auto opens = [](const Circuit& circuit) {
    return std::count_if(circuit.strokes().begin(), circuit.strokes().end(),
                         [](const Stroke& stroke) { return stroke.at.w == 6 && stroke.at.h == -6; });
  };
  EXPECT_EQ(opens(centerBoard(kFull | kWide)), 0);
  EXPECT_EQ(opens(centerBoard(kFull | kNarrow)), 9);
}

/// What of a circuit is not wholly in the line part's place, or is.
std::multiset<std::string> itemsOf(const Circuit& circuit, bool within) {
  const auto inPlace = [](const Rect& r) {
    const auto in = [](int x, int y) {
      return x >= kLinePlace.x && x < kLinePlace.x + kLinePlace.w && y >= kLinePlace.y &&
             y < kLinePlace.y + kLinePlace.h;
    };
    return in(r.x, r.y) && in(r.x + r.w, r.y + r.h);
  };
  std::multiset<std::string> items;
  const auto note = [&](const Rect& r, const std::string& what) {
    if (inPlace(r) != within) return;
    items.insert(what + " " + std::to_string(r.x) + " " + std::to_string(r.y) + " " + std::to_string(r.w) + " " +
                 std::to_string(r.h));
  };
  for (const std::vector<Stroke>* strokes : {&circuit.wires(), &circuit.strokes()}) {
    for (const Stroke& stroke : *strokes)
      note(stroke.at, std::to_string(static_cast<int>(stroke.shape)) + std::to_string(static_cast<int>(stroke.fill)));
  }
  for (const Text& text : circuit.texts())
    note(text.extent(), text.words);
  for (const Point& dot : circuit.dots())
    note({dot.x - 2, dot.y - 2, 4, 4}, "dot");
  return items;
}

TEST(Schematics, HalfDuplexChangesNothingOutsideTheLinePart) {
  const Circuit half = fortyBoard(kHalf | kAlone);
  EXPECT_EQ(itemsOf(half, false), itemsOf(fortyBoard(kFull | kAlone), false));
  EXPECT_NE(itemsOf(half, true), itemsOf(fortyBoard(kFull | kAlone), true));
  EXPECT_EQ(itemsOf(half, true), itemsOf(fortyBoard(kHalf | kRibbon), true));
  EXPECT_EQ(itemsOf(fortyBoard(kHalf | kRibbon), false), itemsOf(fortyBoard(kFull | kRibbon), false));
  for (int mode = 0; mode < 8; ++mode) {
    EXPECT_EQ(itemsOf(fiftyBoard(kHalf, mode), false), itemsOf(fiftyBoard(kFull, mode), false)) << mode;
    EXPECT_EQ(itemsOf(fiftyBoard(kHalf, mode), true), itemsOf(fiftyBoard(kHalf, 0), true)) << mode;
  }
  EXPECT_NE(itemsOf(half, true), itemsOf(fiftyBoard(kHalf, 0), true));
}

#ifdef SCHEMATICS_FOLDER

/// A bitmap of 24 bits a pixel as the program folder has it.
struct Bitmap {
  std::string bytes;
  int width = 0, height = 0, bits = 0;

  explicit Bitmap(const std::string& name) {
    std::ifstream file(std::filesystem::path(SCHEMATICS_FOLDER) / name, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(file), {});
    if (bytes.size() < 54) return;
    width = number(18, 4);
    height = number(22, 4);
    bits = number(28, 2);
  }
  int number(std::size_t at, int length) const {
    int value = 0;
    for (int i = length - 1; i >= 0; --i)
      value = value * 256 + static_cast<unsigned char>(bytes[at + static_cast<std::size_t>(i)]);
    return value;
  }
  /// Rows are kept from the lowest upwards, each filled up to four bytes.
  int pixel(int x, int y) const {
    const int row = (width * 3 + 3) / 4 * 4;
    return number(static_cast<std::size_t>(number(10, 4) + (height - 1 - y) * row + x * 3), 3);
  }
};

TEST(SchematicFiles, AreBitmapsOfOneSize) {
  for (const Picture& picture : allPictures()) {
    const Bitmap bitmap(picture.file);
    EXPECT_EQ(bitmap.bits, 24) << picture.file;
    EXPECT_EQ(bitmap.width, picture.place.w) << picture.file;
    EXPECT_EQ(bitmap.height, picture.place.h) << picture.file;
    const bool overlay = picture.file.find("half") != std::string::npos;
    EXPECT_EQ(bitmap.width == kWidth && bitmap.height == kHeight, !overlay) << picture.file;
    EXPECT_LE(bitmap.width, kWidth) << picture.file;
    EXPECT_LE(bitmap.height, kHeight) << picture.file;
  }
}

TEST(SchematicFiles, AnOverlayHasNoSeam) {
  const auto compare = [](const char* overlayName, const std::string& mainName) {
    const Bitmap overlay(overlayName), main(mainName);
    ASSERT_GT(overlay.width, 0);
    ASSERT_GT(main.width, overlay.width);
    std::set<int> colours;
    for (int y = 0; y < overlay.height; ++y) {
      ASSERT_EQ(overlay.pixel(overlay.width - 1, y), main.pixel(overlay.width - 1, y)) << mainName << " row " << y;
      colours.insert(overlay.pixel(overlay.width - 1, y));
    }
    for (int x = 0; x < overlay.width; ++x)
      ASSERT_EQ(overlay.pixel(x, overlay.height - 1), main.pixel(x, overlay.height - 1)) << mainName << " column " << x;
    // The frame's line and the chip's three wires do cross the seam, and the two pictures do differ.
    EXPECT_GE(colours.size(), 3u);
    int differing = 0;
    for (int y = 0; y < overlay.height; ++y) {
      for (int x = 0; x < overlay.width; ++x)
        differing += overlay.pixel(x, y) != main.pixel(x, y);
    }
    EXPECT_GT(differing, 1000);
  };
  compare("Qvt40_add_half.bmp", "QVT40_FULL.BMP");
  compare("Qvt40_add_half.bmp", "QVT40_FULL_NEST.BMP");
  for (int mode = 0; mode < 8; ++mode)
    compare("Qvt50_add_half.bmp", "QVT50_IOS_" + std::to_string(mode) + ".BMP");
}

#endif

}  // namespace
}  // namespace schematics
