// The settings that are made with a list.

#include "panel/panel.h"
#include "support/panelFixture.h"
#include "ui/desk.h"

namespace zelvs {
namespace {

class ListsTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    start();
  }
};

std::vector<std::string> rowsOf(const ComboBox& list) {
  std::vector<std::string> rows;
  for (int i = 0; i < list.ListCount(); ++i)
    rows.push_back(list.List(i));
  return rows;
}

using Rows = std::vector<std::string>;

TEST_F(ListsTest, TextsOfTheFixedLists) {
  EXPECT_EQ(rowsOf(frmHard->cmbCPUType),
            (Rows{"16bit-Bus Little", " 8bit-Bus Little", "16bit-Bus  Big  ", " 8bit-Bus  Big  "}));
  EXPECT_EQ(rowsOf(frmHard->cmbClock(0)), (Rows{"48Mhz", "24MHz", "12Mhz"}));
  for (const int i : {1, 2, 3})
    EXPECT_EQ(rowsOf(frmHard->cmbClock(i)), (Rows{"48MHz", "24MHz", "12MHz"}));
  EXPECT_EQ(rowsOf(frmHard->cmbIOS), (Rows{"0 DI=16bit", "1 DI=12bit DO= 4bit", "2 DI= 8bit DO= 8bit",
                                           "3 DI= 4bit DO=12bit", "4 DI= 2bit DO=14bit", "5 DO=16bit",
                                           "6 DI= 8bit DO= 4bit & PWM ", "7 DI= 4bit DO= 4bit & PWM + Counter"}));
  EXPECT_EQ(rowsOf(frmHard->cmbMode), (Rows{"0 フリーカウント", "1 内部ゲート1", "2 内部ゲート2", "3 外部ゲート"}));
}

TEST_F(ListsTest, AddressListsRunFrom01To3F) {
  for (int list = 0; list < 3; ++list) {
    const ComboBox& combo = frmHard->cmbSA(list);
    ASSERT_EQ(combo.ListCount(), 63);
    const std::pair<int, const char*> rows[] = {{0, "0x01"}, {8, "0x09"}, {9, "0x0A"}, {15, "0x10"}, {62, "0x3F"}};
    for (const auto& [row, text] : rows)
      EXPECT_EQ(combo.List(row), text);
  }
}

// ---- Opening and closing

class OpenerTest : public ListsTest, public testing::WithParamInterface<std::string> {
 protected:
  PictureBox& picture() const {
    auto* control = frmHard->find(pictureName(), pictureIndex());
    return static_cast<PictureBox&>(*control);
  }
  std::string pictureName() const { return GetParam().substr(0, GetParam().find(' ')); }
  int pictureIndex() const {
    const auto blank = GetParam().find(' ');
    return blank == std::string::npos ? -1 : std::stoi(GetParam().substr(blank + 1));
  }
  ComboBox& list() const {
    const std::string name = pictureName();
    if (name == "picSA") return frmHard->cmbSA(pictureIndex() / 2);
    if (name == "picClock") return frmHard->cmbClock(pictureIndex());
    if (name == "picCPU") return frmHard->cmbCPUType;
    if (name == "picIOS") return frmHard->cmbIOS;
    return frmHard->cmbMode;
  }
  void expectPointer(int image) const {
    const std::string pointer = "ilsMouse " + std::to_string(pictureName() == "picMode" ? 2 : image);
    EXPECT_EQ(shown(picture().MouseIcon), pointer);
    if (pictureName() != "picSA") return;
    EXPECT_EQ(shown(frmHard->picSA(pictureIndex() ^ 1).MouseIcon), pointer) << "the pair goes together";
  }
};

TEST_P(OpenerTest, ADoubleClickOpensAndThePicturesClickCloses) {
  EXPECT_FALSE(list().Visible);
  expectPointer(2);
  doubleClick(picture());
  EXPECT_TRUE(list().Visible);
  EXPECT_EQ(desk().focused(), &list());
  expectPointer(1);
  click(picture());
  EXPECT_FALSE(list().Visible);
  expectPointer(2);
}

TEST_P(OpenerTest, ASingleClickOnAClosedListOpensNothing) {
  click(picture());
  EXPECT_FALSE(list().Visible);
  expectPointer(2);
  EXPECT_TRUE(asked.empty());
}

