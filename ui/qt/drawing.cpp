#include "ui/qt/drawing.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHash>
#include <QScreen>
#include <QStaticText>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
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
  if (kept.isEmpty()) qAddPostRoutine([] { kept.clear(); });
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

/// A font with the texts whose letters have been laid out in it, which costs far more than drawing them.
struct Letters {
  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };
  QFont font;
  double ascent = 0;
  std::unordered_map<std::string, QStaticText, Hash, std::equal_to<>> kept;

  const QStaticText& laidOut(std::string_view text) {
    constexpr std::size_t kMostKept = 4096;
    const auto found = kept.find(text);
    if (found != kept.end()) return found->second;
    if (kept.size() >= kMostKept) kept.clear();
    QStaticText fresh(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
    fresh.setTextFormat(Qt::PlainText);
    fresh.prepare(QTransform(), font);
    return kept.emplace(text, std::move(fresh)).first->second;
  }
};

Letters& lettersOf(double points, bool bold) {
  static QHash<std::pair<double, bool>, std::shared_ptr<Letters>> kept;
  // The engine behind a font goes with the application.
  if (kept.isEmpty()) qAddPostRoutine([] { kept.clear(); });
  std::shared_ptr<Letters>& letters = kept[{points, bold}];
  if (letters == nullptr) {
    letters = std::make_shared<Letters>();
    letters->font = fontOf(points, bold);
    // Letters come in whole pixels, while the model counts with the exact size: pieces of a line would not join.
    const double drawnEm = QFontMetricsF(letters->font).horizontalAdvance(QChar(0x3042));
    letters->font.setLetterSpacing(QFont::PercentageSpacing, 100 * emOf(points) / drawnEm);
    letters->ascent = QFontMetricsF(letters->font).ascent();
  }
  return *letters;
}

void drawLine(QPainter& painter, std::string_view text, double left, double lineTop, double points, bool bold) {
  if (text.empty()) return;
  const double em = emOf(points);
  const double line = lineHeight(points) / kTwipsPerPixel;
  Letters& letters = lettersOf(points, bold);
  painter.setFont(letters.font);
  painter.drawStaticText(QPointF(left, lineTop + (line - em) / 2 + em * kBaseline - letters.ascent),
                         letters.laidOut(text));
}

void drawText(QPainter& painter, const Control& control, const QRectF& place, Alignment alignment, bool centred) {
  const double points = control.FontSize;
  const double line = lineHeight(points) / kTwipsPerPixel;
  painter.setPen(colourOf(control.ForeColor));
  std::string_view rest = control.Caption.get();
  double top = place.top() + (centred ? (place.height() - line * lineCount(rest)) / 2 : 0);
  for (bool more = true; more;) {
    const std::size_t end = rest.find('\n');
    more = end != std::string_view::npos;
    std::string_view text = rest.substr(0, end);
    if (more) rest.remove_prefix(end + 1);
    if (text.ends_with('\r')) text.remove_suffix(1);
    double left = place.left();
    if (alignment != Alignment::Left) {
      const double room = place.width() - textWidth(text, points) / kTwipsPerPixel;
      left += alignment == Alignment::Right ? room : room / 2;
    }
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
  // Whole pixels of the screen: at a scale between two whole ones some lines would come out thicker than others.
  const double lineWidth = std::floor(painter.device()->devicePixelRatioF());
  for (const DrawingOperation& operation : box.drawing()) {
    QPen pen(colourOf(operation.colour), lineWidth);
    pen.setCosmetic(true);
    painter.setPen(pen);
    const QPointF from(place.left() + operation.x1 * unit, place.top() + operation.y1 * unit);
    if (operation.isText) {
      drawLine(painter, operation.text, from.x(), from.y(), operation.fontSize, box.FontBold);
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

/// A plain line of text that keeps inside its place: it needs no clipping, which costs more than the letters.
bool keepsInside(const Control& control) {
  if (control.kind() != ControlKind::Label || !control.children().empty()) return false;
  const std::string& text = control.Caption.get();
  return text.find('\n') == std::string::npos &&
         textWidth(text, control.FontSize) <= control.Width * control.outerUnit();
}

/// origin: left top of what holds the siblings; unit: pixels per unit of its scale.
void drawAll(QPainter& painter, const std::vector<Control*>& siblings, QPointF origin, double unit,
             const QRegion& dirty) {
  const QRectF bounds = dirty.boundingRect();
  const bool manyPieces = dirty.rectCount() > 1;
  for (const Control* control : siblings) {
    if (!control->Visible) continue;
    const QRectF place(origin.x() + control->Left * unit, origin.y() + control->Top * unit, control->Width * unit,
                       control->Height * unit);
    if (control->kind() == ControlKind::Line) {
      drawOne(painter, *control, place);
      continue;
    }
    if (!place.intersects(bounds) || (manyPieces && !dirty.intersects(place.toAlignedRect()))) continue;
    if (keepsInside(*control)) {
      drawOne(painter, *control, place);
      continue;
    }
    painter.save();
    painter.setClipRect(place, Qt::IntersectClip);
    drawOne(painter, *control, place);
    drawAll(painter, control->children(), place.topLeft(), control->unit() / kTwipsPerPixel,
            dirty.intersected(place.toAlignedRect()));
    painter.restore();
  }
}

}  // namespace

void drawControls(QPainter& painter, const Form& form, const QRegion& dirty) {
  drawAll(painter, form.topControls(), QPointF(0, 0), form.unit() / kTwipsPerPixel, dirty);
}

}  // namespace zelvs
