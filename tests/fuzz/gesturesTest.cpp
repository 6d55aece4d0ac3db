// A user who does anything at all: random gestures on whatever is visible, modal windows, restarts and lists among
// them. Nothing may end the program, leave the desk in disorder or touch what is gone (the sanitizers watch).

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "shell/frmMDI.h"
#include "support/bitmap.h"
#include "support/program.h"
#include "ui/gesture.h"

namespace zelvs {
namespace {

class RandomUser {
 public:
  RandomUser(HeadlessPlatform& platform, unsigned seed) : platform_(platform), random_(seed) {
    platform_.onModal = [this](Form& form) { workIn(form); };
    platform_.onMessageBox = [](const std::string&, const std::string&, MessageButtons buttons) {
      return buttons == MessageButtons::Ok;  // the exit question is never confirmed
    };
  }

  void gesture() {
    std::vector<Form*> open;
    for (Form* form : desk().forms()) {
      if (form->visible()) open.push_back(form);
    }
    ASSERT_FALSE(open.empty());
    Form& form = desk().modal() != nullptr && upTo(20) != 0 ? *desk().modal() : *open[upTo(open.size())];
    std::vector<Control*> controls;
    for (Control* control : form.controls()) {
      if (control->shown()) controls.push_back(control);
    }
    Control* control = controls.empty() || upTo(50) == 0 ? nullptr : controls[upTo(controls.size())];
    last_ = control != nullptr ? control->fullName() : form.name();
    act(form, control);
  }

  const std::string& last() const { return last_; }

 private:
  std::size_t upTo(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_); }

  void act(Form& form, Control* control) {
    namespace g = zelvs::gesture;
    static const std::vector<int> kKeys = {8, 13, 27, 32, 33, 34, 35, 36, 37, 38, 39, 40, 46, 65, 112};
    switch (upTo(12)) {
      case 0:
        platform_.advance(static_cast<std::int64_t>(upTo(1200)));
        break;
      case 1:
        g::doubleClick(form, control, upTo(4) != 0);
        break;
      case 2:
        g::press(form, control);
        break;
      case 3:
        g::release(form, control, upTo(3) != 0);
        break;
      case 4:
        g::move(form, control);
        platform_.setPointer({static_cast<int>(upTo(1920)), static_cast<int>(upTo(1080))});
        break;
      case 5:
        if (control != nullptr) g::type(*control, U"0123456789abcdefgABCDEF \t表"[upTo(26)]);
        break;
      case 6:
        if (control != nullptr) g::keyDown(*control, kKeys[upTo(kKeys.size())]);
        break;
      case 7:
        if (control != nullptr) pick(*control);
        break;
      case 8:
        if (upTo(4) == 0) g::close(form);
        break;
      case 9:
        if (control != nullptr) g::focus(*control);
        break;
      default:
        g::click(form, control);
    }
  }

  void pick(Control& control) {
    const auto kind = control.kind();
    if (kind == ControlKind::ComboBox || kind == ControlKind::ListBox) {
      gesture::pick(control, static_cast<int>(upTo(70)) - 2);
    } else if (kind == ControlKind::TabStrip) {
      gesture::pick(control, static_cast<int>(upTo(12)) - 1);
    }
  }

  /// Some gestures inside, then the way out that every modal window has.
  void workIn(Form& form) {
    for (std::size_t left = upTo(12); left > 0 && form.visible(); --left)
      gesture();
    for (int tries = 0; tries < 100 && form.visible(); ++tries) {
      gesture::close(form);
      for (Control* control : form.controls()) {
        if (form.visible() && control->kind() == ControlKind::CommandButton) gesture::click(form, control);
      }
      platform_.advance(1000);
    }
    EXPECT_FALSE(form.visible()) << "a modal window that nobody can leave: " << form.name();
    if (form.visible()) form.hide();
  }