TEST_P(OpenerTest, PickingARowCloses) {
  for (const int row : {1, 1, 0}) {
    doubleClick(picture());
    EXPECT_EQ(gesture::pick(list(), row), "");
    EXPECT_FALSE(list().Visible) << row;
    expectPointer(2);
  }
}

TEST_P(OpenerTest, LeavingTheListForAnotherControlTakesOverAndCloses) {
  doubleClick(picture());
  press(frmHard->picNoise);
  EXPECT_FALSE(list().Visible);
  expectPointer(2);
  release(frmHard->picNoise);
}

TEST_P(OpenerTest, AClickBesideTheListCloses) {
  doubleClick(picture());
  EXPECT_EQ(gesture::click(*frmHard, nullptr), "");  // the bare table
  EXPECT_FALSE(list().Visible);
  expectPointer(2);
  doubleClick(picture());
  click(frmHard->lblBoardName(0));
  EXPECT_FALSE(list().Visible);
}

TEST_P(OpenerTest, ArrowsMoveTheMarkAndEnterPicksIt) {
  const int before = list().ListIndex;
  doubleClick(picture());
  for (const int code : {key::kDown, key::kDown, key::kUp})
    EXPECT_EQ(gesture::keyDown(list(), code), "");
  EXPECT_TRUE(list().Visible) << "the arrows pick nothing yet";
  EXPECT_EQ(list().ListIndex, before);
  const int marked = list().Marked;
  EXPECT_GE(marked, 0);
  EXPECT_EQ(gesture::keyDown(list(), key::kEnter), "");
  EXPECT_FALSE(list().Visible);
  EXPECT_EQ(list().ListIndex, pictureName() == "picMode" ? 0 : marked);
}

TEST_P(OpenerTest, EscapeCloses) {
  doubleClick(picture());
  EXPECT_EQ(gesture::keyDown(list(), key::kEscape), "");
  EXPECT_FALSE(list().Visible);
  expectPointer(2);
}

INSTANTIATE_TEST_SUITE_P(Pictures, OpenerTest,
                         testing::Values("picClock 1", "picClock 2", "picClock 3", "picSA 0", "picSA 1", "picSA 2",
                                         "picSA 3", "picSA 4", "picSA 5", "picCPU", "picIOS", "picMode"),
                         [](const auto& row) {
                           std::string name = row.param;
                           std::erase(name, ' ');
                           return name;
                         });

TEST_F(ListsTest, TheCentersClockCannotBeOpened) {
  doubleClick(frmHard->picClock(0));
  EXPECT_FALSE(frmHard->cmbClock(0).Visible);
  EXPECT_EQ(frmHard->lblClock(0).Caption, std::string_view("48MHz"));
  EXPECT_EQ(frmHard->picClock(0).MousePointer, 0) << "it keeps the normal pointer";
}

TEST_F(ListsTest, AListSetFromCodeHidesButIsNotTakenOver) {
  frmHard->cmbSA(0).ListIndex = 20;
  EXPECT_EQ(saSetting[0], 1);
  frmHard->cmbClock(1).ListIndex = 2;
  EXPECT_EQ(clockSetting[1], 0);
}

// ---- Addresses

TEST_F(ListsTest, EveryAddressGoesToItsSwitchesAndItsSetting) {
  // Nobody is on the line, so that no address collides.
  for (const int connector : {0, 1, 3})
    frmHard->picBOARD2_RXD(connector).Tag = "0";
  for (int list = 0; list < 3; ++list) {
    for (int station = 1; station <= 63; ++station) {
      const int others[] = {saSetting[0], saSetting[1], saSetting[2]};
      chooseAddress(list, station);
      for (int i = 0; i < 3; ++i)
        EXPECT_EQ(saSetting[i], i == list ? station : others[i]);
      EXPECT_EQ(shown(frmHard->picSA(2 * list).Picture), "ilsRSW " + std::to_string(station / 16 + 1));
      EXPECT_EQ(shown(frmHard->picSA(2 * list + 1).Picture), "ilsRSW " + std::to_string(station % 16 + 1));
    }
  }
  EXPECT_TRUE(asked.empty());
}

TEST_F(ListsTest, TheMakersSettingGivesStationsOneToFive) {
  EXPECT_EQ(saSetting[0], 1);
  EXPECT_EQ(saSetting[1], 3);
  EXPECT_EQ(saSetting[2], 5);
  chipMemory[kScrLow] = 5;
  for (int station = 1; station <= 5; ++station) {
    simulationStep();
    EXPECT_EQ(chipMemory[2 * station + 1], 0) << station;
  }
}

