// Cables, slaves, jumpers and the noise button.

#include "support/panelFixture.h"

namespace zelvs {
namespace {

class CablingTest : public PanelTest {
 protected:
  void SetUp() override {
    PanelTest::SetUp();
    start();
  }

  /// "1 0 - | 0 1": the three links, then the center's two ports; "-" was never touched.
  static std::string tags() {
    const auto tag = [](const PictureBox& box) { return box.Tag.get().empty() ? std::string("-") : box.Tag.get(); };
    return tag(frmHard->picBOARD2_RXD(0)) + " " + tag(frmHard->picBOARD2_RXD(1)) + " " +
           tag(frmHard->picBOARD2_RXD(3)) + " | " + tag(frmHard->picBOARD1_RXD(0)) + " " +
           tag(frmHard->picBOARD1_RXD(1));
  }
  /// The terminators that show, as their indexes: "04".
  static std::string terminators() {
    std::string text;
    for (const PictureBox& resistor : frmHard->picTermR) {
      EXPECT_EQ(resistor.Visible.get(), frmHard->lblRt(resistor.index()).Visible.get());
      if (resistor.Visible) text += std::to_string(resistor.index());
    }
    return text;
  }
  static void expectCable(int cable, bool plugged) {
    EXPECT_EQ(shown(frmHard->picCableUp(cable).Picture), plugged ? "ilsCable 2" : "ilsCable 1") << cable;
    EXPECT_EQ(shown(frmHard->picCableDn(cable).Picture), plugged ? "ilsCable 4" : "ilsCable 3") << cable;
  }
  static void turn(int connector) { doubleClick(frmHard->picBOARD2_RXD(connector)); }
  static void turnPort(int port) { doubleClick(frmHard->picBOARD1_RXD(port)); }
};

TEST_F(CablingTest, WithTheMakersSettingsAllCablesArePlugged) {
  EXPECT_EQ(tags(), "1 1 1 | 1 0");
  for (const int cable : {0, 1, 2})
    expectCable(cable, true);
  EXPECT_EQ(frmHard->picCableUp(0).Top.get(), 24);
  EXPECT_EQ(terminators(), "04");
  for (const int handle : {2, 4, 5})
    EXPECT_EQ(frmHard->picBOARD2_RXD(handle).Tag, std::string_view("")) << handle;
}

struct TurnRow {
  const char* name;
  int connector;
  int cable;
  const char* pulled;
  const char* shownPulled;
  const char* pluggedAgain;
  const char* shownPlugged;
};

class BoardConnectorTest : public CablingTest, public testing::WithParamInterface<TurnRow> {};

TEST_P(BoardConnectorTest, PullsAndPlugsItsCable) {
  const TurnRow& row = GetParam();
  turn(row.connector);
  EXPECT_EQ(tags(), row.pulled);
  EXPECT_EQ(terminators(), row.shownPulled);
  for (const int cable : {0, 1, 2})
    expectCable(cable, cable != row.cable);
  turn(row.connector);
  EXPECT_EQ(tags(), row.pluggedAgain);
  EXPECT_EQ(terminators(), row.shownPlugged);
  for (const int cable : {0, 1, 2})
    expectCable(cable, true);
  EXPECT_EQ(frmHard->picCableUp(0).Top.get(), 24) << "the cable stays drawn where it was";
}

INSTANTIATE_TEST_SUITE_P(Connectors, BoardConnectorTest,
                         // Plugged from the board's side the cable counts as being in port 1, wherever it is drawn.
                         testing::Values(TurnRow{"C0", 0, 0, "0 1 1 | 0 0", "", "1 1 1 | 0 1", "14"},
                                         TurnRow{"C1", 1, 1, "1 0 1 | 1 0", "02", "1 1 1 | 1 0", "04"},
                                         TurnRow{"C2", 2, 1, "1 0 1 | 1 0", "02", "1 1 1 | 1 0", "04"},
                                         TurnRow{"C3", 3, 2, "1 1 0 | 1 0", "03", "1 1 1 | 1 0", "04"},
                                         TurnRow{"C4", 4, 2, "1 1 0 | 1 0", "03", "1 1 1 | 1 0", "04"}),
                         [](const auto& row) { return row.param.name; });

TEST_F(CablingTest, TheSecondConnectorOfBoard5HasNoCable) {
  frmHard->picTermR(3).Visible = true;
  frmHard->lblRt(3).Visible = true;
  turn(5);
  EXPECT_EQ(tags(), "1 1 1 | 1 0");
  EXPECT_EQ(terminators(), "04") << "the terminators are set anew";
  for (const int cable : {0, 1, 2})
    expectCable(cable, true);
  frmHard->cmbSA(1).ListIndex = 0;
  turn(5);
  EXPECT_EQ(asked.size(), 1u) << "and the addresses are checked";
}

TEST_F(CablingTest, PullingAtTheCenterClearsThatPortOnly) {
  turnPort(0);
  EXPECT_EQ(tags(), "0 1 1 | 0 0");
  EXPECT_EQ(terminators(), "");
  expectCable(0, false);
  turnPort(1);
  EXPECT_EQ(tags(), "1 1 1 | 0 1");
  EXPECT_EQ(frmHard->picCableUp(0).Top.get(), 62);
  EXPECT_EQ(terminators(), "14");
  frmHard->picBOARD1_RXD(0).Tag = "1";  // both, as the board's side can leave it
  turnPort(1);
  EXPECT_EQ(tags(), "0 1 1 | 1 0");
}

TEST_F(CablingTest, TheFreePortTakesTheCableAcrossWithoutACut) {
  turnPort(1);
  EXPECT_EQ(tags(), "1 1 1 | 0 1");
  EXPECT_EQ(terminators(), "14");
  EXPECT_EQ(frmHard->picCableUp(0).Top.get(), 62);
  turnPort(0);
  EXPECT_EQ(tags(), "1 1 1 | 1 0");
  EXPECT_EQ(terminators(), "04");
  EXPECT_EQ(frmHard->picCableUp(0).Top.get(), 24);
}

TEST_F(CablingTest, ACableDrawnAt30WouldCountAsPort0) {
  turn(0);
  frmHard->picCableUp(0).Top = 30;
  turn(0);
  EXPECT_EQ(tags(), "1 1 1 | 1 0");
}

TEST_F(CablingTest, PicturesOfCablesTurnTheirConnectors) {
  const struct {
    bool up;
    int cable;
    const char* pulled;
  } rows[] = {{true, 1, "1 0 1 | 1 0"}, {true, 2, "1 1 0 | 1 0"}, {false, 1, "1 0 1 | 1 0"}, {false, 2, "1 1 0 | 1 0"}};
  for (const auto& row : rows) {
    PictureBox& end = row.up ? frmHard->picCableUp(row.cable) : frmHard->picCableDn(row.cable);
    click(end);
    EXPECT_EQ(tags(), row.pulled);
    click(end);
    EXPECT_EQ(tags(), "1 1 1 | 1 0");
  }
}

TEST_F(CablingTest, TheUpperEndOfTheFirstCableActsOnThePortThatItIsDrawnAt) {
  click(frmHard->picCableUp(0));
  EXPECT_EQ(tags(), "0 1 1 | 0 0");
  click(frmHard->picCableUp(0));
  EXPECT_EQ(tags(), "1 1 1 | 1 0");
  turnPort(1);
  click(frmHard->picCableUp(0));
  EXPECT_EQ(tags(), "0 1 1 | 0 0");
  click(frmHard->picCableUp(0));
  EXPECT_EQ(tags(), "1 1 1 | 0 1");
  // Below 40 is port 0.
  for (const auto& [top, expected] : {std::pair{39.0, "0 1 1 | 0 1"}, std::pair{40.0, "0 1 1 | 1 0"}}) {
    frmHard->picBOARD1_RXD(0).Tag = frmHard->picBOARD1_RXD(1).Tag = "1";
    frmHard->picBOARD2_RXD(0).Tag = "1";
    frmHard->picCableUp(0).Top = top;
    click(frmHard->picCableUp(0));
    EXPECT_EQ(tags(), expected) << top;
  }
}

TEST_F(CablingTest, TheLowerEndOfTheFirstCableActsAsTheBoardsConnector) {
  click(frmHard->picCableDn(0));
  EXPECT_EQ(tags(), "0 1 1 | 0 0");
  click(frmHard->picCableDn(0));
  EXPECT_EQ(tags(), "1 1 1 | 0 1");
}

TEST_F(CablingTest, TheCoilsOfTheCablesDoNothing) {
  for (PictureBox& coil : frmHard->picCableRole)
    doubleClick(coil);
  EXPECT_EQ(tags(), "1 1 1 | 1 0");
}

struct TerminationRow {
  const char* links[3];
  const char* shown;
};

TEST_F(CablingTest, TheTerminatorStandsAtTheEndOfTheLine) {
  const TerminationRow rows[] = {{{"1", "1", "1"}, "4"}, {{"1", "1", "0"}, "3"}, {{"1", "0", "1"}, "2"},
                                 {{"1", "0", "0"}, "2"}, {{"0", "1", "1"}, ""},  {{"0", "", ""}, ""},
                                 {{"1", "", ""}, "4"},   {{"", "0", "1"}, "2"},  {{"", "", ""}, "4"},
                                 {{"", "1", "0"}, "3"}};
  frmHard->picBOARD1_RXD(0).Tag = "0";
  for (const auto& row : rows) {
    const int connector[] = {0, 1, 3};
    for (int i = 0; i < 3; ++i)
      frmHard->picBOARD2_RXD(connector[i]).Tag = row.links[i];
    turn(5);
    EXPECT_EQ(terminators(), row.shown) << row.links[0] << row.links[1] << row.links[2];
  }
}

TEST_F(PanelTest, WithoutTheSettingNoCableIsTouched) {
  start({{"CABLECONNECTION", "0"}});
  for (int i = 0; i < 6; ++i)
    EXPECT_EQ(frmHard->picBOARD2_RXD(i).Tag, std::string_view("")) << i;
  for (const int port : {0, 1})
    EXPECT_EQ(frmHard->picBOARD1_RXD(port).Tag, std::string_view(""));
  for (int i = 0; i < 5; ++i)
    EXPECT_FALSE(frmHard->picTermR(i).Visible);
  // What nobody has touched is walked past as if it were plugged.
  doubleClick(frmHard->picBOARD1_RXD(0));
  EXPECT_TRUE(frmHard->picTermR(0).Visible);
  EXPECT_TRUE(frmHard->picTermR(4).Visible);
  EXPECT_FALSE(frmHard->picTermR(2).Visible);
  doubleClick(frmHard->picBOARD2_RXD(1));
  doubleClick(frmHard->picBOARD2_RXD(1));
  EXPECT_TRUE(frmHard->picTermR(2).Visible);
  EXPECT_FALSE(frmHard->picTermR(4).Visible);
}

TEST_F(PanelTest, OnlyAOnePlugsTheCablesAtTheStart) {
  start({{"CABLECONNECTION", "2"}});
  EXPECT_EQ(frmHard->picBOARD2_RXD(0).Tag, std::string_view(""));
}

TEST_F(CablingTest, APulledCableSilencesAllBehindItThoughTheNextStaysPlugged) {
  turn(1);
  EXPECT_EQ(frmHard->picBOARD2_RXD(3).Tag, std::string_view("1"));
  chipMemory[kScrLow] = 5;
  for (int i = 0; i < 5; ++i)
    simulationStep();
  const bool answered[] = {true, true, false, false, false};
  for (int station = 1; station <= 5; ++station)
    EXPECT_EQ(chipMemory[2 * station + 1] == 0, answered[station - 1]) << station;
}

TEST_F(CablingTest, CablesAndSlavesMayBePulledDuringAScan) {
  simulationStep();
  ASSERT_EQ(continuousScanActive, kTrue);
  turn(3);
  doubleClick(frmHard->picBridge(0));
  EXPECT_EQ(takeMessage(), "");
  EXPECT_EQ(tags(), "1 1 0 | 1 0");
  EXPECT_FALSE(frmHard->picBridge(0).Visible);
}

// ---- Slaves

TEST_F(CablingTest, PullingAndPluggingASlave) {
  for (const int pair : {0, 1}) {
    PictureBox& slave = frmHard->picBoard(2 * pair + 2);
    frmHard->picPO(16 * (2 * pair + 1)).Tag = "O1";
    doubleClick(frmHard->picBridge(pair));
    EXPECT_FALSE(frmHard->picBridge(pair).Visible);
    EXPECT_FALSE(slave.Visible);
    EXPECT_EQ(slave.Tag, std::string_view("0"));
    EXPECT_FALSE(frmHard->picShadow(slave.index()).Visible);
    doubleClick(frmHard->picFConn(2 * pair));
    EXPECT_TRUE(frmHard->picBridge(pair).Visible);
    EXPECT_TRUE(slave.Visible);
    EXPECT_EQ(slave.Tag, std::string_view("1"));
    EXPECT_TRUE(frmHard->picShadow(slave.index()).Visible);
    EXPECT_EQ(frmHard->picPO(16 * (2 * pair + 1)).Tag, std::string_view("O1")) << "it comes back as it was";
  }
}

TEST_F(CablingTest, TheConnectorsOnTheSlavesPlugNothing) {
  for (const int connector : {1, 3}) {
    frmHard->Width = 1;
    doubleClick(frmHard->picFConn(connector));
    EXPECT_EQ(frmHard->Width.get(), 13330) << "but the width is set anew";
    EXPECT_TRUE(frmHard->picBridge(0).Visible);
    EXPECT_TRUE(frmHard->picBridge(1).Visible);
  }
}

// ---- Jumper

struct JumperLook {
  static void expect(bool full) {
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(shown(frmHard->picJumper(i).Picture), full ? "ilsJumper 1" : "ilsJumper 2") << i;
      EXPECT_EQ(frmHard->lblHF(i).Caption, std::string_view(full ? "JMP-F" : "JMP-H")) << i;
    }
    for (int i = 0; i < 10; ++i)
      EXPECT_EQ(frmHard->picPTR(i).Visible.get(), i % 2 == 0 || full) << i;
    EXPECT_EQ(boardFullHalf, full ? 16 : 0);
  }
};

constexpr const char* kJumperQuestion = "すべてのボードの通信方式を切り替えます。\r\nよろしいですか？";
constexpr const char* kJumperWarning = "設定がＱＶＴ６０のレジスタ設定と一致していません。";

TEST_F(CablingTest, EveryJumperTurnsAllFour) {
  for (int jumper = 0; jumper < 4; ++jumper) {
    chipMemory[kBcrLow] = 0x03;
    JumperLook::expect(true);
    doubleClick(frmHard->picJumper(jumper));
    JumperLook::expect(false);
    Asked box = theBox();
    EXPECT_EQ(box.title, "切り替え確認");
    EXPECT_EQ(box.message, kJumperQuestion);
    EXPECT_TRUE(box.twoButtons);
    chipMemory[kBcrLow] = 0x13;
    doubleClick(frmHard->picJumper(jumper));
    JumperLook::expect(true);
    EXPECT_EQ(theBox().title, "切り替え確認");
  }
}

TEST_F(CablingTest, AnyJumperValueButZeroTurnsToHalf) {
  boardFullHalf = 3;
  doubleClick(frmHard->picJumper(0));
  EXPECT_EQ(boardFullHalf, 0);
}

TEST_F(CablingTest, TheRegisterWarningComesWhetherTheUserAgreedOrNot) {
  for (const bool agreed : {true, false}) {
    for (const bool full : {true, false}) {
      for (const int bcr : {0x13, 0x03, 0xFF, 0xEF}) {
        SCOPED_TRACE(testing::Message() << "agreed " << agreed << ", full " << full << ", BCR " << bcr);
        asked.clear();
        agree = agreed;
        boardFullHalf = full ? 16 : 0;
        chipMemory[kBcrLow] = static_cast<std::uint8_t>(bcr);
        doubleClick(frmHard->picJumper(2));
        const int jumper = full != agreed ? 16 : 0;
        EXPECT_EQ(boardFullHalf, jumper);
        const bool warned = (bcr & 0x10) != jumper;
        ASSERT_EQ(asked.size(), warned ? 2u : 1u);
        EXPECT_EQ(asked[0].message, kJumperQuestion);
        if (!warned) continue;
        EXPECT_EQ(asked[1].title, kWarning);
        EXPECT_EQ(asked[1].message, kJumperWarning);
        EXPECT_FALSE(asked[1].twoButtons);
        EXPECT_EQ(chipMemory[kBcrLow], bcr);
      }
    }
  }
}

TEST_F(CablingTest, TheJumperIsRefusedDuringEitherScan) {
  for (Flag* scan : {&continuousScanActive, &oneShotScanActive}) {
    *scan = kTrue;
    doubleClick(frmHard->picJumper(1));
    EXPECT_EQ(takeMessage(), "スキャン中の変更は禁止です。");
    EXPECT_TRUE(asked.empty());
    JumperLook::expect(true);
    *scan = kFalse;
  }
}

TEST_F(PanelTest, HalfDuplexFromTheFileAsksNothing) {
  start({{"TRANSFER", "1"}});
  JumperLook::expect(false);
  EXPECT_TRUE(asked.empty());
  EXPECT_EQ(chipMemory[kBcrLow], 0x03);
  // The center's button brings the register back to full; the next touch of the jumper tells.
  doubleClick(frmHard->picReset(0));
  agree = false;
  doubleClick(frmHard->picJumper(0));
  ASSERT_EQ(asked.size(), 2u);
  EXPECT_EQ(asked[1].message, kJumperWarning);
}

// ---- Noise

TEST_F(CablingTest, TheNoiseButtonActsOnPressAndRelease) {
  noiseHits = 5;
  noiseStation = 2;
  press(frmHard->picNoise);
  EXPECT_EQ(noiseHeld, kTrue);
  EXPECT_EQ(noiseHoldOff, 500);
  EXPECT_EQ(shown(frmHard->picNoise.Picture), "ilsNOISE 2");
  noiseHoldOff = 123;
  release(frmHard->picNoise);
  EXPECT_EQ(noiseHeld, kFalse);
  EXPECT_EQ(noiseHoldOff, 123);
  EXPECT_EQ(shown(frmHard->picNoise.Picture), "ilsNOISE 1");
  EXPECT_EQ(noiseHits, 5);
  EXPECT_EQ(noiseStation, 2);
}

}  // namespace
}  // namespace zelvs
