#pragma once

#include <algorithm>
#include <cstddef>
#include <deque>
#include <initializer_list>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/desk.h"
#include "ui/listRows.h"
#include "ui/platform.h"
#include "ui/windowFrame.h"

namespace zelvs {

/// A user who does anything at all, as lines of a script: by name and by raw hands, at whatever is there by then. A
/// habit is some lines; the next ones follow also where the first has opened something.
class RandomUser {
 public:
  explicit RandomUser(unsigned seed) : random_(seed) {}

  std::string line() {
    while (lines_.empty())
      think();
    const std::string next = lines_.front();
    lines_.pop_front();
    return next;
  }

 private:
  using Texts = std::vector<std::string_view>;
  struct Habit {
    int weight;
    void (RandomUser::*act)();
  };

  void think() {
    static constexpr Habit kHabits[] = {
        {12, &RandomUser::wait},      {14, &RandomUser::rawClick},   {10, &RandomUser::rawDoubleClick},
        {8, &RandomUser::rawPress},   {8, &RandomUser::rawRelease},  {8, &RandomUser::rawKey},
        {4, &RandomUser::frame},      {14, &RandomUser::openList},   {12, &RandomUser::workList},
        {30, &RandomUser::gesture},   {4, &RandomUser::held},        {2, &RandomUser::window},
        {2, &RandomUser::startAnew},  {1, &RandomUser::startLesson}, {3, &RandomUser::answer},
        {3, &RandomUser::writeByte},  {1, &RandomUser::readByte},    {1, &RandomUser::saveSettings},
        {1, &RandomUser::openWindow},
    };
    int all = 0;
    for (const Habit& habit : kHabits)
      all += habit.weight;
    int left = static_cast<int>(upTo(static_cast<std::size_t>(all)));
    for (const Habit& habit : kHabits) {
      left -= habit.weight;
      if (left < 0) return (this->*habit.act)();
    }
  }

  // --- Habits

  void wait() {
    static const Texts kTimes = {"0", "1", "20", "100", "150", "390", "410", "1000", "5000"};
    say({"wait", upTo(2) == 0 ? std::to_string(upTo(1200)) : any(kTimes)});
  }

  void rawClick() {
    moveHand();
    say({"hand down"});
    say({"hand up"});
  }

  void rawDoubleClick() {
    rawClick();
    if (upTo(2) == 0) say({"wait", std::to_string(upTo(450))});
    say({"hand down"});
    if (upTo(4) != 0) say({"hand up"});
  }

  void rawPress() {
    moveHand();
    say({"hand down"});
  }

  void rawRelease() {
    if (upTo(2) == 0) moveHand();
    say({"hand up"});
  }

  void rawKey() {
    static const Texts kNames = {"Enter",     "Escape", "Tab",    "shift+Tab", "Space", "Up",        "Down",
                                 "Left",      "Right",  "Home",   "End",       "F1",    "PageUp",    "Delete",
                                 "PageDown",  "0",      "a",      "G",         "+",     "Backspace", "5",
                                 "ctrl+Left", "alt+a",  "ctrl+a", "表"};
    say({"hand key", any(kNames)});
  }

  /// A caption bar is dragged, an edge is drawn, a close box is clicked.
  void frame() {
    const Form& form = someForm();
    const Area box = closeBoxOf(form);
    const bool close = !box.empty() && upTo(2) == 0;
    const double x = close ? box.left + box.width / 2 : form.clientWidth() * static_cast<double>(upTo(9)) / 8;
    const double y = close ? box.top + box.height / 2 : -kCaptionHeight / 2;
    const int left = pixels(form.insideLeft() + x);
    const int top = pixels(form.insideTop() + y);
    say({"hand move", std::to_string(left), std::to_string(top)});
    say({"hand down"});
    if (!close) {
      const auto away = [this] { return static_cast<int>(upTo(600)) - 300; };
      say({"hand move", std::to_string(left + away()), std::to_string(top + away())});
    }
    if (upTo(6) != 0) say({"hand up"});
  }

  void openList() {
    static const Texts kPictures = {
        "frmHard.picSA(0)",    "frmHard.picSA(3)", "frmHard.picSA(4)", "frmHard.picClock(1)", "frmHard.picClock(2)",
        "frmHard.picClock(3)", "frmHard.picCPU",   "frmHard.picIOS",   "frmHard.picIOS",      "frmHard.picMode"};
    const std::string picture = any(kPictures);
    if (upTo(2) == 0) {
      say({"dblclick", picture});
      return;
    }
    say({"hand move", picture});
    for (const char* half : {"hand down", "hand up", "hand down", "hand up"})
      say({half});
  }

