#include <algorithm>
#include <set>

#include "monitor/frmRegister.h"
#include "monitor/windowRefresh.h"
#include "panel/resets.h"
#include "support/engineFixture.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class ResetsTest : public EngineTest {};

void fillChip(int byte) {
  for (int address = 0; address < kChipMemorySize; ++address)
    chipMemory[address] = static_cast<std::uint8_t>(byte);
}

/// Every shared variable by name, with its index where it has one.
std::map<std::string, std::int64_t> allVariables() {
  std::map<std::string, std::int64_t> values;
  for (const VariableName& variable : variableNames()) {
    for (int i = 0; i < std::max(variable.count, 1); ++i) {
      const int index = variable.firstIndex + i;
      const std::string suffix = variable.count == 0 ? "" : "(" + std::to_string(index) + ")";
      values[std::string(variable.name) + suffix] = variable.read(index);
    }
  }
  return values;
}

TEST_F(ResetsTest, ClearingZeroesTheMemoryAndWhatTheWindowsShow) {
  fillChip(0xA5);
  std::fill(chipMemoryShown.begin(), chipMemoryShown.end(), std::uint8_t{0x5A});
  forceMemoryRepaint = kTrue;
  clearChipMemory();
  for (int address = 0; address < kChipMemorySize; ++address) {
    ASSERT_EQ(chipMemory[address], 0) << address;
    ASSERT_EQ(chipMemoryShown[address], 0) << address;
  }
  EXPECT_EQ(forceMemoryRepaint, kFalse);
}

TEST_F(ResetsTest, RandomBytesFillTheDataAreaInRisingOrder) {
  fillChip(0xEE);
  std::fill(chipMemoryShown.begin(), chipMemoryShown.end(), std::uint8_t{0x5A});
  // u times 256, cut and not rounded.
  for (const double u : {0.0, 0.00390624, 0.00390625, 0.5, 0.998, 0.999999})
    queueRandom(u);
  randomizeChipMemory();
  const int first[] = {0, 0, 1, 128, 255, 255};
  for (int address = 0; address < 6; ++address)
    EXPECT_EQ(chipMemory[address], first[address]) << address;
  std::set<int> values;
  for (int address = 0; address <= 0x57F; ++address)
    values.insert(chipMemory[address]);
  EXPECT_GT(values.size(), 200u);
  for (int address = 0x580; address < kChipMemorySize; ++address)
    ASSERT_EQ(chipMemory[address], 0xEE) << address;
  for (int address = 0; address < kChipMemorySize; ++address)
    ASSERT_EQ(chipMemoryShown[address], 0x5A) << address;
}

TEST_F(ResetsTest, TheLastByteOfTheDataAreaIsDrawnToo) {
  for (int i = 0; i < 1408; ++i)
    queueRandom(i == 1407 ? 0.75 : 0.25);
  randomizeChipMemory();
  EXPECT_EQ(chipMemory[0x57E], 64);
  EXPECT_EQ(chipMemory[0x57F], 192);
  EXPECT_EQ(chipMemory[0x580], 0);
}

struct RegisterResetCase {
  int transfer;
  int bcr;
  int jumper;
};

class RegisterResetTest : public EngineTest, public testing::WithParamInterface<RegisterResetCase> {};

TEST_P(RegisterResetTest, RegistersTakeTheirResetValues) {
  const auto [transfer, bcr, jumper] = GetParam();
  frmRegister->hide();
  fillChip(0xEE);
  std::fill(registerLowShown.begin(), registerLowShown.end(), std::uint8_t{0x77});
  boardFullHalf = 99;
  transferSetting[0] = static_cast<std::int16_t>(transfer);
  resetCenterRegisters();
  for (int address = 0x580; address <= 0x58D; ++address)
    EXPECT_EQ(chipMemory[address], 0) << address;
  EXPECT_EQ(chipMemory[0x58E], bcr);
  EXPECT_EQ(chipMemory[0x58F], 0);
  const int name[] = {0x51, 0x56, 0x54, 0x36, 0x30, 0x20};
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(chipMemory[0x590 + i], name[i]);
  EXPECT_EQ(chipMemory[0x57F], 0xEE);
  EXPECT_EQ(chipMemory[0x596], 0xEE);
  EXPECT_EQ(chipMemory[0x7FF], 0xEE);
  EXPECT_EQ(boardFullHalf, jumper);
  EXPECT_EQ(registerLowShown[8], bcr);
  EXPECT_EQ(registerLowShown[1], 0x77) << "only BCR is taken as shown";
}

INSTANTIATE_TEST_SUITE_P(Transfer, RegisterResetTest,
                         testing::Values(RegisterResetCase{0, 0x13, 16}, RegisterResetCase{1, 0x03, 0},
                                         RegisterResetCase{7, 0x03, 0}));

TEST_F(ResetsTest, AResetDoesNotColourBcrButColoursTheOtherRows) {
  ASSERT_TRUE(frmRegister->visible());
  refreshRegisterWindow();
  chipMemory[0x58A] = 9;
  chipMemory[0x58E] = 0x11;
  refreshRegisterWindow();
  for (const int row : {6, 8}) {
    frmRegister->lblValL(row).Tag = "";
    frmRegister->lblValL(row).ForeColor = kBlack;
  }
  resetCenterRegisters();
  EXPECT_EQ(frmRegister->lblValL(8).Caption, std::string_view("13"));
  EXPECT_EQ(frmRegister->lblValL(8).ForeColor, kBlack);
  EXPECT_EQ(frmRegister->lblValL(8).Tag, std::string_view(""));
  EXPECT_EQ(frmRegister->lblValL(6).ForeColor, kRed);
  EXPECT_EQ(frmRegister->lblValL(6).Tag, std::string_view("4"));
}

