#include "monitor/frmHint.h"

#include <algorithm>
#include <vector>

#include "state/state.h"
#include "text/textFile.h"
#include "ui/platform.h"
#include "ui/runTimeError.h"

namespace zelvs {

namespace {

constexpr double kMargin = 120;
constexpr double kTabHeight = 360;
/// Room for the picture when there is none to measure.
constexpr double kEmptyWidth = 7200;
constexpr double kEmptyHeight = 4500;
/// Nobody finds a tab among more, and no desktop has room for them.
constexpr std::size_t kMostHints = 1000;

}  // namespace

FrmHint::FrmHint() : Form("frmHint", kKind, Border::Fixed) {
  Caption = "Register Hint";
  hideOnCloseBox();
  addMember("hintDir", &hintDir);
  tabHint.Tabs = 9;  // as many as there are hints of the maker; the file's take their place
  picHint.AutoSize = true;
  picHint.Visible = false;
}

void FrmHint::load() {
  initHint();
  double width = kEmptyWidth;
  double height = kEmptyHeight;
  for (int number = 1; number <= ilsHint.count(); ++number) {
    width = std::max(width, ilsHint.fileOf(number)->width * kTwipsPerPixel);
    height = std::max(height, ilsHint.fileOf(number)->height * kTwipsPerPixel);
  }
  tabHint.move(0, 60, width + 2 * kMargin, kTabHeight);
  picHint.Left = kMargin;
  picHint.Top = tabHint.Top + kTabHeight + kMargin;
  Width = width + 2 * kMargin;
  Height = picHint.Top + height + kMargin + kCaptionHeight;
  tabHint.onClick = [this] { picHint.Picture = ilsHint.image(tabHint.Tab + 1); };
}

std::string hintsFolder() {
  return programFolder + "/HintData/";
}

std::optional<std::vector<HintRecord>> readHintList() {
  const std::optional<std::vector<std::string>> lines = readTextFile(fileIn(hintsFolder(), kListOfHints));
  if (!lines) return std::nullopt;
  std::vector<HintRecord> records;
  for (const std::string& line : *lines) {
    if (line.starts_with(';')) continue;
    if (records.size() == kMostHints) break;
    const std::vector<std::string> fields = fieldsOf(line, 3);  // picture, caption, and what is ignored
    records.push_back({fields[0], fields.size() > 1 ? std::optional(fields[1]) : std::nullopt});
  }
  return records;
}

void FrmHint::initHint() {
  hintDir = hintsFolder();
  const Deed deed("reading the hints in", hintDir);
  tabHint.Tabs = 1;
  ilsHint.clear();
  int count = 0;
  for (const HintRecord& hint : readHintList().value_or(std::vector<HintRecord>())) {
    tabHint.Tabs = ++count;
    if (hint.caption) tabHint.setTabCaption(count - 1, *hint.caption);
    const Picture picture = loadPictureIfThere(fileIn(hintDir, hint.fileName));
    if (!picture.none()) ilsHint.add(picture);
  }
  if (ilsHint.count() > 0) picHint.Picture = ilsHint.image(1);
  picHint.Visible = true;
  tabHint.Tab = 0;
}

void selectHintTab(std::string_view name) {
  if (!frmHint.visible()) return;
  TabStrip& tabs = frmHint->tabHint;
  for (int tab = 0; tab < tabs.Tabs; ++tab) {
    if (tabs.TabCaption(tab).find(name) == std::string::npos) continue;
    tabs.Tab = tab;
    yieldToEvents();
    return;
  }
}

void selectControlWordHint() {
  if (frmHint.visible() && frmHint->tabHint.Tabs > kControlWordTab) frmHint->tabHint.Tab = kControlWordTab;
}

}  // namespace zelvs
