#include "ui/windowFrame.h"

#include <string>

#include "ui/desk.h"
#include "ui/form.h"
#include "ui/textExtent.h"

namespace zelvs {

namespace {

constexpr Colour kActiveBar = 0xA86026;
constexpr Colour kRestingBar = 0xB8ACA0;
constexpr Colour kCloseGround = 0xF0F0F0;
constexpr Colour kCloseCross = 0x404040;
constexpr double kPixel = kTwipsPerPixel;
constexpr double kCloseBox = 14 * kPixel;
constexpr double kCloseMargin = (kCaptionHeight - kCloseBox) / 2;
constexpr double kTitlePoints = 9;

/// Children show only in the frame's client area, floating ones in all of the frame's inside.
bool clippedAway(const Form& form, double x, double y) {
  const Form* frame = form.kind() == FormKind::Child ? desk().frame() : nullptr;
  if (frame == nullptr) return false;
  const Area inside{frame->insideLeft(), frame->insideTop(), frame->clientWidth(), frame->clientHeight()};
  return !(form.floating() ? inside : frame->clientArea()).contains(x, y);
}

}  // namespace

Area closeBoxOf(const Form& form) {
  if (!form.hasCloseBox()) return {};
  return {form.Width - kCloseBox - kCloseMargin, kCloseMargin - kCaptionHeight, kCloseBox, kCloseBox};
}

FramePart framePartAt(const Form& form, const Spot& spot) {
  constexpr double kEdge = 5 * kPixel;
  if (form.kind() == FormKind::Window && form.border() == Border::Sizable) {
    if (spot.x < kEdge) return FramePart::LeftEdge;
    if (spot.x >= form.Width - kEdge) return FramePart::RightEdge;
  }
  if (spot.y >= 0) return FramePart::Inside;
  return closeBoxOf(form).contains(spot.x, spot.y) ? FramePart::CloseBox : FramePart::Caption;
}

void drawFrameEdge(Painter& painter, const Form& form) {
  constexpr double kOpacity = 0.5;
  if (form.border() == Border::None) return;
  // Its upper side lies behind the caption bar.
  painter.rectangle({0, -kPixel, form.clientWidth(), form.clientHeight() + kPixel}, kCloseCross, kOpacity, 0);
}

void drawCaption(Painter& painter, const Form& form, bool active) {
  constexpr double kIndent = 8 * kPixel;
  const Area bar{0, 0, form.Width, kCaptionHeight};
  painter.fill(bar, active ? kActiveBar : kRestingBar);
  const Area close = closeBoxOf(form);
  const double room = (close.empty() ? bar.right() : close.left) - kIndent;
  painter.pushClip({0, 0, room, kCaptionHeight});
  constexpr double kBaseline = (kCaptionHeight + kTitlePoints * kTwipsPerPoint * 0.74) / 2;
  painter.text(kIndent, kBaseline, form.Caption.get(), kTitlePoints, true, kWhite);
  painter.popClip();
  if (close.empty()) return;
  const Area box{close.left, close.top + kCaptionHeight, close.width, close.height};
  const Area cross = box.shrunk(4 * kPixel);
  painter.fill(box, kCloseGround);
  painter.line(cross.left, cross.top, cross.right(), cross.bottom(), kCloseCross, 2, Stroke::Smooth);
  painter.line(cross.left, cross.bottom(), cross.right(), cross.top, kCloseCross, 2, Stroke::Smooth);
}

Spot insideOf(const Form& form, double x, double y) {
  return {x - form.insideLeft(), y - form.insideTop()};
}

Seen windowAt(double x, double y) {
  for (Form* form : desk().forms()) {
    if (!form->visible() || clippedAway(*form, x, y)) continue;
    const double caption = form->Height - form->clientHeight();
    const Area window{form->insideLeft(), form->insideTop() - caption, form->Width, form->Height};
    if (window.contains(x, y)) return {form, insideOf(*form, x, y)};
  }
  return {};
}

}  // namespace zelvs
