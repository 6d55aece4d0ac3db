#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/frmHard.h"
#include "chip/frmMemoryRead.h"
#include "dialogs/frmDialog.h"
#include "dialogs/frmMessage.h"
#include "fuzz/iniWatch.h"
#include "fuzz/memoryWatch.h"
#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmDumpSel.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "panel/frmEditSerial.h"
#include "panel/frmKAIROZU.h"
#include "script/names.h"
#include "script/words.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "shell/frmVersion.h"
#include "shell/tick.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/gesture.h"
#include "ui/inspect.h"
#include "ui/listRows.h"
#include "ui/platform.h"
#include "ui/view.h"

namespace zelvs {

/// Looks at the program between two lines of a session, also inside a modal window: what must hold there whatever the
/// user has done. It reads the model, is told as its view what is shown, and stands in handlers: in the panel's to see
/// each takeover of a list begin and end, in those that write to see who has written what.
class Watcher final : public View {
 public:
  /// Told of the first thing that does not hold; does not return.
  using Fault = void (*)(const std::string& what);

  /// Where windows show the model, they go on being told.
  explicit Watcher(Fault fault) : fault_(fault), told_(view()) {
    setView(this);
    for (Form* form : desk().forms()) {
      fresh_.push_back(form);
      if (form->visible()) shown_.insert(form);
    }
  }
  ~Watcher() override { setView(&told_); }
  Watcher(const Watcher&) = delete;
  Watcher& operator=(const Watcher&) = delete;

  /// A line will now be carried out. boxOpen: a message box shuts the hands out.
  void before(const Words& words, bool boxOpen) {
    if (words[0] == "hand") beforeHand(words[1], boxOpen);
    if (!boxOpen && words.size() > 1) noteHeldByName(words[0], words[1]);
    lineBegan_ = desk().clock.now();
    lineWaits_ = words[0] == "wait";
    linePokes_ = words[0] == "poke" || words[0] == "step" || words[0] == "tick";
  }

  /// It has been carried out, or what it opened holds the user now.
  void after() {
    if (linePokes_) memory_.remember();
    memory_.look();
    ini_.look();
    if (desk().ended()) return;
    stepIntoFresh();
    afterHand();
    lookAtTime();
    lookAtHeldButtons();
    lookAtPanel();
    lookAtWindows();
    lookAtFocus();
    lookAtLists();
    lookAtRestart();
    lookAtVariables();
  }

  void formLoaded(Form& form) override {
    told_.formLoaded(form);
    fresh_.push_back(&form);
  }
  void formShown(Form& form) override {
    told_.formShown(form);
    shown_.insert(&form);
    if (form.modal()) lookAtModalPlace(form);
    if (form.name() != "frmDialog") return;
    if (!takeovers_.empty()) {
      expect(++takeovers_.back().warnings == 1, "a takeover warns twice", *takeovers_.back().list);
    } else {
      const bool ofStations = frmDialog->lblMessage.Caption.get().find("重複") != std::string::npos;
      expect(!ofStations || cablesTurned_ > 0, "neither a list nor a cable warns", form.name());
    }
  }
  void formHidden(Form& form) override {
    told_.formHidden(form);
    shown_.erase(&form);
  }
  void formUnloaded(Form& form) override {
    told_.formUnloaded(form);
    shown_.erase(&form);
    std::erase(fresh_, &form);
    if (form.name() != "frmHard") return;
    lists_.clear();
    restarted_ = true;
    heldByName_.clear();
    press_ = {};
  }
  void formChanged(Form& form) override { told_.formChanged(form); }
  void orderChanged() override { told_.orderChanged(); }
  void controlsChanged(Form& form) override { told_.controlsChanged(form); }
  void repaint(Form& form) override { told_.repaint(form); }

 private:
  static constexpr std::int64_t kLong = 1 << 20;
  /// What plugs and pulls a cable or a slave. Beside the lists only these may find two boards at one station.
  static constexpr std::array<std::string_view, 6> kCables = {"picBOARD1_RXD", "picBOARD2_RXD", "picCableUp",
                                                              "picCableDn",    "picFConn",      "picBridge"};

