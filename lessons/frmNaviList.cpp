#include "lessons/frmNaviList.h"

#include "lessons/frmNavigation.h"
#include "state/state.h"
#include "ui/desk.h"
#include "ui/platform.h"

namespace zelvs {

namespace {

constexpr Colour kGrey = 0x808080;
constexpr Colour kWarningRed = 0x2020C0;

void cmdStart_Click() {
  const NaviRecord lesson = naviIndex[static_cast<std::size_t>(frmNaviList->lstTitle.ListIndex)];
  if (lesson.exists == kFalse) {
    messageBox("確認", "ファイルが見つかりません。", MessageIcon::Information, MessageButtons::Ok);
    return;
  }
  frmNaviList->hide();
  if (beforeLesson) beforeLesson();
  frmNavigation->setNavigation(lesson.fileName);
  frmNavigation->show();
}

}  // namespace

FrmNaviList::FrmNaviList() : Form("frmNaviList", kKind, Border::Fixed) {
  constexpr double kWidth = 7200;
  constexpr double kInside = 5100;
  constexpr double kMargin = 240;
  constexpr double kInner = kWidth - 2 * kMargin;
  constexpr double kButtonHeight = 375;
  constexpr double kButtonTop = kInside - kMargin - kButtonHeight;
  Caption = "Navigator List";
  hideOnCloseBox();
  Width = kWidth;
  Height = kInside + kCaptionHeight;

  Label2.Caption = "リストの項目を選択し、\"Navigation Start\"ボタンを押してください。";
  Label2.FontSize = 10;
  Label2.move(kMargin, 180, kInner, 255);
  lstTitle.FontSize = 11;
  lstTitle.move(kMargin, 525, kInner, 3345);
  lblNoFile.Caption = "ナビゲーションのファイルがありません。";
  lblNoFile.FontSize = 11;
  lblNoFile.ForeColor = kGrey;
  lblNoFile.BackColor = kWhite;
  lblNoFile.Transparent = false;
  lblNoFile.Bordered = true;
  lblNoFile.Align = Alignment::Center;
  lblNoFile.move(lstTitle.Left, lstTitle.Top, lstTitle.Width, lstTitle.Height);
  Label1.Caption = "（※　ナビゲーションのスタート時に、メーカー推奨設定に強制されます）";
  Label1.ForeColor = kWarningRed;
  Label1.move(kMargin, 3990, kInner, 255);
  cmdStart.Caption = "Navigation Start";
  cmdStart.move(kWidth - kMargin - 1215 - 150 - 1815, kButtonTop, 1815, kButtonHeight);
  cmdCancel.Caption = "Cancel";
  cmdCancel.move(kWidth - kMargin - 1215, kButtonTop, 1215, kButtonHeight);

  cmdStart.Default = true;
  cmdStart.onClick = cmdStart_Click;
  lstTitle.onDblClick = cmdStart_Click;
  cmdCancel.Cancel = true;
  cmdCancel.onClick = [this] { hide(); };
}

void FrmNaviList::load() {
  lstTitle.clear();
  for (const NaviRecord& lesson : naviIndex)
    lstTitle.addItem(lesson.title);
  const bool empty = naviIndex.empty();
  if (!empty) lstTitle.ListIndex = 0;
  lstTitle.Visible = !empty;
  lblNoFile.Visible = empty;
  cmdStart.Enabled = !empty;
}

void FrmNaviList::activated() {
  desk().focus(&lstTitle);
}

void openNaviList() {
  frmNaviList->moveToCorner(kLessonFromRight, kLessonFromBottom);
  frmNaviList->show(ShowMode::Modal, desk().frame());
}

}  // namespace zelvs