TEST_F(ResetsTest, TheSimulationResetZeroesItsVariablesAndNoOther) {
  const std::set<std::string> zeroed = {
      "intLinePictureShown", "intLinePicture",      "chk1LedTimer",      "chk2LedTimer",       "monLedTimer",
      "diChangedThisCycle",  "serialRoseThisCycle", "errorThisCycle",    "c1CountedThisCycle", "c2CountedThisCycle",
      "writeTempHighValid",  "writeTempLowValid",   "writeTempHighByte", "writeTempLowByte",   "boardDo",
      "ioBoardDo",           "ioBoardDoLow",        "boardClrHeld",      "ioBoardClrHeld",     "boardResetHeld",
      "ioBoardResetHeld",    "serialPending",       "serialData",        "serialEditBoard",    "boardDi",
      "boardCounters",       "noiseHeld",           "noiseHoldOff",      "ioBoardMode",        "ioBoardCounterMode",
      "beltFrame",           "triangleFrame",       "motorReverse"};
  for (const VariableName& variable : variableNames()) {
    for (int i = 0; i < std::max(variable.count, 1); ++i)
      variable.write(variable.firstIndex + i, 1);
  }
  resetSimulationState();
  std::size_t seen = 0;
  for (const VariableName& variable : variableNames()) {
    const bool listed = zeroed.contains(std::string(variable.name));
    if (listed) ++seen;
    for (int i = 0; i < std::max(variable.count, 1); ++i)
      EXPECT_EQ(variable.read(variable.firstIndex + i), listed ? 0 : 1) << variable.name << " " << i;
  }
  EXPECT_EQ(seen, zeroed.size());
}

TEST_F(ResetsTest, TheCenterButtonStopsTheScanAndBringsFullDuplexBack) {
  transferSetting[0] = 1;
  chipMemory[kScrLow] = 5;
  steps(3);
  ASSERT_EQ(frmHard->picScanLed.Tag, std::string_view("1"));
  oneShotScanActive = kTrue;
  gesture::doubleClick(*frmHard, &frmHard->picReset(0));
  EXPECT_EQ(continuousScanActive, kFalse);
  EXPECT_EQ(oneShotScanActive, kFalse);
  EXPECT_EQ(currentStation, 0);
  EXPECT_EQ(frmHard->picScanLed.Tag, std::string_view("0"));
  EXPECT_EQ(shown(frmHard->picScanLed.Picture), "ilsLED_G 1");
  EXPECT_EQ(chipMemory[kScrLow], 0);
  EXPECT_EQ(chipMemory[kBcrLow], 0x13);
  EXPECT_EQ(boardFullHalf, 0) << "the jumper stays where half duplex put it";
  const auto before = allVariables();
  steps(5);
  EXPECT_EQ(allVariables(), before) << "nothing polls any more";
}

TEST_F(ResetsTest, VariablesKeepTheirWidthAndSign) {
  const std::map<std::string, std::pair<int, bool>> shapes = {
      {"chipMemory", {1, false}},        {"registerLowShown", {1, false}}, {"boardFullHalf", {1, false}},
      {"currentStation", {1, false}},    {"polledCommand", {1, false}},    {"polledRetryFlag", {1, false}},
      {"ioBoardDoLow", {1, false}},      {"boardDi", {1, false}},          {"boardCounters", {1, false}},
      {"serialData", {1, false}},        {"boardDo", {4, true}},           {"ioBoardDo", {4, true}},
      {"mdiClientHandle", {4, true}},    {"finalStation", {2, true}},      {"noiseHeld", {2, true}},
      {"answeringBoard", {2, true}},     {"saSetting", {2, true}},         {"continuousScanActive", {2, true}},
      {"controlWordAddress", {2, true}}, {"processStep", {2, true}}};
  std::size_t seen = 0;
  for (const VariableName& variable : variableNames()) {
    const auto row = shapes.find(std::string(variable.name));
    if (row == shapes.end()) continue;
    ++seen;
    EXPECT_EQ(variable.width, row->second.first) << variable.name;
    EXPECT_EQ(variable.isSigned, row->second.second) << variable.name;
  }
  EXPECT_EQ(seen, shapes.size());
}

TEST_F(ResetsTest, ArraysHaveTheirFirstAndLastIndex) {
  const std::map<std::string, std::pair<int, int>> bounds = {
      {"chipMemory", {0, 2047}},     {"chipMemoryShown", {0, 2047}}, {"registerLowShown", {1, 8}},
      {"registerHighShown", {1, 8}}, {"saSetting", {0, 2}},          {"clockSetting", {0, 3}},
      {"cascadeSetting", {1, 2}},    {"transferSetting", {0, 4}},    {"openWindow", {1, 5}},
      {"boardDo", {0, 4}},           {"boardClrHeld", {0, 4}},       {"boardResetHeld", {0, 4}},
      {"boardDi", {0, 9}},           {"boardCounters", {0, 49}},     {"serialPending", {0, 3}},
      {"serialData", {0, 7}}};
  std::size_t seen = 0;
  for (const VariableName& variable : variableNames()) {
    const auto row = bounds.find(std::string(variable.name));
    ASSERT_EQ(row != bounds.end(), variable.count != 0) << variable.name;
    if (row == bounds.end()) continue;
    ++seen;
    EXPECT_EQ(variable.firstIndex, row->second.first) << variable.name;
    EXPECT_EQ(variable.firstIndex + variable.count - 1, row->second.second) << variable.name;
  }
  EXPECT_EQ(seen, bounds.size());
}

}  // namespace
}  // namespace zelvs