  /// A list that is being left, and how often the dialog has come up meanwhile.
  struct Takeover {
    const ComboBox* list;
    int warnings = 0;
  };
  struct Press {
    std::int64_t time = -kLong;
    Point place{};
    const Control* list = nullptr;  // the open list that took it
  };

  void expect(bool holds, std::string_view what, std::string_view where) const {
    if (!holds) fault_(std::string(what) + ": " + std::string(where));
  }
  void expect(bool holds, std::string_view what, const Control& where) const {
    if (!holds) expect(false, what, where.fullName());
  }

  bool takenOverNow(const ComboBox& list) const {
    return std::any_of(takeovers_.begin(), takeovers_.end(), [&](const Takeover& now) { return now.list == &list; });
  }

  // --- Lists: each leaving is one takeover, and behind it the list is closed.

  void stepIntoFresh() {
    for (Form* form : std::exchange(fresh_, {})) {
      memory_.stepInto(*form);
      ini_.stepInto(*form);
      if (form == frmHard.form()) stepIntoPanel();
    }
  }

  /// A new panel has new lists and cables.
  void stepIntoPanel() {
    for (Control* control : frmHard->controls()) {
      if (isOpenList(control)) stepIntoList(static_cast<ComboBox&>(*control));
      if (std::find(kCables.begin(), kCables.end(), control->name()) == kCables.end()) continue;
      stepIntoCable(control->onClick);
      stepIntoCable(control->onDblClick);
    }
  }

  void stepIntoList(ComboBox& list) {
    lists_.push_back(&list);
    list.onLostFocus = [this, &list, taken = list.onLostFocus] {
      expect(!takenOverNow(list), "a takeover inside its own takeover", list);
      takeovers_.push_back({&list});
      taken();
      takeovers_.pop_back();
      expect(!list.Visible, "a list is open behind its takeover", list);
    };
  }

  void stepIntoCable(std::function<void()>& handler) {
    if (!handler) return;
    handler = [this, turned = handler] {
      ++cablesTurned_;
      turned();
      --cablesTurned_;
    };
  }

  void lookAtLists() const {
    for (const ComboBox* list : lists_) {
      const bool keyboard = desk().focused() == list;
      expect(!list->Visible || keyboard || takenOverNow(*list), "an open list without the keyboard", *list);
    }
  }

  // --- Presses: a button is down while a hand holds it, and a double click on a list's row ends there.

  void beforeHand(const std::string& what, bool boxOpen) {
    if (what == "up") handIsDown_ = false;
    if (what != "down") return;
    handIsDown_ = true;
    if (boxOpen) return;
    const Press press{desk().clock.now(), platform().pointer(), nullptr};
    const bool second = isSecond(press);
    const bool rowGone = second && press_.list != nullptr && !press_.list->Visible;
    if (rowGone) beforeSecondPress_ = allThatAPressChanges();
    press_ = second ? Press{} : press;
    newPress_ = !second;
  }

  bool isSecond(const Press& press) const {
    constexpr std::int64_t kDoubleClickTime = 400;  // milliseconds
    constexpr int kDoubleClickPlace = 4;            // pixels
    return press.time - press_.time <= kDoubleClickTime &&
           std::abs(press.place.x - press_.place.x) <= kDoubleClickPlace &&
           std::abs(press.place.y - press_.place.y) <= kDoubleClickPlace;
  }

  void afterHand() {
    const Hand& hand = desk().hand;
    if (std::exchange(newPress_, false) && isOpenList(hand.heldControl())) press_.list = hand.heldControl();
    if (!beforeSecondPress_.empty()) {
      const std::string before = std::exchange(beforeSecondPress_, {});
      expect(!hand.holds(), "the second press on a row holds what lies below", holder());
      expect(before == allThatAPressChanges(), "the second press on a row changes what lies below", holder());
    }
    if (!handIsDown_) expect(!hand.holds(), "held without a hand", holder());
  }

  static std::string holder() {
    const Hand& hand = desk().hand;
    if (hand.heldControl() != nullptr) return hand.heldControl()->fullName();
    return hand.heldForm() != nullptr ? hand.heldForm()->name() : "nobody";
  }