  /// Works the list that has the keyboard, or leaves it.
  void workList() {
    if (!isOpenList(desk().focused())) return;
    const Control& list = *desk().focused();
    switch (upTo(6)) {
      case 0:
        say({"select", list.fullName(), std::to_string(someRow(list))});
        break;
      case 1:
        say({"hand key", any({"Up", "Down", "Escape"})});
        say({"hand key Enter"});
        break;
      case 2:
        say({"hand move", list.fullName(), std::to_string(someRow(list))});
        say({"hand down"});
        say({"hand up"});
        break;
      case 3:
        say({"key", list.fullName(), "27"});
        break;
      default:
        say({"hand move", list.fullName(), std::to_string(someRow(list))});
        for (const char* half : {"hand down", "hand up", "hand down", "hand up"})
          say({half});
    }
  }

  void gesture() {
    const Control* control = someControl();
    if (control == nullptr) return;
    const std::string name = upTo(50) == 0 ? control->form().name() : control->fullName();
    switch (upTo(12)) {
      case 0:
      case 1:
      case 2:
        say({"dblclick", name});
        break;
      case 3:
        say({"move", name});
        say({"pointer", somewhere(platform().screen().width), somewhere(platform().screen().height)});
        break;
      case 4:
        say({"type", name, any({"0", "9", "a", "F", "g", "\"\\t\"", "\" \"", "12fe", "表"})});
        break;
      case 5:
        say({"key", name,
             any({"8", "13", "27", "32", "33", "34", "35", "36", "37", "38", "39", "40", "46", "65", "112"})});
        break;
      case 6:
        say({"select", name, std::to_string(static_cast<int>(upTo(70)) - 2)});
        break;
      case 7:
        say({"focus", name});
        break;
      default:
        say({"click", name});
    }
  }

  /// A button by its name, down and perhaps never up again.
  void held() {
    const Control* control = someControl();
    if (control == nullptr) return;
    say({any({"press", "press", "dblpress", "release"}), control->fullName()});
    if (upTo(3) != 0) say({"release", control->fullName()});
  }

  void window() { say({any({"activate", "activate", "close"}), someForm().name()}); }

  void startAnew() {
    say({"click frmMDI.lblDefault"});
    if (upTo(2) == 0) gesture();
    say({"click frmDefault.cmdAction(1)"});
  }

  void startLesson() {
    say({"dblclick frmMDI.lblNagigator"});
    say({"select frmNaviList.lstTitle", std::to_string(upTo(3))});
    say({"click frmNaviList.cmdStart"});
  }

  /// As the CPU: into a register, or where a memory window shows it.
  void writeByte() {
    static const Texts kValues = {"05", "3F", "00", "01", "10", "FF", "41", "0500", "0005", "1010", "FF04", "0012"};
    static const Texts kCells = {"lblValL", "lblValH", "lblBinL", "lblBinH"};
    const bool ofRegister = upTo(2) == 0;
    const std::string dialog = ofRegister ? "frmEditRegister." : "frmEditMemory.";
    const std::string window = any({"frmDumpCDIO.lblData(", "frmDumpC17.lblASC(", "frmDumpDRC.lblData("});
    const std::size_t cell = ofRegister ? 1 + upTo(8) : upTo(upTo(2) == 0 ? 128 : 896);
    say({"dblclick", (ofRegister ? "frmRegister." + any(kCells) + "(" : window) + std::to_string(cell) + ")"});
    if (upTo(3) == 0) say({"click", dialog + "opnAccess(" + std::to_string(upTo(2)) + ")"});
    say({"type", dialog + "txtWriteData", any(kValues)});
    say({"click", dialog + "cmdAction(0)"});
  }

  void readByte() {
    static const Texts kAddresses = {"000", "07F", "080", "081", "100", "101", "4FF", "500", "584", "7FF", "800"};
    say({"click frmMDI.lblMemoryWindow"});
    say({"click frmDumpSel.cmdAREA(3)"});
    for (std::size_t more = 1 + upTo(3); more > 0; --more) {
      say({"type frmMemoryRead.txtAddress", any(kAddresses)});
      say({"click frmMemoryRead.cmdAction(0)"});
    }
  }

