#include "ui/drawing.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/runTimeError.h"
#include "ui/textExtent.h"

namespace zelvs {

namespace {

constexpr Colour kBorderColour = kBlack;
constexpr double kBorderOpacity = 0.43;
constexpr Colour kGroupColour = 0x808080;
constexpr double kGroupOpacity = 0.63;

void drawLine(Painter& painter, std::string_view text, double left, double lineTop, double points, bool bold,
              Colour colour) {
  if (text.empty()) return;
  // Where the family's letters stand in their em square.
  constexpr double kBaseline = 0.87;
  const double em = points * kTwipsPerPoint;
  painter.text(left, lineTop + (lineHeight(points) - em) / 2 + em * kBaseline, text, points, bold, colour);
}

void drawText(Painter& painter, const Control& control, const Area& place, Alignment alignment, bool centred) {
  const double points = control.FontSize;
  const double line = lineHeight(points);
  std::string_view rest = control.Caption.get();
  double top = place.top + (centred ? (place.height - line * lineCount(rest)) / 2 : 0);
  for (bool more = true; more;) {
    const std::size_t end = rest.find('\n');
    more = end != std::string_view::npos;
    std::string_view text = rest.substr(0, end);
    if (more) rest.remove_prefix(end + 1);
    if (text.ends_with('\r')) text.remove_suffix(1);
    double left = place.left;
    if (alignment != Alignment::Left) {
      const double room = place.width - textWidth(text, points);
      left += alignment == Alignment::Right ? room : room / 2;
    }
    drawLine(painter, text, left, top, points, control.FontBold, control.ForeColor);
    top += line;
  }
}

void drawBorder(Painter& painter, const Area& place) {
  painter.rectangle(place, kBorderColour, kBorderOpacity, 0);
}

void draw(Painter& painter, const Label& label, const Area& place) {
  if (!label.Transparent) painter.fill(place, label.BackColor);
  if (label.Bordered) drawBorder(painter, place);
  // A line of text stands in the middle of a label that is higher than it.
  drawText(painter, label, place, label.Align, !label.AutoSize);
}

void drawImage(Painter& painter, const Picture& picture, const Area& place) {
  if (!picture.none()) painter.image(picture, place);
}

void draw(Painter& painter, const PictureBox& box, const Area& place) {
  if (!box.Transparent) painter.fill(place, box.BackColor);
  drawImage(painter, box.Picture, place);
  const double unit = box.unit();
  for (const DrawingOperation& operation : box.drawing()) {
    const double x = place.left + operation.x1 * unit;
    const double y = place.top + operation.y1 * unit;
    if (operation.isText) {
      drawLine(painter, operation.text, x, y, operation.fontSize, box.FontBold, operation.colour);
    } else {
      painter.line(x, y, place.left + operation.x2 * unit, place.top + operation.y2 * unit, operation.colour, 1,
                   Stroke::Crisp);
    }
  }
  if (box.Bordered) drawBorder(painter, place);
}

void draw(Painter& painter, const Line& line, const Area& holder, double unit) {
  painter.line(holder.left + line.X1 * unit, holder.top + line.Y1 * unit, holder.left + line.X2 * unit,
               holder.top + line.Y2 * unit, line.ForeColor, line.BorderWidth, Stroke::Smooth);
}

void draw(Painter& painter, const Shape& shape, const Area& place) {
  painter.fill(place, shape.ForeColor);
  if (shape.BackColor != shape.ForeColor.get()) painter.fill(place.shrunk(kTwipsPerPixel), shape.BackColor);
}

void draw(Painter& painter, const Frame& frame, const Area& place) {
  constexpr double kCorner = 3;
  constexpr double kIndent = 8 * kTwipsPerPixel;
  constexpr double kBeside = 2 * kTwipsPerPixel;
  const std::string& title = frame.Caption.get();
  const double caption = title.empty() ? 0 : lineHeight(frame.FontSize);
  painter.rectangle({place.left, place.top + caption / 2, place.width, place.height - caption / 2}, kGroupColour,
                    kGroupOpacity, kCorner);
  if (caption == 0) return;
  const Colour ground = frame.container() != nullptr ? frame.container()->BackColor : frame.form().BackColor;
  const double width = textWidth(title, frame.FontSize);
  painter.fill({place.left + kIndent - kBeside, place.top, width + 2 * kBeside, caption}, ground);
  drawText(painter, frame, {place.left + kIndent, place.top, place.width, place.height}, Alignment::Left, false);
}

void drawOne(Painter& painter, const Control& control, const Area& place) {
  switch (control.kind()) {
    case ControlKind::Label:
      draw(painter, static_cast<const Label&>(control), place);
      break;
    case ControlKind::PictureBox:
      draw(painter, static_cast<const PictureBox&>(control), place);
      break;
    case ControlKind::Image:
      drawImage(painter, static_cast<const Image&>(control).Picture, place);
      break;
    case ControlKind::Shape:
      draw(painter, static_cast<const Shape&>(control), place);
      break;
    case ControlKind::Frame:
      draw(painter, static_cast<const Frame&>(control), place);
      break;
    default:
      break;  // a field of the backend's, or nothing to see
  }
}

/// A plain line of text that keeps inside its place: it needs no clipping, which costs more than the letters.
bool keepsInside(const Control& control, const Area& place) {
  if (control.kind() != ControlKind::Label || !control.children().empty()) return false;
  const std::string& text = control.Caption.get();
  return text.find('\n') == std::string::npos && textWidth(text, control.FontSize) <= place.width;
}

/// The dirty places, and the smallest one that holds them all, so that most controls need one comparison.
struct Dirty {
  std::span<const Area> places;
  Area bounds;

  bool touches(const Area& place) const {
    if (!place.touches(bounds)) return false;
    return places.size() < 2 ||
           std::any_of(places.begin(), places.end(), [&](const Area& dirty) { return place.touches(dirty); });
  }
};

/// holder: the place of what holds the siblings; unit: twips per unit of its scale.
void drawAll(Painter& painter, const std::vector<Control*>& siblings, const Area& holder, double unit,
             const Dirty& dirty) {
  for (const Control* control : siblings) {
    if (!control->Visible) continue;
    if (control->kind() == ControlKind::Line) {
      const auto& line = static_cast<const Line&>(*control);
      if (dirty.touches(line.reach(holder))) draw(painter, line, holder, unit);
      continue;
    }
    const Area place{holder.left + control->Left * unit, holder.top + control->Top * unit, control->Width * unit,
                     control->Height * unit};
    if (!dirty.touches(place)) continue;
    if (keepsInside(*control, place)) {
      drawOne(painter, *control, place);
      continue;
    }
    painter.pushClip(place);
    drawOne(painter, *control, place);
    drawAll(painter, control->children(), place, control->unit(), dirty);
    painter.popClip();
  }
}

}  // namespace

void drawForm(Painter& painter, const Form& form, std::span<const Area> dirty) {
  if (dirty.empty()) return;
  const Deed deed("drawing", form);
  Dirty all{dirty, dirty.front()};
  for (const Area& place : dirty) {
    all.bounds = all.bounds.united(place);
    painter.fill(place, form.BackColor);
  }
  drawAll(painter, form.topControls(), {0, 0, form.clientWidth(), form.clientHeight()}, form.unit(), all);
}

}  // namespace zelvs
