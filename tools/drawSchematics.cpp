// Draws the schematic pictures of the boards. A circuit with a fault, a wire that ends in the air for one, fails the
// build with the picture's name and the place; it is drawn all the same, since the picture helps to find the fault.

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

#include "tools/schematics/boards.h"
#include "tools/sheet.h"

namespace {

using namespace schematics;

QColor colourOf(Ink ink) {
  switch (ink) {
    case Ink::kNone:
      return Qt::transparent;
    case Ink::kPaper:
      return Qt::white;
    case Ink::kWire:
      return {0, 92, 66};
    case Ink::kPart:
      return {124, 24, 24};
    case Ink::kBody:
      return {255, 251, 226};
    case Ink::kName:
      return {24, 56, 168};
    case Ink::kValue:
      return {70, 70, 70};
    case Ink::kPin:
      return {16, 16, 16};
    case Ink::kNumber:
      return {150, 100, 50};
    case Ink::kRed:
      return {224, 40, 40};
    case Ink::kGreen:
      return {40, 176, 72};
  }
  return Qt::black;
}

void paint(QPainter& painter, const Stroke& stroke) {
  const Rect& r = stroke.at;
  const bool dashed = stroke.shape == Shape::kDashes || stroke.shape == Shape::kDashedBox;
  painter.setPen(QPen(colourOf(stroke.ink), 1, dashed ? Qt::DashLine : Qt::SolidLine));
  painter.setBrush(colourOf(stroke.fill));
  painter.setRenderHint(QPainter::Antialiasing,
                        stroke.shape == Shape::kOval || (r.w != 0 && r.h != 0 && stroke.shape == Shape::kLine));
  switch (stroke.shape) {
    case Shape::kLine:
    case Shape::kDashes:
      return painter.drawLine(r.x, r.y, r.x + r.w, r.y + r.h);
    case Shape::kBox:
    case Shape::kDashedBox:
      return painter.drawRect(r.x, r.y, r.w, r.h);
    case Shape::kOval:
      return painter.drawEllipse(QRectF(r.x + 0.5, r.y + 0.5, r.w, r.h));
    case Shape::kTriangleLeft:
    case Shape::kTriangleRight: {
      const bool right = stroke.shape == Shape::kTriangleRight;
      const int base = right ? r.x : r.x + r.w;
      const QPoint corners[] = {{base, r.y}, {base, r.y + r.h}, {right ? r.x + r.w : r.x, r.y + r.h / 2}};
      return painter.drawPolygon(corners, 3);
    }
    case Shape::kArcLeft:
      return painter.drawArc(r.x, r.y, r.w, r.h, 90 * 16, 180 * 16);
    case Shape::kArcRight:
      return painter.drawArc(r.x, r.y, r.w, r.h, -90 * 16, 180 * 16);
  }
}

void paint(QPainter& painter, const Text& text) {
  painter.setFont(sheet::font(text.size, text.bold));
  painter.setPen(colourOf(text.ink));
  const Rect extent = text.extent();
  const QRect place(extent.x - 20, text.y - text.size, extent.w + 40, 2 * text.size);
  painter.drawText(place, Qt::AlignCenter, QString::fromStdString(text.words));
}

QImage imageOf(const Circuit& circuit) {
  QImage image(kWidth, kHeight, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  for (const Stroke& wire : circuit.wires())
    paint(painter, wire);
  for (const Point& dot : circuit.dots())
    painter.fillRect(dot.x - 2, dot.y - 2, 5, 5, colourOf(Ink::kWire));
  for (const Stroke& stroke : circuit.strokes())
    paint(painter, stroke);
  for (const Text& text : circuit.texts())
    paint(painter, text);
  return image;
}

}  // namespace

int main(int count, char** arguments) {
  const QGuiApplication application(count, arguments);
  if (count != 2) {
    std::fprintf(stderr, "usage: zelvs-draw-schematics FOLDER\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(arguments[1]));
  if (!folder.mkpath(".")) return 1;
  bool good = true;
  for (const Picture& picture : allPictures()) {
    for (const std::string& fault : picture.circuit.faults()) {
      std::fprintf(stderr, "%s: %s\n", picture.file.c_str(), fault.c_str());
      good = false;
    }
    const Rect& r = picture.place;
    const QImage image = imageOf(picture.circuit).copy(r.x, r.y, r.w, r.h);
    good = sheet::save(image, folder.filePath(QString::fromStdString(picture.file))) && good;
  }
  return good ? 0 : 1;
}
