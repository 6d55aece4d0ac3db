// The schematic follows the board's settings, the explanation of STB its two switches.

#include <vector>

#include "monitor/frmDumpSel.h"
#include "panel/frmKAIROZU.h"
#include "panel/frmOsiro.h"
#include "shell/frmMDI.h"
#include "support/bitmap.h"
#include "support/program.h"
#include "support/userFixture.h"

namespace zelvs {
namespace {

class ViewersTest : public ProgramTest {
 protected:
  void SetUp() override {
    std::filesystem::create_directory(folder.file("Kairozu"));
    std::vector<std::string> names = {"QVT60_FULL_16BIT.BMP", "QVT60_FULL_8BIT.BMP", "QVT60_HALF_16BIT.BMP",
                                      "QVT60_HALF_8BIT.BMP",  "QVT40_FULL_NEST.BMP", "QVT40_FULL.BMP",
                                      "QVT40_NEST.BMP",       "Qvt40_add_half.bmp",  "Qvt50_add_half.bmp"};
    for (int mode = 0; mode <= 7; ++mode)
      names.push_back("QVT50_IOS_" + std::to_string(mode) + ".BMP");
    for (const std::string& name : names)
      folder.write("Kairozu/" + name, bitmapOf(100, 60));
    platform.onModal = [](Form& form) { form.hide(); };
    start();
  }

