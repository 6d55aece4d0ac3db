// The hints on the registers: the list of files behind them, and who turns to which tab.

#include <filesystem>
#include <string>
#include <vector>

#include "chip/frmEditMemory.h"
#include "chip/frmEditRegister.h"
#include "dialogs/frmMessage.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpSel.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "shell/frmMDI.h"
#include "support/bitmap.h"
#include "support/program.h"
#include "ui/gesture.h"
#include "ui/runTimeError.h"

namespace zelvs {
namespace {

constexpr const char* kNineHints =
    "; the order counts\r\n"
    "1.bmp\tSCR\r\n2.bmp\t SSR \r\n3.bmp\tHPR\r\n4.bmp\tINT0R/INT1R\r\n5.bmp\tBCR\r\n6.bmp\tscr\r\n"
    "7.bmp\tControl\tand what is ignored\r\n8.bmp\tC1CR C2CR\r\n9.bmp\tSCR again";

class HintTest : public ProgramTest {
 protected:
  HintTest() {
    std::filesystem::create_directory(folder.file("HintData"));
    for (int picture = 1; picture <= 9; ++picture)
      folder.write("HintData/" + std::to_string(picture) + ".bmp", bitmapOf(10 * picture, 60));
    platform.onModal = [](Form& form) { form.hide(); };
  }

