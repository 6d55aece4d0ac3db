#include "panel/frmOsiro.h"

#include "ui/platform.h"

namespace zelvs {

FrmOsiro::FrmOsiro() : Form("frmOsiro", kKind, Border::Fixed) {
  constexpr double kPictureWidth = 480 * kTwipsPerPixel;
  constexpr double kPictureHeight = 300 * kTwipsPerPixel;
  Caption = "STB解説";
  BackColor = kWhite;
  Width = kPictureWidth;
  Height = kPictureHeight + kCaptionHeight;
  picSTB.BackColor = kWhite;
  picSTB.move(0, 0, kPictureWidth, kPictureHeight);
  lblUntouched.Caption = "スイッチ SSA と SSB を一度切り替えると、説明が表示されます。";
  lblUntouched.Align = Alignment::Center;
  lblUntouched.ForeColor = 0x808080;
  lblUntouched.FontSize = 10;
  lblUntouched.move(0, kPictureHeight / 2 - 150, kPictureWidth, 300);
}

void FrmOsiro::initPicture(int number) {
  if (number < 1 || number > ilsOsiro.count()) return;
  picSTB.Picture = ilsOsiro.image(number);
  lblUntouched.Visible = false;
}

}  // namespace zelvs
