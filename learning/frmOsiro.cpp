#include "learning/frmOsiro.h"

#include "ui/platform.h"

namespace zelvs {

FrmOsiro::FrmOsiro() : Form("frmOsiro", kKind, Border::Fixed) {
  constexpr double kPictureWidth = 480 * kTwipsPerPixel;
  constexpr double kPictureHeight = 300 * kTwipsPerPixel;
  Caption = "STB解説";
  BackColor = kWhite;
  Width = kPictureWidth;
  Height = kPictureHeight + platform().captionHeight();
  picSTB.BackColor = kWhite;
  picSTB.move(0, 0, kPictureWidth, kPictureHeight);
}

void FrmOsiro::initPicture(int number) {
  if (number >= 1 && number <= ilsOsiro.count()) picSTB.Picture = ilsOsiro.image(number);
}

}  // namespace zelvs