  /// Every shared variable, the windows and the looks of the panel, as a text to compare.
  static std::string allThatAPressChanges() {
    std::string all;
    for (const VariableName& variable : variableNames()) {
      for (int i = 0; i < variable.count; ++i)
        all += std::to_string(variable.read(variable.firstIndex + i)) + ' ';
    }
    for (const Form* form : desk().forms())
      all += form->name() + (form->visible() ? " visible" : " hidden") + '\n';
    for (const Control* control : frmHard->controls()) {
      for (const char* property : {"Tag", "Visible", "Picture"}) {
        const auto value = inspect(*control, property, std::nullopt);
        if (value) all += value->printed() + ' ';
      }
    }
    return all;
  }

  /// A press by its name waits for its own release, whatever comes between.
  void noteHeldByName(const std::string& command, const std::string& name) {
    if (command != "press" && command != "dblpress" && command != "release") return;
    Target target;
    if (!findTarget(name, target).empty() || !gesture::refusal(*target.form, target.control).empty()) return;
    if (command == "release") {
      heldByName_.erase(name);
    } else {
      heldByName_.insert(name);
    }
  }

  void lookAtHeldButtons() const {
    const FrmHard& panel = *frmHard;
    const auto look = [this](const PictureBox& button, const Picture& down) {
      if (button.Picture != down) return;
      const bool held = desk().hand.heldControl() == &button || heldByName_.contains(button.fullName());
      expect(held, "down without a hand", button);
    };
    for (const PictureBox& button : panel.picCounter)
      look(button, panel.ilsCount.image(kCounterDown));
    for (const PictureBox& button : panel.picCLR)
      look(button, panel.ilsCount.image(kClrDown));
    for (const PictureBox& button : panel.picReset)
      look(button, panel.ilsRESET.image(kResetDown));
    look(panel.picNoise, panel.ilsNOISE.image(kNoiseDown));
    const bool noiseDown = panel.picNoise.Picture == panel.ilsNOISE.image(kNoiseDown);
    expect((noiseHeld == kTrue) == noiseDown, "NOISE looks other than it works", panel.picNoise);
  }

  // --- Time stands still but for a wait, no timer is overdue, and what ends by itself has a timer that runs.

  void lookAtTime() const {
    const std::int64_t now = desk().clock.now();
    expect(lineWaits_ || now == lineBegan_, "time has passed", std::to_string(now - lineBegan_));
    const auto due = desk().timers.nextDue();
    expect(!due || *due >= now, "a timer is overdue", due ? std::to_string(now - *due) : "");
    const RunModeRow& mode = kRunModes[static_cast<std::size_t>(runMode)];
    expect(frmMDI->timTick.Interval == mode.interval && frmMDI->timTick.Enabled, "ticks otherwise", "frmMDI.timTick");
    expect(!frmMessage.visible() || runs(frmMessage->timErase), "stands for ever", "frmMessage");
    expect(!frmVersion.visible() || runs(frmVersion->timTimer), "stands for ever", "frmVersion");
    const bool draws = frmEditSerial.loaded() && runs(frmEditSerial->timEnter);
    expect(!draws || frmEditSerial.visible(), "runs unseen", "frmEditSerial.timEnter");
  }

  static bool runs(const Timer& timer) { return timer.Enabled && timer.Interval > 0; }

  // --- The panel shows what the boards hold.

  void lookAtPanel() const {
    const FrmHard& panel = *frmHard;
    const auto bit = [](int word, int at) { return (word >> at & 1) != 0; };
    for (int board = 1; board <= 4; ++board) {
      const int first = kPinsOfBoard * (board - 1);
      const int di = boardDi[2 * board - 2] + 256 * boardDi[2 * board - 1];
      for (int pin = 0; pin < kPinsOfBoard; ++pin) {
        const PictureBox& out = panel.picPO(first + pin);
        const PictureBox& in = panel.picPI(first + pin);
        expect((out.Tag == "O1") == bit(boardDo[board], pin), "an output shows other than DO", out);
        expect((in.Tag == "I1") == bit(di, pin), "a switch shows other than DI", in);
      }
      const PictureBox& serial = panel.picSE(board - 1);
      const bool lit = serial.Picture == panel.ilsLED_G.image(kLit);
      expect(lit == (serialPending[board - 1] == kTrue), "SE shows other than what waits", serial);
      lookAtHold(panel.picCLR(board - 1), panel.ilsCount.image(kClrDown), boardClrHeld[board]);
      lookAtHold(panel.picReset(board), panel.ilsRESET.image(kResetDown), boardResetHeld[board]);
    }
    lookAtHold(panel.picCLR(kIoBoard - 1), panel.ilsCount.image(kClrDown), ioBoardClrHeld);
    lookAtHold(panel.picReset(kIoBoard), panel.ilsRESET.image(kResetDown), ioBoardResetHeld);
  }

