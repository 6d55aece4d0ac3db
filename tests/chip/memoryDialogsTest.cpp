// The dialogs that write and read memory as the CPU.

#include <algorithm>

#include "dialogs/messages.h"
#include "monitor/windowRefresh.h"
#include "support/dialogFixture.h"

namespace zelvs {
namespace {

constexpr const char* kIntoBuffer = "リードテンポラリバッファにデータを格納しました。";
constexpr const char* kFromBuffer = "リードテンポラリバッファからデータを取得しました。";
constexpr const char* kFromMemory = "メモリよりデータを取得しました。";

/// A window of cells, as the memory windows have them.
class FrmCells final : public Form {
 public:
  static constexpr FormKind kKind = FormKind::Window;
  FrmCells() : Form("frmCells", kKind, Border::Fixed) {}
  ControlArray<Label> lblData{this, "lblData", 0, 383};
};
FormRef<FrmCells> frmCells{"frmCells"};

class MemoryDialogTest : public DialogTest {
 protected:
  /// Opens the dialog on a cell of a window that begins at 000H.
  static void open(int cell) {
    FrmEditMemory& dialog = *frmEditMemory;
    dialog.onWritten = refreshWindows;  // as its opener asks
    dialog.move(3000, 3000);
    dialog.editCellIndex = static_cast<std::int16_t>(cell);
    dialog.editFirstRowCaption = "00x";
    dialog.cells = &frmCells->lblData;
    dialog.chooseAccess();
    dialog.show(ShowMode::Modal, frmMDI.get());
  }
  /// The cell of an address by the CPU's byte order.
  static int cellOf(int address) { return bigEndian() ? address : address ^ 15; }
  void write(int address, const std::string& text, int access = -1) {
    inside = [&] {
      if (access >= 0) click(frmEditMemory->opnAccess(access));
      type(frmEditMemory->txtWriteData, text);
      click(frmEditMemory->cmdAction(0));
    };
    open(cellOf(address));
  }
  static std::string reds() {
    std::string text;
    for (Label& cell : frmCells->lblData) {
      if (cell.ForeColor == kRed) text += std::to_string(cell.index()) + " ";
    }
    return text;
  }
};

TEST_F(MemoryDialogTest, ShowsTheCellForEveryCpu) {
  struct Row {
    int cpu, address, access;
    const char *shown, *text, *bits;
    bool both;
  };
  const Row table[] = {
      {0, 0x100, 0, "100", "1234", "bit 15----0", true}, {0, 0x101, 0, "100", "1234", "bit 15----0", true},
      {0, 0x100, 1, "100", "34", "bit 7--0", false},     {0, 0x101, 1, "101", "12", "bit 7--0", false},
      {1, 0x100, 1, "100", "34", "bit 7--0", false},     {1, 0x101, 1, "101", "12", "bit 7--0", false},
      {2, 0x100, 0, "100", "1234", "bit 15----0", true}, {2, 0x101, 0, "100", "1234", "bit 15----0", true},
      {2, 0x100, 1, "100", "12", "bit 7--0", false},     {2, 0x101, 1, "101", "34", "bit 7--0", false},
      {3, 0x100, 1, "100", "12", "bit 7--0", false},     {3, 0x101, 1, "101", "34", "bit 7--0", false},
  };
  startIdle();
  chipMemory[0x100] = 0x34;
  chipMemory[0x101] = 0x12;
  for (const Row& row : table) {
    SCOPED_TRACE(testing::Message() << "cpu " << row.cpu << " address " << row.address << " access " << row.access);
    cpuType = static_cast<std::int16_t>(row.cpu);
    const int cell = cellOf(row.address);
    const int first = std::min(cell, cell ^ 1);
    const std::string marked =
        row.both ? std::to_string(first) + " " + std::to_string(first + 1) + " " : std::to_string(cell) + " ";
    inside = [&] {
      EXPECT_EQ(frmEditMemory->opnAccess(0).Enabled, row.cpu % 2 == 0);
      if (row.cpu % 2 == 0) click(frmEditMemory->opnAccess(row.access));
      EXPECT_EQ(frmEditMemory->lblAdr.Caption.get(), row.shown);
      EXPECT_EQ(frmEditMemory->txtWriteData.Text.get(), row.text);
      EXPECT_EQ(frmEditMemory->txtWriteData.MaxLength, row.access == 0 ? 4 : 2);
      EXPECT_EQ(frmEditMemory->lblBitInd.Caption.get(), row.bits);
      EXPECT_EQ(reds(), marked);
      click(frmEditMemory->cmdAction(1));
    };
    open(cell);
    EXPECT_EQ(reds(), "");
  }
}

TEST_F(MemoryDialogTest, WritesAWord) {
  startIdle();
  for (const int cpu : {0, 2}) {
    cpuType = static_cast<std::int16_t>(cpu);
    chipMemory[0x100] = chipMemory[0x101] = 0;
    write(0x101, "abcd");
    EXPECT_EQ(chipMemory[0x100], 0xCD);
    EXPECT_EQ(chipMemory[0x101], 0xAB);
    EXPECT_EQ(takeMessage(), "");
    EXPECT_EQ(reds(), "");
  }
}

TEST_F(MemoryDialogTest, WritesAByteWhereTheCpuSeesIt) {
  startIdle();
  for (int cpu = 0; cpu < 4; ++cpu) {
    cpuType = static_cast<std::int16_t>(cpu);
    chipMemory[0x80] = chipMemory[0x81] = 0;
    write(0x81, "5A", cpu % 2 == 0 ? 1 : -1);
    EXPECT_EQ(chipMemory[0x80], cpu < 2 ? 0 : 0x5A);
    EXPECT_EQ(chipMemory[0x81], cpu < 2 ? 0x5A : 0);
  }
}

TEST_F(MemoryDialogTest, TheReportByteIsProtectedFromWordsDuringAScan) {
  startIdle();
  frmHard->picScanLed.Tag = "1";
  chipMemory[0x02] = 0x00;
  chipMemory[0x03] = 0x14;
  write(0x02, "1401");
  EXPECT_EQ(takeMessage(), "");
  EXPECT_EQ(chipMemory[0x02], 0x01);
  write(0x02, "2002");
  EXPECT_EQ(frmMessage->owner(), frmEditMemory.form());
  EXPECT_EQ(takeMessage(), "スキャン中、コントロールワードの上位バイトはライトプロテクト。");
  EXPECT_EQ(chipMemory[0x02], 0x02);
  EXPECT_EQ(chipMemory[0x03], 0x14);
  write(0x03, "55", 1);
  EXPECT_EQ(takeMessage(), "");
  EXPECT_EQ(chipMemory[0x03], 0x55) << "a byte gets through on a 16-bit bus";
  frmHard->picScanLed.Tag = "0";
  write(0x02, "2002");
  EXPECT_EQ(takeMessage(), "");
  EXPECT_EQ(chipMemory[0x03], 0x20);
}

TEST_F(MemoryDialogTest, WhatItWasOpenedOnIsWrittenEvenDuringAScan) {
  startIdle();
  for (const int cpu : {0, 1}) {
    cpuType = static_cast<std::int16_t>(cpu);
    frmHard->picScanLed.Tag = "1";
    chipMemory[0x100] = chipMemory[0x101] = 0;
    write(0x100, cpu == 0 ? "1234" : "34");
    EXPECT_EQ(takeMessage(), "") << "its window has asked, or an ASCII cell has not";
    EXPECT_EQ(chipMemory[0x100], 0x34);
    EXPECT_EQ(chipMemory[0x101], cpu == 0 ? 0x12 : 0);
  }
}

TEST_F(MemoryDialogTest, AProtectedWordIsWrittenInTwoHalves) {
  startIdle(1);
  chipMemory[kHprHigh] = 0x10;
  write(0x100, "34");
  EXPECT_EQ(takeMessage(), "ハザードプロテクト中。ライトテンポラリバッファへ書き込みました。");
  EXPECT_EQ(chipMemory[0x100], 0);
  EXPECT_EQ(frmRegister->lblValH(3).Caption.get(), "11") << "the register window is refreshed";
  write(0x101, "12");
  EXPECT_EQ(takeMessage(), "");
  EXPECT_EQ(chipMemory[0x100], 0x34);
  EXPECT_EQ(chipMemory[0x101], 0x12);
  EXPECT_EQ(chipMemory[kHprHigh], 0x10);
}

TEST_F(MemoryDialogTest, EnterAndEscapeDoNothing) {
  startIdle();
  inside = [] {
    for (const int code : {key::kEnter, key::kEscape}) {
      gesture::keyDown(frmEditMemory->txtWriteData, code);
      EXPECT_EQ(frmEditMemory->txtWriteData.SelStart, 0);
      EXPECT_TRUE(frmEditMemory.visible());
    }
  };
  open(0);
}

TEST_F(MemoryDialogTest, ADialogIsShiftedOntoTheScreen) {
  struct Row {
    double left, top, atLeft, atTop;
  };
  startIdle();
  const double right = 1920 * 15 - frmEditMemory->Width;
  const double bottom = 1080 * 15 - frmEditMemory->Height;
  const Row table[] = {{3000, 4000, 3000, 4000}, {-60, -15, 0, 0}, {40000, 4000, right, 4000}, {0, 30000, 0, bottom}};
  for (const Row& row : table) {
    inside = [&] {
      EXPECT_EQ(frmEditMemory->Left, row.atLeft);
      EXPECT_EQ(frmEditMemory->Top, row.atTop);
    };
    frmEditMemory->move(row.left, row.top);
    frmEditMemory->show(ShowMode::Modal, frmMDI.get());
  }
  EXPECT_EQ(opened, 4);
}

TEST_F(MemoryDialogTest, NeedsNoWindowOfCellsBehindIt) {
  startIdle();
  inside = [] {
    type(frmEditMemory->txtWriteData, "1234");
    click(frmEditMemory->cmdAction(0));
  };
  frmEditMemory->editFirstRowCaption = "10x";
  frmEditMemory->editCellIndex = static_cast<std::int16_t>(cellOf(0));
  frmEditMemory->show(ShowMode::Modal, frmMDI.get());
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(chipMemory[0x100], 0x34);
  EXPECT_EQ(chipMemory[0x101], 0x12);
}

TEST_F(MemoryDialogTest, TheProgramMayUnloadWhatTheUserCanOnlyHide) {
  startIdle();
  frmEditMemory->txtWriteData.Text = "5678";
  frmEditMemory->unload();
  EXPECT_FALSE(frmEditMemory.loaded());
  EXPECT_EQ(frmEditMemory->txtWriteData.Text.get(), "0000");
}

// ---- Reading

class MemoryReadTest : public DialogTest {
 protected:
  static void read(const std::string& address) {
    type(frmMemoryRead->txtAddress, address);
    click(frmMemoryRead->cmdAction(0));
  }
  static void expectRead(const std::string& address, const std::string& data, const std::string& guide) {
    read(address);
    EXPECT_EQ(frmMemoryRead->lblAdr.Caption.get(), address + "H");
    EXPECT_EQ(frmMemoryRead->lblData.Caption.get(), data);
    EXPECT_EQ(frmMemoryRead->lblGuide.Caption.get(), guide);
    EXPECT_EQ(frmMemoryRead->txtAddress.Text.get(), "???");
  }
};

TEST_F(MemoryReadTest, OpensOverThePanelOnAnEightBitBusOnly) {
  for (int cpu = 0; cpu < 4; ++cpu) {
    SCOPED_TRACE(cpu);
    desk().clear();
    clearState();
    programFolder = folder.path();
    startIdle(cpu);
    openMemoryRead();
    if (cpu % 2 == 0) {
      EXPECT_EQ(takeMessage(), "８ビットバス選択時のみ機能します");
      EXPECT_FALSE(frmMemoryRead.visible());
      continue;
    }
    EXPECT_EQ(takeMessage(), "");
    ASSERT_TRUE(frmMemoryRead.visible());
    EXPECT_FALSE(frmMemoryRead->modal());
    EXPECT_EQ(frmMemoryRead->owner(), frmMDI.form());
    EXPECT_EQ(frmMemoryRead->Left, frmHard->Left + 1800);
    EXPECT_EQ(frmMemoryRead->Top, frmHard->Top + 2500);
    EXPECT_EQ(frmMemoryRead->Width, 4995.0);
    EXPECT_EQ(frmMemoryRead->Height, 1905.0);
    EXPECT_EQ(frmMemoryRead->lblGuide.Caption.get(), "");
    EXPECT_EQ(frmMemoryRead->lblAdr.Caption.get(), "???H");
    EXPECT_EQ(frmMemoryRead->lblData.Caption.get(), "??");
    EXPECT_EQ(frmMemoryRead->lblBitInd.Caption.get(), "bit 7-0");
    EXPECT_EQ(frmMemoryRead->txtAddress.Text.get(), "???");
  }
}

TEST_F(MemoryReadTest, AProtectedReadShowsOneMomentsWord) {
  startIdle(1);
  chipMemory[kHprLow] = 0x10;
  chipMemory[0x100] = 0x34;
  chipMemory[0x101] = 0x12;
  openMemoryRead();
  expectRead("100", "34", kIntoBuffer);
  chipMemory[0x100] = 0x78;
  chipMemory[0x101] = 0x56;
  expectRead("101", "12", kFromBuffer);
  expectRead("101", "56", kIntoBuffer);
  expectRead("000", "78", kFromBuffer);
  expectRead("000", "00", kFromMemory);
}

TEST_F(MemoryReadTest, ABigEndianCpuReadsTheOtherByte) {
  startIdle(3);
  chipMemory[0x100] = 0x34;
  chipMemory[0x101] = 0x12;
  openMemoryRead();
  expectRead("100", "12", kFromMemory);
  expectRead("101", "34", kFromMemory);
  chipMemory[kHprLow] = 0x10;
  expectRead("100", "12", kIntoBuffer);
  expectRead("101", "34", kFromBuffer);
}

TEST_F(MemoryReadTest, SmallLettersAreShownAsCapitals) {
  startIdle(1);
  chipMemory[0x5AB] = 0xEF;
  openMemoryRead();
  read("5ab");
  EXPECT_EQ(frmMemoryRead->lblAdr.Caption.get(), "5ABH");
  EXPECT_EQ(frmMemoryRead->lblData.Caption.get(), "EF");
}

TEST_F(MemoryReadTest, AWrongAddressBeepsAndReadsNothing) {
  startIdle(1);
  chipMemory[0x7FF] = 0x5A;
  chipMemory[kHprLow] = 0x11;
  openMemoryRead();
  for (const char* address : {"800", "FFF", "", "7", "7F"}) {
    SCOPED_TRACE(address);
    frmMemoryRead->initReadMemory();
    const int beeps = platform.beeps();
    read(address);
    EXPECT_EQ(platform.beeps(), beeps + 1);
    EXPECT_EQ(desk().focused(), &frmMemoryRead->txtAddress);
    EXPECT_EQ(frmMemoryRead->lblData.Caption.get(), "??");
    EXPECT_EQ(chipMemory[kHprLow], 0x11);
    EXPECT_EQ(takeMessage(), "");
  }
  chipMemory[kHprLow] = 0;
  frmMemoryRead->initReadMemory();
  expectRead("7FF", "5A", kFromMemory);
}

TEST_F(MemoryReadTest, AnAddressThatAScriptHasMadeTooShortIsWrongToo) {
  startIdle(1);
  openMemoryRead();
  for (const char* address : {"", "7", "7F"}) {
    SCOPED_TRACE(address);
    const int beeps = platform.beeps();
    frmMemoryRead->txtAddress.Text = address;
    click(frmMemoryRead->cmdAction(0));
    EXPECT_EQ(platform.beeps(), beeps + 1);
    EXPECT_EQ(frmMemoryRead->lblData.Caption.get(), "??");
  }
}

TEST_F(MemoryReadTest, OpeningItTakesThePopUpAway) {
  startIdle(1);
  showMessage("...");
  ASSERT_TRUE(frmMessage.visible());
  openMemoryRead();
  EXPECT_FALSE(frmMessage.visible());
}

TEST_F(MemoryReadTest, WhenTheProgramUnloadsItsBufferIsGone) {
  startIdle(1);
  chipMemory[kHprLow] = 0x10;
  chipMemory[0x100] = 0x34;
  chipMemory[0x101] = 0x12;
  openMemoryRead();
  expectRead("100", "34", kIntoBuffer);
  frmMemoryRead->unload();
  EXPECT_FALSE(frmMemoryRead.loaded());
  openMemoryRead();
  expectRead("101", "00", kFromBuffer);
}

TEST_F(MemoryReadTest, TheBufferSurvivesHiding) {
  startIdle(1);
  chipMemory[kHprLow] = 0x10;
  chipMemory[0x101] = 0x12;
  for (const bool byCloseBox : {false, true}) {
    openMemoryRead();
    expectRead("100", "00", kIntoBuffer);
    if (byCloseBox) {
      EXPECT_EQ(gesture::close(*frmMemoryRead), "");
    } else {
      click(frmMemoryRead->cmdAction(1));
    }
    EXPECT_FALSE(frmMemoryRead.visible());
    openMemoryRead();
    EXPECT_EQ(desk().focused(), &frmMemoryRead->txtAddress);
    expectRead("101", "12", kFromBuffer);
  }
}

TEST_F(MemoryReadTest, AWideBusHidesTheWindow) {
  startIdle(1);
  for (const int cpu : {3, 1, 2}) {
    if (!frmMemoryRead.visible()) openMemoryRead();
    doubleClick(frmHard->picCPU);
    EXPECT_EQ(gesture::pick(frmHard->cmbCPUType, cpu), "");
    EXPECT_EQ(cpuType, cpu);
    EXPECT_EQ(frmMemoryRead.visible(), cpu % 2 == 1);
  }
}

}  // namespace
}  // namespace zelvs
