#include "shell/frmDefault.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "bench/settingKeys.h"
#include "bench/settingLists.h"
#include "shell/iniFile.h"
#include "shell/restart.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

/// A setting and the control that edits it.
struct Field {
  std::string_view key;
  Control& control;
};

/// In the order of writing.
std::array<Field, 20> fields() {
  FrmDefault& form = *frmDefault;
  return {{
      {kCablesKey, form.chkDef(0)},          {kMemoryClearKey, form.chkDef(1)},
      {kTransferKey, form.optHF(1)},         {kCpuTypeKey, form.cmbCPUType},
      {kAddressKeys[0], form.cmbSA(0)},      {kAddressKeys[1], form.cmbSA(2)},
      {kAddressKeys[2], form.cmbSA(4)},      {kClockKeys[0], form.cmbClock(0)},
      {kClockKeys[1], form.cmbClock(1)},     {kClockKeys[2], form.cmbClock(3)},
      {kClockKeys[3], form.cmbClock(5)},     {kCascadeKeys[0], form.chkCascade(0)},
      {kCascadeKeys[1], form.chkCascade(1)}, {kIoModeKey, form.cmbIOS},
      {kCounterModeKey, form.cmbMode},       {kOpenWindowKeys[0], form.chkDef(2)},
      {kOpenWindowKeys[1], form.chkDef(3)},  {kOpenWindowKeys[2], form.chkDef(4)},
      {kOpenWindowKeys[3], form.chkDef(5)},  {kOpenWindowKeys[4], form.chkDef(6)},
  }};
}

const Setting& settingOf(const Field& field) {
  return *std::find_if(settings().begin(), settings().end(),
                       [&](const Setting& setting) { return setting.key == field.key; });
}

/// Checked and half duplex are above 0, as read: 0.4 counts. A position outside its list ends the program.
void setField(const Field& field, double number) {
  switch (field.control.kind()) {
    case ControlKind::CheckBox:
      static_cast<CheckBox&>(field.control).Value = number > 0 ? 1 : 0;
      break;
    case ControlKind::OptionButton:
      frmDefault->optHF(number > 0 ? 1 : 0).Value = true;
      break;
    default:
      selectSetting(static_cast<ComboBox&>(field.control), field.key, wholeNumber16(number));
  }
}

std::int16_t valueOf(const Field& field) {
  switch (field.control.kind()) {
    case ControlKind::CheckBox:
      return static_cast<std::int16_t>(static_cast<CheckBox&>(field.control).Value.get());
    case ControlKind::OptionButton:
      return static_cast<OptionButton&>(field.control).Value ? 1 : 0;
    default:
      return static_cast<std::int16_t>(static_cast<ComboBox&>(field.control).ListIndex.get());
  }
}

void showMakerValues() {
  for (const Field& field : fields())
    setField(field, settingOf(field).makerValue);
}

void setNow() {
  applyDialogSettings();
  restartSimulator();  // which selects RUN
}

struct Placed {
  Control& control;
  std::string_view caption;
  double left, top, width, height;  // in the container, in pixels
  Control* container = nullptr;
};

constexpr double kWidth = 652;
constexpr double kInside = 480;

}  // namespace