TEST_F(ListsTest, AnAddressMayChangeDuringAScanAndCountsFromTheNextStep) {
  simulationStep();
  ASSERT_EQ(continuousScanActive, kTrue);
  chooseAddress(2, 4 + 5);
  EXPECT_EQ(takeMessage(), "");
  EXPECT_EQ(saSetting[2], 9);
  for (int i = 0; i < 4; ++i)
    simulationStep();
  EXPECT_NE(chipMemory[2 * 5 + 1], 0) << "nobody is at 5 any more";
}

// ---- Equal addresses

struct DuplicateRow {
  const char* name;
  int addresses[3];
  bool links[3];
  bool bridges[2];
  int first;  // 0: no warning
  int second;
};

class DuplicateTest : public ListsTest, public testing::WithParamInterface<DuplicateRow> {};

TEST_P(DuplicateTest, TheFirstPairOnTheLineIsTold) {
  const DuplicateRow& row = GetParam();
  constexpr int kConnector[] = {0, 1, 3};
  for (int i = 0; i < 3; ++i) {
    frmHard->cmbSA(i).ListIndex = row.addresses[i] - 1;
    // What was never touched is as little on the line as what was pulled.
    frmHard->picBOARD2_RXD(kConnector[i]).Tag = row.links[i] ? "1" : i == 1 ? "" : "0";
  }
  for (int i = 0; i < 2; ++i)
    frmHard->picBridge(i).Visible = row.bridges[i];
  chkSADup();
  if (row.first == 0) {
    EXPECT_TRUE(asked.empty());
    return;
  }
  const Asked box = theBox();
  EXPECT_EQ(box.title, kWarning);
  EXPECT_FALSE(box.twoButtons);
  EXPECT_EQ(box.message, "ボード" + std::to_string(row.first) + "と、ボード" + std::to_string(row.second) +
                             "のＳＡが重複しています｡正常な通信が行えません｡ ");
  startupDone = kFalse;
  chkSADup();
  EXPECT_TRUE(asked.empty()) << "not while the program loads";
}

INSTANTIATE_TEST_SUITE_P(
    Settings, DuplicateTest,
    testing::Values(DuplicateRow{"Maker", {1, 3, 5}, {true, true, true}, {true, true}, 0, 0},
                    DuplicateRow{"Masters", {7, 7, 5}, {true, true, true}, {false, false}, 1, 3},
                    DuplicateRow{"MastersWithSlaves", {7, 7, 5}, {true, true, true}, {true, true}, 1, 3},
                    DuplicateRow{"Slave2Master3", {2, 3, 9}, {true, true, true}, {true, false}, 2, 3},
                    DuplicateRow{"NoSlave2", {2, 3, 9}, {true, true, true}, {false, false}, 0, 0},
                    DuplicateRow{"Master1Slave4", {4, 3, 9}, {true, true, true}, {false, true}, 1, 4},
                    DuplicateRow{"Master1Io", {5, 10, 5}, {true, true, true}, {true, true}, 1, 5},
                    DuplicateRow{"Slave2Io", {4, 10, 5}, {true, true, true}, {true, true}, 2, 5},
                    DuplicateRow{"Master3Io", {1, 5, 5}, {true, true, true}, {true, true}, 3, 5},
                    DuplicateRow{"Slave4Io", {1, 4, 5}, {true, true, true}, {true, true}, 4, 5},
                    DuplicateRow{"AllEqual", {6, 6, 6}, {true, true, true}, {false, false}, 1, 3},
                    DuplicateRow{"FirstPulled", {7, 7, 5}, {false, true, true}, {true, true}, 0, 0},
                    DuplicateRow{"SecondUntouched", {7, 7, 5}, {true, false, true}, {true, true}, 0, 0},
                    DuplicateRow{"IoPulled", {5, 10, 5}, {true, true, false}, {true, true}, 0, 0},
                    DuplicateRow{"PulledTakesSlaveAlong", {2, 3, 9}, {false, true, true}, {true, true}, 0, 0},
                    DuplicateRow{"EachCableByItself", {1, 5, 5}, {false, true, true}, {true, true}, 3, 5},
                    DuplicateRow{"NobodyOnTheLine", {7, 7, 7}, {false, false, false}, {true, true}, 0, 0},
                    DuplicateRow{"SlaveAt64", {63, 3, 9}, {true, true, true}, {true, true}, 0, 0}),
    [](const auto& row) { return row.param.name; });

