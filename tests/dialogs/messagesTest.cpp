// The yellow pop-up, the modal box, the beep behind them, and the register window's fading.

#include <sys/stat.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "bench/frmHard.h"
#include "dialogs/beep.h"
#include "dialogs/frmDialog.h"
#include "dialogs/frmMessage.h"
#include "dialogs/messages.h"
#include "monitor/frmRegister.h"
#include "monitor/windowRefresh.h"
#include "shell/frmMDI.h"
#include "support/program.h"
#include "support/wave.h"
#include "ui/gesture.h"
#include "ui/textExtent.h"

namespace zelvs {
namespace {

/// Tells the system's beep from the played sound.
class EarPlatform final : public ScriptedPlatform {
 public:
  Screen screen() override { return {1920, 1080}; }
  void systemBeep() override { ++systemBeeps; }
  void playSound() override { ++sounds; }
  int systemBeeps = 0;
  int sounds = 0;
};

class MessageTest : public ProgramTest {
 protected:
  /// A start without ticks: the clock may be moved freely.
  MessageTest() {
    start();
    frmMDI->lblRunMode_Click(kStop);
  }
};

TEST_F(MessageTest, TheMessageStandsUnderThePointer) {
  platform.setPointer({400, 300});
  const int beeps = platform.beeps();
  showMessage("同じです。\r\nABC");
  ASSERT_TRUE(frmMessage.visible());
  const FrmMessage& form = *frmMessage;
  EXPECT_EQ(form.lblMessage.Caption.get(), "同じです。\r\nABC");
  EXPECT_EQ(form.lblMessage.Left, 30.0);
  EXPECT_EQ(form.lblMessage.Top, 30.0);
  EXPECT_EQ(form.lblMessage.Width, textWidth("同じです。", form.lblMessage.FontSize));
  EXPECT_EQ(form.Width, form.lblMessage.Width + 60);
  EXPECT_EQ(form.Height, form.lblMessage.Height + 60);
  EXPECT_EQ(form.Left, 400 * 15 - std::nearbyint(form.Width / 2));
  EXPECT_EQ(form.Top, 303 * 15 + form.Height);
  EXPECT_EQ(form.Tag.get(), "2");
  EXPECT_EQ(form.BackColor, 0x00FFFF);
  EXPECT_EQ(form.border(), Border::None);
  EXPECT_EQ(form.owner(), frmMDI.form());
  EXPECT_FALSE(form.modal());
  EXPECT_EQ(platform.beeps(), beeps + 1);
}

TEST_F(MessageTest, NothingKeepsTheMessageOnTheScreen) {
  platform.setPointer({0, 1079});
  showMessage("端");
  EXPECT_LT(frmMessage->Left, 0.0);
  EXPECT_GT(frmMessage->Top, 1080 * 15.0);
}

TEST_F(MessageTest, TheMessageStandsForTwoSeconds) {
  showMessage("a");
  platform.advance(999);
  EXPECT_EQ(frmMessage->Tag.get(), "2");
  platform.advance(1);
  EXPECT_EQ(frmMessage->Tag.get(), "1");
  platform.advance(999);
  EXPECT_TRUE(frmMessage.visible());
  platform.advance(1);
  EXPECT_FALSE(frmMessage.visible());
  EXPECT_TRUE(frmMessage.loaded());
  EXPECT_EQ(frmMessage->Tag.get(), "0");
  EXPECT_FALSE(frmMessage->timErase.Enabled);
}

TEST_F(MessageTest, AClickSendsTheMessageAway) {
  for (const bool onLabel : {true, false}) {
    showMessage("a");
    platform.advance(100);
    EXPECT_EQ(gesture::click(*frmMessage, onLabel ? &frmMessage->lblMessage : nullptr), "");
    EXPECT_FALSE(frmMessage.visible());
    EXPECT_EQ(frmMessage->Tag.get(), "0");
    EXPECT_FALSE(frmMessage->timErase.Enabled);
  }
}

TEST_F(MessageTest, ASecondMessageTakesThePlaceOfTheFirst) {
  platform.setPointer({400, 300});
  const int beeps = platform.beeps();
  showMessage("first");
  platform.advance(1000);
  EXPECT_EQ(frmMessage->Tag.get(), "1");
  platform.setPointer({800, 600});
  showMessage("second and longer");
  EXPECT_EQ(frmMessage->Tag.get(), "2");
  EXPECT_EQ(frmMessage->lblMessage.Caption.get(), "second and longer");
  EXPECT_EQ(frmMessage->Left, 800 * 15 - std::nearbyint(frmMessage->Width / 2));
  EXPECT_EQ(platform.beeps(), beeps + 2);
  platform.advance(1000);
  EXPECT_TRUE(frmMessage.visible());
  platform.advance(1000);
  EXPECT_FALSE(frmMessage.visible());
}

TEST_F(MessageTest, AMessageThatComesUpAnewHasItsWholeTime) {
  struct Row {
    const char* name;
    std::function<void()> between;
  };
  for (const Row& row : {Row{"hidden by a dialog", [] { frmMessage->hide(); }},
                         Row{"left for another window", [] { frmHard->setFocus(); }}}) {
    SCOPED_TRACE(row.name);
    showMessage("first");
    platform.advance(900);
    row.between();
    showMessage("second");
    platform.advance(1900);
    EXPECT_TRUE(frmMessage.visible());
    platform.advance(100);
    EXPECT_FALSE(frmMessage.visible());
  }
}

TEST_F(MessageTest, TheKeyboardAnswersTheBoxAtOnce) {
  for (const DialogMode mode : {DialogMode::TwoButtons, DialogMode::OneButton}) {
    platform.onModal = [](Form& form) {
      ASSERT_EQ(desk().focused(), &frmDialog->cmdAction(0));
      EXPECT_EQ(gesture::keyDown(*desk().focused(), key::kEnter), "");
      EXPECT_FALSE(form.visible());
    };
    EXPECT_EQ(askDialog("again?", mode, "title"), 1);
    // The button that is pressed here is hidden the next time.
    platform.onModal = [](Form& form) { EXPECT_EQ(gesture::click(form, &frmDialog->cmdAction(1)), ""); };
    EXPECT_EQ(askDialog("again?", DialogMode::TwoButtons, "title"), 2);
  }
}

TEST_F(MessageTest, AMessageBesideAWindowBelongsToIt) {
  platform.setPointer({1000, 1000});
  frmRegister->move(6809.9, 1100);  // cut to whole pixels: 453, 73
  showMessageBeside(*frmRegister, "beside");
  EXPECT_EQ(frmMessage->Left, 453 * 15 - std::nearbyint(frmMessage->Width / 2));
  EXPECT_EQ(frmMessage->Top, 76 * 15 + frmMessage->Height);
  EXPECT_EQ(frmMessage->owner(), frmRegister.form());
  EXPECT_EQ(frmMessage->Tag.get(), "2");
}

// ---- The modal box

TEST_F(MessageTest, TheBoxIsLaidOutByItsTextAndMode) {
  struct Row {
    const char* message;
    DialogMode mode;
    double width;
  };
  std::string wide;
  for (int i = 0; i < 40; ++i)
    wide += "漢";
  const double wideWidth = textWidth(wide, frmDialog->lblMessage.FontSize) + 480;
  ASSERT_GT(wideWidth, 6060);
  const Row table[] = {
      {"短い", DialogMode::OneButton, 6060},
      {"短い", DialogMode::TwoButtons, 6060},
      {wide.c_str(), DialogMode::OneButton, wideWidth},
      {wide.c_str(), DialogMode::TwoButtons, wideWidth},
  };
  for (const Row& row : table) {
    SCOPED_TRACE(row.message);
    const int beeps = platform.beeps();
    int shown = 0;
    platform.onModal = [&](Form& shownForm) {
      ++shown;
      const FrmDialog& form = *frmDialog;
      EXPECT_EQ(&shownForm, &form);
      EXPECT_EQ(form.lblMessage.Caption.get(), std::string(row.message) + "\r\n");
      EXPECT_EQ(form.Width, row.width);
      EXPECT_EQ(form.Height, form.lblMessage.Height + 450 + 700);
      EXPECT_EQ(form.lblMessage.Height, 2 * lineHeight(form.lblMessage.FontSize));
      EXPECT_EQ(form.lblDialogTitle.Width, row.width);
      EXPECT_EQ(form.lblDialogTitle.Caption.get(), "   警 告");
      EXPECT_EQ(form.BackColor, 0x00FFFF);
      EXPECT_EQ(form.owner(), frmMDI.form());
      const double half = std::nearbyint(row.width / 2);
      const double b = form.cmdAction(0).Width;
      EXPECT_EQ(form.cmdAction(0).Caption.get(), "OK");
      EXPECT_EQ(form.cmdAction(1).Caption.get(), "ｷｬﾝｾﾙ");
      EXPECT_EQ(form.cmdAction(0).Top, form.Height - form.cmdAction(0).Height - 120);
      EXPECT_EQ(form.cmdAction(1).Top, form.Height - form.cmdAction(1).Height - 120);
      const bool two = row.mode == DialogMode::TwoButtons;
      EXPECT_EQ(form.cmdAction(1).Visible, two);
      EXPECT_EQ(form.cmdAction(0).Left, two ? half - 1.125 * b : half - b / 2);
      if (two) {
        EXPECT_EQ(form.cmdAction(1).Left, half + 0.125 * b);
      }
      EXPECT_EQ(platform.beeps(), beeps + 1) << "the beep comes before the box";
      gesture::click(*frmDialog, &frmDialog->cmdAction(0));
    };
    EXPECT_EQ(askDialog(row.message, row.mode, kWarningTitle), 1);
    EXPECT_EQ(shown, 1);
  }
}

TEST_F(MessageTest, TheBoxReturnsTheButton) {
  const std::pair<std::function<void()>, int> table[] = {
      {[] { gesture::click(*frmDialog, &frmDialog->cmdAction(0)); }, 1},
      {[] { gesture::click(*frmDialog, &frmDialog->cmdAction(1)); }, 2},
      {[] { gesture::keyDown(frmDialog->cmdAction(0), key::kEnter); }, 1},
      {[] { gesture::keyDown(frmDialog->cmdAction(1), key::kEnter); }, 2},
      {[] { gesture::keyDown(frmDialog->cmdAction(1), key::kSpace); }, 2},
  };
  for (const auto& [press, result] : table) {
    platform.onModal = [&press = press](Form&) { press(); };
    EXPECT_EQ(askDialog("?", DialogMode::TwoButtons, "title"), result);
    EXPECT_FALSE(frmDialog.visible());
    EXPECT_EQ(frmDialog->dialogResult, result);
  }
}

TEST_F(MessageTest, TheBoxHoldsTheUserWhileTheTicksGoOn) {
  frmMDI->lblRunMode_Click(kRun);
  platform.onModal = [this](Form&) {
    EXPECT_EQ(gesture::click(*frmMDI, &frmMDI->lblRunMode(1)), "frmDialog is modal");
    EXPECT_EQ(gesture::close(*frmDialog), "frmDialog has no close box");
    chk1LedTimer = 1000;
    platform.advance(20);
    EXPECT_EQ(chk1LedTimer, 1000 - 67);
    gesture::click(*frmDialog, &frmDialog->cmdAction(1));
  };
  EXPECT_EQ(askDialog("?", DialogMode::TwoButtons, "title"), 2);
}

// ---- The beep

class BeepTest : public ProgramTest {
 protected:
  BeepTest() { setPlatform(&ear); }
  ~BeepTest() override {
    desk().clear();
    setPlatform(&platform);
  }
  EarPlatform ear;
};

TEST_F(BeepTest, TheSoundOfTheFolderIsPlayed) {
  folder.write("BEEP.WAV", silentWave());
  start();
  EXPECT_EQ(beepDeviceOpen, kTrue);
  EXPECT_TRUE(frmHard->mmcBeep.DeviceType == "WaveAudio");
  EXPECT_TRUE(frmHard->mmcBeep.FileName == folder.file("BEEP.WAV"));
  playBeep();
  EXPECT_EQ(ear.sounds, 1);
  EXPECT_EQ(ear.systemBeeps, 0);
}

TEST_F(BeepTest, WithoutAPlayableSoundTheSystemBeeps) {
  const std::string damaged[] = {"", "RIFF", "RIFX\x24\0\0\0WAVEfmt ", std::string(100, 'x')};
  start();
  EXPECT_EQ(beepDeviceOpen, kFalse);
  playBeep();
  EXPECT_EQ(ear.systemBeeps, 1);
  for (const std::string& bytes : damaged) {
    folder.write("BEEP.WAV", bytes);
    openBeepDevice();
    EXPECT_EQ(beepDeviceOpen, kFalse);
  }
  playBeep();
  EXPECT_EQ(ear.systemBeeps, 2);
  EXPECT_EQ(ear.sounds, 0);
}

TEST_F(BeepTest, AFolderOrAPipeInThePlaceOfTheSoundIsNoSound) {
  std::filesystem::create_directory(folder.file("BEEP.WAV"));
  start();
  EXPECT_EQ(beepDeviceOpen, kFalse);
  std::filesystem::remove(folder.file("BEEP.WAV"));
  ASSERT_EQ(mkfifo(folder.file("BEEP.WAV").c_str(), 0600), 0);
  openBeepDevice();
  EXPECT_EQ(beepDeviceOpen, kFalse);
}

// ---- The register window

TEST_F(MessageTest, ARegisterThatChangedIsRedForFourSeconds) {
  for (const bool high : {false, true}) {
    SCOPED_TRACE(high ? "high byte" : "low byte");
    Label& value = high ? frmRegister->lblValH(3) : frmRegister->lblValL(3);
    Label& binary = high ? frmRegister->lblBinH(3) : frmRegister->lblBinL(3);
    platform.advance(10000);
    ASSERT_EQ(value.ForeColor, kBlack);
    chipMemory[0x584 + (high ? 1 : 0)] = 0x1E;
    refreshRegisterWindow();
    EXPECT_EQ(value.Caption.get(), "1E");
    EXPECT_EQ(binary.Caption.get(), high ? " 0001_1110" : "0001_1110");
    for (int seconds = 4; seconds > 0; --seconds) {
      EXPECT_EQ(value.Tag.get(), std::to_string(seconds));
      EXPECT_EQ(value.ForeColor, kRed);
      EXPECT_EQ(binary.ForeColor, kRed);
      platform.advance(1000);
    }
    EXPECT_EQ(value.Tag.get(), "0");
    EXPECT_EQ(value.ForeColor, kBlack);
    EXPECT_EQ(binary.ForeColor, kBlack);
    Label& other = high ? frmRegister->lblValL(3) : frmRegister->lblValH(3);
    EXPECT_EQ(other.ForeColor, kBlack) << "the other byte did not change";
  }
}

TEST_F(MessageTest, ASecondChangeStartsTheRedAnew) {
  chipMemory[0x584] = 1;
  refreshRegisterWindow();
  platform.advance(3000);
  chipMemory[0x584] = 2;
  refreshRegisterWindow();
  EXPECT_EQ(frmRegister->lblValL(3).Tag.get(), "4");
  refreshRegisterWindow();
  platform.advance(1000);
  refreshRegisterWindow();
  EXPECT_EQ(frmRegister->lblValL(3).Tag.get(), "3") << "what is shown already is no change";
}

TEST_F(MessageTest, TheCountingByteOfTheStatusRegisterNeverTurnsRed) {
  platform.advance(10000);
  chipMemory[kSsrLow] = 0x3F;
  refreshRegisterWindow();
  EXPECT_EQ(frmRegister->lblValL(2).Caption.get(), "3F");
  EXPECT_EQ(frmRegister->lblValL(2).ForeColor, kBlack);
  EXPECT_EQ(frmRegister->lblBinL(2).ForeColor, kBlack);
  chipMemory[kSsrHigh] = 0x80;
  refreshRegisterWindow();
  EXPECT_EQ(frmRegister->lblValH(2).ForeColor, kRed);
}

TEST_F(MessageTest, AHiddenRegisterWindowIsLeftAlone) {
  platform.advance(10000);
  frmRegister->hide();
  chipMemory[0x584] = 0x77;
  refreshRegisterWindow();
  EXPECT_NE(frmRegister->lblValL(3).Caption.get(), "77");
  EXPECT_EQ(frmRegister->lblValL(3).ForeColor, kBlack);
  frmRegister->show();
  refreshRegisterWindow();
  EXPECT_EQ(frmRegister->lblValL(3).Caption.get(), "77");
  EXPECT_EQ(frmRegister->lblValL(3).ForeColor, kRed);
}

TEST_F(MessageTest, AListThatLiesOpenHasItsOwnQuestionFirst) {
  std::vector<std::string> asked;
  platform.onModal = [&](Form& form) {
    ASSERT_EQ(&form, frmDialog.form());
    asked.push_back(frmDialog->lblMessage.Caption);
    gesture::click(*frmDialog, &frmDialog->cmdAction(1));
    if (form.visible()) gesture::click(*frmDialog, &frmDialog->cmdAction(0));
  };
  gesture::doubleClick(*frmHard, &frmHard->picMode);
  ASSERT_EQ(desk().focused(), &frmHard->cmbMode);
  EXPECT_EQ(askDialog("outer", DialogMode::TwoButtons, "title"), 2);
  ASSERT_EQ(asked.size(), 2U);
  EXPECT_NE(asked[0], "outer\r\n");
  EXPECT_EQ(asked[1], "outer\r\n");
  EXPECT_EQ(frmDialog->lblDialogTitle.Caption.get(), "title");
}

}  // namespace
}  // namespace zelvs