  void lookAtHold(const PictureBox& button, const Picture& down, std::int16_t held) const {
    expect((button.Picture == down) == (held == kTrue), "a button looks other than it works", button);
  }

  // --- Windows and the keyboard.

  void lookAtWindows() const {
    const Form* modal = desk().modal();
    std::size_t loaded = 0;
    for (const FormPlace* place : FormPlace::all())
      loaded += place->loaded() ? 1 : 0;
    expect(loaded == desk().forms().size(), "loaded and open windows differ", std::to_string(loaded));
    const Form* front = nullptr;
    for (const Form* form : desk().forms()) {
      expect(form->visible() == shown_.contains(form), "shown or hidden, and nobody was told", form->name());
      if (!form->visible()) continue;
      if (front == nullptr) front = form;
      lookAtPlace(*form);
      const bool taken = modal != nullptr && form != modal && gesture::refusal(*form, nullptr).empty();
      expect(!taken, "takes gestures beside a modal window", form->name());
    }
    expect(modal == nullptr || front == modal, "lies in front of a modal window", front->name());
    const Form* held = desk().hand.heldForm();
    if (modal != nullptr && held != nullptr) expect(held == modal, "held beside a modal window", holder());
    expect(frmMDI.visible() && frmHard.loaded(), "gone", frmMDI.visible() ? "frmHard" : "frmMDI");
  }

  /// A hand reaches the window by its caption bar. Children lie where the frame can be scrolled to.
  void lookAtPlace(const Form& form) const {
    constexpr double kGrip = 40 * kTwipsPerPixel;
    if (form.kind() == FormKind::Frame || form.border() == Border::None) return;
    const Screen screen = platform().screen();
    const Form& frame = *frmMDI;
    const Area all{0, 0, screen.width * kTwipsPerPixel, screen.height * kTwipsPerPixel};
    const Area inside{frame.insideLeft(), frame.insideTop(), frame.clientWidth(), frame.clientHeight()};
    const bool scrolled = form.kind() == FormKind::Child && !form.floating();
    Area bar{form.insideLeft(), form.insideTop() - kCaptionHeight, form.Width, kCaptionHeight};
    Area room = form.kind() == FormKind::Window ? all : inside;
    if (scrolled) {
      bar = {form.Left, form.Top, form.Width, kCaptionHeight};
      room = frame.scrollRange();
    }
    const Area seen = bar.intersected(room);
    expect(seen.width >= kGrip && seen.height >= kCaptionHeight / 2, "out of reach", form.name());
  }

  /// Its buttons are the only way on.
  void lookAtModalPlace(const Form& form) const {
    const Screen screen = platform().screen();
    const Area all{0, 0, screen.width * kTwipsPerPixel, screen.height * kTwipsPerPixel};
    const Area window{form.Left, form.Top, form.Width, form.Height};
    const bool fits = form.Width <= all.width && form.Height <= all.height;
    expect(!fits || window.intersected(all) == window, "modal and not wholly on the screen", form.name());
  }

  void lookAtFocus() const {
    const Form* active = desk().active();
    const Form* modal = desk().modal();
    expect(active == nullptr || active->visible(), "active and hidden", active != nullptr ? active->name() : "");
    expect(modal == nullptr || modal == active, "modal and not active", modal != nullptr ? modal->name() : "");
    if (active != nullptr) lookAtFront(*active);
    const Control* focused = desk().focused();
    if (focused == nullptr) return;
    expect(&focused->form() == active, "the focus is outside the active window", *focused);
    expect(focused->shown() && focused->usable() && focused->takesFocus(), "the focus is where no key works", *focused);
    expect(seen(*focused), "the focus is covered", *focused);
  }