  void startWith(const std::string& list, const std::map<std::string, std::string>& changes = {}) {
    folder.write("HintData/RegsterHint.TXT", list);
    start(changes);
  }
  static std::vector<std::string> captions() {
    std::vector<std::string> texts;
    for (int tab = 0; tab < frmHint->tabHint.Tabs; ++tab)
      texts.push_back(frmHint->tabHint.TabCaption(tab));
    return texts;
  }
  static std::vector<std::string> images() {
    std::vector<std::string> names;
    for (int number = 1; number <= frmHint->ilsHint.count(); ++number)
      names.push_back(frmHint->ilsHint.fileOf(number)->name);
    return names;
  }
  static std::string shownPicture() {
    const Picture picture = frmHint->picHint.Picture;
    return picture.none() ? std::string() : frmHint->ilsHint.fileOf(picture.image)->name;
  }
  using Texts = std::vector<std::string>;
};

TEST_F(HintTest, EachEntryIsATabAndAnImage) {
  startWith(kNineHints);
  EXPECT_EQ(captions(),
            (Texts{"SCR", " SSR ", "HPR", "INT0R/INT1R", "BCR", "scr", "Control", "C1CR C2CR", "SCR again"}));
  EXPECT_EQ(images(), (Texts{"1.bmp", "2.bmp", "3.bmp", "4.bmp", "5.bmp", "6.bmp", "7.bmp", "8.bmp", "9.bmp"}));
  EXPECT_EQ(frmHint->hintDir, folder.path() + "/HintData/");
  EXPECT_EQ(frmHint->tabHint.Tab, 0);
  EXPECT_EQ(shownPicture(), "1.bmp");
  EXPECT_TRUE(frmHint->picHint.Visible);
}

TEST_F(HintTest, LinesOfTheList) {
  struct Row {
    const char* name;
    std::string list;
    Texts captions, images;
  };
  const Row table[] = {
      {"line feeds alone", "1.bmp\tA\n2.bmp\tB\n", {"A", "B"}, {"1.bmp", "2.bmp"}},
      {"no last line end", "1.bmp\tA", {"A"}, {"1.bmp"}},
      {"only comments", ";1.bmp\tA\r\n", {"Tab 0"}, {}},
      {"an empty file", "", {"Tab 0"}, {}},
      {"a blank before the semicolon is no comment", " ;x\tA\r\n1.bmp\tB\r\n", {"A", "B"}, {"1.bmp"}},
      {"no caption", "1.bmp\r\n2.bmp\tB\r\n", {"Tab 0", "B"}, {"1.bmp", "2.bmp"}},
      {"an empty line counts", "1.bmp\tA\r\n\r\n2.bmp\tB\r\n", {"A", "Tab 1", "B"}, {"1.bmp", "2.bmp"}},
      {"an empty caption", "1.bmp\t\r\n", {""}, {"1.bmp"}},
      {"a missing picture moves the images",
       "1.bmp\tA\r\nx.bmp\tB\r\n3.bmp\tC\r\n",
       {"A", "B", "C"},
       {"1.bmp", "3.bmp"}},
      // The second byte of these characters is a backslash and a vertical bar.
      {"code page 932", "1.bmp\t\x95\x5C\x83\x7C\r\n", {"表ポ"}, {"1.bmp"}},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.name);
    desk().clear();
    startWith(row.list);
    EXPECT_EQ(captions(), row.captions);
    EXPECT_EQ(images(), row.images);
  }
}

TEST_F(HintTest, APictureThatIsNoneIsLeftOut) {
  folder.write("HintData/text.bmp", "no bitmap at all, although it is long enough");
  std::filesystem::create_directory(folder.file("HintData/folder.bmp"));
  startWith("text.bmp\tA\r\nfolder.bmp\tB\r\n3.bmp\tC\r\n");
  EXPECT_EQ(images(), (Texts{"3.bmp"}));
  EXPECT_EQ(shownPicture(), "3.bmp") << "image 1, which is the third tab's";
}

TEST_F(HintTest, ADamagedPictureIsLeftOutWhateverItsFault) {
  BitmapFile packed{10, 60};
  packed.packing = 7;
  folder.write("HintData/cut.bmp", bitmapOf(10, 60).substr(0, 30));
  folder.write("HintData/short.bmp", bitmapOf(10, 60).substr(0, 1000));
  folder.write("HintData/packed.bmp", packed.bytes());
  folder.write("HintData/wide.bmp", bitmapOf(20000, 1));
  folder.write("HintData/sparse.bmp", bitmapOf(10, 60));
  std::filesystem::resize_file(folder.file("HintData/sparse.bmp"), std::uintmax_t{1} << 40);
  for (const char* name : {"cut.bmp", "short.bmp", "packed.bmp", "wide.bmp", "sparse.bmp"}) {
    SCOPED_TRACE(name);
    desk().clear();
    startWith("1.bmp\tA\r\n" + std::string(name) + "\tB\r\n3.bmp\tC\r\n");
    EXPECT_EQ(captions(), (Texts{"A", "B", "C"}));
    EXPECT_EQ(images(), (Texts{"1.bmp", "3.bmp"}));
    EXPECT_EQ(shownPicture(), "1.bmp");
  }
}

TEST_F(HintTest, APictureLiesInAFolderByEitherSeparator) {
  std::filesystem::create_directory(folder.file("HintData/sub"));
  folder.write("HintData/sub/a.bmp", bitmapOf(10, 60));
  folder.write("HintData/sub/b.bmp", bitmapOf(20, 60));
  startWith("sub\\a.bmp\tA\r\nsub/b.bmp\tB\r\n");
  EXPECT_EQ(frmHint->ilsHint.count(), 2);
  EXPECT_EQ(frmHint->ilsHint.fileOf(1)->width, 10);
  EXPECT_EQ(frmHint->ilsHint.fileOf(2)->width, 20);
}

TEST_F(HintTest, WithoutItsFilesItIsAnEmptyWindow) {
  std::filesystem::remove_all(folder.file("HintData"));
  start();
  EXPECT_TRUE(frmHint.visible());
  EXPECT_EQ(captions(), (Texts{"Tab 0"}));
  EXPECT_EQ(shownPicture(), "");
  selectHintTab("SCR");
  selectControlWordHint();
  EXPECT_EQ(frmHint->tabHint.Tab, 0);
}

TEST_F(HintTest, TurningATabShowsItsImage) {
  startWith(kNineHints);
  for (const int tab : {3, 8, 0, 6}) {
    EXPECT_EQ(gesture::pick(frmHint->tabHint, tab), "");
    EXPECT_EQ(shownPicture(), std::to_string(tab + 1) + ".bmp");
  }
}

TEST_F(HintTest, ATabBehindTheLastImageEndsTheProgram) {
  startWith("1.bmp\tA\r\nx.bmp\tB\r\n3.bmp\tC\r\n");
  EXPECT_EQ(gesture::pick(frmHint->tabHint, 1), "");
  EXPECT_EQ(shownPicture(), "3.bmp") << "the third tab's picture: nothing checks the shift";
  EXPECT_EXIT(gesture::pick(frmHint->tabHint, 2), testing::ExitedWithCode(kRunTimeErrorStatus),
              "ilsHint has no image 3");
}

TEST_F(HintTest, TheFirstCaptionThatContainsTheNameWins) {
  startWith(kNineHints);
  const std::pair<const char*, int> table[] = {{"INT0R", 3}, {"INT1R", 3}, {"SCR", 0}, {"SSR", 1}, {"C2CR", 7},
                                               {"C1CR", 7},  {"HPR", 2},   {"scr", 5}, {"BCR", 4}};
  for (const auto& [name, tab] : table) {
    selectHintTab(name);
    EXPECT_EQ(frmHint->tabHint.Tab, tab) << name;
    EXPECT_EQ(shownPicture(), std::to_string(tab + 1) + ".bmp");
  }
  selectHintTab("CC");
  EXPECT_EQ(frmHint->tabHint.Tab, 4) << "nothing matches: the tab stays";
}

TEST_F(HintTest, HiddenItStaysAsItIs) {
  startWith(kNineHints, {{"OPENWINDOW2", "0"}});
  ASSERT_TRUE(frmHint.loaded());
  ASSERT_FALSE(frmHint.visible());
  selectHintTab("BCR");
  selectControlWordHint();
  EXPECT_EQ(frmHint->tabHint.Tab, 0);
}

TEST_F(HintTest, ARegisterCellTurnsToItsHint) {
  startWith(kNineHints);
  struct Row {
    int row, tab;
  };
  for (const Row& row : {Row{1, 0}, Row{3, 2}, Row{4, 3}, Row{5, 3}, Row{6, 7}, Row{7, 7}}) {
    frmHint->tabHint.Tab = 8;
    EXPECT_EQ(gesture::doubleClick(*frmRegister, &frmRegister->lblValH(row.row)), "");
    EXPECT_EQ(frmHint->tabHint.Tab, row.tab) << row.row;
    frmHint->tabHint.Tab = 8;
    EXPECT_EQ(gesture::doubleClick(*frmRegister, &frmRegister->lblBinL(row.row)), "");
    EXPECT_EQ(frmHint->tabHint.Tab, row.tab) << row.row;
  }
  frmHint->tabHint.Tab = 8;
  EXPECT_EQ(gesture::doubleClick(*frmRegister, &frmRegister->lblValH(2)), "");
  EXPECT_EQ(frmHint->tabHint.Tab, 8) << "refused before the hint is looked for";
  continuousScanActive = kTrue;
  EXPECT_EQ(gesture::doubleClick(*frmRegister, &frmRegister->lblValL(8)), "");
  EXPECT_EQ(frmHint->tabHint.Tab, 8) << "the same during a scan";
  continuousScanActive = kFalse;
  EXPECT_EQ(gesture::doubleClick(*frmRegister, &frmRegister->lblValL(8)), "");
  EXPECT_EQ(frmHint->tabHint.Tab, 4);
}

TEST_F(HintTest, ACellOfTheControlWordsTurnsToTheSeventhTab) {
  startWith(kNineHints);
  struct Row {
    const Control& cell;
    int tab;
  };
  const FrmDumpCDIO& form = *frmDumpCDIO;
  for (const Row& row : {Row{form.lblData(0), 6}, Row{form.lblData(127), 6}, Row{form.lblData(128), 0},
                         Row{form.lblData(383), 0}, Row{form.lblASC(0), 0}}) {
    frmHint->tabHint.Tab = 0;
    EXPECT_EQ(gesture::doubleClick(*frmDumpCDIO, const_cast<Control*>(&row.cell)), "");
    EXPECT_EQ(frmHint->tabHint.Tab, row.tab) << row.cell.fullName();
  }
}

TEST_F(HintTest, ARefusedControlWordLeavesTheTab) {
  startWith(kNineHints, {{"CPUTYPE", "1"}});
  frmHard->picScanLed.Tag = "1";
  EXPECT_EQ(gesture::doubleClick(*frmDumpCDIO, &frmDumpCDIO->lblData(126)), "");
  EXPECT_EQ(frmHint->tabHint.Tab, 0);
  EXPECT_EQ(gesture::doubleClick(*frmDumpCDIO, &frmDumpCDIO->lblData(127)), "");
  EXPECT_EQ(frmHint->tabHint.Tab, 6);
}

TEST_F(HintTest, WithFewerHintsAControlWordStillOpensItsEditor) {
  startWith("1.bmp\tSCR\r\n");
  bool opened = false;
  platform.onModal = [&](Form& form) {
    opened = &form == frmEditMemory.form();
    form.hide();
  };
  EXPECT_EQ(gesture::doubleClick(*frmDumpCDIO, &frmDumpCDIO->lblData(0)), "");
  EXPECT_TRUE(opened);
  EXPECT_EQ(frmHint->tabHint.Tab, 0);
}

TEST_F(HintTest, TheLabelShowsItOrTurnsToIt) {
  startWith(kNineHints, {{"OPENWINDOW2", "0"}});
  frmDumpSel->show();
  EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRegisterHint), "");
  EXPECT_FALSE(frmDumpSel.visible());
  EXPECT_TRUE(frmHint.visible());
  EXPECT_EQ(desk().active(), frmHint.get());
  EXPECT_EQ(gesture::activate(*frmHard), "");
  EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRegisterHint), "");
  EXPECT_EQ(desk().active(), frmHint.get());
  EXPECT_FALSE(frmHint->modal());
}

