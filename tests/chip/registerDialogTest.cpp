// The register write dialog, opened from the register window and worked by hand.

#include <cmath>

#include "support/dialogFixture.h"

namespace zelvs {
namespace {

class RegisterDialogTest : public DialogTest {
 protected:
  /// Opens a register's dialog, types a value and writes it. cell 0: the high byte. access -1: as it is offered.
  void write(int row, const std::string& text, int cell = 1, int access = -1) {
    inside = [&] {
      if (access >= 0) click(frmEditRegister->opnAccess(access));
      type(frmEditRegister->txtWriteData, text);
      click(frmEditRegister->cmdAction(0));
    };
    doubleClick(cell == 0 ? frmRegister->lblValH(row) : frmRegister->lblValL(row));
  }
  static std::string colours(int row) {
    std::string text;
    for (Label* cell : {&frmRegister->lblValH(row), &frmRegister->lblValL(row), &frmRegister->lblBinH(row),
                        &frmRegister->lblBinL(row)})
      text += cell->ForeColor == kRed ? 'r' : cell->ForeColor == kBlack ? 'b' : '?';
    return text;
  }
};

TEST_F(RegisterDialogTest, ShowsWhatItWillWriteForEveryCpu) {
  struct Row {
    int cpu, cell, access;
    const char *address, *bits, *text, *marks;
  };
  const Row table[] = {
      {0, 0, 0, "586H INT0R 15-0", "bit 15-0", "1234", "rrrr"},
      {0, 1, 0, "586H INT0R 15-0", "bit 15-0", "1234", "rrrr"},
      {0, 1, 1, "586H INT0R 7-0", "bit 7-0", "34", "brbr"},
      {0, 0, 1, "587H INT0R 15-8", "bit 15-8", "12", "rbrb"},
      {1, 1, 1, "586H INT0R 7-0", "bit 7-0", "34", "brbr"},
      {1, 0, 1, "587H INT0R 15-8", "bit 15-8", "12", "rbrb"},
      {2, 0, 0, "586H INT0R 15-0", "bit 15-0", "1234", "rrrr"},
      {2, 1, 1, "587H INT0R 7-0", "bit 7-0", "34", "brbr"},
      {2, 0, 1, "586H INT0R 15-8", "bit 15-8", "12", "rbrb"},
      {3, 1, 1, "587H INT0R 7-0", "bit 7-0", "34", "brbr"},
      {3, 0, 1, "586H INT0R 15-8", "bit 15-8", "12", "rbrb"},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(testing::Message() << "cpu " << row.cpu << " cell " << row.cell << " access " << row.access);
    desk().clear();
    clearState();
    programFolder = folder.path();
    startIdle(row.cpu);
    chipMemory[0x586] = 0x34;
    chipMemory[0x587] = 0x12;
    const FrmEditRegister& dialog = *frmEditRegister;
    inside = [&] {
      EXPECT_EQ(dialog.opnAccess(0).Enabled, row.cpu % 2 == 0);
      EXPECT_EQ(dialog.wordAccess(), row.cpu % 2 == 0);
      EXPECT_EQ(dialog.opnAccess(1).Value, row.cpu % 2 == 1);
      if (row.cpu % 2 == 0) click(frmEditRegister->opnAccess(row.access));
      EXPECT_EQ(dialog.lblAdr.Caption.get(), row.address);
      EXPECT_EQ(dialog.lblBitInd.Caption.get(), row.bits);
      EXPECT_EQ(dialog.txtWriteData.Text.get(), row.text);
      EXPECT_EQ(dialog.txtWriteData.MaxLength, row.access == 0 ? 4 : 2);
      EXPECT_EQ(dialog.txtWriteData.SelLength, 1);
      EXPECT_EQ(dialog.editAccess, row.access);
      EXPECT_EQ(dialog.editRow, 4);
      EXPECT_EQ(dialog.editLowByte, row.cell);
      EXPECT_EQ(dialog.editRegisterAddress, 0x586);
      EXPECT_EQ(dialog.editRegisterName, "INT0R");
      EXPECT_EQ(colours(4), row.marks);
      click(frmEditRegister->cmdAction(1));
      EXPECT_EQ(colours(4), "bbbb");
    };
    doubleClick(row.cell == 0 ? frmRegister->lblBinH(4) : frmRegister->lblBinL(4));
    EXPECT_EQ(opened, 1);
    opened = 0;
    EXPECT_EQ(chipMemory[0x586], 0x34) << "cancelled";
  }
}

TEST_F(RegisterDialogTest, OpensEachTimeAsNew) {
  startIdle();
  inside = [] {
    type(frmEditRegister->txtWriteData, "12");
    click(frmEditRegister->opnAccess(1));
    click(frmEditRegister->cmdAction(1));
  };
  doubleClick(frmRegister->lblValL(3));
  inside = [] {
    EXPECT_TRUE(frmEditRegister->wordAccess());
    EXPECT_EQ(frmEditRegister->txtWriteData.Text.get(), "0000");
    EXPECT_EQ(desk().focused(), &frmEditRegister->txtWriteData);
    EXPECT_EQ(frmEditRegister->txtWriteData.SelStart, 0);
    EXPECT_TRUE(frmEditRegister->cmdAction(0).Default);
    EXPECT_EQ(frmEditRegister->owner(), frmMDI.form());
  };
  doubleClick(frmRegister->lblValH(3));
  EXPECT_EQ(opened, 2);
}

TEST_F(RegisterDialogTest, TheCloseBoxIsACancel) {
  startIdle();
  inside = [] {
    type(frmEditRegister->txtWriteData, "1010");
    EXPECT_EQ(gesture::close(*frmEditRegister), "");
  };
  doubleClick(frmRegister->lblValL(3));
  EXPECT_EQ(chipMemory[kHprLow], 0);
  EXPECT_EQ(colours(3), "bbbb");
}

TEST_F(RegisterDialogTest, NeedsNoWindowBehindIt) {
  startIdle();
  inside = [] {
    type(frmEditRegister->txtWriteData, "1010");
    click(frmEditRegister->cmdAction(0));
  };
  frmEditRegister->editRegisterAddress = kHprLow;
  frmEditRegister->show(ShowMode::Modal, frmMDI.get());
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(chipMemory[kHprLow], 0x10);
  EXPECT_EQ(chipMemory[kHprHigh], 0x10);
}

TEST_F(RegisterDialogTest, EnterSelectsTheLastDigitAndWritesNothing) {
  startIdle();
  inside = [] {
    for (const int code : {key::kEnter, key::kEscape}) {
      gesture::keyDown(frmEditRegister->txtWriteData, key::kHome);
      gesture::keyDown(frmEditRegister->txtWriteData, code);
      EXPECT_EQ(frmEditRegister->txtWriteData.SelStart, 3);
      EXPECT_TRUE(frmEditRegister.visible());
    }
  };
  doubleClick(frmRegister->lblValL(3));
}

TEST_F(RegisterDialogTest, AWriteRefreshesTheWindowAndTakesTheMarksAway) {
  startIdle();
  write(3, "1010");
  EXPECT_EQ(chipMemory[kHprLow], 0x10);
  EXPECT_EQ(chipMemory[kHprHigh], 0x10);
  EXPECT_EQ(frmRegister->lblValL(3).Caption.get(), "10");
  EXPECT_EQ(frmRegister->lblBinH(3).Caption.get(), " 0001_0000");
  EXPECT_EQ(colours(3), "bbbb");
  EXPECT_EQ(takeMessage(), "");
}

TEST_F(RegisterDialogTest, ScrStartsTheScanAtTheNextStep) {
  startIdle();
  write(1, "0005");
  EXPECT_EQ(continuousScanActive, kFalse);
  simulationStep();
  EXPECT_EQ(continuousScanActive, kTrue);
  EXPECT_EQ(finalStation, 5);
  write(1, "0000");
  for (int step = 0; step < 5; ++step)
    simulationStep();
  EXPECT_EQ(continuousScanActive, kFalse);
  write(1, "05", 0, 1);
  simulationStep();
  EXPECT_EQ(oneShotScanActive, kTrue);
  EXPECT_EQ(finalStation, 5);
}

TEST_F(RegisterDialogTest, ARefusalComesBesideTheDialogWhenThatIsHidden) {
  startIdle();
  const int beeps = platform.beeps();
  write(1, "0505");
  EXPECT_EQ(frmMessage->owner(), frmEditRegister.form());
  EXPECT_EQ(frmMessage->Left + std::nearbyint(frmMessage->Width / 2), 453 * 15.0) << "6800 twips, cut to whole pixels";
  EXPECT_EQ(takeMessage(), "入力された値が不適切であるため、書き込まれません。");
  EXPECT_EQ(platform.beeps(), beeps + 1);
  EXPECT_EQ(chipMemory[kScrLow], 0);
  EXPECT_EQ(chipMemory[kScrHigh], 0);
  EXPECT_EQ(colours(1), "bbbb");
}

TEST_F(RegisterDialogTest, AMismatchIsAskedInTheBox) {
  startIdle();
  write(8, "0003");
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(titles[0], "   警 告");
  EXPECT_EQ(boxes[0],
            "ＢＣＲレジスタのフル/ハーフ設定がハードウェア設定と一致していません。\r\n\r\n"
            "ハードウェアの設定を変更するか、ＢＣＲの値を変更するまで開始しません。\r\n");
  EXPECT_EQ(chipMemory[kBcrLow], 3);
  write(1, "0005");
  EXPECT_EQ(boxes.size(), 2u);
  EXPECT_EQ(chipMemory[kScrLow], 0);
  EXPECT_EQ(takeMessage(), "");
}

TEST_F(RegisterDialogTest, AClearedStatusLetsAHaltedScanGoOn) {
  startIdle();
  write(1, "0005");
  simulationStep();
  chipMemory[kInt0Status] = 0x04;
  const auto station = currentStation;
  for (int step = 0; step < 10; ++step)
    simulationStep();
  EXPECT_EQ(currentStation, station);
  write(4, "FF04");
  EXPECT_EQ(chipMemory[kInt0Enable], 0xFF);
  EXPECT_EQ(chipMemory[kInt0Status], 0);
  simulationStep();
  EXPECT_NE(currentStation, station);
}

TEST_F(RegisterDialogTest, AChangeOfTheReadSideResetsTheReadWindow) {
  startIdle(1);
  openMemoryRead();
  type(frmMemoryRead->txtAddress, "12");
  write(3, "10", 0);
  EXPECT_EQ(frmMemoryRead->txtAddress.Text.get(), "12?") << "the write side does not count";
  write(3, "10", 1);
  EXPECT_EQ(frmMemoryRead->txtAddress.Text.get(), "???");
  type(frmMemoryRead->txtAddress, "12");
  write(3, "10", 1);
  EXPECT_EQ(frmMemoryRead->txtAddress.Text.get(), "12?") << "the same value is no change";
}

TEST_F(RegisterDialogTest, TicksGoOnBehindTheDialog) {
  startIdle();
  frmMDI->lblRunMode_Click(kRun);
  inside = [this] {
    chk1LedTimer = 1000;
    platform.advance(20);
    EXPECT_EQ(chk1LedTimer, 1000 - 67);
    EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRunMode(1)), "frmEditRegister is modal");
  };
  doubleClick(frmRegister->lblValL(3));
}

}  // namespace
}  // namespace zelvs