  /// Whether a spot of the control, one of a grid, is in front inside its window.
  static bool seen(const Control& control) {
    constexpr int kGrid = 8;
    const Form& form = control.form();
    const Area area = control.area();
    const Area inside{0, 0, form.clientWidth(), form.clientHeight()};
    for (int spot = 0; spot < kGrid * kGrid; ++spot) {
      const double x = area.left + area.width * (spot % kGrid + 0.5) / kGrid;
      const double y = area.top + area.height * (spot / kGrid + 0.5) / kGrid;
      if (!inside.contains(x, y)) continue;
      const Control* front = form.controlAt(x, y);
      while (front != nullptr && front != &control)
        front = front->container();
      if (front != nullptr) return true;
    }
    return false;
  }

  /// What lies in front of the active window is of a kind that always does, or belongs to it.
  void lookAtFront(const Form& active) const {
    for (const Form* form : desk().forms()) {
      if (form == &active) return;
      if (!form->visible() || layerOf(*form) < layerOf(active)) continue;
      const Form* owner = form->owner();
      while (owner != nullptr && owner != &active)
        owner = owner->owner();
      expect(owner == &active, "lies in front of the active window", form->name());
    }
  }

  static int layerOf(const Form& form) {
    if (form.topmost() || form.modal()) return 0;
    if (form.kind() == FormKind::Window) return 1;
    if (form.kind() == FormKind::Frame) return 4;
    return form.floating() ? 2 : 3;
  }

  // --- A start anew shows what a start would show.

  void lookAtRestart() {
    if (!restarted_ || startupDone != kTrue) return;
    restarted_ = false;
    const std::array<std::pair<const FormPlace*, bool>, 9> windows = {{
        {&frmHard, true},
        {&frmRegister, openWindow[1] != 0},
        {&frmHint, openWindow[2] != 0},
        {&frmDumpCDIO, openWindow[3] != 0},
        {&frmDumpC17, openWindow[4] != 0},
        {&frmDumpDRC, openWindow[5] != 0},
        {&frmDumpSel, false},
        {&frmDefault, false},
        {&frmKAIROZU, false},
    }};
    for (const auto& [window, visible] : windows)
      expect(window->visible() == visible, visible ? "missing after a restart" : "left by a restart", window->name());
    expect(!wideBus() || !frmMemoryRead.visible(), "left by a restart", "frmMemoryRead");
    expect(runMode == kRun, "a restart does not run", "runMode");
  }

  void lookAtVariables() const {
    expect(runMode >= kRun && runMode <= kOneTime, "out of range", "runMode");
    expect(startupDone == kTrue, "not done", "startupDone");
    for (const std::int16_t* flag : {&continuousScanActive, &oneShotScanActive, &forceMemoryRepaint, &noiseHeld})
      expect(*flag == kTrue || *flag == kFalse, "no flag", std::to_string(*flag));
    expect(currentStation <= 63, "out of range", "currentStation");
  }

  MemoryWatch::Fault teller() const {
    return [this](const std::string& what, const std::string& where) { expect(false, what, where); };
  }

  Fault fault_;
  View& told_;
  MemoryWatch memory_{teller()};
  IniWatch ini_{teller()};
  std::vector<Form*> fresh_;      // made since the last look
  std::set<const Form*> shown_;   // as the view was told
  std::vector<ComboBox*> lists_;  // of the panel
  std::int64_t lineBegan_ = 0;
  bool lineWaits_ = true;  // or the session has just begun
  bool linePokes_ = false;
  int cablesTurned_ = 0;             // just now
  std::vector<Takeover> takeovers_;  // the last one is the innermost
  std::set<std::string> heldByName_;
  Press press_;
  bool newPress_ = false;
  bool handIsDown_ = false;
  std::string beforeSecondPress_;
  bool restarted_ = false;
};

}  // namespace zelvs