  HeadlessPlatform& platform_;
  std::mt19937 random_;
  std::string last_;
};

class RandomGesturesTest : public ProgramTest, public testing::WithParamInterface<unsigned> {
 protected:
  /// What holds between two gestures whatever the user did.
  static void expectOrder(const std::string& last) {
    int forms = 0;
    for (const Form* form : desk().forms()) {
      ASSERT_EQ(FormPlace::named(form->name())->form(), form) << "behind " << last;
      ++forms;
    }
    ASSERT_LE(forms, static_cast<int>(FormPlace::all().size()));
    ASSERT_EQ(desk().modal(), nullptr) << "behind " << last;
    ASSERT_TRUE(desk().active() == nullptr || desk().active()->visible()) << "behind " << last;
    if (desk().focused() != nullptr) {
      ASSERT_EQ(&desk().focused()->form(), desk().active()) << "behind " << last;
      ASSERT_TRUE(desk().focused()->shown()) << "behind " << last;
    }
    ASSERT_TRUE(runMode >= kRun && runMode <= kOneTime) << "behind " << last;
    ASSERT_EQ(startupDone, kTrue) << "behind " << last;
    ASSERT_TRUE(frmMDI.visible() && frmHard.loaded()) << "behind " << last;
    for (const std::int16_t* flag : {&continuousScanActive, &oneShotScanActive, &forceMemoryRepaint, &noiseHeld})
      ASSERT_TRUE(*flag == kTrue || *flag == kFalse) << "behind " << last;
    ASSERT_LE(currentStation, 63) << "behind " << last;
  }
};

TEST_P(RandomGesturesTest, NothingBreaks) {
  std::filesystem::create_directory(folder.file("Kairozu"));
  for (const char* name :
       {"QVT60_FULL_16BIT.BMP", "QVT60_FULL_8BIT.BMP", "QVT60_HALF_16BIT.BMP", "QVT60_HALF_8BIT.BMP",
        "QVT40_FULL_NEST.BMP", "QVT40_FULL.BMP", "QVT40_NEST.BMP", "QVT50_IOS_0.BMP", "QVT50_IOS_1.BMP",
        "QVT50_IOS_2.BMP", "QVT50_IOS_3.BMP", "QVT50_IOS_4.BMP", "QVT50_IOS_5.BMP", "QVT50_IOS_6.BMP",
        "QVT50_IOS_7.BMP", "Qvt40_add_half.bmp", "Qvt50_add_half.bmp"}) {
    folder.write(std::string("Kairozu/") + name, bitmapOf(100, 60));
  }
  std::filesystem::create_directory(folder.file("HintData"));
  std::string hints;
  for (const char* name : {"SCR", "SSR", "HPR", "INT0R", "INT1R", "BCR", "CW", "C1CR", "C2CR"}) {
    folder.write(std::string("HintData/") + name + ".bmp", bitmapOf(200, 100));
    hints += std::string(name) + ".bmp\t" + name + "\r\n";
  }
  folder.write("HintData/RegsterHint.TXT", hints);
  std::filesystem::create_directory(folder.file("NaviData"));
  folder.write("NaviData/NaviIndex.txt", "a.txt\tA\t-\r\nb.txt\tB\t-\r\nmissing.txt\tC\t-\r\n");
  folder.write("NaviData/a.txt", "one\r\n#two&three\r\n-\r\nfour\r\nfive\r\n-\r\n");
  folder.write("NaviData/b.txt", "one\r\n\\two\r\n-\r\n");

  start({{"MEMORYCLEAR", std::to_string(GetParam() % 2)}, {"CPUTYPE", std::to_string(GetParam() % 4)}});
  RandomUser user(platform, GetParam());
  constexpr int kGestures = 4000;
  for (int i = 0; i < kGestures; ++i) {
    user.gesture();
    expectOrder(user.last());
    if (HasFatalFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomGesturesTest, testing::Range(1U, 9U));

}  // namespace
}  // namespace zelvs
