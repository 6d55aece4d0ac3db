#include "monitor/frmDumpSel.h"

#include <array>
#include <string_view>

#include "chip/frmMemoryRead.h"
#include "monitor/frmDumpC17.h"
#include "monitor/frmDumpCDIO.h"
#include "monitor/frmDumpDRC.h"
#include "monitor/frmRegister.h"
#include "monitor/mduMemoryWindow.h"

namespace zelvs {

namespace {

void closeAll() {
  for (FormPlace* place :
       std::initializer_list<FormPlace*>{&frmDumpCDIO, &frmDumpC17, &frmDumpDRC, &frmRegister, &frmMemoryRead}) {
    if (place->visible()) place->form()->hide();
  }
}

/// What a user asks for is brought into view on a screen that does not hold it; at a start everything stays.
void openInView(int window) {
  openDumpWindow(window);
  dumpWindow(window).reveal();
}

struct Entry {
  std::string_view caption;
  void (*action)();
};
constexpr std::array<Entry, 5> kEntries = {{
    {"コントロール+DI+DO", [] { openInView(0); }},
    {"C1～C7", [] { openInView(1); }},
    {"DRC", [] { openInView(2); }},
    {"Memory Read", openMemoryRead},
    {"Window All Close", closeAll},
}};

void cmdAREA_Click(int index) {
  frmDumpSel->hide();
  kEntries[static_cast<std::size_t>(index)].action();
}

}  // namespace

FrmDumpSel::FrmDumpSel() : Form("frmDumpSel", kKind, Border::None) {
  constexpr double kButtonWidth = 1980;
  constexpr double kButtonHeight = 330;
  constexpr double kEdge = 30;
  Width = kButtonWidth + 2 * kEdge;
  Height = static_cast<double>(kEntries.size()) * kButtonHeight + 2 * kEdge;
  BackColor = 0xC0FFFF;
  for (CommandButton& button : cmdAREA) {
    button.Caption = kEntries[static_cast<std::size_t>(button.index())].caption;
    button.move(kEdge, kEdge + button.index() * kButtonHeight, kButtonWidth, kButtonHeight);
  }
  cmdAREA.on(&Control::onClick, cmdAREA_Click);
}

}  // namespace zelvs
