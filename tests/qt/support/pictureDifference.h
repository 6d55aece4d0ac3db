#pragma once

#include <QDir>
#include <QImage>
#include <QRect>
#include <QString>
#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace zelvs {

// Another machine may set a letter a quarter of a pixel further along its line: its edges change a good deal and its
// ink hardly moves. So pixels are compared for strokes that come, go or move by a whole pixel, and what small places
// show on average for colours. Both bounds stand above what such letters make in our pictures, 136 and 38 levels. There
// is no share that may differ: a digit counts the same on a whole screen as in a small window.

/// How far a channel of a pixel may be off, in levels of 255.
inline constexpr int kForgivenStroke = 150;
/// The side of a place, in pixels, and how far a channel may be off there on average.
inline constexpr int kPlace = 4;
inline constexpr int kForgivenPlace = 48;

/// What is off by more than is forgiven.
struct PixelsOff {
  int count = 0;
  int most = 0;  ///< levels
  QRect where;
};

/// The pictures are of one size.
inline PixelsOff pixelsOff(const QImage& stored, const QImage& made, int forgiven) {
  PixelsOff off;
  for (int y = 0; y < made.height(); ++y) {
    for (int x = 0; x < made.width(); ++x) {
      const QRgb a = stored.pixel(x, y);
      const QRgb b = made.pixel(x, y);
      const int levels =
          std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
      if (levels <= forgiven) continue;
      ++off.count;
      off.most = std::max(off.most, levels);
      off.where |= QRect(x, y, 1, 1);
    }
  }
  return off;
}

/// One pixel a place: what it shows on average. Those at the right and lower edge may be smaller.
inline QImage averages(const QImage& picture) {
  const auto placesIn = [](int pixels) { return (pixels + kPlace - 1) / kPlace; };
  QImage small(placesIn(picture.width()), placesIn(picture.height()), QImage::Format_RGB32);
  for (int y = 0; y < small.height(); ++y) {
    for (int x = 0; x < small.width(); ++x) {
      const QRect place = QRect(x * kPlace, y * kPlace, kPlace, kPlace) & picture.rect();
      int red = 0, green = 0, blue = 0;
      for (int row = place.top(); row <= place.bottom(); ++row) {
        for (int column = place.left(); column <= place.right(); ++column) {
          const QRgb pixel = picture.pixel(column, row);
          red += qRed(pixel);
          green += qGreen(pixel);
          blue += qBlue(pixel);
        }
      }
      const int pixels = place.width() * place.height();
      small.setPixel(x, y, qRgb(red / pixels, green / pixels, blue / pixels));
    }
  }
  return small;
}

/// How two pictures differ; empty when they do not, but for what is forgiven.
inline std::string pictureDifference(const QImage& stored, const QImage& made) {
  const auto sizeOf = [](const QSize& size) {
    return QString::number(size.width()) + "x" + QString::number(size.height());
  };
  if (stored.size() != made.size()) return (sizeOf(made.size()) + ", was " + sizeOf(stored.size())).toStdString();

  const PixelsOff strokes = pixelsOff(stored, made, kForgivenStroke);
  const PixelsOff colours = pixelsOff(averages(stored), averages(made), kForgivenPlace);
  if (strokes.count == 0 && colours.count == 0) return {};
  const QRect where = strokes.where | QRect(colours.where.topLeft() * kPlace, colours.where.size() * kPlace);
  return QString("%1 pixels by up to %2 levels, %3 places by up to %4 on average, within %5 from %6,%7")
      .arg(strokes.count)
      .arg(strokes.most)
      .arg(colours.count)
      .arg(colours.most)
      .arg(sizeOf(where.size()))
      .arg(where.x())
      .arg(where.y())
      .toStdString();
}

/// A picture that is not as it should be, and what is wrong with it.
struct PictureFinding {
  std::string file;
  std::string what;
};

/// Compares the pictures (*.png) of two folders by their names. One that only one folder has is a finding too, and so
/// is one that cannot be read.
inline std::vector<PictureFinding> pictureFindings(const QDir& stored, const QDir& made) {
  const auto picturesIn = [](const QDir& folder) { return folder.entryList({"*.png"}, QDir::Files, QDir::Name); };
  std::vector<PictureFinding> findings;
  const auto find = [&findings](const QString& file, const std::string& what) {
    if (!what.empty()) findings.push_back({file.toStdString(), what});
  };
  for (const QString& file : picturesIn(stored)) {
    if (!made.exists(file)) {
      find(file, "stored and not made");
      continue;
    }
    const QImage was(stored.filePath(file));
    const QImage is(made.filePath(file));
    find(file, was.isNull() || is.isNull() ? "cannot be read" : pictureDifference(was, is));
  }
  for (const QString& file : picturesIn(made)) {
    if (!stored.exists(file)) find(file, "made and not stored");
  }
  return findings;
}

}  // namespace zelvs