  static std::string main() { return frmKAIROZU->picKAIROZU.Picture.get().file->name; }
  static std::string overlay() {
    return frmKAIROZU->picHalf.Visible ? frmKAIROZU->picHalf.Picture.get().file->name : std::string();
  }
};

TEST_F(ViewersTest, TheWindowFitsEachPictureAnew) {
  folder.write("Kairozu/QVT40_NEST.BMP", bitmapOf(200, 90));
  const auto size = [] { return std::pair<double, double>(frmKAIROZU->Width, frmKAIROZU->Height); };
  frmKAIROZU->setKAIROZU(0);
  EXPECT_EQ(size(), std::pair(100 * 15.0, 60 * 15.0 + 300));
  frmKAIROZU->setKAIROZU(2);
  EXPECT_EQ(size(), std::pair(200 * 15.0, 90 * 15.0 + 300));
  frmKAIROZU->setKAIROZU(0);
  EXPECT_EQ(size(), std::pair(100 * 15.0, 60 * 15.0 + 300));
}

TEST_F(ViewersTest, TheMotorBoardShowsTheIoBoardWithItsOverlay) {
  boardFullHalf = 0;
  frmKAIROZU->setKAIROZU(6);
  EXPECT_EQ(main(), "QVT50_IOS_0.BMP");
  EXPECT_EQ(overlay(), "Qvt50_add_half.bmp");
}

TEST_F(ViewersTest, ABoardThatIsNotThereHasNoPicture) {
  for (const int board : {-1, 7}) {
    frmKAIROZU->setKAIROZU(board);
    EXPECT_TRUE(frmKAIROZU->picKAIROZU.Picture.get().none());
    EXPECT_EQ(overlay(), "");
  }
}

TEST_F(ViewersTest, TheSecondSlaveConnectorTellsBoard5InsteadOfBoard3) {
  doubleClick(frmHard->picBridge(1));
  frmKAIROZU->setKAIROZU(3);
  EXPECT_EQ(main(), "QVT40_FULL.BMP");
  doubleClick(frmHard->picFConn(2));
  EXPECT_EQ(main(), "QVT40_FULL.BMP") << "what it should follow";
  doubleClick(frmHard->picBridge(0));
  frmKAIROZU->setKAIROZU(1);
  EXPECT_EQ(main(), "QVT40_FULL.BMP");
  doubleClick(frmHard->picFConn(0));
  EXPECT_EQ(main(), "QVT40_FULL_NEST.BMP");
}

TEST_F(ViewersTest, EachBoardHasItsSchematic) {
  struct Row {
    int board;
    std::uint8_t jumper;
    std::int16_t cpu, ios;
    bool slave;
    const char *main, *overlay;
  };
  const Row rows[] = {
      {0, 16, 0, 0, true, "QVT60_FULL_16BIT.BMP", ""},
      {0, 16, 1, 0, true, "QVT60_FULL_8BIT.BMP", ""},
      {0, 16, 2, 0, true, "QVT60_FULL_16BIT.BMP", ""},
      {0, 0, 0, 0, true, "QVT60_HALF_16BIT.BMP", ""},
      {0, 0, 3, 0, true, "QVT60_HALF_8BIT.BMP", ""},
      {1, 16, 0, 0, true, "QVT40_FULL_NEST.BMP", ""},
      {3, 0, 0, 0, true, "QVT40_FULL_NEST.BMP", "Qvt40_add_half.bmp"},
      {1, 16, 0, 0, false, "QVT40_FULL.BMP", ""},
      {3, 0, 0, 0, false, "QVT40_FULL.BMP", "Qvt40_add_half.bmp"},
      {2, 16, 0, 0, true, "QVT40_NEST.BMP", ""},
      {4, 0, 0, 0, true, "QVT40_NEST.BMP", ""},
      {5, 16, 0, 7, true, "QVT50_IOS_7.BMP", ""},
      {5, 0, 0, 0, true, "QVT50_IOS_0.BMP", "Qvt50_add_half.bmp"},
      {6, 16, 0, 3, true, "QVT50_IOS_3.BMP", ""},
  };
  for (const Row& row : rows) {
    boardFullHalf = row.jumper;
    cpuType = row.cpu;
    ioBoardMode = row.ios;
    for (const int slave : {2, 4})
      frmHard->picBoard(slave).Tag = row.slave ? "1" : "0";
    frmKAIROZU->setKAIROZU(row.board);
    EXPECT_EQ(main(), row.main);
    EXPECT_EQ(overlay(), row.overlay) << row.main;
    EXPECT_EQ(kairozuCurrent, row.board);
    EXPECT_TRUE(frmKAIROZU.visible());
    EXPECT_EQ(desk().active(), frmKAIROZU.form());
  }
}

TEST_F(ViewersTest, TheWindowFitsItsPictureAndStandsAtItsPlace) {
  doubleClick(frmHard->picQVT(0));
  EXPECT_EQ(frmKAIROZU->Width, 1500.0);
  EXPECT_EQ(frmKAIROZU->Height, 900.0 + 300);
  EXPECT_EQ(frmKAIROZU->Left, 10050.0);
  EXPECT_EQ(frmKAIROZU->Top, 0.0);
}

TEST_F(ViewersTest, TheDriveOpensTheIoBoardsSchematic) {
  ioBoardMode = 7;
  frmHard->picBoard(6).Visible = true;
  doubleClick(frmHard->picPWM);
  EXPECT_EQ(main(), "QVT50_IOS_7.BMP");
}

TEST_F(ViewersTest, AnOpenSchematicFollowsItsOwnBoardOnly) {
  doubleClick(frmHard->picQVT(0));
  doubleClick(frmHard->picCPU);
  EXPECT_EQ(gesture::pick(frmHard->cmbCPUType, 1), "");
  EXPECT_EQ(main(), "QVT60_FULL_8BIT.BMP");

  doubleClick(frmHard->picQVT(5));
  doubleClick(frmHard->picCPU);
  EXPECT_EQ(gesture::pick(frmHard->cmbCPUType, 0), "");
  EXPECT_EQ(main(), "QVT50_IOS_0.BMP") << "another board's setting does not disturb it";
  doubleClick(frmHard->picIOS);
  EXPECT_EQ(gesture::pick(frmHard->cmbIOS, 6), "");
  EXPECT_EQ(main(), "QVT50_IOS_6.BMP");
}

TEST_F(ViewersTest, TheJumperAndTheSlaveAreFollowed) {
  doubleClick(frmHard->picBridge(0));
  doubleClick(frmHard->picQVT(1));
  EXPECT_EQ(main(), "QVT40_FULL.BMP");
  doubleClick(frmHard->picFConn(0));
  EXPECT_EQ(main(), "QVT40_FULL_NEST.BMP");
  // The box of the jumper is agreed to.
  platform.onModal = [](Form& form) {
    Control* ok = form.find("cmdAction", 0);
    EXPECT_EQ(gesture::click(form, ok), "");
  };
  doubleClick(frmHard->picReset(0));
  doubleClick(frmHard->picJumper(1));
  EXPECT_EQ(overlay(), "Qvt40_add_half.bmp");
  doubleClick(frmHard->picJumper(1));
  EXPECT_EQ(overlay(), "");
  doubleClick(frmHard->picBridge(0));
  EXPECT_FALSE(frmKAIROZU.visible()) << "pulling a slave hides the schematic";
}

TEST_F(ViewersTest, AMissingFileEndsTheProgramWithItsName) {
  std::filesystem::remove(folder.file("Kairozu/QVT40_NEST.BMP"));
  EXPECT_EXIT(frmKAIROZU->setKAIROZU(2), testing::ExitedWithCode(kRunTimeErrorStatus), "QVT40_NEST.BMP");
}

TEST_F(ViewersTest, TurningToTheSchematicClosesTheDropDown) {
  doubleClick(frmHard->picQVT(0));
  EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblMemoryWindow), "");
  ASSERT_TRUE(frmDumpSel.visible());
  EXPECT_EQ(gesture::activate(*frmKAIROZU), "");
  EXPECT_FALSE(frmDumpSel.visible());
}

