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

/// How far a channel of a pixel may be off, in levels of 255. A letter that another machine sets a quarter of a pixel
/// further is off by less, at its edges; a stroke that is there or not, or a lamp that is lit or dark, by more.
inline constexpr int kForgivenLevels = 64;
/// How many pixels of a picture may be off by more. It is a number and no share: a digit of a few dozen pixels counts
/// the same on a whole screen as in a small window.
inline constexpr int kForgivenPixels = 4;

/// How two pictures differ; empty when they do not, but for what is forgiven.
inline std::string pictureDifference(QImage stored, QImage made) {
  const auto sizeOf = [](const QImage& picture) {
    return std::to_string(picture.width()) + "x" + std::to_string(picture.height());
  };
  if (stored.size() != made.size()) return "is " + sizeOf(made) + " and was " + sizeOf(stored);
  stored.convertTo(QImage::Format_RGB32);
  made.convertTo(QImage::Format_RGB32);
  int pixels = 0;
  int most = 0;
  QRect where;
  for (int y = 0; y < made.height(); ++y) {
    for (int x = 0; x < made.width(); ++x) {
      const QRgb a = stored.pixel(x, y);
      const QRgb b = made.pixel(x, y);
      const int levels =
          std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
      if (levels <= kForgivenLevels) continue;
      ++pixels;
      most = std::max(most, levels);
      where |= QRect(x, y, 1, 1);
    }
  }
  if (pixels <= kForgivenPixels) return {};
  return "differs in " + std::to_string(pixels) + " pixels, by up to " + std::to_string(most) + " levels, within x " +
         std::to_string(where.left()) + " to " + std::to_string(where.right()) + ", y " + std::to_string(where.top()) +
         " to " + std::to_string(where.bottom());
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
      find(file, "is stored and not made");
      continue;
    }
    const QImage was(stored.filePath(file));
    const QImage is(made.filePath(file));
    find(file, was.isNull() || is.isNull() ? "cannot be read" : pictureDifference(was, is));
  }
  for (const QString& file : picturesIn(made)) {
    if (!stored.exists(file)) find(file, "is made and not stored");
  }
  return findings;
}

}  // namespace zelvs
