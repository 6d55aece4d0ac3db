#include "ui/qt/sprites.h"

#include <QFile>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <memory>
#include <optional>

#include "ui/runTimeError.h"

namespace zelvs {

namespace {

/// An image list's file: a strip of equal cells, image number n the n-th from the left.
QSvgRenderer& stripOf(const ImageList& list) {
  static QHash<QString, std::shared_ptr<QSvgRenderer>> strips;
  const QString name = QString::fromStdString(list.name());
  auto& strip = strips[name];
  if (strip == nullptr) {
    strip = std::make_shared<QSvgRenderer>(":/pictures/" + name + ".svg");
    if (!strip->isValid()) runTimeError("no pictures for the image list " + list.name());
  }
  return *strip;
}

QPixmap render(const ImageList& list, int image, QSize pixels) {
  QSvgRenderer& strip = stripOf(list);
  const QSizeF whole = strip.defaultSize();
  const qreal cell = whole.width() / list.count();
  strip.setViewBox(QRectF((image - 1) * cell, 0, cell, whole.height()));
  QPixmap pixmap(pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  strip.render(&painter, QRectF(QPointF(0, 0), QSizeF(pixels)));
  return pixmap;
}

QPixmap read(const PictureFile& file) {
  const std::optional<Bitmap> bitmap = pixelsOf(file);
  if (!bitmap) return {};
  const auto* const pixels = reinterpret_cast<const uchar*>(bitmap->pixels.data());
  const QImage lent(pixels, bitmap->width, bitmap->height, QImage::Format_ARGB32);
  return QPixmap::fromImage(lent.copy());  // a pixmap may go on using what it is made from
}

}  // namespace

QPixmap spriteOf(const Picture& picture, QSize size, qreal devicePixelRatio) {
  const PictureFile* file = fileOf(picture);
  const QString source = file != nullptr
                             ? QString::fromStdString(file->path)
                             : QString::fromStdString(picture.list->name()) + ' ' + QString::number(picture.image);
  static QHash<QString, QPixmap> kept;
  const QString key = source + '@' + QString::number(size.width()) + 'x' + QString::number(size.height()) + '*' +
                      QString::number(devicePixelRatio);
  const auto found = kept.constFind(key);
  if (found != kept.constEnd()) return *found;

  QPixmap pixmap;
  if (file != nullptr) {
    pixmap = read(*file);
  } else {
    pixmap = render(*picture.list, picture.image, (QSizeF(size) * devicePixelRatio).toSize());
    pixmap.setDevicePixelRatio(devicePixelRatio);
  }
  kept.insert(key, pixmap);
  return pixmap;
}

}  // namespace zelvs
