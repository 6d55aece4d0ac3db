#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QRegion>
#include <QStringList>

#include "ui/painter.h"

namespace zelvs {

class Form;

QColor colourOf(Colour colour);
/// The families that texts may be drawn in, each as good as the others. Of those that are there the first is taken.
const QStringList& textFamilies();
/// The program's one family: ASCII half as wide as ideographs, at the size that the model counts with.
QFont fontOf(double points, bool bold);
QRectF pixelsOf(const Area& twips);
Area twipsOf(const QRect& pixels);

/// Draws through the toolkit. The painter is lent: it must outlive this.
class QtPainter final : public Painter {
 public:
  explicit QtPainter(QPainter& painter) : painter_(painter) {}

  void fill(const Area& place, Colour colour) override;
  void line(double x1, double y1, double x2, double y2, Colour colour, double width, Stroke stroke) override;
  void rectangle(const Area& place, Colour colour, double opacity, double corner) override;
  void text(double left, double baseline, std::string_view text, double points, bool bold, Colour colour) override;
  void image(const Picture& picture, const Area& place) override;
  void pushClip(const Area& place) override;
  void popClip() override;

 private:
  void outlineOf(const QRectF& place, const QColor& ink);

  QPainter& painter_;
};

/// Draws the inside of a form as far as it touches the region, in pixels.
void drawForm(QPainter& painter, const Form& form, const QRegion& dirty);

}  // namespace zelvs