  void saveSettings() {
    static const Texts kLists = {"cmbCPUType", "cmbSA(0)", "cmbSA(2)", "cmbClock(1)", "cmbIOS", "cmbMode"};
    static const Texts kMarks = {"chkDef(0)", "chkDef(1)", "chkDef(5)", "chkCascade(0)", "optHF(0)", "optHF(1)"};
    say({"click frmMDI.lblDefault"});
    for (std::size_t more = upTo(4); more > 0; --more) {
      if (upTo(2) == 0) {
        say({"select", "frmDefault." + any(kLists), std::to_string(upTo(5))});
      } else {
        say({"click", "frmDefault." + any(kMarks)});
      }
    }
    say({"click", "frmDefault.cmdAction(" + std::to_string(2 + upTo(2)) + ")"});
    say({"click frmDefault.cmdAction(2)"});
  }

  void openWindow() {
    if (upTo(3) == 0) return say({"click frmMDI.lblRegisterWindow"});
    say({"click frmMDI.lblMemoryWindow"});
    say({"click", "frmDumpSel.cmdAREA(" + std::to_string(upTo(5)) + ")"});
  }

  /// A message box; the exit is rarely confirmed. Nothing where none is open.
  void answer() { say({"answer", upTo(40) == 0 ? "ok" : "cancel"}); }

  // --- Choices

  std::size_t upTo(std::size_t count) { return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_); }
  std::string any(const Texts& texts) { return std::string(texts[upTo(texts.size())]); }

  /// The words of a line.
  void say(std::initializer_list<std::string> words) {
    std::string line;
    for (const std::string& word : words)
      line += (line.empty() ? "" : " ") + word;
    lines_.push_back(line);
  }

  std::string somewhere(int pixels) { return std::to_string(upTo(static_cast<std::size_t>(pixels))); }
  static int pixels(double twips) { return static_cast<int>(twips / kTwipsPerPixel); }

  /// Mostly to where a hand does something, and in a list to a row.
  void moveHand() {
    if (upTo(12) == 0) {
      say({"hand move", somewhere(platform().screen().width), somewhere(platform().screen().height)});
      return;
    }
    const Control* control = someControl();
    if (control == nullptr) return;
    if (rowCountOf(*control) > 0 && upTo(3) != 0) {
      say({"hand move", control->fullName(), std::to_string(someRow(*control))});
    } else {
      say({"hand move", control->fullName()});
    }
  }

  /// Mostly one of the first: so that boards meet at one station.
  std::size_t someRow(const Control& list) {
    constexpr std::size_t kFirst = 6;
    const auto rows = static_cast<std::size_t>(rowCountOf(list));
    return upTo(upTo(3) == 0 ? rows : std::min(kFirst, rows));
  }

  /// The modal window or, now and then, one behind it; without one often the panel.
  Form& someForm() {
    if (desk().modal() != nullptr && upTo(20) != 0) return *desk().modal();
    std::vector<Form*> open;
    for (Form* form : desk().forms()) {
      if (!form->visible()) continue;
      if (form->name() == "frmHard" && upTo(2) == 0) return *form;
      open.push_back(form);
    }
    return *open[upTo(open.size())];
  }

  /// One that does something, each name as likely as the other, however many bear it. The members of an array stand one
  /// behind the other: so nothing has to be sorted, and a window has thousands.
  const Control* someControl() {
    const std::vector<Control*>& controls = someForm().controls();
    const auto works = [](const Control* control) {
      const bool does = control->isField() || control->onClick || control->onDblClick || control->onMouseDown;
      return does && control->shown();
    };
    std::size_t names = 0;
    std::ptrdiff_t members = 0;  // of the chosen name
    auto chosen = controls.end();
    for (auto at = controls.begin(); at != controls.end();) {
      const auto next = std::find_if(at, controls.end(), [at](const Control* c) { return c->name() != (*at)->name(); });
      const std::ptrdiff_t working = std::count_if(at, next, works);
      if (working > 0 && upTo(++names) == 0) {
        chosen = at;
        members = working;
      }
      at = next;
    }
    if (members == 0) return nullptr;
    std::size_t left = upTo(static_cast<std::size_t>(members));
    return *std::find_if(chosen, controls.end(), [&](const Control* c) { return works(c) && left-- == 0; });
  }

  std::mt19937 random_;
  std::deque<std::string> lines_;
};

}  // namespace zelvs
