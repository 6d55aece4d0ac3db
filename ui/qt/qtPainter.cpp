#include "ui/qt/qtPainter.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHash>
#include <QScreen>
#include <QStaticText>
#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ui/drawing.h"
#include "ui/form.h"
#include "ui/qt/sprites.h"

namespace zelvs {

QColor colourOf(Colour colour) {
  return QColor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

QRectF pixelsOf(const Area& twips) {
  return {twips.left / kTwipsPerPixel, twips.top / kTwipsPerPixel, twips.width / kTwipsPerPixel,
          twips.height / kTwipsPerPixel};
}

Area twipsOf(const QRect& pixels) {
  return {pixels.x() * kTwipsPerPixel, pixels.y() * kTwipsPerPixel, pixels.width() * kTwipsPerPixel,
          pixels.height() * kTwipsPerPixel};
}

namespace {

double emOf(double points) {
  return points * kTwipsPerPoint / kTwipsPerPixel;
}

}  // namespace

const QStringList& textFamilies() {
  static const QStringList names = {"Noto Sans Mono CJK JP", "VL Gothic", "IPAGothic", "MS Gothic"};
  return names;
}

QFont fontOf(double points, bool bold) {
  // Looking a family up costs more than drawing a line of text: the few sizes in use are kept.
  static QHash<std::pair<double, bool>, QFont> kept;
  if (kept.isEmpty()) qAddPostRoutine([] { kept.clear(); });
  const auto found = kept.constFind({points, bold});
  if (found != kept.constEnd()) return *found;
  QFont font;
  font.setFamilies(textFamilies() + QStringList{"Monospace"});
  font.setHintingPreference(QFont::PreferNoHinting);
  // Sizes are in the model's points, 96 to an inch: a screen's own density is the window system's business.
  font.setPointSizeF(emOf(points) * 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY());
  font.setBold(bold);
  kept.insert({points, bold}, font);
  return font;
}

namespace {

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

}  // namespace

void QtPainter::fill(const Area& place, Colour colour) {
  painter_.fillRect(pixelsOf(place), colourOf(colour));
}

void QtPainter::line(double x1, double y1, double x2, double y2, Colour colour, double width, Stroke stroke) {
  const QPointF from(x1 / kTwipsPerPixel, y1 / kTwipsPerPixel);
  const QPointF to(x2 / kTwipsPerPixel, y2 / kTwipsPerPixel);
  if (stroke == Stroke::Crisp) {
    // Whole pixels of the screen: at a scale between two whole ones some lines would come out thicker than others.
    QPen pen(colourOf(colour), std::floor(width * painter_.device()->devicePixelRatioF()));
    pen.setCosmetic(true);
    painter_.setPen(pen);
    painter_.drawLine(from, to);
    return;
  }
  painter_.setPen(QPen(colourOf(colour), width));
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.drawLine(from, to);
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

void QtPainter::rectangle(const Area& place, Colour colour, double opacity, double corner) {
  QColor ink = colourOf(colour);
  ink.setAlphaF(static_cast<float>(opacity));
  const QRectF outline = pixelsOf(place);
  if (corner <= 0) {
    outlineOf(outline, ink);
    return;
  }
  painter_.setPen(QPen(ink, 1));
  painter_.setBrush(Qt::NoBrush);
  painter_.setRenderHint(QPainter::Antialiasing);
  painter_.drawRoundedRect(outline.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
  painter_.setRenderHint(QPainter::Antialiasing, false);
}

/// Sides that are filled cost far less than an outline that is stroked. The upright ones are filled in pieces: more
/// than some sixty rows at once go to threads, whose start costs more than the line.
void QtPainter::outlineOf(const QRectF& place, const QColor& ink) {
  constexpr double kPiece = 50;
  painter_.fillRect(QRectF(place.left(), place.top(), place.width(), 1), ink);
  painter_.fillRect(QRectF(place.left(), place.bottom() - 1, place.width(), 1), ink);
  const double end = place.bottom() - 1;
  for (double top = place.top() + 1; top < end; top += kPiece) {
    const double height = std::min(kPiece, end - top);
    painter_.fillRect(QRectF(place.left(), top, 1, height), ink);
    painter_.fillRect(QRectF(place.right() - 1, top, 1, height), ink);
  }
}

void QtPainter::text(double left, double baseline, std::string_view text, double points, bool bold, Colour colour) {
  Letters& letters = lettersOf(points, bold);
  painter_.setPen(colourOf(colour));
  painter_.setFont(letters.font);
  painter_.drawStaticText(QPointF(left / kTwipsPerPixel, baseline / kTwipsPerPixel - letters.ascent),
                          letters.laidOut(text));
}

void QtPainter::image(const Picture& picture, const Area& place) {
  const QRectF pixels = pixelsOf(place);
  painter_.drawPixmap(pixels.topLeft(),
                      spriteOf(picture, pixels.size().toSize(), painter_.device()->devicePixelRatioF()));
}

void QtPainter::pushClip(const Area& place) {
  painter_.save();
  painter_.setClipRect(pixelsOf(place), Qt::IntersectClip);
}

void QtPainter::popClip() {
  painter_.restore();
}

void drawForm(QPainter& painter, const Form& form, const QRegion& dirty) {
  std::vector<Area> places;
  for (const QRect& place : dirty)
    places.push_back(twipsOf(place));
  QtPainter through(painter);
  drawForm(through, form, places);
}

}  // namespace zelvs
