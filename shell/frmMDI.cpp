#include "shell/frmMDI.h"

#include "bench/ilsMouse.h"
#include "dialogs/beep.h"
#include "lessons/frmNaviList.h"
#include "lessons/frmNavigation.h"
#include "link/simulation.h"
#include "monitor/frmDumpSel.h"
#include "monitor/frmHint.h"
#include "monitor/frmRegister.h"
#include "monitor/windowRefresh.h"
#include "shell/frmDefault.h"
#include "shell/frmVersion.h"
#include "shell/tick.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

constexpr double kToolBoxHeight = 225;
constexpr Colour kVersionGround = 0xF6FFE9;
constexpr Colour kPink = 0xC0C0FF;
constexpr Colour kModeSelected = 0xC0E0FF;
constexpr Colour kModeFree = 0xC0FFFF;

/// One label of the tool bar, from left to right; widths and gaps in pixels.
struct ToolBarRow {
  Label& label;
  std::string_view caption;
  double width;
  Colour ground;
  int pointer;  // image of ilsMouse, 0: none
};

/// A restart lets events run while its windows come up: what would pull the bench from under it waits.
bool restarting() {
  return runMode == kRestarting && startupDone != kTrue;
}

void selectRunMode(int index) {
  if (!restarting()) frmMDI->lblRunMode_Click(index);
}

void moveOverRunMode(int index) {
  // In 1-Time nothing ticks: the mouse lets the windows catch up without a step.
  (void)index;
  if (runMode == kOneTime) timTick_Timer();
}

void lblMemoryWindow_Click() {
  constexpr double kToTheLeft = 900;
  frmDumpSel->move(frmMDI->lblMemoryWindow.Left * kTwipsPerPixel - kToTheLeft, 0);
  frmDumpSel->show();
  frmDumpSel->bringToFront();
}

void lblRegisterWindow_Click() {
  hideDumpSel();
  openRegisterWindow();
}

void lblVersion_Click() {
  hideDumpSel();
  frmVersion->show();
  frmVersion->repaint();
  yieldToEvents();
}

void lblRegisterHint_Click() {
  hideDumpSel();
  if (frmHint.visible()) {
    frmHint->setFocus();
  } else {
    frmHint->show();
  }
  frmHint->reveal();
}

void lblDefault_Click() {
  if (restarting()) return;
  hideDumpSel();
  frmDefault->move(4700, 4000);
  frmDefault->keepOnScreen();
  frmDefault->show();
}

void lblNagigator_DblClick() {
  // While the splash, the about window or a lesson is there nothing happens at all.
  if (frmVersion.visible() || frmNavigation.visible() || restarting()) return;
  hideDumpSel();
  openNaviList();
}

}  // namespace

FrmMDI::FrmMDI() : Form("frmMDI", kKind, Border::Sizable) {
  Caption = "ZEL-VS";
  BackColor = 0x808080;
  Width = platform().screen().width * kTwipsPerPixel;
  Height = platform().screen().height * kTwipsPerPixel;

  ToolBox.setUnit(kTwipsPerPixel);
  ToolBox.move(0, 0, Width, kToolBoxHeight);
  const ToolBarRow rows[] = {
      {lblSimulationTick, "Simurator Mode", 153, kModeFree, 0},
      {lblRunMode(0), kRunModes[0].caption, 48, kModeSelected, kClickPointer},
      {lblRunMode(1), kRunModes[1].caption, 48, kModeFree, kClickPointer},
      {lblRunMode(2), kRunModes[2].caption, 48, kModeFree, kClickPointer},
      {lblRunMode(3), kRunModes[3].caption, 48, kModeFree, kClickPointer},
      {lblMemoryWindow, "Memory Window", 100, kModeFree, kClickPointer},
      {lblRegisterWindow, "Register Window", 112, kModeFree, kClickPointer},
      {lblRegisterHint, "Register Hint", 100, kModeFree, kClickPointer},
      {lblVersion, "Version", 64, kVersionGround, kClickPointer},
      {lblDefault, "Simurator Default Set", 148, kModeFree, kClickPointer},
      {lblNagigator, "Navigator", 80, kPink, kDoubleClickPointer},
  };
  constexpr double kGap = 2;
  double left = 0;
  for (const ToolBarRow& row : rows) {
    row.label.placeIn(ToolBox);
    row.label.Caption = row.caption;
    row.label.FontSize = 8;
    row.label.Align = Alignment::Center;
    row.label.Transparent = false;
    row.label.BackColor = row.ground;
    row.label.move(left, 0, row.width, kToolBoxHeight / kTwipsPerPixel);
    if (row.pointer != 0) setPointer(row.label, row.pointer);
    left += row.width + kGap;
  }
  shpTick.placeIn(ToolBox);
  shpTick.BackColor = kPink;
  shpTick.ForeColor = kPink;
  shpTick.move(0, 0, kRunModes[0].markerWidth, kToolBoxHeight / kTwipsPerPixel);

  lblRunMode.on(&Control::onClick, selectRunMode);
  lblRunMode.on(&Control::onMouseMove, moveOverRunMode);
  lblMemoryWindow.onClick = lblMemoryWindow_Click;
  lblRegisterWindow.onClick = lblRegisterWindow_Click;
  lblRegisterHint.onClick = lblRegisterHint_Click;
  lblDefault.onClick = lblDefault_Click;
  lblNagigator.onDblClick = lblNagigator_DblClick;
  lblVersion.onClick = lblVersion_Click;
  timTick.onTimer = timTick_Timer;
}

void FrmMDI::load() {
  timTick.Interval = kRunModes[kRun].interval;
}

void FrmMDI::resized() {
  ToolBox.Width = Width.get();
}

void FrmMDI::lblRunMode_Click(int index) {
  for (Label& label : lblRunMode)
    label.BackColor = label.index() == index ? kModeSelected : kModeFree;
  hideDumpSel();
  const RunModeRow& mode = kRunModes[static_cast<std::size_t>(index)];
  runMode = static_cast<std::int16_t>(index);
  timTick.Interval = mode.interval;
  shpTick.Width = mode.markerWidth;
  if (index != kOneTime) return;
  playBeep();
  simulationStep();
  moveTickMarker();
  refreshWindows();
}

bool FrmMDI::queryUnload(bool /*byUser*/) {
  if (restarting()) return false;
  const bool confirmed = messageBox("ZELVS終了確認", "アプリケーションを終了します。よろしいですか？",
                                    MessageIcon::Question, MessageButtons::OkCancel);
  if (confirmed) desk().end();
  return confirmed;
}

}  // namespace zelvs