TEST_F(ListsTest, AnAddressChangeWarnsAndStays) {
  chooseAddress(1, 1);
  const Asked box = theBox();
  EXPECT_EQ(box.title, "   警 告");
  EXPECT_EQ(box.message, "ボード1と、ボード3のＳＡが重複しています｡正常な通信が行えません｡ ");
  EXPECT_EQ(saSetting[1], 1);
}

TEST_F(ListsTest, PluggingASlaveOntoATakenAddressWarns) {
  doubleClick(frmHard->picBridge(0));
  doubleClick(frmHard->picBridge(1));
  chooseAddress(0, 2);
  EXPECT_TRUE(asked.empty());
  doubleClick(frmHard->picFConn(0));
  EXPECT_EQ(theBox().message, "ボード2と、ボード3のＳＡが重複しています｡正常な通信が行えません｡ ");
  EXPECT_TRUE(frmHard->picBridge(0).Visible);
}

TEST_F(ListsTest, AMasterAtTheLastAddressMayHaveASlave) {
  chooseAddress(0, 63);
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(saSetting[0], 63);
  EXPECT_TRUE(frmHard->picBridge(0).Visible);
}

// ---- Clocks and BPSS

TEST_F(ListsTest, EveryClockGoesToItsLabelAndItsSetting) {
  const char* texts[] = {"48MHz", "24MHz", "12MHz"};
  for (const int i : {1, 2, 3}) {
    for (const int row : {2, 1, 0}) {
      choose(frmHard->picClock(i), frmHard->cmbClock(i), row);
      EXPECT_EQ(frmHard->lblClock(i).Caption, std::string_view(texts[row]));
      EXPECT_EQ(clockSetting[i], row);
    }
  }
  EXPECT_EQ(clockSetting[0], 0);
}

TEST_F(ListsTest, BpssAddsOneStepToBoard5sClock) {
  EXPECT_EQ(frmHard->lblPBPSS.Caption, std::string_view("BPSS-L"));
  choose(frmHard->picClock(3), frmHard->cmbClock(3), 2);
  doubleClick(frmHard->picBPSS);
  EXPECT_EQ(clockSetting[3], 3);
  EXPECT_EQ(shown(frmHard->picBPSS.Picture), "ilsDIP1 4");
  EXPECT_EQ(frmHard->picBPSS.Tag, std::string_view("1"));
  EXPECT_EQ(frmHard->lblPBPSS.Caption, std::string_view("BPSS-H"));
  for (const int row : {0, 1, 2}) {
    choose(frmHard->picClock(3), frmHard->cmbClock(3), row);
    EXPECT_EQ(clockSetting[3], row + 1);
  }
  choose(frmHard->picClock(1), frmHard->cmbClock(1), 1);
  EXPECT_EQ(clockSetting[1], 1) << "BPSS is board 5's alone";
  doubleClick(frmHard->picBPSS);
  EXPECT_EQ(clockSetting[3], 2);
  EXPECT_EQ(shown(frmHard->picBPSS.Picture), "ilsDIP1 3");
  EXPECT_EQ(frmHard->picBPSS.Tag, std::string_view("0"));
  EXPECT_EQ(frmHard->lblPBPSS.Caption, std::string_view("BPSS-L"));
}

TEST_F(ListsTest, BpssLowDoesNotTakeTheClockBelowZero) {
  doubleClick(frmHard->picBPSS);
  clockSetting[3] = 0;
  doubleClick(frmHard->picBPSS);
  EXPECT_EQ(clockSetting[3], 0);
}

TEST_F(ListsTest, WithBpssHighBoard5AnswersTheCentersSlowerClock) {
  doubleClick(frmHard->picBPSS);
  chipMemory[kBcrLow] = 0x12;
  chipMemory[kScrLow] = 5;
  for (int i = 0; i < 5; ++i)
    simulationStep();
  EXPECT_EQ(chipMemory[2 * 5 + 1], 0);
  EXPECT_NE(chipMemory[2 * 1 + 1], 0);
}

// ---- CPU, IOS and counter mode