TEST_F(HintTest, ItsCloseBoxHidesItAndTheTabsStay) {
  startWith(kNineHints);
  frmHint->tabHint.Tab = 4;
  const Form* form = frmHint.get();
  EXPECT_EQ(gesture::close(*frmHint), "");
  EXPECT_FALSE(frmHint.visible());
  ASSERT_TRUE(frmHint.loaded());
  EXPECT_EQ(frmHint.get(), form);
  EXPECT_EQ(frmHint->tabHint.Tab, 4);
  frmHint->unload();
  EXPECT_FALSE(frmHint.loaded()) << "program code gets through";
}

TEST_F(HintTest, TheWindowHasRoomForTheLargestPicture) {
  folder.write("HintData/wide.bmp", bitmapOf(600, 400));
  startWith("1.bmp\tA\r\nwide.bmp\tB\r\n");
  frmHint->tabHint.Tab = 1;
  const PictureBox& picture = frmHint->picHint;
  EXPECT_EQ(picture.Width.get(), 600 * kTwipsPerPixel);
  EXPECT_LE(picture.Left + picture.Width, frmHint->Width);
  EXPECT_LE(picture.Top + picture.Height, frmHint->clientHeight());
  EXPECT_GE(picture.Top.get(), frmHint->tabHint.Top + frmHint->tabHint.Height);
}

}  // namespace
}  // namespace zelvs
