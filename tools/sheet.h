#pragma once

#include <QFont>
#include <QImage>
#include <QString>
#include <cstdio>

/// What the tools that draw pictures into the program folder have in common.
namespace sheet {

/// The program's own face: its ASCII is half as wide as its ideographs. Size in pixels.
inline QFont font(int size, bool bold = false) {
  QFont font;
  font.setFamilies({"Noto Sans Mono CJK JP", "VL Gothic", "IPAGothic", "MS Gothic", "Monospace"});
  font.setPixelSize(size);
  font.setBold(bold);
  return font;
}

/// Writes a BMP of 24 bits a pixel; false and a word on stderr when that fails.
inline bool save(const QImage& image, const QString& path) {
  if (image.convertToFormat(QImage::Format_RGB32).save(path, "BMP")) return true;
  std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
  return false;
}

}  // namespace sheet
