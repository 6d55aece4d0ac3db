#include "ui/qt/drawing.h"

#include <QGuiApplication>
#include <QHash>
#include <QScreen>
#include <QStaticText>
#include <utility>

#include "ui/controls.h"
#include "ui/form.h"
#include "ui/qt/sprites.h"
#include "ui/textExtent.h"

namespace zelvs {

QColor colourOf(Colour colour) {
  return QColor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

QFont fontOf(double points, bool bold) {
  // Looking a family up costs more than drawing a line of text: the few sizes in use are kept.
  static QHash<std::pair<double, bool>, QFont> kept;
  const auto found = kept.constFind({points, bold});
  if (found != kept.constEnd()) return *found;
  QFont font;
  font.setFamilies({"Noto Sans Mono CJK JP", "VL Gothic", "IPAGothic", "MS Gothic", "Monospace"});
  font.setHintingPreference(QFont::PreferNoHinting);
  // Sizes are in the model's points, 96 to an inch: a screen's own density is the window system's business.
  const double pixels = points * kTwipsPerPoint / kTwipsPerPixel;
  font.setPointSizeF(pixels * 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
  font.setBold(bold);
  kept.insert({points, bold}, font);
  return font;
}

QRectF pixelsOf(const Area& twips) {
  return {twips.left / kTwipsPerPixel, twips.top / kTwipsPerPixel, twips.width / kTwipsPerPixel,
          twips.height / kTwipsPerPixel};
}

namespace {

/// Where the family's letters stand in their em square.
constexpr double kBaseline = 0.87;

double emOf(double points) {
  return points * kTwipsPerPoint / kTwipsPerPixel;
}

/// A text whose letters have been laid out, which costs far more than drawing them.
struct LaidOutText {
  QStaticText letters;
  double ascent;
};

const LaidOutText& laidOut(const QString& text, double points, bool bold) {
  constexpr int kMostKept = 4096;
  static QHash<std::pair<QString, std::pair<double, bool>>, LaidOutText> kept;
  const std::pair<QString, std::pair<double, bool>> key(text, {points, bold});
  auto found = kept.find(key);
  if (found == kept.end()) {
    if (kept.size() >= kMostKept) kept.clear();
    const QFont font = fontOf(points, bold);
    LaidOutText fresh{QStaticText(text), QFontMetricsF(font).ascent()};
    fresh.letters.setTextFormat(Qt::PlainText);
    fresh.letters.prepare(QTransform(), font);
    found = kept.insert(key, fresh);
  }
  return *found;
}

void drawLine(QPainter& painter, const QString& text, double left, double lineTop, double points, bool bold) {
  if (text.isEmpty()) return;
  const double em = emOf(points);
  const double line = lineHeight(points) / kTwipsPerPixel;
  const LaidOutText& shape = laidOut(text, points, bold);
  painter.setFont(fontOf(points, bold));
  painter.drawStaticText(QPointF(left, lineTop + (line - em) / 2 + em * kBaseline - shape.ascent), shape.letters);
}

void drawText(QPainter& painter, const Control& control, const QRectF& place, Alignment alignment, bool centred) {
  const double points = control.FontSize;
  const double line = lineHeight(points) / kTwipsPerPixel;
  painter.setPen(colourOf(control.ForeColor));
  const QStringList lines = QString::fromStdString(control.Caption.get()).split('\n');
  double top = place.top() + (centred ? (place.height() - line * lines.size()) / 2 : 0);
  for (QString text : lines) {
    if (text.endsWith('\r')) text.chop(1);
    const double width = textWidth(text.toStdString(), points) / kTwipsPerPixel;
    double left = place.left();
    if (alignment == Alignment::Right) left = place.right() - width;
    if (alignment == Alignment::Center) left = place.left() + (place.width() - width) / 2;
    drawLine(painter, text, left, top, points, control.FontBold);
    top += line;
  }
}

void drawBorder(QPainter& painter, const QRectF& place) {
  painter.setPen(QPen(QColor(0, 0, 0, 110), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(place.adjusted(0.5, 0.5, -0.5, -0.5));
}

void draw(QPainter& painter, const Label& label, const QRectF& place) {
  if (!label.Transparent) painter.fillRect(place, colourOf(label.BackColor));
  if (label.Bordered) drawBorder(painter, place);
  // A line of text stands in the middle of a label that is higher than it.
  drawText(painter, label, place, label.Align, !label.AutoSize);
}

void drawPicture(QPainter& painter, const Picture& picture, const QRectF& place) {
  if (picture.none()) return;
  const QPixmap pixmap = spriteOf(picture, place.size().toSize(), painter.device()->devicePixelRatioF());
  painter.drawPixmap(place.topLeft(), pixmap);
}

void draw(QPainter& painter, const PictureBox& box, const QRectF& place) {
  if (!box.Transparent) painter.fillRect(place, colourOf(box.BackColor));
  drawPicture(painter, box.Picture, place);
  const double unit = box.unit() / kTwipsPerPixel;
  for (const DrawingOperation& operation : box.drawing()) {
    painter.setPen(QPen(colourOf(operation.colour), 1));
    const QPointF from(place.left() + operation.x1 * unit, place.top() + operation.y1 * unit);
    if (operation.isText) {
      drawLine(painter, QString::fromStdString(operation.text), from.x(), from.y(), operation.fontSize, box.FontBold);
    } else {
      painter.drawLine(from, QPointF(place.left() + operation.x2 * unit, place.top() + operation.y2 * unit));
    }
  }
  if (box.Bordered) drawBorder(painter, place);
}

void draw(QPainter& painter, const Line& line) {
  const double unit = line.outerUnit() / kTwipsPerPixel;
  const Area origin = line.container() != nullptr ? line.container()->area() : Area{};
  const QPointF from = pixelsOf(origin).topLeft();
  painter.setPen(QPen(colourOf(line.ForeColor), line.BorderWidth));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawLine(from + QPointF(line.X1, line.Y1) * unit, from + QPointF(line.X2, line.Y2) * unit);
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void draw(QPainter& painter, const Shape& shape, const QRectF& place) {
  painter.fillRect(place, colourOf(shape.ForeColor));
  if (shape.BackColor != shape.ForeColor) {
    painter.fillRect(place.adjusted(1, 1, -1, -1), colourOf(shape.BackColor));
  }
}

void draw(QPainter& painter, const Frame& frame, const QRectF& place) {
  const double caption = frame.Caption.get().empty() ? 0 : lineHeight(frame.FontSize) / kTwipsPerPixel;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(128, 128, 128, 160), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(place.adjusted(0.5, caption / 2 + 0.5, -0.5, -0.5), 3, 3);
  painter.setRenderHint(QPainter::Antialiasing, false);
  if (caption == 0) return;
  constexpr double kIndent = 8;
  const double width = textWidth(frame.Caption.get(), frame.FontSize) / kTwipsPerPixel;
  const Colour ground = frame.container() != nullptr ? frame.container()->BackColor : frame.form().BackColor;
  painter.fillRect(QRectF(place.left() + kIndent - 2, place.top(), width + 4, caption), colourOf(ground));
  drawText(painter, frame, place.adjusted(kIndent, 0, 0, 0), Alignment::Left, false);
}

void drawOne(QPainter& painter, const Control& control, const QRectF& place) {
  switch (control.kind()) {
    case ControlKind::Label:
      draw(painter, static_cast<const Label&>(control), place);
      break;
    case ControlKind::PictureBox:
      draw(painter, static_cast<const PictureBox&>(control), place);
      break;
    case ControlKind::Image:
      drawPicture(painter, static_cast<const Image&>(control).Picture, place);
      break;
    case ControlKind::Line:
      draw(painter, static_cast<const Line&>(control));
      break;
    case ControlKind::Shape:
      draw(painter, static_cast<const Shape&>(control), place);
      break;
    case ControlKind::Frame:
      draw(painter, static_cast<const Frame&>(control), place);
      break;
    default:
      break;  // a widget of its own, or nothing to see
  }
}

void drawAll(QPainter& painter, const std::vector<Control*>& siblings, const QRectF& dirty) {
  for (const Control* control : siblings) {
    if (!control->Visible) continue;
    const QRectF place = pixelsOf(control->area());
    const bool line = control->kind() == ControlKind::Line;
    if (!line && !place.intersects(dirty)) continue;
    if (line) {
      drawOne(painter, *control, place);
      continue;
    }
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    drawOne(painter, *control, place);
    drawAll(painter, control->children(), dirty.intersected(place));
    painter.restore();
  }
}

}  // namespace

void drawControls(QPainter& painter, const Form& form, const QRect& dirty) {
  drawAll(painter, form.topControls(), QRectF(dirty));
}

}  // namespace zelvs
