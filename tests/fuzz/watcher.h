#pragma once

#include <algorithm>
#include <array>
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
#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmDumpSel.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "panel/frmKAIROZU.h"
#include "script/names.h"
#include "script/words.h"
#include "shell/frmDefault.h"
#include "shell/frmMDI.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/gesture.h"
#include "ui/inspect.h"
#include "ui/listRows.h"
#include "ui/platform.h"
#include "ui/view.h"

namespace zelvs {

/// Looks at the program between two lines of a session, also inside a modal window: what must hold there whatever the
/// user has done. It reads the model, is told as its view what is shown, and stands in the panel's handlers to see
/// each takeover of a list begin and end.
class Watcher final : public View {
 public:
  /// Told of the first thing that does not hold; does not return.
  using Fault = void (*)(const std::string& what);

  explicit Watcher(Fault fault) : fault_(fault) { setView(this); }
  ~Watcher() override { setView(nullptr); }
  Watcher(const Watcher&) = delete;
  Watcher& operator=(const Watcher&) = delete;

  /// A line will now be carried out. boxOpen: a message box shuts the hands out.
  void before(const Words& words, bool boxOpen) {
    if (words[0] == "hand") beforeHand(words[1], boxOpen);
    if (!boxOpen && words.size() > 1) noteHeldByName(words[0], words[1]);
  }

  /// It has been carried out, or what it opened holds the user now.
  void after() {
    if (desk().ended()) return;
    stepIntoPanel();
    afterHand();
    lookAtHeldButtons();
    lookAtWindows();
    lookAtFocus();
    lookAtLists();
    lookAtRestart();
    lookAtVariables();
  }

  void formShown(Form& form) override {
    if (form.name() != "frmDialog") return;
    if (!takeovers_.empty()) {
      expect(++takeovers_.back().warnings == 1, "a takeover warns twice", *takeovers_.back().list);
    } else {
      const bool ofStations = frmDialog->lblMessage.Caption.get().find("重複") != std::string::npos;
      expect(!ofStations || cablesTurned_ > 0, "neither a list nor a cable warns", form.name());
    }
  }
  void formUnloaded(Form& form) override {
    if (form.name() != "frmHard") return;
    steppedInto_ = false;
    restarted_ = true;
    heldByName_.clear();
    press_ = {};
  }

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

  void expect(bool holds, const std::string& what, const std::string& where) const {
    if (!holds) fault_(what + ": " + where);
  }
  void expect(bool holds, const std::string& what, const Control& where) const {
    expect(holds, what, where.fullName());
  }

  static std::vector<ComboBox*> panelLists() {
    std::vector<ComboBox*> lists;
    for (Control* control : frmHard->controls()) {
      auto* list = control->kind() == ControlKind::ComboBox ? static_cast<ComboBox*>(control) : nullptr;
      if (list != nullptr && list->Unrolled) lists.push_back(list);
    }
    return lists;
  }

  bool takenOverNow(const ComboBox& list) const {
    return std::any_of(takeovers_.begin(), takeovers_.end(), [&](const Takeover& now) { return now.list == &list; });
  }

  // --- Lists: each leaving is one takeover, and behind it the list is closed.

  /// A new panel has new lists and cables.
  void stepIntoPanel() {
    if (std::exchange(steppedInto_, true)) return;
    for (Control* control : frmHard->controls()) {
      if (std::find(kCables.begin(), kCables.end(), control->name()) == kCables.end()) continue;
      stepIntoCable(control->onClick);
      stepIntoCable(control->onDblClick);
    }
    for (ComboBox* list : panelLists()) {
      list->onLostFocus = [this, list, taken = list->onLostFocus] {
        expect(!takenOverNow(*list), "a takeover inside its own takeover", *list);
        takeovers_.push_back({list});
        taken();
        takeovers_.pop_back();
        expect(!list->Visible, "a list is open behind its takeover", *list);
      };
    }
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
    for (const ComboBox* list : panelLists()) {
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
    expect(handIsDown_ || !hand.holds(), "held without a hand", holder());
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
    Target target;
    if (!findTarget(name, target).empty() || !gesture::refusal(*target.form, target.control).empty()) return;
    if (command == "press" || command == "dblpress") heldByName_.insert(name);
    if (command == "release") heldByName_.erase(name);
  }

  void lookAtHeldButtons() const {
    const FrmHard& panel = *frmHard;
    const auto look = [this](const PictureBox& button, const Picture& down) {
      const bool held = desk().hand.heldControl() == &button || heldByName_.contains(button.fullName());
      expect(button.Picture != down || held, "down without a hand", button);
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

  // --- Windows and the keyboard.

  void lookAtWindows() const {
    const Form* modal = desk().modal();
    for (const Form* form : desk().forms()) {
      expect(FormPlace::named(form->name())->form() == form, "two windows of one name", form->name());
      const bool taken = form->visible() && gesture::refusal(*form, nullptr).empty();
      expect(modal == nullptr || form == modal || !taken, "takes gestures beside a modal window", form->name());
    }
    const Form* held = desk().hand.heldForm();
    expect(modal == nullptr || held == nullptr || held == modal, "held beside a modal window", holder());
    expect(frmMDI.visible() && frmHard.loaded(), "gone", frmMDI.visible() ? "frmHard" : "frmMDI");
  }

  void lookAtFocus() const {
    const Form* active = desk().active();
    const Form* modal = desk().modal();
    expect(active == nullptr || active->visible(), "active and hidden", active != nullptr ? active->name() : "");
    expect(modal == nullptr || modal == active, "modal and not active", modal != nullptr ? modal->name() : "");
    const Control* focused = desk().focused();
    if (focused == nullptr) return;
    expect(&focused->form() == active, "the focus is outside the active window", *focused);
    expect(focused->shown() && focused->usable() && focused->takesFocus(), "the focus is where no key works", *focused);
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

  Fault fault_;
  int cablesTurned_ = 0;             // just now
  std::vector<Takeover> takeovers_;  // the last one is the innermost
  std::set<std::string> heldByName_;
  Press press_;
  bool newPress_ = false;
  bool handIsDown_ = false;
  std::string beforeSecondPress_;
  bool steppedInto_ = false;
  bool restarted_ = false;
};

}  // namespace zelvs
