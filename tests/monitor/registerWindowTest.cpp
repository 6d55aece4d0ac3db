// The register window: its rows, and what opens from them.

#include "bench/ilsMouse.h"
#include "monitor/windowRefresh.h"
#include "support/dialogFixture.h"

namespace zelvs {
namespace {

class RegisterWindowTest : public DialogTest {
 protected:
  static Label& cell(int row, int which) {
    Label* cells[] = {&frmRegister->lblValH(row), &frmRegister->lblValL(row), &frmRegister->lblBinH(row),
                      &frmRegister->lblBinL(row)};
    return *cells[which];
  }
};

TEST_F(RegisterWindowTest, NamesHaveAddresses) {
  const std::pair<const char*, const char*> table[] = {
      {"SCR", "580"},  {"SSR", "582"}, {"HPR", "584"}, {"INT0R", "586"}, {"INT1R", "588"}, {"C1CR", "58A"},
      {"C2CR", "58C"}, {"BCR", "58E"}, {"CC", ""},     {"", ""},         {"scr", ""},      {"Reg.", ""}};
  for (const auto& [name, address] : table)
    EXPECT_EQ(regAddressText(name), address) << name;
}

TEST_F(RegisterWindowTest, EveryValueCellOpensItsRegister) {
  startIdle();
  int address = 0x580;
  for (int row = 1; row <= 8; ++row, address += 2) {
    for (int which = 0; which < 4; ++which) {
      SCOPED_TRACE(testing::Message() << "row " << row << " cell " << which);
      opened = 0;
      inside = [&] {
        EXPECT_EQ(frmEditRegister->editRow, row);
        EXPECT_EQ(frmEditRegister->editRegisterAddress, address);
        EXPECT_EQ(frmEditRegister->editLowByte, which % 2);
        EXPECT_EQ(frmEditRegister->editRegisterName, frmRegister->lblReg(row).Caption.get());
        EXPECT_TRUE(frmEditRegister->modal());
        EXPECT_EQ(frmEditRegister->Left, frmRegister->Left);
        EXPECT_EQ(frmEditRegister->Top, 300 + 225 + frmRegister->Top + 300 + frmRegister->lblValH(row).Top + 2 * 270.0);
      };
      doubleClick(cell(row, which));
      EXPECT_EQ(opened, row == 2 ? 0 : 1);
      EXPECT_EQ(takeMessage(), row == 2 ? "このレジスタはリードオンリーです。" : "");
    }
  }
}

TEST_F(RegisterWindowTest, BcrIsRefusedWhileAScanRuns) {
  startIdle();
  for (const bool continuous : {true, false}) {
    (continuous ? continuousScanActive : oneShotScanActive) = kTrue;
    for (int which = 0; which < 4; ++which) {
      doubleClick(cell(8, which));
      EXPECT_EQ(takeMessage(), "スキャン中はライトプロテクト。");
    }
    EXPECT_EQ(opened, 0);
    doubleClick(cell(4, 0));
    EXPECT_EQ(opened, 1) << "the other registers are free";
    opened = 0;
    continuousScanActive = oneShotScanActive = kFalse;
  }
  doubleClick(cell(8, 0));
  EXPECT_EQ(opened, 1);
}

TEST_F(RegisterWindowTest, AStandingMessageGoesBeforeTheDialog) {
  startIdle();
  doubleClick(cell(2, 0));
  ASSERT_TRUE(frmMessage.visible());
  inside = [] { EXPECT_FALSE(frmMessage.visible()); };
  doubleClick(cell(3, 0));
  EXPECT_EQ(opened, 1);
}

TEST_F(RegisterWindowTest, AtTheEdgeOfTheScreenTheDialogStaysWhole) {
  startIdle();
  frmRegister->move(27000, 15000);
  inside = [] {
    EXPECT_EQ(frmEditRegister->Left, 1920 * 15 - frmEditRegister->Width);
    EXPECT_EQ(frmEditRegister->Top, 1080 * 15 - frmEditRegister->Height);
  };
  doubleClick(cell(3, 0));
  EXPECT_EQ(opened, 1);
}

TEST_F(RegisterWindowTest, OnlyTheEightRowsAreShownAndRefreshed) {
  startIdle();
  for (int i = 0; i < 16; ++i)
    chipMemory[0x580 + i] = static_cast<std::uint8_t>(0x80 + i);
  refreshRegisterWindow();
  for (int row = 1; row <= 8; ++row) {
    EXPECT_EQ(frmRegister->lblBinH(row).Caption.get().substr(0, 6), " 1000_");
    EXPECT_EQ(frmRegister->lblValL(row).Caption.get().substr(0, 1), "8");
  }
  EXPECT_EQ(frmRegister->lblReg(9).Caption.get(), "CC");
  EXPECT_EQ(frmRegister->lblValL(9).Caption.get(), "00");
  EXPECT_GE(frmRegister->lblValL(9).Top, frmRegister->clientHeight());
  EXPECT_EQ(frmRegister->lblBin.Caption.get(), "15---------7-------0");
  for (int row = 1; row <= 8; ++row) {
    for (int which = 0; which < 4; ++which) {
      EXPECT_EQ(cell(row, which).MousePointer, kCustomPointer);
      EXPECT_EQ(cell(row, which).MouseIcon.get(), ilsMouse.image(2));
    }
  }
}

}  // namespace
}  // namespace zelvs