TEST_F(ListsTest, EveryCpuTypeIsTakenOver) {
  for (const int row : {3, 2, 1, 0}) {
    choose(frmHard->picCPU, frmHard->cmbCPUType, row);
    EXPECT_EQ(cpuType, row);
  }
}

TEST_F(ListsTest, EveryIosModeIsTakenOver) {
  for (const int row : {0, 1, 2, 3, 4, 5, 6, 7}) {
    choose(frmHard->picIOS, frmHard->cmbIOS, row);
    EXPECT_EQ(ioBoardMode, row);
    EXPECT_EQ(shown(frmHard->picIOS.Picture), "ilsDIP3 " + std::to_string(row + 1));
    EXPECT_FALSE(frmHard->cmbIOS.Visible);
  }
}

TEST_F(ListsTest, AnIosChangeShowsTheLatchedWordOnTheNewOutputs) {
  ioBoardDo = 0xA5A5;
  choose(frmHard->picIOS, frmHard->cmbIOS, 2);
  for (int bit = 0; bit < 16; ++bit) {
    const char* tag = bit < 8 ? "I0" : (0xA5A5 >> bit & 1) != 0 ? "O1" : "O0";
    EXPECT_EQ(frmHard->picPI(64 + bit).Tag, std::string_view(tag)) << bit;
  }
}

TEST_F(ListsTest, EveryCounterModeIsADeadEnd) {
  for (const int row : {0, 1, 2, 3}) {
    choose(frmHard->picMode, frmHard->cmbMode, row);
    const Asked box = theBox();
    EXPECT_EQ(box.title, kWarning);
    EXPECT_FALSE(box.twoButtons);
    EXPECT_EQ(box.message, "ＱＶＴ５０のカウンタモードの、０以外の動作はユーザーズマニュアルをご参照ください。");
    EXPECT_EQ(frmHard->cmbMode.ListIndex, 0);
    EXPECT_EQ(ioBoardCounterMode, 0);
    EXPECT_FALSE(frmHard->cmbMode.Visible);
  }
}

TEST_F(ListsTest, LeavingTheCounterModeListBringsTheMessageToo) {
  doubleClick(frmHard->picMode);
  press(frmHard->picNoise);
  EXPECT_EQ(asked.size(), 1u);
}

// ---- Stored settings

TEST_F(PanelTest, StoredSettingsMoveTheLists) {
  start({{"SA-QVT40-1", "15"},
         {"SA-QVT40-3", "61"},
         {"SA-QVT50", "0"},
         {"CLOCK-QVT60", "2"},
         {"CLOCK-QVT40-1", "1"},
         {"CLOCK-QVT40-3", "2"},
         {"CLOCK-QVT50", "1"},
         {"CPUTYPE", "3"},
         {"IOS-QVT50", "2"}});
  const int stations[] = {16, 62, 1};
  const char* digits[] = {"ilsRSW 2", "ilsRSW 1", "ilsRSW 4", "ilsRSW 15", "ilsRSW 1", "ilsRSW 2"};
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(saSetting[i], stations[i]);
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(shown(frmHard->picSA(i).Picture), digits[i]) << i;
  EXPECT_EQ(frmHard->lblClock(0).Caption, std::string_view("48MHz"));
  EXPECT_EQ(clockSetting[0], 2) << "the center's setting is left to the chip";
  EXPECT_EQ(frmHard->cmbClock(0).ListIndex, 2);
  EXPECT_EQ(frmHard->lblClock(1).Caption, std::string_view("24MHz"));
  EXPECT_EQ(frmHard->lblClock(2).Caption, std::string_view("12MHz"));
  EXPECT_EQ(frmHard->lblClock(3).Caption, std::string_view("24MHz"));
  EXPECT_EQ(frmHard->cmbCPUType.ListIndex, 3);
  EXPECT_EQ(cpuType, 3);
  EXPECT_EQ(shown(frmHard->picIOS.Picture), "ilsDIP3 3");
  EXPECT_TRUE(asked.empty());
}

TEST_F(PanelTest, EqualAddressesInTheFileDoNotWarnWhileLoading) {
  start({{"SA-QVT40-3", "0"}});
  EXPECT_TRUE(asked.empty());
  chkSADup();
  EXPECT_EQ(asked.size(), 1u);
}

}  // namespace
}  // namespace zelvs