FrmDefault::FrmDefault() : Form("frmDefault", kKind, Border::Fixed) {
  Caption = "システムデフォルト設定";
  hideOnCloseBox();
  setTopmost();  // from the start, so that no window has to be made a second time
  Width = kWidth * kTwipsPerPixel;
  Height = kInside * kTwipsPerPixel + kCaptionHeight;

  Control* const windows = &Frame1(1);
  Control* const bench = &Frame1(0);
  const Placed rows[] = {
      {Frame1(1), "立ち上げ時　開く窓", 12, 10, 196, 214},
      {chkDef(2), "レジスタ", 14, 28, 170, 20, windows},
      {chkDef(3), "レジスタヒント", 14, 56, 170, 20, windows},
      {Frame2, "メモリウィンドウ", 12, 90, 172, 112, windows},
      {chkDef(4), "コントロール+DI+DO", 12, 24, 152, 20, &Frame2},
      {chkDef(5), "C1～C7", 12, 52, 152, 20, &Frame2},
      {chkDef(6), "DRC", 12, 80, 152, 20, &Frame2},

      {Frame1(0), "立ち上げ時　初期設定と動作", 220, 10, 420, 382},
      {chkDef(0), "通信ケーブルをすべて接続", 14, 26, 196, 20, bench},
      {chkDef(1), "メモリ全域00Hクリア実行", 14, 50, 196, 20, bench},
      {lblName(0), "転送方式", 226, 29, 60, 18, bench},
      {optHF(0), "全2重", 288, 26, 60, 20, bench},
      {optHF(1), "半2重", 350, 26, 60, 20, bench},

      {frmBoard(0), "QVT60 Center-Board", 12, 78, 396, 58, bench},
      {lblName(1), "CPU", 12, 28, 44, 18, &frmBoard(0)},
      {cmbCPUType, "", 58, 24, 150, 22, &frmBoard(0)},
      {lblName(2), "CLOCK", 232, 28, 44, 18, &frmBoard(0)},
      {cmbClock(0), "", 280, 24, 100, 22, &frmBoard(0)},

      {frmBoard(1), "Board No1 ： QVT40", 12, 142, 194, 112, bench},
      {lblName(3), "SA", 12, 28, 44, 18, &frmBoard(1)},
      {cmbSA(0), "", 58, 24, 120, 22, &frmBoard(1)},
      {lblName(4), "CLOCK", 12, 57, 44, 18, &frmBoard(1)},
      {cmbClock(1), "", 58, 53, 120, 22, &frmBoard(1)},
      {chkCascade(0), "No2.カスケード接続", 12, 83, 176, 20, &frmBoard(1)},

      {frmBoard(3), "Board No3 ： QVT40", 214, 142, 194, 112, bench},
      {lblName(5), "SA", 12, 28, 44, 18, &frmBoard(3)},
      {cmbSA(2), "", 58, 24, 120, 22, &frmBoard(3)},
      {lblName(6), "CLOCK", 12, 57, 44, 18, &frmBoard(3)},
      {cmbClock(3), "", 58, 53, 120, 22, &frmBoard(3)},
      {chkCascade(1), "No4.カスケード接続", 12, 83, 176, 20, &frmBoard(3)},

      {frmBoard(5), "Board No5 ： QVT50", 12, 260, 396, 112, bench},
      {lblName(7), "SA", 12, 28, 44, 18, &frmBoard(5)},
      {cmbSA(4), "", 58, 24, 120, 22, &frmBoard(5)},
      {lblName(8), "CLOCK", 232, 28, 44, 18, &frmBoard(5)},
      {cmbClock(5), "", 280, 24, 100, 22, &frmBoard(5)},
      {lblName(9), "IOS", 12, 57, 44, 18, &frmBoard(5)},
      {cmbIOS, "", 58, 53, 322, 22, &frmBoard(5)},
      {lblName(10), "MODE", 12, 86, 44, 18, &frmBoard(5)},
      {cmbMode, "", 58, 82, 322, 22, &frmBoard(5)},

      {cmdAction(2), "設定をファイルに保存", 12, 406, 160, 28},
      {lblDesc(0), "（※次回立ち上げ時に設定が反映)", 180, 413, 250, 18},
      {cmdAction(1), "今すぐ設定", 12, 440, 160, 28},
      {lblDesc(1), "（※セット状態からリスタートします)", 180, 447, 250, 18},
      {cmdAction(3), "メーカ推奨値に戻す", 492, 406, 148, 28},
      {cmdAction(0), "閉じる", 492, 440, 148, 28},
  };
  for (const Placed& row : rows) {
    if (row.container != nullptr) row.control.placeIn(*row.container);
    row.control.Caption = row.caption;
    row.control.move(row.left * kTwipsPerPixel, row.top * kTwipsPerPixel, row.width * kTwipsPerPixel,
                     row.height * kTwipsPerPixel);
  }

  cmdAction(0).onClick = [this] { hide(); };
  cmdAction(1).onClick = setNow;
  cmdAction(2).onClick = saveDialogSettings;
  cmdAction(3).onClick = showMakerValues;
}

void FrmDefault::load() {
  fillList(cmbCPUType, kCpuTypes);
  for (ComboBox& list : cmbClock)
    fillList(list, kClocks);
  cmbClock(0).Enabled = false;
  for (ComboBox& list : cmbSA)
    fillStations(list);
  fillIoModes(cmbIOS);
  fillList(cmbMode, kCounterModes);
  // The file, not the settings of the running bench.
  const auto all = fields();
  std::vector<std::string_view> keys(all.size());
  std::transform(all.begin(), all.end(), keys.begin(), [](const Field& field) { return field.key; });
  const std::vector<std::string> values = getIniValues(kIniSection, keys);
  for (std::size_t i = 0; i < all.size(); ++i)
    setField(all[i], leadingNumber(values[i]));
}

void FrmDefault::activated() {
  setTopmost();
  if (activeControl() == nullptr) desk().focus(&chkDef(2));  // the first one by its place
}

void saveDialogSettings() {
  std::vector<IniValue> values;
  for (const Field& field : fields())
    values.push_back({field.key, std::to_string(valueOf(field))});
  writeIniValues(kIniSection, values);
}

void applyDialogSettings() {
  for (const Field& field : fields())
    *settingOf(field).variable = valueOf(field);
  copyTransferSetting();
  clockSetting[0] = 0;
  ioBoardCounterMode = 0;
}

}  // namespace zelvs