TEST_F(ViewersTest, TheExplanationFollowsTheTwoSwitchesOfABoard) {
  doubleClick(frmHard->picSTB(0));
  ASSERT_TRUE(frmOsiro.visible());
  EXPECT_TRUE(frmOsiro->picSTB.Picture.get().none()) << "untouched switches mean nothing";
  const auto shown = [] { return frmOsiro->picSTB.Picture.get().image; };
  doubleClick(frmHard->picSSA(0));
  EXPECT_TRUE(frmOsiro->picSTB.Picture.get().none()) << "one of them is still untouched";
  for (const int number : {0, frmOsiro->ilsOsiro.count() + 1}) {
    frmOsiro->initPicture(number);
    EXPECT_TRUE(frmOsiro->picSTB.Picture.get().none()) << number;
  }
  doubleClick(frmHard->picSSB(0));
  EXPECT_EQ(shown(), 4);
  doubleClick(frmHard->picSSA(0));
  EXPECT_EQ(shown(), 3);
  doubleClick(frmHard->picSSB(0));
  EXPECT_EQ(shown(), 1);
  doubleClick(frmHard->picSSA(0));
  EXPECT_EQ(shown(), 2);
}

TEST_F(ViewersTest, TheExplanationStandsBesideItsBoard) {
  const std::pair<double, double> places[] = {{4000, 7900}, {4000, 13300}, {7100, 7900}, {7100, 13300}, {9000, 7900}};
  frmHard->move(150, 300);
  for (int board = 0; board < 5; ++board) {
    for (Control* control :
         {static_cast<Control*>(&frmHard->picSTB(2 * board)), static_cast<Control*>(&frmHard->picSTB(2 * board + 1)),
          static_cast<Control*>(&frmHard->picSSA(board)), static_cast<Control*>(&frmHard->picSSB(board))}) {
      doubleClick(*control);
      EXPECT_EQ(frmOsiro->Top, 300 + places[board].first) << control->fullName();
      EXPECT_EQ(frmOsiro->Left, 150 + places[board].second) << control->fullName();
    }
  }
}

}  // namespace
}  // namespace zelvs
