// What the user does with the memory windows: pointing, double clicks, opening, floating, the drop-down.

#include "chip/frmEditMemory.h"
#include "chip/frmMemoryRead.h"
#include "dialogs/messages.h"
#include "monitor/frmRegister.h"
#include "monitor/mduAPI.h"
#include "shell/frmVersion.h"
#include "support/dumpFixture.h"

namespace zelvs {
namespace {

constexpr const char* kNoAddress = " Pointing Address = ---- ------ : --";
constexpr const char* kNoStation = " Pointing SA = --- ----";
constexpr const char* kProtected = "スキャン中はライトプロテクト";
constexpr const char* kHighProtected = "スキャン中、コントロールワードの上位バイトはライトプロテクト";

class DumpHandsTest : public DumpTest {
 protected:
  static void scanning(bool on) { frmHard->picScanLed.Tag = on ? "1" : "0"; }
  static constexpr const char* kOpened = "the editor opened";

  /// The refusal of a double click, or kOpened; the editor is closed again.
  std::string refusalAt(Control& cell) {
    showMessage("left over");
    bool opened = false;
    platform.onModal = [&opened](Form& form) {
      opened = &form == frmEditMemory.form();
      EXPECT_FALSE(frmMessage.visible()) << "a message does not stand before the editor";
      form.hide();
    };
    doubleClick(cell);
    if (opened) return kOpened;
    EXPECT_TRUE(frmMessage.visible());
    return takeMessage();
  }
};

TEST_F(DumpHandsTest, PointingTellsAddressValueAndStation) {
  struct Row {
    int cpu, window, cell;
    const char *address, *station;
  };
  for (int address = 0; address < 0x580; ++address)
    chipMemory[address] = static_cast<std::uint8_t>(address);
  const Row table[] = {
      {kWordLittle, 0, 15, "000H (   0) : 00", "00H  ( 0)"},  {kWordLittle, 0, 5, "00AH (  10) : 0A", "05H  ( 5)"},
      {kWordLittle, 0, 383, "170H ( 368) : 70", "38H  (56)"}, {kWordBig, 0, 0, "000H (   0) : 01", "00H  ( 0)"},
      {kByteBig, 0, 127, "07FH ( 127) : 7E", "3FH  (63)"},    {kWordLittle, 1, 15, "180H ( 384) : 80", "00H  ( 0)"},
      {kWordLittle, 1, 113, "1FEH ( 510) : FE", "3FH  (63)"}, {kByteLittle, 1, 640, "40FH (1039) : 0F", "07H  ( 7)"},
      {kWordLittle, 2, 6, "509H (1289) : 09", "04H  ( 4)"},   {kWordBig, 2, 20, "514H (1300) : 15", "0AH  (10)"},
  };
  for (const Row& row : table) {
    chooseCpu(row.cpu);
    FrmDump& dump = form(row.window);
    for (ControlArray<Label>* cells : {&dump.lblData, &dump.lblASC}) {
      pointAt(dump.Picture1);
      EXPECT_EQ(dump.lblPointAddress.Caption.get(), kNoAddress);
      EXPECT_EQ(dump.lblPointSA.Caption.get(), kNoStation);
      pointAt((*cells)(row.cell));
      EXPECT_EQ(dump.lblPointAddress.Caption.get(), std::string(" Pointing Address = ") + row.address);
      EXPECT_EQ(dump.lblPointSA.Caption.get(), std::string(" Pointing SA = ") + row.station);
    }
    pointAt(dump.Picture2);
    EXPECT_EQ(dump.lblPointAddress.Caption.get(), kNoAddress);
    pointAt(dump.lblData(0));
    pointAt(dump.lblAdr(0));
    EXPECT_EQ(dump.lblPointAddress.Caption.get(), kNoAddress) << "a heading is no cell";
  }
}

TEST_F(DumpHandsTest, ADoubleClickIsRefusedByWindowRegionBusAndScan) {
  for (int type = 0; type <= 3; ++type) {
    chooseCpu(type);
    const bool bytes = type == kByteLittle || type == kByteBig;
    for (const bool scan : {false, true}) {
      scanning(scan);
      SCOPED_TRACE(std::to_string(type) + (scan ? " scanning" : ""));
      for (const int cell : {0, 2, 126})
        EXPECT_EQ(refusalAt(frmDumpCDIO->lblData(cell)), bytes && scan ? kHighProtected : kOpened) << cell;
      for (const int cell : {1, 127, 128, 129, 254, 255})
        EXPECT_EQ(refusalAt(frmDumpCDIO->lblData(cell)), kOpened) << cell;
      for (const int cell : {256, 257, 383})
        EXPECT_EQ(refusalAt(frmDumpCDIO->lblData(cell)), scan ? kProtected : kOpened) << cell;
      for (const int cell : {0, 1, 500, 895})
        EXPECT_EQ(refusalAt(frmDumpC17->lblData(cell)), scan ? kProtected : kOpened) << cell;
      for (const int cell : {0, 64, 127})
        EXPECT_EQ(refusalAt(frmDumpDRC->lblData(cell)), kOpened) << cell;
      for (Control* letter : {&frmDumpCDIO->lblASC(0), &frmDumpCDIO->lblASC(300), &frmDumpC17->lblASC(895)})
        EXPECT_EQ(refusalAt(*letter), kOpened) << "ASCII cells are never refused";
    }
  }
}

TEST_F(DumpHandsTest, TheEditorStandsBelowTheRow) {
  frmMDI->Top = 45;
  frmDumpCDIO->Top = 600;
  const Label& cell = frmDumpCDIO->lblData(40);
  EXPECT_EQ(memoryEditorTop(*frmDumpCDIO, 40),
            45 + 300 + 225 + 600 + 300 + frmDumpCDIO->Picture1.Top + cell.Top + 2 * cell.Height);
}

TEST_F(DumpHandsTest, TheEditorIsToldOfTheCell) {
  struct Row {
    int cpu;
    bool ascii;
    const char* address;
    bool word;
  };
  // Cell 40 is the ninth of the third row.
  for (const Row& row : {Row{kWordLittle, false, "026", true}, Row{kByteLittle, true, "027", false},
                         Row{kWordBig, false, "028", true}, Row{kByteBig, true, "028", false}}) {
    chooseCpu(row.cpu);
    Label& cell = row.ascii ? frmDumpCDIO->lblASC(40) : frmDumpCDIO->lblData(40);
    bool opened = false;
    platform.onModal = [&](Form& form) {
      opened = true;
      EXPECT_EQ(&form, frmEditMemory.form());
      EXPECT_EQ(frmEditMemory->editCellIndex, 40);
      EXPECT_EQ(frmEditMemory->editFirstRowCaption, "00x");
      EXPECT_EQ(frmEditMemory->lblAdr.Caption.get(), row.address) << row.cpu;
      EXPECT_EQ(frmEditMemory->opnAccess(0).Enabled.get(), row.word);
      EXPECT_EQ(frmDumpCDIO->lblData(40).ForeColor.get(), kRed);
      const PictureBox& container = row.ascii ? frmDumpCDIO->Picture2 : frmDumpCDIO->Picture1;
      EXPECT_EQ(frmEditMemory->Left, container.Left + cell.Left + frmDumpCDIO->Left);
      EXPECT_EQ(frmEditMemory->Top, memoryEditorTop(*frmDumpCDIO, 40));
      form.close(true);
    };
    doubleClick(cell);
    EXPECT_TRUE(opened);
    EXPECT_EQ(frmDumpCDIO->lblData(40).ForeColor.get(), kBlack);
  }
}

TEST_F(DumpHandsTest, WindowsOpenAtTheirPlacesAndLayout) {
  const std::pair<double, double> places[] = {{12000, 0}, {10500, 1300}, {7600, 10000}};
  for (int window = 0; window < 3; ++window) {
    FrmDump& dump = form(window);
    EXPECT_EQ(dump.Left, places[window].first);
    EXPECT_EQ(dump.Top, places[window].second);
    dump.move(100, 200);
    openDumpWindow(window);
    EXPECT_EQ(dump.Left, 100.0) << "an open one stays where it is";
    EXPECT_EQ(desk().active(), &dump) << "and gets the focus";
    dump.hide();
    openDumpWindow(window);
    EXPECT_EQ(dump.Left, places[window].first);
    EXPECT_EQ(dump.Top, places[window].second);
    EXPECT_TRUE(dump.visible());
    EXPECT_EQ(desk().active(), &dump);
    click(dump.cmbBit(0));
    openDumpWindow(window);
    EXPECT_EQ(dump.piMode, 1) << "the CPU type's layout again";
  }
}

TEST_F(DumpHandsTest, TheSettingsNameTheWindowsThatOpen) {
  struct Row {
    const char *cdio, *c17, *drc;
  };
  for (const Row& row :
       {Row{"0", "0", "0"}, Row{"1", "0", "0"}, Row{"0", "1", "0"}, Row{"0", "0", "1"}, Row{"1", "1", "1"}}) {
    startAnew({{"OPENWINDOW3", row.cdio}, {"OPENWINDOW4", row.c17}, {"OPENWINDOW5", row.drc}});
    EXPECT_EQ(frmDumpCDIO.visible(), *row.cdio == '1');
    EXPECT_EQ(frmDumpC17.visible(), *row.c17 == '1');
    EXPECT_EQ(frmDumpDRC.visible(), *row.drc == '1');
    for (FormPlace* place : std::initializer_list<FormPlace*>{&frmDumpCDIO, &frmDumpC17, &frmDumpDRC})
      EXPECT_TRUE(place->loaded());
    EXPECT_EQ(mdiClientHandle != 0, *row.cdio == '1');
    EXPECT_EQ(frmDumpDRC->Left, 7600.0);
  }
}

TEST_F(DumpHandsTest, AFloatingWindowLiesInFrontAndComesBack) {
  for (int window = 0; window < 3; ++window) {
    FrmDump& dump = form(window);
    dump.move(1000, 2000);
    const double screenLeft = dump.insideLeft();
    const double screenTop = dump.insideTop();
    click(dump.chkTopMost);
    EXPECT_TRUE(dump.floating());
    EXPECT_TRUE(dump.visible());
    EXPECT_EQ(dump.Left, 1030.0);
    EXPECT_EQ(dump.Top, 2255.0);
    EXPECT_EQ(dump.insideLeft(), screenLeft) << "the same place on the screen";
    EXPECT_EQ(dump.insideTop(), screenTop);
    desk().activate(*frmHard);
    const auto& order = desk().forms();
    EXPECT_LT(std::find(order.begin(), order.end(), &dump), std::find(order.begin(), order.end(), frmHard.form()));
    click(dump.chkTopMost);
    EXPECT_FALSE(dump.floating());
    EXPECT_TRUE(dump.visible());
    EXPECT_EQ(dump.Left, 1000.0);
    EXPECT_EQ(dump.Top, 2000.0);
    EXPECT_EQ(dump.insideTop(), screenTop);
    desk().activate(*frmHard);
    EXPECT_GT(std::find(order.begin(), order.end(), &dump), std::find(order.begin(), order.end(), frmHard.form()));
  }
}

TEST_F(DumpHandsTest, TheDropDownOpensBelowItsLabel) {
  for (int clicks = 0; clicks < 2; ++clicks) {
    click(frmMDI->lblMemoryWindow);
    EXPECT_TRUE(frmDumpSel.visible());
    EXPECT_EQ(frmDumpSel->Left, frmMDI->lblMemoryWindow.Left * 15 - 900);
    EXPECT_EQ(frmDumpSel->Top, 0.0);
    EXPECT_EQ(desk().active(), frmDumpSel.form());
  }
  const char* captions[] = {"コントロール+DI+DO", "C1～C7", "DRC", "Memory Read", "Window All Close"};
  for (int entry = 0; entry < 5; ++entry)
    EXPECT_EQ(frmDumpSel->cmdAREA(entry).Caption.get(), captions[entry]);
  EXPECT_EQ(frmDumpSel->border(), Border::None);
}

TEST_F(DumpHandsTest, ItsFirstThreeEntriesOpenTheWindows) {
  for (int window = 0; window < 3; ++window) {
    form(window).hide();
    click(frmMDI->lblMemoryWindow);
    click(frmDumpSel->cmdAREA(window));
    EXPECT_FALSE(frmDumpSel.visible());
    EXPECT_TRUE(form(window).visible());
    EXPECT_EQ(desk().active(), &form(window));
  }
}

TEST_F(DumpHandsTest, MemoryReadIsRefusedOnAWordBus) {
  for (const int type : {kWordLittle, kWordBig}) {
    chooseCpu(type);
    click(frmMDI->lblMemoryWindow);
    click(frmDumpSel->cmdAREA(3));
    EXPECT_FALSE(frmDumpSel.visible());
    ASSERT_TRUE(frmMessage.visible());
    EXPECT_EQ(frmMessage->lblMessage.Caption.get(), "８ビットバス選択時のみ機能します");
    frmMessage->hide();
  }
  chooseCpu(kByteLittle);
  click(frmMDI->lblMemoryWindow);
  click(frmDumpSel->cmdAREA(3));
  EXPECT_FALSE(frmMessage.visible());
  EXPECT_TRUE(frmMemoryRead.visible());
  EXPECT_EQ(frmMemoryRead->Top, frmHard->Top + 2500);
  EXPECT_EQ(frmMemoryRead->Left, frmHard->Left + 1800);
  click(frmMDI->lblMemoryWindow);
  click(frmDumpSel->cmdAREA(4));
  EXPECT_FALSE(frmMemoryRead.visible());
}

TEST_F(DumpHandsTest, TheLastEntryHidesTheMonitorWindows) {
  click(frmMDI->lblMemoryWindow);
  click(frmDumpSel->cmdAREA(4));
  EXPECT_FALSE(frmDumpCDIO.visible() || frmDumpC17.visible() || frmDumpDRC.visible() || frmRegister.visible());
  EXPECT_FALSE(frmDumpSel.visible());
  EXPECT_TRUE(frmHard.visible());
  EXPECT_TRUE(frmDumpCDIO.loaded()) << "hidden, not unloaded";
}

TEST_F(DumpHandsTest, TurningToAMemoryWindowClosesTheDropDown) {
  for (int window = 0; window < 3; ++window) {
    click(frmMDI->lblMemoryWindow);
    EXPECT_EQ(gesture::activate(form(window)), "");
    EXPECT_FALSE(frmDumpSel.visible());
  }
  click(frmMDI->lblMemoryWindow);
  EXPECT_EQ(gesture::activate(*frmHard), "");
  EXPECT_TRUE(frmDumpSel.visible()) << "the panel does not";
}

TEST_F(DumpHandsTest, EveryOtherToolBarActionClosesTheDropDown) {
  for (Label* label :
       {&frmMDI->lblRunMode(0), &frmMDI->lblRunMode(1), &frmMDI->lblRunMode(2), &frmMDI->lblRunMode(3),
        &frmMDI->lblRegisterWindow, &frmMDI->lblRegisterHint, &frmMDI->lblDefault, &frmMDI->lblVersion}) {
    click(frmMDI->lblMemoryWindow);
    click(*label);
    EXPECT_FALSE(frmDumpSel.visible()) << label->fullName();
  }
  ASSERT_TRUE(frmVersion.visible());
  click(frmMDI->lblMemoryWindow);
  doubleClick(frmMDI->lblNagigator);
  EXPECT_TRUE(frmDumpSel.visible()) << "nothing happens during the about window";
  frmVersion->click();
  doubleClick(frmMDI->lblNagigator);
  EXPECT_FALSE(frmDumpSel.visible());
}

TEST_F(DumpHandsTest, ACellLiesUnderItsPlace) {
  // What lies under the middle of a cell is that cell, in both layouts.
  for (const int index : {0, 1}) {
    click(frmDumpC17->cmbBit(index));
    for (const int cell : {0, 7, 8, 15, 500, 895}) {
      for (Control* control :
           {static_cast<Control*>(&frmDumpC17->lblData(cell)), static_cast<Control*>(&frmDumpC17->lblASC(cell))}) {
        const Area area = control->area();
        EXPECT_EQ(frmDumpC17->controlAt(area.left + area.width / 2, area.top + area.height / 2), control);
      }
    }
  }
}

}  // namespace
}  // namespace zelvs
